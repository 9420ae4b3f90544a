// The cases of the Object contract; see object_contract.h.
#include "unit/sim/object_contract.h"

#include <vector>

#include "core/dates.h"
#include "core/failure.h"
#include "core/variant.h"

namespace qvx::contract {
namespace {

// Runs `call` and returns the Failure it throws; fails the test if none.
template <class Call>
Failure FailureOf(Call&& call) {
  try {
    call();
  } catch (const Failure& f) {
    return f;
  }
  ADD_FAILURE() << "expected a Failure";
  return Failure(0, "", "");
}

TEST_P(ObjectContract, GetsAndPutsPropertiesByNameWithoutRegardToCase) {
  EXPECT_EQ(subject_.Get("Name").ToText(), "subject");
  subject_.Put("NAME", Variant("renamed"));
  EXPECT_EQ(subject_.Get("name").ToText(), "renamed");
  EXPECT_EQ(subject_.TypeName(), "ContractSubject");
}

TEST_P(ObjectContract, CallsMethodsWithArgumentsByGetOrCall) {
  EXPECT_EQ(subject_.Call("Sum", {Variant(int32_t{2}), Variant(int16_t{3})}), Variant(int32_t{5}));
  EXPECT_EQ(subject_.Get("SUM", {Variant("40"), Variant(2.0)}), Variant(int32_t{42}));
}

TEST_P(ObjectContract, BindingFailuresCarryTheRuntimeNumbers) {
  struct Row {
    const char* what;
    std::function<void(const Object&)> call;
    int32_t number;
  };
  const std::vector<Row> rows = {
      {"unknown get", [](const Object& o) { o.Get("NoSuchMember"); }, err::kNoSuchMember},
      {"unknown call", [](const Object& o) { o.Call("NoSuchMember"); }, err::kNoSuchMember},
      {"unknown put", [](const Object& o) { o.Put("NoSuchMember", Variant(1.0)); },
       err::kNoSuchMember},
      {"put of read-only", [](const Object& o) { o.Put("Count", Variant(int32_t{4})); },
       err::kNoSuchMember},
      {"missing argument", [](const Object& o) { o.Call("Sum", {Variant(int32_t{1})}); }, 449},
      {"extra argument",
       [](const Object& o) {
         o.Call("Sum", {Variant(int32_t{1}), Variant(int32_t{2}), Variant(int32_t{3})});
       },
       450},
      {"argument type",
       [](const Object& o) {
         o.Call("Sum", {Variant("x"), Variant(int32_t{1})});
       },
       err::kTypeMismatch},
  };
  for (const Row& row : rows) {
    const Failure f = FailureOf([&] { row.call(subject_); });
    EXPECT_EQ(f.number(), row.number) << row.what;
  }
  EXPECT_EQ(FailureOf([&] { subject_.Get("NoSuchMember"); }).description(),
            "Object doesn't support this property or method");
}

TEST_P(ObjectContract, EchoKeepsEveryVariantType) {
  const std::vector<Variant> values = {
      Variant(),
      Variant::Null(),
      Variant(int16_t{-7}),
      Variant(int32_t{70000}),
      Variant(2.5),
      Variant(Currency{12345}),
      Variant(DateSerial(2026, 1, 2)),
      Variant("text"),
      Variant(true),
      Variant(false),
      Variant(""),
  };
  for (const Variant& v : values) {
    const Variant back = subject_.Call("Echo", {v});
    EXPECT_EQ(back.Type(), v.Type()) << v.ToText();
    EXPECT_EQ(back, v);
  }
  const Object child = subject_.Get("Child").ToObject();
  EXPECT_TRUE(subject_.Call("Echo", {Variant(child)}).ToObject().Is(child));
}

TEST_P(ObjectContract, NothingIsAValueAndFailsWith91WhenUsed) {
  const Variant v = subject_.Get("Nobody");
  ASSERT_TRUE(v.IsObject());
  const Object nobody = v.ToObject();
  EXPECT_TRUE(nobody.IsNothing());
  EXPECT_EQ(nobody.TypeName(), "Nothing");
  EXPECT_EQ(FailureOf([&] { nobody.Get("Name"); }).number(), err::kObjectNotSet);
  EXPECT_EQ(FailureOf([&] { nobody.Call("Sum"); }).number(), err::kObjectNotSet);
  EXPECT_EQ(FailureOf([&] { nobody.Enumerate(); }).number(), err::kObjectNotSet);
}

TEST_P(ObjectContract, IdentityHoldsAcrossHandles) {
  const Object a = subject_.Get("Child").ToObject();
  const Object b = subject_.Get("child").ToObject();
  EXPECT_TRUE(a.Is(b));
  EXPECT_FALSE(a.Is(subject_));
  EXPECT_FALSE(a.Is(Object()));
  EXPECT_TRUE(Object().Is(Object()));
  EXPECT_EQ(a.TypeName(), "ContractChild");
  EXPECT_EQ(a.Get("Name").ToText(), "child");
}

TEST_P(ObjectContract, EnumeratesACollectionInOrder) {
  std::vector<std::string> texts;
  for (const Variant& v : subject_.Enumerate()) texts.push_back(v.ToText());
  EXPECT_EQ(texts, (std::vector<std::string>{"one", "two", "three"}));
  EXPECT_EQ(FailureOf([&] { subject_.Get("Child").ToObject().Enumerate(); }).number(),
            err::kNoSuchMember);
}

TEST_P(ObjectContract, EventsReachSubscribersUntilTheHandleIsReleased) {
  std::vector<std::string> heard;
  Subscription first =
      subject_.Subscribe("pinged", [&](EventArgs& a) { heard.push_back("1:" + a.at(0).ToText()); });
  Subscription second =
      subject_.Subscribe("Pinged", [&](EventArgs& a) { heard.push_back("2:" + a.at(0).ToText()); });
  subject_.Call("Ping", {Variant("a")});
  second.Reset();
  subject_.Call("Ping", {Variant("b")});
  {
    Subscription copy = first;
    first.Reset();
    subject_.Call("Ping", {Variant("c")});  // the copy still holds it
  }
  subject_.Call("Ping", {Variant("d")});
  EXPECT_EQ(heard, (std::vector<std::string>{"1:a", "2:a", "1:b", "1:c"}));
}

TEST_P(ObjectContract, EventHandlersWriteBackByReference) {
  Subscription sub = subject_.Subscribe("Flipping", [](EventArgs& a) { a.at(0) = Variant(true); });
  EXPECT_TRUE(subject_.Call("Flip", {Variant(false)}).ToBoolean());
  sub.Reset();
  EXPECT_FALSE(subject_.Call("Flip", {Variant(false)}).ToBoolean());
}

TEST_P(ObjectContract, InjectedFailuresCarryNumberAndDescription) {
  host_->FailMember("Name", static_cast<int32_t>(0x80004005u), "boom", -1);
  for (int i = 0; i < 2; ++i) {
    const Failure f = FailureOf([&] { subject_.Get("name"); });
    EXPECT_EQ(f.number(), static_cast<int32_t>(0x80004005u));
    EXPECT_EQ(f.description(), "boom");
  }
  EXPECT_EQ(FailureOf([&] { subject_.Put("Name", Variant("x")); }).description(), "boom");
  EXPECT_EQ(subject_.Call("Sum", {Variant(int32_t{1}), Variant(int32_t{1})}), Variant(int32_t{2}));
}

TEST_P(ObjectContract, InjectedFailuresMayRunOut) {
  host_->FailMember("Sum", 5, "Invalid procedure call or argument", 2);
  const std::vector<Variant> args{Variant(int32_t{1}), Variant(int32_t{2})};
  EXPECT_EQ(FailureOf([&] { subject_.Call("Sum", args); }).number(), 5);
  EXPECT_EQ(FailureOf([&] { subject_.Call("Sum", args); }).number(), 5);
  EXPECT_EQ(subject_.Call("Sum", args), Variant(int32_t{3}));
}

TEST_P(ObjectContract, EnumerationCanBeMadeToFail) {
  host_->FailMember("_NewEnum", 13, "Type mismatch", 1);
  EXPECT_EQ(FailureOf([&] { subject_.Enumerate(); }).number(), 13);
  EXPECT_EQ(subject_.Enumerate().size(), 3u);
}

}  // namespace
}  // namespace qvx::contract
