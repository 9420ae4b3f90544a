#include "reporting/report_items.h"

#include <gtest/gtest.h>

#include "platform/user_interface.h"
#include "unit/reporting/report_fixture.h"

namespace qvx {
namespace {

namespace msgbox = platform::msgbox;

using ReportItems = testing::ReportTest;

// Without the explorer's folder only a single item's own ways can give the store.
TEST_F(ReportItems, TheStoreOfAnOccurrenceIsFoundThroughItsSeriesButSeveralNeedTheFolder) {
  t.settings().AllowRecurring = -1;
  auto occurrence = Occurrence("Weekly");
  Select({occurrence});
  world.FailAt("ActiveExplorer.CurrentFolder", -2147467259, "The operation failed.");
  ReportItemsToDB(t.s);
  EXPECT_EQ(Arguments(), std::vector<std::string>{"0|" + Store() + "|" + occurrence->EntryId() +
                                                  ";3/9/2026 9:00:00 AM"});
  world.Select(*world.ActiveExplorer(), {Appointment("A"), Appointment("B")});
  ReportItemsToDB(t.s);
  // No store: nothing reported, nothing said.
  EXPECT_EQ(Launches().size(), 1u);
  EXPECT_TRUE(Boxes().empty());
  EXPECT_TRUE(t.Reports().empty());
  EXPECT_FALSE(t.s.err.pending());
}

TEST_F(ReportItems, AnEmptySelectionAsksNothingButAsSuchGetsTheMessage) {
  t.settings().AskForConfirmationBeforeReporting = 1;
  auto explorer = Select({});
  ReportItemsToDB(t.s);
  EXPECT_TRUE(Boxes().empty());
  ReportToDB(t.s, Store(), explorer->Selection()->AsObject());
  EXPECT_TRUE(Launches().empty());
  ASSERT_EQ(Boxes().size(), 1u);
  EXPECT_EQ(Boxes()[0].text,
            "The selected items cannot be reported as they are marked private or are recurring!");
  EXPECT_EQ(Boxes()[0].style, msgbox::kInformation + msgbox::kOkOnly);
  EXPECT_EQ(Boxes()[0].title, "Quorvix Client Addin");
  EXPECT_TRUE(ProblemLists().empty());
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(ReportItems, AnItemOfAnotherClassEndsTheValidation) {
  auto a = Appointment("A");
  auto mail = world.AddMail("Mail", world.Calendar());
  Select({a, mail});
  ReportItemsToDB(t.s);
  EXPECT_TRUE(Launches().empty());
  EXPECT_TRUE(ProblemLists().empty());
  EXPECT_TRUE(t.Reported("Main.ReportToDB"));  // IsRecurring, of the second item
}

// An item that has gone ends the validation: report_refused_item.qvx; the
// first item alone and an inspector's item: report_first_item.qvx.

}  // namespace
}  // namespace qvx
