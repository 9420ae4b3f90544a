// The test program's Outlook, checked from the outside through IDispatch as
// the add-in sees it, so that a failing add-in test points at the add-in and
// not at the stand-in host.
#include <windows.h>

#include "core/failure.h"
#include "harness/check.h"
#include "harness/outlook_host.h"
#include "platform/win32/dispatch_face.h"
#include "platform/win32/dispatch_object.h"

namespace qvx::winetest {
namespace {

// An Object that reaches `object` through COM, never directly.
Object ThroughCom(const Object& object) {
  win32::ComPtr<IDispatch> dispatch = win32::DispatchOf(object);
  REQUIRE(dispatch);
  return Object(std::make_shared<win32::DispatchObject>(dispatch.get()));
}

Object ThroughCom(IDispatch* dispatch) {
  return Object(std::make_shared<win32::DispatchObject>(dispatch));
}

}  // namespace

WINE_TEST(HostFace, PlaysOutlooksObjectModelByName) {
  OutlookHost host;
  const Object app = ThroughCom(host.Application());
  CHECK_EQ(app.TypeName(), std::string("Application"));
  CHECK_EQ(app.Get("Version").ToText(), std::string("16.0.0.0"));
  const Object explorers = ThroughCom(app.Get("Explorers").ToObject());
  CHECK_EQ(explorers.Get("Count").ToLong(), 1);
  CHECK(ThroughCom(explorers.Call("Item", {Variant(int32_t{1})}).ToObject()).TypeName() ==
        "Explorer");
  CHECK(!app.Get("ActiveExplorer").ToObject().IsNothing());
  CHECK_EQ(ThroughCom(app.Get("Inspectors").ToObject()).Get("Count").ToLong(), 0);

  const Object session = ThroughCom(app.Call("GetNamespace", {Variant("MAPI")}).ToObject());
  const Object calendar = session.Call("GetDefaultFolder", {Variant(int32_t{9})}).ToObject();
  CHECK_EQ(ThroughCom(calendar).Get("Name").ToText(), std::string("Calendar"));
  const Object added = explorers.Call("Add", {Variant(calendar)}).ToObject();
  CHECK(!added.IsNothing());
  CHECK_EQ(explorers.Get("Count").ToLong(), 2);

  bool refused = false;
  try {
    app.Call("CreateObject", {Variant("ZNBLib.ZNBMAPIUtils")});
  } catch (const Failure&) {
    refused = true;
  }
  CHECK(refused);
  CHECK_EQ(host.createRequests().size(), size_t{1});
}

WINE_TEST(HostFace, FailuresTravelAsExcepInfo) {
  OutlookHost host;
  host.world().FailAt("Version", 1004, "Version refused.");
  const Object app = ThroughCom(host.Application());
  try {
    app.Get("Version");
    RecordFailure(__FILE__, __LINE__, "no failure");
  } catch (const Failure& f) {
    CHECK_EQ(f.number(), 1004);
    CHECK_EQ(f.source(), std::string("Microsoft Outlook"));
    CHECK_EQ(f.description(), std::string("Version refused."));
  }
}

WINE_TEST(HostFace, EventsArriveThroughConnectionPoints) {
  OutlookHost host;
  const Object app = ThroughCom(host.Application());
  const Object explorers = ThroughCom(app.Get("Explorers").ToObject());
  int quits = 0;
  int newExplorers = 0;
  Subscription quit = app.Subscribe("Quit", [&](EventArgs&) { ++quits; });
  Subscription opened = explorers.Subscribe("NewExplorer", [&](EventArgs& args) {
    if (args.size() == 1 && args[0].IsObject()) ++newExplorers;
  });
  host.world().OpenExplorer(host.world().Tasks());
  CHECK_EQ(newExplorers, 1);
  host.world().Quit();
  CHECK_EQ(quits, 1);
  opened.Reset();
  CHECK_EQ(host.At("Explorers")->HandlerCount("NewExplorer"), size_t{0});
}

}  // namespace qvx::winetest
