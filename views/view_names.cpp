#include "views/view_names.h"

#include "addin/state.h"
#include "settings/single_list.h"

namespace qvx {

void subLoadViewNames(AddinState& s) {
  s.main.colViewNames = std::make_unique<cSingleList>();
}

}  // namespace qvx
