#include "reporting/withdraw_report.h"

#include "companion/command_lines.h"
#include "companion/section_codes.h"
#include "core/variant.h"
#include "platform/user_interface.h"
#include "reporting/current_selection.h"
#include "reporting/report_store.h"
#include "schema/item_schema.h"
#include "state/addin_state.h"
#include "support/app_texts.h"
#include "support/file_module.h"
#include "support/host_items.h"
#include "support/mail_library.h"

namespace qvx {

namespace msgbox = platform::msgbox;

void WithdrawReportFromDB(AddinState& s) noexcept {
  Trapped(s, "Main.WithdrawReportFromDB", [&](Line& line) {
    line = 10;
    const Object objItem = Main::GetCurrentSelectedItem(s, false);
    if (objItem.IsNothing()) return;
    line = 20;
    const std::string reportedId =
        GetFieldValueFromItem(s, objItem, schema::kReportedID, VarType::String).ToText();
    if (reportedId.empty()) return;
    line = 30;
    const int answer = s.ui().MessageBox(
        "Are you sure you want to withdraw the reported data (ID #" + reportedId +
            ") from the database?\r\nNote: Once you click 'Yes', this action cannot be undone!",
        msgbox::kYesNo + msgbox::kInformation, kMessageTitle);
    if (answer != msgbox::kYes) return;
    line = 40;
    const std::string store = FindReportStore(s, objItem);
    line = 50;
    if (!store.empty()) WithReportFromDB(s, store, objItem);
  });
}

void WithReportFromDB(AddinState& s, const std::string& strStoreID,
                      const Object& objItem) noexcept {
  Trapped(s, "Main.WithReportFromDB", [&](Line& line) {
    line = 10;
    std::string start;
    if (IsRecurrenceAppointmentOccurence(s, objItem)) {
      line = 20;
      start = companion::OccurrenceStartText(objItem.Get("Start"));
    }
    line = 30;
    const std::string command =
        companion::WithdrawCommand(strStoreID, objItem.Get("EntryID").ToText(), start);
    line = 40;
    FileModule::RunApp(s, companion::kClientProgram, command, "");
  });
}

}  // namespace qvx
