#include "addin/explorers_event_client.h"

#include "addin/inspectors_client.h"
#include "commandbars/explorer_client.h"
#include "state/addin_state.h"
#include "support/host_items.h"
#include "support/outlook_session.h"

namespace qvx {

cExplorersEventClient::cExplorersEventClient(AddinState& s) : oExplorers(*this, s), s_(s) {
  oExplorers.On("NewExplorer", "Explorers.NewExplorer",
                [](cExplorersEventClient& self, Line& line, EventArgs& args) {
                  self.oExplorers_NewExplorer(line, args.empty() ? Object{} : args[0].ToObject());
                });
  Quietly(s.err, [&] {
    s.main.objInspectorsClient = std::make_shared<cInspectors>(s);
    s.main.objInspectorsClient->ouisInspectors.Set(s.main.objOutlook.Get("Inspectors").ToObject());
  });
  Quietly(s.err, [&] {
    s.main.colExplorerClients =
        std::make_unique<OrderedDictionary<std::shared_ptr<cExplorerClient>>>();
  });
}

cExplorersEventClient::~cExplorersEventClient() {
  oueCurrExplorer.Release();
  oExplorers.Release();
  if (s_.main.colExplorerClients) s_.main.colExplorerClients->Clear();
  s_.main.colExplorerClients.reset();
}

void cExplorersEventClient::LoadSupportCallsMenu(bool& blnAddButtons) noexcept {
  Trapped(s_, "Explorers.Initialize", [&](Line& line) {
    AddinState& s = s_;
    line = 10;
    auto client = std::make_shared<cExplorerClient>(s);
    client->oueCurrExplorer.Set(oueCurrExplorer);
    client->ouaMonitorApp.Set(s.main.objOutlook);
    line = 20;
    client->subTrackRequiredFolder();
    line = 30;
    client->strRemoveTag =
        "EXPLORER" + s.main.objOutlook.Get("Explorers").ToObject().Get("Count").ToText();
    line = 40;
    if (blnAddButtons) client->subAddButtons();
    line = 50;
    // The key is taken when the count went down and up again: the new client replaces the old.
    if (!IgnoreFailure(s.err,
                       [&] { s.main.colExplorerClients->Add(client->strRemoveTag, client); })) {
      s.main.colExplorerClients->Remove(client->strRemoveTag);
      s.err.Clear();
      s.main.colExplorerClients->Add(client->strRemoveTag, client);
    }
  });
}

void cExplorersEventClient::UpdateAllDisplayedToolbars() noexcept {
  Trapped(s_, "Explorers.UpdateAllDisplayedToolbars", [&](Line& line) {
    AddinState& s = s_;
    line = 10;
    auto* clients = s.main.colExplorerClients.get();
    if (clients && clients->Count() > 0) {
      const size_t count = clients->Count();
      for (size_t i = 1; i <= count; ++i) {
        std::shared_ptr<cExplorerClient> client;
        IgnoreFailure(s.err, [&] {
          if (auto* found = clients->Find("EXPLORER" + std::to_string(i))) client = *found;
        });
        if (client) client->UpdateToolbars();
      }
    }
    line = 20;
    std::string entryId;
    if (IsActiveWindowOfInspector(s)) {
      IgnoreFailure(s.err, [&] {
        entryId = s.main.objOutlook.Get("ActiveInspector")
                      .ToObject()
                      .Get("CurrentItem")
                      .ToObject()
                      .Get("EntryID")
                      .ToText();
      });
    }
    line = 30;
    if (entryId.empty() || !s.main.objInspectorsClient) return;
    if (s.main.objOutlook.Get("Inspectors").ToObject().Get("Count").ToLong() <= 0) return;
    line = 40;
    s.main.objInspectorsClient->UpdateToolbarsOf(entryId);
  });
}

void cExplorersEventClient::oExplorers_NewExplorer(Line& line, const Object& explorer) {
  line = 10;
  oueCurrExplorer = explorer;
  line = 20;
  bool addButtons = false;
  LoadSupportCallsMenu(addButtons);
}

}  // namespace qvx
