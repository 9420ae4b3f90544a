// The vocabulary of expected absence and clean-up: Quietly with a value,
// ObjectOrNothing, QuietObject, IgnoreFailure(At), Owner.
#include "core/absence.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "core/failure.h"
#include "core/owner.h"
#include "platform/posix/native_object.h"

namespace qvx {
namespace {

Object Host() {
  return Object(std::make_shared<platform::NativeObject>("Folder"));
}

TEST(Quietly, GivesTheValueOrNothingAndLeavesNoErrorPending) {
  ErrorState err;
  err.Set(Failure(5, "earlier", "pending before"));
  EXPECT_EQ(Quietly(err, [] { return 42; }), 42);
  EXPECT_FALSE(err.pending());  // cleared even when the statement succeeds

  EXPECT_EQ(Quietly(err, []() -> int { throw Failure(91, "", ""); }), std::nullopt);
  EXPECT_FALSE(err.pending());
}

TEST(IgnoreFailure, LeavesTheFailurePendingAndNotesTheStatementOnlyOnAFailure) {
  ErrorState err;
  EXPECT_TRUE(IgnoreFailureAt(err, 30, [] {}));
  EXPECT_EQ(err.line, 0);
  EXPECT_FALSE(IgnoreFailureAt(err, 40, [] { throw Failure(429, "src", "cannot"); }));
  EXPECT_EQ(err.line, 40);
  EXPECT_EQ(err.number, 429);  // left pending for the next statement
  EXPECT_EQ(err.source, "src");
  EXPECT_TRUE(IgnoreFailure(err, [] {}));
  EXPECT_TRUE(err.pending());  // a good statement does not clear it, as in the runtime
}

TEST(ObjectOrNothing, IsNothingForEveryValueThatIsNoObjectAndQuietlyForAFailedRead) {
  const Object host = Host();  // no members: every read fails with 438
  EXPECT_EQ(ObjectOrNothing(Variant(host)).TypeName(), "Folder");
  const Variant notObjects[] = {Variant(), Variant::Null(), Variant(int32_t{7}), Variant("Folder"),
                                Variant(Object())};
  for (const Variant& value : notObjects) {
    EXPECT_TRUE(ObjectOrNothing(value).IsNothing()) << static_cast<int>(value.Type());
  }
  ErrorState err;
  EXPECT_TRUE(QuietObject(err, [&] { return host.Get("Parent"); }).IsNothing());
  EXPECT_FALSE(err.pending());
  EXPECT_TRUE(QuietObject(err, [] { return Variant(int32_t{3}); }).IsNothing());
  EXPECT_EQ(QuietObject(err, [&] { return Variant(host); }).TypeName(), "Folder");
}

// A class that counts its own destructions, owned as a base without a
// virtual destructor: only the owner's deleter reaches ~Counted.
struct Base {};
struct Counted : Base {
  explicit Counted(int& destroyed) : destroyed_(destroyed) {}
  ~Counted() { ++destroyed_; }
  int& destroyed_;
};

TEST(Owner, DestroysWhatMakeUniqueMadeOnceAsItsOwnType) {
  int destroyed = 0;
  Owner<Base> owner = std::make_unique<Counted>(destroyed);
  Owner<Base> moved = std::move(owner);
  EXPECT_FALSE(owner);
  moved = std::make_unique<Counted>(destroyed);  // the first goes here
  EXPECT_EQ(destroyed, 1);
  moved.reset();
  EXPECT_EQ(destroyed, 2);
}

}  // namespace
}  // namespace qvx
