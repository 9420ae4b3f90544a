#include "reporting/report_items.h"

#include <gtest/gtest.h>

#include "platform/user_interface.h"
#include "unit/reporting/report_fixture.h"

namespace qvx {
namespace {

namespace msgbox = platform::msgbox;

constexpr char kPrivate[] = "\r\n\t- Problem: Private Item not allowed for reporting!";
constexpr char kRecurring[] = "\r\n\t- Problem: Recurrence Item not allowed for reporting!";
constexpr char kProjectMissing[] = "\t- Project field is mandatory for reporting!";
constexpr char kBetweenItems[] = "\r\n\r\n\r\n";

using ReportItems = testing::ReportTest;

TEST_F(ReportItems, TwoPlainItemsGoAsOneCommandLine) {
  auto a = Appointment("A");
  auto b = Appointment("B");
  Select({a, b});
  ReportItemsToDB(t.s);
  ASSERT_EQ(Launches().size(), 1u);
  EXPECT_TRUE(Launches()[0].path.ends_with("QuorvixClient.exe")) << Launches()[0].path;
  EXPECT_EQ(Launches()[0].argument,
            "0|" + Store() + "|" + a->EntryId() + ";," + b->EntryId() + ";");
  EXPECT_TRUE(Boxes().empty());
  EXPECT_TRUE(ProblemLists().empty());
  EXPECT_TRUE(t.Reports().empty());
  EXPECT_EQ(a->saveCount() + b->saveCount(), 0);
}

TEST_F(ReportItems, AnOccurrenceCarriesItsStartText) {
  t.settings().AllowRecurring = -1;
  auto occurrence = Occurrence("Weekly");
  auto plain = Appointment("Plain");
  Select({occurrence, plain});
  ReportItemsToDB(t.s);
  EXPECT_EQ(Arguments(),
            std::vector<std::string>{"0|" + Store() + "|" + occurrence->EntryId() +
                                     ";3/9/2026 9:00:00 AM," + plain->EntryId() + ";"});
}

TEST_F(ReportItems, TheStoreOfAnOccurrenceIsFoundThroughItsSeries) {
  t.settings().AllowRecurring = -1;
  auto occurrence = Occurrence("Weekly");
  Select({occurrence});
  // Without the explorer's folder only the item's own ways can give the store.
  world.FailAt("ActiveExplorer.CurrentFolder", -2147467259, "The operation failed.");
  ReportItemsToDB(t.s);
  EXPECT_EQ(Arguments(), std::vector<std::string>{"0|" + Store() + "|" + occurrence->EntryId() +
                                                  ";3/9/2026 9:00:00 AM"});
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(ReportItems, SeveralItemsTakeTheStoreOfTheExplorersFolder) {
  Select({Appointment("A"), Appointment("B")});
  world.FailAt("ActiveExplorer.CurrentFolder", -2147467259, "The operation failed.");
  ReportItemsToDB(t.s);
  // No store: nothing reported, nothing said.
  EXPECT_TRUE(Launches().empty());
  EXPECT_TRUE(Boxes().empty());
  EXPECT_TRUE(t.Reports().empty());
  EXPECT_FALSE(t.s.err.pending());
}

TEST_F(ReportItems, TheConfirmationDecides) {
  t.settings().AskForConfirmationBeforeReporting = 1;
  auto a = Appointment("A");
  Select({a});
  for (int answer : {msgbox::kNo, msgbox::kYes}) {
    t.ui.QueueAnswer(answer);
    ReportItemsToDB(t.s);
  }
  ASSERT_EQ(Boxes().size(), 2u);
  for (const auto& box : Boxes()) {
    EXPECT_EQ(box.text, "Are you sure you want to report the selected item(s) to the database?");
    EXPECT_EQ(box.style, msgbox::kYesNo + msgbox::kQuestion);
    EXPECT_EQ(box.title, "Quorvix Client Addin");
  }
  EXPECT_EQ(Arguments(), std::vector<std::string>{"0|" + Store() + "|" + a->EntryId() + ";"});
}

TEST_F(ReportItems, NothingSelectedAsksNothing) {
  t.settings().AskForConfirmationBeforeReporting = 1;
  Select({});
  ReportItemsToDB(t.s);
  EXPECT_TRUE(Boxes().empty());
  EXPECT_TRUE(Launches().empty());
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(ReportItems, APrivateItemIsNamedAndTheOtherReported) {
  auto privateOne = Appointment("Doctor");
  privateOne->SetField("Sensitivity", int32_t{2});
  auto other = Appointment("Planning");
  Select({privateOne, other});
  ReportItemsToDB(t.s);
  EXPECT_EQ(Arguments(), std::vector<std::string>{"0|" + Store() + "|" + other->EntryId() + ";"});
  EXPECT_EQ(ProblemLists(), std::vector<std::string>{std::string("Doctor") + kPrivate});
  EXPECT_TRUE(Boxes().empty());
}

TEST_F(ReportItems, AllRefusedShowsTheListOnly) {
  auto privateOne = Appointment("Doctor");
  privateOne->SetField("Sensitivity", int32_t{2});
  auto occurrence = Occurrence("Weekly");
  Select({privateOne, occurrence});
  ReportItemsToDB(t.s);
  EXPECT_TRUE(Launches().empty());
  EXPECT_EQ(ProblemLists(), std::vector<std::string>{std::string("Doctor") + kPrivate +
                                                     kBetweenItems + "Weekly" + kRecurring});
  EXPECT_TRUE(Boxes().empty());
}

TEST_F(ReportItems, OneItemsFieldProblemsComeWithoutItsSubject) {
  t.settings().ProjectMandatory = -1;
  Select({Appointment("A")});
  ReportItemsToDB(t.s);
  EXPECT_TRUE(Launches().empty());
  EXPECT_EQ(ProblemLists(), std::vector<std::string>{kProjectMissing});
}

TEST_F(ReportItems, SeveralItemsFieldProblemsComeWithTheirSubjects) {
  t.settings().ProjectMandatory = -1;
  t.settings().ActivityMandatory = -1;
  auto a = Appointment("A");
  auto b = Appointment("B");
  auto c = Appointment("C");
  Tag(*b, "ProjectValue", "Alpha");
  Tag(*b, "ActivityValue", "Design");
  Tag(*c, "ActivityValue", "Design");
  Select({a, b, c});
  ReportItemsToDB(t.s);
  EXPECT_EQ(Arguments(), std::vector<std::string>{"0|" + Store() + "|" + b->EntryId() + ";"});
  EXPECT_EQ(ProblemLists(),
            std::vector<std::string>{std::string("A\r\n") + kProjectMissing +
                                     "\r\n\t- Activity field is mandatory for reporting!" +
                                     kBetweenItems + "C\r\n" + kProjectMissing});
}

TEST_F(ReportItems, OnlyTheFirstWhenMultipleReportingIsNotAllowed) {
  t.settings().DontAllowMultipleItemsReporting = -1;
  t.settings().ProjectMandatory = -1;
  auto a = Appointment("A");
  auto b = Appointment("B");  // missing its project, but never looked at
  Tag(*a, "ProjectValue", "Alpha");
  Select({a, b});
  ReportItemsToDB(t.s);
  EXPECT_EQ(Arguments(), std::vector<std::string>{"0|" + Store() + "|" + a->EntryId() + ";"});
  EXPECT_TRUE(ProblemLists().empty());

  world.Select(*world.ActiveExplorer(), {b, a});
  ReportItemsToDB(t.s);
  EXPECT_EQ(Launches().size(), 1u);
  EXPECT_EQ(ProblemLists(), std::vector<std::string>{kProjectMissing});
}

TEST_F(ReportItems, TheItemOfAnInspector) {
  auto task = Task("Write report");
  Select({Appointment("A")});
  world.OpenInspector(task);
  ReportItemsToDB(t.s);
  EXPECT_EQ(Arguments(), std::vector<std::string>{"0|" + world.Tasks()->storeId() + "|" +
                                                  task->EntryId() + ";"});
}

TEST_F(ReportItems, AnEmptySelectionGetsTheMessage) {
  auto explorer = Select({});
  ReportToDB(t.s, Store(), explorer->Selection()->AsObject());
  EXPECT_TRUE(Launches().empty());
  ASSERT_EQ(Boxes().size(), 1u);
  EXPECT_EQ(Boxes()[0].text,
            "The selected items cannot be reported as they are marked private or are recurring!");
  EXPECT_EQ(Boxes()[0].style, msgbox::kInformation + msgbox::kOkOnly);
  EXPECT_EQ(Boxes()[0].title, "Quorvix Client Addin");
  EXPECT_TRUE(ProblemLists().empty());
}

TEST_F(ReportItems, AnItemOfAnotherClassEndsTheValidation) {
  auto a = Appointment("A");
  auto mail = world.AddMail("Mail", world.Calendar());
  Select({a, mail});
  ReportItemsToDB(t.s);
  EXPECT_TRUE(Launches().empty());
  EXPECT_TRUE(ProblemLists().empty());
  EXPECT_TRUE(t.Reported("Main.ReportToDB", 220));  // IsRecurring, of the second item
}

TEST_F(ReportItems, AnItemThatHasGoneEndsTheValidation) {
  auto a = Appointment("A");
  auto gone = Appointment("B");
  Select({a, gone});
  gone->Delete();
  ReportItemsToDB(t.s);
  EXPECT_TRUE(Launches().empty());
  EXPECT_TRUE(ProblemLists().empty());
  EXPECT_TRUE(t.Reported("Main.ReportToDB", 200));
}

TEST_F(ReportItems, AnOnlyItemThatHasGoneEndsItToo) {
  auto gone = Appointment("A");
  Select({gone});
  gone->Delete();
  ReportItemsToDB(t.s);
  EXPECT_TRUE(Launches().empty());
  EXPECT_TRUE(t.Reported("Main.ReportToDB", 300));
}

TEST(AppendWithSeparator, JoinsOnlyBehindSomething) {
  std::string list;
  AppendWithSeparator(list, "a", ",");
  EXPECT_EQ(list, "a");
  AppendWithSeparator(list, "b", ",");
  AppendWithSeparator(list, "", ",");
  EXPECT_EQ(list, "a,b,");
  std::string problems;
  AppendWithSeparator(problems, "", "\r\n");
  EXPECT_EQ(problems, "");
}

}  // namespace
}  // namespace qvx
