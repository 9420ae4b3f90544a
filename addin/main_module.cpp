#include "addin/main_module.h"

#include <algorithm>

#include "addin/explorers_event_client.h"
#include "addin/inspectors_client.h"
#include "commandbars/explorer_client.h"
#include "companion/companion_launch.h"
#include "companion/listener_form.h"
#include "companion/section_codes.h"
#include "core/host_constants.h"
#include "settings/my_settings.h"
#include "settings/single_list.h"
#include "support/file_module.h"
#include "support/mail_library.h"
#include "support/outlook_session.h"
#include "views/view_names.h"

namespace qvx {

void subFirstPoint(AddinState& s) {
  Trapped(s, "Main.subFirstPoint", [&](Line& line) {
    line = 10;
    s.main.objMySettings = std::make_unique<cMySettings>();
    line = 20;
    FileModule::Initialize(s);
    line = 30;
    s.main.Settings().ReadSettings(s);
  });
}

void StartingPoint(AddinState& s, bool& blnRestart) {
  Trapped(s, "Main.StartingPoint", [&](Line& line) {
    line = 10;
    if (blnRestart) subKillObjects(s);
    line = 20;
    s.main.strToolName = "Client Tool";
    line = 30;
    LoadListenToLocal(s);  // the message channel is live before anything else is built
    line = 40;
    InitMapiUtils(s);  // tells of a missing library itself; start-up goes on
    line = 50;
    s.main.objExplorersClient = std::make_shared<cExplorersEventClient>(s);
    line = 60;
    ShowDefaultFolder(
        s,
        host::olFolderCalendar);  // the calendar, when the host started without an explorer
    line = 70;
    subLoadViewNames(s);
    line = 80;
    const Object& outlook = s.main.objOutlook;
    s.main.objExplorersClient->oExplorers.Set(outlook.Get("Explorers").ToObject());
    line = 90;
    if (outlook && outlook.Get("Explorers").ToObject().Get("Count").ToLong() > 0) {
      s.main.objExplorersClient->oueCurrExplorer = outlook.Get("ActiveExplorer").ToObject();
      bool addButtons = true;
      s.main.objExplorersClient->LoadSupportCallsMenu(addButtons);
    }
    line = 100;
    const cMySettings& settings = s.main.Settings();
    const int32_t dbChoice = settings.DBChoice;
    const std::string connection = settings.DBConnectionString;
    line = 110;
    if (dbChoice == 0 && connection.empty()) {
      subLoadSection(s, companion::kSectionMyProjectsTasks);  // nothing configured yet: the
                                                              // first-run section alone
      return;
    }
    line = 120;
    if (settings.AutoSyncToDB != 0) subLoadSection(s, companion::kSectionAutoSync);
    line = 130;
    if (settings.ReportIemsOnDueDateLapsedAutomatically != 0)
      subLoadSection(s, companion::kSectionReportLapsedItems);
    line = 140;
    if (settings.AutoCheckForUpgradeAtStartup != 0)
      subLoadSection(s, companion::kSectionAutoCheckForUpgrade);
  });
}

void subKillObjects(AddinState& s) {
  // Every step runs with failures ignored, so that one failed release does
  // not keep the later ones from running.
  Trapped(s, "Main.subKillObjects", [&](Line& line) {
    MainGlobals& m = s.main;
    line = 10;
    Quietly(s.err, [&] { m.colViewNames.reset(); });
    Quietly(s.err, [&] { m.objRibbonUI.Release(); });
    Quietly(s.err, [&] { m.objInspectorsClient.reset(); });
    Quietly(s.err, [&] { m.objExplorersClient.reset(); });
    Quietly(s.err, [&] { m.colExplorerClients.reset(); });
    Quietly(s.err, [&] { m.objMySettings.reset(); });
    line = 20;
    Quietly(s.err, [&] { CleanupMapiUtils(s); });
    line = 30;
    Quietly(s.err, [&] { s.support.objFSO.Release(); });
    Quietly(s.err, [&] { m.objOutlook.Release(); });
    Quietly(s.err, [&] { m.objNameSpace.Release(); });
    line = 40;
    Quietly(s.err, [&] { m.fListenToAdmin.reset(); });
    Quietly(s.err, [&] { m.fListenToLocal.reset(); });
    line = 50;
    // Last to first; a form that refuses to go must not stall the loop.
    for (size_t i = m.forms.size(); i >= 1 && i <= m.forms.size(); --i) {
      bool gone = false;
      IgnoreFailure(s.err, [&] { gone = m.forms[i - 1]->Unload(); });
      if (gone) m.forms.erase(m.forms.begin() + static_cast<std::ptrdiff_t>(i - 1));
      if (m.forms.size() == i) break;
    }
    line = 60;
    m.phase = AddinPhase::TornDown;
    s.err.Clear();
  });
}

void subShutDownOutlook(AddinState& s) {
  Trapped(s, "Main.subShutDownOutlook", [&](Line& line) {
    line = 10;
    if (s.main.objOutlook.Get("Explorers").ToObject().Get("Count").ToLong() < 1) subKillObjects(s);
  });
}

std::string GetAppVersion() {
  return std::to_string(QVX_VERSION_MAJOR) + "." + std::to_string(QVX_VERSION_MINOR) + "." +
         std::to_string(QVX_VERSION_PATCH);
}

}  // namespace qvx
