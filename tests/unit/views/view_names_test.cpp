// Names of the prepared views: the catalogue under the titles of start-up,
// names on screen and resource names both ways, and the view's kind.
#include "views/view_names.h"

#include <gtest/gtest.h>

#include "core/host_constants.h"
#include "settings/single_list.h"
#include "unit/reporting/test_addin.h"
#include "views/view_catalogue.h"

namespace qvx::testing {
namespace {

struct Titled : TestAddin {
  Titled(std::string project, std::string activity) {
    settings().ProjectTitle = std::move(project);
    settings().ActivityTitle = std::move(activity);
  }
};

TEST(ViewNames, TheCatalogueKnowsTheNamesOnScreenUnderTheTitlesOfItsMaking) {
  Titled t("Client", "Job");
  EXPECT_FALSE(IsPreparedViewName(t.s, "Client")) << "no catalogue before start-up";
  subLoadViewNames(t.s);  // the names themselves are views_bar.qvx's
  EXPECT_TRUE(IsPreparedViewName(t.s, "CLIENT and job"));
  EXPECT_FALSE(IsPreparedViewName(t.s, "Project")) << "the default title is not in it";
  t.settings().ProjectTitle = "Customer";
  EXPECT_TRUE(IsPreparedViewName(t.s, "Client"));
  EXPECT_FALSE(IsPreparedViewName(t.s, "Customer"));
}

TEST(ViewNames, NamesOnScreenAndResourceNamesBothWays) {
  const struct {
    const char* project;
    const char* activity;
    const char* catalogue;
    const char* shown;
    const char* resource;
  } rows[] = {
      {"Project", "Activity", "[PROJECT] and [ACTIVITY]", "Project and Activity",
       "PROJECT and ACTIVITY"},
      {"Client", "Job", "[PROJECT] and [ACTIVITY]", "Client and Job", "PROJECT and ACTIVITY"},
      {"Client", "Job", "Items without [ACTIVITY] (Filtered)", "Items without Job (Filtered)",
       "Items without ACTIVITY (Filtered)"},
      // A title inside a fixed name changes that name too: no resource has it.
      {"Date", "Job", "Due Date", "Due Date", "Due PROJECT"},
      // Project first, then activity: a title inside the other is replaced first.
      {"work", "Homework", "[ACTIVITY]", "Homework", "HomePROJECT"},
      {"Client", "Job", "Reported ID", "Reported ID", "Reported ID"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.catalogue);
    Titled t(row.project, row.activity);
    EXPECT_EQ(GetActualViewName(t.s, row.catalogue), row.shown);
    EXPECT_EQ(GetViewResName(t.s, row.shown), row.resource);
  }
}

TEST(ViewNames, WithoutSettingsBothMappingsReportAndAnswerNothing) {
  TestAddin t;
  t.s.main.objMySettings.reset();
  EXPECT_EQ(GetActualViewName(t.s, "[PROJECT]"), "");
  EXPECT_TRUE(t.Reported("Main.GetActualViewName"));
}

TEST(ViewNames, OnlyTheTwoCalendarViewsNamedExactlyAreCalendars) {
  int calendars = 0;
  for (const PreparedView& view : kPreparedViews) {
    calendars += GetViewType(view.name) == host::olCalendarView;
  }
  EXPECT_EQ(calendars, 2);
  EXPECT_EQ(GetViewType("calendar view of reported items (filtered)"), host::olTableView);
}

}  // namespace
}  // namespace qvx::testing
