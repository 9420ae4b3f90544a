// cMySettings: defaults, bad values, the database line, the catalogue, and
// the save orders.
#include "settings/my_settings.h"

#include <gtest/gtest.h>

#include <fstream>

#include "core/dates.h"
#include "settings_fixture.h"

namespace qvx {
namespace {

using testing::Items;
using testing::kQvxKey;
using testing::Listing;
using testing::SettingsFixture;
using testing::Strings;

struct Settings : SettingsFixture {
  cMySettings settings;
  void Store(const char* name, const std::string& text) {
    ASSERT_TRUE(registry.SetString(kQvxKey, name, text));
  }
};

std::string Golden(const std::string& name) {
  return testing::TestResource("settings/" + name);
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

// Saved, the defaults read from an empty store are the golden listing: every
// value a save writes, in its order, without AllowManagerReview.
TEST_F(ReadSettings, AnEmptyStoreGivesTheDefaultsAndIsNotWrittenTo) {
  Read();
  EXPECT_FALSE(std::filesystem::exists(registry.path()));
  EXPECT_EQ(settings.AllowManagerReview, 0);
  EXPECT_EQ(settings.LastReported, system.Now());  // the present time, by way of its text
  ASSERT_NE(settings.Projects, nullptr);
  EXPECT_EQ(settings.Projects->dicList.Count(), 0u);
  settings.SaveSettings(s);
  EXPECT_EQ(Listing(registry), Golden("default_settings.txt"));
  EXPECT_TRUE(Reports().empty());
}

// Titles and field names are trimmed, and a blank one falls back to its
// default; the fields' title and the default values are kept as stored.
TEST_F(ReadSettings, BlankTitlesAndNamesFallBackAndOthersStayAsStored) {
  using Member = std::string cMySettings::*;
  const std::tuple<const char*, const char*, Member, const char*> rows[] = {
      {"ProjectTitle", "   ", &cMySettings::ProjectTitle, "Project"},
      {"ActivityTitle", "  Task  ", &cMySettings::ActivityTitle, "Task"},
      {"CustomList3Name", " ", &cMySettings::CustomList3Name, "Custom Field 3"},
      {"CustomField7Name", " Mileage ", &cMySettings::CustomField7Name, "Mileage"},
      {"CustomFieldsTitle", "   ", &cMySettings::CustomFieldsTitle, "   "},
      {"DefaultValueForProject", "  ", &cMySettings::DefaultValueForProject, "  "},
  };
  for (const auto& [name, stored, member, read] : rows) Store(name, stored);
  Read();
  for (const auto& [name, stored, member, read] : rows) EXPECT_EQ(settings.*member, read) << name;
}

// A flag that is not a number ends the read at that member: startup_bad_flag.qvx;
// a value that is not text too: startup_value_not_text.qvx.
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

// The line as read, shown as written: server|database|integrated|user|password.
TEST(MySettings, DatabaseInfoLines) {
  const std::tuple<const char*, const char*, bool> rows[] = {
      // text, read, reported
      {"DBHOST|Timesheets|-1||", "DBHOST|Timesheets|-1||", false},
      {"srv|db|0|jane|p|ss|w", "srv|db|0|jane|p", false},
      {"justoneword", "old|old|5|old|old", false},
      {"srv|db", "srv|db|5|old|old", true},
      {"srv|db|x|u|p", "srv|db|5|old|old", true},
      {"srv|db|1|u", "srv|db|1|u|old", true},
  };
  for (const auto& [text, read, reported] : rows) {
    SCOPED_TRACE(text);
    Settings f;
    f.Store("DatabaseInfo", text);
    f.Store("DBConnectionString", "after");
    f.settings.Server = f.settings.Database = f.settings.UserName = f.settings.Password = "old";
    f.settings.IntegratedSecurity = 5;
    f.settings.ReadSettings(f.s);
    EXPECT_EQ(f.settings.WriteDatabaseInfo(f.s), read);
    EXPECT_EQ(f.settings.DBConnectionString, "after");  // ReadSettings goes on
    EXPECT_EQ(f.Reports().size(), reported ? 1u : 0u);
    EXPECT_TRUE(!reported || f.ReportedOnce("MySettings.ReadDatabaseInfo"));  // under this label
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

// What a save writes reads back to the same values (the order and the names:
// AnEmptyStoreGivesTheDefaultsAndIsNotWrittenTo).
TEST(MySettings, SaveWritesTheValuesAndAReadGivesThemBack) {
  Settings f;
  cMySettings& m = f.settings;
  m.ReadSettings(f.s);  // the defaults
  m.DBChoice = 2;
  m.LastReported = ComposeDate(DateParts{2025, 12, 31, 23, 59, 58});
  m.AllowPrivate = 0;
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
  const std::string saved = Listing(f.registry);
  cMySettings r;
  r.ReadSettings(f.s);
  EXPECT_EQ(r.Password, "a");  // cut at the "|"
  r.Password = m.Password;
  r.SaveSettings(f.s);
  EXPECT_EQ(Listing(f.registry), saved);
  EXPECT_EQ(r.LastReported, m.LastReported);
  EXPECT_TRUE(f.Reports().empty());
}

TEST(MySettings, AdminSaveWritesTitlesNamesAndThreeFlagsInOrder) {
  Settings f;
  f.settings.AllowManagerReview = -1;
  f.settings.SaveAdminSettingsOnly(f.s);
  EXPECT_EQ(Listing(f.registry), Golden("admin_settings.txt"));
}

TEST(MySettings, FailedSaveIsReportedAndStops) {
  Settings f;
  std::ofstream(f.registry.path()) << "not a registry\n";
  f.settings.SaveSettings(f.s);
  EXPECT_TRUE(f.ReportedOnce("MySettings.SaveSettings"));
}

}  // namespace
}  // namespace qvx
