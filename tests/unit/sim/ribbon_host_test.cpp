// The simulated ribbon host: what it asks the add-in, when, with which
// arguments, and what it shows from the answers. What a script sees of it
// (malformed markup, names in any case, rows, choices, contextual tabs and
// context menus) is in tests/scenarios/ribbon_host.qvx.
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

TEST_F(RibbonHostTest, StaticAttributesStandWhereNoCallbackAnswers) {
  addin.Define("Label", [](Args&) { return Variant("From callback"); });
  addin.Define("No", [](Args&) { return Variant(false); });
  addin.Define("Fails", [](Args&) -> Variant { throw Failure::Runtime(5); });
  addin.Define("NotABoolean", [](Args&) { return Variant("maybe"); });
  RibbonWindow& window = Open(
      Document("<button id=\"static\" label=\"Fixed\" enabled=\"false\" imageMso=\"Help\" "
               "screentip=\"Tip\"/>"
               "<button id=\"bound\" getLabel=\"Label\" getEnabled=\"No\" getImage=\"Label\"/>"
               "<button id=\"defaults\"/>"
               "<button id=\"failing\" getLabel=\"Fails\" getEnabled=\"NotABoolean\"/>"
               "<button id=\"unknown\" getLabel=\"NoSuchCallback\" getVisible=\"NoSuchCallback\"/>"
               "<button id=\"hidden\" visible=\"false\" label=\"Hidden\"/>"));
  const struct {
    const char* id;
    const char* label;
    bool enabled;
    const char* image;
  } cases[] = {{"static", "Fixed", false, "Help"},
               {"bound", "From callback", false, "From callback"},
               {"defaults", "", true, ""},
               {"failing", "", true, ""},
               {"unknown", "", true, ""}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.id);
    const auto shown = window.Shown(c.id);
    ASSERT_TRUE(shown.has_value());
    EXPECT_EQ(shown->label, c.label);
    EXPECT_EQ(shown->enabled, c.enabled);
    EXPECT_EQ(shown->image, c.image);
  }
  EXPECT_EQ(window.Shown("static")->screentip, "Tip");
  EXPECT_FALSE(window.Shown("hidden").has_value());
  EXPECT_EQ(window.Click("static"), UserActionResult::Disabled);
  EXPECT_EQ(window.Click("hidden"), UserActionResult::NotShown);
}

TEST_F(RibbonHostTest, AHiddenControlIsAskedNothingMoreAndHidesWhatItHolds) {
  addin.Define("Hide", [](Args&) { return Variant(false); });
  addin.Define("Label", [](Args&) { return Variant("x"); });
  RibbonWindow& window = Open(Document(
      "<box id=\"box1\" getVisible=\"Hide\"><button id=\"b1\" getLabel=\"Label\"/></box>"));
  EXPECT_FALSE(window.Shown("b1").has_value());
  EXPECT_EQ(TakeCalls(), (Calls{"Hide box1"}));
}

