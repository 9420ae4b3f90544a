#include "reporting/date_codecs.h"

#include <gtest/gtest.h>

#include "unit/reporting/test_addin.h"

namespace qvx {
namespace {

TEST(ToQuorvixDateFormat, WritesYearMonthDayWithoutPadding) {
  testing::TestAddin t;
  struct Row {
    DateValue date;
    const char* text;
  };
  const Row rows[] = {
      {DateSerial(2010, 3, 7), "2010-3-7"},
      {DateSerial(2010, 12, 1), "2010-12-1"},
      {DateSerial(2024, 2, 29), "2024-2-29"},
      {ComposeDate({2010, 3, 7, 23, 59, 59}), "2010-3-7"},  // the time is dropped
      {DateSerial(100, 1, 1), "100-1-1"},
      {kEmptyDate, "1899-12-30"},
  };
  for (const Row& row : rows) EXPECT_EQ(ToQuorvixDateFormat(t.s, row.date), row.text);
}

TEST(ToQuorvixDateFormat, ConvertsDateTextAndReportsWhatIsNoDate) {
  testing::TestAddin t;
  EXPECT_EQ(ToQuorvixDateFormat(t.s, Variant("3/7/2010")), "2010-3-7");
  EXPECT_TRUE(t.Reports().empty());
  EXPECT_EQ(ToQuorvixDateFormat(t.s, Variant("not a date")), "");
  EXPECT_TRUE(t.Reported("Global.ToQuorvixDateFormat", 10));
}

TEST(DateToQuorvixText, TheYearsOfNoDateGiveEmptyText) {
  testing::TestAddin t;
  EXPECT_EQ(DateToQuorvixText(t.s, kEmptyDate), "");
  EXPECT_EQ(DateToQuorvixText(t.s, kNoneDate), "");
  EXPECT_EQ(DateToQuorvixText(t.s, DateSerial(4501, 6, 15)), "");
  EXPECT_EQ(DateToQuorvixText(t.s, DateSerial(1899, 1, 1)), "");
  EXPECT_EQ(DateToQuorvixText(t.s, DateSerial(1900, 1, 1)), "1900-1-1");
  EXPECT_EQ(DateToQuorvixText(t.s, DateSerial(4500, 12, 31)), "4500-12-31");
  EXPECT_EQ(DateToQuorvixText(t.s, DateSerial(2010, 12, 1)), "2010-12-1");
}

TEST(IsNoDateYear, KnowsTheThreeNullYears) {
  for (int year : {1, 1899, 4501}) EXPECT_TRUE(IsNoDateYear(year)) << year;
  for (int year : {0, 2, 1898, 1900, 2010, 4500, 4502}) EXPECT_FALSE(IsNoDateYear(year)) << year;
}

TEST(FromQuorvixDateFormat, ReadsThreeParts) {
  testing::TestAddin t;
  struct Row {
    const char* text;
    DateValue date;
  };
  const Row rows[] = {
      {"2010-3-7", DateSerial(2010, 3, 7)},
      {"2010-03-07", DateSerial(2010, 3, 7)},  // padding is accepted
      {"2010-12-1", DateSerial(2010, 12, 1)},
      {"2010-12-1-99", DateSerial(2010, 12, 1)},  // extra parts are ignored
      {"2010-13-1", DateSerial(2011, 1, 1)},      // the month rolls over
      {"2010-2-30", DateSerial(2010, 3, 2)},      // the day rolls over
      {"2010-12-32", DateSerial(2011, 1, 1)},
      {"2010-1-0", DateSerial(2009, 12, 31)},
      {" 2010 - 3 - 7 ", DateSerial(2010, 3, 7)},  // numbers may carry blanks
      {"10-3-7", DateSerial(2010, 3, 7)},          // the runtime's two-digit years
  };
  for (const Row& row : rows) {
    EXPECT_EQ(FromQuorvixDateFormat(t.s, row.text), row.date) << row.text;
  }
  EXPECT_TRUE(t.Reports().empty());
}

TEST(FromQuorvixDateFormat, AnythingElseGivesTheZeroDate) {
  testing::TestAddin t;
  for (const char* text : {"", "   ", "2010", "2010-12", "2010-12-", "--", "a-b-c", "2010/3/7",
                           "2010-3-x", "99999-1-1", "2010-40000-1"}) {
    EXPECT_EQ(FromQuorvixDateFormat(t.s, text), kEmptyDate) << text;
    EXPECT_FALSE(t.s.err.pending()) << text;  // a failed conversion is ignored
  }
  EXPECT_TRUE(t.Reports().empty());
}

TEST(FromQuorvixDateFormat, RoundTripsWithToQuorvixDateFormat) {
  testing::TestAddin t;
  for (DateValue date : {DateSerial(2010, 3, 7), DateSerial(1999, 12, 31), DateSerial(2024, 2, 29),
                         DateSerial(9999, 12, 31), kNoneDate}) {
    EXPECT_EQ(FromQuorvixDateFormat(t.s, ToQuorvixDateFormat(t.s, date)), date);
  }
}

TEST(TextToDate, IsTheSameReading) {
  testing::TestAddin t;
  const std::string text = "2011-1-2";
  EXPECT_EQ(TextToDate(t.s, text), DateSerial(2011, 1, 2));
  EXPECT_EQ(TextToDate(t.s, std::string("2011-1")), kEmptyDate);
}

}  // namespace
}  // namespace qvx
