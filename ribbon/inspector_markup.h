// The inspector's customUI document: one tab of an appointment, meeting
// request or task window, in the 2006 namespace.
//
// Markup is concatenated text, character for character as the host has
// always been given it (double blanks included); nothing is escaped, so the
// custom fields title reaches the host as it stands. Each generator traps its
// failure, reports it under its label and answers "".
//
//   MailTaskAppointmentUI(s, "TabTask", "KRPTaskInspector", "GroupActions", "Task");
#pragma once

#include <string>
#include <string_view>

namespace qvx {

class AddinState;

// The custom UI namespace of the 2006 schema.
inline constexpr std::string_view kCustomUiNamespace2006 =
    "http://schemas.microsoft.com/office/2006/01/customui";

// The whole inspector document: the main group on `tab` before `before`, and
// the custom fields group of `context` ("Appointment" or "Task").
std::string MailTaskAppointmentUI(AddinState& s, std::string_view tab, std::string_view groupId,
                                  std::string_view before, std::string_view context) noexcept;

// The content of the inspector's main group. On a host of major version 12
// the report and withdraw buttons show the add-in's own pictures (through
// loadImage), above it the host's built-in images.
std::string GetInspectorRibbonUI(AddinState& s) noexcept;

// The inspector's custom fields group, with the title baked into its label;
// "" while there are no settings.
std::string GetInspectorCustomFieldsRibbonUI(AddinState& s, std::string_view before,
                                             std::string_view context) noexcept;

}  // namespace qvx
