// RibbonHost: the simulator's Office ribbon, driving the add-in as Office
// does.
//
// The first window of a ribbon id ("Microsoft.Outlook.Explorer",
// "Microsoft.Outlook.Appointment" ...) makes the host ask the add-in's
// GetCustomUI for it, once per id. Markup the host rejects
// (ParseRibbonMarkup) or an empty answer shows nothing and reports nothing.
// Accepted markup gets its IRibbonUI (Invalidate, InvalidateControl,
// InvalidateControlMso) through the root's onLoad.
//
// A RibbonWindow is one window showing that markup, with its Explorer or
// Inspector as the controls' Context. Reading a surface (Ribbon, Backstage,
// an open context menu, a dropped dynamic menu) shows it as the user sees it
// now: static attributes where no callback is bound, otherwise the
// callbacks' answers with an IRibbonControl (Id, Context, Tag). An answer is
// kept until the ribbon is invalidated, wholly or for that control, so the
// next reading asks exactly the getters that were invalidated. A failing or
// unknown callback counts as a missing one.
//
// The user's actions call the bound callback with the arguments Office
// passes: a button onAction(control); a toggle button or check box
// onAction(control, pressed); a drop-down or gallery onAction(control,
// selectedId, selectedIndex); a combo box or edit box onChange(control,
// text). The user can act only on what is shown and enabled.
//
//   RibbonHost host(addin);
//   RibbonWindow& w = host.Open("Microsoft.Outlook.Explorer", explorer);
//   w.ShowTabSet("TabSetAppointment", true);
//   w.Choose("cboProjectAppointment", 1);
//   EXPECT_EQ(w.Ribbon().Find("cboProjectAppointment")->selectedIndex, 1);
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/object.h"
#include "sim/ribbon/ribbon_addin.h"
#include "sim/ribbon/ribbon_markup.h"
#include "sim/ribbon/shown_control.h"

namespace qvx::sim {

class FakeObject;
class RibbonWindow;

// One action callback the host called for the user.
struct RibbonAction {
  std::string callback;                // as the markup binds it
  std::vector<std::string> arguments;  // RibbonArgumentText of each
  CallbackOutcome outcome = CallbackOutcome::Done;
};

enum class UserActionResult {
  Done,
  NotShown,     // no such control on an open surface, or hidden
  Disabled,     // shown but not enabled
  NoSuchRow,    // a row outside the drop-down's rows
  NotThatKind,  // the control does not take this action
};

class RibbonHost {
 public:
  explicit RibbonHost(RibbonAddin& addin);
  ~RibbonHost();
  RibbonHost(const RibbonHost&) = delete;
  RibbonHost& operator=(const RibbonHost&) = delete;

  // A window of this ribbon id opens; `context` is its Explorer or Inspector.
  RibbonWindow& Open(std::string_view ribbonId, Object context);
  void Close(RibbonWindow& window);

  // The IRibbonUI handed to onLoad for this ribbon id; Nothing when the id
  // was not loaded (never asked, rejected, or no onLoad bound).
  Object RibbonUi(std::string_view ribbonId) const;
  // How often the add-in invalidated the whole ribbon, all ribbon ids.
  int InvalidationCount() const;

  // The action callbacks called for the user so far, oldest first.
  const std::vector<RibbonAction>& Actions() const { return actions_; }
  void ClearActions() { actions_.clear(); }

 private:
  friend class RibbonWindow;
  // The markup of one ribbon id and the windows showing it.
  struct Document {
    std::optional<MarkupElement> markup;  // nullopt: rejected or empty, nothing shown
    std::shared_ptr<FakeObject> ribbonUi;
    std::vector<RibbonWindow*> windows;
  };

  std::shared_ptr<Document> Load(std::string_view ribbonId);
  // Calls an action callback and records it.
  void Act(const std::string& callback, std::vector<Variant>& args);

  RibbonAddin& addin_;
  std::map<std::string, std::shared_ptr<Document>> documents_;  // by ribbon id
  std::vector<std::unique_ptr<RibbonWindow>> windows_;
  std::vector<RibbonAction> actions_;
};

class RibbonWindow {
 public:
  RibbonWindow(RibbonHost& host, std::shared_ptr<RibbonHost::Document> document, Object context);
  ~RibbonWindow();
  RibbonWindow(const RibbonWindow&) = delete;
  RibbonWindow& operator=(const RibbonWindow&) = delete;

