#include "reporting/default_values.h"

#include <gtest/gtest.h>

#include "settings/my_settings.h"
#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

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
  using Getter = std::string (*)(AddinState&);
  struct Field {
    Getter get;
    int16_t cMySettings::*active;
    int16_t cMySettings::*enabled;
    std::string cMySettings::*value;
  };
  const Field fields[] = {
      {GetDefaultField1Value, &cMySettings::CustomList1Active,
       &cMySettings::EnableDefaultValueForCustomField1, &cMySettings::DefaultValueCustomField1},
      {GetDefaultField2Value, &cMySettings::CustomList2Active,
       &cMySettings::EnableDefaultValueForCustomField2, &cMySettings::DefaultValueCustomField2},
      {GetDefaultField3Value, &cMySettings::CustomList3Active,
       &cMySettings::EnableDefaultValueForCustomField3, &cMySettings::DefaultValueCustomField3},
      {GetDefaultField4Value, &cMySettings::CustomList4Active,
       &cMySettings::EnableDefaultValueForCustomField4, &cMySettings::DefaultValueCustomField4},
  };
  struct Case {
    int16_t active;
    int16_t enabled;
    bool gives;
  };
  const Case cases[] = {{0, 0, false}, {1, 0, false}, {0, 1, false}, {1, 1, true},
                        {-1, 1, true}, {1, -1, true}, {-1, -1, true}};
  int n = 0;
  for (const Field& field : fields) {
    ++n;
    for (const Case& c : cases) {
      testing::TestAddin t;
      t.settings().*field.active = c.active;
      t.settings().*field.enabled = c.enabled;
      t.settings().*field.value = "Value " + std::to_string(n);
      EXPECT_EQ(field.get(t.s), c.gives ? "Value " + std::to_string(n) : "")
          << "field " << n << " active " << c.active << " enabled " << c.enabled;
    }
  }
}

TEST(DefaultValues, OneFieldsSwitchesDoNotOpenAnother) {
  testing::TestAddin t;
  t.settings().CustomList1Active = 1;
  t.settings().EnableDefaultValueForCustomField1 = 1;
  t.settings().DefaultValueCustomField1 = "one";
  t.settings().DefaultValueCustomField2 = "two";
  t.settings().DefaultValueForProject = "p";
  EXPECT_EQ(GetDefaultField1Value(t.s), "one");
  EXPECT_EQ(GetDefaultField2Value(t.s), "");
  EXPECT_EQ(GetDefaultProjectValue(t.s), "");
}

TEST(DefaultValues, WithoutASettingsRecordEachReportsUnderItsNameAndIsEmpty) {
  using Getter = std::string (*)(AddinState&);
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
    EXPECT_TRUE(t.Reported(label, 10)) << label;
  }
}

}  // namespace
}  // namespace qvx
