// The about box's start of the system information tool from the folder the
// machine names, which needs the program in a real folder; the other ways
// (no entry, the path winning, a folder or path without the program) are
// proven by about_box.qvx.
#include "support/about_form.h"

#include <filesystem>
#include <fstream>

#include "support_fixture.h"

namespace qvx::testing {
namespace {

using AboutBox = SupportTest;

TEST_F(AboutBox, StartSysInfoStartsTheToolInTheFolderTheMachineNames) {
  std::filesystem::create_directories(Home() + "/tools");
  std::ofstream{Home() + "/tools/MSINFO32.EXE"};
  registry.SetString(fAbout::kSysInfoFolderKey, "MSINFO", Home() + "\\tools",
                     platform::Hive::LocalMachine);
  fAbout form(s);
  form.Raise("cmdSystemInfo", "Click");
  ASSERT_EQ(system.Launches().size(), 1u);
  EXPECT_EQ(system.Launches()[0].path, Home() + "\\tools\\MSINFO32.EXE");
  EXPECT_EQ(system.Launches()[0].windowStyle, 1);
  EXPECT_TRUE(ui.MessageBoxes().empty());
  EXPECT_FALSE(form.Unloaded());
  EXPECT_TRUE(Reports().empty());
}

}  // namespace
}  // namespace qvx::testing