// Office's argument lists: the control first, then what the control kind adds.
TEST_F(RibbonHostTest, ActionsCarryTheArgumentsOfTheirControlKind) {
  std::vector<std::vector<VarType>> types;
  addin.Define("Act", [&types](Args& a) {
    std::vector<VarType> t;
    for (const Variant& v : a) t.push_back(v.Type());
    types.push_back(t);
    return Variant();
  });
  RibbonWindow& window = Open(
      Document("<button id=\"b1\" onAction=\"Act\" tag=\"T\"/>"
               "<toggleButton id=\"t1\" onAction=\"Act\"/>"
               "<checkBox id=\"c1\" onAction=\"Act\"/>"
               "<dropDown id=\"d1\" onAction=\"Act\"><item id=\"i0\" label=\"Alpha\"/>"
               "<item id=\"i1\" label=\"Beta\"/></dropDown>"
               "<gallery id=\"g2\" onAction=\"Act\"><item id=\"x0\" label=\"X\"/></gallery>"
               "<comboBox id=\"cb1\" onChange=\"Act\"><item id=\"k0\" label=\"Kappa\"/></comboBox>"
               "<editBox id=\"e1\" onChange=\"Act\"/>"));
  EXPECT_EQ(window.Click("b1"), UserActionResult::Done);
  EXPECT_EQ(window.Click("t1"), UserActionResult::Done);
  EXPECT_EQ(window.Click("t1"), UserActionResult::Done);
  EXPECT_EQ(window.Click("c1"), UserActionResult::Done);
  EXPECT_EQ(window.Choose("d1", 1), UserActionResult::Done);
  EXPECT_EQ(window.Choose("g2", 0), UserActionResult::Done);
  EXPECT_EQ(window.Choose("cb1", 0), UserActionResult::Done);
  EXPECT_EQ(window.Type("e1", "typed"), UserActionResult::Done);
  EXPECT_EQ(TakeCalls(), (Calls{"Act b1", "Act t1 true", "Act t1 false", "Act c1 true",
                                "Act d1 i1 1", "Act g2 x0 0", "Act cb1 Kappa", "Act e1 typed"}));
  const std::vector<VarType> control{VarType::Object};
  const std::vector<VarType> pressed{VarType::Object, VarType::Boolean};
  const std::vector<VarType> chosen{VarType::Object, VarType::String, VarType::Long};
  const std::vector<VarType> text{VarType::Object, VarType::String};
  EXPECT_EQ(types, (std::vector<std::vector<VarType>>{control, pressed, pressed, pressed, chosen,
                                                      chosen, text, text}));
  // What the host keeps shown without getters.
  EXPECT_EQ(window.Shown("d1")->selectedIndex, 1);
  EXPECT_TRUE(window.Shown("c1")->pressed);
  EXPECT_EQ(window.Shown("e1")->text, "typed");
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

TEST_F(RibbonHostTest, ACountThatFailsOrIsOutOfBoundsShowsNoStrayRows) {
  addin.Define("Fails", [](Args&) -> Variant { throw Failure::Runtime(5); });
  addin.Define("Negative", [](Args&) { return Variant(-4); });
  addin.Define("Huge", [](Args&) { return Variant(5000); });
  RibbonWindow& window =
      Open(Document("<dropDown id=\"d1\" getItemCount=\"Fails\"/>"
                    "<dropDown id=\"d2\" getItemCount=\"Negative\"/>"
                    "<dropDown id=\"d3\" getItemCount=\"Huge\"/>"));
  EXPECT_TRUE(window.Shown("d1")->rows.empty());
  EXPECT_EQ(window.Shown("d1")->selectedIndex, -1);
  EXPECT_TRUE(window.Shown("d2")->rows.empty());
  EXPECT_EQ(window.Shown("d3")->rows.size(), 1000u);
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

TEST_F(RibbonHostTest, InvalidationReachesEveryWindowOfTheRibbonAndOutlivesNone) {
  addin.Define("Label", [](Args&) { return Variant("L"); });
  RibbonWindow& first = Open(Document("<button id=\"b1\" getLabel=\"Label\"/>"));
  RibbonWindow& second = host.Open(kExplorer, Object());
  first.Ribbon();
  second.Ribbon();
  EXPECT_EQ(TakeCalls().size(), 2u);
  host.Close(second);
  ribbonUi.Call("Invalidate");
  first.Ribbon();
  EXPECT_EQ(TakeCalls(), (Calls{"Label b1"}));
  {
    ScriptedRibbonAddin other;
    other.SetMarkup(kExplorer, Document(""));
    Object gone;
    other.Define("OnLoad", [&gone](Args& a) {
      gone = a.at(0).ToObject();
      return Variant();
    });
    {
      RibbonHost shortLived(other);
      shortLived.Open(kExplorer, Object());
    }
    EXPECT_NO_THROW(gone.Call("Invalidate"));  // the host has gone: nothing to refresh
  }
}

// Content the host rejects drops an empty menu: views_bad_input.qvx.
TEST_F(RibbonHostTest, BackstageAndDynamicMenusShowWhenOpened) {
  int drops = 0;
  addin.Define("Content", [&drops](Args&) {
    ++drops;
    return Variant(
        "<menu xmlns=\"http://schemas.microsoft.com/office/2009/07/customui\">"
        "<button id=\"cmdView1\" label=\"Mine\" tag=\"Mine\" onAction=\"Act\"/></menu>");
  });
  addin.Define("Act", [](Args&) { return Variant(); });
  RibbonWindow& window =
      Open(Document("<dynamicMenu id=\"dnViewsCal\" getContent=\"Content\" "
                    "invalidateContentOnDrop=\"true\"/>"
                    "<dynamicMenu id=\"dnOnce\" getContent=\"Content\"/>",
                    "",
                    "<backstage><tab id=\"bs\" label=\"Quorvix Client\"><firstColumn>"
                    "<taskGroup id=\"tg\"><category id=\"cat\"><task id=\"cmdAbout\" "
                    "label=\"About\" onAction=\"Act\"/></category></taskGroup></firstColumn>"
                    "</tab></backstage>"));
  EXPECT_FALSE(window.Shown("cmdAbout").has_value());
  window.OpenBackstage();
  EXPECT_EQ(window.Click("cmdAbout"), UserActionResult::Done);

  EXPECT_FALSE(window.Shown("cmdView1").has_value());
  EXPECT_EQ(window.DropMenu("dnViewsCal"), UserActionResult::Done);
  EXPECT_EQ(window.DropMenu("dnViewsCal"), UserActionResult::Done);
  EXPECT_EQ(drops, 2) << "content asked again at each drop";
  EXPECT_EQ(window.DropMenu("dnOnce"), UserActionResult::Done);
  EXPECT_EQ(window.DropMenu("dnOnce"), UserActionResult::Done);
  EXPECT_EQ(drops, 3) << "content kept until invalidated";
  EXPECT_EQ(window.Click("cmdView1"), UserActionResult::Done);
  EXPECT_FALSE(window.Shown("cmdView1").has_value()) << "a click closes the menu";
  EXPECT_EQ(window.DropMenu("cmdAbout"), UserActionResult::NotThatKind);
  ASSERT_EQ(host.Actions().size(), 2u);
  EXPECT_EQ(host.Actions()[0].arguments, (std::vector<std::string>{"cmdAbout"}));
  EXPECT_EQ(host.Actions()[1].arguments, (std::vector<std::string>{"cmdView1"}));
}

}  // namespace
}  // namespace qvx::sim
