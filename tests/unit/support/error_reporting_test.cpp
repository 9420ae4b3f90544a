#include "support/error_reporting.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/dates.h"
#include "support/app_texts.h"
#include "support/endpoints.h"
#include "support/error_report_form.h"
#include "support_fixture.h"

namespace qvx::testing {
namespace {

using platform::FormScript;
namespace msgbox = platform::msgbox;

const char* const kExpectedReport =
    "At Line: 120\r\n"
    "In Function: Main.ReportToDB\r\n"
    "Source: Microsoft Outlook\r\n"
    "Exception Number: 91\r\n"
    "Exception Description: Object variable or With block variable not set\r\n";

TEST(ErrorReportText, FiveLinesEachEndedByCrLf) {
  EXPECT_EQ(BuildErrorReport(120, "Main.ReportToDB", "Microsoft Outlook", 91,
                             "Object variable or With block variable not set"),
            kExpectedReport);
  EXPECT_EQ(BuildErrorReport(0, "", "", -2147221233, ""),
            "At Line: 0\r\nIn Function: \r\nSource: \r\nException Number: -2147221233\r\n"
            "Exception Description: \r\n");
}

TEST(ErrorReportText, VersionTextIsTheBuildsNumbers) {
  EXPECT_EQ(GetVersionText(), std::to_string(QVX_VERSION_MAJOR) + "." +
                                  std::to_string(QVX_VERSION_MINOR) + "." +
                                  std::to_string(QVX_VERSION_PATCH));
}

class ErrorReporting : public SupportTest {
 protected:
  void FailIn(std::string_view label, int at, int32_t number, const std::string& description) {
    Trapped(s, label, [&](Line& line) {
      line = at;
      throw Failure(number, "Microsoft Outlook", description);
    });
  }
};

TEST_F(ErrorReporting, TheFirstFailureShowsItsReportAndLaterOnesLeaveNoTrace) {
  ConnectHost();
  FailIn("Main.ReportToDB", 120, 91, "Object variable or With block variable not set");
  FailIn("Main.Other", 30, 5, "Invalid procedure call or argument");
  ASSERT_EQ(ui.Forms().size(), 1u);
  EXPECT_TRUE(ui.MessageBoxes().empty());
  const platform::FormRecord& form = ui.Forms()[0];
  EXPECT_EQ(form.caption, "Unknown Exception");
  EXPECT_EQ(form.height, 3150);
  const auto control = [&form](std::string_view name) {
    for (const auto& c : form.controls) {
      if (c.name == name) return c;
    }
    ADD_FAILURE() << name;
    return platform::FormControl{};
  };
  EXPECT_EQ(control("txtReport").text, kExpectedReport);
  EXPECT_EQ(control("lblApplication").caption, "Quorvix Client Addin");
  EXPECT_EQ(control("lblBuild").caption, "Build " + GetVersionText());
  EXPECT_FALSE(control("lblSendDirectly").visible);
  EXPECT_TRUE(control("cmdOpenEmail").visible);
  EXPECT_TRUE(s.support.firstReportShown);
}

TEST_F(ErrorReporting, DirectSendingIsOfferedOnlyWhenAllowed) {
  ConnectHost();
  s.err.source = "src";
  ReportError(s, "d", 1, 10, "Label", true);
  ASSERT_EQ(ui.Forms().size(), 1u);
  EXPECT_TRUE(ui.Forms()[0].controls.back().visible);
  EXPECT_EQ(ui.Forms()[0].controls.back().name, "lblSendDirectly");
}

TEST_F(ErrorReporting, AFailureWhileOpenIsDropped) {
  ConnectHost();
  ui.QueueForm(
      FormScript().Do([this](platform::FormModel&) { FailIn("Nested", 10, 5, "nested"); }));
  FailIn("Outer", 10, 5, "outer");
  EXPECT_EQ(ui.Forms().size(), 1u);
}

class ThrowingUi : public platform::UserInterface {
 public:
  int MessageBox(std::string_view, int, std::string_view) override { return 1; }
  void ShowModal(platform::FormModel&) override { throw Failure(7, "ui", "Out of memory"); }
};

TEST_F(ErrorReporting, AFailureInsideTheHandlerIsClearedSilently) {
  ConnectHost();
  ThrowingUi throwing;
  s.platform.ui = &throwing;
  s.err.Set(Failure(91, "x", "y"), 10);
  ReportError(s, "y", 91, 10, "Main.X", false);
  EXPECT_FALSE(s.err.pending());
  EXPECT_TRUE(s.support.firstReportShown);
}

TEST_F(ErrorReporting, ViewReportTogglesHeightAndCaption) {
  frmErrorReport form(s);
  EXPECT_EQ(form.Height(), 3150);
  form.OnEvent("cmdViewReport", "Click");
  EXPECT_EQ(form.Height(), 5535);
  EXPECT_EQ(form.Control("cmdViewReport").caption, "Hide Report");
  form.OnEvent("cmdViewReport", "Click");
  EXPECT_EQ(form.Height(), 3150);
  EXPECT_EQ(form.Control("cmdViewReport").caption, "View Report");
  EXPECT_FALSE(form.Unloaded());
}

TEST_F(ErrorReporting, TheFormsFixedTextsInDeclaredOrder) {
  frmErrorReport form(s);
  std::vector<std::string> names;
  for (const auto& c : form.Controls()) names.push_back(c.name);
  EXPECT_EQ(names, (std::vector<std::string>{"lblBuild", "txtReport", "cmdViewReport", "cmdCancel",
                                             "lblApplication", "lblCommentFirst",
                                             "lblCommentSecond", "lblClickHere", "cmdOpenEmail",
                                             "lblLearn", "frameReport", "lblSendDirectly"}));
  EXPECT_EQ(form.Control("lblCommentFirst").caption.substr(0, 35),
            "An unknown exception has occured. A");
  EXPECT_EQ(form.Control("frameReport").caption, "Exception Report");
  EXPECT_EQ(form.Control("lblClickHere").caption, "click here.");
  EXPECT_EQ(form.Control("lblSendDirectly").caption, "Send directly");
}

TEST_F(ErrorReporting, AnEditedReportIsWhatIsMailed) {
  ConnectHost();
  ui.QueueForm(FormScript().SetText("txtReport", "edited by the user").Click("cmdOpenEmail"));
  FailIn("Main.ReportToDB", 120, 91, "x");
  ASSERT_EQ(outlook.createdItems.size(), 1u);
  const FakeItem& mail = *outlook.createdItems[0];
  EXPECT_EQ(mail.body, "edited by the user");
  EXPECT_EQ(mail.to, kErrorReportMailAddress);
  EXPECT_EQ(mail.subject, "Exception (" + GetVersionText() + ") : Quorvix Client Addin");
  EXPECT_EQ(mail.saves, 1);
  EXPECT_EQ(mail.displays, 1);
  EXPECT_FALSE(ui.Forms()[0].closedByCloseBox);
  EXPECT_TRUE(ui.MessageBoxes().empty());
}

TEST_F(ErrorReporting, CancelSendsNothing) {
  ConnectHost();
  ui.QueueForm(FormScript().Click("cmdCancel"));
  FailIn("Main.ReportToDB", 120, 91, "x");
  EXPECT_TRUE(outlook.createdItems.empty());
  EXPECT_FALSE(ui.Forms()[0].closedByCloseBox);
}

TEST_F(ErrorReporting, ClickHereOpensThePolicyPage) {
  ConnectHost();
  frmErrorReport form(s);
  form.OnEvent("lblClickHere", "Click");
  ASSERT_EQ(system.Launches().size(), 1u);
  EXPECT_EQ(system.Launches()[0].path, ProductWebPage("/support/ErrorReportingPolicy.asp"));
  EXPECT_EQ(system.Launches()[0].argument, "");
}

TEST_F(ErrorReporting, MailingFailuresAreToldOnlyWhenSendingDirectly) {
  ConnectHost();
  outlook.failCreateItem = true;
  SendErrorReport(s, "report", false);
  EXPECT_TRUE(ui.MessageBoxes().empty());
  SendErrorReport(s, "report", true);
  ASSERT_EQ(ui.MessageBoxes().size(), 1u);
  EXPECT_EQ(ui.MessageBoxes()[0].text, "Failed to send error email using MS Outlook!");
  EXPECT_EQ(ui.MessageBoxes()[0].style, msgbox::kCritical);
  EXPECT_EQ(ui.MessageBoxes()[0].title, kMessageTitle);
  EXPECT_FALSE(s.err.pending());
}

TEST_F(ErrorReporting, WithTheTraceFlagOffNoLogIsMade) {
  SetCurrentAction(s, "Attempting to execute x");
  EXPECT_EQ(s.support.strCurrentAction, "Attempting to execute x");
  EXPECT_TRUE(std::filesystem::is_empty(Home()));
}

TEST_F(ErrorReporting, WithTheTraceFlagOnEachActionIsAppendedToTheLog) {
  std::filesystem::create_directories(Home() + "/Documents");
  s.support.traceFlag = true;
  const DateValue now = ComposeDate({2026, 3, 4, 15, 4, 5});
  system.SetClock(now);
  SetCurrentAction(s, "first");
  SetCurrentAction(s, "second");
  EXPECT_EQ(fncGetLogFolder(s), Home() + "/Documents\\Marlstone Data\\");
  EXPECT_EQ(fncGetLogFile(s), Home() + "/Documents\\Marlstone Data\\Quorvix Client Addin.log.txt");
  std::ifstream in(Home() + "/Documents/Marlstone Data/Quorvix Client Addin.log.txt",
                   std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  const std::string stamp = DateToText(now);
  EXPECT_EQ(text.str(), stamp + "\tfirst\r\n" + stamp + "\tsecond\r\n");
}

TEST_F(ErrorReporting, NoLogPathWithoutAFileSystemObject) {
  objects.Refuse("Scripting.FileSystemObject");
  EXPECT_EQ(fncGetLogFolder(s), "");
  EXPECT_EQ(fncGetLogFile(s), "");
}

}  // namespace
}  // namespace qvx::testing
