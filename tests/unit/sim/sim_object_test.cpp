// The simulated objects' own machinery: faults, call counts, events, binding.
#include <gtest/gtest.h>

#include "sim/contract_subject.h"
#include "sim/errors.h"
#include "sim/fake_object.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::sim {
namespace {

using testing::FailureOf;

TEST(SimObject, FaultsMayBeLimitedToOneKindOfAccess) {
  auto subject = MakeContractSubject();
  Fault onlyPut;
  onlyPut.number = hresult::kInvalidArg;
  onlyPut.description = "read-only now";
  onlyPut.kind = InvokeKind::Put;
  subject->FailMember("NAME", onlyPut);
  const Object o = subject->AsObject();
  EXPECT_EQ(o.Get("Name").ToText(), "subject");
  const Failure f = FailureOf([&] { o.Put("Name", Variant("x")); });
  EXPECT_EQ(f.number(), hresult::kInvalidArg);
  EXPECT_EQ(f.source(), kHostSource);
  subject->ClearFaults();
  o.Put("Name", Variant("x"));
  EXPECT_EQ(subject->Value("name").ToText(), "x");
}

TEST(SimObject, CountsCallsIncludingFailedOnesButPeekIsFree) {
  auto subject = MakeContractSubject();
  subject->FailMember("Count", 5, "no", 1);
  const Object o = subject->AsObject();
  EXPECT_THROW(o.Get("Count"), Failure);
  EXPECT_EQ(o.Get("count").ToLong(), 3);
  EXPECT_EQ(subject->CallCount("COUNT"), 2);
  subject->FailMember("Count", 5, "no");
  EXPECT_EQ(subject->Peek("Count").ToLong(), 3);  // no fault, not counted
  EXPECT_EQ(subject->CallCount("Count"), 2);
  subject->ResetCallCounts();
  EXPECT_EQ(subject->CallCount("Count"), 0);
}

TEST(SimObject, SharedFaultTablesApplyToEveryHolder) {
  auto a = std::make_shared<FakeObject>("Thing");
  auto b = std::make_shared<FakeObject>("Thing");
  a->Property("Name", "a");
  b->Property("Name", "b");
  b->ShareFaults(a->sharedFaults());
  a->FailMember("Name", 13, "Type mismatch");
  EXPECT_EQ(FailureOf([&] { b->AsObject().Get("Name"); }).number(), 13);
}

TEST(SimObject, SubscribingToAnEventTheObjectLacksFails) {
  auto subject = MakeContractSubject();
  EXPECT_EQ(
      FailureOf([&] { subject->AsObject().Subscribe("Exploded", [](EventArgs&) {}); }).number(),
      err::kNoSuchMember);
  Subscription s = subject->AsObject().Subscribe("PINGED", [](EventArgs&) {});
  EXPECT_EQ(subject->HandlerCount("Pinged"), 1u);
  s.Reset();
  EXPECT_EQ(subject->HandlerCount("Pinged"), 0u);
}

TEST(SimObject, MethodArgumentsConvertWithTheRuntimeRules) {
  auto subject = MakeContractSubject();
  const Object o = subject->AsObject();
  EXPECT_EQ(o.Call("Sum", {Variant(true), Variant(2.5)}).ToLong(), 1);  // -1 + 2 (2.5 rounds to 2)
  EXPECT_EQ(FailureOf([&] {
              o.Call("Sum", {Variant(1e10), Variant(int32_t{1})});
            }).number(),
            err::kOverflow);
  EXPECT_EQ(FailureOf([&] {
              o.Call("Sum", {Variant::Null(), Variant(int32_t{1})});
            }).number(),
            err::kInvalidUseOfNull);
}

}  // namespace
}  // namespace qvx::sim
