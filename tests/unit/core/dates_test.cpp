#include "core/dates.h"

#include <gtest/gtest.h>

#include <tuple>

#include "core/failure.h"

namespace qvx {
namespace {

TEST(DateSerial, RollsOverLikeTheRuntime) {
  struct Row {
    int y, m, d;
    int ey, em, ed;
  };
  const Row rows[] = {
      {2026, 13, 1, 2027, 1, 1},  {2024, 3, 0, 2024, 2, 29}, {2023, 3, 0, 2023, 2, 28},
      {2026, -11, 1, 2025, 1, 1}, {2026, 2, 31, 2026, 3, 3}, {99, 1, 1, 1999, 1, 1},
      {5, 1, 1, 2005, 1, 1},
  };
  for (const Row& r : rows) {
    const DateParts p = DecomposeDate(DateSerial(r.y, r.m, r.d));
    EXPECT_EQ(std::tie(p.year, p.month, p.day), std::tie(r.ey, r.em, r.ed))
        << r.y << "-" << r.m << "-" << r.d;
  }
  EXPECT_DOUBLE_EQ(DateSerial(1899, 12, 30).serial, kEmptyDate.serial);
  EXPECT_DOUBLE_EQ(DateSerial(4501, 1, 1).serial, kNoneDate.serial);
  EXPECT_DOUBLE_EQ(DateSerial(1900, 1, 1).serial, 2.0);
  EXPECT_THROW(DateSerial(10000, 1, 1), Failure);
}

TEST(DateDecompose, NegativeSerialsKeepTheirTimeOfDay) {
  // -1.25 is 29 December 1899, 06:00: the fraction counts forward from midnight.
  const DateParts p = DecomposeDate(DateValue{-1.25});
  EXPECT_EQ(p.day, 29);
  EXPECT_EQ(p.hour, 6);
  EXPECT_DOUBLE_EQ(ComposeDate(p).serial, -1.25);
}

TEST(DateText, WritesTheShortFormsReadsThemBackAndRejectsWhatIsNoDate) {
  const std::pair<DateValue, const char*> rows[] = {
      {ComposeDate({2026, 1, 2, 15, 4, 5}), "1/2/2026 3:04:05 PM"},
      {ComposeDate({2026, 1, 2, 0, 0, 0}), "1/2/2026"},
      {kEmptyDate, "12:00:00 AM"},
      {ComposeDate({1899, 12, 30, 12, 0, 0}), "12:00:00 PM"},
      {kNoneDate, "1/1/4501"},
  };
  for (const auto& [date, text] : rows) {
    EXPECT_EQ(DateToText(date), text);
    DateValue back;
    ASSERT_TRUE(TextToDate(text, back)) << text;
    EXPECT_DOUBLE_EQ(back.serial, date.serial) << text;
  }
  DateValue iso;
  ASSERT_TRUE(TextToDate("2026-03-04 13:14", iso));
  EXPECT_EQ(DateToText(iso), "3/4/2026 1:14:00 PM");
  for (const char* text : {"", "x", "13/1/2026", "2/30/2026", "1/2/2026 25:00", "1/2",
                           "1/2/2026 3:04 XM", "99999/1/1", "1//2026", "\xff\xfe"}) {
    DateValue out;
    EXPECT_FALSE(TextToDate(text, out)) << text;
  }
}

}  // namespace
}  // namespace qvx
