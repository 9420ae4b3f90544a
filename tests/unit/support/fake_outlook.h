// A small stand-in of the host for the support services' tests: just the
// members those services reach, with what they did recorded.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/variant.h"
#include "platform/posix/native_object.h"

namespace qvx::testing {

using platform::NativeObject;
using Args = std::vector<Variant>;

// A mail, appointment or other item whose user properties are a name -> value table.
struct FakeItem {
  std::string typeName = "AppointmentItem";
  std::vector<std::pair<std::string, Variant>> userProperties;
  bool isRecurring = false;
  int32_t recurrenceState = 0;
  // Mail fields and what was done with it.
  std::string to, subject, body;
  int saves = 0, displays = 0;
  bool gone = false;  // every member fails, as a deleted item's do

  Object AsObject();
};

struct FakeOutlook {
  std::string version = "12.0.6425";
  std::string mailboxName = "Mailbox - Jane Doe";
  int explorerCount = 1;
  bool hasActiveExplorer = true;
  std::string activeWindowType = "Explorer";  // "" for none
  bool failGetDefaultFolder = false;
  bool failCreateItem = false;
  // What was done.
  int activations = 0, displays = 0, namespaceCalls = 0;
  std::vector<int32_t> explorersAddedFor;  // folder numbers
  std::vector<int32_t> explorerAddModes;
  std::vector<std::shared_ptr<FakeItem>> createdItems;
  std::vector<std::string> hostCreateObjectRequests;
  Object hostCreates;  // what Application.CreateObject answers (Nothing: fails)

  Object Application();
  Object application;
};

}  // namespace qvx::testing
