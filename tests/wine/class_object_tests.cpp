// DllGetClassObject, the class factory and DllCanUnloadNow.
#include <windows.h>

#include "harness/addin_dll.h"
#include "harness/check.h"

namespace qvx::winetest {
namespace {

constexpr CLSID kAddinClass = {
    0x6EB0F8F7, 0x5EF3, 0x4ACA, {0x86, 0xD9, 0x9F, 0xDE, 0x49, 0xED, 0x77, 0x22}};
constexpr CLSID kOtherClass = {
    0x12345678, 0x1234, 0x1234, {0x12, 0x34, 0x12, 0x34, 0x56, 0x78, 0x9A, 0xBC}};

ComPtr<IClassFactory> Factory() {
  const AddinDll& dll = AddinDll::Get();
  REQUIRE(dll.Loaded());
  ComPtr<IClassFactory> factory;
  REQUIRE_EQ(dll.GetClassObject(kAddinClass, IID_IClassFactory, factory.PutVoid()), S_OK);
  REQUIRE(factory);
  return factory;
}

}  // namespace

WINE_TEST(ClassObject, ServesOnlyTheAddinClass) {
  const AddinDll& dll = AddinDll::Get();
  REQUIRE(dll.Loaded());
  void* out = reinterpret_cast<void*>(1);
  CHECK_EQ(dll.GetClassObject(kOtherClass, IID_IClassFactory, &out), CLASS_E_CLASSNOTAVAILABLE);
  CHECK(out == nullptr);
  CHECK_EQ(dll.GetClassObject(kAddinClass, IID_IClassFactory, nullptr), E_POINTER);
  CHECK_EQ(dll.GetClassObject(kAddinClass, IID_IDispatch, &out), E_NOINTERFACE);
  CHECK(out == nullptr);
}

WINE_TEST(ClassObject, MakesTheAddinWithItsInterfaces) {
  ComPtr<IClassFactory> factory = Factory();
  ComPtr<IUnknown> outer;
  REQUIRE_EQ(factory->QueryInterface(IID_IUnknown, outer.PutVoid()), S_OK);
  ComPtr<IUnknown> refused;
  CHECK_EQ(factory->CreateInstance(outer.get(), IID_IUnknown, refused.PutVoid()),
           CLASS_E_NOAGGREGATION);
  CHECK_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);

  ComPtr<IUnknown> addin;
  REQUIRE_EQ(factory->CreateInstance(nullptr, IID_IUnknown, addin.PutVoid()), S_OK);
  ComPtr<com::IDTExtensibility2> extensibility;
  ComPtr<com::IRibbonExtensibility> ribbon;
  ComPtr<IDispatch> dispatch;
  CHECK_EQ(addin->QueryInterface(com::IID_IDTExtensibility2, extensibility.PutVoid()), S_OK);
  CHECK_EQ(addin->QueryInterface(com::IID_IRibbonExtensibility, ribbon.PutVoid()), S_OK);
  CHECK_EQ(addin->QueryInterface(IID_IDispatch, dispatch.PutVoid()), S_OK);
  ComPtr<IClassFactory> notThere;
  CHECK_EQ(addin->QueryInterface(IID_IClassFactory, notThere.PutVoid()), E_NOINTERFACE);
  CHECK_EQ(addin->QueryInterface(IID_IUnknown, nullptr), E_POINTER);

  // One object: every interface leads back to the same IUnknown.
  ComPtr<IUnknown> viaRibbon;
  REQUIRE(ribbon);
  ribbon->QueryInterface(IID_IUnknown, viaRibbon.PutVoid());
  CHECK(viaRibbon.get() == addin.get());
}

WINE_TEST(ClassObject, TheDllUnloadsOnlyWhenNothingIsAlive) {
  const AddinDll& dll = AddinDll::Get();
  REQUIRE(dll.Loaded());
  // The earlier tests released everything they made.
  CHECK_EQ(dll.CanUnloadNow(), S_OK);
  {
    ComPtr<IClassFactory> factory = Factory();
    CHECK_EQ(dll.CanUnloadNow(), S_FALSE);
    CHECK_EQ(factory->LockServer(TRUE), S_OK);
    ComPtr<IUnknown> addin;
    REQUIRE_EQ(factory->CreateInstance(nullptr, IID_IUnknown, addin.PutVoid()), S_OK);
    factory.Reset();
    CHECK_EQ(dll.CanUnloadNow(), S_FALSE);
    addin.Reset();
    CHECK_EQ(dll.CanUnloadNow(), S_FALSE);  // still locked
    REQUIRE_EQ(dll.GetClassObject(kAddinClass, IID_IClassFactory, factory.PutVoid()), S_OK);
    CHECK_EQ(factory->LockServer(FALSE), S_OK);
  }
  CHECK_EQ(dll.CanUnloadNow(), S_OK);
}

}  // namespace qvx::winetest
