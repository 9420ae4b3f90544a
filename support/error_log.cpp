// The current action and the trace log. The log is off for good: nothing
// sets the trace flag, so these only record the action text.
#include "core/dates.h"
#include "core/scope_exit.h"
#include "state/addin_state.h"
#include "support/app_texts.h"
#include "support/error_reporting.h"
#include "support/file_module.h"

namespace qvx {

void SetCurrentAction(AddinState& s, std::string_view text) noexcept {
  Trapped(s, "strCurrentAction", [&](Line& line) {
    line = 10;
    s.support.strCurrentAction = std::string(text);
    line = 20;
    if (s.support.traceFlag) WriteToLog(s, text);
  });
}

void WriteToLog(AddinState& s, std::string_view text) noexcept {
  // Finding the log makes the file object, which records an action, which logs.
  if (s.support.writingLog) return;
  s.support.writingLog = true;
  ScopeExit done([&]() noexcept { s.support.writingLog = false; });
  std::string path;
  IgnoreFailure(s.err, [&] { path = fncGetLogFile(s); });
  if (!text.empty() && !path.empty()) {
    IgnoreFailure(s.err, [&] {
      std::string entry = DateToText(s.system().Now());
      entry.append("\t").append(text).append("\r\n");
      s.system().AppendToFile(path, entry);
    });
    s.err.Clear();
  }
}

std::string fncGetLogFolder(AddinState& s) noexcept {
  return TrappedResult<std::string>(s, "fncGetLogFolder", [&](Line& line, std::string& result) {
    line = 10;
    FileModule::Initialize(s);
    line = 20;
    const Object fso = s.support.objFSO;
    if (fso.IsNothing()) return;
    std::string folder;
    IgnoreFailure(s.err, [&] {
      folder = RemoveTrailingSlash(s, GetSpecialFolder(s, 5, 0)) + "\\Marlstone Data\\";
    });
    if (!s.err.pending()) {
      IgnoreFailure(s.err, [&] {
        if (!fso.Call("FolderExists", {Variant(folder)}).ToBoolean()) {
          fso.Call("CreateFolder", {Variant(folder)});
        }
      });
    }
    s.err.Clear();
    result = folder;
  });
}

std::string fncGetLogFile(AddinState& s) noexcept {
  return TrappedResult<std::string>(s, "fncGetLogFile", [&](Line& line, std::string& result) {
    line = 10;
    const std::string folder = fncGetLogFolder(s);
    line = 20;
    if (!folder.empty()) result = folder + std::string(kMessageTitle) + ".log.txt";
  });
}

}  // namespace qvx
