// SystemServices on Windows: shell folders, the add-in's own folder (from the
// module that holds this code), files, ShellExecuteA, CreateProcess, the
// clock and the message pump.
#pragma once

#include "platform/system_services.h"

namespace qvx::win32 {

class Win32SystemServices final : public platform::SystemServices {
 public:
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
};

}  // namespace qvx::win32
