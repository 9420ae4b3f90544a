// frmErrorReport: the dialog of the first failure of the process, from which
// the user can mail its report. Constructing it is the form's load: height
// 3150 twips (the report frame out of view) and its fixed texts. ReportError
// then sets lblApplication, lblBuild and txtReport and shows it modally.
//
// Events: cmdViewReport toggles "View Report" (3150) and "Hide Report" (5535);
// cmdOpenEmail mails the text of txtReport, as the user may have edited it,
// for the user to send, lblSendDirectly sends it directly, and both unload;
// cmdCancel unloads; lblClickHere opens the error reporting policy page.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/form_model.h"

namespace qvx {

class AddinState;

class frmErrorReport : public platform::FormModel {
 public:
  static constexpr int kCollapsedHeight = 3150;
  static constexpr int kExpandedHeight = 5535;

  explicit frmErrorReport(AddinState& s);

  std::string Caption() const override { return "Unknown Exception"; }
  int Height() const override { return height_; }
  std::vector<platform::FormControl>& Controls() override { return controls_; }
  void OnEvent(std::string_view control, std::string_view event) override;
  bool Unloaded() const override { return unloaded_; }
  void OnClose() override { Unload(); }

  // The control by name; the form's controls are fixed, so never null for them.
  platform::FormControl& Control(std::string_view name);

 private:
  void Unload() { unloaded_ = true; }
  void ViewReportClick() noexcept;
  void MailReport(bool direct) noexcept;
  void ClickHereClick() noexcept;

  AddinState& s_;
  int height_ = kCollapsedHeight;
  bool unloaded_ = false;
  std::vector<platform::FormControl> controls_;
};

}  // namespace qvx
