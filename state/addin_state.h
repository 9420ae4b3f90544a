// AddinState: every process-wide value of one add-in instance.
//
// The legacy design kept these in module globals; here they live in one
// object owned by the add-in instance and handed explicitly to every
// procedure (`AddinState& s`). A test may run many add-ins in one process;
// a real host runs exactly one. Each subsystem owns its own part.
//
// The record sits below every subsystem and includes none of them. What it
// must cause above itself (the central reporter among them) goes through
// `upward()`, which the add-in connects when it makes the state:
//
//   AddinState s(platform);
//   ConnectUpwardCalls(s);        // addin/upward_calls.h
//   Trapped(s, "Main.X", ...);    // a failure reaches the central reporter
#pragma once

#include <memory>

#include "core/trap.h"
#include "platform/member_ids.h"
#include "platform/platform.h"
#include "state/companion_state.h"
#include "state/main_globals.h"
#include "state/report_state.h"
#include "state/ribbon_state.h"
#include "state/support_state.h"
#include "state/tagging_state.h"
#include "state/upward_calls.h"

namespace qvx {

class AddinState final : public FailureSink {
  // First, so that it outlives every record below: the clients that the main
  // globals release may still report.
  std::unique_ptr<UpwardCalls> upward_;

 public:
  explicit AddinState(platform::Platform platform);
  AddinState(const AddinState&) = delete;
  AddinState& operator=(const AddinState&) = delete;
  ~AddinState() override;

  platform::Platform platform;
  // Shared with the host objects' wrappers, which hold it weakly: it goes with the state.
  std::shared_ptr<platform::MemberIds> memberIds = std::make_shared<platform::MemberIds>();
  ErrorState err;
  // The records the main globals' clients use go before them, to outlive them.
  SupportState support;
  CompanionState companion;
  TaggingState tagging;
  ReportState report;
  RibbonState ribbon;
  MainGlobals main;

  platform::RegistryApi& registry() const { return *platform.registry; }
  platform::ObjectFactory& objects() const { return *platform.objects; }
  platform::UserInterface& ui() const { return *platform.ui; }
  platform::SystemServices& system() const { return *platform.system; }

  // The calls into the layers above; each does nothing until connected.
  UpwardCalls& upward() const noexcept { return *upward_; }
  void ConnectUpward(std::unique_ptr<UpwardCalls> calls) noexcept { upward_ = std::move(calls); }

  ErrorState& Err() noexcept override { return err; }
  // The central handler, through upward().
  void ReportError(const std::string& description, int32_t number, int line, std::string_view label,
                   bool allowDirectSend) noexcept override;
};

}  // namespace qvx
