// The simulated master category list, whose lookups go through an index that
// renames and removals must keep right.
#include <gtest/gtest.h>

#include "sim/categories.h"
#include "sim/errors.h"
#include "sim/outlook.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::sim {
namespace {

using testing::FailureOf;

// Categories are found by name or id without regard to case: under the new
// name once renamed through Name, not at all once removed, and the first
// added when a rename gives two the same name.
TEST(SimCategories, CategoriesFoundByNameOrIdThroughRenamesAndRemovals) {
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
  } cases[] = {{"Alpha", "none"},  {"GAMMA", alphaId}, {alphaId, alphaId}, {"Delta", "none"},
               {deltaId, deltaId}, {"Beta", "none"},   {betaId, "none"}};
  for (const auto& c : cases) EXPECT_EQ(idOf(c.key), c.id) << c.key;
  EXPECT_EQ(FailureOf([&] { categories.Call("Add", {Variant("gAMMA")}); }).number(),
            hresult::kInvalidArg);
  categories.Call("Remove", {Variant(alphaId)});
  EXPECT_EQ(idOf("Gamma"), deltaId);
}

}  // namespace
}  // namespace qvx::sim
