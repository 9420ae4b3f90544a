// The central failure handler: the first report and its form, the mail of a
// report, and the trace log.
#include "support/error_reporting.h"

#include <filesystem>

#include "core/dates.h"
#include "sim/inspector.h"
#include "sim/item.h"
#include "support/app_texts.h"
#include "support/endpoints.h"
#include "support_fixture.h"
#include "unit/file_bytes.h"

namespace qvx::testing {
namespace {

using platform::FormScript;

class ErrorReporting : public SupportTest {
 protected:
  void FailIn(std::string_view label, int at, int32_t number, const std::string& description) {
    Trapped(s, label, [&](Line& line) {
      line = at;
      throw Failure(number, "Microsoft Outlook", description);
    });
  }
};

// What the first report shows, its toggle and its policy page, the silence
// of later failures, and a mail the host cannot make are proven by the error
// report scenarios.
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

TEST_F(ErrorReporting, AnEditedReportIsWhatIsMailed) {
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
  const std::string stamp = DateToText(now);
  EXPECT_EQ(FileBytes(Home() + "/Documents/Marlstone Data/Quorvix Client Addin.log.txt"),
            stamp + "\tfirst\r\n" + stamp + "\tsecond\r\n");
}

TEST_F(ErrorReporting, NoLogPathWithoutAFileSystemObject) {
  objects.Refuse("Scripting.FileSystemObject");
  EXPECT_EQ(fncGetLogFolder(s), "");
  EXPECT_EQ(fncGetLogFile(s), "");
}

}  // namespace
}  // namespace qvx::testing
