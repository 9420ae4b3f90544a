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
#include "sim/fake_object.h"
#include "sim/folder.h"
#include "sim/inspector.h"
#include "sim/item_classes.h"
#include "sim/views.h"

namespace qvx::winetest {
namespace {

// Keeps a document the DLL answered for tools/wine-tests.sh, which validates
// every file of bin/custom-ui/ against Office's schemas after the run.
void KeepForTheSchemaTest(const std::string& markup, const std::wstring& name) {
  const std::filesystem::path folder = std::filesystem::path(ProgramFolder()) / L"custom-ui";
  std::filesystem::create_directories(folder);
  std::ofstream(folder / name, std::ios::binary) << markup;
}

// A configured user with two projects, and one appointment selected in the calendar.
struct TaggingDesk {
  explicit TaggingDesk(const char* version) : session(Options(version)) {
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
  static sim::Outlook::Options Options(const char* version) {
    sim::Outlook::Options options;
    options.version = version;
    return options;
  }
  std::string Property(const char* name) {
    const Object found =
        item->AsObject().Get("UserProperties").ToObject().Call("Find", {Variant(name)}).ToObject();
    return found.IsNothing() ? "(none)" : found.Get("Value").ToText();
  }
  // The report of this one item, as the companion receives it.
  std::string ReportLine() {
    return "0|" + session.world().Calendar()->AsObject().Get("StoreID").ToText() + "|" +
           item->EntryId() + ";";
  }

  AddinSession session;
  std::shared_ptr<sim::SimAppointment> item;
  std::shared_ptr<sim::SimExplorer> explorer;
};

std::shared_ptr<sim::SimBarControl> BarControl(sim::SimExplorer& explorer, const char* bar,
                                               std::vector<const char*> path) {
  auto found = explorer.commandBars().Find(bar);
  if (!found) return nullptr;
  sim::SimBarControls* controls = &found->controls();
  std::shared_ptr<sim::SimBarControl> control;
  for (const char* step : path) {
    if (!controls) return nullptr;
    control = controls->Named(step);
    if (!control) return nullptr;
    controls = control->children();
  }
  return control;
}

}  // namespace

TEST(CommandBars, TheUserTagsReportsAndShutsDownThroughConnectionPoints) {
  TaggingDesk desk("11.0.0.0");
  auto project = std::dynamic_pointer_cast<sim::SimBarComboBox>(
      BarControl(*desk.explorer, "Quorvix", {"Project"}));
  auto publish = std::dynamic_pointer_cast<sim::SimBarButton>(
      BarControl(*desk.explorer, "Quorvix", {"Publish"}));
  ASSERT_TRUE(project != nullptr);
  ASSERT_TRUE(publish != nullptr);
  EXPECT_TRUE(project->visible());

  // The Change of the project box tags the selected item.
  project->UserPick(1);
  EXPECT_EQ(desk.Property("ProjectValue"), std::string("Alpha"));

  // The Click reaches the report command.
  publish->UserClick();
  EXPECT_EQ(FinishedLaunches(), (std::vector<std::string>{desk.ReportLine()}));
  Watcher().Take();

  // The menu's Shutdown asks, is answered Yes, and tears the add-in down.
  auto shutdown = std::dynamic_pointer_cast<sim::SimBarButton>(
      BarControl(*desk.explorer, "Menu Bar", {"Quorvix Client", "Shutdown"}));
  ASSERT_TRUE(shutdown != nullptr);
  ASSERT_TRUE(FindClientWindow() != nullptr);
  shutdown->UserClick();
  EXPECT_TRUE(FindClientWindow() == nullptr);
  EXPECT_EQ(desk.session.At("Explorers")->HandlerCount("NewExplorer"), size_t{0});
  EXPECT_TRUE(BarControl(*desk.explorer, "Quorvix", {"Publish"}) == nullptr);
  const std::vector<SeenDialog> seen = Watcher().Take();
  EXPECT_EQ(seen.size(), size_t{1});
  EXPECT_TRUE(!seen.empty() && seen[0].messageBox);
}

// The explorer's markup, kept for the schema test; the views menu's content
// is asked by name at each drop; its entry makes the prepared view in the
// host's calendar at the first choice and shows it. Tagging and reporting
// from the ribbon through IDispatch are HostCalls'.
TEST(Ribbon, TheViewsMenuProvisionsAViewThroughIDispatch) {
  TaggingDesk desk("16.0.0.0");
  DllRibbonAddin ribbon(desk.session);
  const std::string markup = ribbon.GetCustomUI("Microsoft.Outlook.Explorer");
  EXPECT_TRUE(markup.rfind("<customUI", 0) == 0);
  EXPECT_TRUE(markup.find("id=\"cboProjectCal\"") != std::string::npos);
  KeepForTheSchemaTest(markup, L"explorer-16.xml");
  const Object context = desk.explorer->AsObject();
  std::vector<Variant> drop{Variant(RibbonControl("dnViewsCal", context))};
  Variant content;
  ASSERT_TRUE(ribbon.Call("GetContentXML", drop, content) == CallbackOutcome::Done);
  const std::string menu = content.ToText();
  EXPECT_TRUE(
      menu.rfind("<menu xmlns=\"http://schemas.microsoft.com/office/2009/07/customui\">", 0) == 0);
  EXPECT_TRUE(menu.find("<button id=\"cmdDefinedView10\" label=\"Reported Items (Filtered)\"") !=
              std::string::npos);

  const std::string name = "Reported Items (Filtered)";
  std::vector<Variant> choice{Variant(RibbonControl("cmdDefinedView10", context, name))};
  Variant none;
  ASSERT_TRUE(ribbon.Call("ExecuteView", choice, none) == CallbackOutcome::Done);
  sim::SimViews& views = desk.session.world().Calendar()->views();
  ASSERT_TRUE(views.current() != nullptr);
  EXPECT_EQ(views.current()->name(), name);
  EXPECT_TRUE(views.current()->xml().find("<viewname>") != std::string::npos);
  EXPECT_TRUE(Watcher().Take().empty());
}

// Outlook 2007 shows the add-in's own pictures in the inspector's ribbon,
// asked for by name through loadImage.
TEST(Ribbon, GetImagesAnswersPicturesOnAnOldRibbonHost) {
  TaggingDesk desk("12.0.0.0");
  DllRibbonAddin ribbon(desk.session);
  const std::string markup = ribbon.GetCustomUI("Microsoft.Outlook.Appointment");
  KeepForTheSchemaTest(markup, L"appointment-12.xml");
  EXPECT_TRUE(markup.find("loadImage=\"getImages\"") != std::string::npos);
  EXPECT_TRUE(markup.find("image=\"Report\"") != std::string::npos);
  for (const char* name : {"Report", "Withdraw"}) {
    std::vector<Variant> args{Variant(name)};
    Variant picture;
    ASSERT_TRUE(ribbon.Call("getImages", args, picture) == CallbackOutcome::Done);
    ASSERT_TRUE(picture.IsObject());
    ComPtr<IDispatch> dispatch = win32::DispatchOf(picture.ToObject());
    ComPtr<IPicture> ole;
    ASSERT_TRUE(dispatch && SUCCEEDED(dispatch->QueryInterface(IID_IPicture, ole.PutVoid())));
    OLE_HANDLE handle = 0;
    EXPECT_TRUE(SUCCEEDED(ole->get_Handle(&handle)) && handle != 0);
  }
  std::vector<Variant> unknown{Variant("Elsewhere")};
  Variant nothing;
  EXPECT_TRUE(ribbon.Call("getImages", unknown, nothing) == CallbackOutcome::Done);
  EXPECT_TRUE(!nothing.IsObject() || nothing.ToObject().IsNothing());
}

}  // namespace qvx::winetest
