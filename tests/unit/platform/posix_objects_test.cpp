#include "platform/posix/posix_objects.h"

#include <gtest/gtest.h>

#include "platform/posix/posix_system.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::platform {
namespace {

using sim::testing::FailureOf;

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
  EXPECT_EQ(FailureOf([&] { objects.CreateObject("Outlook.Application"); }).number(),
            kCannotCreateObject);
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
  EXPECT_EQ(FailureOf([&] { d.Call("Remove", {Variant("delta")}); }).number(), kElementNotFound);
  d.Call("Remove", {Variant("ALPHA")});
  EXPECT_EQ(d.Enumerate().at(0).ToText(), "beta");
}

}  // namespace
}  // namespace qvx::platform
