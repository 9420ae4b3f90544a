// The contract of Object, the same on every host face: binding by name,
// runtime error numbers, identity, enumeration, events.
#include "unit/sim/object_contract.h"

#include <vector>

#include "sim/errors.h"
#include "unit/sim/sim_test_util.h"

namespace qvx::contract {
namespace {

using sim::testing::FailureOf;
namespace hresult = sim::hresult;

TEST_P(ObjectContract, BindsByNameWithoutRegardToCaseAndConvertsArguments) {
  subject_.Put("NAME", Variant("renamed"));
  EXPECT_EQ(subject_.Get("name").ToText(), "renamed");
  EXPECT_EQ(subject_.Get("SUM", {Variant("40"), Variant(2.0)}), Variant(int32_t{42}));
}

TEST_P(ObjectContract, BindingFailuresCarryTheRuntimeNumbers) {
  const struct {
    const char* member;
    std::vector<Variant> args;
    int32_t number;
  } rows[] = {
      {"NoSuchMember", {}, err::kNoSuchMember},
      {"Sum", {Variant(int32_t{1})}, 449},
      {"Sum", {Variant::Missing(), Variant(int32_t{1})}, 449},  // a required one omitted
      {"Sum", {Variant(int32_t{1}), Variant(int32_t{2}), Variant(int32_t{3})}, 450},
      {"Sum", {Variant("x"), Variant(int32_t{1})}, err::kTypeMismatch},
      {"Sum", {Variant::Null(), Variant(int32_t{1})}, err::kInvalidUseOfNull},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(FailureOf([&] { subject_.Call(row.member, row.args); }).number(), row.number)
        << row.member << " with " << row.args.size();
  }
  EXPECT_EQ(FailureOf([&] { subject_.Put("Count", Variant(int32_t{4})); }).number(),
            err::kNoSuchMember);  // read-only
  EXPECT_EQ(FailureOf([&] { subject_.Get("NoSuchMember"); }).description(),
            "Object doesn't support this property or method");
}

TEST_P(ObjectContract, NothingFailsWith91WhenUsedAndIdentityHoldsAcrossHandles) {
  const Object nobody = subject_.Get("Nobody").ToObject();
  EXPECT_TRUE(nobody.IsNothing());
  EXPECT_EQ(FailureOf([&] { nobody.Get("Name"); }).number(), err::kObjectNotSet);
  EXPECT_EQ(FailureOf([&] { nobody.Enumerate(); }).number(), err::kObjectNotSet);
  const Object a = subject_.Get("Child").ToObject();
  EXPECT_TRUE(a.Is(subject_.Get("child").ToObject()));
  EXPECT_FALSE(a.Is(subject_));
  EXPECT_FALSE(a.Is(Object()));
  EXPECT_TRUE(Object().Is(Object()));
}

TEST_P(ObjectContract, EnumeratesInOrderAndEnumerationCanBeMadeToFail) {
  std::vector<std::string> texts;
  for (const Variant& v : subject_.Enumerate()) texts.push_back(v.ToText());
  EXPECT_EQ(texts, (std::vector<std::string>{"one", "two", "three"}));
  EXPECT_EQ(FailureOf([&] { subject_.Get("Child").ToObject().Enumerate(); }).number(),
            err::kNoSuchMember);
  host_->FailMember("_NewEnum", 13, "Type mismatch", 1);
  EXPECT_EQ(FailureOf([&] { subject_.Enumerate(); }).number(), 13);
  EXPECT_EQ(subject_.Enumerate().size(), 3u);
}

TEST_P(ObjectContract, EventsReachSubscribersUntilTheLastHandleIsReleased) {
  if (!GetParam()->carriesEvents) GTEST_SKIP() << "the face carries the host's events only";
  std::vector<std::string> heard;
  Subscription first =
      subject_.Subscribe("pinged", [&](EventArgs& a) { heard.push_back("1:" + a.at(0).ToText()); });
  Subscription second =
      subject_.Subscribe("Pinged", [&](EventArgs& a) { heard.push_back("2:" + a.at(0).ToText()); });
  subject_.Call("Ping", {Variant("a")});
  second.Reset();
  {
    Subscription copy = first;
    first.Reset();
    subject_.Call("Ping", {Variant("c")});  // the copy still holds it
  }
  subject_.Call("Ping", {Variant("d")});
  EXPECT_EQ(heard, (std::vector<std::string>{"1:a", "2:a", "1:c"}));
  Subscription flip = subject_.Subscribe("Flipping", [](EventArgs& a) { a.at(0) = Variant(true); });
  EXPECT_TRUE(subject_.Call("Flip", {Variant(false)}).ToBoolean());  // written back by reference
}

TEST_P(ObjectContract, InjectedFailuresCarryNumberAndDescriptionAndMayRunOut) {
  host_->FailMember("Name", hresult::kFail, "boom", -1);
  host_->FailMember("Sum", 5, "Invalid procedure call or argument", 2);
  const Failure f = FailureOf([&] { subject_.Get("name"); });
  EXPECT_EQ(f.number(), hresult::kFail);
  EXPECT_EQ(f.description(), "boom");
  EXPECT_EQ(FailureOf([&] { subject_.Put("Name", Variant("x")); }).description(), "boom");
  const std::vector<Variant> args{Variant(int32_t{1}), Variant(int32_t{2})};
  EXPECT_EQ(FailureOf([&] { subject_.Call("Sum", args); }).number(), 5);
  EXPECT_EQ(FailureOf([&] { subject_.Call("Sum", args); }).number(), 5);
  EXPECT_EQ(subject_.Call("Sum", args), Variant(int32_t{3}));
}

}  // namespace
}  // namespace qvx::contract
