#include "apps/qvx-sim/demo_script.h"

namespace qvx::scenario {

std::string_view DemoScript() {
  return R"demo(# The demo: one working day's start of a configured user.
say "A user whose settings ask for a sync, the automatic report and the upgrade check."
registry set DBChoice 1
registry set DBConnectionString "Provider=SQLOLEDB;Data Source=timesheets;Initial Catalog=QVX"
registry set AutoSyncToDB -1
registry set ReportIemsOnDueDateLapsedAutomatically -1
registry set AutoCheckForUpgradeAtStartup -1
registry set AllowAppointmentItems -1
show registry

say "Outlook starts and loads the add-in."
addin start
expect addin started
expect window "Client Window - Quorvix Client for Outlook"
show launches
expect launch QuorvixClient 28
expect launch QuorvixClient 27
expect launch QuorvixClient 19
expect no-launch

say "The companion stand-ins record what they were asked to do."
show journal
expect journal QuorvixClient section 28
expect journal QuorvixClient section 27
expect journal QuorvixClient section 19

say "The companion asks for the unattended synchronisation through the listener window."
post client 1
pump
expect launch QuorvixClient 28
show launches

say "The companion has stored the user's projects and activities; it says the settings changed."
catalogue set "Website relaunch,5,2026-3-2,2026-6-30:Design,2026-4-15;Review," "Support,8,,:Hotline,"
registry set TagProjectToCategories -1
registry set AddProjectColorCodes -1
post client 0
pump
expect projects "Website relaunch" "Support"
expect category "Website relaunch" 5

say "Two appointments in the calendar are selected and tagged on the ribbon."
item appointment "Kick-off" "2026-03-09 09:00" "2026-03-09 10:00" id E1
item appointment "Wireframes" "2026-03-10 14:00" "2026-03-10 16:00" id E2
explorer open calendar
explorer select "Kick-off" "Wireframes"
tag project "Website relaunch"
tag activity Design
show item "Kick-off"
expect item-property "Kick-off" ProjectValue "Website relaunch"
expect item-property "Wireframes" ActivityValue Design
expect categories "Wireframes" "Design,Website relaunch"

say "The user reports them: one command line to the companion, with the store and both entries."
answer msgbox yes
command report
expect msgbox "Are you sure you want to report the selected item(s) to the database?"
expect launch QuorvixClient "0|0000000038A1BB1005E5101AA1BB08002B2A56C200000001|E1;,E2;"
expect journal QuorvixClient report "0|0000000038A1BB1005E5101AA1BB08002B2A56C200000001|E1;,E2;"
show journal

say "The companion has written the report numbers onto the items and asks for fresh toolbars."
item property "Kick-off" ReportedID 101
item property "Kick-off" Reported -1
item property "Wireframes" ReportedID 102
item property "Wireframes" Reported -1
post client 2
pump
explorer select "Kick-off"
expect explorer-value REPORT_BUTTON_CAPTION "Update #101"

say "The user looks at the reported items through a prepared view, chosen in the ribbon's views menu."
ribbon open Microsoft.Outlook.Explorer
ribbon drop dnViewsCal
expect ribbon-menu "Reported ID" "Reported State" "Project and Activity" Project Activity "Due Date" "Items without Project (Filtered)" "Items without Activity (Filtered)" "Items without Project and Activity (Filtered)" "Reported Items (Filtered)" "Unreported Items (Filtered)" "Calendar view of Reported Items (Filtered)" "Calendar view of Unreported Items (Filtered)" - Calendar
ribbon view dnViewsCal "Reported Items (Filtered)"
say "The view is made in the calendar at this first choice, filtered on the reported flag, and shown."
expect views Calendar Calendar "Reported Items (Filtered)"
expect current-view Calendar "Reported Items (Filtered)"
expect view-filter Calendar "Reported Items (Filtered)" "Reported = 1"
expect view-headings Calendar "Reported Items (Filtered)" Icon Attachment ID Subject Project Activity Start End Categories "Reported Date" "Reported By"
show views Calendar
say "Chosen again, it is only applied."
ribbon view dnViewsCal "Reported Items (Filtered)"
expect view Calendar "Reported Items (Filtered)" applies 2
expect items-made Calendar 1

say "Outlook shuts down; the listener window goes with the add-in."
addin shutdown
expect addin torn-down
expect no-window "Client Window - Quorvix Client for Outlook"
expect no-msgbox
expect no-error-report
say "Demo done."
)demo";
}

}  // namespace qvx::scenario
