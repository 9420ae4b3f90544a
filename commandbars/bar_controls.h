// What every bar and the menu do with the host's command bars: add a
// temporary control, take a control or a bar down, sweep away the bars an
// earlier run left behind.
//
//   Object combo = AddTemporaryControl(bar.Get("Controls").ToObject(), host::msoControlComboBox);
//   DeleteControl(s.err, combo);                    // Delete, then Nothing
//   SweepBars(s.err, explorer, "Quorvix");          // every bar of that name
//   ForgetInspectorBar(s, inspector, false);        // at the inspector's Close
//   Object item = ShownItem(s.err, explorer, inspector);  // what a bar shows
#pragma once

#include <cstdint>
#include <string_view>

#include "core/event_field.h"
#include "core/object.h"
#include "core/trap.h"

namespace qvx {

class AddinState;

// Controls.Add(Type, Id 1, , , Temporary True): a new control at the end.
Object AddTemporaryControl(const Object& controls, int32_t type);

// Deletes the control if set and releases it; a failure is left pending.
void DeleteControl(ErrorState& err, Object& control) noexcept;
template <class Owner>
void DeleteControl(ErrorState& err, EventField<Owner>& control) noexcept {
  if (!control) return;
  IgnoreFailure(err, [&] { control.object().Call("Delete"); });
  control.Release();
}

// Deletes every bar named exactly `name` in the window's CommandBars; the
// pending error is cleared afterwards. Nothing happens without a window.
void SweepBars(ErrorState& err, const Object& window, std::string_view name) noexcept;

// The item a bar shows: the explorer's first selected item, or, without an
// explorer, the inspector's item. Nothing when it cannot be read; no failure
// is left pending.
Object ShownItem(ErrorState& err, const Object& explorer, const Object& inspector) noexcept;

// The inspectors' client forgets the bar (the project bar, or the custom
// fields bar) kept under the EntryID of the inspector's item. Failures are
// ignored and the pending error is cleared afterwards.
void ForgetInspectorBar(AddinState& s, const Object& inspector, bool customFields) noexcept;

}  // namespace qvx
