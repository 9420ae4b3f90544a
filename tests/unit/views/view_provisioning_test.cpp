// Provisioning of prepared views into simulated folders: created once with
// the folder's fields and the document fitted to the titles, applied
// afterwards, orphans of an old title deleted, and every fault reported
// without a half-made view going unreported. A folder of mail, which has no
// documents, is tests/scenarios/views_titles.qvx's.
#include "views/view_provisioning.h"

#include <gtest/gtest.h>

#include "core/host_constants.h"
#include "sim/documents/view_document.h"
#include "sim/errors.h"
#include "sim/folder.h"
#include "sim/item.h"
#include "sim/items.h"
#include "sim/outlook.h"
#include "sim/views.h"
#include "unit/reporting/test_addin.h"
#include "views/view_names.h"
#include "views/view_xml.h"

namespace qvx::testing {
namespace {

struct Provisioning : ::testing::Test, sim::SimulatedHost, TestAddin {
  Provisioning() {
    ConnectHost(host);
    settings().ProjectTitle = "Project";
    settings().ActivityTitle = "Activity";
  }
  void Load(const std::shared_ptr<sim::SimFolder>& folder, std::string_view name) {
    LoadView(s, folder->AsObject(), name, GetViewResName(s, name));
  }
  std::optional<sim::ViewElement> Document(sim::SimFolder& folder, std::string_view name) {
    return sim::ParseViewDocument(folder.views().Find(name)->xml());
  }
};

// What the user sees of a first load is views_provisioning.qvx's; here the
// document itself, the throw-away item gone again and the fields' types.
TEST_F(Provisioning, AFirstLoadFillsTheDocumentAndGivesTheFolderTypedFields) {
  const auto calendar = host.Calendar();
  Load(calendar, "Reported State");
  ASSERT_TRUE(calendar->views().Find("Reported State"));
  EXPECT_EQ(calendar->views().Find("Reported State")->xml(),
            GetViewXML(s, kAppointmentViews, "REPORTED_STATE"));
  EXPECT_EQ(calendar->items().list().size(), 0u);
  std::string fields;
  for (const auto& f : calendar->fields()) fields += f.name + ":" + std::to_string(f.type) + " ";
  EXPECT_EQ(
      fields,
      "ProjectValue:1 ActivityValue:1 Field1Value:1 Field2Value:1 Field3Value:1 Field4Value:1 "
      "Field5Value:1 Field6Value:1 Field7Value:1 Field8Value:1 ReportedDate:5 "
      "Reported Date:1 ReportedID:1 ReportedIDHidden:1 Reported:6 ReportedBy:1 ");
  EXPECT_TRUE(Reports().empty());
}

TEST_F(Provisioning, EveryDocumentOfEveryViewStaysWellFormedUnderTitlesThatNeedEscaping) {
  settings().ProjectTitle = "<A&B>";
  settings().ActivityTitle = "<C>";
  const auto calendar = host.Calendar();
  const auto tasks = host.Tasks();
  for (const char* name : {"[PROJECT] and [ACTIVITY]", "[PROJECT]", "[ACTIVITY]",
                           "Items without [PROJECT] (Filtered)"}) {
    const std::string shown = GetActualViewName(s, name);
    for (const auto& folder : {calendar, tasks}) {
      Load(folder, shown);
      ASSERT_TRUE(folder->views().Find(shown)) << shown;
      EXPECT_TRUE(Document(*folder, shown)) << shown;
    }
  }
  // Only the project's title reaches the grouping; headings and names are views_titles.qvx's.
  const auto doc = Document(*calendar, "<A&B> and <C>");
  ASSERT_TRUE(doc && doc->Child("groupby"));
  EXPECT_EQ(doc->Child("groupby")->Children("order")[0]->ChildText("userheading"), "<A&B>");
  EXPECT_TRUE(Reports().empty());
}

TEST_F(Provisioning, ANameWithoutAResourceLeavesTheViewEmptyAndIsNotFilledLater) {
  settings().ProjectTitle = "Date";
  const auto tasks = host.Tasks();
  Load(tasks, "Due Date");  // "Due PROJECT" has no document
  const auto view = tasks->views().Find("Due Date");
  ASSERT_TRUE(view);
  EXPECT_TRUE(Reported("Views.GetViewXML"));
  const std::string empty = view->xml();
  settings().ProjectTitle = "Project";
  Load(tasks, "Due Date");
  EXPECT_EQ(view->xml(), empty);
  EXPECT_EQ(view->applies(), 1);
}

TEST_F(Provisioning, AViewsCollectionThatFailsIsReportedAndNothingIsMade) {
  host.FailAt("Session.GetDefaultFolder(9).Views", sim::hresult::kFail, "The operation failed.");
  const auto calendar = host.Calendar();
  Load(calendar, "Reported ID");
  EXPECT_TRUE(Reported("Views.LoadView"));
  EXPECT_EQ(calendar->itemsMade(), 0);
}

TEST_F(Provisioning, OrphansAreTheDefaultTitleNamesAndAnyItemsWithout) {
  settings().ProjectTitle = "Client";
  const auto calendar = host.Calendar();
  auto& views = calendar->views();
  const char* names[] = {
      "Project",  "Activity",     "Project and Activity", "My Items without dates",
      "Projects", "items without"};
  for (const char* name : names) views.Add(name, host::olTableView, 0);
  for (const char* name : names) DeleteOrphanedViews(s, calendar->AsObject(), name);
  std::vector<std::string> left;
  for (const auto& v : views.Enumerate()) left.push_back(v.ToObject().Get("Name").ToText());
  EXPECT_EQ(left, (std::vector<std::string>{"Calendar", "Projects", "items without"}))
      << "names are compared whole, case and all";
  DeleteView(s, calendar->AsObject(), "Not there");
  EXPECT_TRUE(Reports().empty());
}

}  // namespace
}  // namespace qvx::testing
