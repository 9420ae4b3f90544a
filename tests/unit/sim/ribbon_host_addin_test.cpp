// The simulated ribbon host in front of the real add-in: the add-in's own
// callback table answers what the markup binds.
#include <gtest/gtest.h>

#include "addin/main_module.h"
#include "apps/qvx-sim/world.h"
#include "ribbon/ribbon_invalidation.h"

namespace qvx::sim {
namespace {

constexpr char kExplorer[] = "Microsoft.Outlook.Explorer";

TEST(RibbonHostWithTheAddin, TheAddinKeepsTheHostsRibbonAndRefreshesIt) {
  scenario::World world;
  world.scriptedRibbon().SetMarkup(
      kExplorer,
      "<customUI xmlns=\"http://schemas.microsoft.com/office/2009/07/customui\" "
      "onLoad=\"onLOAD\"><ribbon><tabs><tab id=\"t1\" label=\"Time\"><group id=\"g1\">"
      "<button id=\"b1\" label=\"Static\" getEnabled=\"NotInTheAddin\"/></group></tab></tabs>"
      "</ribbon></customUI>");
  RibbonWindow& window = world.ribbonHost().Open(kExplorer, Object());
  AddinState& s = world.addin().state();
  ASSERT_FALSE(s.main.objRibbonUI.IsNothing());
  EXPECT_TRUE(s.main.objRibbonUI.Is(world.ribbonHost().RibbonUi(kExplorer)));

  // A callback the add-in does not have leaves the control as the markup says.
  EXPECT_EQ(window.Shown("b1")->label, "Static");
  EXPECT_TRUE(window.Shown("b1")->enabled);

  subInvalidateRibbon(s);
  EXPECT_EQ(world.ribbonHost().InvalidationCount(), 1);
  subKillObjects(s);
  subInvalidateRibbon(s);
  EXPECT_EQ(world.ribbonHost().InvalidationCount(), 1);
}

}  // namespace
}  // namespace qvx::sim
