// The about box's start of the system information tool: which registry entry
// wins, when the tool counts as absent, and that a failed start is told too.
#include "support/about_form.h"

#include <filesystem>
#include <fstream>

#include "support_fixture.h"

namespace qvx::testing {
namespace {

using platform::Hive;

using AboutBox = SupportTest;

TEST_F(AboutBox, StartSysInfoStartsTheToolTheMachineNamesOrSaysItCannot) {
  std::filesystem::create_directories(Home() + "/tools");
  std::ofstream{Home() + "/tools/MSINFO32.EXE"};
  const struct Row {
    const char* why;
    const char* path;    // the PATH value, or null for none
    std::string folder;  // the MSINFO folder value, "" for none
    bool spawn;          // really start the program
    std::string launched;
    bool message;
  } rows[] = {
      {"no entry", nullptr, "", false, "", true},
      {"the path wins over the folder", "C:\\Tools\\msinfo32.exe", Home() + "\\tools", false,
       "C:\\Tools\\msinfo32.exe", false},
      {"the folder holds the program", nullptr, Home() + "\\tools", false,
       Home() + "\\tools\\MSINFO32.EXE", false},
      {"the folder lacks the program", nullptr, Home() + "\\none", false, "", true},
      {"the path names no program", "C:\\Tools\\none.exe", "", true, "C:\\Tools\\none.exe", true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.why);
    std::filesystem::remove(registry.path(Hive::LocalMachine));
    if (row.path) {
      registry.SetString(fAbout::kSysInfoPathKey, "PATH", row.path, Hive::LocalMachine);
    }
    if (!row.folder.empty()) {
      registry.SetString(fAbout::kSysInfoFolderKey, "MSINFO", row.folder, Hive::LocalMachine);
    }
    system.ClearRecords();
    system.SetSpawn(row.spawn);
    ui.Reset();
    fAbout form(s);
    form.Raise("cmdSystemInfo", "Click");
    system.WaitForChildren();
    ASSERT_EQ(system.Launches().size(), row.launched.empty() ? 0u : 1u);
    if (!row.launched.empty()) {
      EXPECT_EQ(system.Launches()[0].path, row.launched);
      EXPECT_EQ(system.Launches()[0].windowStyle, 1);
    }
    ASSERT_EQ(ui.MessageBoxes().size(), row.message ? 1u : 0u);
    if (row.message) {
      EXPECT_EQ(ui.MessageBoxes()[0].text, "System Information Is Unavailable At This Time");
      EXPECT_EQ(ui.MessageBoxes()[0].title, "Quorvix Client Addin");
    }
    EXPECT_FALSE(form.Unloaded());
    EXPECT_TRUE(Reports().empty());
  }
}

}  // namespace
}  // namespace qvx::testing
