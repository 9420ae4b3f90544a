// The platform seams on Windows: resources compiled into a module by windres
// and found by type, name and language; pictures handed out as IPictureDisp;
// a read of HKEY_LOCAL_MACHINE with the about box's access.
#include <windows.h>

#include <olectl.h>

#include <fstream>
#include <functional>
#include <sstream>
#include <string>

#include "harness/addin_dll.h"
#include "harness/check.h"
#include "platform/win32/dispatch_object.h"
#include "platform/win32/registry_win32.h"
#include "platform/win32/resources_win32.h"
#include "support/about_key_value.h"

namespace qvx::winetest {
namespace {

using platform::kLanguageEnglishUs;

// The sample documents are compiled into this test program (tests/wine/CMakeLists.txt).
std::string SampleFile() {
  std::ifstream in(QVX_TEST_RESOURCES_DIR "/sample/LINES_(CRLF).xml", std::ios::binary);
  std::ostringstream out;
  out << in.rdbuf();
  return out.str();
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

WINE_TEST(Resources, ATextResourceIsFoundByTypeNameAndLanguage) {
  win32::Win32Resources resources(GetModuleHandleW(nullptr));
  const std::string file = SampleFile();
  REQUIRE(!file.empty());
  CHECK_EQ(resources.FindData("QVX_SAMPLE", "LINES_(CRLF)", kLanguageEnglishUs),
           std::optional<std::string>(file));
  CHECK_EQ(resources.FindData("qvx_sample", "Lines_(crlf)", kLanguageEnglishUs),
           std::optional<std::string>(file));
  CHECK(!resources.FindData("QVX_SAMPLE", "LINES_(CRLF)", 1031));
  CHECK(!resources.FindData("VIEWS_TASK", "LINES_(CRLF)", kLanguageEnglishUs));
  CHECK(!resources.FindData("QVX_SAMPLE", "LINES", kLanguageEnglishUs));
  CHECK_EQ(RaisedNumber([&] { platform::LoadResData(resources, "QVX_SAMPLE", "LINES"); }), 326);
}

WINE_TEST(Resources, TheDllsPicturesComeAsIPictureDisp) {
  const HMODULE dll = GetModuleHandleW(Dll().path.c_str());
  REQUIRE(dll != nullptr);
  win32::Win32Resources resources(dll);
  const struct {
    const char* name;
    OLE_XSIZE_HIMETRIC himetric;  // 32 pixels: 847, 64 pixels: 1693 at 96 dots per inch
  } rows[] = {{"Report", 847}, {"Withdraw", 847}, {"About", 1693}};
  for (const auto& row : rows) {
    Note(row.name);
    const Object picture = platform::LoadResPicture(resources, row.name);
    const ComPtr<IPicture> face = PictureOf(picture);
    REQUIRE(face);
    SHORT type = 0;
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
    CHECK_EQ(face->get_Type(&type), S_OK);
    CHECK_EQ(type, PICTYPE_BITMAP);
    CHECK_EQ(face->get_Width(&width), S_OK);
    CHECK_EQ(width, row.himetric);
    CHECK_EQ(face->get_Height(&height), S_OK);
    CHECK_EQ(height, row.himetric);
  }
  CHECK(resources.FindPicture("Nothing").IsNothing());
  CHECK_EQ(RaisedNumber([&] { platform::LoadResPicture(resources, "Nothing"); }), 326);
}

WINE_TEST(Registry, TheAboutBoxReadsTheMachineHive) {
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Quorvix Wine Tests");
  RegDeleteTreeW(HKEY_CURRENT_USER, L"SOFTWARE\\Quorvix Wine Tests");
  const std::wstring path = L"C:\\Program Files\\Tools\\msinfo32.exe";
  REQUIRE_EQ(
      RegSetKeyValueW(HKEY_CURRENT_USER, kTestKeyW, L"PATH", REG_SZ, L"user", 5 * sizeof(wchar_t)),
      ERROR_SUCCESS);
  win32::Win32RegistryApi registry;
  std::string value = "before";
  CHECK(!fAbout::GetKeyValue(registry, platform::Hive::LocalMachine, kTestKey, "PATH", value));
  CHECK_EQ(value, std::string());  // the key is only the user's

  REQUIRE_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, kTestKeyW, L"PATH", REG_SZ, path.c_str(),
                             static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t))),
             ERROR_SUCCESS);
  CHECK(fAbout::GetKeyValue(registry, platform::Hive::LocalMachine, kTestKey, "PATH", value));
  CHECK_EQ(value, std::string("C:\\Program Files\\Tools\\msinfo32.exe"));
  value = "before";
  CHECK(!fAbout::GetKeyValue(registry, platform::Hive::LocalMachine, kTestKey, "NONE", value));
  CHECK_EQ(value, std::string("before"));

  // The access the about box asks for opens the machine's key.
  const platform::OpenedKey opened =
      registry.OpenA(platform::Hive::LocalMachine, kTestKey, platform::kKeyAllAccessRead);
  CHECK_EQ(opened.result, ERROR_SUCCESS);
  CHECK(static_cast<bool>(opened.key));
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Quorvix Wine Tests");
  RegDeleteTreeW(HKEY_CURRENT_USER, L"SOFTWARE\\Quorvix Wine Tests");
}

}  // namespace qvx::winetest
