// An add-in state for benchmarks: no registry, no host, a user interface
// that only counts the forms shown (a failure report is one).
#pragma once

#include "addin/upward_calls.h"
#include "platform/form_model.h"
#include "sim/inert_platform.h"
#include "state/addin_state.h"

namespace qvx::bench {

class CountingUi final : public platform::UserInterface {
 public:
  int MessageBox(std::string_view, int, std::string_view) override { return 1; }
  void ShowModal(platform::FormModel&) override { ++forms; }
  int forms = 0;
};

using sim::InertSystem;
using sim::NoObjects;

struct BenchState {
  BenchState() { ConnectUpwardCalls(s); }

  CountingUi ui;
  InertSystem system;
  NoObjects objects;
  AddinState s{platform::Platform{
      .registry = nullptr, .objects = &objects, .ui = &ui, .system = &system, .windows = nullptr}};
  // True when nothing was reported or left pending.
  bool Clean() const { return ui.forms == 0 && !s.err.pending(); }
};

}  // namespace qvx::bench
