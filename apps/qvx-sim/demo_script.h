// The scenario that "qvx-sim demo" runs: a configured user's start-up on the
// default simulated mailbox, the companion's message back, and the shutdown.
#pragma once

#include <string_view>

namespace qvx::scenario {

std::string_view DemoScript();

}  // namespace qvx::scenario
