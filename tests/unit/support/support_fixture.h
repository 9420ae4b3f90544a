// The test add-in (sim/test_addin.h) for the support services' tests, with
// no host until one is connected or left running (a simulated Outlook), and
// "winuser" as the user's name.
#pragma once

#include <gtest/gtest.h>

#include "sim/test_addin.h"

namespace qvx::testing {

class SupportTest : public ::testing::Test, protected sim::SimulatedHost, public sim::TestAddin {
 protected:
  SupportTest() : sim::TestAddin({.environment = {{"USERNAME", "winuser"}}, .inertHost = false}) {}

  // The host is the add-in's connected Application.
  void ConnectHost() { sim::TestAddin::ConnectHost(host); }
  // The host runs and can be attached to by GetObject.
  void HostRunning() { sim::TestAddin::HostRunning(host); }
};

}  // namespace qvx::testing
