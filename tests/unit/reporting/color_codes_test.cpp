// LoadProjectColorCodesToOutlook: the projects' colours in the session's
// master category list. Without the setting or before version 12:
// tagging_colours.qvx.
#include "reporting/color_codes.h"

#include "sim/categories.h"
#include "sim/name_space.h"
#include "sim/outlook.h"
#include "unit/reporting/tagging_fixture.h"

namespace qvx::testing {
namespace {

class ColorCodesTest : public TaggingTest {
 protected:
  void Load() { LoadProjectColorCodesToOutlook(s()); }
  int32_t ColorOf(std::string_view name) {
    auto category = host().FindCategory(name);
    return category ? category->color() : -1;
  }
  size_t CategoryCount() { return host().app().session().categories().list().size(); }
};

TEST_F(ColorCodesTest, RecolouredNotRenamedAndABadEntryPassedOver) {
  Set("AddProjectColorCodes", "-1");
  // A project without a name: the host refuses a category without one.
  Set("MyProjectsTasks", ",4,,:\r\nAlpha,5,,:");
  host().AddCategory("alpha", 1);
  Connect();
  Load();
  EXPECT_EQ(ColorOf("Alpha"), 5);
  EXPECT_EQ(host().FindCategory("Alpha")->name(), "alpha");
  EXPECT_EQ(CategoryCount(), 1u);
  EXPECT_TRUE(Reports().empty());
  EXPECT_FALSE(s().err.pending());
}

TEST_F(ColorCodesTest, FromVersionTwelveEachProjectAfterLettingMessagesThrough) {
  Set("AddProjectColorCodes", "1");
  host().SetVersion("12.0.4518.1014");
  Connect();
  s().main.objNameSpace.Release();  // fetched when there is none
  const size_t pumps = host().Pending().pumps();
  Load();
  EXPECT_EQ(host().Pending().pumps() - pumps, 3u);
  EXPECT_FALSE(s().main.objNameSpace.IsNothing());
  EXPECT_EQ(ColorOf("Beta"), 8);
}

TEST_F(ColorCodesTest, ACatalogueReplacedWhileLoadingIsSafe) {
  Set("AddProjectColorCodes", "-1");
  Connect();
  // The companion says the settings changed while the colours go in.
  host().Pending().Post([&] {
    Set("MyProjectsTasks", "Delta,9,,:");
    settings().ReadSettings(s());
  });
  Load();
  EXPECT_EQ(ColorOf("Alpha"), 5);
  EXPECT_EQ(ColorOf("Gamma"), 3);
  EXPECT_EQ(settings().MyProjectsTasks->dicList.Count(), 1u);
}

}  // namespace
}  // namespace qvx::testing
