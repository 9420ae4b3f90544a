// cMySettings: defaults, bad values, the database line, and the save orders.
#include "settings/my_settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>

#include "core/dates.h"
#include "settings_fixture.h"

namespace qvx {
namespace {

using testing::kQvxKey;
using testing::ReportLine;
using testing::SettingsFixture;
using Strings = std::vector<std::string>;

struct Settings : SettingsFixture {
  cMySettings settings;
  void Store(const char* name, const char* text) {
    ASSERT_TRUE(registry.SetString(kQvxKey, name, text));
  }
};

Strings Items(const cSingleList& list) {
  Strings items;
  for (const auto& entry : list.dicList) items.push_back(entry.value);
  return items;
}

Strings Names(platform::FileRegistry& registry) {
  Strings names;
  for (const auto& v : registry.ListValues(kQvxKey)) names.push_back(v.name);
  return names;
}

TEST(MySettings, ReadSettings) {
  struct Row {
    const char* name;
    std::vector<std::pair<const char*, const char*>> stored;  // no text: stored as a number
    const char* atLine;                                       // the report's first line, or nothing
    std::function<void(const Settings&)> check;
  };
  const Row rows[] = {
      {"empty store",
       {},
       nullptr,
       [](const Settings& f) {
         const cMySettings& m = f.settings;
         for (const int16_t set :
              {m.showCustomFieldsToolbar, m.showProjectTaskToolbar, m.AllowPrivate,
               m.AllowRecurring, m.AskForConfirmationBeforeReporting}) {
           EXPECT_EQ(set, 1);
         }
         for (const int16_t clear :
              {m.UpdateStartDateWithProjectStartDate, m.AllowManagerReview, m.AllowTaskItems,
               m.AllowAppointmentItems, m.AutoSyncToDB, m.ReportIemsOnDueDateLapsedAutomatically,
               m.DontAllowChangesToReportedItem, m.EnableDefaultValueForCustomField4,
               m.ProjectMandatory, m.CustomField10Mandatory, m.CustomList1Active,
               m.CustomField10Active, m.IntegratedSecurity}) {
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
         EXPECT_FALSE(std::filesystem::exists(f.registry.path()));
       }},
      {"blank titles fall back but the fields title stays",
       {{"ProjectTitle", "   "},
        {"ActivityTitle", "  Task  "},
        {"CustomFieldsTitle", "   "},
        {"CustomList3Name", " "},
        {"CustomField7Name", " Mileage "},
        {"DefaultValueForProject", "  "},
        {"CustomField2List", "beta\r\nAlpha\r\nBETA"}},
       nullptr,
       [](const Settings& f) {
         EXPECT_EQ(f.settings.ProjectTitle, "Project");
         EXPECT_EQ(f.settings.ActivityTitle, "Task");
         EXPECT_EQ(f.settings.CustomFieldsTitle, "   ");
         EXPECT_EQ(f.settings.CustomList3Name, "Custom Field 3");
         EXPECT_EQ(f.settings.CustomField7Name, "Mileage");
         EXPECT_EQ(f.settings.DefaultValueForProject, "  ");
         EXPECT_EQ(Items(*f.settings.CustomField2List), (Strings{"Alpha", "beta"}));
       }},
      {"a non-numeric flag ends the read at that member",
       {{"AllowColorCodeChange", "-1"},
        {"AllowUpdateToReportedData", "yes"},
        {"AllowWithdrawalOfReportedData", "-1"},
        {"ProjectTitle", "Job"}},
       "At Line: 140",
       [](const Settings& f) {
         EXPECT_EQ(ReportLine(f.ui.reports[0], 1), "In Function: MySettings.ReadSettings");
         EXPECT_EQ(f.settings.AllowColorCodeChange, -1);
         EXPECT_EQ(f.settings.AllowWithdrawalOfReportedData, 7);  // not reached
         EXPECT_EQ(f.settings.ProjectTitle, "");
         EXPECT_EQ(ReportLine(f.ui.reports[0], 3), "Exception Number: 13");
       }},
      {"database values are skipped one by one",
       {{"DBChoice", "not a number"},
        {"DBConnectionString", "Provider=X"},
        {"LastReported", "the other day"},
        {"ProjectTitle", "Job"}},
       nullptr,
       [](const Settings& f) {
         EXPECT_EQ(f.settings.DBChoice, 4);
         EXPECT_EQ(f.settings.DBConnectionString, "Provider=X");
         EXPECT_EQ(f.settings.LastReported, DateSerial(2020, 1, 2));
         EXPECT_EQ(f.settings.ProjectTitle, "Job");
         EXPECT_FALSE(f.s.err.pending());
       }},
      {"a value that is not text",
       {{"AllowPrivate", nullptr}},
       "At Line: 230",
       [](const Settings& f) {
         EXPECT_EQ(ReportLine(f.ui.reports[0], 4),
                   "Exception Description: Registry data not a string");
       }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Settings f;
    for (const auto& [name, text] : row.stored) {
      if (text == nullptr) {
        ASSERT_TRUE(f.registry.SetDword(kQvxKey, name, 1));
      } else {
        f.Store(name, text);
      }
    }
    f.settings.DBChoice = 4;
    f.settings.LastReported = DateSerial(2020, 1, 2);
    f.settings.AllowWithdrawalOfReportedData = 7;
    f.settings.ReadSettings(f.s);
    if (row.atLine != nullptr) {
      ASSERT_EQ(f.ui.reports.size(), 1u);
      EXPECT_EQ(ReportLine(f.ui.reports[0], 0), row.atLine);
    } else {
      EXPECT_TRUE(f.ui.reports.empty());
    }
    row.check(f);
  }
}

TEST(MySettings, DatabaseInfoLines) {
  struct Row {
    const char* text;
    const char* server;
    const char* database;
    int16_t integrated;
    const char* user;
    const char* password;
    bool reported;  // under "MySettings.ReadDatabaseInfo"
  };
  const Row rows[] = {
      {"DBHOST|Timesheets|-1||", "DBHOST", "Timesheets", -1, "", "", false},
      {"srv|db|0|jane|p|ss|w", "srv", "db", 0, "jane", "p", false},
      {"justoneword", "old", "old", 5, "old", "old", false},
      {"", "old", "old", 5, "old", "old", false},
      {"srv|db", "srv", "db", 5, "old", "old", true},
      {"srv|db|x|u|p", "srv", "db", 5, "old", "old", true},
      {"srv|db|1|u", "srv", "db", 1, "u", "old", true},
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
    ASSERT_EQ(f.ui.reports.size(), row.reported ? 1u : 0u);
    if (row.reported) {
      EXPECT_EQ(ReportLine(f.ui.reports[0], 1), "In Function: MySettings.ReadDatabaseInfo");
    }
  }
}

TEST(MySettings, SaveWritesEveryStoredValueButAllowManagerReviewAndReadsBack) {
  Settings f;
  cMySettings& m = f.settings;
  m.DBChoice = 2;
  m.LastReported = ComposeDate(DateParts{2025, 12, 31, 23, 59, 58});
  m.AllowPrivate = 0;
  m.AllowManagerReview = -1;
  m.Server = "srv";
  m.Database = "db";
  m.IntegratedSecurity = -1;
  m.UserName = "jane";
  m.Password = "a|b";
  m.CustomFieldsTitle = "Extras";
  m.CustomField3List->FromString(f.s, "x\r\ny", "\r\n");
  m.MyProjectsTasks->FromString(f.s, "Beta,0,,:");
  EXPECT_EQ(m.WriteDatabaseInfo(f.s), "srv|db|-1|jane|a|b");
  m.SaveSettings(f.s);
  EXPECT_EQ(m.ProjectsTasksList, "Beta,0,,:");
  EXPECT_EQ(f.registry.ReadString(kQvxKey, "LastReported"), "12/31/2025 11:59:58 PM");
  const Strings names = Names(f.registry);
  ASSERT_EQ(names.size(), 85u);
  EXPECT_EQ(names.front(), "UpdateStartDateWithProjectStartDate");
  EXPECT_EQ(names[23], "DatabaseInfo");
  EXPECT_EQ(names[29], "MyProjectsTasks");
  EXPECT_EQ(names.back(), "DefaultValueCustomField4");
  EXPECT_EQ(std::count(names.begin(), names.end(), "AllowManagerReview"), 0);
  for (const auto& v : f.registry.ListValues(kQvxKey)) {
    EXPECT_EQ(v.value.type, platform::kRegSz) << v.name;
  }

  cMySettings r;
  r.ReadSettings(f.s);
  EXPECT_EQ(r.DBChoice, 2);
  EXPECT_EQ(r.LastReported, m.LastReported);
  EXPECT_EQ(r.AllowPrivate, 0);
  EXPECT_EQ(r.IntegratedSecurity, -1);
  EXPECT_EQ(r.Password, "a");  // cut at the "|"
  EXPECT_EQ(r.CustomFieldsTitle, "Extras");
  EXPECT_EQ(Items(*r.CustomField3List), (Strings{"x", "y"}));
  EXPECT_EQ(r.MyProjectsTasks->ToString(f.s), "Beta,0,,:");
  EXPECT_TRUE(f.ui.reports.empty());
}

TEST(MySettings, AdminSaveWritesTitlesNamesAndThreeFlagsInOrder) {
  Settings f;
  f.settings.AllowManagerReview = -1;
  f.settings.SaveAdminSettingsOnly(f.s);
  const Strings expected = {"ProjectTitle",       "ActivityTitle",         "CustomList1Name",
                            "CustomList2Name",    "CustomList3Name",       "CustomList4Name",
                            "CustomField5Name",   "CustomField6Name",      "CustomField7Name",
                            "CustomField8Name",   "CustomField9Name",      "CustomField10Name",
                            "AllowManagerReview", "AllowAppointmentItems", "AllowTaskItems"};
  EXPECT_EQ(Names(f.registry), expected);
  EXPECT_EQ(f.registry.ReadString(kQvxKey, "AllowManagerReview"), "-1");
}

TEST(MySettings, FailedSaveIsReportedAndStops) {
  Settings f;
  std::ofstream(f.registry.path()) << "not a registry\n";
  f.settings.SaveSettings(f.s);
  ASSERT_EQ(f.ui.reports.size(), 1u);
  EXPECT_EQ(ReportLine(f.ui.reports[0], 0), "At Line: 10");
  EXPECT_EQ(ReportLine(f.ui.reports[0], 1), "In Function: MySettings.SaveSettings");
}

}  // namespace
}  // namespace qvx
