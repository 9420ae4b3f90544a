// Which markup a window of the host gets, by the ribbon id the host asks for.
//
// The ribbon id decides, not the host's version: a host that asks for the
// explorer's ribbon gets it. Appointment and meeting request windows share
// the appointment document; every id not listed here (mail, contacts ...)
// gets "" and so no add-in ribbon. A failure while building never reaches
// the host: it receives whatever was built, "" when the generator failed.
//
//   IRibbonExtensibility_GetCustomUI(s, "Microsoft.Outlook.MeetingRequest.Read");
//   // == fncBuildUI(s, "Appointment")
#pragma once

#include <string>
#include <string_view>

namespace qvx {

class AddinState;

std::string IRibbonExtensibility_GetCustomUI(AddinState& s, std::string_view RibbonID) noexcept;

// The document of a build context: "Task", "Appointment" or "Explorer". Any
// other word is shown in a message box and answers "".
std::string fncBuildUI(AddinState& s, std::string_view context) noexcept;

}  // namespace qvx
