#include "sim/documents/view_document.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <limits>
#include <memory>

namespace qvx::sim {
namespace {

struct DocumentFree {
  void operator()(xmlDoc* doc) const { xmlFreeDoc(doc); }
};
using DocumentPtr = std::unique_ptr<xmlDoc, DocumentFree>;

std::string Text(const xmlChar* text) {
  return text ? std::string(reinterpret_cast<const char*>(text)) : std::string();
}

ViewElement Build(const xmlNode* node) {
  ViewElement out;
  out.name = Text(node->name);
  for (const xmlAttr* a = node->properties; a; a = a->next) {
    xmlChar* value = xmlNodeListGetString(node->doc, a->children, 1);
    out.attributes.emplace_back(Text(a->name), Text(value));
    xmlFree(value);
  }
  for (const xmlNode* child = node->children; child; child = child->next) {
    if (child->type == XML_ELEMENT_NODE) {
      out.children.push_back(Build(child));
    } else if (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE) {
      out.text += Text(child->content);
    }
  }
  if (!out.children.empty()) out.text.clear();  // indentation between elements
  return out;
}

}  // namespace

const std::string* ViewElement::Attribute(std::string_view attribute) const {
  for (const auto& [key, value] : attributes) {
    if (key == attribute) return &value;
  }
  return nullptr;
}

const ViewElement* ViewElement::Child(std::string_view child) const {
  for (const auto& c : children) {
    if (c.name == child) return &c;
  }
  return nullptr;
}

std::string ViewElement::ChildText(std::string_view child) const {
  const ViewElement* c = Child(child);
  return c ? c->text : std::string();
}

std::vector<const ViewElement*> ViewElement::Children(std::string_view child) const {
  std::vector<const ViewElement*> out;
  for (const auto& c : children) {
    if (c.name == child) out.push_back(&c);
  }
  return out;
}

std::optional<ViewElement> ParseViewDocument(std::string_view text) {
  constexpr std::string_view kEnd = "</view>";
  if (const size_t end = text.rfind(kEnd); end != std::string_view::npos) {
    text = text.substr(0, end + kEnd.size());
  }
  if (text.size() > static_cast<size_t>(std::numeric_limits<int>::max())) return std::nullopt;
  DocumentPtr doc(xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                                XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING));
  if (!doc || doc->intSubset) return std::nullopt;
  const xmlNode* root = xmlDocGetRootElement(doc.get());
  if (!root || Text(root->name) != "view") return std::nullopt;
  return Build(root);
}

}  // namespace qvx::sim
