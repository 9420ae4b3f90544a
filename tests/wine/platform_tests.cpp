// The platform seams on Windows: the DLL's resources, compiled by windres and
// found by type, name and language; the settings store's read of a value.
#include <windows.h>

#include <cctype>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "harness/addin_dll.h"
#include "harness/check.h"
#include "platform/win32/registry_win32.h"
#include "platform/win32/resources_win32.h"

namespace qvx::winetest {
namespace {

using platform::kLanguageEnglishUs;

std::string FileText(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream out;
  out << in.rdbuf();
  return out.str();
}

BOOL CALLBACK CountName(HMODULE, LPCWSTR, LPWSTR, LONG_PTR count) {
  ++*reinterpret_cast<int*>(count);
  return TRUE;
}

constexpr const char kTestKey[] = "SOFTWARE\\Quorvix Wine Tests\\Values";
constexpr const wchar_t kTestKeyW[] = L"SOFTWARE\\Quorvix Wine Tests\\Values";

}  // namespace

// Every view document is in the DLL under its type, its upper-cased file
// name (parentheses and all) and language 1033, byte for byte, and found so
// in any case; another language finds nothing.
TEST(Resources, TheDllHoldsEveryViewDocument) {
  const HMODULE dll = GetModuleHandleW(Dll().path.c_str());
  ASSERT_TRUE(dll != nullptr);
  win32::Win32Resources resources(dll);
  for (const auto& [folder, type] :
       {std::pair{"appointment", "VIEWS_APPOINTMENT"}, std::pair{"task", "VIEWS_TASK"}}) {
    int files = 0;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(QVX_VIEW_DOCUMENTS_DIR "/") + folder)) {
      if (entry.path().extension() != ".xml") continue;
      std::string name = entry.path().stem().string();
      for (char& c : name) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
      SCOPED_TRACE(entry.path().string());
      EXPECT_EQ(resources.FindData(type, name, kLanguageEnglishUs),
                std::optional<std::string>(FileText(entry.path())));
      ++files;
    }
    int names = 0;
    const std::wstring wideType(type, type + std::strlen(type));
    EnumResourceNamesW(dll, wideType.c_str(), CountName, reinterpret_cast<LONG_PTR>(&names));
    EXPECT_EQ(names, files);
    EXPECT_EQ(files, 14);
  }
  EXPECT_TRUE(resources.FindData("views_task", "Reported_Date_(filtered)", kLanguageEnglishUs));
  EXPECT_TRUE(!resources.FindData("VIEWS_TASK", "REPORTED_DATE_(FILTERED)", 1031));
}

// The settings store's read of a value, once through the wide call alone and
// once as the size query and the wide read after it: the same answer for
// every kind of stored data.
TEST(Registry, OneWideReadAnswersAsTheSizeQueryAndTheWideReadDid) {
  RegDeleteTreeW(HKEY_CURRENT_USER, L"SOFTWARE\\Quorvix Wine Tests");
  const std::u16string text = u"Project 1,3:Design;Build";
  const std::u16string wide = u"Zeit \u00E9\u20AC \U0001F552";
  const std::u16string large(100000, u'x');
  const auto whole = [](const std::u16string& data) { return 2 * DWORD(data.size() + 1); };
  const struct {
    const char* name;
    DWORD type;
    std::u16string data;
    DWORD bytes;  // as stored; may cut the data short
  } rows[] = {
      {"Text", REG_SZ, text, whole(text)},
      {"Bare", REG_SZ, text, whole(text) - 2},  // no terminator
      {"Empty", REG_SZ, u"", 0},
      {"Wide", REG_SZ, wide, whole(wide)},
      {"Odd", REG_SZ, text, 5},
      {"Large", REG_SZ, large, whole(large)},
      {"Number", REG_DWORD, u"\x0007\x0000", 4},
      {"Expand", REG_EXPAND_SZ, text, whole(text)},
  };
  for (const auto& row : rows) {
    const std::wstring name(row.name, row.name + std::strlen(row.name));
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, kTestKeyW, name.c_str(), row.type,
                              row.data.c_str(), row.bytes),
              ERROR_SUCCESS);
  }
  win32::Win32RegistryApi registry;
  const platform::OpenedKey opened =
      registry.OpenA(platform::Hive::CurrentUser, kTestKey, KEY_READ);
  ASSERT_EQ(opened.result, ERROR_SUCCESS);
  for (const char* name :
       {"Text", "Bare", "Empty", "Wide", "Odd", "Large", "Number", "Expand", "Absent"}) {
    const auto once = registry.QueryTextValue(opened.key.get(), name);
    const auto twice = registry.RegistryApi::QueryTextValue(opened.key.get(), name);
    EXPECT_EQ(once.info, twice.info);
    EXPECT_EQ(once.type, twice.type);
    EXPECT_EQ(once.size, twice.size);
    EXPECT_EQ(once.query, twice.query);
    EXPECT_EQ(once.text, twice.text);
  }
  RegDeleteTreeW(HKEY_CURRENT_USER, L"SOFTWARE\\Quorvix Wine Tests");
}

}  // namespace qvx::winetest
