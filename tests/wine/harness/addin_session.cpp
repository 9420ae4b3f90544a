#include "harness/addin_session.h"

#include "harness/check.h"
#include "harness/companion_journal.h"

namespace qvx::winetest {

AddinSession::AddinSession(sim::Outlook::Options options)
    : host_(std::move(options)), addin_(RegisterAndCreateAddin()) {}

AddinSession::~AddinSession() {
  if (addin_ && !shutDown_) {
    addin_->OnBeginShutdown(custom_.get());
    addin_->OnDisconnection(com::ext_dm_HostShutdown, custom_.get());
  }
  addin_.Reset();
}

ComPtr<IDispatch> AddinSession::Dispatch() const {
  ComPtr<IDispatch> dispatch;
  if (addin_) addin_->QueryInterface(IID_IDispatch, dispatch.PutVoid());
  return dispatch;
}

HRESULT AddinSession::Connect() {
  return addin_->OnConnection(host_.Application(), com::ext_cm_Startup, host_.AddInInst(),
                              custom_.get());
}

HRESULT AddinSession::StartupComplete() {
  return addin_->OnStartupComplete(custom_.get());
}

void AddinSession::Start() {
  REQUIRE_EQ(Connect(), S_OK);
  REQUIRE_EQ(StartupComplete(), S_OK);
}

HRESULT AddinSession::BeginShutdown() {
  shutDown_ = true;
  return addin_->OnBeginShutdown(custom_.get());
}

HRESULT AddinSession::Disconnect() {
  shutDown_ = true;
  return addin_->OnDisconnection(com::ext_dm_HostShutdown, custom_.get());
}

void AddinSession::Release() {
  addin_.Reset();
}

HWND FindClientWindow() {
  return FindWindowA(nullptr, kClientWindowCaptionA);
}

DWORD PostFromAnotherProcess(const std::wstring& name, int value) {
  std::wstring command =
      L"\"" + ProgramFolder() + L"qvx_post_message.exe\" " + name + L" " + std::to_wstring(value);
  command.push_back(L'\0');
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION process{};
  REQUIRE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW,
                         nullptr, nullptr, &startup, &process));
  CloseHandle(process.hThread);
  // The poster does not wait on us, but pump anyway: the window is ours.
  PumpUntil([&] { return WaitForSingleObject(process.hProcess, 0) == WAIT_OBJECT_0; }, 30000);
  DWORD code = STILL_ACTIVE;
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hProcess);
  return code;
}

}  // namespace qvx::winetest
