#include "addin/inspectors_client.h"

#include "state/addin_state.h"

namespace qvx {

cInspectors::cInspectors(AddinState& s) : ouisInspectors(*this, s), s_(s) {
  ouisInspectors.On("NewInspector", "Inspectors.NewInspector",
                    [](cInspectors& self, Line& line, EventArgs& args) {
                      self.ouisInspectors_NewInspector(
                          line, args.empty() ? Object{} : args[0].ToObject());
                    });
}

void cInspectors::UpdateToolbarsOf(const std::string&) noexcept {
  // No inspector bars exist yet: nothing to refresh.
}

void cInspectors::ouisInspectors_NewInspector(Line&, const Object&) {
  // Inspector bars are built with the command-bar interface.
}

}  // namespace qvx
