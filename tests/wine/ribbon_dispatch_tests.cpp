// The add-in's IDispatch as Office uses it for ribbon callbacks: a name from
// the markup through GetIDsOfNames, in whatever case the markup spells it,
// then Invoke with the arguments last to first.
#include <windows.h>

#include <string>
#include <vector>

#include "harness/addin_session.h"
#include "harness/check.h"
#include "harness/registry_keys.h"
#include "harness/ui_watcher.h"

namespace qvx::winetest {
namespace {

VARIANT Arg(VARTYPE type, IDispatch* object = nullptr) {
  VARIANT v{};
  v.vt = type;
  v.pdispVal = object;
  return v;
}

}  // namespace

TEST(RibbonDispatch, BadNamesPointersAndArgumentsGiveErrors) {
  AddinSession session;
  ComPtr<IDispatch> dispatch = session.Dispatch();
  ASSERT_TRUE(dispatch);
  IDispatch* d = dispatch.get();
  DISPID id = 0;
  std::wstring name = L"OnLoad";
  LPOLESTR names[] = {name.data()};
  LPOLESTR noName[] = {nullptr};
  LPOLESTR unknown[] = {const_cast<LPOLESTR>(L"NoSuchCallback")};
  EXPECT_EQ(d->GetIDsOfNames(IID_NULL, unknown, 1, 0, &id), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(id, DISPID_UNKNOWN);
  VARIANT number = Arg(VT_I4);
  DISPPARAMS params{&number, nullptr, 1, 0};
  UINT unused = 0;
  EXPECT_EQ(d->Invoke(424242, IID_NULL, 0, DISPATCH_METHOD, &params, nullptr, nullptr, &unused),
            DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(d->Invoke(1000, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
            E_POINTER);
  EXPECT_EQ(d->GetIDsOfNames(IID_NULL, nullptr, 1, 0, &id), E_POINTER);
  EXPECT_EQ(d->GetIDsOfNames(IID_NULL, names, 1, 0, nullptr), E_POINTER);
  EXPECT_EQ(d->GetIDsOfNames(IID_NULL, noName, 1, 0, &id), E_POINTER);
  EXPECT_EQ(d->GetIDsOfNames(IID_IDispatch, names, 1, 0, &id), DISP_E_UNKNOWNINTERFACE);
  EXPECT_EQ(d->GetTypeInfoCount(nullptr), E_POINTER);
  UINT count = 7;
  EXPECT_EQ(d->GetTypeInfoCount(&count), S_OK);
  EXPECT_EQ(count, 0u);
  EXPECT_EQ(d->GetTypeInfo(0, 0, nullptr), E_POINTER);

  // OnLoad by any casing, with too few or too many arguments or one of the wrong type.
  for (const wchar_t* casing : {L"onload", L"ONLOAD", L"oNlOaD"}) {
    EXPECT_EQ(InvokeByName(d, casing, {}), DISP_E_BADPARAMCOUNT);
  }
  EXPECT_EQ(InvokeByName(d, name, {Arg(VT_DISPATCH)}), E_INVALIDARG);  // a null object
  EXPECT_EQ(InvokeByName(d, name, {Arg(VT_I4), Arg(VT_I4)}), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(InvokeByName(d, name, {Arg(VT_RECORD)}), DISP_E_TYPEMISMATCH);
  // The callbacks take no optional argument: an omitted one is refused, and named.
  VARIANT omitted = Arg(VT_ERROR);
  omitted.scode = DISP_E_PARAMNOTFOUND;
  UINT argError = 99;
  EXPECT_EQ(InvokeByName(d, name, {omitted}, nullptr, nullptr, &argError), DISP_E_PARAMNOTFOUND);
  EXPECT_EQ(argError, 0u);

  com::IDTExtensibility2* addin = session.addin();
  EXPECT_EQ(addin->OnConnection(nullptr, com::ext_cm_Startup, nullptr, nullptr), E_POINTER);
  ComPtr<com::IRibbonExtensibility> ribbon;
  ASSERT_EQ(addin->QueryInterface(com::IID_IRibbonExtensibility, ribbon.PutVoid()), S_OK);
  win32::Bstr explorer(L"Microsoft.Outlook.Explorer");
  EXPECT_EQ(ribbon->GetCustomUI(explorer.get(), nullptr), E_POINTER);
  // A ribbon the add-in does not customise: S_OK and no markup.
  win32::Bstr contact(L"Microsoft.Outlook.Contact");
  BSTR markup = reinterpret_cast<BSTR>(1);
  EXPECT_EQ(ribbon->GetCustomUI(contact.get(), &markup), S_OK);
  EXPECT_TRUE(markup == nullptr);
}

// A callback that fails without a trap of its own answers with the failure in
// EXCEPINFO, as Office expects of a failing callback; the add-in reports
// nothing itself.
TEST(RibbonDispatch, AnUntrappedFailureAnswersWithItsException) {
  AddinSession session;
  win32::Bstr notARibbon(L"not a ribbon");
  VARIANT text = Arg(VT_BSTR);
  text.bstrVal = notARibbon.get();
  EXCEPINFO info{};
  EXPECT_EQ(InvokeByName(session.Dispatch().get(), L"OnLoad", {text}, nullptr, &info),
            DISP_E_EXCEPTION);
  EXPECT_EQ(info.wCode, 424);
  EXPECT_TRUE(SysStringLen(info.bstrDescription) > 0);
  SysFreeString(info.bstrSource);
  SysFreeString(info.bstrDescription);
  SysFreeString(info.bstrHelpFile);
  EXPECT_TRUE(Watcher().Take().empty());
}

// The backstage's About task opens the about box as a real window, with the
// build, the tool's name and the picture from the DLL's resources.
TEST(RibbonDispatch, TheAboutTaskOpensTheAboutBox) {
  WriteSettings({{L"DBChoice", L"1"}});
  AddinSession session;
  session.Start();
  EXPECT_EQ(session.ClickRibbon("cmdAbout"), S_OK);
  const std::vector<SeenDialog> seen = Watcher().Take();
  ASSERT_EQ(seen.size(), size_t{1});
  EXPECT_TRUE(seen[0].caption == L"About" && !seen[0].messageBox);
  EXPECT_TRUE(seen[0].Shows(L"Quorvix for Outlook") && seen[0].Shows(L"Build 1."));
  EXPECT_EQ(seen[0].pictures, 1);
}

}  // namespace qvx::winetest
