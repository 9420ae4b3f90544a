// The central failure handler, the mailing of its report and the trace log.
//
// Every trapped procedure ends in ReportError (through AddinState, the
// FailureSink of core/trap.h). Only the first report in the life of the
// process is shown, in the modal dialog frmErrorReport; every later one is
// dropped without trace. The report reads, each line ended by CR LF:
//
//   At Line: 120
//   In Function: Main.ReportToDB
//   Source: <the pending error's source>
//   Exception Number: 91
//   Exception Description: Object variable or With block variable not set
//
// The trace log stays off: nothing sets its flag, so SetCurrentAction only
// records the text and no log file or folder is ever made.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qvx {

class AddinState;

// The report text, as above.
std::string BuildErrorReport(int line, std::string_view label, std::string_view source,
                             int32_t number, std::string_view description);

// Shows the report of the first failure of the process; later ones are dropped.
// A failure inside it is cleared and ends it silently.
void ReportError(AddinState& s, const std::string& description, int32_t number, int line,
                 std::string_view label, bool allowDirectSend) noexcept;

// Mails a report through the host: opens it for the user to send, or with
// `direct` sends it through the mail library. Failures are ignored; a failure
// left at the end shows "Failed to send error email using MS Outlook!".
void SendErrorReport(AddinState& s, const std::string& report, bool direct) noexcept;

// Records the action under way; written to the log only with the trace flag.
void SetCurrentAction(AddinState& s, std::string_view text) noexcept;
// Appends "<now>\t<text>" to the log file. Failures are ignored.
void WriteToLog(AddinState& s, std::string_view text) noexcept;
// "<documents>\Marlstone Data\", made if missing; "" without a file system object.
std::string fncGetLogFolder(AddinState& s) noexcept;
// The log folder and "Quorvix Client Addin.log.txt", or "".
std::string fncGetLogFile(AddinState& s) noexcept;

// The add-in's version, "major.minor.revision", unpadded.
std::string GetVersionText();

// ShellExecute of a target that leaves any failure pending for the caller
// (the help commands' wrapper; FileModule's ShellOpen clears it).
void ShellOpenLeavingError(AddinState& s, std::string_view target) noexcept;

}  // namespace qvx
