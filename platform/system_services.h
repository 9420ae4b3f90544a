// The operating system outside Outlook: files and folders, special folders,
// the add-in's own folder, shell open, process launch, the clock, the pump.
#pragma once

#include <string>
#include <string_view>

#include "core/variant.h"

namespace qvx::platform {

class SystemServices {
 public:
  virtual ~SystemServices() = default;

  // SHGetFolderPathA(folder, flags): the path, or "" on failure (5 = documents).
  virtual std::string SpecialFolder(int folder, int flags) = 0;
  // The folder that holds the add-in itself (App.Path), without a trailing slash.
  virtual std::string AddinFolder() = 0;
  virtual bool FileExists(std::string_view path) = 0;
  virtual bool FolderExists(std::string_view path) = 0;
  // Creates one folder; false on failure.
  virtual bool CreateFolder(std::string_view path) = 0;
  // Appends text to a file, creating it; false on failure.
  virtual bool AppendToFile(std::string_view path, std::string_view text) = 0;

  // ShellExecuteA(0, "", file, "", "", 1): > 32 on success.
  virtual long ShellExecute(std::string_view file) = 0;
  // Starts the program at `path` with one argument, without waiting and
  // without a shell. False if it could not be started.
  virtual bool Launch(std::string_view path, std::string_view argument, int windowStyle) = 0;
  // Starts a whole command line (regsvr32 repairs); false if it could not.
  virtual bool RunCommandLine(std::string_view commandLine, int windowStyle) = 0;

  // Environment variable, "" if unset.
  virtual std::string Environment(std::string_view name) = 0;
  // The present local date and time.
  virtual DateValue Now() = 0;
  // Lets pending messages through (DoEvents).
  virtual void DoEvents() = 0;
};

}  // namespace qvx::platform
