// Expected absence: a host object that may have gone, read without a trap.
//
// Access to host items is written so that a failure leaves the value
// Nothing (or a default) and the next step tests whether something arrived.
//
//   ObjectOrNothing(app.Get("ActiveExplorer"))        // Nothing unless an object
//   const Object window = QuietObject(s.err, [&] { return app.Get("ActiveWindow"); });
//   if (window.IsNothing()) return;                   // gone, or never there
//
// Both forms leave no pending error behind (see Quietly in core/trap.h).
#pragma once

#include "core/object.h"
#include "core/trap.h"
#include "core/variant.h"

namespace qvx {

// `value` as an object; Nothing for anything that is not one.
inline Object ObjectOrNothing(const Variant& value) {
  return value.IsObject() ? value.ToObject() : Object();
}

// The object that `statement` gives (a Variant); Nothing when it fails or
// gives no object. The failure is cleared.
template <class Statement>
Object QuietObject(ErrorState& err, Statement&& statement) noexcept {
  std::optional<Variant> value = Quietly(err, std::forward<Statement>(statement));
  return value ? ObjectOrNothing(*value) : Object();
}

}  // namespace qvx
