#include "ribbon/execute_action.h"

#include <string>
#include <string_view>

#include "companion/companion_launch.h"
#include "companion/section_codes.h"
#include "platform/user_interface.h"
#include "reporting/fields_form.h"
#include "reporting/report_items.h"
#include "reporting/withdraw_report.h"
#include "ribbon/ribbon_contexts.h"
#include "ribbon/ribbon_control.h"
#include "state/addin_state.h"
#include "support/about_form.h"
#include "support/app_texts.h"
#include "support/endpoints.h"
#include "support/file_module.h"
#include "support/help_file.h"

namespace qvx {
namespace {

bool IsReport(std::string_view id) {
  for (const std::string_view report :
       {"cmdReport", "cmdReportCal", "cmdReportCalTable", "cmdReportTask", "cmdReportAppointment",
        "cmdReportRecurringAppointment", "cmdContextReportCal", "cmdContextReportTask",
        "cmdReportTaskList", "cmdReportTaskDaily"}) {
    if (id == report) return true;
  }
  return false;
}

bool IsWithdraw(std::string_view id) {
  return IsFamily(id, "cmdWithdrawReport") || id == "cmdContextWithdrawReportCal" ||
         id == "cmdContextWithdrawReportTask";
}

}  // namespace

void SubExecuteAction(AddinState& s, const Variant& control) noexcept {
  Trapped(s, "SubExecuteAction", [&](Line& line) {
    line = 10;
    const std::string id = ControlId(control);
    line = 20;
    if (IsReport(id)) {
      ReportItemsToDB(s);
    } else if (IsFamily(id, "cmdSyncProjectSettings")) {
      subLoadSection(s, companion::kSectionSyncProjectSettings);
    } else if (IsWithdraw(id)) {
      WithdrawReportFromDB(s);
    } else if (IsFamily(id, "cmdStaticFields")) {
      ShowStaticFields(s);
    } else if (id == "cmdMyProjectsTasks") {
      subLoadSection(s, companion::kSectionMyProjectsTasks);
    } else if (id == "cmdMyLocalSettings") {
      subLoadSection(s, companion::kSectionMyLocalSettings);
    } else if (id == "cmdProjectDataSource") {
      subLoadSection(s, companion::kSectionProjectDataSource);
    } else if (id == "cmdSummaryReports") {
      subLoadSection(s, companion::kSectionSummaryReports);
    } else if (id == "cmdStatisticsReported") {
      subLoadOLAPStatistics(s);
    } else if (id == "cmdHelpTopics") {
      line = 30;
      OpenHelpFile(s);
    } else if (id == "cmdVideoTutorials") {
      line = 40;
      FileModule::RunApp(s, ProductWebPage("/Quorvix/TutorialClips.asp"), "", "");
    } else if (id == "cmdCheckUpdates") {
      subLoadSection(s, companion::kSectionCheckUpdates);
    } else if (id == "cmdVisitHomepage") {
      line = 50;
      IgnoreFailure(s.err, [&] { FileModule::RunApp(s, ProductWebPage("/Quorvix/"), "", ""); });
    } else if (id == "cmdAbout") {
      ShowAbout(s);
    } else {
      line = 60;
      s.ui().MessageBox("not implemented - " + id, platform::msgbox::kOkOnly, kMessageTitle);
    }
  });
}

}  // namespace qvx
