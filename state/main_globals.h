// The main module's process-wide objects, released only by the tear-down.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/object.h"
#include "core/ordered_dictionary.h"
#include "core/owner.h"
#include "state/loaded_form.h"

namespace qvx {

// Owned here, defined by the subsystems above this record.
class cExplorersEventClient;
class cInspectors;
class cExplorerClient;
class cMySettings;
class cSingleList;
class ListenerForm;

// The registered ids of the two message channels, kept once registered.
struct ChannelIds {
  uint32_t clientMessageId = 0;
  uint32_t managerMessageId = 0;
};

// Where the add-in stands in its life: it only ever moves forward.
enum class AddinPhase { NotConnected, Connected, Started, TornDown };

struct MainGlobals {
  MainGlobals();
  ~MainGlobals();

  // The settings record, as code that reads it sees it: after a tear-down it
  // is gone, and a use then fails as the use of a released object does (91).
  cMySettings& Settings() const;

  AddinPhase phase = AddinPhase::NotConnected;
  Object objOutlook;
  bool blnAddinConnected = false;  // set on connection; nothing reads it
  Owner<cMySettings> objMySettings;
  std::string strToolName;
  std::shared_ptr<ListenerForm> fListenToLocal;
  std::shared_ptr<ListenerForm> fListenToAdmin;
  // Shared, so that their event handlers keep them alive (core/event_field.h);
  // a shared_ptr needs no complete type here either.
  std::shared_ptr<cExplorersEventClient> objExplorersClient;
  std::shared_ptr<cInspectors> objInspectorsClient;
  std::unique_ptr<OrderedDictionary<std::shared_ptr<cExplorerClient>>> colExplorerClients;
  Object objNameSpace;
  Owner<cSingleList> colViewNames;
  Object objRibbonUI;
  ChannelIds channel;
  // The runtime's collection of loaded forms, in load order.
  std::vector<std::shared_ptr<LoadedForm>> forms;
};

}  // namespace qvx
