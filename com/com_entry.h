// The one way every COM method of this module ends: the body returns an
// HRESULT, and whatever it throws becomes an error HRESULT here, so that no
// exception ever crosses into the host.
//
//   HRESULT STDMETHODCALLTYPE Foo::Bar(BSTR* out) noexcept {
//     return ComEntry([&] { ...; return S_OK; });
//   }
#pragma once

#include <new>

#include "core/failure.h"
#include "platform/win32/win32_api.h"

namespace qvx::com {

template <class Body>
HRESULT ComEntry(Body&& body) noexcept {
  try {
    return body();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (const Failure& f) {
    return f.number() < 0 ? static_cast<HRESULT>(f.number()) : E_FAIL;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace qvx::com
