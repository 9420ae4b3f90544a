#include "core/variant.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "core/failure.h"

namespace qvx {
namespace {

int32_t FailureNumber(auto&& f) {
  try {
    f();
  } catch (const Failure& e) {
    return e.number();
  }
  return 0;
}

TEST(VariantToInteger, RoundsHalfToEvenAndChecksRange) {
  const std::pair<Variant, int16_t> rows[] = {
      {Variant(2.5), 2},         {Variant(3.5), 4},
      {Variant(-2.5), -2},       {Variant("1.5"), 2},
      {Variant(" 7 "), 7},       {Variant("&HFFFF"), -1},
      {Variant(true), -1},       {Variant(), 0},
      {Variant("32767"), 32767}, {Variant(int32_t{-32768}), -32768},
  };
  for (const auto& [in, out] : rows) EXPECT_EQ(in.ToInteger(), out) << in.ToText();
  EXPECT_EQ(FailureNumber([] { Variant("32768").ToInteger(); }), err::kOverflow);
  EXPECT_EQ(FailureNumber([] { Variant(int32_t{-32769}).ToInteger(); }), err::kOverflow);
  EXPECT_EQ(FailureNumber([] { Variant(2147483648.0).ToLong(); }), err::kOverflow);
  EXPECT_EQ(FailureNumber([] { Variant("x").ToInteger(); }), err::kTypeMismatch);
  EXPECT_EQ(FailureNumber([] { Variant("").ToInteger(); }), err::kTypeMismatch);
  EXPECT_EQ(FailureNumber([] { Variant("inf").ToLong(); }), err::kTypeMismatch);
  EXPECT_EQ(FailureNumber([] { Variant::Null().ToInteger(); }), err::kInvalidUseOfNull);
}

TEST(VariantConversions, TextNumericDateAndBooleanFollowTheRuntime) {
  EXPECT_EQ(Variant(true).ToText(), "True");
  EXPECT_EQ(Variant(0.1 + 0.2).ToText(), "0.3");
  EXPECT_EQ(Variant(1e20).ToText(), "1E+20");
  EXPECT_EQ(Variant(Currency{12345}).ToText(), "1.2345");
  EXPECT_EQ(Variant().ToText(), "");
  EXPECT_TRUE(Variant().IsNumeric());
  EXPECT_TRUE(Variant(" -1.5e3 ").IsNumeric());
  EXPECT_FALSE(Variant("1,5").IsNumeric());
  EXPECT_FALSE(Variant("nan").IsNumeric());
  EXPECT_FALSE(Variant::Null().IsNumeric());
  EXPECT_TRUE(Variant("1/2/2026").IsDate());
  EXPECT_FALSE(Variant("2026-02-30").IsDate());
  EXPECT_FALSE(Variant("12").IsDate());
  EXPECT_TRUE(Variant("true").ToBoolean());
  EXPECT_TRUE(Variant("-1").ToBoolean());
  EXPECT_EQ(FailureNumber([] { Variant("yes").ToBoolean(); }), err::kTypeMismatch);
}

// An omitted optional argument: told apart from Empty, and no value at all.
TEST(VariantMissing, IsApartFromEmptyAndConvertsToNothing) {
  const Variant missing = Variant::Missing();
  EXPECT_TRUE(missing.IsMissing());
  EXPECT_FALSE(missing.IsEmpty());
  EXPECT_EQ(missing.Type(), VarType::Error);
  EXPECT_FALSE(Variant().IsMissing());
  EXPECT_EQ(missing, Variant::Missing());
  EXPECT_FALSE(missing == Variant(int32_t{0}));
  EXPECT_FALSE(missing.IsNumeric());
  const std::pair<const char*, std::function<void()>> conversions[] = {
      {"CStr", [&] { missing.ToText(); }},     {"CInt", [&] { missing.ToInteger(); }},
      {"CLng", [&] { missing.ToLong(); }},     {"CDbl", [&] { missing.ToDouble(); }},
      {"CCur", [&] { missing.ToCurrency(); }}, {"CDate", [&] { missing.ToDate(); }},
      {"CBool", [&] { missing.ToBoolean(); }},
  };
  for (const auto& [name, convert] : conversions) {
    EXPECT_EQ(FailureNumber(convert), err::kTypeMismatch) << name;
  }
  EXPECT_EQ(FailureNumber([&] { missing.ToObject(); }), err::kObjectRequired);
}

}  // namespace
}  // namespace qvx
