// Helpers of the ribbon's tests: an add-in connected to a simulated host of a
// chosen version, and what the central reporter was given.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "apps/qvx-sim/world.h"
#include "core/dates.h"
#include "sim/appointment.h"
#include "sim/fake_object.h"
#include "sim/inspector.h"
#include "sim/item.h"
#include "sim/ribbon/ribbon_markup.h"
#include "unit/ribbon/ribbon_documents.h"
#include "unit/support/failure_report.h"

namespace qvx::testing {

// A world whose add-in is connected (settings read) to a host of `version`.
inline void ConnectAddin(scenario::World& world, const char* version = "16.0.0.0") {
  world.host().SetVersion(version);
  world.addin().OnConnection(world.host().Application(), 1, Object());
}

// The add-in connected and started (its sinks exist, so inspectors' pools
// are reachable).
inline void StartAddin(scenario::World& world, const char* version = "16.0.0.0") {
  ConnectAddin(world, version);
  world.addin().OnStartupComplete();
}

// The answer of callback `name` for `control` (and further arguments); a
// test failure when the callback does not run to its end.
inline Variant CallbackAnswer(scenario::World& world, std::string_view name, Variant control,
                              std::vector<Variant> more = {}) {
  std::vector<Variant> args{std::move(control)};
  for (Variant& v : more) args.push_back(std::move(v));
  Variant result;
  std::optional<Failure> failure;
  EXPECT_EQ(world.addin().InvokeCallback(name, args, result, failure), CallbackOutcome::Done)
      << name;
  return result;
}

// The text of every error report shown so far.
inline std::vector<std::string> ErrorReports(scenario::World& world) {
  return ShownReports(world.ui());
}

// An add-in started on a host of version 16 (after the test's settings, in
// SetUp) with an inspector on the saved appointment "Planning" and the pools
// its toolbar objects would hold. `Ask` calls a callback for a control of
// that inspector, as the host does.
class RibbonInspectorTest : public ::testing::Test {
 protected:
  void Set(std::string_view name, std::string_view text) {
    world.registry().SetString(scenario::kSettingsKey, name, text);
  }
  void SetUp() override {
    StartAddin(world);
    auto item =
        world.host().AddAppointment("Planning", DateSerial(2026, 3, 2), DateSerial(2026, 3, 3));
    item->Save();
    world.addin().state().ribbon.Inspector(item->EntryId());
    inspector = world.host().OpenInspector(item)->AsObject();
  }
  AddinState& s() { return world.addin().state(); }
  InspectorRibbonPools& Pools() {
    return s().ribbon.Inspector(inspector.Get("CurrentItem").ToObject().Get("EntryID").ToText());
  }
  Variant Ask(std::string_view name, std::string_view id, std::vector<Variant> more = {}) {
    return CallbackAnswer(world, name, MakeControl(id, inspector), std::move(more));
  }
  scenario::World world;
  Object inspector;
};

}  // namespace qvx::testing
