#include "platform/posix/posix_system.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "sim/temp_folder.h"

namespace qvx::platform {
namespace {

namespace fs = std::filesystem;

// Paths in Windows form (folders made and a file appended to) are proven by
// the trace log of the error reporting tests.
TEST(PosixSystem, FoldersComeFromHomeAndTheConstructor) {
  sim::TempFolder folder("qvx-posix-system");
  const fs::path root(folder.path());
  PosixSystemServices sys({.home = root.string() + "/", .addinFolder = "/opt/qvx/"});
  EXPECT_EQ(sys.AddinFolder(), "/opt/qvx");
  EXPECT_EQ(sys.SpecialFolder(0x28, 0), root.string());
  EXPECT_EQ(sys.SpecialFolder(999, 0), "");
  EXPECT_EQ(sys.SpecialFolder(5, 0), root.string() + "/Documents");
  EXPECT_FALSE(fs::exists(root / "Documents"));
  sys.SpecialFolder(5 | 0x8000, 0);
  EXPECT_TRUE(fs::is_directory(root / "Documents"));
}

// Quotes, a variable and a wildcard reach the program untouched, as the
// companion's arguments must. A start that fails is recorded as such: the
// silent failed start of the support tests.
TEST(PosixSystem, LaunchPassesTheArgumentWholeAsOneEntryAndNoneWhenEmpty) {
  sim::TempFolder folder("qvx-posix-system");
  const fs::path root(folder.path());
  const fs::path script = root / "echo args.sh";
  const fs::path out = root / "args.out";
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
  std::ifstream in(out);
  std::string lines[4];
  for (std::string& line : lines) std::getline(in, line);
  EXPECT_EQ(lines[0], "1");
  EXPECT_EQ(lines[1], argument);
  EXPECT_EQ(lines[2], "0");
}

}  // namespace
}  // namespace qvx::platform
