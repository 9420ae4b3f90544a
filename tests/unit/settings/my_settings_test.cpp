// cMySettings: defaults, bad values, the database line, and the save orders.
#include "settings/my_settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "core/dates.h"
#include "settings_fixture.h"

namespace qvx {
namespace {

using testing::kQvxKey;
using testing::ReportLine;
using testing::SettingsFixture;

struct Settings : SettingsFixture {
  cMySettings settings;
  void Store(const char* name, const char* text) {
    ASSERT_TRUE(registry.SetString(kQvxKey, name, text));
  }
};

std::vector<std::string> Items(const cSingleList& list) {
  std::vector<std::string> items;
  for (const auto& entry : list.dicList) items.push_back(entry.value);
  return items;
}

TEST(MySettings, StartValues) {
  cMySettings settings;
  EXPECT_EQ(settings.AllowPrivate, 0);
  EXPECT_EQ(settings.ProjectTitle, "");
  EXPECT_EQ(settings.LastReported, kEmptyDate);
  EXPECT_EQ(settings.Projects, nullptr);
  ASSERT_NE(settings.MyProjectsTasks, nullptr);
  for (const auto* list : {&settings.CustomField1List, &settings.CustomField2List,
                           &settings.CustomField3List, &settings.CustomField4List}) {
    ASSERT_NE(*list, nullptr);
    EXPECT_EQ((*list)->dicList.Count(), 0u);
  }
}

TEST(MySettings, EmptyRegistryGivesTheDefaults) {
  Settings f;
  f.settings.ReadSettings(f.s);
  cMySettings& m = f.settings;
  for (const int16_t set : {m.showCustomFieldsToolbar, m.showProjectTaskToolbar, m.AllowPrivate,
                            m.AllowRecurring, m.AskForConfirmationBeforeReporting}) {
    EXPECT_EQ(set, 1);
  }
  for (const int16_t clear :
       {m.UpdateStartDateWithProjectStartDate, m.AllowManagerReview, m.AllowTaskItems,
        m.AllowAppointmentItems, m.AutoSyncToDB, m.ReportIemsOnDueDateLapsedAutomatically,
        m.DontAllowChangesToReportedItem, m.EnableDefaultValueForCustomField4, m.ProjectMandatory,
        m.CustomField10Mandatory, m.CustomList1Active, m.CustomField10Active,
        m.IntegratedSecurity}) {
    EXPECT_EQ(clear, 0);
  }
  EXPECT_EQ(m.DBChoice, 0);
  EXPECT_EQ(m.ProjectTitle, "Project");
  EXPECT_EQ(m.ActivityTitle, "Activity");
  EXPECT_EQ(m.CustomFieldsTitle, "Custom Fields");
  const std::string names[] = {m.CustomList1Name,  m.CustomList2Name,  m.CustomList3Name,
                               m.CustomList4Name,  m.CustomField5Name, m.CustomField6Name,
                               m.CustomField7Name, m.CustomField8Name, m.CustomField9Name,
                               m.CustomField10Name};
  for (int i = 0; i < 10; ++i) EXPECT_EQ(names[i], "Custom Field " + std::to_string(i + 1));
  EXPECT_EQ(m.CustomField1List->dicList.Count(), 0u);
  ASSERT_NE(m.Projects, nullptr);
  EXPECT_EQ(m.Projects->dicList.Count(), 0u);
  EXPECT_EQ(m.LastReported, f.system.now);  // the present time, by way of its text
  EXPECT_TRUE(f.ui.reports.empty());
  EXPECT_FALSE(std::filesystem::exists(f.registry.path()));
}

TEST(MySettings, BlankTitlesFallBackButTheFieldsTitleStays) {
  Settings f;
  f.Store("ProjectTitle", "   ");
  f.Store("ActivityTitle", "  Task  ");
  f.Store("CustomFieldsTitle", "   ");
  f.Store("CustomList3Name", " ");
  f.Store("CustomField7Name", " Mileage ");
  f.Store("DefaultValueForProject", "  ");
  f.settings.ReadSettings(f.s);
  EXPECT_EQ(f.settings.ProjectTitle, "Project");
  EXPECT_EQ(f.settings.ActivityTitle, "Task");
  EXPECT_EQ(f.settings.CustomFieldsTitle, "   ");
  EXPECT_EQ(f.settings.CustomList3Name, "Custom Field 3");
  EXPECT_EQ(f.settings.CustomField7Name, "Mileage");
  EXPECT_EQ(f.settings.DefaultValueForProject, "  ");
}

TEST(MySettings, ListsAreReadByLineBreakAndSorted) {
  Settings f;
  f.Store("CustomField2List", "beta\r\nAlpha\r\nBETA");
  f.settings.ReadSettings(f.s);
  EXPECT_EQ(Items(*f.settings.CustomField2List), (std::vector<std::string>{"Alpha", "beta"}));
}

TEST(MySettings, NonNumericFlagEndsTheReadAtThatMember) {
  Settings f;
  f.Store("AllowColorCodeChange", "-1");
  f.Store("AllowUpdateToReportedData", "yes");
  f.Store("AllowWithdrawalOfReportedData", "-1");
  f.Store("ProjectTitle", "Job");
  f.settings.AllowWithdrawalOfReportedData = 7;
  f.settings.ReadSettings(f.s);
  EXPECT_EQ(f.settings.AllowColorCodeChange, -1);
  EXPECT_EQ(f.settings.AllowWithdrawalOfReportedData, 7);  // not reached
  EXPECT_EQ(f.settings.ProjectTitle, "");
  ASSERT_EQ(f.ui.reports.size(), 1u);
  const std::string& report = f.ui.reports[0];
  EXPECT_EQ(ReportLine(report, 0), "At Line: 140");
  EXPECT_EQ(ReportLine(report, 1), "In Function: MySettings.ReadSettings");
  EXPECT_EQ(ReportLine(report, 3), "Exception Number: 13");
}

TEST(MySettings, DatabaseValuesAreSkippedOneByOne) {
  Settings f;
  f.Store("DBChoice", "not a number");
  f.Store("DBConnectionString", "Provider=X");
  f.Store("LastReported", "the other day");
  f.Store("ProjectTitle", "Job");
  f.settings.DBChoice = 4;
  f.settings.LastReported = DateSerial(2020, 1, 2);
  f.settings.ReadSettings(f.s);
  EXPECT_EQ(f.settings.DBChoice, 4);
  EXPECT_EQ(f.settings.DBConnectionString, "Provider=X");
  EXPECT_EQ(f.settings.LastReported, DateSerial(2020, 1, 2));
  EXPECT_EQ(f.settings.ProjectTitle, "Job");
  EXPECT_TRUE(f.ui.reports.empty());
  EXPECT_FALSE(f.s.err.pending());
}

TEST(MySettings, DatabaseInfoLines) {
  struct Row {
    const char* text;
    const char* server;
    const char* database;
    int16_t integrated;
    const char* user;
    const char* password;
    const char* reported;  // label of the report, or nothing
  };
  const Row rows[] = {
      {"DBHOST|Timesheets|-1||", "DBHOST", "Timesheets", -1, "", "", nullptr},
      {"srv|db|0|jane|p|ss|w", "srv", "db", 0, "jane", "p", nullptr},
      {"justoneword", "old", "old", 5, "old", "old", nullptr},
      {"", "old", "old", 5, "old", "old", nullptr},
      {"srv|db", "srv", "db", 5, "old", "old", "MySettings.ReadDatabaseInfo"},
      {"srv|db|x|u|p", "srv", "db", 5, "old", "old", "MySettings.ReadDatabaseInfo"},
      {"srv|db|1|u", "srv", "db", 1, "u", "old", "MySettings.ReadDatabaseInfo"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    Settings f;
    f.Store("DatabaseInfo", row.text);
    f.Store("DBConnectionString", "after");
    f.settings.Server = f.settings.Database = f.settings.UserName = f.settings.Password = "old";
    f.settings.IntegratedSecurity = 5;
    f.settings.ReadSettings(f.s);
    EXPECT_EQ(f.settings.Server, row.server);
    EXPECT_EQ(f.settings.Database, row.database);
    EXPECT_EQ(f.settings.IntegratedSecurity, row.integrated);
    EXPECT_EQ(f.settings.UserName, row.user);
    EXPECT_EQ(f.settings.Password, row.password);
    EXPECT_EQ(f.settings.DBConnectionString, "after");  // ReadSettings goes on
    EXPECT_EQ(f.settings.ProjectTitle, "Project");
    if (row.reported != nullptr) {
      ASSERT_EQ(f.ui.reports.size(), 1u);
      EXPECT_EQ(ReportLine(f.ui.reports[0], 1), std::string("In Function: ") + row.reported);
    } else {
      EXPECT_TRUE(f.ui.reports.empty());
    }
  }
}

TEST(MySettings, WriteDatabaseInfoJoinsTheFiveFields) {
  Settings f;
  f.settings.Server = "srv";
  f.settings.Database = "db";
  f.settings.IntegratedSecurity = -1;
  f.settings.UserName = "jane";
  f.settings.Password = "a|b";
  EXPECT_EQ(f.settings.WriteDatabaseInfo(f.s), "srv|db|-1|jane|a|b");
  f.settings.SaveSettings(f.s);
  cMySettings other;
  other.ReadSettings(f.s);
  EXPECT_EQ(other.Password, "a");  // cut at the "|"
}

TEST(MySettings, SaveThenReadRoundTrips) {
  Settings f;
  cMySettings& m = f.settings;
  m.DBChoice = 2;
  m.DBConnectionString = "Data Source=x;Initial Catalog=y";
  m.LastReported = ComposeDate(DateParts{2025, 12, 31, 23, 59, 58});
  m.AllowPrivate = 0;
  m.AskForConfirmationBeforeReporting = -1;
  m.ReportIemsOnDueDateLapsedAutomatically = 1;
  m.Server = "srv";
  m.Database = "db";
  m.IntegratedSecurity = -1;
  m.ProjectTitle = "Job";
  m.ActivityTitle = "Step";
  m.CustomFieldsTitle = "Extras";
  m.CustomList2Name = "Cost centre";
  m.CustomField10Name = "Notes";
  m.CustomField3List->FromString(f.s, "x\r\ny", "\r\n");
  m.CustomList4Mandatory = -1;
  m.CustomField9Active = 1;
  m.AutoSyncToDB = -1;
  m.showCustomFieldsToolbar = 0;
  m.TagCustomFieldsToCategories = 1;
  m.EnableDefaultValueForCustomField2 = -1;
  m.DefaultValueCustomField2 = "x";
  m.DefaultValueForTask = "Design";
  m.MyProjectsTasks->FromString(f.s, "Beta,0,,:");
  m.UseDefaultTaskFolderOnly = 1;
  m.TaskDueDateFrom = 1;
  m.SaveSettings(f.s);
  EXPECT_EQ(m.ProjectsTasksList, "Beta,0,,:");
  EXPECT_EQ(f.registry.ReadString(kQvxKey, "LastReported"), "12/31/2025 11:59:58 PM");

  cMySettings r;
  r.ReadSettings(f.s);
  EXPECT_EQ(r.DBChoice, 2);
  EXPECT_EQ(r.DBConnectionString, m.DBConnectionString);
  EXPECT_EQ(r.LastReported, m.LastReported);
  EXPECT_EQ(r.AllowPrivate, 0);
  EXPECT_EQ(r.AskForConfirmationBeforeReporting, -1);
  EXPECT_EQ(r.ReportIemsOnDueDateLapsedAutomatically, 1);
  EXPECT_EQ(r.Server, "srv");
  EXPECT_EQ(r.IntegratedSecurity, -1);
  EXPECT_EQ(r.ProjectTitle, "Job");
  EXPECT_EQ(r.ActivityTitle, "Step");
  EXPECT_EQ(r.CustomFieldsTitle, "Extras");
  EXPECT_EQ(r.CustomList2Name, "Cost centre");
  EXPECT_EQ(r.CustomField10Name, "Notes");
  EXPECT_EQ(Items(*r.CustomField3List), (std::vector<std::string>{"x", "y"}));
  EXPECT_EQ(r.CustomList4Mandatory, -1);
  EXPECT_EQ(r.CustomField9Active, 1);
  EXPECT_EQ(r.AutoSyncToDB, -1);
  EXPECT_EQ(r.showCustomFieldsToolbar, 0);
  EXPECT_EQ(r.TagCustomFieldsToCategories, 1);
  EXPECT_EQ(r.EnableDefaultValueForCustomField2, -1);
  EXPECT_EQ(r.DefaultValueCustomField2, "x");
  EXPECT_EQ(r.DefaultValueForTask, "Design");
  EXPECT_EQ(r.ProjectsTasksList, "Beta,0,,:");
  EXPECT_EQ(r.MyProjectsTasks->ToString(f.s), "Beta,0,,:");
  EXPECT_EQ(r.UseDefaultTaskFolderOnly, 1);
  EXPECT_EQ(r.TaskDueDateFrom, 1);
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(MySettings, SaveWritesEveryStoredValueButAllowManagerReview) {
  Settings f;
  f.settings.ReadSettings(f.s);
  f.settings.AllowManagerReview = -1;
  f.settings.SaveSettings(f.s);
  const auto values = f.registry.ListValues(kQvxKey);
  std::vector<std::string> names;
  for (const auto& v : values) names.push_back(v.name);
  ASSERT_EQ(names.size(), 85u);
  EXPECT_EQ(names.front(), "UpdateStartDateWithProjectStartDate");
  EXPECT_EQ(names[23], "DatabaseInfo");
  EXPECT_EQ(names[29], "MyProjectsTasks");
  EXPECT_EQ(names.back(), "DefaultValueCustomField4");
  EXPECT_EQ(std::count(names.begin(), names.end(), "AllowManagerReview"), 0);
  for (const auto& v : values) EXPECT_EQ(v.value.type, platform::kRegSz) << v.name;
}

TEST(MySettings, AdminSaveWritesTitlesNamesAndThreeFlagsInOrder) {
  Settings f;
  f.settings.ProjectTitle = "Job";
  f.settings.AllowManagerReview = -1;
  f.settings.AllowTaskItems = 1;
  f.settings.SaveAdminSettingsOnly(f.s);
  std::vector<std::string> names;
  for (const auto& v : f.registry.ListValues(kQvxKey)) names.push_back(v.name);
  const std::vector<std::string> expected = {
      "ProjectTitle",       "ActivityTitle",         "CustomList1Name",  "CustomList2Name",
      "CustomList3Name",    "CustomList4Name",       "CustomField5Name", "CustomField6Name",
      "CustomField7Name",   "CustomField8Name",      "CustomField9Name", "CustomField10Name",
      "AllowManagerReview", "AllowAppointmentItems", "AllowTaskItems"};
  EXPECT_EQ(names, expected);
  EXPECT_EQ(f.registry.ReadString(kQvxKey, "AllowManagerReview"), "-1");
  EXPECT_EQ(f.registry.ReadString(kQvxKey, "ProjectTitle"), "Job");
}

TEST(MySettings, FailedSaveIsReportedAndStops) {
  Settings f;
  const std::string path = f.registry.path();
  {
    std::ofstream foreign(path);
    foreign << "not a registry\n";
  }
  f.settings.SaveSettings(f.s);
  ASSERT_EQ(f.ui.reports.size(), 1u);
  EXPECT_EQ(ReportLine(f.ui.reports[0], 0), "At Line: 10");
  EXPECT_EQ(ReportLine(f.ui.reports[0], 1), "In Function: MySettings.SaveSettings");
  EXPECT_EQ(ReportLine(f.ui.reports[0], 3),
            "Exception Number: " + std::to_string(static_cast<int32_t>(0x800407D5)));
  EXPECT_EQ(ReportLine(f.ui.reports[0], 4),
            "Exception Description: Could not open/create registry section");
}

TEST(MySettings, NonStringValueIsReported) {
  Settings f;
  ASSERT_TRUE(f.registry.SetDword(kQvxKey, "AllowPrivate", 1));
  f.settings.ReadSettings(f.s);
  ASSERT_EQ(f.ui.reports.size(), 1u);
  EXPECT_EQ(ReportLine(f.ui.reports[0], 0), "At Line: 230");
  EXPECT_EQ(ReportLine(f.ui.reports[0], 4), "Exception Description: Registry data not a string");
}

}  // namespace
}  // namespace qvx
