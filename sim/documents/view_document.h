// A view document (the host's View.XML) as the host reads it, for tests and
// scripts to look into; native only, as it reads with libxml2.
//
// The host takes a document whose root is `view`; what follows the root's
// end tag is not read, as a host reading the stream stops there. Text that is
// not well-formed up to there, or has another root, gives no tree.
//
//   auto doc = ParseViewDocument(xml);
//   if (doc) doc->ChildText("viewname");   // "Reported State"
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qvx::sim {

struct ViewElement {
  std::string name;
  std::vector<std::pair<std::string, std::string>> attributes;
  std::string text;  // the element's own text, entities resolved
  std::vector<ViewElement> children;

  const std::string* Attribute(std::string_view attribute) const;
  // The first child of that name, or nullptr.
  const ViewElement* Child(std::string_view child) const;
  // The text of the first child of that name; "" when there is none.
  std::string ChildText(std::string_view child) const;
  // Every child of that name, in order.
  std::vector<const ViewElement*> Children(std::string_view child) const;
};

std::optional<ViewElement> ParseViewDocument(std::string_view text);

}  // namespace qvx::sim
