// The on-screen position of the two command bars, kept in the settings key.
//
// Selector 0 is the project and activity bar ("MainTB..."), 1 the custom
// fields bar ("CustomTB..."); any other selector does nothing. Both run with
// failures ignored statement by statement, so one property or value that
// fails is skipped and the next is still tried; the pending error is cleared
// before they return. Nothing is reported.
#pragma once

#include <cstdint>

#include "core/object.h"

namespace qvx {

class AddinState;

namespace modLocalSettings {

// Reads Top, Left, Position, RowIndex from the bar and stores each at once.
void SaveToolbarPosition(AddinState& s, int16_t Selector, const Object& Bar);

// Sets Position, RowIndex, Top, Left from the stored values; an absent or
// non-numeric value leaves that property as the host gave it.
void LoadToolbarPosition(AddinState& s, int16_t Selector, const Object& Bar);

}  // namespace modLocalSettings
}  // namespace qvx
