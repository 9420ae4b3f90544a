// The ribbon's value set and the inspectors' pools, reached by name.
#include "state/ribbon_state.h"

#include <gtest/gtest.h>

#include <string>

#include "core/failure.h"

namespace qvx {
namespace {

TEST(InspectorPools, EveryNameReachesItsOwnFieldAsTextOrFlag) {
  struct Row {
    const char* name;
    bool text;
  };
  const Row standard[] = {
      {"SELECTED_INSPECTOR_PROJECT_VALUE", true},   {"SELECTED_INSPECTOR_ACTIVITY_VALUE", true},
      {"PROJECT_INSPECTOR_ENABLED", false},         {"ACTIVITY_INSPECTOR_ENABLED", false},
      {"WITHDRAW_BUTTON_INSPECTOR_VISIBLE", false}, {"REPORT_BUTTON_INSPECTOR_VISIBLE", false},
      {"WITHDRAW_BUTTON_INSPECTOR_CAPTION", true},  {"REPORT_BUTTON_INSPECTOR_CAPTION", true},
      {"GROUP_CALENDAR_INSPECTOR_VISIBLE", false},  {"GROUP_TASK_INSPECTOR_VISIBLE", false},
  };
  for (const Row& row : standard) {
    StandardToolbarPool pool;
    pool.SetVariableValue(row.name, row.text ? Variant("Update #12") : Variant(true));
    for (const Row& other : standard) {
      const Variant value = pool.GetRibbonValueFromPool(other.name);
      const bool same = std::string(other.name) == row.name;
      if (other.text) {
        EXPECT_EQ(value.ToText(), same ? "Update #12" : "") << row.name << " / " << other.name;
      } else {
        EXPECT_EQ(value.ToBoolean(), same) << row.name << " / " << other.name;
        EXPECT_EQ(value.Type(), VarType::Boolean);
      }
    }
  }
  const Row custom[] = {
      {"SELECTED_INSPECTOR_CUSTOM_FIELD1_VALUE", true},
      {"SELECTED_INSPECTOR_CUSTOM_FIELD4_VALUE", true},
      {"CUSTOM_FIELD2_INSPECTOR_ENABLED", false},
      {"CUSTOM_FIELD3_INSPECTOR_ENABLED", false},
      {"blnCustomField1VisibleInspector", false},
      {"blnCustomField4VisibleInspector", false},
  };
  for (const Row& row : custom) {
    CustomFieldsToolbarPool pool;
    pool.SetVariableValue(row.name, row.text ? Variant("Berlin") : Variant(int16_t{-1}));
    const Variant value = pool.GetRibbonValueFromPool(row.name);
    if (row.text) {
      EXPECT_EQ(value.ToText(), "Berlin") << row.name;
    } else {
      EXPECT_TRUE(value.ToBoolean()) << row.name;  // the program's True, -1, as a flag
    }
  }
}

TEST(InspectorPools, AnUnknownNameIsIgnoredAndReadsEmpty) {
  StandardToolbarPool pool;
  pool.SetVariableValue("NO_SUCH_VALUE", Variant("x"));
  EXPECT_TRUE(pool.GetRibbonValueFromPool("NO_SUCH_VALUE").IsEmpty());
  // Names are exact: the pools of the two bars do not share names.
  EXPECT_TRUE(pool.GetRibbonValueFromPool("selected_inspector_project_value").IsEmpty());
  EXPECT_TRUE(pool.GetRibbonValueFromPool("CUSTOM_FIELD1_INSPECTOR_ENABLED").IsEmpty());
}

TEST(InspectorPools, AValueWithoutTheFieldsFormFailsAsItsConversion) {
  StandardToolbarPool pool;
  EXPECT_THROW(pool.SetVariableValue("PROJECT_INSPECTOR_ENABLED", Variant("not a flag")), Failure);
  EXPECT_FALSE(pool.PROJECT_INSPECTOR_ENABLED);
}

TEST(RibbonState, EachInspectorHasItsOwnPoolsByEntryID) {
  RibbonState ribbon;
  EXPECT_EQ(ribbon.FindInspector("00AB"), nullptr);
  ribbon.Inspector("00AB").standard.REPORT_BUTTON_INSPECTOR_CAPTION = "Publish";
  ribbon.Inspector("00CD").standard.REPORT_BUTTON_INSPECTOR_CAPTION = "Update #7";
  ASSERT_NE(ribbon.FindInspector("00AB"), nullptr);
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
