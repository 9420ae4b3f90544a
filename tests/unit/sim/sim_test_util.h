// Helpers for the simulator's tests.
#pragma once

#include <gtest/gtest.h>

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

}  // namespace qvx::sim::testing
