#include "support/error_report_form.h"

#include "core/failure.h"
#include "core/host_constants.h"
#include "core/variant.h"
#include "state/addin_state.h"
#include "support/endpoints.h"
#include "support/error_reporting.h"
#include "support/file_module.h"
#include "support/outlook_session.h"

namespace qvx {
namespace {

// The three handlers that mail or toggle share one label, as they always have.
constexpr std::string_view kHandlerLabel = "fErrorReport.lblSendDirectly.Click";

constexpr int kWidth = 7020;  // twips

std::vector<platform::FormControl> Layout() {
  using platform::MakeControl;
  using platform::Placed;
  namespace kind = platform::kind;
  platform::FormControl report = MakeControl("txtReport", kind::kTextBox, "");
  report.multiLine = true;
  platform::FormControl cancel = MakeControl("cmdCancel", kind::kButton, "Cancel");
  cancel.isCancel = true;
  // The report's frame lies below 3150 twips, out of view until expanded.
  return {
      Placed(MakeControl("lblBuild", kind::kLabel, ""), 4860, 120, 2040, 255),
      Placed(std::move(report), 240, 3030, 6540, 1680),
      Placed(MakeControl("cmdViewReport", kind::kButton, "View Report"), 120, 2280, 1440, 360),
      Placed(std::move(cancel), 5460, 2280, 1440, 360),
      Placed(MakeControl("lblApplication", kind::kLabel, ""), 120, 120, 4620, 255),
      Placed(MakeControl("lblCommentFirst", kind::kLabel,
                         "An unknown exception has occured. A report on the exception has been "
                         "generated. It is highly recommended that you send this report to us to "
                         "help diagnose the exception."),
             120, 480, 6780, 600),
      Placed(MakeControl("lblCommentSecond", kind::kLabel,
                         "The information contained in this report is taken from this "
                         "application for quality control only, not for marketing purposes or "
                         "for monitoring individual users or machines. You can opt to view the "
                         "detail of the report by clicking 'View Report' button."),
             120, 1140, 6780, 780),
      Placed(MakeControl("lblClickHere", kind::kLabel, "click here."), 3900, 1950, 1200, 255),
      Placed(MakeControl("cmdOpenEmail", kind::kButton, "Open Email"), 3900, 2280, 1440, 360),
      Placed(MakeControl("lblLearn", kind::kLabel, "To learn more about the error reporting,"), 120,
             1950, 3780, 255),
      Placed(MakeControl("frameReport", kind::kFrame, "Exception Report"), 120, 2790, 6780, 2040),
      Placed(MakeControl("lblSendDirectly", kind::kButton, "Send directly"), 2340, 2280, 1440, 360),
  };
}

}  // namespace

frmErrorReport::frmErrorReport(AddinState& s)
    : FormModel("Unknown Exception", kCollapsedHeight, Layout()), s_(s) {
  SetWidth(kWidth);
  On("cmdViewReport", "Click", [this](EventArgs&) { ViewReportClick(); });
  On("cmdOpenEmail", "Click", [this](EventArgs&) { MailReport(false); });
  On("lblSendDirectly", "Click", [this](EventArgs&) { MailReport(true); });
  On("cmdCancel", "Click", [this](EventArgs&) { Unload(); });
  On("lblClickHere", "Click", [this](EventArgs&) { ClickHereClick(); });
}

void frmErrorReport::ViewReportClick() noexcept {
  Trapped(s_, kHandlerLabel, [&](Line& line) {
    line = 10;
    const Object button = Control("cmdViewReport");
    if (button.Get("Caption").ToText() != "View Report") {
      line = 20;
      button.Put("Caption", Variant("View Report"));
      SetHeight(kCollapsedHeight);
    } else {
      line = 30;
      button.Put("Caption", Variant("Hide Report"));
      SetHeight(kExpandedHeight);
    }
  });
}

void frmErrorReport::MailReport(bool direct) noexcept {
  Trapped(s_, kHandlerLabel, [&](Line& line) {
    line = 10;
    if (s_.main.objOutlook.IsNothing()) EnsureOutlookSession(s_, host::olFolderInbox);
    line = 20;
    const std::string report = Control("txtReport").Get("Text").ToText();
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
