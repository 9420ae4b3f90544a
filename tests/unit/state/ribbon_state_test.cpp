// The ribbon's value set and the inspectors' pools, reached by name.
#include "state/ribbon_state.h"

#include <gtest/gtest.h>

#include <span>
#include <string>

#include "core/failure.h"

namespace qvx {
namespace {

struct Named {
  const char* name;
  bool text;
};

// Setting one name fills its own field only: every other name reads empty,
// a flag as a Boolean False. Flags are set as the program's True, -1.
template <typename Pool>
void ExpectEachNameReachesItsOwnField(std::span<const Named> names) {
  for (const Named& set : names) {
    Pool pool;
    pool.SetVariableValue(set.name, set.text ? Variant("Update #12") : Variant(int16_t{-1}));
    for (const Named& other : names) {
      const Variant value = pool.GetRibbonValueFromPool(other.name);
      const bool same = std::string(other.name) == set.name;
      SCOPED_TRACE(std::string(set.name) + " / " + other.name);
      if (other.text) {
        EXPECT_EQ(value.ToText(), same ? "Update #12" : "");
      } else {
        EXPECT_EQ(value.ToBoolean(), same);
        EXPECT_EQ(value.Type(), VarType::Boolean);
      }
    }
  }
}

TEST(InspectorPools, EveryNameReachesItsOwnFieldAsTextOrFlag) {
  const Named standard[] = {
      {"SELECTED_INSPECTOR_PROJECT_VALUE", true},   {"SELECTED_INSPECTOR_ACTIVITY_VALUE", true},
      {"PROJECT_INSPECTOR_ENABLED", false},         {"ACTIVITY_INSPECTOR_ENABLED", false},
      {"WITHDRAW_BUTTON_INSPECTOR_VISIBLE", false}, {"REPORT_BUTTON_INSPECTOR_VISIBLE", false},
      {"WITHDRAW_BUTTON_INSPECTOR_CAPTION", true},  {"REPORT_BUTTON_INSPECTOR_CAPTION", true},
      {"GROUP_CALENDAR_INSPECTOR_VISIBLE", false},  {"GROUP_TASK_INSPECTOR_VISIBLE", false},
  };
  ExpectEachNameReachesItsOwnField<StandardToolbarPool>(standard);
  const Named custom[] = {
      {"SELECTED_INSPECTOR_CUSTOM_FIELD1_VALUE", true},
      {"SELECTED_INSPECTOR_CUSTOM_FIELD4_VALUE", true},
      {"CUSTOM_FIELD2_INSPECTOR_ENABLED", false},
      {"CUSTOM_FIELD3_INSPECTOR_ENABLED", false},
      {"blnCustomField1VisibleInspector", false},
      {"blnCustomField4VisibleInspector", false},
  };
  ExpectEachNameReachesItsOwnField<CustomFieldsToolbarPool>(custom);
}

TEST(InspectorPools, AnUnknownNameIsIgnoredAndAValueWithoutTheFieldsFormFails) {
  StandardToolbarPool pool;
  pool.SetVariableValue("NO_SUCH_VALUE", Variant("x"));
  EXPECT_TRUE(pool.GetRibbonValueFromPool("NO_SUCH_VALUE").IsEmpty());
  // Names are exact: the pools of the two bars do not share names.
  EXPECT_TRUE(pool.GetRibbonValueFromPool("selected_inspector_project_value").IsEmpty());
  EXPECT_TRUE(pool.GetRibbonValueFromPool("CUSTOM_FIELD1_INSPECTOR_ENABLED").IsEmpty());
  EXPECT_THROW(pool.SetVariableValue("PROJECT_INSPECTOR_ENABLED", Variant("not a flag")), Failure);
  EXPECT_FALSE(pool.PROJECT_INSPECTOR_ENABLED);
}

TEST(RibbonState, EachInspectorHasItsOwnPoolsByEntryID) {
  RibbonState ribbon;
  EXPECT_EQ(ribbon.FindInspector("00AB"), nullptr);
  ribbon.Inspector("00AB").standard.REPORT_BUTTON_INSPECTOR_CAPTION = "Publish";
  ribbon.Inspector("00CD").standard.REPORT_BUTTON_INSPECTOR_CAPTION = "Update #7";
  EXPECT_EQ(ribbon.Inspector("00AB").standard.REPORT_BUTTON_INSPECTOR_CAPTION, "Publish");
  EXPECT_EQ(ribbon.FindInspector("00CD")->standard.REPORT_BUTTON_INSPECTOR_CAPTION, "Update #7");
  ribbon.DropInspector("00AB");
  EXPECT_EQ(ribbon.FindInspector("00AB"), nullptr);
  EXPECT_EQ(ribbon.Inspector("00AB").standard.REPORT_BUTTON_INSPECTOR_CAPTION, "");  // anew
}

TEST(ExplorerRibbonValues, CustomFieldsByNumberAreTheNamedFields) {
  ExplorerRibbonValues values;
  values.SelectedCustomFieldValue(1) = "one";
  values.CustomFieldEnabled(3) = true;
  values.CustomFieldVisible(4) = true;
  EXPECT_EQ(values.SELECTED_CUSTOM_FIELD1_VALUE, "one");
  EXPECT_TRUE(values.CUSTOM_FIELD3_ENABLED);
  EXPECT_FALSE(values.CUSTOM_FIELD2_ENABLED);
  EXPECT_TRUE(values.blnCustomField4Visible);
  EXPECT_THROW(values.CustomFieldEnabled(0), Failure);
  EXPECT_THROW(values.SelectedCustomFieldValue(5), Failure);
}

}  // namespace
}  // namespace qvx
