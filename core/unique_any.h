// UniqueAny: the one owner of a handle that must be closed exactly once (a
// registry key, a window, a kernel handle, a file descriptor, a BSTR). It
// closes what it holds when it goes, on every path out of a scope, an early
// return or a failure included. Moving hands the handle on; copying is not
// possible.
//
// `Closer` is called with the handle; it may carry state (the registry that
// opened a key). `kInvalid` is the value that holds nothing.
//
//   using UniqueFd = UniqueAny<int, CloseWith<&::close>, -1>;
//   UniqueFd fd(::open(path, O_RDONLY));
//   if (!fd) return;             // nothing was opened, nothing to close
//   ::read(fd.get(), ...);       // closed when fd goes out of scope
#pragma once

#include <utility>

namespace qvx {

// A Closer for a plain function of the platform; its result is ignored, since
// nothing can be done about a failed close.
template <auto Close>
struct CloseWith {
  template <class Handle>
  void operator()(Handle handle) const noexcept {
    Close(handle);
  }
};

template <class Handle, class Closer, Handle kInvalid = Handle{}>
class UniqueAny {
 public:
  UniqueAny() = default;
  explicit UniqueAny(Handle handle, Closer closer = Closer{}) noexcept
      : handle_(handle), closer_(std::move(closer)) {}
  UniqueAny(const UniqueAny&) = delete;
  UniqueAny& operator=(const UniqueAny&) = delete;
  UniqueAny(UniqueAny&& other) noexcept
      : handle_(other.Detach()), closer_(std::move(other.closer_)) {}
  UniqueAny& operator=(UniqueAny&& other) noexcept {
    if (this != &other) {
      Reset(other.Detach());
      closer_ = std::move(other.closer_);
    }
    return *this;
  }
  ~UniqueAny() { Reset(); }

  // Closes what is held, then holds `handle`.
  void Reset(Handle handle = kInvalid) noexcept {
    const Handle old = std::exchange(handle_, handle);
    if (old != kInvalid) closer_(old);
  }
  // Gives up the handle without closing it.
  [[nodiscard]] Handle Detach() noexcept { return std::exchange(handle_, kInvalid); }
  // Closes what is held and hands the slot to an out-parameter.
  Handle* Put() noexcept {
    Reset();
    return &handle_;
  }
  Handle get() const noexcept { return handle_; }
  explicit operator bool() const noexcept { return handle_ != kInvalid; }

 private:
  Handle handle_ = kInvalid;
  [[no_unique_address]] Closer closer_{};
};

}  // namespace qvx
