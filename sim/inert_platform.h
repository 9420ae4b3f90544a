// Platform services that do nothing, for tests and benchmarks that need an
// add-in state but no files, programs or objects: a fixed clock, folders
// that exist nowhere, launches that fail, objects that cannot be made.
#pragma once

#include <string>
#include <string_view>

#include "core/dates.h"
#include "core/failure.h"
#include "platform/platform.h"

namespace qvx::sim {

class InertSystem final : public platform::SystemServices {
 public:
  DateValue now = ComposeDate(DateParts{2026, 3, 14, 15, 9, 26});
  std::string addinFolder = "/opt/qvx";

  std::string SpecialFolder(int, int) override { return "/tmp"; }
  std::string AddinFolder() override { return addinFolder; }
  bool FileExists(std::string_view) override { return false; }
  bool FolderExists(std::string_view) override { return false; }
  bool CreateFolder(std::string_view) override { return false; }
  bool AppendToFile(std::string_view, std::string_view) override { return false; }
  long ShellExecute(std::string_view) override { return 0; }
  bool Launch(std::string_view, std::string_view, int) override { return false; }
  bool RunCommandLine(std::string_view, int) override { return false; }
  std::string Environment(std::string_view) override { return {}; }
  DateValue Now() override { return now; }
  void DoEvents() override {}
};

// "ActiveX component can't create object" for every name.
class NoObjects final : public platform::ObjectFactory {
 public:
  Object CreateObject(std::string_view) override { throw Failure::Runtime(429); }
  Object GetObject(std::string_view) override { throw Failure::Runtime(429); }
};

}  // namespace qvx::sim
