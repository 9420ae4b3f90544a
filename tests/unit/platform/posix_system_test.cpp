#include "platform/posix/posix_system.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace qvx::platform {
namespace {

namespace fs = std::filesystem;

class PosixSystemTest : public ::testing::Test {
 protected:
  void SetUp() override {
    root_ = fs::temp_directory_path() /
            ("qvx_posix_system_" + std::to_string(::getpid()) + "_" +
             ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(root_);
    fs::create_directories(root_);
  }
  void TearDown() override { fs::remove_all(root_); }
  fs::path root_;
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

TEST_F(PosixSystemTest, RecordingOnlyStartsNothing) {
  PosixSystemServices sys({.spawn = false});
  EXPECT_TRUE(sys.Launch("C:\\Program Files\\Q\\QuorvixClient.exe", "6", 1));
  EXPECT_GT(sys.ShellExecute("http://example.invalid/"), 32);
  EXPECT_TRUE(sys.RunCommandLine("regsvr32 scrrun.dll /s", 2));
  ASSERT_EQ(sys.Launches().size(), 1u);
  EXPECT_EQ(sys.Launches()[0].path, "C:\\Program Files\\Q\\QuorvixClient.exe");
  EXPECT_FALSE(sys.Launches()[0].started);
  EXPECT_EQ(sys.ShellOpens(), std::vector<std::string>{"http://example.invalid/"});
  EXPECT_EQ(sys.CommandLines(), std::vector<std::string>{"regsvr32 scrrun.dll /s"});
}

// Environment overrides, case-blind: posix_objects_test's ExpandEnvironmentStrings.

}  // namespace
}  // namespace qvx::platform
