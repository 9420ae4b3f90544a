// ribbon markup, ribbon answer, expect ribbon-action, show ribbon: the add-in
// side of the simulated ribbon host, as a script gives it until the add-in
// has markup and callbacks of its own. These verbs reach past the user's
// side: they stand in for the add-in.
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "sim/ribbon/scripted_ribbon_addin.h"
#include "state/ribbon_state.h"

namespace qvx::scenario {
namespace {

// A script's word as a callback answers it: true and false as Booleans,
// whole numbers as numbers, anything else as text.
Variant AnswerOf(const std::string& word) {
  if (word == "true") return Variant(true);
  if (word == "false") return Variant(false);
  double number = 0;
  if (!word.empty() && word.size() <= 9 &&
      word.find_first_not_of("-0123456789") == std::string::npos && ParseNumber(word, number)) {
    return Variant(static_cast<int32_t>(number));
  }
  return Variant(word);
}

// A callback answering `values`: the one value, or the value of the row the
// host asks about (getItemLabel, getItemID); only for `controlId` when one
// is given, other controls going to what was defined before.
sim::ScriptedRibbonAddin::Callback Answering(std::vector<Variant> values, std::string controlId,
                                             const sim::ScriptedRibbonAddin::Callback* before) {
  sim::ScriptedRibbonAddin::Callback previous = before ? *before : nullptr;
  return [values = std::move(values), controlId = std::move(controlId),
          previous = std::move(previous)](sim::Args& args) {
    const bool mine = controlId.empty() || sim::RibbonArgumentText(args.at(0)) == controlId;
    if (!mine) return previous ? previous(args) : Variant();
    if (values.empty()) return Variant();
    if (args.size() == 2 && args[1].Type() == VarType::Long) {
      const int32_t row = args[1].ToLong();
      return row >= 0 && static_cast<size_t>(row) < values.size() ? values[row] : Variant("");
    }
    return values.front();
  };
}

// The explorer ribbon value of that name, text or flag.
std::variant<std::string*, bool*> ExplorerValue(ExplorerRibbonValues& v, const std::string& name) {
  const std::pair<const char*, std::variant<std::string*, bool*>> values[] = {
      {"COMMON_CONTROLS_VISIBLE", &v.COMMON_CONTROLS_VISIBLE},
      {"CUSTOM_FIELDS_VISIBLE", &v.CUSTOM_FIELDS_VISIBLE},
      {"GROUP_CALENDAR_VISIBLE", &v.GROUP_CALENDAR_VISIBLE},
      {"GROUP_TASK_VISIBLE", &v.GROUP_TASK_VISIBLE},
      {"SELECTED_PROJECT_VALUE", &v.SELECTED_PROJECT_VALUE},
      {"SELECTED_ACTIVITY_VALUE", &v.SELECTED_ACTIVITY_VALUE},
      {"SELECTED_CUSTOM_FIELD1_VALUE", &v.SELECTED_CUSTOM_FIELD1_VALUE},
      {"SELECTED_CUSTOM_FIELD2_VALUE", &v.SELECTED_CUSTOM_FIELD2_VALUE},
      {"SELECTED_CUSTOM_FIELD3_VALUE", &v.SELECTED_CUSTOM_FIELD3_VALUE},
      {"SELECTED_CUSTOM_FIELD4_VALUE", &v.SELECTED_CUSTOM_FIELD4_VALUE},
      {"PROJECT_ENABLED", &v.PROJECT_ENABLED},
      {"ACTIVITY_ENABLED", &v.ACTIVITY_ENABLED},
      {"CUSTOM_FIELD1_ENABLED", &v.CUSTOM_FIELD1_ENABLED},
      {"CUSTOM_FIELD2_ENABLED", &v.CUSTOM_FIELD2_ENABLED},
      {"CUSTOM_FIELD3_ENABLED", &v.CUSTOM_FIELD3_ENABLED},
      {"CUSTOM_FIELD4_ENABLED", &v.CUSTOM_FIELD4_ENABLED},
      {"blnCustomField1Visible", &v.blnCustomField1Visible},
      {"blnCustomField2Visible", &v.blnCustomField2Visible},
      {"blnCustomField3Visible", &v.blnCustomField3Visible},
      {"blnCustomField4Visible", &v.blnCustomField4Visible},
      {"REPORT_BUTTON_VISIBLE", &v.REPORT_BUTTON_VISIBLE},
      {"WITHDRAW_BUTTON_VISIBLE", &v.WITHDRAW_BUTTON_VISIBLE},
      {"REPORT_BUTTON_CAPTION", &v.REPORT_BUTTON_CAPTION},
      {"WITHDRAW_BUTTON_CAPTION", &v.WITHDRAW_BUTTON_CAPTION},
  };
  for (const auto& [known, value] : values) {
    if (name == known) return value;
  }
  throw UsageError("no explorer ribbon value " + name);
}

}  // namespace

void RegisterRibbonStandInVerbs(VerbTable& table) {
  table.Add("ribbon copy", "ribbon copy NAME VALUE",
            "stands in for the command bars: sets the explorer ribbon value NAME "
            "(GROUP_CALENDAR_VISIBLE, PROJECT_ENABLED, REPORT_BUTTON_CAPTION ...) to VALUE, "
            "true/false for a flag, text otherwise",
            [](World& w, const Args& a) {
              a.Expect(2);
              auto value = ExplorerValue(w.addin().state().ribbon.explorer, a.At(0));
              if (auto* text = std::get_if<std::string*>(&value)) {
                **text = a.At(1);
              } else {
                a.Choice(1, {"true", "false"});
                *std::get<bool*>(value) = a.At(1) == "true";
              }
            });
  table.AddExact("ribbon markup", "ribbon markup RIBBONID TEXT",
                 "stands in for the add-in: GetCustomUI answers TEXT for RIBBONID", 2,
                 [](World& w, const Args& a) { w.scriptedRibbon().SetMarkup(a.At(0), a.At(1)); });
  table.Add("ribbon answer", "ribbon answer NAME [for ID] [VALUE...]",
            "stands in for the add-in's callback NAME: it answers VALUE (true, false, a number "
            "or text), the VALUE of the row asked for, or nothing; with for ID only for that "
            "control",
            [](World& w, const Args& a) {
              a.Expect(1, 64);
              size_t first = 1;
              std::string controlId;
              if (a.Is(1, "for")) {
                controlId = a.At(2);
                first = 3;
              }
              std::vector<Variant> values;
              for (size_t i = first; i < a.size(); ++i) values.push_back(AnswerOf(a.At(i)));
              sim::ScriptedRibbonAddin& addin = w.scriptedRibbon();
              addin.Define(a.At(0),
                           Answering(std::move(values), std::move(controlId), addin.Find(a.At(0))));
            });
  table.Add("expect ribbon-action", "expect ribbon-action NAME [ARGUMENT...]",
            "the next action callback the host called for the user: its name as bound and its "
            "arguments (a control by its id, true or false, text, numbers)",
            [](World& w, const Args& a) {
              a.Expect(1, 16);
              const auto& actions = w.ribbonHost().Actions();
              std::string expected;
              for (size_t i = 0; i < a.size(); ++i) expected += (i ? " " : "") + Shown(a.At(i));
              if (w.ribbonActionsSeen >= actions.size()) {
                throw ExpectationFailed(expected, "no further action");
              }
              const sim::RibbonAction& action = actions[w.ribbonActionsSeen++];
              std::string seen = Shown(action.callback);
              for (const std::string& argument : action.arguments) seen += " " + Shown(argument);
              ExpectEqual(expected, seen);
            });
  table.Add("expect no-ribbon-action", "expect no-ribbon-action",
            "the host called no action callback beyond those expected",
            [](World& w, const Args& a) {
              a.Expect(0);
              const size_t left = w.ribbonHost().Actions().size() - w.ribbonActionsSeen;
              if (left != 0) {
                throw ExpectationFailed("no action", std::to_string(left) + " more actions");
              }
            });
}

}  // namespace qvx::scenario
