#include "ribbon/ribbon_control.h"

namespace qvx {

std::string ControlId(const Variant& control) {
  return control.ToObject().Get("Id").ToText();
}

std::string ControlTag(const Variant& control) {
  return control.ToObject().Get("Tag").ToText();
}

Object ControlContext(const Variant& control) {
  const Variant context = control.ToObject().Get("Context");
  return context.IsObject() ? context.ToObject() : Object();
}

}  // namespace qvx
