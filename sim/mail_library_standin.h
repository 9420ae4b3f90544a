// A stand-in for the closed mail library that the add-in reaches by the
// ProgIDs "ZNBLib.ZNBMAPIUtils" and "ZNBLib.ZNBMailItem", for tests and the
// simulator. Absent by default (the object factory answers 429); Install
// makes it present. It reads named properties through the item's own
// UserProperties, and plays the store's habit of keeping dates in UTC.
//
//   MailLibraryStandIn library;                  // or {.refuseKey = true}
//   library.Install(objects);                    // a PosixObjectFactory
//   ... GetFieldValueFromItem(s, item, "ReportedID", VarType::String) ...
//   library.record().getOneProp == 1
//
// Members of "ZNBLib.ZNBMAPIUtils": AuthKey (write-only), GetIDsFromNames(item,
// guid, name) (fails for a property the item lacks), HrGetOneProp(item, tag)
// (null for an empty value; dates in UTC), HrGMTToLocal(value), DeliverNow,
// Cleanup. Of "ZNBLib.ZNBMailItem": Item, AuthKey, Send. Everything but
// AuthKey fails until the right access key was given to that object.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/object.h"

namespace qvx::platform {
class PosixObjectFactory;
}

namespace qvx::sim {

struct MailLibraryOptions {
  std::string acceptedKey;      // "" means the add-in's own key
  bool refuseKey = false;       // every AuthKey fails, as an unlicensed copy does
  double utcOffsetHours = 0.0;  // local time = UTC + offset
  bool failGetOneProp = false;  // HrGetOneProp fails after a valid tag
};

// What was done with the library, for tests and scenario expectations.
struct MailLibraryRecord {
  int utilsCreated = 0;
  int mailItemsCreated = 0;
  int keysRefused = 0;
  int idsFromNames = 0;
  int getOneProp = 0;
  int gmtToLocal = 0;
  int deliverNow = 0;
  int cleanups = 0;
  std::vector<Object> sent;  // items given to Send
};

// The library's error numbers (MAPI's, as the library raises them).
inline constexpr int32_t kMapiNotFound = static_cast<int32_t>(0x8004010Fu);
inline constexpr int32_t kMapiNoAccess = static_cast<int32_t>(0x80070005u);
inline constexpr int32_t kMapiCallFailed = static_cast<int32_t>(0x80004005u);

class MailLibraryStandIn {
 public:
  MailLibraryStandIn() : MailLibraryStandIn(MailLibraryOptions{}) {}
  explicit MailLibraryStandIn(MailLibraryOptions options);

  // Registers both ProgIDs with the factory: the library is now installed.
  void Install(platform::PosixObjectFactory& objects);
  Object CreateMapiUtils();
  Object CreateMailItem();

  MailLibraryOptions& options();
  const MailLibraryRecord& record() const;

  struct Library;

 private:
  std::shared_ptr<Library> library_;
};

}  // namespace qvx::sim
