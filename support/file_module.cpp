#include "support/file_module.h"

#include "core/text.h"
#include "platform/user_interface.h"
#include "state/addin_state.h"
#include "support/app_texts.h"
#include "support/error_reporting.h"
#include "support/outlook_session.h"
#include "support/scripting.h"

namespace qvx::FileModule {
namespace {

// Through the file system object while there is one; without it the platform
// answers, so that a process whose object could not be made still launches.
bool PathExists(AddinState& s, const std::string& path) {
  if (s.support.objFSO) return s.support.objFSO.Call("FileExists", {Variant(path)}).ToBoolean();
  return s.system().FileExists(path);
}

// Runs `target` by the shell object when there is one, else opens it by the shell.
void RunOrOpen(AddinState& s, const Object& shell, const std::string& target, bool withStyle) {
  IgnoreFailure(s.err, [&] {
    if (shell) {
      if (withStyle) {
        shell.Call("Run", {Variant(target), Variant(int32_t{1})});
      } else {
        shell.Call("Run", {Variant(target)});
      }
    } else {
      ShellOpen(s, target);
    }
  });
}

}  // namespace

void RunApp(AddinState& s, std::string_view strName, std::string_view strParameters,
            std::string_view strFolder) noexcept {
  SetCurrentAction(s,
                   "Attempting to execute " + std::string(strName) + " " + std::string(strFolder));
  Trapped(s, "FileModule.RunApp", [&](Line& line) {
    line = 10;
    Object shell = Scripting::GetWS(s);
    line = 20;
    // Only the first four letters decide: "Mailbox" is a link too.
    const std::string head = UCase(Left(strName, 4));
    if (head == "HTTP" || head == "MAIL") {
      line = 90;
      RunOrOpen(s, shell, std::string(strName), false);
      s.err.Clear();
    } else {
      line = 30;
      std::string path;
      const std::string exe = "\\" + std::string(strName) + ".exe";
      if (!strFolder.empty()) {
        path = RemoveTrailingSlash(s, strFolder) + exe;
        line = 40;
        if (!PathExists(s, path)) path = RemoveTrailingSlash(s, s.system().AddinFolder()) + exe;
      } else {
        line = 50;
        path = RemoveTrailingSlash(s, s.system().AddinFolder()) + exe;
      }
      line = 60;
      Initialize(s);
      SetCurrentAction(s, "Attempting to execute the path '" + path + "'");
      line = 70;
      const bool exists = PathExists(s, path);
      if (exists) {
        // The blank stands even when there are no parameters.
        RunOrOpen(s, shell, "\"" + path + "\" " + std::string(strParameters), true);
      }
      line = 80;
      // Cleared before it could be tested: a failed start stays silent.
      s.err.Clear();
      if (!exists) {
        s.ui().MessageBox(
            "Exception occured when running the file " + path + "\r\n" + s.err.description,
            platform::msgbox::kCritical, kMessageTitle);
      }
    }
    line = 100;
    shell.Release();
  });
}

void Initialize(AddinState& s) noexcept {
  for (;;) {
    if (s.support.objFSO) return;
    SetCurrentAction(s, "problem with scrrun.dll");
    IgnoreFailure(
        s.err, [&] { s.support.objFSO = s.objects().CreateObject("Scripting.FileSystemObject"); });
    if (s.support.objFSO.IsNothing()) {
      s.support.objFSO = CreateObjectSafely(s, "Scripting.FileSystemObject", false);
    }
    if (s.support.objFSO) return;
    if (s.support.fileSystemRepairTried) {
      // The legacy report after this tested the error it had just cleared.
      s.err.Clear();
      return;
    }
    RepairScriptingRuntime(s);
    s.support.fileSystemRepairTried = true;
  }
}

void RepairScriptingRuntime(AddinState& s) noexcept {
  IgnoreFailure(s.err, [&] { s.system().RunCommandLine("regsvr32 scrrun.dll /s", 2); });
  s.err.Clear();
}

}  // namespace qvx::FileModule
