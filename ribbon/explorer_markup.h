// The explorer's customUI document, in the 2009 namespace: the groups of the
// three explorer tabs and the four contextual tab sets, the backstage tab,
// and the entries of the calendar item's and the task item's context menus.
//
// As the inspector's (ribbon/inspector_markup.h): concatenated text, nothing
// escaped, each generator but GetContextMenuRibbonUI trapped under its label
// and then answering "". The explorer uses the host's images only.
//
//   const std::string xml = ExplorerUI(s);
//   GetCommonRibbonUI(s, "CalTable");  // the content of KRPExplorerCalendarTable
#pragma once

#include <string>
#include <string_view>

namespace qvx {

class AddinState;

// The custom UI namespace of the 2009 schema.
inline constexpr std::string_view kCustomUiNamespace2009 =
    "http://schemas.microsoft.com/office/2009/07/customui";

// The whole explorer document.
std::string ExplorerUI(AddinState& s) noexcept;

// The content of the main group of the context with this suffix. An empty
// suffix leaves out the views menu.
std::string GetCommonRibbonUI(AddinState& s, std::string_view suffix) noexcept;

// The custom fields group of the context with this suffix, with the title
// baked into its label; "" while there are no settings.
std::string GetCustomFieldsRibbonUI(AddinState& s, std::string_view suffix) noexcept;

// The add-in's entries of a context menu, their ids ending in `suffix`.
std::string GetContextMenuRibbonUI(std::string_view suffix);

}  // namespace qvx
