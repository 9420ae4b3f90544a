// The add-in's customUI markup as the simulated ribbon host reads it.
//
// The host parses the text that GetCustomUI (or a dynamic menu's getContent)
// answers with libxml2 and keeps a plain tree of elements by local name.
// Like Office it takes all or nothing: text that is not well-formed XML, a
// document type declaration, a root that is not the expected element in one of the two customUI
// namespaces, an element from another namespace, a 2009 element (backstage,
// context menus) in a 2006 document, or an id given twice gives no tree at
// all, and nothing is reported.
//
//   auto doc = ParseRibbonMarkup(markup, "customUI");
//   if (!doc) return;  // the window shows no add-in controls
//   const MarkupElement* ribbon = doc->Child("ribbon");
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qvx::sim {

inline constexpr std::string_view kCustomUi2006 =
    "http://schemas.microsoft.com/office/2006/01/customui";
inline constexpr std::string_view kCustomUi2009 =
    "http://schemas.microsoft.com/office/2009/07/customui";

struct MarkupElement {
  std::string name;  // local name: "tab", "button", "dropDown" ...
  std::vector<std::pair<std::string, std::string>> attributes;
  std::vector<MarkupElement> children;

  // The attribute's value (attribute names are case-sensitive), or nullptr.
  const std::string* Attribute(std::string_view attribute) const;
  // The first child of that name, or nullptr.
  const MarkupElement* Child(std::string_view child) const;
  // What identifies the control: id, else idMso, else idQ; "" for none.
  std::string Key() const;
};

// The tree of `text` whose root must be `root` ("customUI", or "menu" for a
// dynamic menu's content); nullopt when the host would reject it.
std::optional<MarkupElement> ParseRibbonMarkup(std::string_view text, std::string_view root);

}  // namespace qvx::sim
