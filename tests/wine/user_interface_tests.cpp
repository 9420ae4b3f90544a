// The add-in's face on a host it reaches only through IDispatch: command bars
// built on an old host and worked by the user through connection points, and
// the ribbon asked for its markup, callbacks and pictures as Office asks.
#include <olectl.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "core/dates.h"
#include "harness/addin_dll.h"
#include "harness/addin_session.h"
#include "harness/check.h"
#include "harness/companion_journal.h"
#include "harness/dll_ribbon_addin.h"
#include "harness/registry_keys.h"
#include "harness/ui_watcher.h"
#include "platform/win32/dispatch_face.h"
#include "sim/command_bar.h"
#include "sim/command_bar_control.h"
#include "sim/command_bars.h"
#include "sim/explorer.h"
#include "sim/folder.h"
#include "sim/item_classes.h"
#include "sim/user_properties.h"

namespace qvx::winetest {
namespace {

// The document the DLL answers for `ribbonId`, as Office asks for it, kept
// as bin/custom-ui/<name> for tools/wine-tests.sh, which validates every file
// there against Office's schemas after the run.
std::string MarkupKeptForTheSchemaTest(DllRibbonAddin& ribbon, const char* ribbonId,
                                       const std::wstring& name) {
  const std::string markup = ribbon.GetCustomUI(ribbonId);
  EXPECT_TRUE(markup.rfind("<customUI", 0) == 0) << ribbonId;
  const std::filesystem::path folder = std::filesystem::path(ProgramFolder()) / L"custom-ui";
  std::filesystem::create_directories(folder);
  std::ofstream(folder / name, std::ios::binary) << markup;
  return markup;
}

// A configured user with two projects, and one appointment selected in the calendar.
struct TaggingDesk {
  explicit TaggingDesk(const char* version) : session(sim::Outlook::Options{.version = version}) {
    WriteSettings({{L"DBChoice", L"1"},
                   {L"DBConnectionString", L"DSN=Timesheets"},
                   {L"AllowAppointmentItems", L"-1"},
                   {L"showProjectTaskToolbar", L"-1"},
                   {L"ProjectMandatory", L"-1"},
                   {L"MyProjectsTasks", L"Alpha,5,,:Design,;Review,\r\nBeta,8,,:Build,"}});
    ClearJournal();
    item = session.world().AddAppointment("Planning", ComposeDate({2026, 3, 2, 9, 0, 0}),
                                          ComposeDate({2026, 3, 2, 10, 0, 0}));
    session.Start();
    explorer = session.world().ActiveExplorer();
    session.world().SwitchFolder(*explorer, session.world().Calendar());
    session.world().Select(*explorer, {item});
  }

  AddinSession session;
  std::shared_ptr<sim::SimAppointment> item;
  std::shared_ptr<sim::SimExplorer> explorer;
};

// The control at `path` (captions) on the command bar `bar`, if it is there.
template <class Control>
std::shared_ptr<Control> BarControl(sim::SimExplorer& explorer, const char* bar,
                                    std::vector<const char*> path) {
  auto found = explorer.commandBars().Find(bar);
  sim::SimBarControls* controls = found ? &found->controls() : nullptr;
  std::shared_ptr<sim::SimBarControl> control;
  for (const char* step : path) {
    control = controls ? controls->Named(step) : nullptr;
    controls = control ? control->children() : nullptr;
  }
  return std::dynamic_pointer_cast<Control>(control);
}

}  // namespace

TEST(CommandBars, TheUserTagsReportsAndShutsDownThroughConnectionPoints) {
  TaggingDesk desk("11.0.0.0");
  auto project = BarControl<sim::SimBarComboBox>(*desk.explorer, "Quorvix", {"Project"});
  auto publish = BarControl<sim::SimBarButton>(*desk.explorer, "Quorvix", {"Publish"});
  ASSERT_TRUE(project != nullptr);
  ASSERT_TRUE(publish != nullptr);

  // The Change of the project box tags the selected item.
  project->UserPick(1);
  const auto tagged = desk.item->UserProperties().Find("ProjectValue");
  EXPECT_TRUE(tagged && tagged->value().ToText() == "Alpha");

  // The Click reaches the report command.
  publish->UserClick();
  const std::string store = desk.session.world().Calendar()->AsObject().Get("StoreID").ToText();
  EXPECT_EQ(FinishedLaunches(),
            (std::vector<std::string>{"0|" + store + "|" + desk.item->EntryId() + ";"}));
  Watcher().Take();

  // The menu's Shutdown asks, is answered Yes, and tears the add-in down.
  auto shutdown =
      BarControl<sim::SimBarButton>(*desk.explorer, "Menu Bar", {"Quorvix Client", "Shutdown"});
  ASSERT_TRUE(shutdown != nullptr);
  ASSERT_TRUE(FindClientWindow() != nullptr);
  shutdown->UserClick();
  EXPECT_TRUE(FindClientWindow() == nullptr);
  EXPECT_TRUE(BarControl<sim::SimBarButton>(*desk.explorer, "Quorvix", {"Publish"}) == nullptr);
  const std::vector<SeenDialog> seen = Watcher().Take();
  EXPECT_TRUE(seen.size() == 1 && seen[0].messageBox);
}

// Office asks each host's ribbon for its markup (kept for the schema test),
// and Outlook 2007 asks the inspector's ribbon for the add-in's own pictures
// by name through loadImage. What the callbacks do is the ribbon scenarios'.
TEST(Ribbon, MarkupForEachHostAndPicturesThroughLoadImage) {
  {
    TaggingDesk desk("16.0.0.0");
    DllRibbonAddin ribbon(desk.session);
    MarkupKeptForTheSchemaTest(ribbon, "Microsoft.Outlook.Explorer", L"explorer-16.xml");
  }
  TaggingDesk desk("12.0.0.0");
  DllRibbonAddin ribbon(desk.session);
  const std::string markup =
      MarkupKeptForTheSchemaTest(ribbon, "Microsoft.Outlook.Appointment", L"appointment-12.xml");
  EXPECT_TRUE(markup.find("loadImage=\"getImages\"") != std::string::npos);
  for (const char* name : {"Report", "Withdraw"}) {
    std::vector<Variant> args{Variant(name)};
    Variant picture;
    ASSERT_TRUE(ribbon.Call("getImages", args, picture) == CallbackOutcome::Done);
    ASSERT_TRUE(picture.IsObject());
    ComPtr<IPicture> ole = win32::DispatchOf(picture.ToObject()).As<IPicture>(IID_IPicture);
    ASSERT_TRUE(ole);
    SHORT type = 0;
    OLE_XSIZE_HIMETRIC width = 0;  // 32 pixels at 96 dots per inch
    EXPECT_TRUE(SUCCEEDED(ole->get_Type(&type)) && type == PICTYPE_BITMAP);
    EXPECT_TRUE(SUCCEEDED(ole->get_Width(&width)) && width == 847);
  }
}

}  // namespace qvx::winetest
