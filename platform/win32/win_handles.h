// Owners for Win32 and COM resources: COM interface pointers, BSTR, VARIANT,
// registry keys and windows. Each releases what it holds exactly once, so that
// no early return or exception leaks a handle.
#pragma once

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
    r.b_ = b;
    return r;
  }
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  Bstr(Bstr&& o) noexcept : b_(std::exchange(o.b_, nullptr)) {}
  Bstr& operator=(Bstr&& o) noexcept {
    std::swap(b_, o.b_);
    return *this;
  }
  ~Bstr() { SysFreeString(b_); }

  BSTR get() const noexcept { return b_; }
  BSTR* Put() noexcept {
    SysFreeString(std::exchange(b_, nullptr));
    return &b_;
  }
  BSTR Detach() noexcept { return std::exchange(b_, nullptr); }
  std::wstring_view view() const noexcept {
    return b_ ? std::wstring_view(b_, SysStringLen(b_)) : std::wstring_view();
  }

 private:
  BSTR b_ = nullptr;
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

// An owned registry key.
class UniqueHkey {
 public:
  UniqueHkey() = default;
  explicit UniqueHkey(HKEY k) : k_(k) {}
  UniqueHkey(const UniqueHkey&) = delete;
  UniqueHkey& operator=(const UniqueHkey&) = delete;
  UniqueHkey(UniqueHkey&& o) noexcept : k_(std::exchange(o.k_, nullptr)) {}
  UniqueHkey& operator=(UniqueHkey&& o) noexcept {
    std::swap(k_, o.k_);
    return *this;
  }
  ~UniqueHkey() { Reset(); }

  void Reset() noexcept {
    if (HKEY k = std::exchange(k_, nullptr)) RegCloseKey(k);
  }
  HKEY get() const noexcept { return k_; }
  HKEY* Put() noexcept {
    Reset();
    return &k_;
  }
  explicit operator bool() const noexcept { return k_ != nullptr; }

 private:
  HKEY k_ = nullptr;
};

// An owned window, destroyed with its owner.
class UniqueHwnd {
 public:
  UniqueHwnd() = default;
  explicit UniqueHwnd(HWND h) : h_(h) {}
  UniqueHwnd(const UniqueHwnd&) = delete;
  UniqueHwnd& operator=(const UniqueHwnd&) = delete;
  UniqueHwnd(UniqueHwnd&& o) noexcept : h_(std::exchange(o.h_, nullptr)) {}
  ~UniqueHwnd() { Reset(); }

  void Reset() noexcept {
    if (HWND h = std::exchange(h_, nullptr)) DestroyWindow(h);
  }
  HWND get() const noexcept { return h_; }

 private:
  HWND h_ = nullptr;
};

// An owned kernel handle.
class UniqueHandle {
 public:
  UniqueHandle() = default;
  explicit UniqueHandle(HANDLE h) : h_(h == INVALID_HANDLE_VALUE ? nullptr : h) {}
  UniqueHandle(const UniqueHandle&) = delete;
  UniqueHandle& operator=(const UniqueHandle&) = delete;
  ~UniqueHandle() {
    if (h_) CloseHandle(h_);
  }
  HANDLE get() const noexcept { return h_; }
  explicit operator bool() const noexcept { return h_ != nullptr; }

 private:
  HANDLE h_ = nullptr;
};

}  // namespace qvx::win32
