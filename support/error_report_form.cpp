#include "support/error_report_form.h"

#include "addin/state.h"
#include "core/failure.h"
#include "support/endpoints.h"
#include "support/error_reporting.h"
#include "support/file_module.h"
#include "support/outlook_session.h"

namespace qvx {
namespace {

// The three handlers that mail or toggle share one label, as they always have.
constexpr std::string_view kHandlerLabel = "fErrorReport.lblSendDirectly.Click";

platform::FormControl MakeControl(std::string name, std::string kind, std::string caption) {
  platform::FormControl c;
  c.name = std::move(name);
  c.kind = std::move(kind);
  c.caption = std::move(caption);
  return c;
}

}  // namespace

frmErrorReport::frmErrorReport(AddinState& s) : s_(s) {
  controls_ = {
      MakeControl("lblBuild", "label", ""),
      MakeControl("txtReport", "textbox", ""),
      MakeControl("cmdViewReport", "button", "View Report"),
      MakeControl("cmdCancel", "button", "Cancel"),
      MakeControl("lblApplication", "label", ""),
      MakeControl("lblCommentFirst", "label",
                  "An unknown exception has occured. A report on the exception has been "
                  "generated. It is highly recommended that you send this report to us to "
                  "help diagnose the exception."),
      MakeControl("lblCommentSecond", "label",
                  "The information contained in this report is taken from this application for "
                  "quality control only, not for marketing purposes or for monitoring "
                  "individual users or machines. You can opt to view the detail of the report "
                  "by clicking 'View Report' button."),
      MakeControl("lblClickHere", "label", "click here."),
      MakeControl("cmdOpenEmail", "button", "Open Email"),
      MakeControl("lblLearn", "label", "To learn more about the error reporting,"),
      MakeControl("frameReport", "frame", "Exception Report"),
      MakeControl("lblSendDirectly", "button", "Send directly"),
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
    if (s_.main.objOutlook.IsNothing()) EnsureOutlookSession(s_, kFolderInbox);
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
