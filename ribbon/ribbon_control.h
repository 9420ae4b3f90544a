// What a callback learns from the IRibbonControl the host passes: its Id, its
// Tag and its Context (the Explorer or Inspector of the window). A control that is
// no object fails as the use of one does (424).
//
//   const std::string id = ControlId(control);
//   const Object inspector = ControlContext(control);  // Nothing if none
#pragma once

#include <string>

#include "core/object.h"
#include "core/variant.h"

namespace qvx {

std::string ControlId(const Variant& control);
// The control's Tag, as the markup gives it.
std::string ControlTag(const Variant& control);
// The control's Context, or Nothing when it holds no object.
Object ControlContext(const Variant& control);

}  // namespace qvx
