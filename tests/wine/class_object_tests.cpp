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
  ComPtr<IClassFactory> factory;
  REQUIRE_EQ(Dll().GetClassObject(kAddinClass, IID_IClassFactory, factory.PutVoid()), S_OK);
  return factory;
}

}  // namespace

WINE_TEST(ClassObject, MakesOnlyTheAddinWithItsInterfaces) {
  void* out = reinterpret_cast<void*>(1);
  CHECK_EQ(Dll().GetClassObject(kOtherClass, IID_IClassFactory, &out), CLASS_E_CLASSNOTAVAILABLE);
  CHECK(out == nullptr);
  CHECK_EQ(Dll().GetClassObject(kAddinClass, IID_IClassFactory, nullptr), E_POINTER);
  CHECK_EQ(Dll().GetClassObject(kAddinClass, IID_IDispatch, &out), E_NOINTERFACE);
  CHECK(out == nullptr);

  ComPtr<IClassFactory> factory = Factory();
  ComPtr<IUnknown> outer = factory.As<IUnknown>(IID_IUnknown);
  ComPtr<IUnknown> addin;
  CHECK_EQ(factory->CreateInstance(outer.get(), IID_IUnknown, addin.PutVoid()),
           CLASS_E_NOAGGREGATION);
  CHECK_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
  REQUIRE_EQ(factory->CreateInstance(nullptr, IID_IUnknown, addin.PutVoid()), S_OK);
  CHECK(addin.As<com::IDTExtensibility2>(com::IID_IDTExtensibility2));
  CHECK(addin.As<IDispatch>(IID_IDispatch));
  ComPtr<IClassFactory> none;
  CHECK_EQ(addin->QueryInterface(IID_IClassFactory, none.PutVoid()), E_NOINTERFACE);
  CHECK_EQ(addin->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
  // One object: every interface leads back to the same IUnknown.
  const auto ribbon = addin.As<com::IRibbonExtensibility>(com::IID_IRibbonExtensibility);
  REQUIRE(ribbon);
  CHECK(ribbon.As<IUnknown>(IID_IUnknown).get() == addin.get());
}

WINE_TEST(ClassObject, TheDllUnloadsOnlyWhenNothingIsAlive) {
  // The earlier tests released everything they made.
  CHECK_EQ(Dll().CanUnloadNow(), S_OK);
  ComPtr<IClassFactory> factory = Factory();
  CHECK_EQ(Dll().CanUnloadNow(), S_FALSE);
  CHECK_EQ(factory->LockServer(TRUE), S_OK);
  ComPtr<IUnknown> addin;
  REQUIRE_EQ(factory->CreateInstance(nullptr, IID_IUnknown, addin.PutVoid()), S_OK);
  factory.Reset();
  CHECK_EQ(Dll().CanUnloadNow(), S_FALSE);
  addin.Reset();
  CHECK_EQ(Dll().CanUnloadNow(), S_FALSE);  // still locked
  CHECK_EQ(Factory()->LockServer(FALSE), S_OK);
  CHECK_EQ(Dll().CanUnloadNow(), S_OK);
}

}  // namespace qvx::winetest
