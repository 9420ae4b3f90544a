// explorer activate, inspector close / new, post message, expect explorer-clients / inspector-bars
// / explorer-refreshes / inspector-refreshes / last-message: the host's windows as the add-in
// follows them, and what reaches its listener window.
#include "addin/inspectors_client.h"
#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "commandbars/custom_fields_toolbar.h"
#include "commandbars/explorer_client.h"
#include "commandbars/standard_toolbar.h"
#include "companion/listener_form.h"
#include "companion/message_names.h"
#include "core/host_constants.h"
#include "core/text.h"
#include "sim/explorer.h"
#include "sim/folder.h"
#include "sim/inspector.h"

namespace qvx::scenario {
namespace {

const std::vector<std::string> kBarKinds = {"standard", "custom-fields"};

MainGlobals& Globals(World& w) {
  return w.addin().state().main;
}

// The keys of a dictionary, as a script lists them.
template <class Dictionary>
std::string KeysOf(const Dictionary* entries) {
  std::string keys;
  if (!entries) return keys;
  for (const auto& entry : *entries) keys += (keys.empty() ? "" : ", ") + Shown(entry.key);
  return keys;
}

std::string Words(const Args& a, size_t from) {
  std::string words;
  for (size_t i = from; i < a.size(); ++i) words += (i > from ? ", " : "") + Shown(a.At(i));
  return words;
}

// How often the bar under the key was refreshed; a usage error when there is none.
template <class Dictionary>
int RefreshesOf(const Dictionary* entries, const std::string& key) {
  const auto* found = entries ? entries->Find(key) : nullptr;
  if (!found || !*found) throw ExpectationFailed("a bar under " + Shown(key), KeysOf(entries));
  return (*found)->toolbarUpdates;
}

}  // namespace

void RegisterWindowVerbs(VerbTable& table) {
  table.Add("explorer activate", "explorer activate FOLDER",
            "the user brings forward the first open explorer that shows the folder (by name)",
            [](World& w, const Args& a) {
              a.Expect(1);
              for (const auto& explorer : w.host().Explorers()) {
                if (explorer->folder() && EqualsText(explorer->folder()->name(), a.At(0))) {
                  w.host().Activate(*explorer);
                  return;
                }
              }
              throw UsageError("no explorer shows " + a.At(0));
            });
  table.Add("inspector close", "inspector close", "the user closes the active inspector",
            [](World& w, const Args& a) {
              a.Expect(0);
              auto inspector = w.host().ActiveInspector();
              if (!inspector) throw UsageError("no inspector is open");
              w.host().Close(*inspector);
            });
  table.Add("inspector new", "inspector new appointment|task",
            "the user opens an inspector on a new item: unsaved, no folder, no EntryID",
            [](World& w, const Args& a) {
              a.Expect(1);
              const int32_t type = a.Choice(0, {"appointment", "task"}) == 0
                                       ? host::olAppointmentItem
                                       : host::olTaskItem;
              w.host().OpenInspector(w.host().NewItem(type));
            });
  table.Add("post message", "post message NUMBER [WPARAM [LPARAM]]",
            "any window message, by number, posted to the listener window",
            [](World& w, const Args& a) {
              a.Expect(1, 3);
              const intptr_t wParam = a.size() > 1 ? a.Int(1) : 0;
              const intptr_t lParam = a.size() > 2 ? a.Int(2) : 0;
              if (!w.windows().Post(companion::kClientWindowCaption,
                                    static_cast<uint32_t>(a.Int(0)), wParam, lParam)) {
                throw ExpectationFailed("the listener window", "(no such window)");
              }
            });
  table.Add("expect explorer-clients", "expect explorer-clients [KEY...]",
            "the add-in's explorer clients by their keys, in the order they were entered",
            [](World& w, const Args& a) {
              ExpectEqual(Words(a, 0), KeysOf(Globals(w).colExplorerClients.get()));
            });
  table.Add("expect inspector-bars", "expect inspector-bars standard|custom-fields [ENTRYID...]",
            "the inspectors' bars of one kind by the EntryID they are kept under, in order",
            [](World& w, const Args& a) {
              a.Expect(1, 1000);
              const auto& inspectors = Globals(w).objInspectorsClient;
              const bool standard = a.Choice(0, kBarKinds) == 0;
              std::string seen;
              if (inspectors && standard) seen = KeysOf(inspectors->colInspectorsTB.get());
              if (inspectors && !standard) {
                seen = KeysOf(inspectors->colInspectorsCustomFieldsTB.get());
              }
              ExpectEqual(Words(a, 1), seen);
            });
  table.Add(
      "expect explorer-refreshes", "expect explorer-refreshes KEY COUNT",
      "how often the explorer client under KEY refreshed its bars", [](World& w, const Args& a) {
        a.Expect(2);
        ExpectEqual(std::to_string(a.Int(1)),
                    std::to_string(RefreshesOf(Globals(w).colExplorerClients.get(), a.At(0))));
      });
  table.Add("expect inspector-refreshes",
            "expect inspector-refreshes standard|custom-fields ENTRYID COUNT",
            "how often the inspector's bar of that kind kept under ENTRYID was refreshed",
            [](World& w, const Args& a) {
              a.Expect(3);
              const auto& inspectors = Globals(w).objInspectorsClient;
              if (!inspectors) throw ExpectationFailed("the inspectors' sink", "(none)");
              const int seen =
                  a.Choice(0, kBarKinds) == 0
                      ? RefreshesOf(inspectors->colInspectorsTB.get(), a.At(1))
                      : RefreshesOf(inspectors->colInspectorsCustomFieldsTB.get(), a.At(1));
              ExpectEqual(std::to_string(a.Int(2)), std::to_string(seen));
            });
  table.Add("expect last-message", "expect last-message client|manager VALUE|none",
            "the value the channel's form kept last (iCurrentWindowMessage); none: no such form",
            [](World& w, const Args& a) {
              a.Expect(2);
              const auto& form = a.Choice(0, {"client", "manager"}) == 0
                                     ? Globals(w).fListenToLocal
                                     : Globals(w).fListenToAdmin;
              ExpectEqual(a.At(1), form ? std::to_string(form->iCurrentWindowMessage) : "none");
            });
}

}  // namespace qvx::scenario
