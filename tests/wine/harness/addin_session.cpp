#include "harness/addin_session.h"

#include "harness/check.h"
#include "harness/companion_journal.h"
#include "platform/win32/dispatch_face.h"
#include "sim/fake_object.h"

namespace qvx::winetest {

AddinSession::AddinSession(sim::Outlook::Options options) : world_(std::move(options)) {
  world_.SetCreateObject([requests = createRequests_](std::string_view progId) {
    requests->emplace_back(progId);
    return Object();
  });
  application_ = win32::MakeDispatchFace(world_.Application().shared());
  auto addIn = std::make_shared<sim::FakeObject>("COMAddIn");
  addIn->ReadOnly("ProgId", Variant("QVX_C.QVXClientDLL"))
      .ReadOnly("Description", Variant("Quorvix Client for Outlook"))
      .Property("Connect", Variant(true));
  addInInst_ = win32::MakeDispatchFace(addIn);
  REQUIRE(Dll().Register() == S_OK);
  addin_ = CreateRegisteredAddin();
}

AddinSession::~AddinSession() {
  if (addin_ && !shutDown_) {
    addin_->OnBeginShutdown(&custom_);
    addin_->OnDisconnection(com::ext_dm_HostShutdown, &custom_);
  }
  addin_.Reset();
  SafeArrayDestroy(custom_);
}

HRESULT AddinSession::Connect() {
  return addin_->OnConnection(application_.get(), com::ext_cm_Startup, addInInst_.get(), &custom_);
}

void AddinSession::Start() {
  REQUIRE(Connect() == S_OK);
  REQUIRE(StartupComplete() == S_OK);
}

HRESULT AddinSession::ClickRibbon(const std::string& controlId) {
  auto control = std::make_shared<sim::FakeObject>("IRibbonControl");
  control->ReadOnly("Id", Variant(controlId));
  const ComPtr<IDispatch> face = win32::MakeDispatchFace(control);
  VARIANT argument{};
  argument.vt = VT_DISPATCH;
  argument.pdispVal = face.get();
  return InvokeByName(Dispatch().get(), L"SubExecuteAction", {argument});
}

HRESULT AddinSession::BeginShutdown() {
  shutDown_ = true;
  return addin_->OnBeginShutdown(&custom_);
}

HRESULT AddinSession::Disconnect() {
  shutDown_ = true;
  return addin_->OnDisconnection(com::ext_dm_HostShutdown, &custom_);
}

HRESULT InvokeByName(IDispatch* dispatch, std::wstring name, std::vector<VARIANT> argsLastFirst,
                     VARIANT* result, EXCEPINFO* info, UINT* argError) {
  LPOLESTR names[] = {name.data()};
  DISPID id = DISPID_UNKNOWN;
  if (const HRESULT hr = dispatch->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
      FAILED(hr)) {
    return hr;
  }
  DISPPARAMS params{argsLastFirst.data(), nullptr, static_cast<UINT>(argsLastFirst.size()), 0};
  UINT unused = 0;
  return dispatch->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &params, result, info,
                          argError ? argError : &unused);
}

HWND FindClientWindow() {
  return FindWindowA(nullptr, "Client Window - Quorvix Client for Outlook");
}

DWORD PostFromAnotherProcess(const std::wstring& name, int value) {
  return RunAndWait(L"\"" + ProgramFolder() + L"qvx_post_message.exe\" " + name + L" " +
                    std::to_wstring(value));
}

}  // namespace qvx::winetest
