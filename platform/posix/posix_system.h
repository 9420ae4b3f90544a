// PosixSystemServices: the operating system outside Outlook, on POSIX.
//
// Paths arrive in the add-in's Windows form ("C:\x\y.exe", "...\Marlstone
// Data\"); every backslash is read as a slash before the file system sees it.
// Special folders come from $HOME (5, the documents, is $HOME/Documents). The
// add-in's own folder is the constructor's, else $QVX_ADDIN_FOLDER, else the
// folder of the running program.
//
// Launches run the program by posix_spawn, with no shell: argv is the path
// and the argument whole, as ONE entry (none when the argument is empty), and
// the caller does not wait. Children are reaped without blocking on each later
// call, so none is left a zombie for long. Every launch, shell open and command
// line is recorded, so that tests and scenarios can assert the exact text;
// with `spawn` off nothing is started at all.
//
//   PosixSystemServices sys({.addinFolder = "/opt/qvx", .spawn = false});
//   sys.Launch("/opt/qvx/QuorvixClient.exe", "0|store|entries", 1);
//   sys.Launches().back().argument == "0|store|entries";
#pragma once

#include <sys/types.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/system_services.h"

namespace qvx::platform {

struct LaunchRecord {
  std::string path;      // as the caller gave it
  std::string argument;  // the one argument, exactly
  int windowStyle = 0;
  bool started = false;  // a process was spawned
  pid_t pid = 0;
};

struct PosixSystemOptions {
  std::string home{};         // "" means $HOME
  std::string addinFolder{};  // "" means $QVX_ADDIN_FOLDER, else the program's folder
  bool spawn = true;          // false: launches are recorded only
  bool useXdgOpen = false;    // ShellExecute also runs xdg-open when it is on PATH
  // Values that Environment() answers before the real environment.
  std::map<std::string, std::string> environment{};
};

class PosixSystemServices : public SystemServices {
 public:
  PosixSystemServices() : PosixSystemServices(PosixSystemOptions{}) {}
  explicit PosixSystemServices(PosixSystemOptions options);
  ~PosixSystemServices() override;
  PosixSystemServices(const PosixSystemServices&) = delete;
  PosixSystemServices& operator=(const PosixSystemServices&) = delete;

  std::string SpecialFolder(int folder, int flags) override;
  std::string AddinFolder() override;
  bool FileExists(std::string_view path) override;
  bool FolderExists(std::string_view path) override;
  bool CreateFolder(std::string_view path) override;
  bool AppendToFile(std::string_view path, std::string_view text) override;
  long ShellExecute(std::string_view file) override;
  bool Launch(std::string_view path, std::string_view argument, int windowStyle) override;
  bool RunCommandLine(std::string_view commandLine, int windowStyle) override;
  std::string Environment(std::string_view name) override;
  DateValue Now() override;
  void DoEvents() override;

  // What DoEvents runs (the simulator's queue of pending work).
  void SetDoEventsHook(std::function<void()> hook) { doEvents_ = std::move(hook); }
  void SetSpawn(bool spawn) { options_.spawn = spawn; }
  void SetEnvironment(std::string_view name, std::string_view value);
  // A fixed clock for tests; nullopt returns to the real one.
  void SetClock(std::optional<DateValue> now) { fixedNow_ = now; }

  const std::vector<LaunchRecord>& Launches() const { return launches_; }
  const std::vector<std::string>& ShellOpens() const { return shellOpens_; }
  const std::vector<std::string>& CommandLines() const { return commandLines_; }
  void ClearRecords();

  // Waits for every child still running (tests that read a child's output).
  void WaitForChildren();
  // The Windows form of a path read as a POSIX one.
  static std::string NativePath(std::string_view path);

 private:
  bool Spawn(const std::string& program, const std::vector<std::string>& args, pid_t& pid);
  void ReapChildren();

  PosixSystemOptions options_;
  std::function<void()> doEvents_;
  std::optional<DateValue> fixedNow_;
  std::vector<LaunchRecord> launches_;
  std::vector<std::string> shellOpens_;
  std::vector<std::string> commandLines_;
  std::vector<pid_t> children_;
};

}  // namespace qvx::platform
