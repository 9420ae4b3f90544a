// An add-in connected to a simulated host for the tagging tests: settings
// come from the world's registry file, an explorer shows the calendar, and
// letting messages through runs what the test queued on the host.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "apps/qvx-sim/world.h"
#include "core/dates.h"
#include "reporting/tag_item.h"
#include "settings/my_settings.h"
#include "sim/appointment.h"
#include "sim/explorer.h"
#include "sim/item.h"
#include "sim/task_item.h"
#include "sim/user_properties.h"
#include "state/addin_state.h"
#include "unit/support/failure_report.h"

namespace qvx {

// Dates in failure messages as the runtime writes them.
inline void PrintTo(const DateValue& date, std::ostream* os) {
  *os << DateToText(date);
}

}  // namespace qvx

namespace qvx::testing {

// The catalogue of the tagging tests: Alpha with two activities and all its
// dates, Beta with no dates and one activity, Gamma with a start in the
// host's none year and a finish in the empty year.
inline constexpr std::string_view kTaggingCatalogue =
    "Alpha,5,2026-3-2,2026-6-30:Design,2026-4-15;Review,\r\n"
    "Beta,8,,:Build,2026-5-20\r\n"
    "Gamma,3,4501-1-1,1899-12-30:Test,";

class TaggingTest : public ::testing::Test {
 protected:
  TaggingTest() { Set("MyProjectsTasks", std::string(kTaggingCatalogue)); }

  // Writes a settings value; takes effect at Connect.
  void Set(std::string_view name, std::string_view text) {
    world.registry().SetString(scenario::kSettingsKey, name, text);
  }
  // The host connects the add-in: the settings are read.
  void Connect() {
    world.addin().OnConnection(world.host().Application(), 1, Object());
    explorer = world.host().OpenExplorer(world.host().Calendar());
  }

  AddinState& s() { return world.addin().state(); }
  cMySettings& settings() { return s().main.Settings(); }
  sim::Outlook& host() { return world.host(); }

  std::shared_ptr<sim::SimAppointment> Appointment(std::string subject) {
    return host().AddAppointment(std::move(subject), ComposeDate({2026, 3, 10, 9, 0, 0}),
                                 ComposeDate({2026, 3, 10, 10, 0, 0}));
  }
  std::shared_ptr<sim::SimTask> Task(std::string subject) {
    return host().AddTask(std::move(subject));
  }
  void Select(std::vector<std::shared_ptr<sim::SimItem>> items) {
    host().Select(*explorer, std::move(items));
  }

  // Tags the item as the bars and the ribbon do.
  bool Tag(sim::SimItem& item, std::string_view property, std::string_view value,
           bool save = true) {
    return Actions::TagProjectToItem(s(), item.AsObject(), property, value, save);
  }
  // The item's user property as text; "(none)" when it has none.
  static std::string Prop(sim::SimItem& item, std::string_view name) {
    auto property = item.UserProperties().Find(name);
    return property ? property->value().ToText() : std::string("(none)");
  }
  static std::string Categories(sim::SimItem& item) { return item.Field("Categories").ToText(); }
  static DateValue Date(sim::SimItem& item, std::string_view field) {
    return item.Field(field).ToDate();
  }

  // The failure reports shown (only the first of a process is).
  std::vector<std::string> Reports() { return ShownReports(world.ui()); }
  // Whether a report was shown of a failure trapped under `label`.
  ::testing::AssertionResult Reported(std::string_view label) {
    return ReportsTrap(Reports(), label);
  }

  scenario::World world;
  std::shared_ptr<sim::SimExplorer> explorer;
};

}  // namespace qvx::testing
