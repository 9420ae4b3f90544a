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
