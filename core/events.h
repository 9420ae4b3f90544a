// EventSource: the callback list behind a host object's events, for hosts
// implemented in this process (the simulator, the COM test host's objects).
//
// Subscribe returns a Subscription; releasing it removes the handler. Raise
// calls the handlers of one event in subscription order, and tolerates
// handlers that subscribe or unsubscribe while it runs.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/object.h"
#include "core/text.h"

namespace qvx {

class EventSource {
 public:
  Subscription Subscribe(std::string_view event, EventHandler handler) {
    auto slot = std::make_shared<Slot>(Slot{std::string(event), std::move(handler), true});
    slots_->push_back(slot);
    std::weak_ptr<std::vector<std::shared_ptr<Slot>>> list = slots_;
    // The token points at the slot only to be non-null; it owns nothing.
    std::shared_ptr<void> token(static_cast<void*>(slot.get()), [slot, list](void*) {
      slot->alive = false;
      if (auto l = list.lock()) std::erase(*l, slot);
    });
    return Subscription(std::move(token));
  }

  // Calls every live handler of `event`; returns how many ran.
  size_t Raise(std::string_view event, EventArgs& args) {
    const auto snapshot = *slots_;
    size_t ran = 0;
    for (const auto& slot : snapshot) {
      if (slot->alive && EqualsText(slot->event, event)) {
        slot->handler(args);
        ++ran;
      }
    }
    return ran;
  }

  size_t HandlerCount(std::string_view event) const {
    size_t n = 0;
    for (const auto& slot : *slots_) n += slot->alive && EqualsText(slot->event, event);
    return n;
  }

 private:
  struct Slot {
    std::string event;
    EventHandler handler;
    bool alive;
  };
  std::shared_ptr<std::vector<std::shared_ptr<Slot>>> slots_ =
      std::make_shared<std::vector<std::shared_ptr<Slot>>>();
};

}  // namespace qvx
