// Self-registration per user: what DllRegisterServer writes, what
// DllUnregisterServer removes, and how a host finds the class again.
#include <windows.h>

#include <string>

#include "harness/addin_dll.h"
#include "harness/check.h"
#include "harness/registry_keys.h"

namespace qvx::winetest {
namespace {

constexpr wchar_t kClsid[] = L"{6EB0F8F7-5EF3-4ACA-86D9-9FDE49ED7722}";
const std::wstring kClassKey = std::wstring(L"Software\\Classes\\CLSID\\") + kClsid;
const std::wstring kProgIdKey = std::wstring(L"Software\\Classes\\") + kProgId;
const std::wstring kAddinKey =
    std::wstring(L"Software\\Microsoft\\Office\\Outlook\\Addins\\") + kProgId;

using Text = std::optional<std::wstring>;

// Every test starts from an unregistered DLL.
const AddinDll& CleanDll() {
  Dll().Unregister();
  for (const std::wstring& key : {kClassKey, kProgIdKey, kAddinKey}) DeleteTree(key);
  return Dll();
}

}  // namespace

TEST(Registration, WritesTheKeysForTheUserAndUnregistrationRemovesThem) {
  const AddinDll& dll = CleanDll();
  WriteSettings({{L"DBChoice", L"1"}, {L"DBConnectionString", L"Server=db;Database=qvx"}});
  ASSERT_EQ(dll.Register(), S_OK);
  ASSERT_EQ(dll.Register(), S_OK);  // again: still one registration

  EXPECT_EQ(ReadText(kClassKey, L""), Text(kProgId));
  const Text server = ReadText(kClassKey + L"\\InprocServer32", L"");
  EXPECT_TRUE(server && _wcsicmp(server->c_str(), dll.path.c_str()) == 0);
  EXPECT_EQ(ReadText(kClassKey + L"\\InprocServer32", L"ThreadingModel"), Text(L"Apartment"));
  EXPECT_EQ(ReadText(kClassKey + L"\\ProgID", L""), Text(kProgId));
  EXPECT_EQ(ReadText(kProgIdKey + L"\\CLSID", L""), Text(kClsid));
  EXPECT_EQ(ReadText(kAddinKey, L"FriendlyName"), Text(L"Quorvix Client for Outlook"));
  EXPECT_EQ(ReadText(kAddinKey, L"Description"),
            Text(L"This client add-in is part of Quorvix for Outlook"));
  EXPECT_EQ(ReadDword(kAddinKey, L"LoadBehavior"), std::optional<DWORD>(3));
  // Per user only: nothing for the whole machine.
  EXPECT_TRUE(!KeyExists(kClassKey, HKEY_LOCAL_MACHINE));
  EXPECT_TRUE(!KeyExists(kAddinKey, HKEY_LOCAL_MACHINE));

  EXPECT_EQ(dll.Unregister(), S_OK);
  EXPECT_TRUE(!KeyExists(kClassKey));
  EXPECT_TRUE(!KeyExists(kProgIdKey));
  EXPECT_TRUE(!KeyExists(kAddinKey));
  // The user's settings stay.
  EXPECT_EQ(ReadText(kSettingsKey, L"DBChoice"), Text(L"1"));
  EXPECT_EQ(ReadText(kSettingsKey, L"DBConnectionString"), Text(L"Server=db;Database=qvx"));
  EXPECT_EQ(dll.Unregister(), S_OK);  // nothing left to remove is no failure
  DeleteTree(kSettingsKey);
}

TEST(Registration, ForeignEntriesKeepTheirKey) {
  const AddinDll& dll = CleanDll();
  ASSERT_EQ(dll.Register(), S_OK);
  WriteText(kClassKey + L"\\TreatAs", L"", L"{00000000-0000-0000-0000-000000000001}");

  EXPECT_EQ(dll.Unregister(), S_FALSE);
  EXPECT_TRUE(KeyExists(kClassKey + L"\\TreatAs"));
  EXPECT_TRUE(!KeyExists(kClassKey + L"\\InprocServer32"));
  EXPECT_TRUE(!KeyExists(kProgIdKey));
  EXPECT_TRUE(!KeyExists(kAddinKey));
  DeleteTree(kClassKey);
}

}  // namespace qvx::winetest
