// cExplorerClient: the add-in's menu "Quorvix Client" on the explorer's
// active menu bar, the way to the companion's dialogs and to help.
#include <array>

#include "commandbars/bar_controls.h"
#include "commandbars/explorer_client.h"
#include "companion/companion_launch.h"
#include "companion/section_codes.h"
#include "core/host_constants.h"
#include "core/trap.h"
#include "settings/my_settings.h"
#include "state/addin_state.h"
#include "support/about_form.h"
#include "support/app_texts.h"
#include "support/endpoints.h"
#include "support/file_module.h"
#include "support/outlook_session.h"

namespace qvx {
namespace {

constexpr std::string_view kMenuTag = "QuorvixClientMenu";
constexpr int32_t kNoFace = 0;

using Click = void (*)(AddinState& s);

// One entry of the menu, in its order from the top.
struct MenuEntry {
  std::string_view caption;  // "" for the entry built from the titles
  std::string_view tooltip;
  int32_t faceId;
  bool beginGroup;
  bool explicitEnabled;
  Click click;
};

void LoadSection(AddinState& s, int32_t section) {
  subLoadSection(s, section);
}

void OpenHelpFile(AddinState& s) {
  Trapped(s, "ExplorerClient.cmdHelp.Click", [&](Line& line) {
    line = 10;
    std::string folder = s.system().AddinFolder();
    while (!folder.empty() && (folder.back() == '/' || folder.back() == '\\')) folder.pop_back();
    line = 20;
    const std::string file = folder + "\\QuorvixClient.pdf";
    if (s.system().FileExists(file)) s.system().ShellExecute(file);
  });
}

void AskShutdown(AddinState& s) {
  Trapped(s, "ExplorerClient.cmdShutdown.Click", [&](Line& line) {
    line = 10;
    const int answer =
        s.ui().MessageBox("Are you sure you want to shutdown Quorvix Client for Outlook?",
                          platform::msgbox::kYesNo + platform::msgbox::kInformation, kMessageTitle);
    line = 20;
    if (answer == platform::msgbox::kYes) {
      s.upward().subKillObjects();
      s.err.Clear();
    }
  });
}

constexpr std::array<MenuEntry, 12> kMenu{{
    {"My Project Data Source", "Configure reporting options and connection to the server database",
     1814, false, true,
     [](AddinState& s) { LoadSection(s, companion::kSectionProjectDataSource); }},
    {"Sync Quorvix && Project Settings",
     "Synchronize Quorvix and Project Settings from the Project Database", 1759, false, true,
     [](AddinState& s) { LoadSection(s, companion::kSectionSyncProjectSettings); }},
    {"", "", 11328, true, true,
     [](AddinState& s) { LoadSection(s, companion::kSectionMyProjectsTasks); }},
    {"My Local Settings", "Configure my personal settings", 6671, false, true,
     [](AddinState& s) { LoadSection(s, companion::kSectionMyLocalSettings); }},
    {"My TimeSheet Summary Reports", "Retrieve summary reports for the current Outlook folder",
     9139, true, true, [](AddinState& s) { LoadSection(s, companion::kSectionSummaryReports); }},
    {"My TimeSheet OLAP Statistics", "Show OLAP statistics for my reported timesheets", 3725, false,
     true, [](AddinState& s) { subLoadOLAPStatistics(s); }},
    {"Help Topics", "Display help topics", 983, true, false, OpenHelpFile},
    {"Video Tutorials", "Go to the video tutorials page of Quorvix for Outlook", 3525, false, false,
     [](AddinState& s) { GotoVideoTutorial(s); }},
    {"Check Updates..", "Check any update/upgrade for Quorvix", 2934, false, false,
     [](AddinState& s) { LoadSection(s, companion::kSectionCheckUpdates); }},
    {"Visit Product Home Page", "Browse to the official home page of Quorvix for Outlook", 3885,
     false, false,
     [](AddinState& s) { FileModule::RunApp(s, ProductWebPage("/Quorvix/"), "", ""); }},
    {"About Quorvix", "About Quorvix for Outlook", kNoFace, false, false, ShowAbout},
    {"Shutdown", "Shutdown Quorvix for Outlook", kNoFace, true, false, AskShutdown},
}};

// The order in which the entries are taken down, by their place in kMenu.
constexpr std::array<size_t, 12> kRemovalOrder{2, 3, 0, 5, 4, 1, 6, 8, 9, 7, 10, 11};

}  // namespace

void cExplorerClient::DeclareMenuHandlers(AddinState& s) {
  for (size_t i = 0; i < kMenu.size(); ++i) {
    menuButtons_[i] = std::make_unique<EventField<cExplorerClient>>(*this, s);
    const Click click = kMenu[i].click;
    if (!click) continue;
    // Help and Shutdown report through traps of their own; the other entries
    // run with failures ignored.
    menuButtons_[i]->On("Click", "ExplorerClient.Menu.Click",
                        [click](cExplorerClient& self, Line&, EventArgs&) {
                          IgnoreFailure(self.s_.err, [&] { click(self.s_); });
                        });
  }
}

// The popup found by its tag on the active menu bar, shown; Nothing if none.
Object cExplorerClient::FindMenu() {
  return oueCurrExplorer.object()
      .Get("CommandBars")
      .ToObject()
      .Get("ActiveMenuBar")
      .ToObject()
      .Call("FindControl", {Variant(host::msoControlPopup), Variant::Missing(), Variant(kMenuTag),
                            Variant(true), Variant(true)})
      .ToObject();
}

void cExplorerClient::DoesMenuExists(bool& blnExists) noexcept {
  ErrorState& err = s_.err;
  blnExists = false;
  IgnoreFailure(err, [&] {
    const Object found = FindMenu();
    blnExists = found && !found.Get("Controls").ToObject().IsNothing();
  });
}

void cExplorerClient::RemoveMenu() noexcept {
  IgnoreFailure(s_.err, [&] {
    if (const Object found = FindMenu()) found.Call("Delete");
  });
}

void cExplorerClient::subAddButtons() noexcept {
  AddinState& s = s_;
  ErrorState& err = s.err;
  bool exists = false;
  DoesMenuExists(exists);
  if (exists) return;
  RemoveMenu();
  // From here a failing statement is skipped and the next one runs.
  IgnoreFailure(err, [&] {
    mnuExplorer =
        oueCurrExplorer.object().Get("CommandBars").ToObject().Get("ActiveMenuBar").ToObject();
  });
  IgnoreFailure(err, [&] {
    mnuClientPopup =
        AddTemporaryControl(mnuExplorer.Get("Controls").ToObject(), host::msoControlPopup);
  });
  IgnoreFailure(err, [&] { mnuClientPopup.Put("Caption", Variant("Quorvix Client")); });
  IgnoreFailure(err, [&] { mnuClientPopup.Put("Visible", Variant(true)); });
  IgnoreFailure(err, [&] { mnuClientPopup.Put("Tag", Variant(kMenuTag)); });
  Object entries;
  IgnoreFailure(err, [&] { entries = mnuClientPopup.Get("Controls").ToObject(); });
  std::string projectTitle;
  std::string activityTitle;
  IgnoreFailure(err, [&] {
    projectTitle = s.main.Settings().ProjectTitle;
    activityTitle = s.main.Settings().ActivityTitle;
  });
  for (size_t i = 0; i < kMenu.size(); ++i) {
    const MenuEntry& entry = kMenu[i];
    // The titles are taken now: a later change does not reach the open menu.
    const std::string caption = entry.caption.empty()
                                    ? "My " + projectTitle + " && " + activityTitle + " Lists"
                                    : std::string(entry.caption);
    const std::string tooltip = entry.caption.empty()
                                    ? "Choose my " + projectTitle + " and " + activityTitle +
                                          " from the available database lists"
                                    : std::string(entry.tooltip);
    Object button;
    IgnoreFailure(err, [&] { button = AddTemporaryControl(entries, host::msoControlButton); });
    IgnoreFailure(err, [&] { menuButtons_[i]->Set(button); });
    IgnoreFailure(err, [&] { button.Put("Style", Variant(host::msoButtonIconAndCaption)); });
    IgnoreFailure(err, [&] { button.Put("Caption", Variant(caption)); });
    if (entry.explicitEnabled) IgnoreFailure(err, [&] { button.Put("Enabled", Variant(true)); });
    if (entry.faceId != kNoFace) {
      IgnoreFailure(err, [&] { button.Put("FaceId", Variant(entry.faceId)); });
    }
    IgnoreFailure(err, [&] { button.Put("TooltipText", Variant(tooltip)); });
    IgnoreFailure(err, [&] { button.Put("BeginGroup", Variant(entry.beginGroup)); });
  }
  // Such a host shows the ribbon: the menu exists and works, unseen.
  IgnoreFailure(err, [&] {
    if (GetVersion(s) >= 14) mnuClientPopup.Put("Visible", Variant(false));
  });
  err.Clear();
}

void cExplorerClient::subRemoveButtons() noexcept {
  ErrorState& err = s_.err;
  for (const size_t i : kRemovalOrder) {
    if (menuButtons_[i]) DeleteControl(err, *menuButtons_[i]);
  }
  // On a built-in menu bar this fails, and the failure is ignored.
  DeleteControl(err, mnuExplorer);
  DeleteControl(err, mnuClientPopup);
  err.Clear();
}

}  // namespace qvx
