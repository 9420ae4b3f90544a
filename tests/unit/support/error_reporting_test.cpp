// The central failure handler: the first report and its form, the mail of a
// report, and the trace log.
#include "support/error_reporting.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/dates.h"
#include "sim/errors.h"
#include "sim/inspector.h"
#include "sim/item.h"
#include "sim/name_space.h"
#include "support/app_texts.h"
#include "support/endpoints.h"
#include "support/error_report_form.h"
#include "support_fixture.h"

namespace qvx::testing {
namespace {

using platform::FormScript;
namespace msgbox = platform::msgbox;

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
  EXPECT_TRUE(s.support.firstReportShown);
  const platform::FormRecord& form = ui.Forms()[0];
  EXPECT_EQ(form.caption, "Unknown Exception");
  EXPECT_EQ(form.height, 3150);
  std::vector<std::string> names;
  for (const auto& c : form.controls) names.push_back(c.name);
  ASSERT_EQ(names, (std::vector<std::string>{"lblBuild", "txtReport", "cmdViewReport", "cmdCancel",
                                             "lblApplication", "lblCommentFirst",
                                             "lblCommentSecond", "lblClickHere", "cmdOpenEmail",
                                             "lblLearn", "frameReport", "lblSendDirectly"}));
  const auto control = [&form](std::string_view name) {
    return *std::find_if(form.controls.begin(), form.controls.end(),
                         [name](const platform::FormControl& c) { return c.name == name; });
  };
  EXPECT_EQ(control("txtReport").text,
            "At Line: 120\r\nIn Function: Main.ReportToDB\r\nSource: Microsoft Outlook\r\n"
            "Exception Number: 91\r\n"
            "Exception Description: Object variable or With block variable not set\r\n");
  EXPECT_EQ(control("lblApplication").caption, "Quorvix Client Addin");
  EXPECT_EQ(control("lblBuild").caption, "Build " + GetVersionText());
  EXPECT_EQ(control("lblCommentFirst").caption.substr(0, 35),
            "An unknown exception has occured. A");
  EXPECT_EQ(control("frameReport").caption, "Exception Report");
  EXPECT_EQ(control("lblClickHere").caption, "click here.");
  EXPECT_EQ(control("lblSendDirectly").caption, "Send directly");
  EXPECT_FALSE(control("lblSendDirectly").visible);
  EXPECT_TRUE(control("cmdOpenEmail").visible);
}

TEST_F(ErrorReporting, DirectSendingIsOfferedOnlyWhenAllowed) {
  ConnectHost();
  ReportError(s, "d", 1, 10, "Label", true);
  ASSERT_EQ(ui.Forms().size(), 1u);
  EXPECT_EQ(ui.Forms()[0].controls.back().name, "lblSendDirectly");
  EXPECT_TRUE(ui.Forms()[0].controls.back().visible);
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

TEST_F(ErrorReporting, TheFormTogglesItsReportAndOpensThePolicyPage) {
  frmErrorReport form(s);
  form.OnEvent("cmdViewReport", "Click");
  EXPECT_EQ(form.Height(), 5535);
  EXPECT_EQ(form.Control("cmdViewReport").caption, "Hide Report");
  form.OnEvent("cmdViewReport", "Click");
  EXPECT_EQ(form.Height(), 3150);
  EXPECT_EQ(form.Control("cmdViewReport").caption, "View Report");
  form.OnEvent("lblClickHere", "Click");
  EXPECT_FALSE(form.Unloaded());
  ASSERT_EQ(system.Launches().size(), 1u);
  EXPECT_EQ(system.Launches()[0].path, ProductWebPage("/support/ErrorReportingPolicy.asp"));
  EXPECT_EQ(system.Launches()[0].argument, "");
}

TEST_F(ErrorReporting, AnEditedReportIsWhatIsMailedAndCancelSendsNothing) {
  ConnectHost();
  ui.QueueForm(FormScript().SetText("txtReport", "edited by the user").Click("cmdOpenEmail"));
  FailIn("Main.ReportToDB", 120, 91, "x");
  // The mail is saved into the drafts and shown in an inspector.
  ASSERT_EQ(host.Inspectors().size(), 1u);
  const sim::SimItem& mail = *host.Inspectors()[0]->item();
  EXPECT_EQ(mail.Field("Body").ToText(), "edited by the user");
  EXPECT_EQ(mail.Field("To").ToText(), kErrorReportMailAddress);
  EXPECT_EQ(mail.Subject(), "Exception (" + GetVersionText() + ") : Quorvix Client Addin");
  EXPECT_EQ(mail.saveCount(), 1);
  EXPECT_EQ(mail.Folder(), host.DefaultFolder(host::olFolderDrafts));
  EXPECT_FALSE(ui.Forms()[0].closedByCloseBox);
  EXPECT_TRUE(ui.MessageBoxes().empty());

  frmErrorReport form(s);
  form.OnEvent("cmdCancel", "Click");
  EXPECT_TRUE(form.Unloaded());
  EXPECT_EQ(host.Inspectors().size(), 1u);
}

TEST_F(ErrorReporting, MailingFailuresAreToldOnlyWhenSendingDirectly) {
  ConnectHost();
  host.FailAt("CreateItem", sim::hresult::kFail, "Cannot create.");
  SendErrorReport(s, "report", false);
  EXPECT_TRUE(ui.MessageBoxes().empty());
  SendErrorReport(s, "report", true);
  ASSERT_EQ(ui.MessageBoxes().size(), 1u);
  EXPECT_EQ(ui.MessageBoxes()[0].text, "Failed to send error email using MS Outlook!");
  EXPECT_EQ(ui.MessageBoxes()[0].style, msgbox::kCritical);
  EXPECT_EQ(ui.MessageBoxes()[0].title, kMessageTitle);
  EXPECT_FALSE(s.err.pending());
}

TEST_F(ErrorReporting, EachActionIsRecordedAndLoggedOnlyWithTheTraceFlag) {
  SetCurrentAction(s, "Attempting to execute x");
  EXPECT_EQ(s.support.strCurrentAction, "Attempting to execute x");
  EXPECT_TRUE(std::filesystem::is_empty(Home()));  // no log without the flag
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
