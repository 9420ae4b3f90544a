// An add-in state on the Windows platform of this process, over a simulated
// host in this process, without the DLL: for the dialogs that no call of a
// host brings up yet. Settings come from the real registry (WriteSettings
// first); failures are recorded by label instead of being reported.
//
//   WriteSettings({{L"DBChoice", L"1"}});
//   LocalAddin local;
//   frmFields form(local.s);
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/win32/win32_api.h"  // first: it takes back the macros that hide names
#include "platform/win32/win32_platform.h"
#include "sim/outlook.h"
#include "state/addin_state.h"

namespace qvx::winetest {

class LocalAddin {
 public:
  LocalAddin();
  ~LocalAddin();

  sim::Outlook host;

 private:
  std::unique_ptr<win32::Win32Platform> platform_ = std::make_unique<win32::Win32Platform>();

 public:
  AddinState s{platform_->Get()};
  // The labels of the failures trapped so far.
  std::shared_ptr<std::vector<std::string>> failures = std::make_shared<std::vector<std::string>>();
};

}  // namespace qvx::winetest
