#include "platform/posix/posix_system.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "sim/temp_folder.h"

namespace qvx::platform {
namespace {

namespace fs = std::filesystem;

class PosixSystemTest : public ::testing::Test {
 protected:
  sim::TempFolder folder{"qvx-posix-system"};
  fs::path root_{folder.path()};
};

TEST_F(PosixSystemTest, FoldersComeFromHomeAndTheConstructor) {
  PosixSystemServices sys({.home = root_.string() + "/", .addinFolder = "/opt/qvx/"});
  EXPECT_EQ(sys.AddinFolder(), "/opt/qvx");
  EXPECT_EQ(sys.SpecialFolder(0x28, 0), root_.string());
  EXPECT_EQ(sys.SpecialFolder(999, 0), "");
  EXPECT_EQ(sys.SpecialFolder(5, 0), root_.string() + "/Documents");
  EXPECT_FALSE(fs::exists(root_ / "Documents"));
  sys.SpecialFolder(5 | 0x8000, 0);
  EXPECT_TRUE(fs::is_directory(root_ / "Documents"));
}

TEST_F(PosixSystemTest, WindowsPathsAreReadWithSlashes) {
  PosixSystemServices sys;
  const std::string windowsForm = PosixSystemServices::NativePath(root_.string()) + "\\sub\\";
  EXPECT_TRUE(sys.CreateFolder(windowsForm));
  EXPECT_TRUE(sys.FolderExists(windowsForm));
  EXPECT_FALSE(sys.CreateFolder(windowsForm));
  EXPECT_TRUE(sys.AppendToFile(windowsForm + "log.txt", "a\r\n"));
  EXPECT_TRUE(sys.AppendToFile(windowsForm + "log.txt", "b\r\n"));
  std::ifstream in(root_ / "sub" / "log.txt", std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  EXPECT_EQ(text.str(), "a\r\nb\r\n");
}

TEST_F(PosixSystemTest, LaunchPassesTheArgumentWholeAsOneEntryAndNoneWhenEmpty) {
  const fs::path script = root_ / "echo args.sh";
  const fs::path out = root_ / "args.out";
  {
    std::ofstream s(script);
    s << "#!/bin/sh\nprintf '%s\\n' \"$#\" \"$1\" >> '" << out.string() << "'\n";
  }
  fs::permissions(script, fs::perms::owner_all);
  PosixSystemServices sys;
  const std::string argument = "0|Store ID|a;b \"quoted\" $HOME *";
  ASSERT_TRUE(sys.Launch(script.string(), argument, 1));
  sys.WaitForChildren();
  ASSERT_TRUE(sys.Launch(script.string(), "", 1));
  sys.WaitForChildren();
  EXPECT_FALSE(sys.Launch((root_ / "missing.exe").string(), "x", 1));
  std::ifstream in(out);
  std::string lines[4];
  for (std::string& line : lines) std::getline(in, line);
  EXPECT_EQ(lines[0], "1");
  EXPECT_EQ(lines[1], argument);
  EXPECT_EQ(lines[2], "0");
  ASSERT_EQ(sys.Launches().size(), 3u);  // the failed one is recorded too
  EXPECT_TRUE(sys.Launches()[0].started);
  EXPECT_FALSE(sys.Launches()[2].started);
}

}  // namespace
}  // namespace qvx::platform
