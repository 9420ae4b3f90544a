// One add-in instance in one simulated host, driven as Outlook drives it:
// through the IDTExtensibility2 vtable.
//
//   WriteSettings({{L"DBChoice", L"1"}, {L"AutoSyncToDB", L"-1"}});
//   AddinSession session;                  // registered and created
//   session.Start();                       // OnConnection + OnStartupComplete
//   EXPECT_EQ(FinishedLaunches(), (std::vector<std::string>{"28"}));
//
// The host is the simulated world of sim/, shown to the DLL through IDispatch
// faces (platform/win32/dispatch_face.h), so that the DLL reaches it exactly
// as it reaches Outlook: by name through GetIDsOfNames/Invoke, events through
// connection points, failures as DISP_E_EXCEPTION with EXCEPINFO. Its
// Application.CreateObject records the ProgIDs it is asked for and creates
// nothing, as a host without those libraries does.
//
// The destructor shuts the add-in down (if the test did not) and releases
// it, so that a failed test leaves no window or sink behind for the next.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "com/office_interfaces.h"
#include "harness/addin_dll.h"
#include "sim/outlook.h"

namespace qvx::winetest {

class AddinSession {
 public:
  explicit AddinSession(sim::Outlook::Options options = {});
  ~AddinSession();

  sim::Outlook& world() { return world_; }
  // A simulated object by path from the Application ("Explorers", "" for the Application).
  std::shared_ptr<sim::SimObject> At(std::string_view path) { return world_.Resolve(path); }
  // What the add-in asked Application.CreateObject for.
  const std::vector<std::string>& createRequests() const { return *createRequests_; }
  com::IDTExtensibility2* addin() const { return addin_.get(); }
  // The add-in's IDispatch, where the host calls ribbon callbacks.
  ComPtr<IDispatch> Dispatch() const { return addin_.As<IDispatch>(IID_IDispatch); }

  HRESULT Connect();
  HRESULT StartupComplete() { return addin_->OnStartupComplete(&custom_); }
  // Connect and StartupComplete, REQUIRing S_OK from both.
  void Start();
  HRESULT BeginShutdown();
  HRESULT Disconnect();
  // The user clicks the ribbon button or backstage task `controlId`: Office
  // calls SubExecuteAction by name with an IRibbonControl of that Id.
  HRESULT ClickRibbon(const std::string& controlId);
  // Releases the add-in object (its last reference).
  void Release() { addin_.Reset(); }

 private:
  // Declared in the order of set-up: the add-in goes first, the world last.
  sim::Outlook world_;
  std::shared_ptr<std::vector<std::string>> createRequests_ =
      std::make_shared<std::vector<std::string>>();
  ComPtr<IDispatch> application_;
  ComPtr<IDispatch> addInInst_;  // the COMAddIn object handed over with the Application
  SAFEARRAY* custom_ = SafeArrayCreateVector(VT_VARIANT, 0, 0);  // no VARIANTs
  ComPtr<com::IDTExtensibility2> addin_;
  bool shutDown_ = false;
};

// Office's late-bound call: the member's id by GetIDsOfNames (a failure there
// is the answer), then Invoke as a method with the arguments last to first.
HRESULT InvokeByName(IDispatch* dispatch, std::wstring name, std::vector<VARIANT> argsLastFirst,
                     VARIANT* result = nullptr, EXCEPINFO* info = nullptr,
                     UINT* argError = nullptr);

// The add-in's listener window, found by its caption as the companion finds it.
HWND FindClientWindow();

// Runs tests/wine's poster, which finds the listener window by its caption
// from another process and posts the registered message `name` with `value`,
// as the companion does. Returns its exit code: 0 posted, 1 no window,
// 2 usage, 3 post failed.
DWORD PostFromAnotherProcess(const std::wstring& name, int value);

}  // namespace qvx::winetest
