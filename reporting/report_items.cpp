#include "reporting/report_items.h"

#include <vector>

#include "companion/command_lines.h"
#include "companion/section_codes.h"
#include "core/failure.h"
#include "core/variant.h"
#include "platform/user_interface.h"
#include "reporting/current_selection.h"
#include "reporting/problem_list.h"
#include "reporting/report_rules.h"
#include "reporting/report_store.h"
#include "settings/my_settings.h"
#include "state/addin_state.h"
#include "support/app_texts.h"
#include "support/file_module.h"
#include "support/host_items.h"

namespace qvx {
namespace {

namespace msgbox = platform::msgbox;

const std::string kItemSeparator = "\r\n\r\n\r\n";
const std::string kPrivateProblem = "- Problem: Private Item not allowed for reporting!";
const std::string kRecurringProblem = "- Problem: Recurrence Item not allowed for reporting!";

// What the validation has gathered so far.
struct Gathered {
  std::string problems;
  std::vector<std::string> entries;
};

// The per-item test, the same in every mode, at lines first to first + 60.
// withSubject: field problems get the item's Subject and CR LF before them.
void TestItem(AddinState& s, const Object& item, bool withSubject, Line& line, int first,
              Gathered& out) {
  line = first;
  if (!IsPrivateAllowed(s, item)) {
    line = first + 10;
    std::string problem = item.Get("Subject").ToText() + "\r\n\t" + kPrivateProblem;
    AppendWithSeparator(out.problems, problem, kItemSeparator);
    return;
  }
  line = first + 20;
  if (!IsRecurringAllowed(s, item)) {
    line = first + 30;
    std::string problem = item.Get("Subject").ToText() + "\r\n\t" + kRecurringProblem;
    AppendWithSeparator(out.problems, problem, kItemSeparator);
    return;
  }
  line = first + 40;
  std::string fields = AllMandatoryFieldsFilled(s, item);
  if (!fields.empty()) {
    line = first + 50;
    if (withSubject) fields = item.Get("Subject").ToText() + "\r\n" + fields;
    AppendWithSeparator(out.problems, fields, kItemSeparator);
    return;
  }
  line = first + 60;
  const std::string start = IsRecurrenceAppointmentOccurence(s, item)
                                ? companion::OccurrenceStartText(item.Get("Start"))
                                : std::string();
  out.entries.push_back(companion::ReportEntry(item.Get("EntryID").ToText(), start));
}

}  // namespace

void AppendWithSeparator(std::string& accumulator, const std::string& text,
                         const std::string& separator) {
  if (accumulator.empty()) {
    accumulator = text;
  } else {
    accumulator += separator;
    accumulator += text;
  }
}

void ReportItemsToDB(AddinState& s) noexcept {
  Trapped(s, "Main.ReportItemsToDB", [&](Line& line) {
    line = 10;
    const Object objFirst = Main::GetCurrentSelectedItem(s, true);
    if (objFirst.IsNothing()) return;
    line = 20;
    int answer = msgbox::kYes;
    if (s.main.Settings().AskForConfirmationBeforeReporting != 0) {
      line = 30;
      answer =
          s.ui().MessageBox("Are you sure you want to report the selected item(s) to the database?",
                            msgbox::kYesNo + msgbox::kQuestion, kMessageTitle);
    }
    if (answer != msgbox::kYes) return;
    line = 40;
    const std::string store = FindReportStore(s, objFirst);
    line = 50;
    if (!store.empty()) ReportToDB(s, store, objFirst);
  });
}

void ReportToDB(AddinState& s, const std::string& strStoreID, const Object& obj) noexcept {
  Trapped(s, "Main.ReportToDB", [&](Line& line) {
    line = 10;
    const cMySettings& settings = s.main.Settings();
    Gathered gathered;
    line = 20;
    const bool isSelection = obj.TypeName() == "Selection";
    if (isSelection && settings.DontAllowMultipleItemsReporting != 0) {
      line = 30;
      const Object first = obj.Call("Item", {Variant(int32_t{1})}).ToObject();
      TestItem(s, first, false, line, 100, gathered);
    } else if (isSelection) {
      line = 40;
      for (const Variant& element : obj.Enumerate()) {
        line = 50;
        TestItem(s, element.ToObject(), true, line, 200, gathered);
      }
    } else {
      TestItem(s, obj, false, line, 300, gathered);
    }
    line = 400;
    if (!gathered.entries.empty()) {
      line = 410;
      const std::string command = companion::ReportCommand(strStoreID, gathered.entries);
      line = 420;
      FileModule::RunApp(s, companion::kClientProgram, command, "");
    } else if (gathered.problems.empty()) {
      line = 430;
      s.ui().MessageBox(
          "The selected items cannot be reported as they are marked private or are recurring!",
          msgbox::kInformation + msgbox::kOkOnly, kMessageTitle);
    }
    line = 440;
    if (!gathered.problems.empty()) ShowProblemList(s, gathered.problems);
  });
}

}  // namespace qvx
