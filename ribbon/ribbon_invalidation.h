// Asking the host to call the ribbon's callbacks again.
//
// Only the last ribbon to load (OnLoad) is asked; while none has loaded, or
// after the tear-down, every helper does nothing. A host that fails to
// invalidate is not reported.
//
//   subInvalidateActivityControls(s);  // after a project choice on the explorer
#pragma once

#include <string_view>

namespace qvx {

class AddinState;

// Invalidates the whole ribbon; does nothing while no ribbon has loaded.
void subInvalidateRibbon(AddinState& s) noexcept;
// Invalidates one control; does nothing while no ribbon has loaded.
void subInvalidateControl(AddinState& s, std::string_view controlId) noexcept;

// The inspector's activity drop-down, after a project choice there.
void subInvalidateInspectorActivity(AddinState& s) noexcept;
// The explorer's activity drop-downs but those of the to-do bar and the daily
// task list, which wait for the next full invalidation.
void subInvalidateActivityControls(AddinState& s) noexcept;
// The four custom field drop-downs of the inspector and of the same five
// explorer contexts, field by field.
void subInvalidateCustomFieldControls(AddinState& s) noexcept;

}  // namespace qvx
