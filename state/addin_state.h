// AddinState: every process-wide value of one add-in instance.
//
// The legacy design kept these in module globals; here they live in one
// object owned by the add-in instance and handed explicitly to every
// procedure (`AddinState& s`). A test may run many add-ins in one process;
// a real host runs exactly one. Each subsystem owns its own part.
#pragma once

#include <functional>
#include <memory>

#include "core/trap.h"
#include "platform/platform.h"
#include "state/companion_state.h"
#include "state/main_globals.h"
#include "state/report_state.h"
#include "state/support_state.h"
#include "state/tagging_state.h"

namespace qvx {

class AddinState final : public FailureSink {
 public:
  explicit AddinState(platform::Platform platform) : platform(platform) {}
  AddinState(const AddinState&) = delete;
  AddinState& operator=(const AddinState&) = delete;
  ~AddinState() override;

  platform::Platform platform;
  ErrorState err;
  MainGlobals main;
  SupportState support;
  CompanionState companion;
  TaggingState tagging;
  ReportState report;

  platform::RegistryApi& registry() const { return *platform.registry; }
  platform::ObjectFactory& objects() const { return *platform.objects; }
  platform::UserInterface& ui() const { return *platform.ui; }
  platform::SystemServices& system() const { return *platform.system; }

  ErrorState& Err() noexcept override { return err; }
  // The central handler (support/error_reporting.cpp).
  void ReportError(const std::string& description, int32_t number, int line, std::string_view label,
                   bool allowDirectSend) noexcept override;
};

}  // namespace qvx
