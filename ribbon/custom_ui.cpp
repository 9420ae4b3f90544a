#include "ribbon/custom_ui.h"

#include "ribbon/explorer_markup.h"
#include "ribbon/inspector_markup.h"
#include "state/addin_state.h"
#include "support/app_texts.h"

namespace qvx {

std::string IRibbonExtensibility_GetCustomUI(AddinState& s, std::string_view RibbonID) noexcept {
  std::string markup;
  // Torn down, the add-in adds nothing to a window the host opens after it
  // (the "Shutdown" command leaves the host running), and asks it nothing.
  if (s.main.phase == AddinPhase::TornDown) return markup;
  IgnoreFailure(s.err, [&] {
    if (RibbonID == "Microsoft.Outlook.Task") {
      markup = fncBuildUI(s, "Task");
    } else if (RibbonID == "Microsoft.Outlook.Appointment" ||
               RibbonID == "Microsoft.Outlook.MeetingRequest.Read") {
      markup = fncBuildUI(s, "Appointment");
    } else if (RibbonID == "Microsoft.Outlook.Explorer") {
      markup = fncBuildUI(s, "Explorer");
    }
  });
  s.err.Clear();
  return markup;
}

std::string fncBuildUI(AddinState& s, std::string_view context) noexcept {
  return TrappedResult<std::string>(s, "Addin.2007UI", [&](Line& line, std::string& result) {
    line = 10;
    if (context == "Appointment") {
      result = MailTaskAppointmentUI(s, "TabAppointment", "KRPAppointmentInspector", "GroupActions",
                                     context);
    } else if (context == "Task") {
      line = 20;
      result = MailTaskAppointmentUI(s, "TabTask", "KRPTaskInspector", "GroupActions", context);
    } else if (context == "Explorer") {
      line = 30;
      result = ExplorerUI(s);
    } else {
      line = 40;
      s.ui().MessageBox(context, platform::msgbox::kOkOnly, kMessageTitle);
    }
  });
}

}  // namespace qvx
