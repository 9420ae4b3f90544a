// The central failure handler and the mailing of its report.
#include "support/error_reporting.h"

#include "core/host_constants.h"
#include "platform/user_interface.h"
#include "state/addin_state.h"
#include "support/app_texts.h"
#include "support/endpoints.h"
#include "support/error_report_form.h"
#include "support/mail_library.h"
#include "support/outlook_session.h"

namespace qvx {

namespace {}  // namespace

std::string BuildErrorReport(int line, std::string_view label, std::string_view source,
                             int32_t number, std::string_view description) {
  std::string report;
  report.append("At Line: ").append(std::to_string(line)).append("\r\n");
  report.append("In Function: ").append(label).append("\r\n");
  report.append("Source: ").append(source).append("\r\n");
  report.append("Exception Number: ").append(std::to_string(number)).append("\r\n");
  report.append("Exception Description: ").append(description).append("\r\n");
  return report;
}

std::string GetVersionText() {
  return std::to_string(QVX_VERSION_MAJOR) + "." + std::to_string(QVX_VERSION_MINOR) + "." +
         std::to_string(QVX_VERSION_PATCH);
}

void ReportError(AddinState& s, const std::string& description, int32_t number, int line,
                 std::string_view label, bool allowDirectSend) noexcept {
  if (s.support.firstReportShown) return;
  try {
    // The session helper clears the pending error, so its source is taken first.
    const std::string source = s.err.source;
    EnsureOutlookSession(s, host::olFolderInbox);
    const std::string report = BuildErrorReport(line, label, source, number, description);
    s.support.firstReportShown = true;
    frmErrorReport form(s);
    if (!allowDirectSend) form.Control("lblSendDirectly").visible = false;
    form.Control("lblApplication").caption = std::string(kMessageTitle);
    form.Control("lblBuild").caption = "Build " + GetVersionText();
    form.Control("txtReport").text = report;
    s.ui().ShowModal(form);
  } catch (...) {
    s.err.Clear();
  }
}

void SendErrorReport(AddinState& s, const std::string& report, bool direct) noexcept {
  if (s.main.objOutlook.IsNothing()) {
    EnsureOutlookSession(s, host::olFolderInbox);
    if (s.main.objOutlook.IsNothing()) return;
  }
  Object mail;
  IgnoreFailure(s.err, [&] {
    mail = s.main.objOutlook.Call("CreateItem", {Variant(host::olMailItem)}).ToObject();
  });
  IgnoreFailure(s.err, [&] { mail.Put("To", Variant(std::string(kErrorReportMailAddress))); });
  IgnoreFailure(s.err, [&] {
    mail.Put("Subject",
             Variant("Exception (" + GetVersionText() + ") : " + std::string(kMessageTitle)));
  });
  IgnoreFailure(s.err, [&] { mail.Put("Body", Variant(report)); });
  if (!direct) {
    IgnoreFailure(s.err, [&] { mail.Call("Save"); });
    IgnoreFailure(s.err, [&] { mail.Call("Display"); });
    s.err.Clear();
  } else {
    // The mail library clears what it meets; an earlier failure still counts.
    const ErrorState earlier = s.err;
    IgnoreFailure(s.err, [&] { SendEmailDirectly(s, mail); });
    if (!s.err.pending()) s.err = earlier;
  }
  mail = Object();
  if (s.err.pending()) {
    IgnoreFailure(s.err, [&] {
      s.ui().MessageBox("Failed to send error email using MS Outlook!", platform::msgbox::kCritical,
                        kMessageTitle);
    });
  }
  s.err.Clear();
}

}  // namespace qvx
