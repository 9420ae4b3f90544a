// Programs and links started for the user, and the scripting objects the
// add-in makes, their library registered again once when it is missing.
#include "support/file_module.h"

#include <filesystem>
#include <fstream>

#include "support/error_reporting.h"
#include "support/scripting.h"
#include "support_fixture.h"

namespace qvx::testing {
namespace {

namespace fs = std::filesystem;
namespace msgbox = platform::msgbox;

class RunAppTest : public SupportTest {
 protected:
  RunAppTest() {
    fs::create_directories(Other());
    std::ofstream{fs::path(AddinFolder()) / "QuorvixClient.exe"};
    std::ofstream{fs::path(Other()) / "Other.exe"};
  }
  std::string Other() const { return Home() + "/other"; }
  std::string InAddin(std::string_view exe) const {
    return AddinFolder() + "\\" + std::string(exe);
  }
};

TEST_F(RunAppTest, ProgramsAndLinks) {
  struct Row {
    std::string name, parameters, folder;
    std::string path, argument;  // the one launch expected
  };
  const std::vector<Row> rows = {
      {"Other", "x y", Other() + "\\", Other() + "\\Other.exe", "x y"},
      {"Other", "x", Other(), Other() + "\\Other.exe", "x"},
      // The folder lacks the program: the add-in's own folder, without a word.
      {"QuorvixClient", "6", Other() + "\\", InAddin("QuorvixClient.exe"), "6"},
      // Links: folder and parameters are not looked at.
      {"hTTpS://X.example.invalid", "p", "f", "hTTpS://X.example.invalid", ""},
      {"mailto:someone@example.invalid", "", "", "mailto:someone@example.invalid", ""},
      {"Mailbox", "p", Other(), "Mailbox", ""},
  };
  for (const Row& row : rows) {
    system.ClearRecords();
    FileModule::RunApp(s, row.name, row.parameters, row.folder);
    ASSERT_EQ(system.Launches().size(), 1u) << row.name;
    EXPECT_EQ(system.Launches()[0].path, row.path) << row.name;
    EXPECT_EQ(system.Launches()[0].argument, row.argument) << row.name;
    EXPECT_EQ(system.Launches()[0].windowStyle, 1) << row.name;
  }
  EXPECT_TRUE(ui.MessageBoxes().empty());
  EXPECT_TRUE(ui.Forms().empty());
}

TEST_F(RunAppTest, WithoutAShellObjectTheQuotedCommandGoesToShellOpen) {
  objects.Refuse("Wscript.Shell");
  FileModule::RunApp(s, "QuorvixClient", "", "");
  FileModule::RunApp(s, "QuorvixClient", "6", "");
  FileModule::RunApp(s, "HTTP://x.example.invalid", "6", "");
  EXPECT_TRUE(system.Launches().empty());
  EXPECT_EQ(system.ShellOpens(),
            (std::vector<std::string>{"\"" + InAddin("QuorvixClient.exe") + "\" ",
                                      "\"" + InAddin("QuorvixClient.exe") + "\" 6",
                                      "HTTP://x.example.invalid"}));
  // The shell object's library was registered again each time it was missing.
  EXPECT_EQ(system.CommandLines().front(), "regsvr32 wshom.ocx /s");
}

TEST_F(RunAppTest, AMissingProgramIsToldWithItsPathAFailedStartIsSilent) {
  FileModule::RunApp(s, "QuorvixClient.exe", "x", "");  // ".exe" is always appended
  EXPECT_TRUE(system.Launches().empty());
  ASSERT_EQ(ui.MessageBoxes().size(), 1u);
  EXPECT_EQ(ui.MessageBoxes()[0].text,
            "Exception occured when running the file " + InAddin("QuorvixClient.exe.exe") + "\r\n");
  EXPECT_EQ(ui.MessageBoxes()[0].style, msgbox::kCritical);
  EXPECT_EQ(ui.MessageBoxes()[0].title, "Quorvix Client Addin");

  system.SetSpawn(true);  // the file is empty and not executable: the start fails
  FileModule::RunApp(s, "QuorvixClient", "6", "");
  ASSERT_EQ(system.Launches().size(), 1u);
  EXPECT_FALSE(system.Launches()[0].started);
  EXPECT_EQ(ui.MessageBoxes().size(), 1u);
  EXPECT_TRUE(ui.Forms().empty());
  EXPECT_FALSE(s.err.pending());
  EXPECT_EQ(s.support.strCurrentAction,
            "Attempting to execute the path '" + InAddin("QuorvixClient.exe") + "'");
}

TEST_F(SupportTest, RemoveTrailingSlashRemovesOneAndClearsTheError) {
  const std::pair<const char*, const char*> rows[] = {{"a\\", "a"}, {"/x/", "/x"}, {"a\\\\", "a\\"},
                                                      {"a", "a"},   {"", ""},      {"\\", ""}};
  for (const auto& [in, out] : rows) {
    s.err.Set(Failure(5, "x", "y"));
    EXPECT_EQ(RemoveTrailingSlash(s, in), out) << in;
    EXPECT_FALSE(s.err.pending());
  }
}

TEST_F(SupportTest, ShellOpenClearsTheErrorTheOtherWrapperLeavesIt) {
  s.err.Set(Failure(5, "x", "y"));
  ShellOpenLeavingError(s, "a");
  EXPECT_TRUE(s.err.pending());
  ShellOpen(s, "b");
  EXPECT_FALSE(s.err.pending());
  EXPECT_EQ(system.ShellOpens(), (std::vector<std::string>{"a", "b"}));
}

// Missing from the platform: its library is registered again, once, and with
// no host the object stays Nothing; the host's CreateObject makes it then,
// once.
TEST_F(SupportTest, AMissingFileSystemLibraryIsRepairedOnceAndTheHostMakesTheObjectOnce) {
  objects.Refuse("Scripting.FileSystemObject");
  FileModule::Initialize(s);
  FileModule::Initialize(s);
  EXPECT_TRUE(s.support.objFSO.IsNothing());
  EXPECT_EQ(system.CommandLines(), std::vector<std::string>{"regsvr32 scrrun.dll /s"});
  EXPECT_FALSE(s.err.pending());
  EXPECT_TRUE(ui.MessageBoxes().empty());
  const Object fromHost = platform::MakeFileSystemObject(system);
  std::vector<std::string> asked;
  host.SetCreateObject([&](std::string_view progId) {
    asked.emplace_back(progId);
    return fromHost;
  });
  ConnectHost();
  FileModule::Initialize(s);
  FileModule::Initialize(s);
  EXPECT_TRUE(s.support.objFSO.Is(fromHost));
  EXPECT_EQ(asked, std::vector<std::string>{"Scripting.FileSystemObject"});
  EXPECT_EQ(s.support.strCurrentAction, "problem with scrrun.dll");
}

TEST_F(SupportTest, AMissingDictionaryLibraryIsRepairedOnceAndGivesNothing) {
  objects.Refuse("Scripting.Dictionary");
  EXPECT_TRUE(Scripting::Initialize(s).IsNothing());
  EXPECT_TRUE(Scripting::Initialize(s).IsNothing());
  EXPECT_EQ(system.CommandLines(), std::vector<std::string>{"regsvr32 scrrun.dll /s"});
  objects.Allow("Scripting.Dictionary");
  EXPECT_EQ(Scripting::Initialize(s).Get("CompareMode").ToLong(), 1);  // text compare
}

TEST_F(SupportTest, ShellObjectRepairIsTriedOnEachMissingCreation) {
  objects.Refuse("Wscript.Shell");
  EXPECT_TRUE(Scripting::GetWS(s).IsNothing());
  EXPECT_FALSE(s.err.pending());
  objects.Allow("Wscript.Shell");
  EXPECT_EQ(Scripting::GetWS(s).TypeName(), "IWshShell3");
  EXPECT_EQ(system.CommandLines(), std::vector<std::string>{"regsvr32 wshom.ocx /s"});
}

}  // namespace
}  // namespace qvx::testing
