// The reference count of a COM object of this module, which deletes its
// owner when the last reference goes.
//
//   ULONG STDMETHODCALLTYPE AddRef() noexcept override { return refs_.Add(); }
//   ULONG STDMETHODCALLTYPE Release() noexcept override {
//     return refs_.Release([this] { delete this; });
//   }
//   RefCount refs_;
#pragma once

#include "platform/win32/win32_api.h"

namespace qvx::win32 {

class RefCount {
 public:
  ULONG Add() noexcept { return static_cast<ULONG>(InterlockedIncrement(&count_)); }
  // `destroy` deletes the owner (from inside it, so a private destructor
  // stays private).
  template <class Destroy>
  ULONG Release(Destroy&& destroy) noexcept {
    const ULONG n = static_cast<ULONG>(InterlockedDecrement(&count_));
    if (n == 0) destroy();
    return n;  // a local: the count went with its owner
  }

 private:
  LONG count_ = 1;  // the creator's reference
};

}  // namespace qvx::win32
