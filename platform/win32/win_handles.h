// Owners for Win32 and COM resources: COM interface pointers, BSTR, VARIANT,
// registry keys, windows and kernel handles. Each releases what it holds
// exactly once, so that no early return or exception leaks a handle.
#pragma once

#include "core/unique_any.h"
#include "platform/win32/win32_api.h"

#include <string>
#include <string_view>
#include <utility>

namespace qvx::win32 {

// A counted COM interface pointer (AddRef on copy, Release on reset).
template <class T>
class ComPtr {
 public:
  ComPtr() = default;
  ComPtr(std::nullptr_t) {}
  // Takes a new reference to `p`.
  explicit ComPtr(T* p) : p_(p) {
    if (p_) p_->AddRef();
  }
  // Adopts a reference the caller already owns.
  static ComPtr Adopt(T* p) {
    ComPtr c;
    c.p_ = p;
    return c;
  }
  ComPtr(const ComPtr& o) : ComPtr(o.p_) {}
  ComPtr(ComPtr&& o) noexcept : p_(std::exchange(o.p_, nullptr)) {}
  ComPtr& operator=(ComPtr o) noexcept {
    std::swap(p_, o.p_);
    return *this;
  }
  ~ComPtr() { Reset(); }

  void Reset() noexcept {
    if (T* p = std::exchange(p_, nullptr)) p->Release();
  }
  T* get() const noexcept { return p_; }
  T* operator->() const noexcept { return p_; }
  explicit operator bool() const noexcept { return p_ != nullptr; }
  // For out-parameters: releases what is held and hands the slot.
  T** Put() noexcept {
    Reset();
    return &p_;
  }
  void** PutVoid() noexcept { return reinterpret_cast<void**>(Put()); }
  // Gives up ownership to the caller.
  T* Detach() noexcept { return std::exchange(p_, nullptr); }

  template <class U>
  ComPtr<U> As(REFIID iid) const noexcept {
    ComPtr<U> out;
    if (p_) p_->QueryInterface(iid, out.PutVoid());
    return out;
  }

 private:
  T* p_ = nullptr;
};

// An owned BSTR.
class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::wstring_view text)
      : b_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
  static Bstr Adopt(BSTR b) {
    Bstr r;
    r.b_.Reset(b);
    return r;
  }

  BSTR get() const noexcept { return b_.get(); }
  BSTR* Put() noexcept { return b_.Put(); }
  BSTR Detach() noexcept { return b_.Detach(); }
  std::wstring_view view() const noexcept {
    return b_ ? std::wstring_view(b_.get(), SysStringLen(b_.get())) : std::wstring_view();
  }

 private:
  UniqueAny<BSTR, CloseWith<&SysFreeString>> b_;
};

// An owned VARIANT, cleared on destruction.
class ScopedVariant {
 public:
  ScopedVariant() noexcept { VariantInit(&v_); }
  ScopedVariant(const ScopedVariant&) = delete;
  ScopedVariant& operator=(const ScopedVariant&) = delete;
  ~ScopedVariant() { VariantClear(&v_); }

  VARIANT* get() noexcept { return &v_; }
  const VARIANT& ref() const noexcept { return v_; }
  // Clears and hands the VARIANT for an out-parameter.
  VARIANT* Put() noexcept {
    VariantClear(&v_);
    return &v_;
  }
  // Moves the value into `out` (which must be initialised or cleared).
  void MoveTo(VARIANT* out) noexcept {
    *out = v_;
    VariantInit(&v_);
  }

 private:
  VARIANT v_;
};

// Owned handles of the system, each closed exactly once by its own call.
using UniqueHkey = UniqueAny<HKEY, CloseWith<&RegCloseKey>>;
using UniqueHwnd = UniqueAny<HWND, CloseWith<&DestroyWindow>>;
using UniqueBitmap = UniqueAny<HBITMAP, CloseWith<&DeleteObject>>;
// A kernel handle; calls that fail with INVALID_HANDLE_VALUE go through
// KernelHandle, so that the owner holds nothing.
using UniqueHandle = UniqueAny<HANDLE, CloseWith<&CloseHandle>>;
inline UniqueHandle KernelHandle(HANDLE h) {
  return UniqueHandle(h == INVALID_HANDLE_VALUE ? nullptr : h);
}

}  // namespace qvx::win32
