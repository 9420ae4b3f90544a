// Host events by connection point: Subscribe(source, "NewExplorer", handler)
// finds the connection point that carries the event (host_events.h), advises
// a sink that calls the handler with the event's arguments in signature order
// and writes by-reference arguments (a Cancel flag) back. Releasing the last
// copy of the Subscription unadvises.
#pragma once

#include "platform/win32/win32_api.h"

#include <string_view>

#include "core/object.h"
#include "platform/member_ids.h"

namespace qvx::win32 {

// Failure 459 if the source offers no connection point for the event. The
// objects among the event's arguments share `ids` (dispatch_object.h).
Subscription SubscribeToEvent(IDispatch* source, std::string_view event, EventHandler handler,
                              const platform::SharedMemberIds& ids = {});

inline constexpr int32_t kNoSuchEventSet = 459;

}  // namespace qvx::win32
