// The command bars of the simulated host: what scenarios rely on without
// seeing it (who raises Click and Change, cancelling a built-in command,
// FindControl's reach). Captions, lists and controls as a user sees them,
// and what a restart keeps, are proven by tests/scenarios/bars_*.qvx and
// toolbar_user_side.qvx.
#include <gtest/gtest.h>

#include "core/host_constants.h"
#include "sim/command_bars.h"
#include "sim/explorer.h"
#include "sim/inspector.h"
#include "sim/item_classes.h"
#include "sim/outlook.h"

namespace qvx::sim {
namespace {

const Variant kMissing = Variant::Missing();

Variant Long(int32_t value) {
  return Variant(value);
}

class SimCommandBarsTest : public ::testing::Test {
 protected:
  Outlook world;
  Object bars = world.ActiveExplorer()->AsObject().Get("CommandBars").ToObject();

  Object AddBar(const std::string& name, bool temporary = true) {
    return bars
        .Call("Add", {Variant(name), Long(host::msoBarTop), Variant(false), Variant(temporary)})
        .ToObject();
  }
  static Object AddControl(const Object& owner, std::vector<Variant> args) {
    return owner.Get("Controls").ToObject().Call("Add", std::move(args)).ToObject();
  }
};

TEST_F(SimCommandBarsTest, ClickPassesTheButtonAndCancelDefaultByReference) {
  const Object bar = AddBar("Quorvix");
  const Object custom = AddControl(bar, {Long(host::msoControlButton)});
  const Object builtIn = AddControl(bar, {Long(host::msoControlButton), Long(5488)});
  Object clicked;
  bool cancel = false;
  Subscription a = custom.Subscribe("Click", [&](EventArgs& args) {
    clicked = args.at(0).ToObject();
    EXPECT_FALSE(args.at(1).ToBoolean());
  });
  Subscription b = builtIn.Subscribe("Click", [&](EventArgs& args) { args.at(1) = cancel; });
  custom.Call("Execute");
  EXPECT_TRUE(clicked.Is(custom));
  auto& sim = *SimCast<SimBarButton>(builtIn);
  sim.UserClick();
  EXPECT_EQ(sim.builtInRuns(), 1);
  cancel = true;
  sim.UserClick();
  EXPECT_EQ(sim.builtInRuns(), 1);  // cancelled: the host's command did not run
  EXPECT_EQ(sim.raised(), 2);
}

TEST_F(SimCommandBarsTest, ChangeComesFromTheUserNotFromAPut) {
  const Object bar = AddBar("Quorvix");
  const Object combo = AddControl(bar, {Long(host::msoControlComboBox)});
  int changes = 0;
  std::string seen;
  Subscription s = combo.Subscribe("Change", [&](EventArgs& args) {
    ++changes;
    seen = args.at(0).ToObject().Get("Text").ToText();
  });
  combo.Put("Text", Variant("Alpha"));
  EXPECT_EQ(changes, 0);
  SimCast<SimBarComboBox>(combo)->UserType("Beta");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(seen, "Beta");
}

TEST_F(SimCommandBarsTest, FindControlByTagTypeAndVisibility) {
  const Object menuBar = bars.Get("ActiveMenuBar").ToObject();
  const Object popup = AddControl(
      menuBar, {Long(host::msoControlPopup), Long(1), kMissing, kMissing, Variant(true)});
  popup.Put("Tag", Variant("QuorvixClientMenu"));
  const Object entry = AddControl(popup, {Long(host::msoControlButton)});
  entry.Put("Tag", Variant("About"));
  const auto find = [&](const Object& where, std::vector<Variant> args) {
    return where.Call("FindControl", std::move(args)).ToObject();
  };
  const Variant menuTag("QuorvixClientMenu");
  const Variant popupType = Long(host::msoControlPopup);
  EXPECT_TRUE(
      find(menuBar, {popupType, kMissing, menuTag, Variant(true), Variant(true)}).Is(popup));
  EXPECT_TRUE(find(bars, {kMissing, kMissing, menuTag}).Is(popup));
  EXPECT_TRUE(find(bars, {kMissing, kMissing, Variant("About")}).Is(entry));  // inside the menu
  EXPECT_TRUE(find(menuBar, {kMissing, kMissing, Variant("About")}).IsNothing());  // not recursive
  EXPECT_TRUE(find(menuBar, {Long(host::msoControlButton), kMissing, menuTag}).IsNothing());
  popup.Put("Visible", Variant(false));
  EXPECT_TRUE(
      find(menuBar, {popupType, kMissing, menuTag, Variant(true), Variant(true)}).IsNothing());
  EXPECT_TRUE(find(menuBar, {popupType, kMissing, menuTag}).Is(popup));
}

}  // namespace
}  // namespace qvx::sim
