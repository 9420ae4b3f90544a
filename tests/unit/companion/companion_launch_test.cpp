#include "companion/companion_launch.h"

#include <gtest/gtest.h>

#include <string>

#include "companion/section_codes.h"
#include "platform/user_interface.h"
#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

// The add-in's folder is the stand-ins' folder; launches are recorded only.
struct LaunchTest : ::testing::Test {
  const std::vector<platform::LaunchRecord>& Launches() const { return t.system.Launches(); }

  testing::TestAddin t{
      {.addinFolder = QVX_STANDIN_FOLDER, .environment = {{"USERNAME", "Jane Doe"}}}};
};

TEST_F(LaunchTest, EverySectionStartsTheClientWithItsNumber) {
  for (int32_t section : companion::kAllSections) {
    subLoadSection(t.s, section);
    ASSERT_FALSE(Launches().empty());
    EXPECT_TRUE(Launches().back().path.ends_with("QuorvixClient.exe")) << Launches().back().path;
    EXPECT_EQ(Launches().back().argument, std::to_string(section));
    EXPECT_EQ(t.s.companion.lngLastSection, section);
  }
  EXPECT_EQ(Launches().size(), companion::kAllSections.size());
  EXPECT_TRUE(t.ui.MessageBoxes().empty());
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(LaunchTest, StatisticsTakeAFileFolderOrAServerConnection) {
  t.settings().DBChoice = 0;
  t.settings().DBConnectionString = "C:\\Data\\";
  subLoadOLAPStatistics(t.s);
  t.settings().DBChoice = 1;
  t.settings().DBConnectionString = "Server=db1;Initial Catalog=Time";
  subLoadOLAPStatistics(t.s);
  ASSERT_EQ(Launches().size(), 2u);
  EXPECT_TRUE(Launches()[0].path.ends_with("QuorvixOLAP.exe")) << Launches()[0].path;
  EXPECT_EQ(
      Launches()[0].argument,
      "Provider=Microsoft.Jet.OLEDB.4.0;Data_SPACE_Source=C:\\Data\\Quorvix.mdb|0|Jane_SPACE_Doe");
  EXPECT_EQ(Launches()[1].argument, "Server=db1;Initial_SPACE_Catalog=Time|0|Jane_SPACE_Doe");
}

TEST_F(LaunchTest, StatisticsWithoutAConnectionOnlyTellsTheUser) {
  t.settings().DBChoice = 1;
  subLoadOLAPStatistics(t.s);
  EXPECT_TRUE(Launches().empty());
  ASSERT_EQ(t.ui.MessageBoxes().size(), 1u);
  const platform::MessageBoxRecord& box = t.ui.MessageBoxes()[0];
  EXPECT_EQ(box.text,
            "Please configure the database connectivity first before running statistical tool!");
  EXPECT_EQ(box.style, platform::msgbox::kCritical);
  EXPECT_EQ(box.title, "Quorvix Client Addin");
}

TEST_F(LaunchTest, WithoutSettingsTheStatisticsReportAndStartNothing) {
  t.s.main.objMySettings.reset();
  subLoadOLAPStatistics(t.s);
  EXPECT_TRUE(Launches().empty());
  EXPECT_TRUE(t.Reported("Main.subLoadOLAPStatistics"));
}

}  // namespace
}  // namespace qvx
