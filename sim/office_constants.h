// Office's command-bar enumerations, by their numbers in the type library.
//
// Standard library only and free of the simulator, so that the add-in can
// take these from here (or from a shared header of host constants that they
// move into) and both sides agree on each number.
#pragma once

#include <cstdint>

namespace qvx::office {

// MsoControlType: the kinds of control that CommandBarControls.Add makes.
inline constexpr int32_t kMsoControlButton = 1;
inline constexpr int32_t kMsoControlEdit = 2;
inline constexpr int32_t kMsoControlDropdown = 3;
inline constexpr int32_t kMsoControlComboBox = 4;
inline constexpr int32_t kMsoControlPopup = 10;

// MsoBarPosition.
inline constexpr int32_t kMsoBarLeft = 0;
inline constexpr int32_t kMsoBarTop = 1;
inline constexpr int32_t kMsoBarRight = 2;
inline constexpr int32_t kMsoBarBottom = 3;
inline constexpr int32_t kMsoBarFloating = 4;
inline constexpr int32_t kMsoBarPopup = 5;
inline constexpr int32_t kMsoBarMenuBar = 6;

// MsoBarType, a bar's Type.
inline constexpr int32_t kMsoBarTypeNormal = 0;
inline constexpr int32_t kMsoBarTypeMenuBar = 1;
inline constexpr int32_t kMsoBarTypePopup = 2;

// MsoBarProtection (flags).
inline constexpr int32_t kMsoBarNoProtection = 0;

// MsoButtonStyle.
inline constexpr int32_t kMsoButtonAutomatic = 0;
inline constexpr int32_t kMsoButtonIcon = 1;
inline constexpr int32_t kMsoButtonCaption = 2;
inline constexpr int32_t kMsoButtonIconAndCaption = 3;

// MsoComboStyle.
inline constexpr int32_t kMsoComboNormal = 0;
inline constexpr int32_t kMsoComboLabel = 1;

// MsoButtonState.
inline constexpr int32_t kMsoButtonUp = 0;

// The Id of a custom control: CommandBarControls.Add with Id 1 or none.
inline constexpr int32_t kCustomControlId = 1;

}  // namespace qvx::office
