#include "schema/value_codecs.h"

#include <gtest/gtest.h>

#include <iterator>
#include <random>

#include "core/text.h"
#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

TEST(ValueCodecs, EscapeTheCatalogueSeparatorsAndNothingElse) {
  testing::TestAddin t;
  struct Row {
    Variant plain;
    const char* encoded;
    const char* decoded;  // what decoding the encoded text gives
  };
  const Row rows[] = {
      {Variant("a:b;c,d"), "a_COLON_b_SCOLON_c_COMMA_d", "a:b;c,d"},
      {Variant(",;:"), "_COMMA__SCOLON__COLON_", ",;:"},
      {Variant(" plain name "), " plain name ", " plain name "},  // blanks are not touched
      {Variant(""), "", ""},
      {Variant(true), "True", "True"},  // the value goes to text first
      {Variant(), "", ""},
      // No escape for the codec's own tokens: such a name does not survive.
      {Variant("a_COMMA_b"), "a_COMMA_b", "a,b"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(EncodeValue(t.s, row.plain), row.encoded) << row.encoded;
    EXPECT_EQ(DecodeValue(t.s, row.encoded), row.decoded) << row.encoded;
  }
  // Decoding matches the tokens exactly and knows no others.
  for (const char* kept : {"x_SPACE_y", "_COLON", "_colon_"})
    EXPECT_EQ(DecodeValue(t.s, kept), kept);
  EXPECT_EQ(DecodeValue(t.s, "_COLON_COMMA_"), ":COMMA_");
  EXPECT_TRUE(t.Reports().empty());
}

// Decoding is the three replacements in order, also where tokens share an
// underscore or hide inside one another.
TEST(ValueCodecs, DecodingEqualsTheThreeReplacementsInOrder) {
  const char* pieces[] = {"_", "COLON", "SCOLON", "COMMA", "C", "S", "x", "_COLON_", "_COMMA_"};
  std::mt19937 random(3);
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    for (size_t n = random() % 9; n > 0; --n) text += pieces[random() % std::size(pieces)];
    const std::string inOrder =
        Replace(Replace(Replace(text, "_COLON_", ":"), "_SCOLON_", ";"), "_COMMA_", ",");
    ASSERT_EQ(DecodeText(text), inOrder) << text;
  }
}

TEST(ValueCodecs, AValueWithoutTextFormGivesEmptyAndIsReported) {
  testing::TestAddin t;
  EXPECT_EQ(EncodeValue(t.s, Variant::Null()), "");
  EXPECT_TRUE(t.Reported("Global.EncodeValue"));
  testing::TestAddin u;
  EXPECT_EQ(DecodeValue(u.s, Variant::Null()), "");
  EXPECT_TRUE(u.Reported("Global.DecodeValue"));
}

}  // namespace
}  // namespace qvx
