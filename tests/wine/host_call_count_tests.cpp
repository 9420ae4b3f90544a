// What each user action costs the host when the add-in reaches it only
// through IDispatch: the Invoke, GetIDsOfNames and GetTypeInfo calls that the
// simulated Outlook's objects (and Office's ribbon controls) answer. The
// actions and the world are those of tests/scenarios/host_call_counts.qvx;
// the ribbon is asked by hand as Office asks it (no markup is read here), and
// the figures stand in docs/performance.md. A change that makes an action
// call the host more often fails here and must raise the figure and say why.
#include <windows.h>

#include <string>
#include <vector>

#include "core/dates.h"
#include "harness/addin_session.h"
#include "harness/check.h"
#include "harness/companion_journal.h"
#include "harness/dll_ribbon_addin.h"
#include "harness/registry_keys.h"
#include "harness/ui_watcher.h"
#include "platform/win32/dispatch_face.h"
#include "sim/explorer.h"
#include "sim/fake_object.h"
#include "sim/folder.h"
#include "sim/item_classes.h"

namespace qvx::winetest {
namespace {

struct Figure {
  const char* action;
  uint64_t invokes;
  uint64_t nameLookups;
  uint64_t typeInfos;
};

constexpr Figure kRecorded[] = {
    {"start-up", 105, 24, 27},
    {"folder switch to the calendar", 194, 33, 46},
    {"selection of ten items", 7, 0, 4},
    {"ribbon refresh: the companion's message 2, both lists asked again", 49, 1, 13},
    {"tagging ten items with a project", 122, 5, 71},
    {"tagging ten items with an activity", 92, 0, 58},
    {"report of ten items", 57, 6, 20},
};

}  // namespace

TEST(HostCalls, NoUserActionCallsTheHostMoreThanItsRecordedFigure) {
  WriteConfiguredUser(L"Alpha,5,2026-3-2,2026-6-30:Design,2026-4-15;Review,\r\nBeta,8,,:Build,");
  ClearJournal();
  AddinSession session;
  sim::Outlook& world = session.world();
  std::vector<std::shared_ptr<sim::SimItem>> items;
  for (int day = 2; day <= 6; ++day) {
    for (int hour : {9, 11}) {
      items.push_back(world.AddAppointment("A" + std::to_string(items.size() + 1),
                                           ComposeDate({2026, 3, day, hour, 0, 0}),
                                           ComposeDate({2026, 3, day, hour + 1, 0, 0})));
    }
  }
  DllRibbonAddin ribbon(session);
  auto ribbonUi = std::make_shared<sim::FakeObject>("IRibbonUI");
  ribbonUi->Method("Invalidate", 0, 0, [](sim::Args&) { return Variant(); });
  ribbonUi->Method("InvalidateControl", 1, 1, [](sim::Args&) { return Variant(); });
  const auto act = [&](const char* callback, std::vector<Variant> args) {
    Variant none;
    EXPECT_TRUE(ribbon.Call(callback, args, none) == CallbackOutcome::Done);
  };

  // Runs the next recorded action and holds it to its figure.
  size_t next = 0;
  const auto count = [&](auto&& body) {
    const Figure& recorded = kRecorded[next++];
    win32::FaceCallCounts() = {};
    body();
    const win32::FaceCalls now = win32::FaceCallCounts();
    Note(std::string(recorded.action) + ": " + std::to_string(now.invokes) + " Invoke, " +
         std::to_string(now.nameLookups) + " GetIDsOfNames, " + std::to_string(now.typeInfos) +
         " GetTypeInfo");
    EXPECT_TRUE(now.invokes <= recorded.invokes && now.nameLookups <= recorded.nameLookups &&
                now.typeInfos <= recorded.typeInfos)
        << recorded.action;
  };
  count([&] { session.Start(); });
  const auto explorer = world.ActiveExplorer();
  ASSERT_TRUE(explorer != nullptr);
  const Object context = explorer->AsObject();
  act("OnLoad", {Variant(ribbonUi->AsObject())});
  count([&] { world.SwitchFolder(*explorer, world.Calendar()); });
  count([&] { world.Select(*explorer, items); });
  count([&] {
    const HWND listener = FindClientWindow();
    ASSERT_TRUE(listener != nullptr);
    SendMessageW(listener, RegisterWindowMessageW(L"ZNB_QVX_Client"), 2, 0);
    PumpOnce();
    EXPECT_EQ(ribbon.Rows(RibbonControl("cboProjectCal", context)),
              (std::vector<std::string>{"Alpha", "Beta", ""}));
    ribbon.Rows(RibbonControl("cboTaskCal", context));  // no project yet: the empty row
  });
  count([&] {
    act("OnActionDropDown",
        {Variant(RibbonControl("cboProjectCal", context)), Variant(""), Variant(int32_t{0})});
  });
  EXPECT_EQ(ribbon.Rows(RibbonControl("cboTaskCal", context)),
            (std::vector<std::string>{"Design", "Review", ""}));
  count([&] {
    act("OnActionDropDown",
        {Variant(RibbonControl("cboTaskCal", context)), Variant(""), Variant(int32_t{0})});
  });
  Watcher().Take();
  count([&] { act("SubExecuteAction", {Variant(RibbonControl("cmdReportCal", context))}); });
  const std::vector<std::string> launches = FinishedLaunches();
  EXPECT_TRUE(!launches.empty() && launches.back().rfind("0|", 0) == 0);  // the report's
  EXPECT_EQ(Watcher().Take().size(), size_t{1});  // its confirmation, answered Yes
  const Object tagged = items.back()->AsObject().Get("UserProperties").ToObject();
  EXPECT_EQ(tagged.Call("Find", {Variant("ActivityValue")}).ToObject().Get("Value").ToText(),
            std::string("Design"));  // and so the project before it
}

}  // namespace qvx::winetest
