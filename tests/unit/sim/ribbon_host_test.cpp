// The simulated ribbon host: what it asks the add-in, when, with which
// arguments, and what it shows from the answers. What a script sees of it
// (malformed markup, names in any case, rows, choices, contextual tabs and
// context menus) is in tests/scenarios/ribbon_host.qvx; the File view and
// dynamic menus in ribbon_backstage.qvx and views_menu.qvx.
#include "sim/ribbon/ribbon_host.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/failure.h"
#include "sim/fake_object.h"
#include "sim/ribbon/scripted_ribbon_addin.h"

namespace qvx::sim {
namespace {

constexpr char kExplorer[] = "Microsoft.Outlook.Explorer";

// A document with one group on a built-in tab; `afterTabs` goes into the
// ribbon, `afterRibbon` behind it (backstage, context menus).
std::string Document(const std::string& groupContent, const std::string& afterTabs = "",
                     const std::string& afterRibbon = "") {
  return "<customUI xmlns=\"http://schemas.microsoft.com/office/2009/07/customui\" "
         "onLoad=\"OnLoad\"><ribbon><tabs><tab idMso=\"TabCalendar\"><group id=\"g1\" "
         "label=\"Quorvix\">" +
         groupContent + "</group></tab></tabs>" + afterTabs + "</ribbon>" + afterRibbon +
         "</customUI>";
}

class RibbonHostTest : public ::testing::Test {
 protected:
  RibbonHostTest() {
    addin.Define("OnLoad", [this](Args& a) {
      ribbonUi = a.at(0).ToObject();
      return Variant();
    });
  }
  RibbonWindow& Open(const std::string& markup) {
    addin.SetMarkup(kExplorer, markup);
    RibbonWindow& window = host.Open(kExplorer, explorer->AsObject());
    addin.ClearCalls();
    return window;
  }
  // The calls since the last look, as "name control [arguments]".
  std::vector<std::string> TakeCalls() {
    std::vector<std::string> out;
    for (const RecordedRibbonCall& call : addin.Calls()) {
      std::string line = call.name;
      for (const std::string& a : call.arguments) line += " " + a;
      out.push_back(line);
    }
    addin.ClearCalls();
    return out;
  }

