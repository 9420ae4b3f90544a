// Getting hold of the host: a running Outlook proven recent enough, its MAPI
// session, its major version, a default folder on screen, and object
// creation through the platform or through the host.
//
// The session's own failures are told by message box, not by the central
// handler, since the add-in cannot go on without a host; each of those boxes
// is followed by the tear-down (subKillObjects).
#pragma once

#include <cstdint>
#include <string_view>

#include "core/host_constants.h"
#include "core/object.h"

namespace qvx {

class AddinState;

// Makes sure s.main.objOutlook holds a host of version 10 or later, sets
// s.main.objNameSpace, and activates an explorer (on `folder` if none is
// open). Failures are ignored; the pending error is cleared at the end.
void EnsureOutlookSession(AddinState& s, int32_t folder) noexcept;

// The host's major version ("12.0.6425" -> 12), asked once and cached.
// Has no trap of its own: a failure goes to the caller.
int16_t GetVersion(AddinState& s);

// Sets the session up and, with no explorer open, displays one on the default
// folder `folder`. A failure shows "Can't access Outlook API!" and its details.
void ShowDefaultFolder(AddinState& s, int32_t folder) noexcept;

// Presses the host's Send/Receive button; only while s.support.sendReceiveEnabled.
void ExecuteSendReceive(AddinState& s) noexcept;

// Creates an object by ProgID through the platform, or through the host's
// Application.CreateObject; hostFirst says which is tried first (with
// hostFirst and no host, nothing is made). Nothing if both fail.
Object CreateObjectSafely(AddinState& s, std::string_view progId, bool hostFirst) noexcept;

}  // namespace qvx
