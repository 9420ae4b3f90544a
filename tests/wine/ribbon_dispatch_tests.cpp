// The add-in's IDispatch as Office uses it for ribbon callbacks: a name from
// the markup through GetIDsOfNames, one at a time and in whatever case the
// markup spells it, then Invoke with the arguments last to first.
#include <windows.h>

#include <string>
#include <vector>

#include "harness/addin_session.h"
#include "harness/check.h"
#include "harness/companion_journal.h"
#include "harness/registry_keys.h"
#include "harness/ui_watcher.h"
#include "platform/win32/dispatch_face.h"
#include "sim/fake_object.h"

namespace qvx::winetest {
namespace {

// The callbacks the add-in's markup names.
const char* const kCallbackNames[] = {
    "OnLoad",           "getImages",        "getLabel",
    "GetVisible",       "GetEnabled",       "GetGroupVisibility",
    "GetItemCount",     "GetItemLabel",     "GetSelectedItemIndex",
    "OnActionDropDown", "SubExecuteAction", "GetContentXML",
    "ExecuteView"};

std::wstring OddCase(const std::string& name) {
  std::wstring out;
  for (size_t i = 0; i < name.size(); ++i) {
    const wchar_t c = static_cast<wchar_t>(name[i]);
    out.push_back(i % 2 ? static_cast<wchar_t>(towupper(c)) : static_cast<wchar_t>(towlower(c)));
  }
  return out;
}

HRESULT IdOf(IDispatch* dispatch, std::wstring name, DISPID& id) {
  LPOLESTR names[] = {name.data()};
  id = 0;
  return dispatch->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
}

HRESULT Call(IDispatch* dispatch, DISPID id, std::vector<VARIANT> argsLastFirst,
             VARIANT* result = nullptr) {
  DISPPARAMS params{argsLastFirst.empty() ? nullptr : argsLastFirst.data(), nullptr,
                    static_cast<UINT>(argsLastFirst.size()), 0};
  UINT argError = 0;
  return dispatch->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, result,
                          nullptr, &argError);
}

VARIANT NullObject() {
  VARIANT v;
  VariantInit(&v);
  v.vt = VT_DISPATCH;
  v.pdispVal = nullptr;
  return v;
}

// The callbacks the add-in answers to, by their names as the markup spells them.
std::vector<std::string> KnownCallbacks(IDispatch* dispatch) {
  std::vector<std::string> known;
  for (const char* name : kCallbackNames) {
    DISPID id = 0;
    if (SUCCEEDED(IdOf(dispatch, std::wstring(name, name + std::string(name).size()), id))) {
      known.push_back(name);
    }
  }
  return known;
}

std::wstring Wide(const std::string& s) {
  return std::wstring(s.begin(), s.end());
}

}  // namespace

WINE_TEST(RibbonDispatch, AnUnknownNameIsRefused) {
  AddinSession session;
  ComPtr<IDispatch> dispatch = session.Dispatch();
  REQUIRE(dispatch);
  DISPID id = 0;
  CHECK_EQ(IdOf(dispatch.get(), L"NoSuchCallback", id), DISP_E_UNKNOWNNAME);
  CHECK_EQ(id, DISPID_UNKNOWN);
  CHECK_EQ(Call(dispatch.get(), 424242, {}), DISP_E_MEMBERNOTFOUND);
}