  std::shared_ptr<FakeObject> explorer = std::make_shared<FakeObject>("Explorer");
  ScriptedRibbonAddin addin;
  RibbonHost host{addin};
  Object ribbonUi;
};

using Calls = std::vector<std::string>;

TEST_F(RibbonHostTest, MarkupIsAskedOncePerRibbonIdAndLoadedThroughOnLoad) {
  Open(Document("<button id=\"b1\" label=\"Go\"/>"));
  host.Open(kExplorer, explorer->AsObject());
  host.Open("Microsoft.Outlook.Task", Object());
  EXPECT_EQ(addin.CustomUiRequests(),
            (std::vector<std::string>{kExplorer, "Microsoft.Outlook.Task"}));
  ASSERT_FALSE(ribbonUi.IsNothing());
  EXPECT_EQ(ribbonUi.TypeName(), "IRibbonUI");
  EXPECT_TRUE(ribbonUi.Is(host.RibbonUi(kExplorer)));
  // No markup for the task ribbon: nothing loads, nothing shows.
  EXPECT_TRUE(host.RibbonUi("Microsoft.Outlook.Task").IsNothing());
}

TEST_F(RibbonHostTest, AHiddenControlIsAskedNothingMoreAndHidesWhatItHolds) {
  addin.Define("Hide", [](Args&) { return Variant(false); });
  addin.Define("Label", [](Args&) { return Variant("x"); });
  RibbonWindow& window = Open(Document(
      "<box id=\"box1\" getVisible=\"Hide\"><button id=\"b1\" getLabel=\"Label\"/></box>"));
  EXPECT_FALSE(window.Shown("b1").has_value());
  EXPECT_EQ(TakeCalls(), (Calls{"Hide box1"}));
}

// Office's argument lists for the kinds the add-in binds: the control, then
// for a drop-down the chosen row's id and index.
TEST_F(RibbonHostTest, ActionsCarryTheArgumentsOfTheirControlKind) {
  std::vector<std::vector<VarType>> types;
  addin.Define("Act", [&types](Args& a) {
    std::vector<VarType> t;
    for (const Variant& v : a) t.push_back(v.Type());
    types.push_back(t);
    return Variant();
  });
  RibbonWindow& window =
      Open(Document("<button id=\"b1\" onAction=\"Act\" tag=\"T\"/>"
                    "<dropDown id=\"d1\" onAction=\"Act\"><item id=\"i0\" label=\"Alpha\"/>"
                    "<item id=\"i1\" label=\"Beta\"/></dropDown>"));
  EXPECT_EQ(window.Click("b1"), UserActionResult::Done);
  EXPECT_EQ(window.Choose("d1", 1), UserActionResult::Done);
  EXPECT_EQ(TakeCalls(), (Calls{"Act b1", "Act d1 i1 1"}));
  EXPECT_EQ(types, (std::vector<std::vector<VarType>>{
                       {VarType::Object}, {VarType::Object, VarType::String, VarType::Long}}));
  EXPECT_EQ(window.Shown("d1")->selectedIndex, 1);  // kept shown without a getter
  // A click on what takes no click, a row that isn't there.
  EXPECT_EQ(window.Click("d1"), UserActionResult::NotThatKind);
  EXPECT_EQ(window.Choose("d1", 2), UserActionResult::NoSuchRow);
  EXPECT_EQ(window.Choose("b1", 0), UserActionResult::NotThatKind);
  EXPECT_TRUE(TakeCalls().empty());
}

TEST_F(RibbonHostTest, TheControlCarriesIdContextAndTag) {
  Object seen;
  addin.Define("Act", [&seen](Args& a) {
    seen = a.at(0).ToObject();
    return Variant();
  });
  RibbonWindow& window = Open(Document("<button id=\"b1\" tag=\"Reported ID\" onAction=\"Act\"/>"));
  ASSERT_EQ(window.Click("b1"), UserActionResult::Done);
  EXPECT_EQ(seen.TypeName(), "IRibbonControl");
  EXPECT_EQ(seen.Get("Id").ToText(), "b1");
  EXPECT_EQ(seen.Get("Tag").ToText(), "Reported ID");
  EXPECT_TRUE(seen.Get("Context").ToObject().Is(explorer->AsObject()));
}

TEST_F(RibbonHostTest, InvalidationAsksAgainExactlyWhatWasInvalidated) {
  addin.Define("Label", [](Args&) { return Variant("L"); });
  addin.Define("On", [](Args&) { return Variant(true); });
  RibbonWindow& window =
      Open(Document("<button id=\"b1\" getLabel=\"Label\" getEnabled=\"On\"/>"
                    "<button id=\"b2\" getLabel=\"Label\" getEnabled=\"On\"/>"));
  const Calls all{"Label b1", "On b1", "Label b2", "On b2"};
  window.Ribbon();
  EXPECT_EQ(TakeCalls(), all);
  window.Ribbon();
  EXPECT_TRUE(TakeCalls().empty()) << "answers are kept until invalidated";

  ribbonUi.Call("InvalidateControl", {Variant("b2")});
  window.Ribbon();
  EXPECT_EQ(TakeCalls(), (Calls{"Label b2", "On b2"}));

  ribbonUi.Call("InvalidateControl", {Variant("nothing-of-that-id")});
  ribbonUi.Call("InvalidateControl", {Variant("")});
  window.Ribbon();
  EXPECT_TRUE(TakeCalls().empty());
  // A whole invalidation: ribbon_host.qvx.
}

}  // namespace
}  // namespace qvx::sim
