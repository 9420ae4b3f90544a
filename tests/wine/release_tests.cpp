// The release zip as a Windows user installs it: tools/wine-tests.sh packs it
// with tools/make-release.sh and unpacks it into release\ beside this program;
// its install.cmd registers the add-in of Office's bitness for the user with
// regsvr32, its uninstall.cmd removes the registration again.
#include <windows.h>

#include <string>

#include "harness/addin_dll.h"
#include "harness/check.h"
#include "harness/companion_journal.h"
#include "harness/registry_keys.h"

namespace qvx::winetest {
namespace {

const std::wstring kServerKey =
    L"Software\\Classes\\CLSID\\{6EB0F8F7-5EF3-4ACA-86D9-9FDE49ED7722}\\InprocServer32";
const std::wstring kAddinKey =
    std::wstring(L"Software\\Microsoft\\Office\\Outlook\\Addins\\") + kProgId;
constexpr wchar_t kOutlookKey[] = L"SOFTWARE\\Microsoft\\Office\\16.0\\Outlook";

// The release's DLL this test host can load: the x86 one when it runs as a
// 32-bit program, which is how it tests 32-bit Office.
constexpr const wchar_t* kBitness = sizeof(void*) == 8 ? L"x64" : L"x86";

std::wstring ReleaseFolder() {
  return ProgramFolder() + L"release\\";
}

// Runs a script of the release as the user would from a prompt; its exit code.
DWORD RunScript(const std::wstring& script, const std::wstring& argument) {
  return RunAndWait(L"cmd.exe /c \"\"" + ReleaseFolder() + script + L"\" " + argument + L"\"");
}

void SetOfficeBitness(const wchar_t* bitness) {
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, kOutlookKey);
  if (bitness == nullptr) return;
  const DWORD bytes = static_cast<DWORD>((wcslen(bitness) + 1) * sizeof(wchar_t));
  REQUIRE(RegSetKeyValueW(HKEY_LOCAL_MACHINE, kOutlookKey, L"Bitness", REG_SZ, bitness, bytes) ==
          ERROR_SUCCESS);
}

}  // namespace

TEST(Release, TheScriptsRegisterAndRemoveTheUnpackedDllForTheUser) {
  ASSERT_TRUE(GetFileAttributesW((ReleaseFolder() + L"install.cmd").c_str()) !=
              INVALID_FILE_ATTRIBUTES);
  const std::wstring dll = ReleaseFolder() + kBitness + L"\\QVXClient.dll";
  const struct {
    const char* why;
    const wchar_t* argument;
    const wchar_t* officeBitness;  // what Office recorded, or null
    DWORD exitCode;
  } rows[] = {
      {"chosen by the argument", kBitness, nullptr, 0},
      {"found where Office records it", L"", kBitness, 0},
      {"neither: nothing is registered", L"", nullptr, 2},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.why);
    Dll().Unregister();
    SetOfficeBitness(row.officeBitness);
    EXPECT_EQ(RunScript(L"install.cmd", row.argument), row.exitCode);
    const auto server = ReadText(kServerKey, L"");
    if (row.exitCode == 0) {
      EXPECT_TRUE(server && _wcsicmp(server->c_str(), dll.c_str()) == 0);
      EXPECT_EQ(ReadDword(kAddinKey, L"LoadBehavior"), std::optional<DWORD>(3));
      EXPECT_TRUE(!KeyExists(kServerKey, HKEY_LOCAL_MACHINE));
    } else {
      EXPECT_TRUE(!server);
    }
    EXPECT_EQ(RunScript(L"uninstall.cmd", row.argument), row.exitCode);
    EXPECT_TRUE(row.exitCode != 0 || !KeyExists(kServerKey));
  }
  SetOfficeBitness(nullptr);
  Dll().Unregister();
}

}  // namespace qvx::winetest
