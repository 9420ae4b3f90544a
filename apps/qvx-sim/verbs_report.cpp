// command report / withdraw, expect problem-list: the report pipeline as the
// user drives it, and the dialog of the items it refused.
#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "reporting/report_items.h"
#include "reporting/withdraw_report.h"

namespace qvx::scenario {
namespace {

constexpr char kProblemListCaption[] = "Message Manager";

}  // namespace

void RegisterReportVerbs(VerbTable& table) {
  table.Add("command report", "command report",
            "the user gives the report command on the current item or selection",
            [](World& w, const Args& a) {
              a.Expect(0);
              ReportItemsToDB(w.addin().state());
            });
  table.Add("command withdraw", "command withdraw",
            "the user gives the withdraw command on the current item", [](World& w, const Args& a) {
              a.Expect(0);
              WithdrawReportFromDB(w.addin().state());
            });
  table.Add("expect problem-list", "expect problem-list TEXT",
            "the next dialog is the \"Message Manager\" listing exactly these problems",
            [](World& w, const Args& a) {
              a.Expect(1);
              const auto& forms = w.ui().Forms();
              if (w.formsSeen >= forms.size()) {
                throw ExpectationFailed(Shown(kProblemListCaption), "(no dialog)");
              }
              const platform::FormRecord& form = forms[w.formsSeen++];
              ExpectEqual(kProblemListCaption, form.caption);
              std::string text = "(no txtMessage)";
              for (const auto& control : form.controls) {
                if (control.name == "txtMessage") text = control.text;
              }
              ExpectEqual(a.At(0), text);
            });
}

}  // namespace qvx::scenario
