#include "support/error_report_form.h"

#include "core/failure.h"
#include "core/host_constants.h"
#include "state/addin_state.h"
#include "support/endpoints.h"
#include "support/error_reporting.h"
#include "support/file_module.h"
#include "support/outlook_session.h"

namespace qvx {
namespace {

// The three handlers that mail or toggle share one label, as they always have.
constexpr std::string_view kHandlerLabel = "fErrorReport.lblSendDirectly.Click";

}  // namespace

frmErrorReport::frmErrorReport(AddinState& s) : s_(s) {
  controls_ = {
      platform::MakeControl("lblBuild", "label", ""),
      platform::MakeControl("txtReport", "textbox", ""),
      platform::MakeControl("cmdViewReport", "button", "View Report"),
      platform::MakeControl("cmdCancel", "button", "Cancel"),
      platform::MakeControl("lblApplication", "label", ""),
      platform::MakeControl(
          "lblCommentFirst", "label",
          "An unknown exception has occured. A report on the exception has been "
          "generated. It is highly recommended that you send this report to us to "
          "help diagnose the exception."),
      platform::MakeControl(
          "lblCommentSecond", "label",
          "The information contained in this report is taken from this application for "
          "quality control only, not for marketing purposes or for monitoring "
          "individual users or machines. You can opt to view the detail of the report "
          "by clicking 'View Report' button."),
      platform::MakeControl("lblClickHere", "label", "click here."),
      platform::MakeControl("cmdOpenEmail", "button", "Open Email"),
      platform::MakeControl("lblLearn", "label", "To learn more about the error reporting,"),
      platform::MakeControl("frameReport", "frame", "Exception Report"),
      platform::MakeControl("lblSendDirectly", "button", "Send directly"),
  };
  height_ = kCollapsedHeight;
}

platform::FormControl& frmErrorReport::Control(std::string_view name) {
  platform::FormControl* c = Find(name);
  if (c == nullptr) throw Failure::Runtime(err::kInvalidProcedureCall);
  return *c;
}

void frmErrorReport::OnEvent(std::string_view control, std::string_view event) {
  if (event != "Click") return;
  if (control == "cmdViewReport") {
    ViewReportClick();
  } else if (control == "cmdOpenEmail") {
    MailReport(false);
  } else if (control == "lblSendDirectly") {
    MailReport(true);
  } else if (control == "cmdCancel") {
    Unload();
  } else if (control == "lblClickHere") {
    ClickHereClick();
  }
}

void frmErrorReport::ViewReportClick() noexcept {
  Trapped(s_, kHandlerLabel, [&](Line& line) {
    line = 10;
    platform::FormControl& button = Control("cmdViewReport");
    if (button.caption != "View Report") {
      line = 20;
      button.caption = "View Report";
      height_ = kCollapsedHeight;
    } else {
      line = 30;
      button.caption = "Hide Report";
      height_ = kExpandedHeight;
    }
  });
}

void frmErrorReport::MailReport(bool direct) noexcept {
  Trapped(s_, kHandlerLabel, [&](Line& line) {
    line = 10;
    if (s_.main.objOutlook.IsNothing()) EnsureOutlookSession(s_, host::olFolderInbox);
    line = 20;
    const std::string report = Control("txtReport").text;
    line = 30;
    SendErrorReport(s_, report, direct);
    line = 40;
    Unload();
  });
}

void frmErrorReport::ClickHereClick() noexcept {
  FileModule::RunApp(s_, ProductWebPage("/support/ErrorReportingPolicy.asp"), "", "");
}

}  // namespace qvx
