// The native stand-in of the scripting dictionary, whose keys the add-in
// relies on: case-blind with text compare, a missing key read adds it. The
// shell object's run command and environment expansion are proven by the
// scenarios' companion starts and the user name of the support tests.
#include "platform/posix/posix_objects.h"

#include <gtest/gtest.h>

#include "unit/sim/sim_test_util.h"

namespace qvx::platform {
namespace {

using sim::testing::FailureOf;

TEST(NativeDictionary, BehavesAsTheScriptingDictionary) {
  Object d = MakeDictionary();
  d.Put("CompareMode", Variant(int32_t{1}));
  d.Call("Add", {Variant("Alpha"), Variant(int32_t{1})});
  d.Call("Add", {Variant("beta"), Variant("two")});
  EXPECT_THROW(d.Call("Add", {Variant("ALPHA"), Variant(int32_t{3})}), Failure);
  EXPECT_THROW(d.Put("CompareMode", Variant(int32_t{0})), Failure);
  d.Put("Item", {Variant("alpha")}, Variant(int32_t{5}));
  EXPECT_EQ(d.Get("Item", {Variant("ALPHA")}).ToLong(), 5);
  // Reading a missing key adds it, empty.
  EXPECT_TRUE(d.Get("Item", {Variant("gamma")}).IsEmpty());
  EXPECT_EQ(d.Call("Keys").ToObject().Get("Item", {Variant(int32_t{2})}).ToText(), "gamma");
  EXPECT_EQ(FailureOf([&] { d.Call("Remove", {Variant("delta")}); }).number(), kElementNotFound);
  d.Call("Remove", {Variant("ALPHA")});
  EXPECT_EQ(d.Enumerate().at(0).ToText(), "beta");
}

}  // namespace
}  // namespace qvx::platform
