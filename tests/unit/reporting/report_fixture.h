// An add-in state connected to a simulated host, for the report pipeline:
// launches are recorded (the stand-ins' folder is the add-in's, so the
// launcher finds QuorvixClient.exe), boxes and forms are answered by the
// scripted user interface. The settings start all off.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/dates.h"
#include "sim/appointment.h"
#include "sim/explorer.h"
#include "sim/folder.h"
#include "sim/inspector.h"
#include "sim/mail_item.h"
#include "sim/outlook.h"
#include "sim/selection.h"
#include "sim/task_item.h"
#include "sim/user_properties.h"
#include "unit/reporting/test_addin.h"

namespace qvx::testing {

inline std::string StandInFolder() {
#ifdef QVX_STANDIN_FOLDER
  return QVX_STANDIN_FOLDER;
#else
  return "";
#endif
}

class ReportTest : public ::testing::Test {
 protected:
  ReportTest() : t({.addinFolder = StandInFolder()}) {
    t.s.main.objOutlook = world.Application();
    t.s.main.objNameSpace = world.Application().Get("Session").ToObject();
  }
  void SetUp() override { ASSERT_FALSE(StandInFolder().empty()); }

  static DateValue At(int day, int hour) { return ComposeDate({2026, 3, day, hour, 0, 0}); }

  std::shared_ptr<sim::SimAppointment> Appointment(std::string subject, int day = 2) {
    return world.AddAppointment(std::move(subject), At(day, 9), At(day, 10));
  }
  std::shared_ptr<sim::SimTask> Task(std::string subject) {
    return world.AddTask(std::move(subject), At(2, 0), At(6, 0));
  }
  // An occurrence of a new weekly series, on 9 March 2026 at 9:00.
  std::shared_ptr<sim::SimAppointment> Occurrence(std::string subject) {
    auto series = world.AddRecurringAppointment(std::move(subject), At(2, 9), At(2, 10));
    return world.Occurrence(*series, At(9, 9));
  }
  static void Tag(sim::SimItem& item, std::string_view property, std::string value) {
    item.UserProperties().Set(property, 1, Variant(std::move(value)));
  }

  // An explorer on the folder of the first item, with the items selected.
  std::shared_ptr<sim::SimExplorer> Select(std::vector<std::shared_ptr<sim::SimItem>> items,
                                           std::shared_ptr<sim::SimFolder> folder = nullptr) {
    if (!folder) folder = items.empty() ? world.Calendar() : items.front()->Folder();
    auto explorer = world.OpenExplorer(folder);
    world.Select(*explorer, std::move(items));
    return explorer;
  }

  std::string Store() { return world.Calendar()->storeId(); }
  const std::vector<platform::LaunchRecord>& Launches() const { return t.system.Launches(); }
  std::vector<std::string> Arguments() const {
    std::vector<std::string> arguments;
    for (const auto& launch : Launches()) arguments.push_back(launch.argument);
    return arguments;
  }
  const std::vector<platform::MessageBoxRecord>& Boxes() const { return t.ui.MessageBoxes(); }
  // The problem lists shown, in order.
  std::vector<std::string> ProblemLists() const {
    std::vector<std::string> lists;
    for (const platform::FormRecord& form : t.ui.Forms()) {
      if (form.caption != "Message Manager") continue;
      for (const auto& control : form.controls) {
        if (control.name == "txtMessage") lists.push_back(control.text);
      }
    }
    return lists;
  }

  sim::Outlook world;
  TestAddin t;
};

}  // namespace qvx::testing
