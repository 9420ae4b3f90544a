// Traps: the program's one failure convention.
//
// A trapped procedure records where it is (statement numbers in tens), and on
// a failure hands label, position, number, source and description to the
// central reporter, then ends with its result so far. The failure is never
// passed to the caller.
//
//   void ReadThing(FailureSink& sink) {
//     Trapped(sink, "Main.ReadThing", [&](Line& line) {
//       line = 10; DoA();
//       line = 20; DoB();   // a Failure here is reported with line 20
//     });
//   }
//
// A statement whose failure is harmless runs under IgnoreFailure, which leaves
// the failure pending in the error state, as the legacy runtime's Err object,
// for the next statement to test or clear.
#pragma once

#include <cstdint>
#include <exception>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "core/failure.h"

namespace qvx {

// The pending error, as the legacy runtime's Err object keeps it.
struct ErrorState {
  int32_t number = 0;
  std::string source;
  std::string description;
  int line = 0;

  bool pending() const noexcept { return number != 0; }
  void Clear() noexcept {
    number = 0;
    line = 0;
    source.clear();
    description.clear();
  }
  void Set(const Failure& f, int at = 0) {
    number = f.number();
    source = f.source();
    description = f.description();
    line = at;
  }
  // Raises the pending error again (Err.Raise with its own values).
  [[noreturn]] void Raise() const { throw Failure(number, source, description); }
};

// Where trapped failures go: the central reporter and the pending error.
class FailureSink {
 public:
  virtual ~FailureSink() = default;
  virtual ErrorState& Err() noexcept = 0;
  // The central handler; must not throw.
  virtual void ReportError(const std::string& description, int32_t number, int line,
                           std::string_view label, bool allowDirectSend) noexcept = 0;
};

using Line = int;

// Converts whatever was thrown into the program's error.
inline Failure CurrentFailure() noexcept {
  try {
    throw;
  } catch (const Failure& f) {
    return f;
  } catch (const std::bad_alloc&) {
    return Failure::Runtime(err::kOutOfMemory);
  } catch (const std::exception& e) {
    return Failure(err::kInternalError, "QVXClient", e.what());
  } catch (...) {
    return Failure::Runtime(err::kInternalError);
  }
}

// Reports a failure that was caught at `line` of the procedure `label`.
inline void ReportTrapped(FailureSink& sink, std::string_view label, int line) noexcept {
  const Failure f = CurrentFailure();
  try {
    sink.Err().Set(f, line);
  } catch (...) {
    // Out of memory while copying the texts: report with what we have.
  }
  sink.ReportError(f.description(), f.number(), line, label, false);
}

// A procedure with a trap. body(Line&) runs; a failure is reported and ends it.
template <class Body>
void Trapped(FailureSink& sink, std::string_view label, Body&& body) noexcept {
  Line line = 0;
  try {
    std::forward<Body>(body)(line);
  } catch (...) {
    ReportTrapped(sink, label, line);
  }
}

// A function with a trap: returns whatever `result` held when it ended.
template <class T, class Body>
T TrappedResult(FailureSink& sink, std::string_view label, Body&& body) noexcept {
  T result{};
  Line line = 0;
  try {
    std::forward<Body>(body)(line, result);
  } catch (...) {
    ReportTrapped(sink, label, line);
  }
  return result;
}

// One statement with failures ignored: a failure is left pending in `err`.
// Returns true if the statement completed.
template <class Statement>
bool IgnoreFailure(ErrorState& err, Statement&& statement) noexcept {
  try {
    std::forward<Statement>(statement)();
    return true;
  } catch (...) {
    const Failure f = CurrentFailure();
    try {
      err.Set(f);
    } catch (...) {
      err.number = f.number();
    }
    return false;
  }
}

// IgnoreFailure that also notes the statement number of a failure in the
// pending error, for the boxes that show the failing line.
template <class Statement>
bool IgnoreFailureAt(ErrorState& err, int line, Statement&& statement) noexcept {
  if (IgnoreFailure(err, std::forward<Statement>(statement))) return true;
  err.line = line;
  return false;
}

// Runs a stretch that may fail harmlessly and whose failure no one tests
// (a release at tear-down, say); the pending error is left cleared. A
// statement that gives a value gives it as an optional, empty on a failure:
//
//   Quietly(err, [&] { list.reset(); });
//   const int32_t count = Quietly(err, [&] { return c.Get("Count").ToLong(); }).value_or(0);
template <class Statement>
auto Quietly(ErrorState& err, Statement&& statement) noexcept {
  using Result = std::invoke_result_t<Statement&>;
  if constexpr (std::is_void_v<Result>) {
    IgnoreFailure(err, statement);
    err.Clear();
  } else {
    std::optional<std::decay_t<Result>> result;
    IgnoreFailure(err, [&] { result.emplace(statement()); });
    err.Clear();
    return result;
  }
}

}  // namespace qvx
