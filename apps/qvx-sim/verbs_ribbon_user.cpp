// The user at the simulated ribbon: opening a window's ribbon, clicking,
// toggling, choosing drop-down rows, context menus, the backstage; and what
// the user sees there.
#include <string>
#include <vector>

#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "sim/explorer.h"
#include "sim/inspector.h"
#include "sim/selection.h"

namespace qvx::scenario {
namespace {

constexpr char kExplorerRibbon[] = "Microsoft.Outlook.Explorer";

sim::RibbonWindow& Window(World& w) {
  if (!w.ribbonWindow) throw UsageError("no ribbon is open; use \"ribbon open RIBBONID\" first");
  return *w.ribbonWindow;
}

// The control as the user sees it; a failed expectation when it isn't shown.
sim::ShownControl ShownOrFail(World& w, const std::string& id) {
  auto shown = Window(w).Shown(id);
  if (!shown) throw ExpectationFailed(id + " shown", "not shown");
  return *shown;
}

void Check(sim::UserActionResult result, const std::string& id) {
  switch (result) {
    case sim::UserActionResult::Done:
      return;
    case sim::UserActionResult::NotShown:
      throw ExpectationFailed(id + " shown", "not shown");
    case sim::UserActionResult::Disabled:
      throw ExpectationFailed(id + " enabled", "disabled");
    case sim::UserActionResult::NoSuchRow:
      throw ExpectationFailed("a row of " + id, "no such row");
    case sim::UserActionResult::NotThatKind:
      throw ExpectationFailed(id + " taking this action", "a control of another kind");
  }
}

std::string Flag(bool value) {
  return value ? "true" : "false";
}

// One property of a shown control, as a script writes it.
std::string PropertyOf(const sim::ShownControl& c, const std::string& property) {
  if (property == "kind") return c.kind;
  if (property == "label") return c.label;
  if (property == "enabled") return Flag(c.enabled);
  if (property == "pressed") return Flag(c.pressed);
  if (property == "image") return c.image;
  if (property == "text") return c.text;
  if (property == "screentip") return c.screentip;
  if (property == "supertip") return c.supertip;
  if (property == "selected") return std::to_string(c.selectedIndex);
  if (property == "selected-label") {
    return c.selectedIndex >= 0 ? c.rows[static_cast<size_t>(c.selectedIndex)].label : "";
  }
  std::string words;
  for (const sim::ShownRow& row : c.rows) words += (words.empty() ? "" : " ") + Shown(row.label);
  return words;  // rows
}

// The ids of the shown children of a shown control, in order.
std::string ShownChildren(const sim::ShownControl& c) {
  std::string ids;
  for (const sim::ShownControl& child : c.children) {
    if (child.visible) ids += (ids.empty() ? "" : " ") + child.id;
  }
  return ids;
}

std::string Words(const Args& a, size_t first) {
  std::string words;
  for (size_t i = first; i < a.size(); ++i) words += (i > first ? " " : "") + a.At(i);
  return words;
}

void RegisterActions(VerbTable& table) {
  table.Add("ribbon open", "ribbon open RIBBONID",
            "the active explorer (for Microsoft.Outlook.Explorer) or inspector shows its ribbon; "
            "the host asks the add-in for RIBBONID's markup the first time",
            [](World& w, const Args& a) {
              a.Expect(1);
              Object context;
              if (a.At(0) == kExplorerRibbon) {
                if (auto explorer = w.host().ActiveExplorer()) context = explorer->AsObject();
              } else if (auto inspector = w.host().ActiveInspector()) {
                context = inspector->AsObject();
              }
              w.ribbonWindow = &w.ribbonHost().Open(a.At(0), context);
            });
  table.Add("ribbon tab-set", "ribbon tab-set IDMSO on|off",
            "the host shows or hides a contextual tab set, as the selection makes it appear",
            [](World& w, const Args& a) {
              a.Expect(2);
              Window(w).ShowTabSet(a.At(0), a.Choice(1, {"off", "on"}) == 1);
            });
  table.Add("ribbon click", "ribbon click ID",
            "the user clicks a button, toggle button, check box, menu entry or backstage task; a "
            "dynamic menu drops",
            [](World& w, const Args& a) {
              a.Expect(1);
              Check(Window(w).Click(a.At(0)), a.At(0));
            });
  table.Add("ribbon toggle", "ribbon toggle ID", "the user toggles a toggle button or check box",
            [](World& w, const Args& a) {
              a.Expect(1);
              const std::string kind = ShownOrFail(w, a.At(0)).kind;
              if (kind != "toggleButton" && kind != "checkBox") {
                throw ExpectationFailed(a.At(0) + " a toggle button or check box", kind);
              }
              Check(Window(w).Click(a.At(0)), a.At(0));
            });
  table.Add("ribbon choose", "ribbon choose ID LABEL",
            "the user picks the first row of a drop-down, gallery or combo box showing LABEL",
            [](World& w, const Args& a) {
              a.Expect(2);
              const sim::ShownControl c = ShownOrFail(w, a.At(0));
              for (size_t i = 0; i < c.rows.size(); ++i) {
                if (c.rows[i].label == a.At(1)) {
                  return Check(Window(w).Choose(a.At(0), static_cast<int>(i)), a.At(0));
                }
              }
              throw ExpectationFailed("a row " + Shown(a.At(1)), PropertyOf(c, "rows"));
            });
  table.Add("ribbon choose-row", "ribbon choose-row ID INDEX",
            "the user picks the row INDEX (from 0) of a drop-down, gallery or combo box",
            [](World& w, const Args& a) {
              a.Expect(2);
              Check(Window(w).Choose(a.At(0), a.Int(1)), a.At(0));
            });
  table.Add("ribbon type", "ribbon type ID TEXT",
            "the user types TEXT into an edit box or combo box", [](World& w, const Args& a) {
              a.Expect(2);
              Check(Window(w).Type(a.At(0), a.At(1)), a.At(0));
            });
  table.Add("ribbon drop", "ribbon drop ID", "the user drops a dynamic menu",
            [](World& w, const Args& a) {
              a.Expect(1);
              Check(Window(w).DropMenu(a.At(0)), a.At(0));
            });
  table.Add("ribbon view", "ribbon view MENU LABEL",
            "the user drops the dynamic menu MENU and clicks its first entry showing LABEL",
            [](World& w, const Args& a) {
              a.Expect(2);
              Check(Window(w).DropMenu(a.At(0)), a.At(0));
              std::vector<std::string> labels;
              for (const sim::ShownControl& entry : Window(w).DroppedMenu().children) {
                if (entry.label == a.At(1)) return Check(Window(w).Click(entry.id), entry.id);
                labels.push_back(entry.label);
              }
              throw ExpectationFailed("an entry " + Shown(a.At(1)), Joined(labels));
            });
  table.Add("ribbon context-menu", "ribbon context-menu IDMSO",
            "the user right-clicks the active explorer's selection where the built-in menu "
            "IDMSO opens",
            [](World& w, const Args& a) {
              a.Expect(1);
              Object selection;
              if (auto explorer = w.host().ActiveExplorer()) {
                selection = explorer->Selection()->AsObject();
              }
              Window(w).OpenContextMenu(a.At(0), selection);
            });
  table.Add("ribbon backstage", "ribbon backstage open|close",
            "the user opens or leaves the File view", [](World& w, const Args& a) {
              a.Expect(1);
              if (a.Choice(0, {"close", "open"}) == 1) {
                Window(w).OpenBackstage();
              } else {
                Window(w).CloseBackstage();
              }
            });
}

void RegisterExpectations(VerbTable& table) {
  table.Add("expect ribbon-nothing", "expect ribbon-nothing",
            "the open ribbon shows none of the add-in's controls (no markup, or markup the host "
            "rejected)",
            [](World& w, const Args& a) {
              a.Expect(0);
              const sim::ShownControl ribbon = Window(w).Ribbon();
              if (Window(w).HasMarkup() && ribbon.ShowsAnything()) {
                throw ExpectationFailed("nothing shown", ShownChildren(ribbon));
              }
            });
  table.Add(
      "expect ribbon-tabs", "expect ribbon-tabs [ID...]",
      "the tabs and contextual tab sets the add-in's markup shows now, in order",
      [](World& w, const Args& a) { ExpectEqual(Words(a, 0), ShownChildren(Window(w).Ribbon())); });
  table.Add("expect ribbon-children", "expect ribbon-children ID [CHILD...]",
            "the shown controls directly inside a shown tab, group, box or menu, in order",
            [](World& w, const Args& a) {
              a.Expect(1, 64);
              ExpectEqual(Words(a, 1), ShownChildren(ShownOrFail(w, a.At(0))));
            });
  table.Add("expect ribbon-control", "expect ribbon-control ID PROPERTY [VALUE...]",
            "a shown control's kind, label, enabled, pressed, image, text, screentip, supertip, "
            "selected (row index, -1 for none), selected-label or rows (one VALUE a row)",
            [](World& w, const Args& a) {
              a.Expect(2, 64);
              const std::string& property = a.At(1);
              a.Choice(1, {"kind", "label", "enabled", "pressed", "image", "text", "screentip",
                           "supertip", "selected", "selected-label", "rows"});
              std::string expected;
              if (property == "rows") {
                for (size_t i = 2; i < a.size(); ++i) {
                  expected += (i > 2 ? " " : "") + Shown(a.At(i));
                }
              } else {
                a.Expect(3);
                expected = a.At(2);
              }
              ExpectEqual(expected, PropertyOf(ShownOrFail(w, a.At(0)), property));
            });
  table.Add("expect ribbon-menu", "expect ribbon-menu [LABEL...]",
            "the shown entries of the dropped dynamic menu by label, in order; a separator is "
            "a word -",
            [](World& w, const Args& a) {
              a.Expect(0, 1000);
              std::vector<std::string> labels;
              for (const sim::ShownControl& entry : Window(w).DroppedMenu().children) {
                if (!entry.visible) continue;
                labels.push_back(entry.kind == "menuSeparator" ? "-" : entry.label);
              }
              ExpectWords(Rest(a, 0), labels);
            });
  table.Add("expect ribbon-hidden", "expect ribbon-hidden ID",
            "the user doesn't see the control: hidden, under something hidden, or absent",
            [](World& w, const Args& a) {
              a.Expect(1);
              if (Window(w).Shown(a.At(0))) throw ExpectationFailed("hidden", "shown");
            });
  table.Add("show ribbon", "show ribbon", "prints what the open ribbon shows",
            [](World& w, const Args& a) {
              a.Expect(0);
              if (!w.out) return;
              sim::RibbonWindow& window = Window(w);
              for (const sim::ShownControl& surface : {window.DroppedMenu(), window.ContextMenu(),
                                                       window.Backstage(), window.Ribbon()}) {
                if (!surface.children.empty()) {
                  *w.out << surface.kind << ":\n" << sim::DescribeShown(surface);
                }
              }
            });
}

}  // namespace

void RegisterRibbonUserVerbs(VerbTable& table) {
  RegisterActions(table);
  RegisterExpectations(table);
}

}  // namespace qvx::scenario
