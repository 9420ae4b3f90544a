// cInspectors: follows the host's Inspectors collection and keeps the bars of
// each open inspector of a supported item, keyed by the item's EntryID.
// The bars themselves arrive with the command-bar interface.
#pragma once

#include <string>

#include "core/object.h"

namespace qvx {

class AddinState;

class cInspectors {
 public:
  explicit cInspectors(AddinState& s) : s_(s) {}
  ~cInspectors();

  void SetInspectors(const Object& inspectors);
  // Refreshes the bars of the inspectors that show the item with this EntryID.
  void UpdateToolbarsOf(const std::string& entryId) noexcept;

  Object ouisInspectors;

 private:
  void ouisInspectors_NewInspector(const Object& inspector) noexcept;

  AddinState& s_;
  Subscription newInspector_;
};

}  // namespace qvx
