#include "reporting/color_codes.h"

#include <memory>

#include "core/host_constants.h"
#include "settings/my_settings.h"
#include "settings/tasks_per_project_list.h"
#include "state/addin_state.h"
#include "support/outlook_session.h"

namespace qvx {
namespace {

// Recolours or adds the project's category; failures are left pending.
void PutCategory(AddinState& s, const cProjectClient& project) {
  const Object categories = s.main.objNameSpace.Get("Categories").ToObject();
  Object category;
  IgnoreFailure(s.err, [&] {
    const Variant found = categories.Call("Item", {Variant(project.ListName)});
    if (found.IsObject()) category = found.ToObject();
  });
  if (category) {
    category.Put("Color", Variant(project.intColorCode));
  } else {
    categories.Call("Add", {Variant(project.ListName), Variant(project.intColorCode)});
  }
}

}  // namespace

void LoadProjectColorCodesToOutlook(AddinState& s) noexcept {
  Trapped(s, "Main.LoadProjectColorCodesToOutlook", [&](Line& line) {
    line = 10;
    const cMySettings& settings = s.main.Settings();
    if (settings.AddProjectColorCodes == 0) return;
    line = 20;
    if (GetVersion(s) < 12) return;  // categories with colours came with version 12
    line = 30;
    if (s.main.objNameSpace.IsNothing()) EnsureOutlookSession(s, host::olFolderInbox);
    if (s.main.objNameSpace.IsNothing()) return;
    line = 40;
    if (settings.MyProjectsTasks->dicList.Count() == 0) return;
    line = 50;
    // A copy: the messages let through may read the settings again and
    // replace the catalogue under the loop.
    const auto entries = settings.MyProjectsTasks->dicList.Entries();
    for (const auto& entry : entries) {
      s.system().DoEvents();
      // A bad entry is passed over.
      Quietly(s.err, [&] {
        if (entry.value && entry.value->Project) PutCategory(s, *entry.value->Project);
      });
    }
  });
}

}  // namespace qvx
