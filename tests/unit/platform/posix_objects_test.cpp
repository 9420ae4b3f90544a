#include "platform/posix/posix_objects.h"

#include <gtest/gtest.h>

#include "platform/posix/posix_system.h"

namespace qvx::platform {
namespace {

class PosixObjectsTest : public ::testing::Test {
 protected:
  PosixSystemServices sys{{.spawn = false, .environment = {{"USERNAME", "jdoe"}}}};
  PosixObjectFactory objects{sys};
};

TEST(SplitRunCommand, QuotedPathAndTheWholeRestAsOneArgument) {
  const struct {
    const char* command;
    const char* path;
    const char* argument;
  } rows[] = {
      {R"("C:\Q\QuorvixClient.exe" 0|S|a;1/2/2026 3:04 PM)", R"(C:\Q\QuorvixClient.exe)",
       "0|S|a;1/2/2026 3:04 PM"},
      {R"("C:\Q\QuorvixClient.exe"  two blanks)", R"(C:\Q\QuorvixClient.exe)", " two blanks"},
      {"http://example.invalid/page", "http://example.invalid/page", ""},
      {R"("unterminated)", R"("unterminated)", ""},
  };
  for (const auto& row : rows) {
    const auto [path, argument] = SplitRunCommand(row.command);
    EXPECT_EQ(path, row.path) << row.command;
    EXPECT_EQ(argument, row.argument) << row.command;
  }
}

TEST_F(PosixObjectsTest, ShellRunLaunchesThroughSystemServicesAndThrowsWhenItCannot) {
  Object shell = objects.CreateObject("WSCRIPT.SHELL");
  shell.Call("Run", {Variant(R"("/opt/q/QuorvixClient.exe" 2|S|e)"), Variant(int32_t{1})});
  ASSERT_EQ(sys.Launches().size(), 1u);
  EXPECT_EQ(sys.Launches()[0].path, "/opt/q/QuorvixClient.exe");
  EXPECT_EQ(sys.Launches()[0].argument, "2|S|e");
  EXPECT_EQ(sys.Launches()[0].windowStyle, 1);
  sys.SetSpawn(true);
  EXPECT_THROW(shell.Call("Run", {Variant(R"("/nonexistent/q.exe" x)"), Variant(int32_t{1})}),
               Failure);
}

TEST_F(PosixObjectsTest, ExpandEnvironmentStrings) {
  Object shell = objects.CreateObject("Wscript.Shell");
  EXPECT_EQ(shell.Call("ExpandEnvironmentStrings", {Variant("%USERNAME%")}).ToText(), "jdoe");
  EXPECT_EQ(ExpandEnvironment(sys, "a %QVX_SURELY_UNSET% b %username%"),
            "a %QVX_SURELY_UNSET% b jdoe");
  EXPECT_EQ(ExpandEnvironment(sys, "100%"), "100%");
}

TEST_F(PosixObjectsTest, UnknownProgIdsAndRefusalsThrow429) {
  try {
    objects.CreateObject("Outlook.Application");
    FAIL() << "created";
  } catch (const Failure& f) {
    EXPECT_EQ(f.number(), kCannotCreateObject);
  }
  objects.Refuse("scripting.dictionary");
  EXPECT_THROW(objects.CreateObject("Scripting.Dictionary"), Failure);
  EXPECT_THROW(objects.GetObject("Outlook.Application"), Failure);
}

TEST_F(PosixObjectsTest, RegisteredCreatorsAndRunningObjects) {
  Object dict = MakeDictionary();
  objects.RegisterCreator("ZNBLib.ZNBMAPIUtils", [dict] { return dict; });
  objects.RegisterRunning("Outlook.Application", [dict] { return dict; });
  EXPECT_TRUE(objects.CreateObject("znblib.znbmapiutils").Is(dict));
  EXPECT_TRUE(objects.GetObject("OUTLOOK.APPLICATION").Is(dict));
  EXPECT_EQ(objects.CreateRequests(), std::vector<std::string>{"znblib.znbmapiutils"});
}

TEST_F(PosixObjectsTest, FileSystemObject) {
  Object fso = objects.CreateObject("Scripting.FileSystemObject");
  const std::string dir = ::testing::TempDir() + "qvx_fso_" + std::to_string(::getpid());
  EXPECT_FALSE(fso.Call("FolderExists", {Variant(dir)}).ToBoolean());
  fso.Call("CreateFolder", {Variant(dir)});
  EXPECT_TRUE(fso.Call("FolderExists", {Variant(dir)}).ToBoolean());
  EXPECT_FALSE(fso.Call("FileExists", {Variant(dir)}).ToBoolean());
  EXPECT_THROW(fso.Call("CreateFolder", {Variant(dir)}), Failure);
  ::rmdir(dir.c_str());
}

TEST(NativeDictionary, BehavesAsTheScriptingDictionary) {
  Object d = MakeDictionary();
  d.Put("CompareMode", Variant(int32_t{1}));
  d.Call("Add", {Variant("Alpha"), Variant(int32_t{1})});
  d.Call("Add", {Variant("beta"), Variant("two")});
  EXPECT_THROW(d.Call("Add", {Variant("ALPHA"), Variant(int32_t{3})}), Failure);
  EXPECT_THROW(d.Put("CompareMode", Variant(int32_t{0})), Failure);
  d.Put("Item", {Variant("alpha")}, Variant(int32_t{5}));
  EXPECT_EQ(d.Get("Item", {Variant("ALPHA")}).ToLong(), 5);
  // Reading a missing key adds it, empty.
  EXPECT_TRUE(d.Get("Item", {Variant("gamma")}).IsEmpty());
  EXPECT_EQ(d.Call("Keys").ToObject().Get("Item", {Variant(int32_t{2})}).ToText(), "gamma");
  try {
    d.Call("Remove", {Variant("delta")});
    FAIL() << "removed";
  } catch (const Failure& f) {
    EXPECT_EQ(f.number(), kElementNotFound);
  }
  d.Call("Remove", {Variant("ALPHA")});
  EXPECT_EQ(d.Enumerate().at(0).ToText(), "beta");
}

}  // namespace
}  // namespace qvx::platform
