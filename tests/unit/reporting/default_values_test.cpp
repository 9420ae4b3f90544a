#include "reporting/default_values.h"

#include <gtest/gtest.h>

#include "settings/my_settings.h"
#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

using Getter = std::string (*)(AddinState&);

TEST(DefaultValues, ProjectAndActivityFollowTheirOneSwitch) {
  for (int16_t enabled : {int16_t{0}, int16_t{1}, int16_t{-1}}) {
    testing::TestAddin t;
    t.settings().EnableDefaultValueForProjectTask = enabled;
    t.settings().DefaultValueForProject = "Internal";
    t.settings().DefaultValueForTask = "Meetings";
    EXPECT_EQ(GetDefaultProjectValue(t.s), enabled != 0 ? "Internal" : "") << enabled;
    EXPECT_EQ(GetDefaultActivityValue(t.s), enabled != 0 ? "Meetings" : "") << enabled;
  }
}

TEST(DefaultValues, ACustomListNeedsToBeActiveAndSwitchedOn) {
  using S = cMySettings;
  struct Field {
    Getter get;
    int16_t S::*active;
    int16_t S::*enabled;
    std::string S::*value;
  };
  const Field fields[] = {
      {GetDefaultField1Value, &S::CustomList1Active, &S::EnableDefaultValueForCustomField1,
       &S::DefaultValueCustomField1},
      {GetDefaultField2Value, &S::CustomList2Active, &S::EnableDefaultValueForCustomField2,
       &S::DefaultValueCustomField2},
      {GetDefaultField3Value, &S::CustomList3Active, &S::EnableDefaultValueForCustomField3,
       &S::DefaultValueCustomField3},
      {GetDefaultField4Value, &S::CustomList4Active, &S::EnableDefaultValueForCustomField4,
       &S::DefaultValueCustomField4},
  };
  const std::tuple<int16_t, int16_t, bool> cases[] = {
      {0, 1, false}, {1, 0, false}, {1, -1, true}, {-1, 1, true}};
  for (const Field& field : fields) {
    for (const auto& [active, enabled, gives] : cases) {
      testing::TestAddin t;
      t.settings().*field.active = active;
      t.settings().*field.enabled = enabled;
      t.settings().*field.value = "V";
      EXPECT_EQ(field.get(t.s), gives ? "V" : "")
          << "field " << (&field - fields + 1) << " active " << active << " enabled " << enabled;
    }
  }
}

TEST(DefaultValues, WithoutASettingsRecordEachReportsUnderItsNameAndIsEmpty) {
  const std::pair<Getter, const char*> getters[] = {
      {GetDefaultProjectValue, "GetDefaultProjectValue"},
      {GetDefaultActivityValue, "GetDefaultActivityValue"},
      {GetDefaultField1Value, "GetDefaultField1Value"},
      {GetDefaultField2Value, "GetDefaultField2Value"},
      {GetDefaultField3Value, "GetDefaultField3Value"},
      {GetDefaultField4Value, "GetDefaultField4Value"},
  };
  for (const auto& [get, label] : getters) {
    testing::TestAddin t;  // only the first report of a process is shown
    t.s.main.objMySettings.reset();
    EXPECT_EQ(get(t.s), "");
    EXPECT_TRUE(t.Reported(label)) << label;
  }
}

}  // namespace
}  // namespace qvx
