// SimContext: what all objects of one simulated host share: its clock, the
// source of entry ids, the hooks a test or the simulator sets, and the queue
// of pending work. Objects hold it by shared pointer, so that a handle the
// add-in keeps past the world's end still points at valid memory.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "core/object.h"
#include "core/variant.h"
#include "sim/message_queue.h"

namespace qvx::sim {

class SimApplication;
class SimItem;
class SimWindow;

struct SimContext {
  // The host's present time; LastModificationTime is stamped from it.
  std::function<DateValue()> clock;
  // Application.CreateObject; empty means every ProgID fails with 429.
  std::function<Object(std::string_view progId)> createObject;
  // What Explorer.CommandBars and Inspector.CommandBars give; Nothing if empty.
  std::function<Object(SimWindow& window)> commandBars;
  // Closing the last window quits the host (raises Application.Quit).
  bool quitOnLastWindowClose = true;
  std::weak_ptr<SimApplication> app;
  MessageQueue pending;
  uint64_t nextEntryId = 1;
  uint64_t nextStoreId = 1;
  // Every member call and enumeration on the host's objects reached from the
  // Application (or handed over with an event): what the add-in costs the host.
  uint64_t hostCalls = 0;
  // Told of every change the add-in makes to an item through the object
  // model: a field put, a user property added, set or removed, a Save, a
  // Delete. Empty by default; the soak checks that only selected items change.
  std::function<void(const SimItem&)> itemWritten;

  // The Application as the add-in sees it; Nothing once it is gone.
  Object Application() const;
  DateValue Now() const { return clock ? clock() : DateValue{46023.375}; }
  // A fresh identifier in the host's form: 48 hex digits.
  std::string NewEntryId();
};

using ContextPtr = std::shared_ptr<SimContext>;

}  // namespace qvx::sim
