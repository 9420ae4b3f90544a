// What every collection of the simulated host shares: Count, Item by
// position, enumeration, Parent and Application.
#include <gtest/gtest.h>

#include "core/dates.h"
#include "sim/categories.h"
#include "sim/explorer.h"
#include "sim/item_classes.h"
#include "sim/outlook.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::sim {
namespace {

using testing::FailureOf;

TEST(SimCollections, CountItemEnumerationParentAndApplicationAgree) {
  Outlook world;
  auto meeting = world.AddAppointment("Planning", DateSerial(2026, 3, 2), DateSerial(2026, 3, 3));
  world.AddCategory("Alpha", 3);
  world.Select(*world.ActiveExplorer(), {meeting});
  const Object app = world.Application();
  const struct {
    const char* path;
    const char* parent;  // a path from the Application; null for Nothing
  } cases[] = {
      {"Explorers", ""},
      {"Inspectors", ""},
      {"Session.Categories", "Session"},
      {"Session.Folders", nullptr},  // the stores have no folder above them
      {"Session.GetDefaultFolder(9).Items", "Session.GetDefaultFolder(9)"},
      {"Session.GetDefaultFolder(9).Views", "Session.GetDefaultFolder(9)"},
      {"Session.GetDefaultFolder(9).Folders", "Session.GetDefaultFolder(9)"},
      {"ActiveExplorer.Selection", "ActiveExplorer"},
      {"ActiveExplorer.CommandBars", "ActiveExplorer"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.path);
    const Object collection = world.Resolve(c.path)->AsObject();
    EXPECT_TRUE(collection.Get("Application").ToObject().Is(app));
    const Object parent = collection.Get("Parent").ToObject();
    if (c.parent == nullptr) {
      EXPECT_TRUE(parent.IsNothing());
    } else {
      EXPECT_TRUE(parent.Is(world.Resolve(c.parent)->AsObject()));
    }
    const auto elements = collection.Enumerate();
    const int32_t count = collection.Get("Count").ToLong();
    ASSERT_EQ(elements.size(), static_cast<size_t>(count));
    if (count > 0) {
      EXPECT_TRUE(collection.Call("Item", {Variant(int32_t{1})})
                      .ToObject()
                      .Is(elements.front().ToObject()));
    }
    EXPECT_EQ(FailureOf([&] { collection.Call("Item", {Variant(count + 1)}); }).number(),
              hresult::kIndexOutOfBounds);
  }
}

// Categories are found by name or id without regard to case: under the new
// name once renamed through Name, not at all once removed, and the first
// added when a rename gives two the same name.
TEST(SimCollections, CategoriesFoundByNameOrIdThroughRenamesAndRemovals) {
  Outlook world;
  const std::string alphaId = world.AddCategory("Alpha", 3)->id();
  const std::string betaId = world.AddCategory("Beta", 4)->id();
  const std::string deltaId = world.AddCategory("Delta", 5)->id();
  const Object categories = world.Resolve("Session.Categories")->AsObject();
  const auto idOf = [&](const std::string& key) {
    const Object found = categories.Call("Item", {Variant(key)}).ToObject();
    return found.IsNothing() ? std::string("none") : found.Get("CategoryID").ToText();
  };
  categories.Call("Item", {Variant("alpha")}).ToObject().Put("Name", Variant("Gamma"));
  categories.Call("Item", {Variant("DELTA")}).ToObject().Put("Name", Variant("gamma"));
  categories.Call("Remove", {Variant("beta")});
  const struct {
    std::string key;
    std::string id;
  } cases[] = {
      {"Alpha", "none"},  {"GAMMA", alphaId}, {alphaId, alphaId}, {"Delta", "none"},
      {deltaId, deltaId}, {"Beta", "none"},   {betaId, "none"},
  };
  for (const auto& c : cases) EXPECT_EQ(idOf(c.key), c.id) << c.key;
  EXPECT_EQ(FailureOf([&] { categories.Call("Add", {Variant("gAMMA")}); }).number(),
            hresult::kInvalidArg);
  categories.Call("Remove", {Variant(alphaId)});
  EXPECT_EQ(idOf("Gamma"), deltaId);
}

}  // namespace
}  // namespace qvx::sim
