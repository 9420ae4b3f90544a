// The ribbon callbacks by name, as the host calls them.
#include "ribbon/ribbon_callbacks.h"

#include <gtest/gtest.h>

#include "addin/main_module.h"
#include "apps/qvx-sim/world.h"
#include "ribbon/ribbon_invalidation.h"

namespace qvx::testing {
namespace {

using scenario::World;

class RibbonCallbacks : public ::testing::Test {
 protected:
  AddinState& s() { return world.addin().state(); }
  CallbackOutcome Call(std::string_view name, std::vector<Variant> args) {
    result = Variant("stale");
    failure.reset();
    return world.addin().InvokeCallback(name, args, result, failure);
  }
  World world;
  Variant result;
  std::optional<Failure> failure;
};

TEST_F(RibbonCallbacks, NamesResolveWithoutRegardToCase) {
  for (const char* name : {"onload", "ONLOAD"}) {
    SCOPED_TRACE(name);
    EXPECT_TRUE(world.addin().HasCallback(name));
    ASSERT_NE(FindRibbonCallback(name), nullptr);
    EXPECT_EQ(FindRibbonCallback(name)->name, "OnLoad");
  }
  for (const char* name : {"", "OnLoa", "OnLoadX", " OnLoad", "On\xC4\xB0oad", "\xFF"}) {
    SCOPED_TRACE(name);
    EXPECT_FALSE(world.addin().HasCallback(name));
    EXPECT_EQ(Call(name, {Variant()}), CallbackOutcome::UnknownName);
  }
}

// What is not a ribbon is kept nothing (its refusal, back to the host
// unreported, is in ribbon_load.qvx). The latest ribbon loaded is the one
// refreshed, and a ribbon that fails to refresh is the host's affair.
TEST_F(RibbonCallbacks, OnLoadKeepsTheLatestRibbonForInvalidation) {
  EXPECT_EQ(Call("OnLoad", {Variant("not a ribbon")}), CallbackOutcome::Failed);
  EXPECT_TRUE(s().main.objRibbonUI.IsNothing());

  EXPECT_EQ(Call("onLoad", {Variant(world.ribbonUi().AsObject())}), CallbackOutcome::Done);
  EXPECT_FALSE(failure.has_value());
  subInvalidateControl(s(), "cboProject");
  EXPECT_EQ(world.ribbonUi().CallCount("InvalidateControl"), 1);
  auto other = std::make_shared<sim::FakeObject>("IRibbonUI");
  other->Method("Invalidate", 0, 0, [](sim::Args&) { return Variant(); });
  EXPECT_EQ(Call("OnLoad", {Variant(other->AsObject())}), CallbackOutcome::Done);
  subInvalidateRibbon(s());
  EXPECT_EQ(world.ribbonUi().CallCount("Invalidate"), 0);
  EXPECT_EQ(other->CallCount("Invalidate"), 1);

  other->FailMember("Invalidate", 0x80004005, "busy");
  subInvalidateRibbon(s());
  EXPECT_EQ(other->CallCount("Invalidate"), 2);
  EXPECT_TRUE(world.ui().Forms().empty());
  EXPECT_FALSE(s().err.pending());
  subKillObjects(s());  // tear-down lets it go
  EXPECT_TRUE(s().main.objRibbonUI.IsNothing());
}

}  // namespace
}  // namespace qvx::testing
