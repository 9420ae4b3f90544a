// command fields, command about: the All Project Fields dialog and the About box
// as the user opens them.
#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "reporting/fields_form.h"
#include "support/about_form.h"

namespace qvx::scenario {

void RegisterFieldsVerbs(VerbTable& table) {
  table.Add("command fields", "command fields",
            "the user gives the All Project Fields command (toolbar or ribbon) on the current "
            "item or selection",
            [](World& w, const Args& a) {
              a.Expect(0);
              ShowStaticFields(w.addin().state());
            });
  table.Add("command about", "command about",
            "the user gives the About command (the menu's About Quorvix, the backstage's About)",
            [](World& w, const Args& a) {
              a.Expect(0);
              ShowAbout(w.addin().state());
            });
}

}  // namespace qvx::scenario
