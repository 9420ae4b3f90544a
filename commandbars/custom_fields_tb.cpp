#include "commandbars/custom_fields_tb.h"

namespace qvx {

void cCustomFieldsTB::subAddButtons() noexcept {}
void cCustomFieldsTB::ShowFields(const Object&) noexcept {}
void cCustomFieldsTB::UpdateToolbar() noexcept {
  ++toolbarUpdates;
}

}  // namespace qvx
