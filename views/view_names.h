// The catalogue of prepared view names, made once at start-up.
#pragma once

namespace qvx {

class AddinState;

// Makes colViewNames. The fourteen names arrive with the view catalogue;
// until then the list is made empty.
void subLoadViewNames(AddinState& s);

}  // namespace qvx
