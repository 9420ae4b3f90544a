// The real add-in DLL as Office's ribbon reaches it: GetCustomUI through
// IRibbonExtensibility, and each callback by the name the markup spells
// through the add-in's GetIDsOfNames and Invoke, arguments last to first.
// It is the simulated ribbon host's RibbonAddin, so the same calls can come
// from a test or from that host.
//
//   DllRibbonAddin ribbon(session);
//   std::vector<Variant> args{Variant(control)};
//   Variant count;
//   EXPECT_TRUE(ribbon.Call("GetItemCount", args, count) == CallbackOutcome::Done);
//   EXPECT_EQ(ribbon.Rows(RibbonControl("cboProjectCal", explorer)), names);
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "harness/addin_session.h"
#include "sim/ribbon/ribbon_addin.h"

namespace qvx::winetest {

class DllRibbonAddin : public sim::RibbonAddin {
 public:
  explicit DllRibbonAddin(AddinSession& session) : session_(session) {}
  std::string GetCustomUI(std::string_view ribbonId) override;
  // An unknown name, a refused argument list and a failure come back as the
  // outcomes the host knows.
  CallbackOutcome Call(std::string_view name, std::vector<Variant>& args, Variant& result) override;
  // The labels of a drop-down's rows, asked as Office asks them.
  std::vector<std::string> Rows(const Object& control);

 private:
  AddinSession& session_;
};

// Office's IRibbonControl for a control of a ribbon whose window is `context`.
Object RibbonControl(const std::string& id, const Object& context, const std::string& tag = "");

}  // namespace qvx::winetest
