// The prepared views' documents: read from the add-in's resources and fitted
// to the configured titles before they go to the host's View.XML.
//
//   std::string xml = GetViewXML(s, "VIEWS_TASK", "Items without PROJECT (Filtered)");
//   view.Put("XML", Variant(ApplyTitlesToViewXML(s, xml)));
//
// Resource types: kAppointmentViews for folders of appointments, kTaskViews
// for folders of tasks; a folder of any other kind has the empty type.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qvx {

class AddinState;

inline constexpr std::string_view kAppointmentViews = "VIEWS_APPOINTMENT";
inline constexpr std::string_view kTaskViews = "VIEWS_TASK";

// The resource type for a folder's DefaultItemType: appointments and tasks
// have theirs, anything else "".
std::string_view ViewResourceType(int32_t defaultItemType);

// The document of `resourceName` (blanks become "_", case does not matter)
// of type `resourceType`, byte for byte. "" for an empty type, without looking;
// "" and a report ("Views.GetViewXML") when there is no such resource.
std::string GetViewXML(AddinState& s, std::string_view resourceType, std::string_view resourceName);

// Every element text that is exactly "Project" becomes the project title, and
// every one that is exactly "Task" the activity title. A title is written as
// element text, so that "R&D" keeps the document well-formed.
std::string ApplyTitlesToViewXML(AddinState& s, std::string_view xml);

}  // namespace qvx
