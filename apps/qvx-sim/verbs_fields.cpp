// command fields: the All Project Fields dialog as the user opens it.
#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "reporting/fields_form.h"

namespace qvx::scenario {

void RegisterFieldsVerbs(VerbTable& table) {
  table.Add("command fields", "command fields",
            "the user gives the All Project Fields command (toolbar or ribbon) on the current "
            "item or selection",
            [](World& w, const Args& a) {
              a.Expect(0);
              ShowStaticFields(w.addin().state());
            });
}

}  // namespace qvx::scenario
