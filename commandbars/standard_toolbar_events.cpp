// cStandardTB: what the user does on the bar, and the automatic report of a
// task completed in the explorer's folder.
#include <cmath>

#include <memory>
#include "commandbars/standard_toolbar.h"

#include "core/dates.h"
#include "core/text.h"
#include "reporting/fields_form.h"
#include "reporting/report_items.h"
#include "reporting/report_rules.h"
#include "reporting/tag_selection.h"
#include "reporting/withdraw_report.h"
#include "settings/my_settings.h"
#include "settings/settings_lists.h"
#include "settings/single_list.h"
#include "settings/tasks_per_project.h"
#include "settings/tasks_per_project_list.h"
#include "state/addin_state.h"
#include "support/file_module.h"
#include "support/mail_library.h"

namespace qvx {
namespace {

constexpr double kSecondsPerDay = 86400.0;
// A completion older than this came from elsewhere (a synchronisation, say).
constexpr double kFreshChangeSeconds = 5.0;

}  // namespace

void cStandardTB::cboProject_Change() {
  AddinState& s = s_;
  s.tagging.blnTaggingInProgress = true;
  // A failure ends here with the flag still set: selection changes and
  // ShowFields then wait for the next project change that runs to its end.
  Trapped(s, "ProjectToolbar.Project.Change", [&](Line& line) {
    line = 10;
    const Object& project = cboProject.object();
    const Object& task = cboTask.object();
    const std::string projectText = project.Get("Text").ToText();
    line = 20;
    if (ProjectList(s).dicList.Exists(Trim(projectText))) {
      cMySettings& settings = s.main.Settings();
      if (settings.MyProjectsTasks->dicList.Count() == 0) settings.ReadSettings(s);
      std::shared_ptr<cTasksPerProject> activities;
      IgnoreFailure(s.err, [&] { activities = ProjectActivities(s, Trim(projectText)); });
      if (activities) {
        IgnoreFailure(s.err, [&] {
          // An activity of another project leaves the item before the project changes.
          if (!activities->dicList.Exists(task.Get("Text").ToText())) {
            Actions::GetCurrentSelectedItem(s, "ActivityValue", "", EntryID);
            task.Put("Text", Variant(""));
          }
        });
        IgnoreFailure(s.err, [&] {
          std::string none;
          activities->PopulateComboList(s, task, none, true);
        });
      }
    }
    line = 30;
    Actions::GetCurrentSelectedItem(s, "ProjectValue", projectText, EntryID);
    line = 40;
    if (projectText.empty()) {
      Actions::GetCurrentSelectedItem(s, "ActivityValue", "", EntryID);
      IgnoreFailure(s.err, [&] { task.Call("Clear"); });
      IgnoreFailure(s.err, [&] { task.Put("Text", Variant("")); });
    }
    line = 50;
    s.tagging.blnTaggingInProgress = false;
  });
}

void cStandardTB::cboTask_Change() {
  Actions::GetCurrentSelectedItem(s_, "ActivityValue", cboTask.object().Get("Text").ToText(),
                                  EntryID);
}

void cStandardTB::cmdReport_Click() {
  ReportItemsToDB(s_);
}

void cStandardTB::cmdWithdrawReport_Click() {
  WithdrawReportFromDB(s_);
}

void cStandardTB::cboStaticFields_Click() {
  ShowStaticFields(s_);
}

void cStandardTB::ouiItems_ItemChange(const Object& Item) {
  AddinState& s = s_;
  const cMySettings& settings = s.main.Settings();
  if (settings.ReportCompletedTaskItemsAutomatically == 0) return;
  if (UCase(Item.Get("MessageClass").ToText()).find("IPM.TASK") == std::string::npos) return;
  // Both halves are read, whatever the first gives.
  const bool unreported =
      GetFieldValueFromItem(s, Item, "ReportedID", VarType::String).ToText().empty();
  const bool complete = Item.Get("PercentComplete").ToLong() == 100;
  if (!unreported || !complete) return;
  const double age =
      (s.system().Now().serial - Item.Get("LastModificationTime").ToDate().serial) * kSecondsPerDay;
  if (std::fabs(age) >= kFreshChangeSeconds) return;
  if (!IsPrivateAllowed(s, Item) || !IsRecurringAllowed(s, Item)) return;
  if (!AllMandatoryFieldsFilled(s, Item).empty()) return;
  const std::string storeId =
      oueCurrExplorer.object().Get("CurrentFolder").ToObject().Get("StoreID").ToText();
  FileModule::RunApp(s, "QuorvixClient", "0|" + storeId + "|" + Item.Get("EntryID").ToText(), "");
}

}  // namespace qvx
