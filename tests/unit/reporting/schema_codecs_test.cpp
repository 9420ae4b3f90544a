// The catalogue's codecs of dates and values.
#include <gtest/gtest.h>

#include "schema/date_codecs.h"
#include "schema/value_codecs.h"
#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

TEST(QuorvixDateFormat, WritesYearMonthDayWithoutPaddingAndReadsItBack) {
  testing::TestAddin t;
  const std::pair<DateValue, const char*> rows[] = {
      {DateSerial(2010, 12, 1), "2010-12-1"},
      {ComposeDate({2010, 3, 7, 23, 59, 59}), "2010-3-7"},  // the time is dropped
      {DateSerial(100, 1, 1), "100-1-1"},
      {kEmptyDate, "1899-12-30"},
      {kNoneDate, "4501-1-1"},
      {DateSerial(9999, 12, 31), "9999-12-31"},
  };
  for (const auto& [date, text] : rows) {
    EXPECT_EQ(ToQuorvixDateFormat(t.s, date), text);
    EXPECT_EQ(ToQuorvixDateFormat(t.s, FromQuorvixDateFormat(t.s, text)), text);
  }
  EXPECT_EQ(ToQuorvixDateFormat(t.s, Variant("3/7/2010")), "2010-3-7");
  // The text of a date leaves the years of no date empty.
  for (int year : {1, 1899, 4501}) EXPECT_TRUE(IsNoDateYear(year)) << year;
  for (int year : {0, 2, 1898, 1900, 4500, 4502}) EXPECT_FALSE(IsNoDateYear(year)) << year;
  EXPECT_EQ(DateToQuorvixText(t.s, DateSerial(4501, 6, 15)), "");
  EXPECT_EQ(DateToQuorvixText(t.s, DateSerial(4500, 12, 31)), "4500-12-31");
  EXPECT_TRUE(t.Reports().empty());
  EXPECT_EQ(ToQuorvixDateFormat(t.s, Variant("not a date")), "");
  EXPECT_TRUE(t.Reported("Global.ToQuorvixDateFormat"));
}

TEST(FromQuorvixDateFormat, ReadsThreePartsLeniently) {
  testing::TestAddin t;
  const std::pair<const char*, DateValue> rows[] = {
      {"2010-03-07", DateSerial(2010, 3, 7)},     // padding is accepted
      {"2010-12-1-99", DateSerial(2010, 12, 1)},  // extra parts are ignored
      {"2010-13-1", DateSerial(2011, 1, 1)},      // the month rolls over
      {"2010-2-30", DateSerial(2010, 3, 2)},      // the day rolls over
      {"2010-1-0", DateSerial(2009, 12, 31)},
      {" 2010 - 3 - 7 ", DateSerial(2010, 3, 7)},  // numbers may carry blanks
      {"10-3-7", DateSerial(2010, 3, 7)},          // the runtime's two-digit years
  };
  for (const auto& [text, date] : rows) EXPECT_EQ(FromQuorvixDateFormat(t.s, text), date) << text;
  EXPECT_EQ(TextToDate(t.s, std::string("2011-1-2")), DateSerial(2011, 1, 2));
  // Anything else gives the zero date, and the failed conversion is ignored.
  for (const char* text : {"", "   ", "2010-12", "2010-12-", "a-b-c", "2010/3/7", "2010-3-x",
                           "99999-1-1", "2010-40000-1"}) {
    EXPECT_EQ(FromQuorvixDateFormat(t.s, text), kEmptyDate) << text;
    EXPECT_FALSE(t.s.err.pending()) << text;
  }
  EXPECT_EQ(TextToDate(t.s, std::string("2011-1")), kEmptyDate);
  EXPECT_TRUE(t.Reports().empty());
}

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
