#include "companion/companion_launch.h"

#include <gtest/gtest.h>

#include <unistd.h>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "companion/command_lines.h"
#include "companion/section_codes.h"
#include "platform/user_interface.h"
#include "support/endpoints.h"
#include "support/file_module.h"
#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

std::string StandInFolder() {
#ifdef QVX_STANDIN_FOLDER
  return QVX_STANDIN_FOLDER;
#else
  return "";
#endif
}

bool EndsWith(std::string_view text, std::string_view tail) {
  return text.size() >= tail.size() && text.substr(text.size() - tail.size()) == tail;
}

// The add-in's folder is the stand-ins' folder; launches are recorded only.
struct LaunchTest : ::testing::Test {
  static platform::PosixSystemOptions Options() {
    platform::PosixSystemOptions options = testing::TestAddin::RecordingOptions(StandInFolder());
    options.environment["USERNAME"] = "Jane Doe";
    return options;
  }
  void SetUp() override { ASSERT_FALSE(StandInFolder().empty()); }
  const std::vector<platform::LaunchRecord>& Launches() const { return t.system.Launches(); }

  testing::TestAddin t{Options()};
};

TEST_F(LaunchTest, EverySectionStartsTheClientWithItsNumber) {
  for (int32_t section : companion::kAllSections) {
    subLoadSection(t.s, section);
    ASSERT_FALSE(Launches().empty());
    EXPECT_TRUE(EndsWith(Launches().back().path, "QuorvixClient.exe")) << Launches().back().path;
    EXPECT_EQ(Launches().back().argument, std::to_string(section));
    EXPECT_EQ(t.s.companion.lngLastSection, section);
  }
  EXPECT_EQ(Launches().size(), companion::kAllSections.size());
  EXPECT_TRUE(t.ui.MessageBoxes().empty());
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(LaunchTest, SectionSixGivesTheText6) {
  subLoadSection(t.s, companion::kSectionMyProjectsTasks);
  ASSERT_EQ(Launches().size(), 1u);
  EXPECT_EQ(Launches()[0].argument, "6");
}

TEST_F(LaunchTest, StatisticsOfAFileDatabase) {
  t.settings().DBChoice = 0;
  t.settings().DBConnectionString = "C:\\Data\\";
  subLoadOLAPStatistics(t.s);
  ASSERT_EQ(Launches().size(), 1u);
  EXPECT_TRUE(EndsWith(Launches()[0].path, "QuorvixOLAP.exe")) << Launches()[0].path;
  EXPECT_EQ(
      Launches()[0].argument,
      "Provider=Microsoft.Jet.OLEDB.4.0;Data_SPACE_Source=C:\\Data\\Quorvix.mdb|0|Jane_SPACE_Doe");
}

TEST_F(LaunchTest, StatisticsOfAServerKeepsTheConnectionText) {
  t.settings().DBChoice = 1;
  t.settings().DBConnectionString = "Server=db1;Initial Catalog=Time";
  subLoadOLAPStatistics(t.s);
  ASSERT_EQ(Launches().size(), 1u);
  EXPECT_EQ(Launches()[0].argument, "Server=db1;Initial_SPACE_Catalog=Time|0|Jane_SPACE_Doe");
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
  EXPECT_TRUE(t.Reported("Main.subLoadOLAPStatistics", 10));
}

TEST_F(LaunchTest, TheTutorialIsALinkOnTheProductSite) {
  GotoVideoTutorial(t.s);
  const std::string page = ProductWebPage("/Quorvix/TutorialClips.asp");
  EXPECT_TRUE(EndsWith(page, "/Quorvix/TutorialClips.asp"));
  // A link goes to the shell object whole, with no program path and no argument.
  ASSERT_EQ(Launches().size(), 1u);
  EXPECT_EQ(Launches()[0].path, page);
  EXPECT_EQ(Launches()[0].argument, "");
  EXPECT_TRUE(t.ui.MessageBoxes().empty());
}

TEST(CompanionLaunchMissing, AMissingCompanionIsToldByTheLauncherOnly) {
  testing::TestAddin t(testing::TestAddin::RecordingOptions("/nonexistent/qvx"));
  subLoadSection(t.s, companion::kSectionAutoSync);
  EXPECT_TRUE(t.system.Launches().empty());
  ASSERT_EQ(t.ui.MessageBoxes().size(), 1u);
  EXPECT_EQ(t.ui.MessageBoxes()[0].text.rfind("Exception occured when running the file ", 0), 0u);
  EXPECT_EQ(t.s.companion.lngLastSection, companion::kSectionAutoSync);
  EXPECT_TRUE(t.Reports().empty());
}

TEST(CompanionLaunchEndToEnd, TheStartedStandInGetsEachCommandWhole) {
  ASSERT_FALSE(StandInFolder().empty());
  const std::filesystem::path journal =
      std::filesystem::temp_directory_path() / ("qvx-launch-" + std::to_string(getpid()) + ".txt");
  std::filesystem::remove(journal);
  ASSERT_EQ(setenv("QVX_COMPANION_JOURNAL", journal.c_str(), 1), 0);
  platform::PosixSystemOptions options;
  options.addinFolder = StandInFolder();
  testing::TestAddin t(options);

  const std::string occurrence = companion::ReportCommand(
      "S", {companion::ReportEntry("E1", ""), companion::ReportEntry("E2", "3/7/2010 9:30:00 AM")});
  subLoadSection(t.s, companion::kSectionAutoSync);
  FileModule::RunApp(t.s, companion::kClientProgram, occurrence, "");
  t.system.WaitForChildren();
  unsetenv("QVX_COMPANION_JOURNAL");

  std::ifstream in(journal);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  std::filesystem::remove(journal);
  std::sort(lines.begin(), lines.end());  // the two ran side by side
  const std::vector<std::string> expected{"QuorvixClient\treport\t" + occurrence,
                                          "QuorvixClient\tsection\t28"};
  EXPECT_EQ(lines, expected);
  EXPECT_TRUE(t.ui.MessageBoxes().empty());
}

}  // namespace
}  // namespace qvx
