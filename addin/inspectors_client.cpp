#include "addin/inspectors_client.h"

#include "state/addin_state.h"

namespace qvx {

cInspectors::~cInspectors() {
  newInspector_.Reset();
  ouisInspectors.Release();
}

void cInspectors::SetInspectors(const Object& inspectors) {
  ouisInspectors = inspectors;
  newInspector_ = inspectors.Subscribe("NewInspector", [this](EventArgs& args) {
    ouisInspectors_NewInspector(args.empty() ? Object{} : args[0].ToObject());
  });
}

void cInspectors::UpdateToolbarsOf(const std::string&) noexcept {
  // No inspector bars exist yet: nothing to refresh.
}

void cInspectors::ouisInspectors_NewInspector(const Object&) noexcept {
  // Inspector bars are built with the command-bar interface.
}

}  // namespace qvx
