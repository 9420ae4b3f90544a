// Items, folders and the session of the simulated host.
#include <gtest/gtest.h>

#include "core/dates.h"
#include "sim/folder.h"
#include "sim/item_classes.h"
#include "sim/items.h"
#include "sim/outlook.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::sim {
namespace {

using testing::EventLog;
using testing::FailureOf;

class SimItemsTest : public ::testing::Test {
 protected:
  Outlook world;
  Object app = world.Application();
  Object ns = app.Call("GetNamespace", {Variant("MAPI")}).ToObject();
  Object Folder(int32_t n) { return ns.Call("GetDefaultFolder", {Variant(n)}).ToObject(); }
};

TEST_F(SimItemsTest, DefaultFoldersHaveTheirItemTypesAndTheMailboxAsParent) {
  const struct {
    int32_t number;
    const char* name;
    int32_t itemType;
  } rows[] = {{6, "Inbox", 0}, {9, "Calendar", 1}, {13, "Tasks", 3}, {16, "Drafts", 0}};
  for (const auto& row : rows) {
    const Object folder = Folder(row.number);
    EXPECT_EQ(folder.TypeName(), "MAPIFolder");
    EXPECT_EQ(folder.Get("Name").ToText(), row.name);
    EXPECT_EQ(folder.Get("DefaultItemType").ToLong(), row.itemType) << row.name;
    EXPECT_EQ(folder.Get("Parent").ToObject().Get("Name").ToText(), "Mailbox - Jane Doe");
    EXPECT_EQ(folder.Get("StoreID").ToText(), Folder(9).Get("StoreID").ToText());
  }
  EXPECT_EQ(Folder(9).Get("Parent").ToObject().Get("Parent").ToObject().TypeName(), "NameSpace");
  EXPECT_NE(Folder(9).Get("EntryID").ToText(), Folder(13).Get("EntryID").ToText());
  EXPECT_EQ(FailureOf([&] { Folder(42); }).number(), hresult::kInvalidArg);
  EXPECT_EQ(FailureOf([&] { app.Call("GetNamespace", {Variant("IMAP")}); }).number(),
            hresult::kInvalidArg);
  world.SetMailboxName("Doe, Jane");
  EXPECT_EQ(Folder(9).Get("Parent").ToObject().Get("Name").ToText(), "Doe, Jane");
}

TEST_F(SimItemsTest, NewItemsGetAnEntryIdAndEnterTheirFolderOnFirstSave) {
  const Object items = Folder(13).Get("Items").ToObject();
  EventLog log;
  log.Listen(items, "ItemAdd");
  log.Listen(items, "ItemChange");
  const Object task = items.Call("Add", {Variant("IPM.TASK")}).ToObject();
  EXPECT_EQ(task.TypeName(), "TaskItem");
  EXPECT_EQ(task.Get("MessageClass").ToText(), "IPM.Task");
  EXPECT_EQ(task.Get("EntryID").ToText(), "");
  EXPECT_EQ(items.Get("Count").ToLong(), 0);
  EXPECT_TRUE(task.Get("Parent").ToObject().Is(Folder(13)));
  world.SetNow(DateSerial(2026, 4, 1));
  task.Call("Save");
  const std::string id = task.Get("EntryID").ToText();
  EXPECT_EQ(id.size(), 48u);
  EXPECT_EQ(task.Get("LastModificationTime").ToDate(), DateSerial(2026, 4, 1));
  task.Put("Subject", Variant("Renamed"));
  task.Call("Save");
  EXPECT_EQ(task.Get("EntryID").ToText(), id);
  EXPECT_EQ(items.Get("Count").ToLong(), 1);
  EXPECT_EQ(log.heard, (std::vector<std::string>{"ItemAdd", "ItemChange"}));
  EXPECT_TRUE(ns.Call("GetItemFromID", {Variant(id)}).ToObject().Is(task));
}

TEST_F(SimItemsTest, CreateItemMakesEachClassInItsDefaultFolder) {
  const struct {
    int32_t type;
    const char* typeName;
    const char* messageClass;
    const char* folder;
  } rows[] = {{0, "MailItem", "IPM.Note", "Drafts"},
              {1, "AppointmentItem", "IPM.Appointment", "Calendar"},
              {3, "TaskItem", "IPM.Task", "Tasks"}};
  for (const auto& row : rows) {
    const Object item = app.Call("CreateItem", {Variant(row.type)}).ToObject();
    EXPECT_EQ(item.TypeName(), row.typeName);
    EXPECT_EQ(item.Get("MessageClass").ToText(), row.messageClass);
    EXPECT_EQ(item.Get("Parent").ToObject().Get("Name").ToText(), row.folder);
  }
  EXPECT_EQ(FailureOf([&] { app.Call("CreateItem", {Variant(int32_t{7})}); }).number(),
            hresult::kInvalidArg);
  const Object mail = app.Call("CreateItem", {Variant(int32_t{0})}).ToObject();
  mail.Put("To", Variant("errors@example.com"));
  EXPECT_EQ(mail.Get("To").ToText(), "errors@example.com");
  EXPECT_EQ(FailureOf([&] {
              Folder(9).Get("Items").ToObject().Call("Add").ToObject().Get("To");
            }).number(),
            err::kNoSuchMember);  // appointments have no To
}

TEST_F(SimItemsTest, FieldsAreTypedAndSomeAreReadOnly) {
  auto a = world.AddAppointment("Review", DateSerial(2026, 5, 4), DateSerial(2026, 5, 5));
  const Object item = a->AsObject();
  item.Put("Sensitivity", Variant("2"));
  EXPECT_EQ(item.Get("Sensitivity"), Variant(int32_t{2}));
  EXPECT_EQ(FailureOf([&] { item.Put("Start", Variant("soon")); }).number(), err::kTypeMismatch);
  EXPECT_EQ(FailureOf([&] { item.Put("EntryID", Variant("x")); }).number(), err::kNoSuchMember);
  EXPECT_EQ(FailureOf([&] { item.Put("IsRecurring", Variant(true)); }).number(),
            err::kNoSuchMember);
  EXPECT_FALSE(item.Get("Saved").ToBoolean());
}

TEST_F(SimItemsTest, MovingStartKeepsTheDurationAndEndSetsIt) {
  auto a = world.AddAppointment("Block", ComposeDate({2026, 5, 4, 9, 0, 0}),
                                ComposeDate({2026, 5, 4, 10, 30, 0}));
  const Object item = a->AsObject();
  EXPECT_EQ(item.Get("Duration").ToLong(), 90);
  item.Put("Start", Variant(ComposeDate({2026, 5, 6, 14, 0, 0})));
  EXPECT_EQ(item.Get("End").ToDate(), ComposeDate({2026, 5, 6, 15, 30, 0}));
  item.Put("End", Variant(ComposeDate({2026, 5, 6, 14, 15, 0})));
  EXPECT_EQ(item.Get("Duration").ToLong(), 15);
}

TEST_F(SimItemsTest, TasksHaveNoneDatesAndCompleteAtOneHundredPercent) {
  auto t = world.AddTask("Plan");
  const Object task = t->AsObject();
  EXPECT_EQ(task.Get("DueDate").ToDate(), kNoneDate);
  EXPECT_EQ(DecomposeDate(task.Get("StartDate").ToDate()).year, 4501);
  task.Put("DueDate", Variant(ComposeDate({2026, 6, 1, 17, 45, 0})));
  EXPECT_EQ(task.Get("DueDate").ToDate(), DateSerial(2026, 6, 1));
  task.Put("PercentComplete", Variant(int32_t{100}));
  EXPECT_TRUE(task.Get("Complete").ToBoolean());
  EXPECT_EQ(task.Get("Status").ToLong(), 2);
  task.Put("PercentComplete", Variant(int32_t{50}));
  EXPECT_FALSE(task.Get("Complete").ToBoolean());
  EXPECT_EQ(task.Get("Status").ToLong(), 1);
  EXPECT_EQ(task.Get("DateCompleted").ToDate(), kNoneDate);
}

TEST_F(SimItemsTest, OccurrencesBelongToTheirSeries) {
  auto series = world.AddRecurringAppointment("Standup", ComposeDate({2026, 1, 5, 9, 0, 0}),
                                              ComposeDate({2026, 1, 5, 9, 15, 0}));
  const Object master = series->AsObject();
  EXPECT_TRUE(master.Get("IsRecurring").ToBoolean());
  EXPECT_EQ(master.Get("RecurrenceState").ToLong(), kRecurrenceMaster);
  const Object pattern = master.Call("GetRecurrencePattern").ToObject();
  const Object occurrence =
      pattern.Call("GetOccurrence", {Variant(ComposeDate({2026, 1, 7, 9, 0, 0}))}).ToObject();
  EXPECT_TRUE(
      occurrence.Is(world.Occurrence(*series, ComposeDate({2026, 1, 7, 9, 0, 0}))->AsObject()));
  EXPECT_EQ(occurrence.Get("RecurrenceState").ToLong(), kRecurrenceOccurrence);
  EXPECT_EQ(occurrence.Get("EntryID").ToText(), master.Get("EntryID").ToText());
  EXPECT_EQ(occurrence.Get("End").ToDate(), ComposeDate({2026, 1, 7, 9, 15, 0}));
  EXPECT_TRUE(occurrence.Get("Parent").ToObject().Is(master));
  EXPECT_EQ(FailureOf([&] { occurrence.Get("Parent").ToObject().Get("StoreID"); }).number(),
            err::kNoSuchMember);
  const std::string store = occurrence.Call("GetRecurrencePattern")
                                .ToObject()
                                .Get("Parent")
                                .ToObject()
                                .Get("Parent")
                                .ToObject()
                                .Get("StoreID")
                                .ToText();
  EXPECT_EQ(store, world.Calendar()->storeId());
}

TEST_F(SimItemsTest, DeletedItemsLeaveTheFolderAndFailAfterwards) {
  auto t = world.AddTask("Gone soon");
  const Object items = Folder(13).Get("Items").ToObject();
  EventLog log;
  log.Listen(items, "ItemRemove");
  t->AsObject().Call("Delete");
  EXPECT_EQ(items.Get("Count").ToLong(), 0);
  EXPECT_EQ(log.heard, (std::vector<std::string>{"ItemRemove"}));
  const Failure f = FailureOf([&] { t->AsObject().Get("Subject"); });
  EXPECT_EQ(f.number(), hresult::kObjectDeleted);
  EXPECT_EQ(f.description(), "The item has been moved or deleted.");
}

TEST_F(SimItemsTest, ItemsWalkByIndexEnumerationAndGetNext) {
  world.AddTask("a");
  world.AddTask("b");
  const Object items = Folder(13).Get("Items").ToObject();
  EXPECT_EQ(items.Call("Item", {Variant(int16_t{2})}).ToObject().Get("Subject").ToText(), "b");
  EXPECT_EQ(items.Call("Item", {Variant("a")}).ToObject().Get("Subject").ToText(), "a");
  EXPECT_THROW(items.Call("Item", {Variant(int32_t{0})}), Failure);
  std::vector<std::string> walked;
  for (Object i = items.Call("GetFirst").ToObject(); !i.IsNothing();
       i = items.Call("GetNext").ToObject()) {
    walked.push_back(i.Get("Subject").ToText());
  }
  for (const Variant& v : items.Enumerate()) walked.push_back(v.ToObject().Get("Subject").ToText());
  EXPECT_EQ(walked, (std::vector<std::string>{"a", "b", "a", "b"}));
}

TEST_F(SimItemsTest, OutsideChangesRaiseItemChangeWithAFreshTimestamp) {
  auto t = world.AddTask("Sync me");
  DateValue stamped{};
  Subscription sub = Folder(13).Get("Items").ToObject().Subscribe("ItemChange", [&](EventArgs& a) {
    stamped = a.at(0).ToObject().Get("LastModificationTime").ToDate();
  });
  world.SetNow(DateSerial(2026, 7, 1));
  world.ChangeItem(*t, "PercentComplete", Variant(int32_t{100}));
  EXPECT_EQ(stamped, DateSerial(2026, 7, 1));
  EXPECT_EQ(t->Field("PercentComplete").ToLong(), 100);
}

}  // namespace
}  // namespace qvx::sim
