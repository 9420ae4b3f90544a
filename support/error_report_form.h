// frmErrorReport: the dialog of the first failure of the process, from which
// the user can mail its report. Constructing it is the form's load: height
// 3150 twips (the report frame out of view) and its fixed texts. ReportError
// then sets lblApplication, lblBuild and txtReport and shows it modally.
//
// Events: cmdViewReport toggles "View Report" (3150) and "Hide Report" (5535);
// cmdOpenEmail mails the text of txtReport, as the user may have edited it,
// for the user to send, lblSendDirectly sends it directly, and both unload;
// cmdCancel (also Esc) unloads; lblClickHere opens the error reporting
// policy page.
#pragma once

#include "platform/form_model.h"

namespace qvx {

class AddinState;

class frmErrorReport : public platform::FormModel {
 public:
  static constexpr int kCollapsedHeight = 3150;
  static constexpr int kExpandedHeight = 5535;

  explicit frmErrorReport(AddinState& s);

 private:
  void ViewReportClick() noexcept;
  void MailReport(bool direct) noexcept;
  void ClickHereClick() noexcept;

  AddinState& s_;
};

}  // namespace qvx
