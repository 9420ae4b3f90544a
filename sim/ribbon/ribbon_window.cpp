// A window's surfaces (ribbon, backstage, context menu, dropped menu) and
// the user's actions on them.
#include <algorithm>

#include "sim/fake_object.h"
#include "sim/ribbon/ribbon_host.h"

namespace qvx::sim {
namespace {

bool IsOneOf(std::string_view kind, std::initializer_list<std::string_view> kinds) {
  return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

const MarkupElement* FindElement(const std::vector<const MarkupElement*>& elements,
                                 std::string_view key) {
  for (const MarkupElement* e : elements) {
    if (e->Key() == key) return e;
    std::vector<const MarkupElement*> children;
    for (const MarkupElement& child : e->children) children.push_back(&child);
    if (const MarkupElement* found = FindElement(children, key)) return found;
  }
  return nullptr;
}

std::vector<const MarkupElement*> ChildrenOf(const MarkupElement* e) {
  std::vector<const MarkupElement*> out;
  if (e) {
    for (const MarkupElement& child : e->children) out.push_back(&child);
  }
  return out;
}

}  // namespace

// An open surface: the elements it shows and the Context of their controls.
struct RibbonWindow::Surface {
  std::string kind;
  std::vector<const MarkupElement*> elements;
  Object context;
  bool closesOnClick = false;
};

// A control the user acts on, found on an open surface.
struct RibbonWindow::Located {
  const MarkupElement* element;
  ShownControl shown;
  Object context;
  bool closesOnClick;
};

RibbonWindow::RibbonWindow(RibbonHost& host, std::shared_ptr<RibbonHost::Document> document,
                           Object context)
    : host_(host), document_(std::move(document)), context_(std::move(context)) {
  document_->windows.push_back(this);
}

RibbonWindow::~RibbonWindow() {
  std::erase(document_->windows, this);
}

bool RibbonWindow::HasMarkup() const {
  return document_->markup.has_value();
}

void RibbonWindow::ShowTabSet(std::string_view tabSetIdMso, bool shown) {
  if (shown) {
    tabSets_.insert(std::string(tabSetIdMso));
  } else {
    tabSets_.erase(std::string(tabSetIdMso));
  }
}

std::vector<RibbonWindow::Surface> RibbonWindow::OpenSurfaces() const {
  std::vector<Surface> surfaces;
  if (!document_->markup) return surfaces;
  const MarkupElement& root = *document_->markup;
  if (droppedContent_) {
    surfaces.push_back({"menu", ChildrenOf(&*droppedContent_), context_, true});
  }
  if (contextMenu_) {
    surfaces.push_back({"contextMenu", ChildrenOf(contextMenu_), contextMenuContext_, true});
  }
  if (backstageOpen_) {
    surfaces.push_back({"backstage", ChildrenOf(root.Child("backstage")), context_, false});
  }
  Surface ribbon{"ribbon", {}, context_, false};
  if (const MarkupElement* r = root.Child("ribbon")) {
    ribbon.elements = ChildrenOf(r->Child("tabs"));
    for (const MarkupElement* set : ChildrenOf(r->Child("contextualTabs"))) {
      const std::string* idMso = set->Attribute("idMso");
      if (idMso && tabSets_.contains(*idMso)) ribbon.elements.push_back(set);
    }
  }
  surfaces.push_back(std::move(ribbon));
  return surfaces;
}

ShownControl RibbonWindow::ShowSurface(std::string_view kind) {
  for (const Surface& s : OpenSurfaces()) {
    if (s.kind == kind) return ShowChildren(kind, s.elements, s.context);
  }
  ShownControl none;
  none.kind = kind;
  return none;
}

ShownControl RibbonWindow::Ribbon() {
  return ShowSurface("ribbon");
}

ShownControl RibbonWindow::Backstage() {
  return ShowSurface("backstage");
}

ShownControl RibbonWindow::ContextMenu() {
  return ShowSurface("contextMenu");
}

ShownControl RibbonWindow::DroppedMenu() {
  return ShowSurface("menu");
}

bool RibbonWindow::OpenContextMenu(std::string_view menuIdMso, Object context) {
  CloseMenus();
  if (!document_->markup) return false;
  for (const MarkupElement* menu : ChildrenOf(document_->markup->Child("contextMenus"))) {
    const std::string* idMso = menu->Attribute("idMso");
    if (idMso && *idMso == menuIdMso) {
      contextMenu_ = menu;
      contextMenuContext_ = std::move(context);
      return true;
    }
  }
  return false;
}

void RibbonWindow::CloseMenus() {
  contextMenu_ = nullptr;
  contextMenuContext_ = Object();
  droppedContent_.reset();
}

std::optional<RibbonWindow::Located> RibbonWindow::Locate(std::string_view controlId) {
  for (const Surface& s : OpenSurfaces()) {
    const ShownControl shown = ShowChildren(s.kind, s.elements, s.context);
    const ShownControl* control = shown.Find(controlId);
    if (!control) continue;
    const MarkupElement* element = FindElement(s.elements, controlId);
    if (!element) continue;
    return Located{element, *control, s.context, s.closesOnClick};
  }
  return std::nullopt;
}

std::optional<ShownControl> RibbonWindow::Shown(std::string_view controlId) {
  auto at = Locate(controlId);
  if (!at) return std::nullopt;
  return std::move(at->shown);
}

UserActionResult RibbonWindow::DropMenu(std::string_view menuId) {
  auto at = Locate(menuId);
  if (!at) return UserActionResult::NotShown;
  if (!at->shown.enabled) return UserActionResult::Disabled;
  if (at->element->name != "dynamicMenu") return UserActionResult::NotThatKind;
  const MarkupElement& menu = *at->element;
  const std::string* again = menu.Attribute("invalidateContentOnDrop");
  if (again && (*again == "true" || *again == "1")) Forget(menu.Key());
  const std::string content = AskText(menu, "", "getContent", at->context);
  CloseMenus();
  // Content the host rejects (or none) drops an empty menu.
  droppedContent_ = ParseRibbonMarkup(content, "menu");
  if (!droppedContent_) droppedContent_.emplace().name = "menu";
  return UserActionResult::Done;
}

UserActionResult RibbonWindow::Click(std::string_view controlId) {
  auto at = Locate(controlId);
  if (!at) return UserActionResult::NotShown;
  if (!at->shown.enabled) return UserActionResult::Disabled;
  const MarkupElement& e = *at->element;
  if (e.name == "dynamicMenu") return DropMenu(controlId);
  std::vector<Variant> args{Variant(ControlFor(e, at->context))};
  if (IsOneOf(e.name, {"toggleButton", "checkBox"})) {
    const bool pressed = !at->shown.pressed;
    held_.insert_or_assign(at->shown.id, Variant(pressed));
    // The host shows the new state at once, as it shows a chosen row.
    Remember(e, "getPressed", Variant(pressed));
    args.emplace_back(pressed);
  } else if (!IsOneOf(e.name, {"button", "task", "control"})) {
    return UserActionResult::NotThatKind;
  }
  return Perform(*at, "onAction", args);
}

UserActionResult RibbonWindow::Choose(std::string_view controlId, int rowIndex) {
  auto at = Locate(controlId);
  if (!at) return UserActionResult::NotShown;
  if (!at->shown.enabled) return UserActionResult::Disabled;
  const MarkupElement& e = *at->element;
  if (!IsOneOf(e.name, {"dropDown", "gallery", "comboBox"})) return UserActionResult::NotThatKind;
  if (rowIndex < 0 || static_cast<size_t>(rowIndex) >= at->shown.rows.size()) {
    return UserActionResult::NoSuchRow;
  }
  if (e.name == "comboBox") return Type(controlId, at->shown.rows[rowIndex].label);
  held_.insert_or_assign(at->shown.id, Variant(static_cast<int32_t>(rowIndex)));
  Remember(e, "getSelectedItemIndex", Variant(static_cast<int32_t>(rowIndex)));
  std::vector<Variant> args{Variant(ControlFor(e, at->context)),
                            Variant(at->shown.rows[rowIndex].id),
                            Variant(static_cast<int32_t>(rowIndex))};
  return Perform(*at, "onAction", args);
}

UserActionResult RibbonWindow::Type(std::string_view controlId, std::string_view text) {
  auto at = Locate(controlId);
  if (!at) return UserActionResult::NotShown;
  if (!at->shown.enabled) return UserActionResult::Disabled;
  const MarkupElement& e = *at->element;
  if (!IsOneOf(e.name, {"editBox", "comboBox"})) return UserActionResult::NotThatKind;
  held_.insert_or_assign(at->shown.id, Variant(text));
  std::vector<Variant> args{Variant(ControlFor(e, at->context)), Variant(text)};
  return Perform(*at, "onChange", args);
}

UserActionResult RibbonWindow::Perform(const Located& at, std::string_view callbackAttribute,
                                       std::vector<Variant>& args) {
  // Copied first: closing a dropped menu lets go of its markup.
  const std::string* bound = at.element->Attribute(callbackAttribute);
  const std::string callback = bound ? *bound : std::string();
  const std::string* definitive = at.element->Attribute("isDefinitive");
  if (definitive && *definitive == "true") CloseBackstage();
  if (at.closesOnClick) CloseMenus();
  if (!callback.empty()) host_.Act(callback, args);
  return UserActionResult::Done;
}

}  // namespace qvx::sim