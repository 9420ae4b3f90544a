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
  REQUIRE(Dll().GetClassObject(kAddinClass, IID_IClassFactory, factory.PutVoid()) == S_OK);
  return factory;
}

}  // namespace

TEST(ClassObject, MakesOnlyTheAddinWithItsInterfaces) {
  void* out = reinterpret_cast<void*>(1);
  EXPECT_EQ(Dll().GetClassObject(kOtherClass, IID_IClassFactory, &out), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_TRUE(out == nullptr);
  EXPECT_EQ(Dll().GetClassObject(kAddinClass, IID_IClassFactory, nullptr), E_POINTER);
  EXPECT_EQ(Dll().GetClassObject(kAddinClass, IID_IDispatch, &out), E_NOINTERFACE);
  EXPECT_TRUE(out == nullptr);

  ComPtr<IClassFactory> factory = Factory();
  ComPtr<IUnknown> outer = factory.As<IUnknown>(IID_IUnknown);
  ComPtr<IUnknown> addin;
  EXPECT_EQ(factory->CreateInstance(outer.get(), IID_IUnknown, addin.PutVoid()),
            CLASS_E_NOAGGREGATION);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
  ASSERT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, addin.PutVoid()), S_OK);
  EXPECT_TRUE(addin.As<com::IDTExtensibility2>(com::IID_IDTExtensibility2));
  EXPECT_TRUE(addin.As<IDispatch>(IID_IDispatch));
  ComPtr<IClassFactory> none;
  EXPECT_EQ(addin->QueryInterface(IID_IClassFactory, none.PutVoid()), E_NOINTERFACE);
  EXPECT_EQ(addin->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
  // One object: every interface leads back to the same IUnknown.
  const auto ribbon = addin.As<com::IRibbonExtensibility>(com::IID_IRibbonExtensibility);
  ASSERT_TRUE(ribbon);
  EXPECT_TRUE(ribbon.As<IUnknown>(IID_IUnknown).get() == addin.get());
}

TEST(ClassObject, TheDllUnloadsOnlyWhenNothingIsAlive) {
  // The earlier tests released everything they made.
  EXPECT_EQ(Dll().CanUnloadNow(), S_OK);
  ComPtr<IClassFactory> factory = Factory();
  EXPECT_EQ(Dll().CanUnloadNow(), S_FALSE);
  EXPECT_EQ(factory->LockServer(TRUE), S_OK);
  ComPtr<IUnknown> addin;
  ASSERT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, addin.PutVoid()), S_OK);
  factory.Reset();
  EXPECT_EQ(Dll().CanUnloadNow(), S_FALSE);
  addin.Reset();
  EXPECT_EQ(Dll().CanUnloadNow(), S_FALSE);  // still locked
  EXPECT_EQ(Factory()->LockServer(FALSE), S_OK);
  EXPECT_EQ(Dll().CanUnloadNow(), S_OK);
}

}  // namespace qvx::winetest
