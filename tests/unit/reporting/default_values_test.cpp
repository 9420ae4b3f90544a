#include "reporting/default_values.h"

#include <gtest/gtest.h>

#include "settings/my_settings.h"
#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

using S = cMySettings;

struct Default {
  std::string (*get)(AddinState&);
  const char* label;
  int16_t S::*active;  // null: project and activity, which need no list in use
  int16_t S::*enabled;
  std::string S::*value;
};

const Default kDefaults[] = {
    {GetDefaultProjectValue, "GetDefaultProjectValue", nullptr,
     &S::EnableDefaultValueForProjectTask, &S::DefaultValueForProject},
    {GetDefaultActivityValue, "GetDefaultActivityValue", nullptr,
     &S::EnableDefaultValueForProjectTask, &S::DefaultValueForTask},
    {GetDefaultField1Value, "GetDefaultField1Value", &S::CustomList1Active,
     &S::EnableDefaultValueForCustomField1, &S::DefaultValueCustomField1},
    {GetDefaultField2Value, "GetDefaultField2Value", &S::CustomList2Active,
     &S::EnableDefaultValueForCustomField2, &S::DefaultValueCustomField2},
    {GetDefaultField3Value, "GetDefaultField3Value", &S::CustomList3Active,
     &S::EnableDefaultValueForCustomField3, &S::DefaultValueCustomField3},
    {GetDefaultField4Value, "GetDefaultField4Value", &S::CustomList4Active,
     &S::EnableDefaultValueForCustomField4, &S::DefaultValueCustomField4},
};

TEST(DefaultValues, EachFollowsItsSwitchAndACustomListMustAlsoBeActive) {
  const std::tuple<int16_t, int16_t> cases[] = {{1, 0}, {0, 1}, {1, -1}, {-1, 1}};
  for (const Default& d : kDefaults) {
    for (const auto& [active, enabled] : cases) {
      testing::TestAddin t;
      if (d.active) t.settings().*d.active = active;
      t.settings().*d.enabled = enabled;
      t.settings().*d.value = "V";
      const bool gives = enabled != 0 && (d.active == nullptr || active != 0);
      EXPECT_EQ(d.get(t.s), gives ? "V" : "") << d.label << " " << active << " " << enabled;
    }
  }
}

TEST(DefaultValues, WithoutASettingsRecordEachReportsUnderItsNameAndIsEmpty) {
  for (const Default& d : kDefaults) {
    testing::TestAddin t;  // only the first report of a process is shown
    t.s.main.objMySettings.reset();
    EXPECT_EQ(d.get(t.s), "");
    EXPECT_TRUE(t.Reported(d.label)) << d.label;
  }
}

}  // namespace
}  // namespace qvx
