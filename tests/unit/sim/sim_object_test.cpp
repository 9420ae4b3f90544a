// FakeObject beyond the Object contract: faults by kind of access, call
// counts, faults that pile up or replace, and event binding.
#include <gtest/gtest.h>

#include "sim/contract_subject.h"
#include "sim/errors.h"
#include "sim/fake_object.h"
#include "sim/outlook.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::sim {
namespace {

using testing::FailureOf;

TEST(SimObject, FaultsMayBeLimitedToOneKindOfAccess) {
  auto subject = MakeContractSubject();
  Fault onlyPut;
  onlyPut.number = hresult::kInvalidArg;
  onlyPut.kind = InvokeKind::Put;
  subject->FailMember("NAME", onlyPut);
  const Object o = subject->AsObject();
  EXPECT_EQ(o.Get("Name").ToText(), "subject");
  EXPECT_EQ(FailureOf([&] { o.Put("Name", Variant("x")); }).number(), hresult::kInvalidArg);
}

TEST(SimObject, CountsCallsIncludingFailedOnesButPeekIsFree) {
  auto subject = MakeContractSubject();
  subject->FailMember("Count", 5, "no", 1);
  const Object o = subject->AsObject();
  EXPECT_THROW(o.Get("Count"), Failure);
  EXPECT_EQ(o.Get("count").ToLong(), 3);
  subject->FailMember("Count", 5, "no");
  EXPECT_EQ(subject->Peek("Count").ToLong(), 3);  // no fault, not counted
  EXPECT_EQ(subject->CallCount("COUNT"), 2);
}

TEST(SimObject, CountedFaultsPileUpWhileAFaultOfTheNextCallOnlyReplaces) {
  Outlook host;
  const Object app = host.Application();
  for (int i = 0; i < 3; ++i) host.FailAt("Version", 13, "once", 1);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(FailureOf([&] { app.Get("Version"); }).number(), 13);
  EXPECT_NO_THROW(app.Get("Version"));

  host.FailAt("Version", 13, "always");
  for (int i = 0; i < 3; ++i) host.FailNextCallOnly("Version", 91, "next");
  EXPECT_EQ(FailureOf([&] { app.Get("Version"); }).number(), 91);
  EXPECT_NO_THROW(app.Get("Version"));
}

TEST(SimObject, SubscribingToAnEventTheObjectLacksFails) {
  auto subject = MakeContractSubject();
  EXPECT_EQ(
      FailureOf([&] { subject->AsObject().Subscribe("Exploded", [](EventArgs&) {}); }).number(),
      err::kNoSuchMember);
}

}  // namespace
}  // namespace qvx::sim
