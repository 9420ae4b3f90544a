#include "apps/qvx-sim/soak_actions.h"

namespace qvx::scenario {

std::vector<std::string> SoakSetUp(std::mt19937& random) {
  std::vector<std::string> lines = {
      "registry set DBChoice 1",
      "registry set DBConnectionString \"DSN=Timesheets\"",
      "registry set AllowAppointmentItems -1",
      "registry set AllowTaskItems -1",
      "registry set showProjectTaskToolbar -1",
      // Its loop over the projects lets pending work through at each one.
      "registry set AddProjectColorCodes -1",
      "registry set CustomField1Active -1",
      "registry set CustomField1List \"Red\\r\\nGreen\"",
      "catalogue set \"Alpha,5,,:Design,;Review,\" \"Beta,8,,:Build,\"",
  };
  lines.push_back(random() % 2 ? "host version 11.0.0.0" : "host version 16.0.0.0");
  for (int i = 1; i <= 6; ++i) {
    lines.push_back("item appointment A" + std::to_string(i) + " \"2026-03-0" + std::to_string(i) +
                    " 09:00\" \"2026-03-0" + std::to_string(i) + " 10:00\"");
  }
  for (int i = 1; i <= 3; ++i) lines.push_back("item task T" + std::to_string(i) + " none none");
  lines.push_back("addin start");
  lines.push_back("explorer open calendar");
  return lines;
}

std::string SoakActions::Next(int faultPercent) {
  if (Below(100) < static_cast<uint32_t>(faultPercent)) return Fault();
  static constexpr int kKinds = 16;
  switch (Below(kKinds)) {
    case 0:
      return "explorer switch " + Pick({"calendar", "tasks", "inbox"});
    case 1:
    case 2:
      return Selection();
    case 3:
      return "bar pick Quorvix Project " + Pick({"Alpha", "Beta"});
    case 4:
      return "bar pick Quorvix Activity " + Pick({"Design", "Review", "Build"});
    case 5:
      return "bar type Quorvix Project " + Pick({"\"Side job\"", "\"\"", "Alpha"});
    case 6:
      return "bar click Quorvix " + Pick({"Publish", "Withdraw", "\"All Fields...\""});
    case 7:
      return "ribbon open Microsoft.Outlook.Explorer";
    case 8:
      return "ribbon choose " + Pick({"cboProjectCal", "cboProjectTask"}) + " " +
             Pick({"Alpha", "Beta"});
    case 9:
      return "ribbon click " + Pick({"cmdReportCal", "cmdWithdrawReportCal", "cmdReportTask"});
    case 10:
      return "inspector open " + Subject();
    case 11:
      return "inspector close";
    case 12:
      return "post client " + Pick({"0", "2", "3"});
    case 13:
      return "post manager " + Pick({"0", "1"});
    case 14:
      // The companion rewrites the settings the add-in reads.
      return "registry set " + Pick({"ProjectTitle", "ActivityTitle", "ProjectMandatory"}) + " " +
             Pick({"Job", "-1", "0", "\"\""});
    default:
      switch (const uint32_t kind = Below(20)) {
        case 0:
          return "item delete " + Subject();
        case 1:
          // A new item, so that deletions do not empty the folders for good.
          return NewItem();
        case 2:
        case 3:
        case 4: {
          static constexpr const char* kFolders[] = {"calendar", "tasks", "inbox"};
          return std::string("explorer open ") + kFolders[kind - 2];
        }
        case 5:
        case 6:
        case 7:
        case 8:
          // Closed more often than opened, so the windows do not pile up.
          return kCloseExplorer;
        default:
          return "pump";
      }
  }
}

std::string SoakActions::Interruption() {
  if (Below(2) != 0) return "";
  switch (Below(4)) {
    case 0:
    case 1:
      return "item delete " + Subject();
    case 2:
      return NewItem();
    default:
      return Below(2) ? "post client " + Pick({"0", "2", "3"}) : "post manager " + Pick({"0", "1"});
  }
}

std::string SoakActions::Pick(std::initializer_list<const char*> choices) {
  return *(choices.begin() + Below(static_cast<uint32_t>(choices.size())));
}
std::string SoakActions::Subject() {
  return Below(3) == 0 ? "T" + std::to_string(1 + Below(3)) : "A" + std::to_string(1 + Below(6));
}
std::string SoakActions::NewItem() {
  return Below(2) ? "item task T" + std::to_string(1 + Below(3)) + " none none"
                  : "item appointment A" + std::to_string(1 + Below(6)) +
                        " \"2026-03-09 09:00\" \"2026-03-09 10:00\"";
}
std::string SoakActions::Selection() {
  std::string line = "explorer select";
  const uint32_t count = Below(4);
  for (uint32_t i = 0; i < count; ++i) line += " " + Subject();
  return line;
}
std::string SoakActions::Fault() {
  return "host fail-once " +
         Pick({"ActiveExplorer.Selection", "ActiveExplorer.CurrentFolder", "ActiveExplorer",
               "ActiveInspector", "ActiveInspector.CurrentItem", "Explorers", "Inspectors",
               "Session", "Session.Categories", "ActiveExplorer.CommandBars",
               "Session.GetDefaultFolder(9).Items", "Session.GetDefaultFolder(13).Items"}) +
         " " + Pick({"-2147467259", "-2147352567", "13", "91"}) + " soak";
}

}  // namespace qvx::scenario