  // False when the add-in's markup was rejected or empty.
  bool HasMarkup() const;

  // Which contextual tab sets (by idMso) the host shows now, as the
  // selection makes them appear.
  void ShowTabSet(std::string_view tabSetIdMso, bool shown);

  // The ribbon: the tabs, then the tabs of the shown contextual tab sets.
  ShownControl Ribbon();
  // The File view, shown while open.
  void OpenBackstage() { backstageOpen_ = true; }
  void CloseBackstage() { backstageOpen_ = false; }
  ShownControl Backstage();
  // The user right-clicks: the add-in's entries of the built-in context menu
  // `menuIdMso`, their Context the object clicked (a Selection, say).
  // False when the markup adds nothing to that menu.
  bool OpenContextMenu(std::string_view menuIdMso, Object context);
  ShownControl ContextMenu();
  // The user drops a dynamic menu on the ribbon: its getContent is asked
  // (again at each drop when invalidateContentOnDrop is true).
  UserActionResult DropMenu(std::string_view menuId);
  ShownControl DroppedMenu();

  // The control with that id as shown on an open surface (the dropped
  // menu, the context menu, the backstage, the ribbon, in that order);
  // nullopt when it is not shown.
  std::optional<ShownControl> Shown(std::string_view controlId);

  // A click on a button, toggle button, check box or menu entry of an open
  // surface. A click in a context menu or a dropped menu closes it.
  UserActionResult Click(std::string_view controlId);
  // The user picks a row of a drop-down, gallery or combo box.
  UserActionResult Choose(std::string_view controlId, int rowIndex);
  // The user types into an edit box or combo box and leaves it.
  UserActionResult Type(std::string_view controlId, std::string_view text);

 private:
  friend class RibbonHost;
  struct Surface;
  struct Located;

  void Forget(std::string_view controlId);  // invalidation
  void ForgetAll();
  // Shows `value` as the answer of the element's getter until invalidated,
  // when the element binds one: what the user just chose.
  void Remember(const MarkupElement& e, std::string_view getter, Variant value);
  std::optional<Variant> Ask(const MarkupElement& e, std::string_view getter, const Object& context,
                             std::optional<int32_t> index = {});
  std::string AskText(const MarkupElement& e, std::string_view attribute, std::string_view getter,
                      const Object& context);
  bool AskBool(const MarkupElement& e, std::string_view attribute, std::string_view getter,
               const Object& context, bool fallback);
  std::string AskImage(const MarkupElement& e, const Object& context);
  void AskRows(const MarkupElement& e, const Object& context, ShownControl& shown);
  ShownControl Show(const MarkupElement& e, const Object& context);
  ShownControl ShowChildren(std::string_view kind,
                            const std::vector<const MarkupElement*>& elements,
                            const Object& context);
  Object ControlFor(const MarkupElement& e, const Object& context) const;
  std::vector<Surface> OpenSurfaces() const;
  ShownControl ShowSurface(std::string_view kind);
  std::optional<Located> Locate(std::string_view controlId);
  void CloseMenus();
  // Closes what a click closes and calls the callback bound in `callbackAttribute`.
  UserActionResult Perform(const Located& at, std::string_view callbackAttribute,
                           std::vector<Variant>& args);

  RibbonHost& host_;
  std::shared_ptr<RibbonHost::Document> document_;
  Object context_;
  std::map<std::string, std::optional<Variant>> answers_;  // by control, getter, index
  // What the host keeps itself where no callback answers: a toggle's pressed
  // state, a drop-down's chosen row, an edit box's text; by control.
  std::map<std::string, Variant> held_;
  std::set<std::string> tabSets_;
  bool backstageOpen_ = false;
  const MarkupElement* contextMenu_ = nullptr;
  Object contextMenuContext_;
  const MarkupElement* droppedMenu_ = nullptr;
  std::optional<MarkupElement> droppedContent_;
};

}  // namespace qvx::sim