WINE_TEST(RibbonDispatch, BadPointersAndArgumentsGiveErrors) {
  AddinSession session;
  ComPtr<IDispatch> dispatch = session.Dispatch();
  REQUIRE(dispatch);
  DISPID id = 0;
  std::wstring name = L"OnLoad";
  LPOLESTR names[] = {name.data()};
  LPOLESTR noName[] = {nullptr};
  CHECK_EQ(dispatch->GetIDsOfNames(IID_NULL, nullptr, 1, 0, &id), E_POINTER);
  CHECK_EQ(dispatch->GetIDsOfNames(IID_NULL, names, 1, 0, nullptr), E_POINTER);
  CHECK_EQ(dispatch->GetIDsOfNames(IID_NULL, noName, 1, 0, &id), E_POINTER);
  CHECK_EQ(dispatch->GetIDsOfNames(IID_IDispatch, names, 1, 0, &id), DISP_E_UNKNOWNINTERFACE);
  CHECK_EQ(dispatch->Invoke(1000, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
           E_POINTER);
  CHECK_EQ(dispatch->GetTypeInfoCount(nullptr), E_POINTER);
  UINT count = 7;
  CHECK_EQ(dispatch->GetTypeInfoCount(&count), S_OK);
  CHECK_EQ(count, 0u);
  CHECK_EQ(dispatch->GetTypeInfo(0, 0, nullptr), E_POINTER);

  com::IDTExtensibility2* addin = session.addin();
  CHECK_EQ(addin->OnConnection(nullptr, com::ext_cm_Startup, nullptr, nullptr), E_POINTER);
  ComPtr<com::IRibbonExtensibility> ribbon;
  REQUIRE_EQ(addin->QueryInterface(com::IID_IRibbonExtensibility, ribbon.PutVoid()), S_OK);
  win32::Bstr ribbonId(L"Microsoft.Outlook.Explorer");
  CHECK_EQ(ribbon->GetCustomUI(ribbonId.get(), nullptr), E_POINTER);
  // A ribbon the add-in does not customise: S_OK and no markup.
  win32::Bstr other(L"Microsoft.Outlook.Contact");
  BSTR markup = reinterpret_cast<BSTR>(1);
  CHECK_EQ(ribbon->GetCustomUI(other.get(), &markup), S_OK);
  CHECK(markup == nullptr);
  SysFreeString(markup);
}

WINE_TEST(RibbonDispatch, CallbacksResolveIgnoringCase) {
  AddinSession session;
  ComPtr<IDispatch> dispatch = session.Dispatch();
  REQUIRE(dispatch);
  const std::vector<std::string> known = KnownCallbacks(dispatch.get());
  REQUIRE(!known.empty());
  for (const std::string& name : known) {
    DISPID asWritten = 0;
    DISPID odd = 0;
    DISPID upper = 0;
    std::wstring shout = Wide(name);
    for (wchar_t& c : shout) c = static_cast<wchar_t>(towupper(c));
    CHECK_EQ(IdOf(dispatch.get(), Wide(name), asWritten), S_OK);
    CHECK_EQ(IdOf(dispatch.get(), OddCase(name), odd), S_OK);
    CHECK_EQ(IdOf(dispatch.get(), shout, upper), S_OK);
    if (!CHECK(asWritten > 0 && odd == asWritten && upper == asWritten)) Note(name);
    // Every callback takes the control (or the ribbon) first.
    if (!CHECK_EQ(Call(dispatch.get(), asWritten, {}), DISP_E_BADPARAMCOUNT)) Note(name);
    if (!CHECK_EQ(Call(dispatch.get(), asWritten, {NullObject()}), E_INVALIDARG)) Note(name);
  }
}

WINE_TEST(RibbonDispatch, OnLoadHandsTheRibbonToTheAddin) {
  WriteSettings({{L"DBChoice", L"1"}});
  ClearJournal();
  AddinSession session;
  session.Start();
  ComPtr<IDispatch> dispatch = session.Dispatch();
  REQUIRE(dispatch);
  DISPID onLoad = 0;
  REQUIRE_EQ(IdOf(dispatch.get(), L"oNlOaD", onLoad), S_OK);

  // Office's IRibbonUI, as a late-bound object of the host.
  auto ribbonUi = std::make_shared<sim::FakeObject>("IRibbonUI");
  ribbonUi->Method("Invalidate", 0, 0, [](sim::Args&) { return Variant(); })
      .Method("InvalidateControl", 1, 1, [](sim::Args&) { return Variant(); });
  ComPtr<IDispatch> face = win32::MakeDispatchFace(ribbonUi);
  VARIANT arg;
  VariantInit(&arg);
  arg.vt = VT_DISPATCH;
  arg.pdispVal = face.get();
  CHECK_EQ(Call(dispatch.get(), onLoad, {arg}), S_OK);

  // The manager's "settings changed" makes the add-in invalidate its ribbon.
  CHECK_EQ(PostFromAnotherProcess(L"ZNB_QVX_Manager", 0), 0u);
  CHECK(PumpUntil([&] { return ribbonUi->CallCount("Invalidate") >= 1; }));
  CHECK(Watcher().Take().empty());
  DeleteTree(kSettingsKey);
}

// A callback that fails without a trap of its own answers with the failure in
// EXCEPINFO, as Office expects of a failing callback; the add-in reports
// nothing itself.
WINE_TEST(RibbonDispatch, AnUntrappedFailureAnswersWithItsException) {
  AddinSession session;
  ComPtr<IDispatch> dispatch = session.Dispatch();
  REQUIRE(dispatch);
  DISPID onLoad = 0;
  REQUIRE_EQ(IdOf(dispatch.get(), L"OnLoad", onLoad), S_OK);
  VARIANT text;
  VariantInit(&text);
  text.vt = VT_BSTR;
  text.bstrVal = SysAllocString(L"not a ribbon");
  DISPPARAMS params{&text, nullptr, 1, 0};
  EXCEPINFO info{};
  UINT argError = 0;
  CHECK_EQ(dispatch->Invoke(onLoad, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params,
                            nullptr, &info, &argError),
           DISP_E_EXCEPTION);
  CHECK_EQ(info.wCode, 424);
  CHECK(info.bstrDescription != nullptr && SysStringLen(info.bstrDescription) > 0);
  SysFreeString(info.bstrSource);
  SysFreeString(info.bstrDescription);
  SysFreeString(info.bstrHelpFile);
  VariantClear(&text);

  // Two arguments where OnLoad takes one.
  VARIANT two[] = {NullObject(), NullObject()};
  two[1].vt = VT_I4;
  two[1].lVal = 1;
  CHECK_EQ(Call(dispatch.get(), onLoad, {two[0], two[1]}), DISP_E_BADPARAMCOUNT);
  CHECK(Watcher().Take().empty());
}

}  // namespace qvx::winetest
