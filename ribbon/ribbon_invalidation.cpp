#include "ribbon/ribbon_invalidation.h"

#include "state/addin_state.h"

namespace qvx {

void subInvalidateRibbon(AddinState& s) noexcept {
  if (s.main.objRibbonUI.IsNothing()) return;
  Quietly(s.err, [&] { s.main.objRibbonUI.Call("Invalidate"); });
}

void subInvalidateControl(AddinState& s, std::string_view controlId) noexcept {
  if (s.main.objRibbonUI.IsNothing()) return;
  Quietly(s.err, [&] { s.main.objRibbonUI.Call("InvalidateControl", {Variant(controlId)}); });
}

}  // namespace qvx
