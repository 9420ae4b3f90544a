// ScopeExit: runs a clean-up when the scope ends, however it ends.
//
//   s.support.writingLog = true;
//   ScopeExit done([&] { s.support.writingLog = false; });
//   ...   // a return or a throw here still clears the flag
//
// The clean-up must not throw. A guard can be dismissed (Release) when the
// work it guards has been handed on.
#pragma once

#include <type_traits>
#include <utility>

namespace qvx {

template <class CleanUp>
class [[nodiscard]] ScopeExit {
 public:
  static_assert(std::is_nothrow_invocable_v<CleanUp&>, "a clean-up must not throw");

  explicit ScopeExit(CleanUp cleanUp) noexcept(std::is_nothrow_move_constructible_v<CleanUp>)
      : cleanUp_(std::move(cleanUp)) {}
  ScopeExit(const ScopeExit&) = delete;
  ScopeExit& operator=(const ScopeExit&) = delete;
  ~ScopeExit() {
    if (armed_) cleanUp_();
  }

  // The clean-up will not run.
  void Release() noexcept { armed_ = false; }

 private:
  CleanUp cleanUp_;
  bool armed_ = true;
};

}  // namespace qvx
