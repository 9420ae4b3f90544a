#include "state/main_globals.h"

#include "core/failure.h"

namespace qvx {

MainGlobals::MainGlobals() = default;

cMySettings& MainGlobals::Settings() const {
  if (!objMySettings) throw Failure::Runtime(err::kObjectNotSet);
  return *objMySettings;
}
MainGlobals::~MainGlobals() {
  // The clients reach back into these globals as they go, so they go first.
  objExplorersClient.reset();
  objInspectorsClient.reset();
  forms.clear();
}

}  // namespace qvx
