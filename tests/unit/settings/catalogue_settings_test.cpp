// ReadSettings fills the catalogue and the project names from
// "MyProjectsTasks"; SaveSettings writes the catalogue back.
#include <gtest/gtest.h>

#include "catalogue_fixture.h"
#include "settings/my_settings.h"

namespace qvx {
namespace {

using testing::kQvxKey;
using testing::Strings;

struct Settings : testing::SettingsFixture {
  cMySettings settings;
  void Store(const char* name, const std::string& text) {
    ASSERT_TRUE(registry.SetString(kQvxKey, name, text));
  }
};

Strings Names(const cSingleList& list) {
  Strings names;
  for (const auto& entry : list.dicList) names.push_back(entry.value);
  return names;
}

constexpr const char* kCatalogue =
    "Zeta,2,,:Plan,;Build,2024-5-1\r\nalpha,0,2024-1-1,:\r\nALPHA,9,,:x,\r\n,4,,:";

TEST(CatalogueSettings, ReadSettingsFillsTheCatalogueAndSaveSettingsWritesItBack) {
  Settings f;
  f.Store("MyProjectsTasks", kCatalogue);
  f.settings.ReadSettings(f.s);
  EXPECT_EQ(f.settings.ProjectsTasksList, kCatalogue);
  EXPECT_EQ(f.settings.MyProjectsTasks->dicList.Count(), 3u);  // "ALPHA" dropped
  // In the stored order, not sorted, without the nameless project.
  EXPECT_EQ(Names(*f.settings.Projects), (Strings{"Zeta", "alpha"}));
  cTasksClient task;
  task.Activity = "New; step";
  (*f.settings.MyProjectsTasks->dicList.Find("alpha"))->dicList.Add(task.Activity, task);
  f.settings.SaveSettings(f.s);
  const std::string expected =
      "Zeta,2,,:Plan,;Build,2024-5-1\r\nalpha,0,2024-1-1,:New_SCOLON_ step,\r\n,4,,:";
  EXPECT_EQ(f.settings.ProjectsTasksList, expected);
  EXPECT_EQ(f.registry.ReadString(kQvxKey, "MyProjectsTasks"), expected);
  EXPECT_TRUE(f.Reports().empty());
}

// Read again, a bad catalogue replaces the old one with what it holds up to
// the failure, is reported once, and the members after it are still read.
TEST(CatalogueSettings, ABadCatalogueIsReportedAndTheReadGoesOn) {
  Settings f;
  f.Store("MyProjectsTasks", kCatalogue);
  f.settings.ReadSettings(f.s);
  const std::shared_ptr<cSingleList> before = f.settings.Projects;
  f.Store("MyProjectsTasks", "Kept,1,,:\r\nno colon here\r\nLost,2,,:");
  f.Store("CustomFieldsTitle", "Extras");
  f.Store("CustomList1Active", "1");
  f.settings.ReadSettings(f.s);
  EXPECT_EQ(Names(*f.settings.Projects), (Strings{"Kept"}));
  EXPECT_EQ(f.settings.MyProjectsTasks->dicList.Count(), 1u);
  EXPECT_EQ(Names(*before), (Strings{"Zeta", "alpha"}));  // a holder keeps its old list
  EXPECT_EQ(f.settings.CustomFieldsTitle, "Extras");
  EXPECT_EQ(f.settings.CustomList1Active, 1);
  ASSERT_EQ(f.Reports().size(), 1u);
  EXPECT_TRUE(testing::ReportIsTrap(f.Reports()[0], "cTasksPerProjectList.FromString"));
}

}  // namespace
}  // namespace qvx
