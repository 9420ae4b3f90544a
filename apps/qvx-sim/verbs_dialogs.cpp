// answer msgbox, expect msgbox / no-msgbox, answer error-report,
// expect error-report / error-report-text / no-error-report, expect form;
// and, from verbs_dialog_user.cpp, the user's acts in any dialog.
#include <map>

#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "platform/user_interface.h"

namespace qvx::scenario {
namespace {

constexpr char kErrorReportCaption[] = "Unknown Exception";

const std::map<std::string, int> kAnswers = {
    {"ok", 1}, {"cancel", 2}, {"abort", 3}, {"retry", 4}, {"ignore", 5}, {"yes", 6}, {"no", 7}};

const std::map<std::string, int> kStyles = {
    {"okonly", 0},       {"okcancel", 1},    {"abortretryignore", 2}, {"yesnocancel", 3},
    {"yesno", 4},        {"retrycancel", 5}, {"critical", 16},        {"question", 32},
    {"exclamation", 48}, {"information", 64}};

// Acts of the user on the error report dialog, by the control they click.
const std::map<std::string, std::string> kReportActs = {{"open-email", "cmdOpenEmail"},
                                                        {"send-directly", "lblSendDirectly"},
                                                        {"cancel", "cmdCancel"},
                                                        {"view-report", "cmdViewReport"},
                                                        {"click-here", "lblClickHere"}};

// A style as a number or as names joined by "+": "yesno+question".
int StyleOf(const std::string& word) {
  if (!word.empty() && (isdigit(static_cast<unsigned char>(word[0])) != 0)) {
    return Args({word}, "STYLE").Int(0);
  }
  int style = 0;
  size_t start = 0;
  while (start <= word.size()) {
    const size_t plus = word.find('+', start);
    const std::string name = word.substr(start, plus == std::string::npos ? plus : plus - start);
    const auto it = kStyles.find(name);
    if (it == kStyles.end()) throw UsageError("unknown message box style \"" + name + "\"");
    style += it->second;
    if (plus == std::string::npos) break;
    start = plus + 1;
  }
  return style;
}

std::string ControlText(const platform::FormRecord& form, const std::string& name) {
  for (const auto& control : form.controls) {
    if (control.name == name) return control.text;
  }
  return {};
}

// The value after "Key: " on the report's line that starts with it.
std::string ReportField(const std::string& report, const std::string& key) {
  const std::string prefix = key + ": ";
  size_t start = 0;
  while (start < report.size()) {
    size_t end = report.find("\r\n", start);
    if (end == std::string::npos) end = report.size();
    if (report.compare(start, prefix.size(), prefix) == 0) {
      return report.substr(start + prefix.size(), end - start - prefix.size());
    }
    start = end + 2;
  }
  return "(no line " + key + ")";
}

}  // namespace

const platform::FormRecord& NextForm(World& w, const std::string& caption) {
  const auto& forms = w.ui().Forms();
  if (w.formsSeen >= forms.size()) throw ExpectationFailed(Shown(caption), "(no dialog)");
  const platform::FormRecord& form = forms[w.formsSeen++];
  ExpectEqual(caption, form.caption);
  return form;
}

void RegisterDialogVerbs(VerbTable& table) {
  table.Add("answer msgbox", "answer msgbox ok|cancel|abort|retry|ignore|yes|no",
            "the user's answer to the next message box (unanswered boxes take their first button)",
            [](World& w, const Args& a) {
              a.Expect(1);
              const auto it = kAnswers.find(a.At(0));
              if (it == kAnswers.end())
                a.Choice(0, {"ok", "cancel", "abort", "retry", "ignore", "yes", "no"});
              w.ui().QueueAnswer(it->second);
            });
  table.Add("expect msgbox", "expect msgbox TEXT [TITLE [STYLE]]",
            "the next message box shown; STYLE a number or names like critical, yesno+question",
            [](World& w, const Args& a) {
              a.Expect(1, 3);
              const int style = a.size() > 2 ? StyleOf(a.At(2)) : 0;
              const auto& boxes = w.ui().MessageBoxes();
              if (w.boxesSeen >= boxes.size()) {
                throw ExpectationFailed(Shown(a.At(0)), "(no message box)");
              }
              const platform::MessageBoxRecord& box = boxes[w.boxesSeen++];
              ExpectEqual(a.At(0), box.text);
              if (a.size() > 1) ExpectEqual(a.At(1), box.title);
              if (a.size() > 2) ExpectEqual(std::to_string(style), std::to_string(box.style));
            });
  table.Add("expect no-msgbox", "expect no-msgbox", "no message box beyond those expected",
            [](World& w, const Args& a) {
              a.Expect(0);
              const auto& boxes = w.ui().MessageBoxes();
              if (w.boxesSeen < boxes.size()) {
                throw ExpectationFailed("(no message box)", Shown(boxes[w.boxesSeen].text));
              }
            });
  table.Add(
      "answer error-report",
      "answer error-report open-email|send-directly|cancel|view-report|click-here...",
      "what the user clicks on the next error report dialog, in order; the click reaches "
      "the button even where the user could not (send-directly is hidden)",
      [](World& w, const Args& a) {
        a.Expect(1, 8);
        platform::FormScript script;
        for (size_t i = 0; i < a.size(); ++i) {
          const auto it = kReportActs.find(a.At(i));
          if (it == kReportActs.end()) {
            a.Choice(i, {"open-email", "send-directly", "cancel", "view-report", "click-here"});
          }
          script.Click(it->second);
        }
        w.ui().QueueForm(std::move(script));
      });
  table.Add("expect error-report", "expect error-report LABEL [LINE [NUMBER [DESCRIPTION]]]",
            "the next dialog is the error report of a failure in LABEL",
            [](World& w, const Args& a) {
              a.Expect(1, 4);
              const std::string report = ControlText(NextForm(w, kErrorReportCaption), "txtReport");
              ExpectEqual(a.At(0), ReportField(report, "In Function"));
              if (a.size() > 1) ExpectEqual(a.At(1), ReportField(report, "At Line"));
              if (a.size() > 2) ExpectEqual(a.At(2), ReportField(report, "Exception Number"));
              if (a.size() > 3) ExpectEqual(a.At(3), ReportField(report, "Exception Description"));
            });
  table.Add("expect error-report-text", "expect error-report-text TEXT",
            "the next dialog is the error report with exactly this text",
            [](World& w, const Args& a) {
              a.Expect(1);
              ExpectEqual(a.At(0), ControlText(NextForm(w, kErrorReportCaption), "txtReport"));
            });
  table.Add("expect no-error-report", "expect no-error-report", "no dialog beyond those expected",
            [](World& w, const Args& a) {
              a.Expect(0);
              const auto& forms = w.ui().Forms();
              if (w.formsSeen < forms.size()) {
                const auto& form = forms[w.formsSeen];
                throw ExpectationFailed("(no dialog)", Shown(form.caption) + " " +
                                                           Shown(ControlText(form, "txtReport")));
              }
            });
  table.Add("expect form", "expect form CAPTION", "the next dialog shown has this caption",
            [](World& w, const Args& a) {
              a.Expect(1);
              NextForm(w, a.At(0));
            });
  RegisterDialogUserVerbs(table);
}

}  // namespace qvx::scenario
