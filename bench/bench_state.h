// An add-in state for benchmarks: no registry, no host, a user interface
// that only counts the forms shown (a failure report is one).
#pragma once

#include "addin/state.h"
#include "core/dates.h"
#include "platform/form_model.h"

namespace qvx::bench {

class CountingUi final : public platform::UserInterface {
 public:
  int MessageBox(std::string_view, int, std::string_view) override { return 1; }
  void ShowModal(platform::FormModel&) override { ++forms; }
  int forms = 0;
};

class QuietSystem final : public platform::SystemServices {
 public:
  std::string SpecialFolder(int, int) override { return "/tmp"; }
  std::string AddinFolder() override { return "/tmp"; }
  bool FileExists(std::string_view) override { return false; }
  bool FolderExists(std::string_view) override { return false; }
  bool CreateFolder(std::string_view) override { return false; }
  bool AppendToFile(std::string_view, std::string_view) override { return false; }
  long ShellExecute(std::string_view) override { return 0; }
  bool Launch(std::string_view, std::string_view, int) override { return false; }
  bool RunCommandLine(std::string_view, int) override { return false; }
  std::string Environment(std::string_view) override { return {}; }
  DateValue Now() override { return DateSerial(2026, 1, 1); }
  void DoEvents() override {}
};

class NoObjects final : public platform::ObjectFactory {
 public:
  Object CreateObject(std::string_view) override { throw Failure::Runtime(429); }
  Object GetObject(std::string_view) override { throw Failure::Runtime(429); }
};

struct BenchState {
  CountingUi ui;
  QuietSystem system;
  NoObjects objects;
  AddinState s{platform::Platform{
      .registry = nullptr, .objects = &objects, .ui = &ui, .system = &system, .windows = nullptr}};
  // True when nothing was reported or left pending.
  bool Clean() const { return ui.forms == 0 && !s.err.pending(); }
};

}  // namespace qvx::bench
