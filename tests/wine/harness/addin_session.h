// One add-in instance in one simulated host, driven as Outlook drives it:
// through the IDTExtensibility2 vtable.
//
//   WriteSettings({{L"DBChoice", L"1"}, {L"AutoSyncToDB", L"-1"}});
//   AddinSession session;                  // registered and created
//   session.Start();                       // OnConnection + OnStartupComplete
//   CHECK_EQ(FinishedLaunches(), (std::vector<std::string>{"28"}));
//
// The destructor shuts the add-in down (if the test did not) and releases
// it, so that a failed test leaves no window or sink behind for the next.
#pragma once

#include <windows.h>

#include <string>

#include "com/office_interfaces.h"
#include "harness/addin_dll.h"
#include "harness/outlook_host.h"

namespace qvx::winetest {

inline constexpr wchar_t kClientWindowCaption[] = L"Client Window - Quorvix Client for Outlook";
inline constexpr char kClientWindowCaptionA[] = "Client Window - Quorvix Client for Outlook";

class AddinSession {
 public:
  explicit AddinSession(sim::Outlook::Options options = {});
  ~AddinSession();
  AddinSession(const AddinSession&) = delete;
  AddinSession& operator=(const AddinSession&) = delete;

  OutlookHost& host() { return host_; }
  sim::Outlook& world() { return host_.world(); }
  com::IDTExtensibility2* addin() const { return addin_.get(); }
  // The add-in's IDispatch, where the host calls ribbon callbacks.
  ComPtr<IDispatch> Dispatch() const;

  HRESULT Connect();
  HRESULT StartupComplete();
  // Connect and StartupComplete, REQUIRing S_OK from both.
  void Start();
  HRESULT BeginShutdown();
  HRESULT Disconnect();
  // Releases the add-in object (its last reference).
  void Release();

 private:
  OutlookHost host_;
  EmptyCustom custom_;
  ComPtr<com::IDTExtensibility2> addin_;
  bool shutDown_ = false;
};

// The add-in's listener window, found as the companion finds it.
HWND FindClientWindow();

// Runs tests/wine's poster, which finds the listener window by caption from
// another process and posts the registered message `name` with `value`.
// Returns its exit code: 0 posted, 1 no window, 2 usage, 3 post failed.
DWORD PostFromAnotherProcess(const std::wstring& name, int value);

}  // namespace qvx::winetest
