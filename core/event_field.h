// EventField: a field that holds a host object together with the owner's
// handlers of its events, as the legacy runtime's `WithEvents` variable.
//
// The owner declares each handler once (On: event name, trap label, body).
// Set(object) ends the subscriptions on the object held so far and starts one
// per handler on the new object; Release() ends them and holds Nothing, and so
// does the field's destruction. A handler runs under its trap: a failure is
// reported with the handler's label and line to the FailureSink and ends the
// handler, never the host's call.
//
// A handler runs only while its owner lives, and keeps it alive until it
// returns: the field reaches the owner through a weak_ptr (so the owner must
// be held by a shared_ptr when Set runs) and holds a strong reference for the
// length of the call. A `Quit` handler that tears everything down, the owner
// included, thus returns into a live object, which goes right after.
//
//   class cInspectors : public std::enable_shared_from_this<cInspectors> {
//    public:
//     explicit cInspectors(FailureSink& s) : ouisInspectors(*this, s) {
//       ouisInspectors.On("NewInspector", "Inspectors.NewInspector",
//                         [](cInspectors& self, Line& line, EventArgs& args) {
//                           line = 10; self.Track(args.at(0).ToObject());
//                         });
//     }
//     EventField<cInspectors> ouisInspectors;
//   };
//   auto client = std::make_shared<cInspectors>(s);
//   client->ouisInspectors.Set(app.Get("Inspectors").ToObject());
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/failure.h"
#include "core/object.h"
#include "core/trap.h"

namespace qvx {

template <class Owner>
class EventField {
 public:
  using Handler = std::function<void(Owner& owner, Line& line, EventArgs& args)>;

  EventField(Owner& owner, FailureSink& sink) : owner_(owner), sink_(sink) {}
  EventField(const EventField&) = delete;
  EventField& operator=(const EventField&) = delete;

  // Declares a handler; it takes effect from the next Set.
  EventField& On(std::string_view event, std::string_view label, Handler handler) {
    handlers_.push_back(std::make_shared<Declared>(
        Declared{std::string(event), std::string(label), std::move(handler)}));
    return *this;
  }

  // `Set field = object`: the new object's subscriptions replace the old
  // ones. Throws what the host throws for an object without these events;
  // the field then keeps what it held.
  void Set(const Object& object) {
    std::vector<Subscription> started;
    if (object) {
      const std::weak_ptr<Owner> owner = owner_.weak_from_this();
      if (owner.expired()) {
        throw Failure(err::kInternalError, "QVXClient", "An event field's owner is not shared");
      }
      for (const auto& declared : handlers_) {
        started.push_back(object.Subscribe(declared->event, Dispatcher{owner, &sink_, declared}));
      }
    }
    subscriptions_ = std::move(started);
    object_ = object;
  }

  // `Set field = Nothing`.
  void Release() noexcept {
    subscriptions_.clear();
    object_.Release();
  }

  const Object& object() const noexcept { return object_; }
  explicit operator bool() const noexcept { return static_cast<bool>(object_); }

 private:
  struct Declared {
    std::string event;
    std::string label;
    Handler body;
  };

  // What the host calls: the handler, under its trap, with the owner held.
  struct Dispatcher {
    std::weak_ptr<Owner> owner;
    FailureSink* sink;
    std::shared_ptr<const Declared> declared;

    void operator()(EventArgs& args) const noexcept {
      const std::shared_ptr<Owner> alive = owner.lock();
      if (!alive) return;
      // Copies, so that the handler may end this subscription while it runs.
      const std::shared_ptr<const Declared> handler = declared;
      FailureSink& failures = *sink;
      Trapped(failures, handler->label, [&](Line& line) { handler->body(*alive, line, args); });
    }
  };

  Owner& owner_;
  FailureSink& sink_;
  std::vector<std::shared_ptr<const Declared>> handlers_;
  std::vector<Subscription> subscriptions_;
  Object object_;
};

}  // namespace qvx
