// The host's enumerations and property-set GUIDs, spelled once for the add-in
// and for the simulated host alike, under the host's own names.
//
//   ns.Call("GetDefaultFolder", {Variant(host::olFolderCalendar)});
//   props.Call("Add", {Variant("ProjectValue"), Variant(host::olText)});
#pragma once

#include <cstdint>
#include <string_view>

namespace qvx::host {

// OlDefaultFolders.
inline constexpr int32_t olFolderDeletedItems = 3;
inline constexpr int32_t olFolderOutbox = 4;
inline constexpr int32_t olFolderSentMail = 5;
inline constexpr int32_t olFolderInbox = 6;
inline constexpr int32_t olFolderCalendar = 9;
inline constexpr int32_t olFolderTasks = 13;
inline constexpr int32_t olFolderDrafts = 16;

// OlUserPropertyType.
inline constexpr int32_t olText = 1;
inline constexpr int32_t olNumber = 3;
inline constexpr int32_t olDateTime = 5;
inline constexpr int32_t olYesNo = 6;
inline constexpr int32_t olDuration = 7;
inline constexpr int32_t olKeywords = 11;
inline constexpr int32_t olPercent = 12;
inline constexpr int32_t olCurrency = 14;
inline constexpr int32_t olCombination = 19;
inline constexpr int32_t olInteger = 20;

// OlObjectClass.
inline constexpr int32_t olAppointment = 26;
inline constexpr int32_t olMail = 43;
inline constexpr int32_t olTask = 48;

// OlItemType.
inline constexpr int32_t olMailItem = 0;
inline constexpr int32_t olAppointmentItem = 1;
inline constexpr int32_t olTaskItem = 3;

// OlViewType, the kind a view is made as.
inline constexpr int32_t olTableView = 0;
inline constexpr int32_t olCalendarView = 2;

// OlViewSaveOption: a view of this folder, for everyone who opens it.
inline constexpr int32_t olViewSaveOptionThisFolderEveryone = 0;

// OlRecurrenceState.
inline constexpr int32_t olApptNotRecurring = 0;
inline constexpr int32_t olApptMaster = 1;
inline constexpr int32_t olApptOccurrence = 2;
inline constexpr int32_t olApptException = 3;

// OlSensitivity.
inline constexpr int32_t olPrivate = 2;

// MsoControlType: the five kinds of command-bar control the add-in makes.
inline constexpr int32_t msoControlButton = 1;
inline constexpr int32_t msoControlEdit = 2;
inline constexpr int32_t msoControlDropdown = 3;
inline constexpr int32_t msoControlComboBox = 4;
inline constexpr int32_t msoControlPopup = 10;
// The Id that CommandBarControls.Add takes (or assumes) for a custom control.
inline constexpr int32_t msoControlIdCustom = 1;

// MsoBarPosition.
inline constexpr int32_t msoBarLeft = 0;
inline constexpr int32_t msoBarTop = 1;
inline constexpr int32_t msoBarRight = 2;
inline constexpr int32_t msoBarBottom = 3;
inline constexpr int32_t msoBarFloating = 4;
inline constexpr int32_t msoBarPopup = 5;

// MsoBarType, a bar's Type.
inline constexpr int32_t msoBarTypeNormal = 0;
inline constexpr int32_t msoBarTypeMenuBar = 1;
inline constexpr int32_t msoBarTypePopup = 2;

// MsoButtonStyle.
inline constexpr int32_t msoButtonAutomatic = 0;
inline constexpr int32_t msoButtonIcon = 1;
inline constexpr int32_t msoButtonCaption = 2;
inline constexpr int32_t msoButtonIconAndCaption = 3;

// MsoComboStyle: a combo box with its caption shown as a label before it.
inline constexpr int32_t msoComboNormal = 0;
inline constexpr int32_t msoComboLabel = 1;

// MsoButtonState and MsoCommandBarButtonHyperlinkType.
inline constexpr int32_t msoButtonUp = 0;
inline constexpr int32_t msoCommandBarButtonHyperlinkOpen = 1;

// PS_PUBLIC_STRINGS: the named-property set where the host keeps user fields.
inline constexpr std::string_view kPublicStringsGuid = "{00020329-0000-0000-C000-000000000046}";

}  // namespace qvx::host
