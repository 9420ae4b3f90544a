#include "sim/ribbon/ribbon_markup.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <limits>
#include <memory>
#include <set>

namespace qvx::sim {
namespace {

struct DocumentFree {
  void operator()(xmlDoc* doc) const { xmlFreeDoc(doc); }
};
using DocumentPtr = std::unique_ptr<xmlDoc, DocumentFree>;

std::string_view Text(const xmlChar* text) {
  return text ? std::string_view(reinterpret_cast<const char*>(text)) : std::string_view();
}

std::string_view NamespaceOf(const xmlNode* node) {
  return node->ns ? Text(node->ns->href) : std::string_view();
}

// Elements the 2006 schema does not have.
bool Is2009Only(std::string_view name) {
  return name == "backstage" || name == "contextMenus";
}

class TreeBuilder {
 public:
  explicit TreeBuilder(std::string_view ns) : ns_(ns) {}

  // False when the element or one below it breaks a rule of the host.
  bool Build(const xmlNode* node, MarkupElement& out) {
    if (NamespaceOf(node) != ns_) return false;
    out.name = Text(node->name);
    if (ns_ == kCustomUi2006 && Is2009Only(out.name)) return false;
    for (const xmlAttr* a = node->properties; a; a = a->next) {
      if (a->ns) continue;  // xml:lang and the like are not the control's
      xmlChar* value = xmlNodeListGetString(node->doc, a->children, 1);
      std::string text(Text(value));
      xmlFree(value);
      if (Text(a->name) == "id" && !ids_.insert(text).second) return false;
      out.attributes.emplace_back(std::string(Text(a->name)), std::move(text));
    }
    for (const xmlNode* child = node->children; child; child = child->next) {
      if (child->type != XML_ELEMENT_NODE) continue;
      if (!Build(child, out.children.emplace_back())) return false;
    }
    return true;
  }

 private:
  std::string_view ns_;
  std::set<std::string> ids_;
};

}  // namespace

const std::string* MarkupElement::Attribute(std::string_view attribute) const {
  for (const auto& [name, value] : attributes) {
    if (name == attribute) return &value;
  }
  return nullptr;
}

const MarkupElement* MarkupElement::Child(std::string_view child) const {
  for (const MarkupElement& e : children) {
    if (e.name == child) return &e;
  }
  return nullptr;
}

std::string MarkupElement::Key() const {
  for (const char* attribute : {"id", "idMso", "idQ"}) {
    if (const std::string* value = Attribute(attribute)) return *value;
  }
  return {};
}

std::optional<MarkupElement> ParseRibbonMarkup(std::string_view text, std::string_view root) {
  if (text.empty() || text.size() > static_cast<size_t>(std::numeric_limits<int>::max())) {
    return std::nullopt;
  }
  // No network, no entity expansion, and no error printed: the host is silent.
  const DocumentPtr doc(xmlReadMemory(
      text.data(), static_cast<int>(text.size()), "customUI.xml", "UTF-8",
      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NOBLANKS));
  if (!doc) return std::nullopt;
  if (doc->intSubset) return std::nullopt;  // no document type, no entities of its own
  const xmlNode* top = xmlDocGetRootElement(doc.get());
  if (!top || Text(top->name) != root) return std::nullopt;
  const std::string_view ns = NamespaceOf(top);
  if (ns != kCustomUi2006 && ns != kCustomUi2009) return std::nullopt;
  MarkupElement tree;
  TreeBuilder builder(ns);
  if (!builder.Build(top, tree)) return std::nullopt;
  return tree;
}

}  // namespace qvx::sim
