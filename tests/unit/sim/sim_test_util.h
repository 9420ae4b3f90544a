// Helpers for the simulator's tests.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/failure.h"
#include "core/object.h"
#include "core/variant.h"

namespace qvx::sim::testing {

// The Failure that `call` throws; a test failure if it throws none.
template <class Call>
Failure FailureOf(Call&& call) {
  try {
    call();
  } catch (const Failure& f) {
    return f;
  }
  ADD_FAILURE() << "expected a Failure";
  return Failure(0, "", "");
}

// Records the events a handler hears, as "Name" or "Name:arg".
struct EventLog {
  std::vector<std::string> heard;
  std::vector<Subscription> subscriptions;

  void Listen(const Object& source, const std::string& event, const std::string& tag = {}) {
    const std::string label = tag.empty() ? event : tag + "." + event;
    subscriptions.push_back(
        source.Subscribe(event, [this, label](EventArgs&) { heard.push_back(label); }));
  }
};

}  // namespace qvx::sim::testing
