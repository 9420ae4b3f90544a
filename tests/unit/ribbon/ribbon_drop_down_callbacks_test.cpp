// The drop-downs: rows and the blank row behind them, the selected row, and
// a choice written to the copy and onto the selected item.
#include <gtest/gtest.h>

#include "sim/explorer.h"
#include "sim/user_properties.h"
#include "unit/ribbon/ribbon_test_util.h"

namespace qvx::testing {
namespace {

using scenario::World;

using Rows = std::vector<std::string>;

std::string UserText(sim::SimItem& item, std::string_view name) {
  const auto property = item.UserProperties().Find(name);
  return property ? property->value().ToText() : "";
}

class RibbonDropDowns : public RibbonInspectorTest {
 protected:
  RibbonDropDowns() {
    Set("MyProjectsTasks", "Alpha,5,,:Design,;Review,\r\nBeta,8,,:\r\nGamma,2,,:Build,");
    Set("CustomField2List", "North\r\nSouth");
  }
  void SetUp() override {
    RibbonInspectorTest::SetUp();
    ribbon->Method("Invalidate", 0, 0, [](sim::Args&) { return Variant(); })
        .Method("InvalidateControl", 1, 1, [this](sim::Args& a) {
          invalidated.push_back(sim::TextArg(a, 0));
          return Variant();
        });
    CallbackAnswer(world, "OnLoad", ribbon->AsVariant());
  }
  std::vector<std::string> RowsOf(std::string_view id) {
    std::vector<std::string> rows;
    const int16_t count = Ask("GetItemCount", id).ToInteger();
    for (int16_t i = 0; i < count; ++i) {
      rows.push_back(Ask("GetItemLabel", id, {Variant(i)}).ToText());
    }
    return rows;
  }
  std::shared_ptr<sim::FakeObject> ribbon = std::make_shared<sim::FakeObject>("IRibbonUI");
  std::vector<std::string> invalidated;  // InvalidateControl's ids, in order
};

TEST_F(RibbonDropDowns, EveryListEndsInOneBlankRow) {
  s().ribbon.explorer.SELECTED_PROJECT_VALUE = "alpha";  // the catalogue is case-blind
  Pools().standard.SELECTED_INSPECTOR_PROJECT_VALUE = "Gamma";
  // The explorer's projects and activities are in ribbon_report_road.qvx.
  EXPECT_EQ(RowsOf("cboProject"), (Rows{"Alpha", "Beta", "Gamma", ""}));
  EXPECT_EQ(RowsOf("cboTaskCal"), (Rows{"Design", "Review", ""}));
  EXPECT_EQ(RowsOf("cboTask"), (Rows{"Build", ""}));
  EXPECT_EQ(RowsOf("cboField2"), (Rows{"North", "South", ""}));
  EXPECT_EQ(RowsOf("cboField1Task"), (Rows{""}));  // an empty list
  // A project without activities: one blank row.
  s().ribbon.explorer.SELECTED_PROJECT_VALUE = "Beta";
  EXPECT_EQ(RowsOf("cboTaskAppointment"), (Rows{""}));
  // An id outside the set, and an index past the items.
  EXPECT_EQ(RowsOf("cmdReportCal"), (Rows{""}));
  EXPECT_EQ(Ask("GetItemLabel", "cboProject", {Variant(int16_t{7})}), Variant(""));
  EXPECT_FALSE(s().err.pending());
  EXPECT_TRUE(ErrorReports(world).empty());
}

TEST_F(RibbonDropDowns, TheSelectedRowIsTheCurrentValuesOrTheBlankRow) {
  ExplorerRibbonValues& explorer = s().ribbon.explorer;
  InspectorRibbonPools& pools = Pools();
  explorer.SELECTED_PROJECT_VALUE = "Alpha";
  explorer.SELECTED_ACTIVITY_VALUE = "Review";
  explorer.SELECTED_CUSTOM_FIELD2_VALUE = "South";
  pools.standard.SELECTED_INSPECTOR_PROJECT_VALUE = "Gamma";
  pools.standard.SELECTED_INSPECTOR_ACTIVITY_VALUE = "Build";
  pools.custom.SELECTED_INSPECTOR_CUSTOM_FIELD2_VALUE = "North";
  struct Row {
    const char* id;
    int16_t index;
  };
  for (const Row& row :
       {Row{"cboProject", 2}, Row{"cboTask", 0}, Row{"cboField2", 0}, Row{"cboProjectCal", 0},
        Row{"cboTaskRecurringAppointment", 1}, Row{"cboField2TaskList", 1}, Row{"cboField3Cal", 0},
        Row{"cmdReport", 0}}) {
    SCOPED_TRACE(row.id);
    EXPECT_EQ(Ask("GetSelectedItemIndex", row.id), Variant(row.index));
  }
  // A value no longer in its list selects the blank last row.
  explorer.SELECTED_ACTIVITY_VALUE = "Gone";
  EXPECT_EQ(Ask("GetSelectedItemIndex", "cboTaskCal"), Variant(int16_t{2}));
  // An unknown project has no list: row 0, which is then the blank row.
  explorer.SELECTED_PROJECT_VALUE = "Omega";
  EXPECT_EQ(Ask("GetSelectedItemIndex", "cboTaskCal"), Variant(int16_t{0}));
  EXPECT_EQ(Ask("GetSelectedItemIndex", "cboProjectCal"), Variant(int16_t{3}));
}

TEST_F(RibbonDropDowns, AnExplorerChoiceWritesTheCopyTagsAndRefreshesTheActivities) {
  auto item =
      world.host().AddAppointment("Review meeting", DateSerial(2026, 3, 4), DateSerial(2026, 3, 4));
  item->Save();
  world.host().Select(*world.host().ActiveExplorer(), {item});
  world.host().ActiveExplorer()->Activate();  // the choice applies to the explorer's selection
  ExplorerRibbonValues& explorer = s().ribbon.explorer;

  Ask("OnActionDropDown", "cboProjectCal", {Variant("ignored"), Variant(int16_t{0})});
  EXPECT_EQ(explorer.SELECTED_PROJECT_VALUE, "Alpha");
  EXPECT_EQ(UserText(*item, "ProjectValue"), "Alpha");
  // Only the activities of five contexts are refreshed.
  EXPECT_EQ(invalidated,
            (std::vector<std::string>{"cboTaskCal", "cboTaskCalTable", "cboTaskTask",
                                      "cboTaskAppointment", "cboTaskRecurringAppointment"}));

  // The activity's choice is in ribbon_report_road.qvx.
  Ask("OnActionDropDown", "cboField2Task", {Variant(""), Variant(int16_t{1})});
  EXPECT_EQ(explorer.SELECTED_CUSTOM_FIELD2_VALUE, "South");
  EXPECT_EQ(UserText(*item, "Field2Value"), "South");
  // The blank row writes "".
  Ask("OnActionDropDown", "cboField2Task", {Variant(""), Variant(int16_t{2})});
  EXPECT_EQ(UserText(*item, "Field2Value"), "");

  // A project the catalogue doesn't hold: the activity stays as it was, and
  // is written again.
  explorer.SELECTED_PROJECT_VALUE = "Omega";
  explorer.SELECTED_ACTIVITY_VALUE = "Review";
  Ask("OnActionDropDown", "cboTaskCal", {Variant(""), Variant(int16_t{0})});
  EXPECT_EQ(explorer.SELECTED_ACTIVITY_VALUE, "Review");
  EXPECT_EQ(invalidated.size(), 5u);
  EXPECT_TRUE(ErrorReports(world).empty());
}

TEST_F(RibbonDropDowns, AnInspectorChoiceWritesItsPoolAndRefreshesItsActivity) {
  InspectorRibbonPools& pools = Pools();
  Ask("OnActionDropDown", "cboProject", {Variant(""), Variant(int16_t{2})});
  EXPECT_EQ(pools.standard.SELECTED_INSPECTOR_PROJECT_VALUE, "Gamma");
  EXPECT_EQ(invalidated, std::vector<std::string>{"cboTask"});
  Ask("OnActionDropDown", "cboTask", {Variant(""), Variant(int16_t{0})});
  EXPECT_EQ(pools.standard.SELECTED_INSPECTOR_ACTIVITY_VALUE, "Build");
  Ask("OnActionDropDown", "cboField2", {Variant(""), Variant(int16_t{0})});
  EXPECT_EQ(pools.custom.SELECTED_INSPECTOR_CUSTOM_FIELD2_VALUE, "North");
  // The explorer's copy is untouched.
  EXPECT_EQ(s().ribbon.explorer.SELECTED_PROJECT_VALUE, "");
  // An id outside the set does nothing.
  Ask("OnActionDropDown", "cboProjectMail", {Variant(""), Variant(int16_t{0})});
  EXPECT_EQ(invalidated.size(), 1u);
  EXPECT_TRUE(ErrorReports(world).empty());
}

// An inspector whose item has no EntryID yet has no pools: its choice still
// reaches the tagging, having written nothing.
TEST_F(RibbonDropDowns, AnUnsavedItemsInspectorWritesNoPool) {
  auto unsaved =
      world.host().AddAppointment("Draft", DateSerial(2026, 3, 5), DateSerial(2026, 3, 5));
  const Object draft = world.host().OpenInspector(unsaved)->AsObject();
  const size_t poolsBefore = s().ribbon.inspectors.Count();
  CallbackAnswer(world, "OnActionDropDown", MakeControl("cboProject", draft),
                 {Variant(""), Variant(int16_t{1})});
  EXPECT_EQ(s().ribbon.inspectors.Count(), poolsBefore);
  EXPECT_EQ(
      CallbackAnswer(world, "GetGroupVisibility", MakeControl("KRPAppointmentInspector", draft)),
      Variant(false));
  EXPECT_EQ(invalidated, std::vector<std::string>{"cboTask"});
}

}  // namespace
}  // namespace qvx::testing
