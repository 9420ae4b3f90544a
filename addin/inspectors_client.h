// cInspectors: follows the host's Inspectors collection and keeps the bars of
// each open inspector of a supported item, keyed by the item's EntryID.
// The bars themselves arrive with the command-bar interface.
// Held by a shared_ptr (objInspectorsClient), so that its sinks keep it alive.
#pragma once

#include <memory>
#include <string>

#include "core/event_field.h"

namespace qvx {

class AddinState;

class cInspectors : public std::enable_shared_from_this<cInspectors> {
 public:
  explicit cInspectors(AddinState& s);

  // Refreshes the bars of the inspectors that show the item with this EntryID.
  void UpdateToolbarsOf(const std::string& entryId) noexcept;

  // The host's Inspectors; NewInspector arrives once it is set.
  EventField<cInspectors> ouisInspectors;

 private:
  void ouisInspectors_NewInspector(Line& line, const Object& inspector);

  AddinState& s_;
};

}  // namespace qvx
