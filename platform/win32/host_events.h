// The host's event dispinterfaces: which connection point carries an event of
// a given name, and under which DISPID it arrives. Outlook's and Office's
// event interfaces are pure dispinterfaces; the source calls the sink's Invoke
// with these DISPIDs directly.
//
// One event name can live on several dispinterfaces ("Close" on explorers and
// inspectors, "Quit" on three generations of the application's events). They
// are listed newest first; a subscriber takes the first one the source offers.
#pragma once

#include "platform/win32/win32_api.h"

#include <span>
#include <string_view>

namespace qvx::win32 {

struct HostEvent {
  const GUID* diid;       // the dispinterface the source's connection point carries
  std::string_view name;  // "NewExplorer"
  DISPID dispid;          // as the source calls it
};

// Every event this module knows, grouped by dispinterface, newest first.
std::span<const HostEvent> HostEvents() noexcept;
bool IsKnownEventInterface(REFIID diid) noexcept;
// The dispinterface through which Outlook raises the events of an object of
// this type name ("Explorer" -> ExplorerEvents_10), or null if it has none.
const GUID* EventInterfaceOfType(std::string_view typeName);

namespace diid {
extern const GUID ApplicationEvents_11;
extern const GUID ApplicationEvents_10;
extern const GUID ApplicationEvents;
extern const GUID ExplorersEvents;
extern const GUID InspectorsEvents;
extern const GUID ExplorerEvents_10;
extern const GUID ExplorerEvents;
extern const GUID InspectorEvents_10;
extern const GUID InspectorEvents;
extern const GUID ItemsEvents;
extern const GUID CommandBarButtonEvents;
extern const GUID CommandBarComboBoxEvents;
}  // namespace diid

}  // namespace qvx::win32
