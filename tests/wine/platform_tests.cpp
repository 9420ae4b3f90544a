// The platform seams on Windows: the DLL's resources, compiled by windres and
// found by type, name and language; pictures handed out as IPictureDisp;
// a read of HKEY_LOCAL_MACHINE with the about box's access; the settings
// store's read of a value.
#include <windows.h>

#include <olectl.h>

#include <cctype>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

#include "harness/addin_dll.h"
#include "harness/check.h"
#include "platform/win32/dispatch_object.h"
#include "platform/win32/registry_win32.h"
#include "platform/win32/resources_win32.h"
#include "support/about_form.h"

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

int32_t RaisedNumber(const std::function<void()>& call) {
  try {
    call();
  } catch (const Failure& f) {
    return f.number();
  }
  return 0;
}

ComPtr<IPicture> PictureOf(const Object& object) {
  auto* face = dynamic_cast<win32::DispatchObject*>(object.host());
  if (face == nullptr) return {};
  return ComPtr<IDispatch>(face->dispatch()).As<IPicture>(IID_IPicture);
}

constexpr const char kTestKey[] = "SOFTWARE\\Quorvix Wine Tests\\MSINFO";
constexpr const wchar_t kTestKeyW[] = L"SOFTWARE\\Quorvix Wine Tests\\MSINFO";

}  // namespace

// Every view document is in the DLL under its type, its upper-cased file
// name (parentheses and all) and language 1033, byte for byte, and found so
// in any case; another language, type or name finds nothing.
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
    EXPECT_EQ(files, 14);
    int names = 0;
    const std::wstring wideType(type, type + std::strlen(type));
    EnumResourceNamesW(dll, wideType.c_str(), CountName, reinterpret_cast<LONG_PTR>(&names));
    EXPECT_EQ(names, 14);
  }
  const std::string name = "REPORTED_DATE_(FILTERED)";
  EXPECT_TRUE(resources.FindData("views_task", "Reported_Date_(filtered)", kLanguageEnglishUs));
  EXPECT_TRUE(!resources.FindData("VIEWS_TASK", name, 1031));
  EXPECT_TRUE(!resources.FindData("VIEWS_APPOINTMENT", "NO_SUCH_VIEW", kLanguageEnglishUs));
  EXPECT_TRUE(!resources.FindData("QVX_SAMPLE", name, kLanguageEnglishUs));
  EXPECT_EQ(RaisedNumber([&] { platform::LoadResData(resources, "VIEWS_TASK", "NONE"); }), 326);
}

TEST(Resources, TheDllsPicturesComeAsIPictureDisp) {
  const HMODULE dll = GetModuleHandleW(Dll().path.c_str());
  ASSERT_TRUE(dll != nullptr);
  win32::Win32Resources resources(dll);
  const struct {
    const char* name;
    OLE_XSIZE_HIMETRIC himetric;  // 32 pixels: 847, 64 pixels: 1693 at 96 dots per inch
  } rows[] = {{"Report", 847}, {"Withdraw", 847}, {"About", 1693}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const Object picture = platform::LoadResPicture(resources, row.name);
    const ComPtr<IPicture> face = PictureOf(picture);
    ASSERT_TRUE(face);
    SHORT type = 0;
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    EXPECT_EQ(face->get_Type(&type), S_OK);
    EXPECT_EQ(type, PICTYPE_BITMAP);
    EXPECT_EQ(face->get_Width(&width), S_OK);
    EXPECT_EQ(width, row.himetric);
    EXPECT_EQ(face->get_Height(&height), S_OK);
    EXPECT_EQ(height, row.himetric);
  }
  EXPECT_TRUE(resources.FindPicture("Nothing").IsNothing());
  EXPECT_EQ(RaisedNumber([&] { platform::LoadResPicture(resources, "Nothing"); }), 326);
}

// The about box's read of the machine hive on the real registry, with the
// access it asks for; its failure paths are the native AboutKeyValue tests'.
TEST(Registry, TheAboutBoxReadsTheMachineHive) {
  const std::wstring path = L"C:\\Program Files\\Tools\\msinfo32.exe";
  ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, kTestKeyW, L"PATH", REG_SZ, path.c_str(),
                            static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t))),
            ERROR_SUCCESS);
  win32::Win32RegistryApi registry;
  std::string value = "before";
  EXPECT_TRUE(fAbout::GetKeyValue(registry, platform::Hive::LocalMachine, kTestKey, "PATH", value));
  EXPECT_EQ(value, std::string("C:\\Program Files\\Tools\\msinfo32.exe"));
  const platform::OpenedKey opened =
      registry.OpenA(platform::Hive::LocalMachine, kTestKey, platform::kKeyAllAccessRead);
  EXPECT_EQ(opened.result, ERROR_SUCCESS);
  EXPECT_TRUE(static_cast<bool>(opened.key));
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Quorvix Wine Tests");
}

// The settings store's read of a value, once through the wide call alone and
// once as the size query and the wide read after it: the same answer for
// every kind of stored data.
TEST(Registry, OneWideReadAnswersAsTheSizeQueryAndTheWideReadDid) {
  RegDeleteTreeW(HKEY_CURRENT_USER, L"SOFTWARE\\Quorvix Wine Tests");
  struct Row {
    const char* name;
    DWORD type;
    std::u16string data;
    DWORD bytes;  // as stored; may cut the data short
  };
  const std::u16string text = u"Project 1,3:Design;Build";
  const std::u16string wide = u"Zeit \u00E9\u20AC \U0001F552";
  const std::u16string large(100000, u'x');
  const Row rows[] = {
      {"Text", REG_SZ, text, 2 * static_cast<DWORD>(text.size() + 1)},
      {"Bare", REG_SZ, text, 2 * static_cast<DWORD>(text.size())},  // no terminator
      {"Empty", REG_SZ, u"", 0},
      {"Nul", REG_SZ, u"", 2},
      {"Wide", REG_SZ, wide, 2 * static_cast<DWORD>(wide.size() + 1)},
      {"Odd", REG_SZ, text, 5},
      {"Large", REG_SZ, large, 2 * static_cast<DWORD>(large.size() + 1)},
      {"Number", REG_DWORD, u"\x0007\x0000", 4},
      {"Expand", REG_EXPAND_SZ, text, 2 * static_cast<DWORD>(text.size() + 1)},
  };
  for (const Row& row : rows) {
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
       {"Text", "Bare", "Empty", "Nul", "Wide", "Odd", "Large", "Number", "Expand", "Absent"}) {
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
