// The customUI documents: which ribbon id gets which document, their exact
// text (tests/resources/ribbon, written afresh by ribbon_markup_dump), and
// what the host makes of them.
#include <gtest/gtest.h>

#include <set>

#include "ribbon/custom_ui.h"
#include "ribbon/ribbon_callbacks.h"
#include "settings/my_settings.h"
#include "unit/file_bytes.h"
#include "unit/ribbon/ribbon_documents.h"
#include "unit/ribbon/ribbon_test_util.h"

namespace qvx::testing {
namespace {

using scenario::World;

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

std::string RecordedDocument(const std::string& name) {
  return TestResource("ribbon/" + name + ".xml");
}

class RibbonDocumentMarkup : public ::testing::Test {
 protected:
  AddinState& s() { return world.addin().state(); }
  World world;
};

TEST_F(RibbonDocumentMarkup, TheRibbonIdChoosesTheDocument) {
  ConnectAddin(world);
  // A meeting request shows the appointment's groups.
  EXPECT_EQ(world.addin().GetCustomUI("Microsoft.Outlook.MeetingRequest.Read"),
            world.addin().GetCustomUI("Microsoft.Outlook.Appointment"));
  // Every other id, however near, gets no ribbon and no complaint.
  for (const char* id : {"Microsoft.Outlook.Mail.Read", "Microsoft.Outlook.MeetingRequest.Send",
                         "microsoft.outlook.explorer", "Microsoft.Outlook.Explorer ", ""}) {
    EXPECT_EQ(world.addin().GetCustomUI(id), "") << id;
  }
  EXPECT_TRUE(world.ui().MessageBoxes().empty());
  EXPECT_TRUE(ErrorReports(world).empty());
  EXPECT_FALSE(s().err.pending());
}

TEST_F(RibbonDocumentMarkup, AnUnknownBuildContextIsShownAndAnswersNothing) {
  ConnectAddin(world);
  EXPECT_EQ(fncBuildUI(s(), "Mail"), "");
  ASSERT_EQ(world.ui().MessageBoxes().size(), 1u);
  EXPECT_EQ(world.ui().MessageBoxes()[0].text, "Mail");
  EXPECT_EQ(world.ui().MessageBoxes()[0].title, "Quorvix Client Addin");
}

// Without settings the inspector keeps its main group (no-settings-16-
// Microsoft.Outlook.Task); the explorer's backstage needs the titles, so its
// document fails whole and the failure is reported once, under its label.
TEST_F(RibbonDocumentMarkup, WithoutSettingsTheExplorerDocumentFailsAndIsReported) {
  ConnectAddin(world);
  s().main.objMySettings.reset();
  EXPECT_NE(world.addin().GetCustomUI("Microsoft.Outlook.Task"), "");
  EXPECT_TRUE(ErrorReports(world).empty());
  EXPECT_EQ(world.addin().GetCustomUI("Microsoft.Outlook.Explorer"), "");
  const std::vector<std::string> reports = ErrorReports(world);
  ASSERT_EQ(reports.size(), 1u);
  EXPECT_TRUE(Contains(reports[0], "Addin.ExplorerUI"));
  EXPECT_FALSE(s().err.pending());
}

// Nothing is escaped: a title with markup characters reaches the host as it
// stands, and a host that takes all or nothing then shows no add-in ribbon.
TEST_F(RibbonDocumentMarkup, ATitleIsBakedInUnescaped) {
  struct Row {
    const char* title;
    bool accepted;
  };
  for (const Row& row : {Row{"Billing & Hours", false}, Row{"a < b", false},
                         Row{"the \"big\" one", false}, Row{"it's > fine", true}}) {
    SCOPED_TRACE(row.title);
    World w;
    w.registry().SetString(scenario::kSettingsKey, "CustomFieldsTitle", row.title);
    ConnectAddin(w);
    for (const std::string& id : AnsweredRibbonIds()) {
      const std::string markup = w.addin().GetCustomUI(id);
      EXPECT_TRUE(Contains(markup, std::string("<group label=\"Quorvix - ") + row.title + "\""));
      EXPECT_EQ(sim::ParseRibbonMarkup(markup, "customUI").has_value(), row.accepted) << id;
    }
  }
}

// The title is read when the document is built: a later change shows only in
// the next document.
TEST_F(RibbonDocumentMarkup, TheTitleIsReadWhenTheDocumentIsBuilt) {
  ConnectAddin(world);
  const std::string before = world.addin().GetCustomUI("Microsoft.Outlook.Appointment");
  s().main.Settings().CustomFieldsTitle = "Later";
  EXPECT_TRUE(Contains(before, "label=\"Quorvix - Custom Fields\""));
  EXPECT_TRUE(Contains(world.addin().GetCustomUI("Microsoft.Outlook.Appointment"),
                       "label=\"Quorvix - Later\""));
}

// Every document is accepted by the host as it is (an id given twice would
// not be), or is empty for want of settings; those that differ by context
// and host version are exact. The explorer's holds each of its seven
// contexts once, its context menus the calendar's and the task list's only;
// version 12 shows the add-in's own pictures.
TEST(RibbonDocuments, EveryDocumentIsAcceptedAndTheRecordedOnesAreExact) {
  const std::set<std::string> recorded = {
      "default-16-Microsoft.Outlook.Explorer", "all-fields-16-Microsoft.Outlook.Task",
      "all-fields-12-Microsoft.Outlook.Appointment", "no-settings-16-Microsoft.Outlook.Task"};
  size_t compared = 0;
  for (const RibbonDocument& d : EveryRibbonDocument()) {
    SCOPED_TRACE(d.name);
    if (recorded.contains(d.name)) {
      EXPECT_EQ(d.markup, RecordedDocument(d.name));
      ++compared;
    }
    if (d.markup.empty()) {
      EXPECT_TRUE(d.name.starts_with("no-settings-"));
      EXPECT_EQ(d.ribbonId, "Microsoft.Outlook.Explorer");
      continue;
    }
    EXPECT_TRUE(sim::ParseRibbonMarkup(d.markup, "customUI").has_value());
  }
  EXPECT_EQ(compared, recorded.size());
}

void CollectCallbacks(const sim::MarkupElement& e, std::set<std::string>& names) {
  for (const auto& [attribute, value] : e.attributes) {
    const bool bindsCallback = attribute == "onLoad" || attribute == "loadImage" ||
                               attribute == "onAction" || attribute.starts_with("get");
    if (bindsCallback) names.insert(value);
  }
  for (const sim::MarkupElement& child : e.children) CollectCallbacks(child, names);
}

// Every name the documents and the views menus bind is a callback of the
// add-in's.
TEST(RibbonDocuments, EveryBoundCallbackIsInTheTable) {
  std::set<std::string> missing;
  size_t bound = 0;
  const auto collect = [&](const std::vector<RibbonDocument>& documents, std::string_view root) {
    for (const RibbonDocument& d : documents) {
      const auto tree = sim::ParseRibbonMarkup(d.markup, root);
      if (!tree) continue;
      std::set<std::string> names;
      CollectCallbacks(*tree, names);
      bound += names.size();
      for (const std::string& name : names) {
        if (!FindRibbonCallback(name)) missing.insert(name);
      }
    }
  };
  collect(EveryRibbonDocument(), "customUI");
  collect(EveryViewsMenuDocument(), "menu");
  EXPECT_GT(bound, 0u);
  EXPECT_EQ(missing, std::set<std::string>{});
}

// Each of the seven views menus holds what dnViewsCal holds, each entry
// tagged with its label (the entries as the user sees them are in
// views_menu.qvx); any other control gets an empty menu.
TEST(RibbonDocuments, EveryViewsMenuHoldsTheSameEntries) {
  const std::vector<RibbonDocument> documents = EveryViewsMenuDocument();
  ASSERT_EQ(documents[0].ribbonId, "dnViewsCal");
  EXPECT_EQ(documents[0].markup, RecordedDocument(documents[0].name));
  for (const RibbonDocument& d : documents) {
    const auto menu = sim::ParseRibbonMarkup(d.markup, "menu");
    ASSERT_TRUE(menu.has_value()) << d.name;
    if (d.ribbonId.starts_with("dnViews")) {
      EXPECT_EQ(d.markup, documents[0].markup) << d.name;
    } else {
      EXPECT_TRUE(menu->children.empty()) << d.name;
    }
  }
}

}  // namespace
}  // namespace qvx::testing
