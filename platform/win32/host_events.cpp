#include "platform/win32/host_events.h"

#include "core/text.h"

namespace qvx::win32 {
namespace diid {

// {0006xxxx-0000-0000-C000-000000000046}: Outlook; {000C03xx-...}: Office.
#define QVX_OLE_GUID(l)                              \
  {                                                  \
    l, 0x0000, 0x0000, {                             \
      0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46 \
    }                                                \
  }
const GUID ApplicationEvents_11 = QVX_OLE_GUID(0x0006302C);
const GUID ApplicationEvents_10 = QVX_OLE_GUID(0x0006300E);
const GUID ApplicationEvents = QVX_OLE_GUID(0x0006304E);
const GUID ExplorersEvents = QVX_OLE_GUID(0x00063078);
const GUID InspectorsEvents = QVX_OLE_GUID(0x00063079);
const GUID ExplorerEvents_10 = QVX_OLE_GUID(0x0006300F);
const GUID ExplorerEvents = QVX_OLE_GUID(0x0006304F);
const GUID InspectorEvents_10 = QVX_OLE_GUID(0x0006302A);
const GUID InspectorEvents = QVX_OLE_GUID(0x0006307D);
const GUID ItemsEvents = QVX_OLE_GUID(0x00063077);
const GUID CommandBarButtonEvents = QVX_OLE_GUID(0x000C0351);
const GUID CommandBarComboBoxEvents = QVX_OLE_GUID(0x000C0354);
#undef QVX_OLE_GUID

}  // namespace diid

namespace {

// Newest generation first; the shared events keep their DISPIDs across them.
const HostEvent kEvents[] = {
    HostEvent{&diid::ApplicationEvents_11, "ItemSend", 0xF002},
    HostEvent{&diid::ApplicationEvents_11, "NewMail", 0xF003},
    HostEvent{&diid::ApplicationEvents_11, "Reminder", 0xF004},
    HostEvent{&diid::ApplicationEvents_11, "OptionsPagesAdd", 0xF005},
    HostEvent{&diid::ApplicationEvents_11, "Startup", 0xF006},
    HostEvent{&diid::ApplicationEvents_11, "Quit", 0xF007},
    HostEvent{&diid::ApplicationEvents_11, "ItemLoad", 0xFBA7},
    HostEvent{&diid::ApplicationEvents_10, "ItemSend", 0xF002},
    HostEvent{&diid::ApplicationEvents_10, "NewMail", 0xF003},
    HostEvent{&diid::ApplicationEvents_10, "Reminder", 0xF004},
    HostEvent{&diid::ApplicationEvents_10, "OptionsPagesAdd", 0xF005},
    HostEvent{&diid::ApplicationEvents_10, "Startup", 0xF006},
    HostEvent{&diid::ApplicationEvents_10, "Quit", 0xF007},
    HostEvent{&diid::ApplicationEvents, "ItemSend", 0xF002},
    HostEvent{&diid::ApplicationEvents, "NewMail", 0xF003},
    HostEvent{&diid::ApplicationEvents, "Reminder", 0xF004},
    HostEvent{&diid::ApplicationEvents, "OptionsPagesAdd", 0xF005},
    HostEvent{&diid::ApplicationEvents, "Startup", 0xF006},
    HostEvent{&diid::ApplicationEvents, "Quit", 0xF007},
    HostEvent{&diid::ExplorersEvents, "NewExplorer", 0xF001},
    HostEvent{&diid::InspectorsEvents, "NewInspector", 0xF001},
    HostEvent{&diid::ExplorerEvents_10, "Activate", 0xF001},
    HostEvent{&diid::ExplorerEvents_10, "FolderSwitch", 0xF002},
    HostEvent{&diid::ExplorerEvents_10, "BeforeFolderSwitch", 0xF003},
    HostEvent{&diid::ExplorerEvents_10, "Deactivate", 0xF006},
    HostEvent{&diid::ExplorerEvents_10, "SelectionChange", 0xF007},
    HostEvent{&diid::ExplorerEvents_10, "Close", 0xF008},
    HostEvent{&diid::ExplorerEvents, "Activate", 0xF001},
    HostEvent{&diid::ExplorerEvents, "FolderSwitch", 0xF002},
    HostEvent{&diid::ExplorerEvents, "BeforeFolderSwitch", 0xF003},
    HostEvent{&diid::ExplorerEvents, "Deactivate", 0xF006},
    HostEvent{&diid::ExplorerEvents, "SelectionChange", 0xF007},
    HostEvent{&diid::ExplorerEvents, "Close", 0xF008},
    HostEvent{&diid::InspectorEvents_10, "Activate", 0xF001},
    HostEvent{&diid::InspectorEvents_10, "Deactivate", 0xF006},
    HostEvent{&diid::InspectorEvents_10, "Close", 0xF008},
    HostEvent{&diid::InspectorEvents, "Activate", 0xF001},
    HostEvent{&diid::InspectorEvents, "Deactivate", 0xF006},
    HostEvent{&diid::InspectorEvents, "Close", 0xF008},
    HostEvent{&diid::ItemsEvents, "ItemAdd", 0xF001},
    HostEvent{&diid::ItemsEvents, "ItemChange", 0xF002},
    HostEvent{&diid::ItemsEvents, "ItemRemove", 0xF003},
    HostEvent{&diid::CommandBarButtonEvents, "Click", 1},
    HostEvent{&diid::CommandBarComboBoxEvents, "Change", 1},
};

}  // namespace

std::span<const HostEvent> HostEvents() noexcept {
  return kEvents;
}

bool IsKnownEventInterface(REFIID diid) noexcept {
  for (const HostEvent& e : kEvents) {
    if (IsEqualGUID(*e.diid, diid)) return true;
  }
  return false;
}

const GUID* EventInterfaceOfType(std::string_view typeName) {
  struct Row {
    std::string_view type;
    const GUID* diid;
  };
  static const Row kRows[] = {
      {"Application", &diid::ApplicationEvents_11},
      {"Explorers", &diid::ExplorersEvents},
      {"Inspectors", &diid::InspectorsEvents},
      {"Explorer", &diid::ExplorerEvents_10},
      {"Inspector", &diid::InspectorEvents_10},
      {"Items", &diid::ItemsEvents},
      {"CommandBarButton", &diid::CommandBarButtonEvents},
      {"CommandBarComboBox", &diid::CommandBarComboBoxEvents},
  };
  for (const Row& row : kRows) {
    if (EqualsText(row.type, typeName)) return row.diid;
  }
  return nullptr;
}

}  // namespace qvx::win32
