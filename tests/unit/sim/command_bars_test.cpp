// The command bars of the simulated host's windows, seen through Object as
// the add-in reaches them.
#include <gtest/gtest.h>

#include "core/host_constants.h"
#include "sim/command_bars.h"
#include "sim/explorer.h"
#include "sim/inspector.h"
#include "sim/item_classes.h"
#include "sim/outlook.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::sim {
namespace {

using testing::FailureOf;

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

TEST_F(SimCommandBarsTest, EveryWindowHasItsOwnBarsWithTheBuiltInMenuBar) {
  auto inspector = world.OpenInspector(world.AddTask("Write"));
  const Object inspectorBars = inspector->AsObject().Get("CommandBars").ToObject();
  EXPECT_FALSE(inspectorBars.Is(bars));
  const Object menuBar = bars.Get("ActiveMenuBar").ToObject();
  EXPECT_EQ(menuBar.Get("Name").ToText(), "Menu Bar");
  EXPECT_TRUE(menuBar.Get("BuiltIn").ToBoolean());
  EXPECT_TRUE(menuBar.Get("Visible").ToBoolean());
  EXPECT_EQ(menuBar.Get("Type").ToLong(), host::msoBarTypeMenuBar);
  EXPECT_TRUE(bars.Call("Item", {Variant("menu bar")}).ToObject().Is(menuBar));
  EXPECT_TRUE(bars.Call("Item", {Long(1)}).ToObject().Is(menuBar));
  EXPECT_EQ(FailureOf([&] { menuBar.Call("Delete"); }).number(), hresult::kFail);
  EXPECT_EQ(bars.Enumerate().size(), static_cast<size_t>(bars.Get("Count").ToLong()));
}

TEST_F(SimCommandBarsTest, AddTakesOmittedArgumentsAndRefusesANameThatIsThere) {
  const Object custom = bars.Call("Add").ToObject();
  EXPECT_EQ(custom.Get("Name").ToText(), "Custom 1");
  EXPECT_EQ(custom.Get("Position").ToLong(), host::msoBarFloating);
  EXPECT_FALSE(custom.Get("Visible").ToBoolean());  // shown only when told
  const Object quorvix =
      bars.Call("Add", {Variant("Quorvix"), kMissing, kMissing, Variant(true)}).ToObject();
  EXPECT_TRUE(bars.Call("Item", {Variant("QUORVIX")}).ToObject().Is(quorvix));
  EXPECT_EQ(FailureOf([&] { AddBar("quorvix"); }).number(), hresult::kInvalidArg);
  EXPECT_EQ(FailureOf([&] { bars.Call("Item", {Variant("Nowhere")}); }).number(),
            hresult::kInvalidArg);
  EXPECT_EQ(FailureOf([&] { bars.Call("Item", {Long(99)}); }).number(), hresult::kIndexOutOfBounds);
}

TEST_F(SimCommandBarsTest, BarPropertiesKeepWhatIsPut) {
  const Object bar = AddBar("Quorvix");
  for (const char* name : {"RowIndex", "Top", "Left", "Protection", "Position"}) {
    bar.Put(name, Long(3));
    EXPECT_EQ(bar.Get(name).ToLong(), 3) << name;
  }
  bar.Put("Enabled", Variant(false));
  EXPECT_FALSE(bar.Get("Enabled").ToBoolean());
  EXPECT_EQ(FailureOf([&] { bar.Put("Position", Long(9)); }).number(), hresult::kInvalidArg);
}

TEST_F(SimCommandBarsTest, ControlsAddHonoursOmittedArgumentsInEveryForm) {
  const Object bar = AddBar("Quorvix");
  const Object plain = AddControl(bar, {});
  EXPECT_EQ(plain.TypeName(), "CommandBarButton");
  EXPECT_EQ(plain.Get("Id").ToLong(), host::msoControlIdCustom);
  const Object gaps = AddControl(
      bar, {Long(host::msoControlComboBox), kMissing, kMissing, kMissing, Variant(true)});
  EXPECT_EQ(gaps.TypeName(), "CommandBarComboBox");
  const Object typeOnly = AddControl(bar, {Long(host::msoControlPopup)});
  EXPECT_EQ(typeOnly.Get("Type").ToLong(), host::msoControlPopup);
  const Object first =
      AddControl(bar, {Long(host::msoControlEdit), Long(1), Variant("p"), Long(1), Variant(true)});
  EXPECT_EQ(first.Get("Index").ToLong(), 1);
  EXPECT_EQ(first.Get("Parameter").ToText(), "p");
  EXPECT_EQ(plain.Get("Index").ToLong(), 2);
  EXPECT_TRUE(first.Get("Parent").ToObject().Is(bar));
  EXPECT_EQ(FailureOf([&] { AddControl(bar, {Long(7)}); }).number(), hresult::kInvalidArg);
  EXPECT_EQ(FailureOf([&] {
              AddControl(bar, {kMissing, kMissing, kMissing, Long(9)});
            }).number(),
            hresult::kInvalidArg);
}

TEST_F(SimCommandBarsTest, ARequiredArgumentLeftOutFailsAsNotOptional) {
  const Object bar = AddBar("Quorvix");
  const Object combo = AddControl(bar, {Long(host::msoControlComboBox)});
  EXPECT_EQ(FailureOf([&] { combo.Call("AddItem", {kMissing}); }).number(), 449);
}

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

TEST_F(SimCommandBarsTest, ListIndexFollowsTheTextAndRefusesPositionsOutsideTheList) {
  const Object bar = AddBar("Quorvix");
  const Object combo = AddControl(bar, {Long(host::msoControlComboBox)});
  combo.Call("AddItem", {Variant("Alpha")});
  combo.Call("AddItem", {Variant("Beta")});
  combo.Call("AddItem", {Variant("First"), Long(1)});
  EXPECT_EQ(combo.Get("ListCount").ToLong(), 3);
  EXPECT_EQ(combo.Get("List", {Long(1)}).ToText(), "First");
  EXPECT_EQ(combo.Get("ListIndex").ToLong(), 0);  // nothing chosen
  combo.Put("ListIndex", Long(3));
  EXPECT_EQ(combo.Get("Text").ToText(), "Beta");
  combo.Put("Text", Variant("Free text"));
  EXPECT_EQ(combo.Get("ListIndex").ToLong(), 0);
  combo.Put("Text", Variant("Alpha"));
  EXPECT_EQ(combo.Get("ListIndex").ToLong(), 2);
  combo.Put("ListIndex", Long(0));
  EXPECT_EQ(combo.Get("Text").ToText(), "");
  for (int32_t outside : {-1, 4}) {
    EXPECT_EQ(FailureOf([&] { combo.Put("ListIndex", Long(outside)); }).number(),
              hresult::kInvalidArg)
        << outside;
  }
  EXPECT_EQ(FailureOf([&] { combo.Get("List", {Long(4)}); }).number(), hresult::kInvalidArg);
  combo.Put("ListIndex", Long(2));
  combo.Call("Clear");
  EXPECT_EQ(combo.Get("ListCount").ToLong(), 0);
  EXPECT_EQ(combo.Get("ListIndex").ToLong(), 0);
}

TEST_F(SimCommandBarsTest, EditBoxesHaveNoListAndDropDownsOnlyTheirEntries) {
  const Object bar = AddBar("Quorvix");
  const Object edit = AddControl(bar, {Long(host::msoControlEdit)});
  EXPECT_EQ(FailureOf([&] { edit.Call("AddItem", {Variant("x")}); }).number(), hresult::kFail);
  edit.Put("Text", Variant("typed"));
  EXPECT_EQ(edit.Get("Text").ToText(), "typed");
  const Object dropDown = AddControl(bar, {Long(host::msoControlDropdown)});
  dropDown.Call("AddItem", {Variant("One")});
  EXPECT_EQ(FailureOf([&] { dropDown.Put("Text", Variant("Two")); }).number(),
            hresult::kInvalidArg);
  dropDown.Put("Text", Variant("One"));
  EXPECT_EQ(dropDown.Get("ListIndex").ToLong(), 1);
}

TEST_F(SimCommandBarsTest, DeleteRemovesAndLeavesAHandleThatFails) {
  const Object bar = AddBar("Quorvix");
  const Object popup = AddControl(bar, {Long(host::msoControlPopup)});
  const Object entry = AddControl(popup, {Long(host::msoControlButton)});
  const Object button = AddControl(bar, {Long(host::msoControlButton)});
  button.Call("Delete");
  EXPECT_EQ(bar.Get("Controls").ToObject().Get("Count").ToLong(), 1);
  EXPECT_EQ(FailureOf([&] { button.Get("Caption"); }).number(), hresult::kFail);
  const long before = bars.Get("Count").ToLong();
  bar.Call("Delete");
  EXPECT_EQ(bars.Get("Count").ToLong(), before - 1);
  for (const Object& gone : {bar, popup, entry}) {
    EXPECT_EQ(FailureOf([&] { gone.Get("Visible"); }).number(), hresult::kFail);
  }
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

TEST_F(SimCommandBarsTest, ARestartDropsWhatWasTemporaryAndKeepsWhatWasLeftBehind) {
  const Object temporary = AddBar("Quorvix", true);
  const Object kept = AddBar("Quorvix Custom Fields", false);
  const Object keptButton = AddControl(kept, {Long(host::msoControlButton)});
  const Object temporaryButton =
      AddControl(kept, {Long(host::msoControlButton), kMissing, kMissing, kMissing, Variant(true)});
  const Object menuEntry =
      AddControl(bars.Get("ActiveMenuBar").ToObject(),
                 {Long(host::msoControlPopup), Long(1), kMissing, kMissing, Variant(true)});
  world.Restart();
  EXPECT_EQ(FailureOf([&] { bars.Call("Item", {Variant("Quorvix")}); }).number(),
            hresult::kInvalidArg);
  EXPECT_EQ(FailureOf([&] { temporary.Get("Name"); }).number(), hresult::kFail);
  EXPECT_TRUE(bars.Call("Item", {Variant("Quorvix Custom Fields")}).ToObject().Is(kept));
  const Object controls = kept.Get("Controls").ToObject();
  EXPECT_EQ(controls.Get("Count").ToLong(), 1);
  EXPECT_TRUE(controls.Call("Item", {Long(1)}).ToObject().Is(keptButton));
  EXPECT_EQ(FailureOf([&] { temporaryButton.Get("Caption"); }).number(), hresult::kFail);
  EXPECT_EQ(FailureOf([&] { menuEntry.Get("Caption"); }).number(), hresult::kFail);
}

TEST_F(SimCommandBarsTest, CaptionsShowAsTheHostDrawsThem) {
  auto& sim = world.ActiveExplorer()->commandBars();
  auto bar = sim.Add("Quorvix", host::msoBarTop, false, true);
  auto button = bar->controls().Add(host::msoControlButton);
  const struct {
    const char* caption;
    const char* shown;
  } cases[] = {{"Sync Quorvix && Project Settings", "Sync Quorvix & Project Settings"},
               {"&File", "File"},
               {"Check Updates..", "Check Updates.."},
               {"", ""}};
  for (const auto& c : cases) {
    button->SetCaption(c.caption);
    EXPECT_EQ(button->ShownCaption(), c.shown) << c.caption;
  }
}

}  // namespace
}  // namespace qvx::sim
