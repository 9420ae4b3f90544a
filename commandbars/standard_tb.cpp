#include "commandbars/standard_tb.h"

namespace qvx {

void cStandardTB::subAddButtons() noexcept {}
void cStandardTB::ShowFields(const Object&) noexcept {}
void cStandardTB::UpdateToolbar() noexcept {
  ++toolbarUpdates;
}

}  // namespace qvx
