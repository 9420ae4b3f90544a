// The test program playing Outlook: the simulated host world of sim/, shown
// to the add-in DLL through IDispatch faces (platform/win32/dispatch_face.h),
// so that the DLL reaches it exactly as it reaches Outlook: by name through
// GetIDsOfNames/Invoke, events through connection points, failures as
// DISP_E_EXCEPTION with EXCEPINFO.
//
//   OutlookHost host;                        // one explorer on the Inbox
//   host.world().FailAt("ActiveExplorer", 1004, "refused");
//   addin->OnConnection(host.Application(), ext_cm_Startup, host.AddInInst(), &custom);
//
// Application.CreateObject records the ProgIDs it is asked for and creates
// nothing, as a host without those libraries does.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/win32/win_handles.h"
#include "sim/outlook.h"

namespace qvx::winetest {

class OutlookHost {
 public:
  explicit OutlookHost(sim::Outlook::Options options = {});
  ~OutlookHost();
  OutlookHost(const OutlookHost&) = delete;
  OutlookHost& operator=(const OutlookHost&) = delete;

  sim::Outlook& world() { return *world_; }
  // The Application's IDispatch, as OnConnection receives it.
  IDispatch* Application() const { return application_.get(); }
  // The COMAddIn object the host hands over with it.
  IDispatch* AddInInst() const { return addInInst_.get(); }
  // What the add-in asked Application.CreateObject for.
  const std::vector<std::string>& createRequests() const { return *createRequests_; }

  // A simulated object by path from the Application ("Explorers", "" for the Application).
  std::shared_ptr<sim::SimObject> At(std::string_view path) { return world_->Resolve(path); }

 private:
  std::unique_ptr<sim::Outlook> world_;
  std::shared_ptr<std::vector<std::string>> createRequests_ =
      std::make_shared<std::vector<std::string>>();
  win32::ComPtr<IDispatch> application_;
  win32::ComPtr<IDispatch> addInInst_;
};

// A SAFEARRAY of no VARIANTs, for the `custom` argument of the add-in events.
class EmptyCustom {
 public:
  EmptyCustom() : array_(SafeArrayCreateVector(VT_VARIANT, 0, 0)) {}
  ~EmptyCustom() {
    if (array_) SafeArrayDestroy(array_);
  }
  EmptyCustom(const EmptyCustom&) = delete;
  EmptyCustom& operator=(const EmptyCustom&) = delete;
  SAFEARRAY** get() { return &array_; }

 private:
  SAFEARRAY* array_;
};

}  // namespace qvx::winetest
