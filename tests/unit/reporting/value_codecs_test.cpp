#include "reporting/value_codecs.h"

#include <gtest/gtest.h>

#include "reporting/key_filter.h"
#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

TEST(EncodeValue, EscapesTheCatalogueSeparators) {
  testing::TestAddin t;
  struct Row {
    const char* in;
    const char* out;
  };
  const Row rows[] = {
      {"a:b;c,d", "a_COLON_b_SCOLON_c_COMMA_d"},
      {"", ""},
      {"plain name", "plain name"},  // blanks are not touched
      {"::", "_COLON__COLON_"},
      {",;:", "_COMMA__SCOLON__COLON_"},
      {"_COMMA_", "_COMMA_"},  // its own tokens pass unchanged
  };
  for (const Row& row : rows) EXPECT_EQ(EncodeValue(t.s, row.in), row.out) << row.in;
}

TEST(EncodeValue, ConvertsTheValueToTextFirst) {
  testing::TestAddin t;
  EXPECT_EQ(EncodeValue(t.s, Variant(int16_t{-1})), "-1");
  EXPECT_EQ(EncodeValue(t.s, Variant(1.5)), "1.5");
  EXPECT_EQ(EncodeValue(t.s, Variant(true)), "True");
  EXPECT_EQ(EncodeValue(t.s, Variant()), "");
}

TEST(EncodeValue, AValueWithoutTextFormGivesEmptyAndIsReported) {
  testing::TestAddin t;
  EXPECT_EQ(EncodeValue(t.s, Variant::Null()), "");
  EXPECT_TRUE(t.Reported("Global.EncodeValue", 10));
  testing::TestAddin u;
  EXPECT_EQ(DecodeValue(u.s, Variant::Null()), "");
  EXPECT_TRUE(u.Reported("Global.DecodeValue", 10));
}

TEST(DecodeValue, RestoresTheSeparators) {
  testing::TestAddin t;
  struct Row {
    const char* in;
    const char* out;
  };
  const Row rows[] = {
      {"a_COLON_b_SCOLON_c_COMMA_d", "a:b;c,d"},
      {"", ""},
      {"a b", "a b"},
      {"x_SPACE_y", "x_SPACE_y"},  // "_SPACE_" is not a token of this codec
      {"_COLON", "_COLON"},
      {"_colon_", "_colon_"},  // tokens are matched exactly
  };
  for (const Row& row : rows) EXPECT_EQ(DecodeValue(t.s, row.in), row.out) << row.in;
}

TEST(DecodeValue, RoundTripsNamesWithoutTokens) {
  testing::TestAddin t;
  for (const char* name : {"a:b;c,d", "Project, Phase 1: Design; Build", " lead ", "x"}) {
    EXPECT_EQ(DecodeValue(t.s, EncodeValue(t.s, name)), name);
  }
}

TEST(DecodeValue, HasNoEscapeForItsOwnTokens) {
  testing::TestAddin t;
  // A name that already holds a token does not survive the round trip.
  EXPECT_EQ(DecodeValue(t.s, EncodeValue(t.s, "a_COMMA_b")), "a,b");
  EXPECT_EQ(DecodeValue(t.s, EncodeValue(t.s, "x_SCOLON_")), "x;");
  EXPECT_EQ(DecodeValue(t.s, "_COLON_COMMA_"), ":COMMA_");
}

TEST(KeepDigitsOnly, PassesDigitsAndBackspaceOnly) {
  for (int code = -1; code <= 255; ++code) {
    int16_t key = static_cast<int16_t>(code);
    KeepDigitsOnly(key);
    const bool kept = (code >= '0' && code <= '9') || code == 8;
    EXPECT_EQ(key, kept ? code : 0) << code;
  }
}

TEST(KeepDigitsOnly, SwallowsSignsAndSeparators) {
  for (char c : {'-', '+', '.', ',', ' ', '\''}) {
    int16_t key = c;
    KeepDigitsOnly(key);
    EXPECT_EQ(key, 0) << c;
  }
}

}  // namespace
}  // namespace qvx
