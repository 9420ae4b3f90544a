// The simulated Application, its session services and fault injection by path.
#include <gtest/gtest.h>

#include "sim/categories.h"
#include "sim/explorer.h"
#include "sim/fake_object.h"
#include "sim/folder.h"
#include "sim/outlook.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::sim {
namespace {

using testing::FailureOf;

TEST(SimApplication, VersionIsSetByTheWorldAndReadOnlyToTheAddin) {
  Outlook world(Outlook::Options{.version = "9.0"});
  const Object app = world.Application();
  EXPECT_EQ(app.TypeName(), "Application");
  EXPECT_EQ(app.Get("Version").ToText(), "9.0");
  world.SetVersion("14.0.0.7109");
  EXPECT_EQ(app.Get("version").ToText(), "14.0.0.7109");
  EXPECT_EQ(FailureOf([&] { app.Put("Version", Variant("1")); }).number(), err::kNoSuchMember);
}

TEST(SimApplication, CreateObjectGoesThroughTheHook) {
  Outlook world;
  const Object app = world.Application();
  EXPECT_EQ(FailureOf([&] { app.Call("CreateObject", {Variant("Wscript.Shell")}); }).number(), 429);
  std::vector<std::string> asked;
  world.SetCreateObject([&](std::string_view progId) {
    asked.emplace_back(progId);
    if (progId != "Wscript.Shell") return Object();
    return std::make_shared<FakeObject>("IWshShell3")->AsObject();
  });
  EXPECT_EQ(app.Call("CreateObject", {Variant("Wscript.Shell")}).ToObject().TypeName(),
            "IWshShell3");
  EXPECT_EQ(FailureOf([&] { app.Call("CreateObject", {Variant("ZNBLib.ZNBMAPIUtils")}); }).number(),
            429);
  EXPECT_EQ(asked, (std::vector<std::string>{"Wscript.Shell", "ZNBLib.ZNBMAPIUtils"}));
}

TEST(SimApplication, CategoriesFindByNameAddAndRecolour) {
  Outlook world;
  const Object categories = world.Application()
                                .Call("GetNamespace", {Variant("MAPI")})
                                .ToObject()
                                .Get("Categories")
                                .ToObject();
  EXPECT_TRUE(categories.Call("Item", {Variant("Apollo")}).ToObject().IsNothing());
  const Object added = categories.Call("Add", {Variant("Apollo"), Variant(int32_t{5})}).ToObject();
  EXPECT_EQ(added.TypeName(), "Category");
  const Object found = categories.Call("Item", {Variant("APOLLO")}).ToObject();
  ASSERT_TRUE(found.Is(added));
  found.Put("Color", Variant(int16_t{8}));
  EXPECT_EQ(world.FindCategory("apollo")->color(), 8);
  EXPECT_THROW(categories.Call("Add", {Variant("apollo"), Variant(int32_t{1})}), Failure);
  EXPECT_EQ(categories.Get("Count").ToLong(), 1);
}

TEST(SimApplication, CurrentUserAndItemsByEntryId) {
  Outlook world(Outlook::Options{.userName = "Doe, Jane"});
  const Object ns = world.Application().Get("Session").ToObject();
  EXPECT_EQ(ns.Get("CurrentUser").ToObject().Get("Name").ToText(), "Doe, Jane");
  EXPECT_EQ(FailureOf([&] { ns.Call("GetItemFromID", {Variant("nope")}); }).number(),
            hresult::kNotFound);
}

class SimFaultInjection : public ::testing::Test {
 protected:
  Outlook world;
  Object app = world.Application();
};

TEST_F(SimFaultInjection, AnyMemberReachedByPathCanBeMadeToFail) {
  world.FailAt("Session.GetDefaultFolder(9).Items", hresult::kFail, "store offline", 2);
  const Object calendar =
      app.Get("Session").ToObject().Call("GetDefaultFolder", {Variant(9)}).ToObject();
  for (int i = 0; i < 2; ++i) {
    const Failure f = FailureOf([&] { calendar.Get("Items"); });
    EXPECT_EQ(f.number(), hresult::kFail);
    EXPECT_EQ(f.description(), "store offline");
    EXPECT_EQ(f.source(), kHostSource);
  }
  EXPECT_EQ(calendar.Get("Items").ToObject().TypeName(), "Items");
  // Other folders are untouched.
  EXPECT_NO_THROW(
      app.Get("ActiveExplorer").ToObject().Get("CurrentFolder").ToObject().Get("Items"));
}

TEST_F(SimFaultInjection, TopLevelMembersAndNestedObjects) {
  world.FailAt("Explorers", hresult::kFail, "boom");
  EXPECT_EQ(FailureOf([&] { app.Get("Explorers"); }).description(), "boom");
  world.app().ClearFaults();
  world.FailAt("Explorers.Item(1).CurrentFolder.Name", 13, "Type mismatch", 1);
  const Object folder = app.Get("Explorers")
                            .ToObject()
                            .Call("Item", {Variant(1)})
                            .ToObject()
                            .Get("CurrentFolder")
                            .ToObject();
  EXPECT_EQ(FailureOf([&] { folder.Get("Name"); }).number(), 13);
  EXPECT_EQ(folder.Get("Name").ToText(), "Inbox");
  EXPECT_EQ(world.Inbox()->CallCount("Name"), 2);
}

TEST_F(SimFaultInjection, ResolveFollowsArgumentsAndRejectsBadPaths) {
  world.AddCategory("Red Team", 1);
  EXPECT_EQ(world.Resolve("Session.Categories.Item(\"Red Team\")")->TypeName(), "Category");
  EXPECT_EQ(world.Resolve("")->TypeName(), "Application");
  EXPECT_EQ(FailureOf([&] { world.Resolve("ActiveInspector"); }).number(), err::kObjectNotSet);
  EXPECT_EQ(FailureOf([&] { world.Resolve("Version"); }).number(), 424);
  EXPECT_EQ(FailureOf([&] { world.Resolve("Session..Folders"); }).number(),
            err::kInvalidProcedureCall);
  EXPECT_EQ(FailureOf([&] { world.Resolve("Nonsense"); }).number(), err::kNoSuchMember);
}

}  // namespace
}  // namespace qvx::sim
