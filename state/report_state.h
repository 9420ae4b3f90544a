// State of the report pipeline.
#pragma once

namespace qvx {

struct ReportState {
  // Whether the last item asked for came from an inspector rather than an
  // explorer's selection. Kept as the item lookup leaves it; nothing reads it.
  bool blnLastItemFromInspector = false;
};

}  // namespace qvx
