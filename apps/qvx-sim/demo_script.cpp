#include "apps/qvx-sim/demo_script.h"

namespace qvx::scenario {

std::string_view DemoScript() {
  return R"(# The demo: one working day's start of a configured user.
say "A user whose settings ask for a sync, the automatic report and the upgrade check."
registry set DBChoice 1
registry set DBConnectionString "Provider=SQLOLEDB;Data Source=timesheets;Initial Catalog=QVX"
registry set AutoSyncToDB -1
registry set ReportIemsOnDueDateLapsedAutomatically -1
registry set AutoCheckForUpgradeAtStartup -1
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

say "Outlook shuts down; the listener window goes with the add-in."
addin shutdown
expect addin torn-down
expect no-window "Client Window - Quorvix Client for Outlook"
expect no-msgbox
expect no-error-report
say "Demo done."
)";
}

}  // namespace qvx::scenario
