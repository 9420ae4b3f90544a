// expect explorer-value: the copies of the bars' state that the explorer
// ribbon reads (s.ribbon.explorer), by their names in the program.
#include <array>
#include <string_view>
#include <variant>

#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "state/addin_state.h"

namespace qvx::scenario {
namespace {

using X = ExplorerRibbonValues;
struct ValueName {
  std::string_view name;
  std::variant<std::string X::*, bool X::*> member;
};

constexpr std::array<ValueName, 25> kValues{{
    {"COMMON_CONTROLS_VISIBLE", &X::COMMON_CONTROLS_VISIBLE},
    {"CUSTOM_FIELDS_VISIBLE", &X::CUSTOM_FIELDS_VISIBLE},
    {"GROUP_CALENDAR_VISIBLE", &X::GROUP_CALENDAR_VISIBLE},
    {"GROUP_TASK_VISIBLE", &X::GROUP_TASK_VISIBLE},
    {"SELECTED_PROJECT_VALUE", &X::SELECTED_PROJECT_VALUE},
    {"SELECTED_ACTIVITY_VALUE", &X::SELECTED_ACTIVITY_VALUE},
    {"SELECTED_CUSTOM_FIELD1_VALUE", &X::SELECTED_CUSTOM_FIELD1_VALUE},
    {"SELECTED_CUSTOM_FIELD2_VALUE", &X::SELECTED_CUSTOM_FIELD2_VALUE},
    {"SELECTED_CUSTOM_FIELD3_VALUE", &X::SELECTED_CUSTOM_FIELD3_VALUE},
    {"SELECTED_CUSTOM_FIELD4_VALUE", &X::SELECTED_CUSTOM_FIELD4_VALUE},
    {"PROJECT_ENABLED", &X::PROJECT_ENABLED},
    {"ACTIVITY_ENABLED", &X::ACTIVITY_ENABLED},
    {"CUSTOM_FIELD1_ENABLED", &X::CUSTOM_FIELD1_ENABLED},
    {"CUSTOM_FIELD2_ENABLED", &X::CUSTOM_FIELD2_ENABLED},
    {"CUSTOM_FIELD3_ENABLED", &X::CUSTOM_FIELD3_ENABLED},
    {"CUSTOM_FIELD4_ENABLED", &X::CUSTOM_FIELD4_ENABLED},
    {"blnCustomField1Visible", &X::blnCustomField1Visible},
    {"blnCustomField2Visible", &X::blnCustomField2Visible},
    {"blnCustomField3Visible", &X::blnCustomField3Visible},
    {"blnCustomField4Visible", &X::blnCustomField4Visible},
    {"REPORT_BUTTON_VISIBLE", &X::REPORT_BUTTON_VISIBLE},
    {"WITHDRAW_BUTTON_VISIBLE", &X::WITHDRAW_BUTTON_VISIBLE},
    {"REPORT_BUTTON_CAPTION", &X::REPORT_BUTTON_CAPTION},
    {"WITHDRAW_BUTTON_CAPTION", &X::WITHDRAW_BUTTON_CAPTION},
    {"LAST_VIEW_NAME", &X::LAST_VIEW_NAME},
}};

// The value as a script writes it: a flag as yes or no, a text as it stands.
std::string ValueOf(AddinState& s, std::string_view name) {
  for (const ValueName& value : kValues) {
    if (value.name != name) continue;
    if (const auto* text = std::get_if<std::string X::*>(&value.member)) {
      return s.ribbon.explorer.*(*text);
    }
    return s.ribbon.explorer.*std::get<bool X::*>(value.member) ? "yes" : "no";
  }
  throw UsageError("no explorer value \"" + std::string(name) + "\"");
}

}  // namespace

void RegisterBarValueVerbs(VerbTable& table) {
  table.Add("expect explorer-value", "expect explorer-value NAME VALUE",
            "a value the bars keep for the explorer ribbon (SELECTED_PROJECT_VALUE, "
            "REPORT_BUTTON_CAPTION, PROJECT_ENABLED ...); a flag is yes or no",
            [](World& w, const Args& a) {
              a.Expect(2);
              if (!w.HasAddin()) throw UsageError("the add-in has not been started");
              ExpectEqual(a.At(1), ValueOf(w.addin().state(), a.At(0)));
            });
}

}  // namespace qvx::scenario
