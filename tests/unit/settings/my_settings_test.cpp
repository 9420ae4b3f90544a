// cMySettings: defaults, bad values, the database line, the catalogue, and
// the save orders.
#include "settings/my_settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "core/dates.h"
#include "settings_fixture.h"

namespace qvx {
namespace {

using testing::Items;
using testing::kQvxKey;
using testing::ReportLine;
using testing::SettingsFixture;
using testing::Strings;

struct Settings : SettingsFixture {
  cMySettings settings;
  void Store(const char* name, const std::string& text) {
    ASSERT_TRUE(registry.SetString(kQvxKey, name, text));
  }
};

Strings Names(platform::FileRegistry& registry) {
  Strings names;
  for (const auto& v : registry.ListValues(kQvxKey)) names.push_back(v.name);
  return names;
}

// Reads with values already in the record, so that a test sees which
// members the read reached.
struct ReadSettings : ::testing::Test, Settings {
  ReadSettings() {
    settings.DBChoice = 4;
    settings.LastReported = DateSerial(2020, 1, 2);
  }
  void Read() { settings.ReadSettings(s); }
};

TEST_F(ReadSettings, AnEmptyStoreGivesTheDefaultsAndIsNotWrittenTo) {
  Read();
  const cMySettings& m = settings;
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
  EXPECT_EQ(m.LastReported, system.Now());  // the present time, by way of its text
  EXPECT_FALSE(std::filesystem::exists(registry.path()));
  EXPECT_TRUE(Reports().empty());
}

// Titles and field names are trimmed, and a blank one falls back to its
// default; the fields' title and the default values are kept as stored.
TEST_F(ReadSettings, BlankTitlesAndNamesFallBackAndOthersStayAsStored) {
  const struct {
    const char* name;
    const char* stored;
    std::string cMySettings::*member;
    const char* read;
  } rows[] = {
      {"ProjectTitle", "   ", &cMySettings::ProjectTitle, "Project"},
      {"ActivityTitle", "  Task  ", &cMySettings::ActivityTitle, "Task"},
      {"CustomList3Name", " ", &cMySettings::CustomList3Name, "Custom Field 3"},
      {"CustomField7Name", " Mileage ", &cMySettings::CustomField7Name, "Mileage"},
      {"CustomFieldsTitle", "   ", &cMySettings::CustomFieldsTitle, "   "},
      {"DefaultValueForProject", "  ", &cMySettings::DefaultValueForProject, "  "},
  };
  for (const auto& row : rows) Store(row.name, row.stored);
  Read();
  for (const auto& row : rows) EXPECT_EQ(settings.*row.member, row.read) << row.name;
}

// A flag that is not a number ends the read at that member: startup_bad_flag.qvx.
TEST_F(ReadSettings, UnreadableDatabaseValuesAreSkippedOneByOne) {
  Store("DBChoice", "not a number");
  Store("DBConnectionString", "Provider=X");
  Store("LastReported", "the other day");
  Store("ProjectTitle", "Job");
  Read();
  EXPECT_EQ(settings.DBChoice, 4);
  EXPECT_EQ(settings.DBConnectionString, "Provider=X");
  EXPECT_EQ(settings.LastReported, DateSerial(2020, 1, 2));
  EXPECT_EQ(settings.ProjectTitle, "Job");
  EXPECT_FALSE(s.err.pending());
  EXPECT_TRUE(Reports().empty());
}

TEST_F(ReadSettings, AValueThatIsNotTextIsReported) {
  ASSERT_TRUE(registry.SetDword(kQvxKey, "AllowPrivate", 1));
  Read();
  ASSERT_TRUE(ReportedOnce("MySettings.ReadSettings"));
  EXPECT_EQ(ReportLine(Reports()[0], 4), "Exception Description: Registry data not a string");
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
    if (row.reported) {
      EXPECT_TRUE(f.ReportedOnce("MySettings.ReadDatabaseInfo"));
    } else {
      EXPECT_TRUE(f.Reports().empty());
    }
  }
}

// What catalogue_projects.qvx cannot see: the nameless project, the
// catalogue written back, and the members read after a failed catalogue.
TEST(MySettings, CatalogueIsReadAndWrittenBackAndAFailedOneEndsOnlyItsOwnRead) {
  Settings f;
  f.Store("MyProjectsTasks", "Zeta,2,,:Plan,\r\n,4,,:");
  f.settings.ReadSettings(f.s);
  EXPECT_EQ(Items(*f.settings.Projects), (Strings{"Zeta"}));  // no nameless project name
  cTasksClient task;
  task.Activity = "New; step";
  (*f.settings.MyProjectsTasks->dicList.Find("zeta"))->dicList.Add(task.Activity, task);
  f.settings.SaveSettings(f.s);
  const std::string expected = "Zeta,2,,:Plan,;New_SCOLON_ step,\r\n,4,,:";
  EXPECT_EQ(f.settings.ProjectsTasksList, expected);
  EXPECT_EQ(f.registry.ReadString(kQvxKey, "MyProjectsTasks"), expected);
  const std::shared_ptr<cSingleList> before = f.settings.Projects;
  f.Store("MyProjectsTasks", "Kept,1,,:\r\nno colon here\r\nLost,2,,:");
  f.Store("CustomFieldsTitle", "Extras");
  f.settings.ReadSettings(f.s);
  EXPECT_EQ(Items(*f.settings.Projects), (Strings{"Kept"}));
  EXPECT_EQ(Items(*before), (Strings{"Zeta"}));  // a holder keeps its old list
  EXPECT_EQ(f.settings.CustomFieldsTitle, "Extras");
  EXPECT_TRUE(f.ReportedOnce("cTasksPerProjectList.FromString"));
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
  EXPECT_TRUE(f.Reports().empty());
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
  EXPECT_TRUE(f.ReportedOnce("MySettings.SaveSettings"));
}

}  // namespace
}  // namespace qvx
