#include "views/view_names.h"

#include "settings/single_list.h"
#include "state/addin_state.h"

namespace qvx {

void subLoadViewNames(AddinState& s) {
  s.main.colViewNames = std::make_unique<cSingleList>();
}

}  // namespace qvx
