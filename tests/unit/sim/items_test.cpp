// Items, folders and categories of the simulated session.
#include <gtest/gtest.h>

#include "core/dates.h"
#include "sim/categories.h"
#include "sim/folder.h"
#include "sim/item_classes.h"
#include "sim/items.h"
#include "sim/outlook.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::sim {
namespace {

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
  } rows[] = {{6, "Inbox", 0}, {9, "Calendar", 1}, {13, "Tasks", 3}};
  for (const auto& row : rows) {
    const Object folder = Folder(row.number);
    EXPECT_EQ(folder.Get("Name").ToText(), row.name);
    EXPECT_EQ(folder.Get("DefaultItemType").ToLong(), row.itemType) << row.name;
    EXPECT_EQ(folder.Get("StoreID").ToText(), Folder(9).Get("StoreID").ToText());
  }
  EXPECT_EQ(FailureOf([&] { Folder(42); }).number(), hresult::kInvalidArg);
  EXPECT_EQ(FailureOf([&] { app.Call("GetNamespace", {Variant("IMAP")}); }).number(),
            hresult::kInvalidArg);
  world.SetMailboxName("Doe, Jane");
  EXPECT_EQ(Folder(9).Get("Parent").ToObject().Get("Name").ToText(), "Doe, Jane");
}

TEST_F(SimItemsTest, NewItemsGetAnEntryIdAndEnterTheirFolderOnFirstSave) {
  const Object items = Folder(13).Get("Items").ToObject();
  const Object task = items.Call("Add", {Variant("IPM.TASK")}).ToObject();
  EXPECT_EQ(task.Get("MessageClass").ToText(), "IPM.Task");
  EXPECT_EQ(task.Get("EntryID").ToText(), "");
  EXPECT_EQ(items.Get("Count").ToLong(), 0);
  task.Call("Save");
  const std::string id = task.Get("EntryID").ToText();
  EXPECT_EQ(id.size(), 48u);
  task.Call("Save");
  EXPECT_EQ(task.Get("EntryID").ToText(), id);
  EXPECT_EQ(items.Get("Count").ToLong(), 1);
}

TEST_F(SimItemsTest, FieldsAreTypedAndSomeAreReadOnly) {
  const Object item =
      world.AddAppointment("Review", DateSerial(2026, 5, 4), DateSerial(2026, 5, 5))->AsObject();
  item.Put("Sensitivity", Variant("2"));
  EXPECT_EQ(item.Get("Sensitivity"), Variant(int32_t{2}));
  EXPECT_EQ(FailureOf([&] { item.Put("Start", Variant("soon")); }).number(), err::kTypeMismatch);
  EXPECT_EQ(FailureOf([&] { item.Put("IsRecurring", Variant(true)); }).number(),
            err::kNoSuchMember);
  EXPECT_EQ(FailureOf([&] { item.Get("To"); }).number(), err::kNoSuchMember);
}

TEST_F(SimItemsTest, OccurrencesHaveTheSeriesAsParentAndNoStoreOfTheirOwn) {
  auto series = world.AddRecurringAppointment("Standup", ComposeDate({2026, 1, 5, 9, 0, 0}),
                                              ComposeDate({2026, 1, 5, 9, 15, 0}));
  const Object master = series->AsObject();
  const Object occurrence =
      world.Occurrence(*series, ComposeDate({2026, 1, 7, 9, 0, 0}))->AsObject();
  EXPECT_EQ(occurrence.Get("RecurrenceState").ToLong(), host::olApptOccurrence);
  EXPECT_TRUE(occurrence.Get("Parent").ToObject().Is(master));
  EXPECT_EQ(FailureOf([&] { occurrence.Get("Parent").ToObject().Get("StoreID"); }).number(),
            err::kNoSuchMember);
}

TEST_F(SimItemsTest, CategoriesAreFoundCaseBlindAndRefuseADuplicate) {
  const Object categories = ns.Get("Categories").ToObject();
  EXPECT_TRUE(categories.Call("Item", {Variant("Apollo")}).ToObject().IsNothing());
  const Object added = categories.Call("Add", {Variant("Apollo"), Variant(int32_t{5})}).ToObject();
  const Object found = categories.Call("Item", {Variant("APOLLO")}).ToObject();
  ASSERT_TRUE(found.Is(added));
  found.Put("Color", Variant(int16_t{8}));
  EXPECT_EQ(world.FindCategory("apollo")->color(), 8);
  EXPECT_THROW(categories.Call("Add", {Variant("apollo"), Variant(int32_t{1})}), Failure);
  EXPECT_EQ(categories.Get("Count").ToLong(), 1);
}

TEST_F(SimItemsTest, DeletedItemsLeaveTheFolderAndFailAfterwards) {
  auto t = world.AddTask("Gone soon");
  t->AsObject().Call("Delete");
  EXPECT_EQ(Folder(13).Get("Items").ToObject().Get("Count").ToLong(), 0);
  const Failure f = FailureOf([&] { t->AsObject().Get("Subject"); });
  EXPECT_EQ(f.number(), hresult::kObjectDeleted);
  EXPECT_EQ(f.description(), "The item has been moved or deleted.");
}

}  // namespace
}  // namespace qvx::sim
