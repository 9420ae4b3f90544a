// State of the tagging actions, shared with the bars and the ribbon.
#pragma once

namespace qvx {

struct TaggingState {
  // True while a project value is being written (TagProjectValueToItem, the
  // project bar's change handler). The selection handler and ShowFields do
  // nothing while it is set, so that the pump between two items cannot
  // refresh the bars with a half-tagged selection.
  bool blnTaggingInProgress = false;
};

}  // namespace qvx
