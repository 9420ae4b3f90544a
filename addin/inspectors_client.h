// cInspectors: follows the host's Inspectors collection and keeps the bars of
// each open inspector of a supported item, keyed by the item's EntryID (an
// unsaved item's empty EntryID is one key for all of them). A second
// inspector on the same item replaces the first one's entry. When an
// inspector closes, its bars have their entries removed (ForgetToolbar).
// Held by a shared_ptr (objInspectorsClient), so that its sinks keep it alive.
//
//   auto client = std::make_shared<cInspectors>(s);
//   client->ouisInspectors.Set(s.main.objOutlook.Get("Inspectors").ToObject());
//   client->UpdateToolbarsOf(entryId);   // after an outside change
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/event_field.h"
#include "core/ordered_dictionary.h"

namespace qvx {

class AddinState;
class cStandardTB;
class cCustomFieldsTB;

class cInspectors : public std::enable_shared_from_this<cInspectors> {
 public:
  explicit cInspectors(AddinState& s);
  ~cInspectors();

  // Refreshes the bars entered under this EntryID, once for every entry of
  // their dictionary and every open inspector on that item: repeats do no harm.
  void UpdateToolbarsOf(const std::string& entryId) noexcept;
  // Removes the entry of the project bar, or of the custom fields bar, kept
  // under this EntryID; nothing if there is none.
  void ForgetToolbar(std::string_view entryId, bool customFields) noexcept;

  std::unique_ptr<OrderedDictionary<std::shared_ptr<cStandardTB>>> colInspectorsTB;
  std::unique_ptr<OrderedDictionary<std::shared_ptr<cCustomFieldsTB>>> colInspectorsCustomFieldsTB;
  // The host's Inspectors; NewInspector arrives once it is set.
  EventField<cInspectors> ouisInspectors;

 private:
  void ouisInspectors_NewInspector(Line& line, const Object& inspector);

  AddinState& s_;
};

}  // namespace qvx
