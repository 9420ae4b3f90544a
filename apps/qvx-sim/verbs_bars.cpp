// bar add / add-control / add-entries / click / type / pick, expect bar /
// bar-controls / menu / control: the command bars of the active window as
// the user sees and works them, and bars that a script sets up itself (its
// own test toolbar, or what an earlier run of the add-in left behind).
//
// A CONTROL is a caption (as set, "&About", or as shown, "About") or a tag;
// "Quorvix Client>About Quorvix" walks into a pop-up. The views pop-up
// ("View: Calendar") is reached by `bar view` whatever view it names.
#include <limits>

#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "core/host_constants.h"
#include "core/text.h"
#include "sim/application.h"
#include "sim/command_bars.h"
#include "sim/window.h"

namespace qvx::scenario {
namespace {

constexpr size_t kAnyCount = std::numeric_limits<size_t>::max();

const std::vector<std::string> kKinds = {"button", "edit", "combo", "dropdown", "popup"};
constexpr int32_t kKindTypes[] = {host::msoControlButton, host::msoControlEdit,
                                  host::msoControlComboBox, host::msoControlDropdown,
                                  host::msoControlPopup};

sim::SimCommandBars& Bars(World& w) {
  auto window = w.host().app().ActiveWindow();
  if (!window) throw UsageError("no window is open");
  return window->commandBars();
}

std::shared_ptr<sim::SimCommandBar> Bar(World& w, const std::string& name) {
  auto bar = Bars(w).Find(name);
  if (!bar) throw ExpectationFailed("a bar " + Shown(name), "(no such bar)");
  return bar;
}

// The control at a ">" path in a bar. With `reachable`, as the user must
// find it: on a shown bar, and shown and enabled all the way.
std::shared_ptr<sim::SimBarControl> Control(World& w, const std::string& barName,
                                            const std::string& path, bool reachable = false) {
  auto bar = Bar(w, barName);
  if (reachable && !bar->visible()) {
    throw ExpectationFailed("the bar " + Shown(barName) + " shown", "(hidden)");
  }
  sim::SimBarControls* controls = &bar->controls();
  std::shared_ptr<sim::SimBarControl> control;
  for (const std::string& step : Split(path, ">")) {
    if (controls == nullptr) {
      throw ExpectationFailed(Shown(control->ShownCaption()) + " a pop-up", "(not a pop-up)");
    }
    control = controls->Named(step);
    if (!control) throw ExpectationFailed("a control " + Shown(step), "(no such control)");
    if (reachable && !control->visible()) {
      throw ExpectationFailed(Shown(step) + " shown", "(hidden)");
    }
    if (reachable && !control->enabled()) {
      throw ExpectationFailed(Shown(step) + " enabled", "(disabled)");
    }
    controls = control->children();
  }
  if (!control) throw UsageError("no control named");
  return control;
}

sim::SimBarComboBox& ComboOf(const std::shared_ptr<sim::SimBarControl>& control,
                             const std::string& path) {
  auto* combo = dynamic_cast<sim::SimBarComboBox*>(control.get());
  if (!combo) throw ExpectationFailed(Shown(path) + " a box with a list or text", "(not a box)");
  return *combo;
}

// The shown captions of the shown controls.
std::vector<std::string> ShownCaptions(sim::SimBarControls& controls) {
  std::vector<std::string> captions;
  for (const auto& control : controls.list()) {
    if (control->visible()) captions.push_back(control->ShownCaption());
  }
  return captions;
}

std::string YesNo(bool value) {
  return value ? "yes" : "no";
}

// The value of one FIELD of `expect control`, as a script writes it.
std::string FieldOf(sim::SimBarControl& control, const std::string& field,
                    const std::string& path) {
  if (field == "caption") return control.ShownCaption();
  if (field == "enabled") return YesNo(control.enabled());
  if (field == "visible") return YesNo(control.visible());
  if (field == "tag") return control.tag();
  if (field == "tooltip") return control.tooltip();
  if (field == "begin-group") return YesNo(control.beginGroup());
  if (field == "events") return std::to_string(control.raised());
  auto* button = dynamic_cast<sim::SimBarButton*>(&control);
  if (button && field == "style") return std::to_string(button->style());
  if (button && field == "face-id") return std::to_string(button->faceId());
  auto* combo = dynamic_cast<sim::SimBarComboBox*>(&control);
  if (combo && field == "text") return combo->text();
  if (combo && field == "list-index") return std::to_string(combo->listIndex());
  if (field == "text" || field == "list-index") {
    throw ExpectationFailed(Shown(path) + " a box with a " + field, "(not a box)");
  }
  throw UsageError("unknown field \"" + field + "\"");
}

// The user's click on a button or menu entry found by ClickableControl.
void UserClick(const std::shared_ptr<sim::SimBarControl>& control, const std::string& path) {
  auto* button = dynamic_cast<sim::SimBarButton*>(control.get());
  if (!button) throw ExpectationFailed(Shown(path) + " a button", "(not a button)");
  button->UserClick();
}

// The views pop-up of a bar: its first pop-up whose caption begins with
// "View", whatever view it names now.
std::shared_ptr<sim::SimBarControl> ViewsPopup(World& w, const std::string& barName) {
  for (const auto& control : Bar(w, barName)->controls().list()) {
    if (control->children() && control->ShownCaption().starts_with("View")) return control;
  }
  throw ExpectationFailed("a views pop-up on " + Shown(barName), "(none)");
}

void AddSetupVerbs(VerbTable& table) {
  table.Add("bar add", "bar add NAME [kept]",
            "a shown bar on the active window, temporary unless kept (as one an earlier run "
            "left behind)",
            [](World& w, const Args& a) {
              a.Expect(1, 2);
              const bool kept = a.size() == 2 && a.Choice(1, {"kept"}) == 0;
              Bars(w).Add(a.At(0), host::msoBarTop, false, !kept)->SetVisible(true);
            });
  table.Add("bar add-control",
            "bar add-control BAR button|edit|combo|dropdown|popup CAPTION [tag TAG] [in POPUP] "
            "[kept]",
            "a control at the end of the bar (or of its pop-up), temporary unless kept",
            [](World& w, const Args& a) {
              a.Expect(3, 8);
              const int32_t type = kKindTypes[a.Choice(1, kKinds)];
              std::string tag;
              std::string popup;
              bool kept = false;
              for (size_t i = 3; i < a.size(); ++i) {
                switch (a.Choice(i, {"tag", "in", "kept"})) {
                  case 0:
                    tag = a.At(++i);
                    break;
                  case 1:
                    popup = a.At(++i);
                    break;
                  default:
                    kept = true;
                }
              }
              sim::SimBarControls* into = &Bar(w, a.At(0))->controls();
              if (!popup.empty()) into = Control(w, a.At(0), popup)->children();
              if (!into) throw UsageError("\"" + popup + "\" is not a pop-up");
              auto control = into->Add(type, host::msoControlIdCustom, "", 0, !kept);
              control->SetCaption(a.At(2));
              control->SetTag(tag);
            });
  table.Add("bar add-entries", "bar add-entries BAR CONTROL ENTRY...",
            "list entries at the end of a combo box or drop-down", [](World& w, const Args& a) {
              a.Expect(3, kAnyCount);
              auto& combo = ComboOf(Control(w, a.At(0), a.At(1)), a.At(1));
              for (const auto& entry : Rest(a, 2)) combo.AddItem(entry, 0);
            });
}

void AddUserVerbs(VerbTable& table) {
  table.Add("bar click", "bar click BAR CONTROL",
            "the user clicks a button or menu entry; the host raises Click",
            [](World& w, const Args& a) {
              a.Expect(2);
              UserClick(Control(w, a.At(0), a.At(1), true), a.At(1));
            });
  table.Add("bar view", "bar view BAR ENTRY",
            "the user drops the views pop-up of the bar (\"View: ...\", whatever view it names) "
            "and clicks ENTRY",
            [](World& w, const Args& a) {
              a.Expect(2);
              const std::string path = ViewsPopup(w, a.At(0))->caption() + ">" + a.At(1);
              UserClick(Control(w, a.At(0), path, true), a.At(1));
            });
  table.Add("bar type", "bar type BAR CONTROL TEXT",
            "the user types into an edit or combo box; the host raises Change",
            [](World& w, const Args& a) {
              a.Expect(3);
              auto control = Control(w, a.At(0), a.At(1), true);
              if (control->type() == host::msoControlDropdown) {
                throw ExpectationFailed(Shown(a.At(1)) + " a box to type into", "(a drop-down)");
              }
              ComboOf(control, a.At(1)).UserType(a.At(2));
            });
  table.Add("bar pick", "bar pick BAR CONTROL ENTRY",
            "the user picks an entry of a combo box or drop-down; the host raises Change",
            [](World& w, const Args& a) {
              a.Expect(3);
              auto control = Control(w, a.At(0), a.At(1), true);
              auto& combo = ComboOf(control, a.At(1));
              const auto& entries = combo.entries();
              for (size_t i = 0; i < entries.size(); ++i) {
                if (entries[i] == a.At(2)) return combo.UserPick(static_cast<int32_t>(i + 1));
              }
              throw ExpectationFailed("an entry " + Shown(a.At(2)), Joined(entries));
            });
}

void AddExpectVerbs(VerbTable& table) {
  table.Add("expect bar", "expect bar NAME shown|hidden|absent",
            "whether the active window has the bar, and shows it", [](World& w, const Args& a) {
              a.Expect(2);
              const std::vector<std::string> states = {"shown", "hidden", "absent"};
              a.Choice(1, states);
              auto bar = Bars(w).Find(a.At(0));
              ExpectEqual(a.At(1), !bar ? "absent" : bar->visible() ? "shown" : "hidden");
            });
  table.Add("expect bar-controls", "expect bar-controls BAR CAPTION...",
            "the shown controls of the bar, by shown caption, in order",
            [](World& w, const Args& a) {
              a.Expect(1, kAnyCount);
              ExpectWords(Rest(a, 1), ShownCaptions(Bar(w, a.At(0))->controls()));
            });
  table.Add("expect menu", "expect menu BAR POPUP CAPTION...",
            "the shown entries of a pop-up, by shown caption, in order",
            [](World& w, const Args& a) {
              a.Expect(2, kAnyCount);
              sim::SimBarControls* entries = Control(w, a.At(0), a.At(1))->children();
              if (!entries) throw ExpectationFailed(Shown(a.At(1)) + " a pop-up", "(not one)");
              ExpectWords(Rest(a, 2), ShownCaptions(*entries));
            });
  table.Add("expect bar-views", "expect bar-views BAR CAPTION [ENTRY...]",
            "the views pop-up of the bar: its shown caption, then its shown entries in order, "
            "with a word - where a line begins a group",
            [](World& w, const Args& a) {
              a.Expect(2, kAnyCount);
              const auto popup = ViewsPopup(w, a.At(0));
              std::vector<std::string> seen{popup->ShownCaption()};
              for (const auto& entry : popup->children()->list()) {
                if (!entry->visible()) continue;
                if (entry->beginGroup() && seen.size() > 1) seen.push_back("-");
                seen.push_back(entry->ShownCaption());
              }
              ExpectWords(Rest(a, 1), seen);
            });
  table.Add("expect control", "expect control BAR CONTROL FIELD VALUE...",
            "FIELD: caption, enabled, visible (yes|no), tag, tooltip, begin-group, text, list "
            "(the entries), list-index, events (Click and Change raised), style, face-id",
            [](World& w, const Args& a) {
              a.Expect(3, kAnyCount);
              auto control = Control(w, a.At(0), a.At(1));
              if (a.At(2) == "list") {
                ExpectWords(Rest(a, 3), ComboOf(control, a.At(1)).entries());
                return;
              }
              a.Expect(4);
              ExpectEqual(a.At(3), FieldOf(*control, a.At(2), a.At(1)));
            });
}

}  // namespace

void RegisterBarVerbs(VerbTable& table) {
  AddSetupVerbs(table);
  AddUserVerbs(table);
  AddExpectVerbs(table);
  RegisterBarValueVerbs(table);
}

}  // namespace qvx::scenario
