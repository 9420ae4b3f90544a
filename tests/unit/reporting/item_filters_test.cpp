#include "reporting/item_filters.h"

#include <gtest/gtest.h>

#include "sim/folder.h"
#include "unit/reporting/report_fixture.h"

namespace qvx {
namespace {

using ItemFilters = testing::ReportTest;

TEST_F(ItemFilters, SupportedClassesAreFoundInTheUpperCasedMessageClassOfAReadableItem) {
  struct Case {
    const char* messageClass;
    bool supported;
  };
  const Case cases[] = {
      {"IPM.Appointment", true},
      {"ipm.task", true},
      {"IPM.OLE.CLASS.{00061055-0000-0000-C000-000000000046}", true},
      {"IPM.Note", false},
      {"IPM.TaskRequest", true},  // a substring test, as it always was
      {"", false},
  };
  auto item = Appointment("A");
  for (const Case& c : cases) {
    item->SetField("MessageClass", c.messageClass);
    EXPECT_EQ(IsSupportMessageClass(t.s, item->AsObject()), c.supported) << c.messageClass;
  }
  // An unreadable item is not supported and says nothing.
  item->Delete();
  EXPECT_FALSE(IsSupportMessageClass(t.s, item->AsObject()));
  EXPECT_FALSE(IsSupportMessageClass(t.s, Object()));
  EXPECT_FALSE(t.s.err.pending());
  EXPECT_TRUE(t.Reports().empty());
}

TEST_F(ItemFilters, AnyActiveCustomFieldIsEnough) {
  using c = cMySettings;
  int16_t c::*flags[] = {&c::CustomList1Active,  &c::CustomList2Active,  &c::CustomList3Active,
                         &c::CustomList4Active,  &c::CustomField5Active, &c::CustomField6Active,
                         &c::CustomField7Active, &c::CustomField8Active, &c::CustomField9Active,
                         &c::CustomField10Active};
  EXPECT_FALSE(AreAllCustomFieldsActive(t.s));
  for (auto flag : flags) {
    t.settings().*flag = -1;
    EXPECT_TRUE(AreAllCustomFieldsActive(t.s));
    t.settings().*flag = 0;
  }
  t.settings().CustomField1Customizable = 1;  // not a custom field in use
  EXPECT_FALSE(AreAllCustomFieldsActive(t.s));
  t.s.main.objMySettings.reset();
  EXPECT_FALSE(AreAllCustomFieldsActive(t.s));
  EXPECT_TRUE(t.Reported("Main.AreAllCustomFieldsActive"));
}

TEST_F(ItemFilters, TheDefaultFolderRestrictionsFollowTheFoldersKind) {
  auto otherCalendar = world.AddFolder(world.Calendar(), "Team", 1);
  auto otherTasks = world.AddFolder(world.Tasks(), "Projects", 3);
  auto notes = world.AddFolder(world.Root(), "Notes", 5);
  struct Case {
    int16_t calendarOnly;
    int16_t tasksOnly;
    bool calendar, team, tasks, projects, inbox, notes;
  };
  const Case cases[] = {
      {1, 0, true, false, true, true, true, true},
      {0, 1, true, true, true, false, false, false},  // every other kind goes by the tasks
      {-1, -1, true, false, true, false, false, false},
  };
  for (const Case& c : cases) {
    t.settings().UseDefaultCalendarFolderOnly = c.calendarOnly;
    t.settings().UseDefaultTaskFolderOnly = c.tasksOnly;
    const std::string at = std::to_string(c.calendarOnly) + "/" + std::to_string(c.tasksOnly);
    EXPECT_EQ(IsDefaultFolder(t.s, world.Calendar()->AsObject()), c.calendar) << at;
    EXPECT_EQ(IsDefaultFolder(t.s, otherCalendar->AsObject()), c.team) << at;
    EXPECT_EQ(IsDefaultFolder(t.s, world.Tasks()->AsObject()), c.tasks) << at;
    EXPECT_EQ(IsDefaultFolder(t.s, otherTasks->AsObject()), c.projects) << at;
    EXPECT_EQ(IsDefaultFolder(t.s, world.Inbox()->AsObject()), c.inbox) << at;
    EXPECT_EQ(IsDefaultFolder(t.s, notes->AsObject()), c.notes) << at;
  }
  EXPECT_TRUE(t.Reports().empty());
  // A folder that cannot be read is reported and is no default one.
  notes->FailMember("DefaultItemType", -2147467259, "The operation failed.");
  EXPECT_FALSE(IsDefaultFolder(t.s, notes->AsObject()));
  EXPECT_TRUE(t.Reported("Main.IsDefaultFolder"));
}

}  // namespace
}  // namespace qvx
