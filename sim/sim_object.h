// SimObject: the base of every simulated host object.
//
// Invoke looks the member up in the class's MemberTable (case-blind), checks
// the argument count as late binding does (449 too few, 450 too many) and
// raises 438 for an unknown member. Before that, every call is counted and
// checked against the object's FaultTable, so a test can make any member of
// any object fail:
//
//   explorer->FailMember("Selection", 0x80004005, "boom");       // always
//   explorer->FailMember("CurrentFolder", 13, "Type mismatch", 2); // next two calls
//
// Enumeration is the member "_NewEnum" for faults. An object that counts its
// calls in a context's tally (the Application from its start) passes the
// tally on to every object it gives out, by member, enumeration or event. Events go through an
// EventSource; subscribing to an event the class doesn't raise fails with 438.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/events.h"
#include "core/variant.h"
#include "sim/context.h"
#include "sim/faults.h"
#include "sim/member_table.h"

namespace qvx::sim {

inline constexpr std::string_view kEnumMember = "_NewEnum";

class SimObject : public HostObject, public std::enable_shared_from_this<SimObject> {
 public:
  Variant Invoke(std::string_view name, InvokeKind kind, std::vector<Variant>& args) override;
  std::vector<Variant> Enumerate() override;
  Subscription Subscribe(std::string_view event, EventHandler handler) override;

  // The object as the add-in sees it.
  Object AsObject() { return Object(shared_from_this()); }
  Variant AsVariant() { return Variant(AsObject()); }

  // Fault injection. `times` limits the fault to the next N calls.
  void FailMember(std::string_view member, int32_t number, std::string description,
                  int times = kAlways);
  void FailMember(std::string_view member, Fault fault);
  void ClearFaults() { faults_->ClearAll(); }
  FaultTable& faults() { return *faults_; }
  // Makes this object use (and share) another object's faults.
  void ShareFaults(std::shared_ptr<FaultTable> table) { faults_ = std::move(table); }
  const std::shared_ptr<FaultTable>& sharedFaults() const { return faults_; }

  // How often a member was invoked through Invoke (also failed calls).
  int CallCount(std::string_view member) const;
  void ResetCallCounts() { calls_.clear(); }

  // Reads a member as Get would, but without faults or counting: for the
  // world's own navigation and for test assertions.
  Variant Peek(std::string_view name, Args args = {});

  size_t Raise(std::string_view event, EventArgs& args) {
    for (const Variant& arg : args) PassTally(arg);
    return events_.Raise(event, args);
  }
  size_t Raise(std::string_view event) {
    EventArgs none;
    return events_.Raise(event, none);
  }
  size_t HandlerCount(std::string_view event) const { return events_.HandlerCount(event); }
  bool HasMember(std::string_view name) const { return Members().Find(name) != nullptr; }

 protected:
  // Counts this object's calls in the context's `hostCalls`.
  void CountCallsIn(ContextPtr context) { tally_ = std::move(context); }

  virtual const MemberTable& Members() const = 0;
  // The events this class raises.
  virtual std::span<const std::string_view> EventNames() const { return {}; }
  // The members of a collection; 438 for an object that isn't one.
  virtual std::vector<Variant> Elements();
  // Raises the failure of an object that may no longer be used (a closed
  // window, a deleted item); called before every member.
  virtual void CheckUsable() const {}

 private:
  Variant Dispatch(const Member& m, InvokeKind kind, Args& args);
  // Gives a simulated object in the value this object's tally, if it has none.
  void PassTally(const Variant& value) const;

  std::shared_ptr<FaultTable> faults_ = std::make_shared<FaultTable>();
  std::unordered_map<std::string, int> calls_;  // by folded member name
  EventSource events_;
  ContextPtr tally_;
};

}  // namespace qvx::sim
