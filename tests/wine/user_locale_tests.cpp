// The user's locale decides the text of dates and numbers, as it did for the
// legacy runtime: the companion writes LastReported in it, and parses the
// start of a recurring occurrence in it. Each test runs in a second test host
// under its locale (harness/user_locale.h). Where the add-in reads and writes
// these texts is the portable logic's, proven by the native tests.
#include "platform/win32/win32_api.h"

#include <cmath>
#include <string>

#include "core/dates.h"
#include "core/failure.h"
#include "core/locale_text.h"
#include "harness/check.h"
#include "harness/user_locale.h"

namespace qvx::winetest {
namespace {

struct LocaleCase {
  const char* lastReported;  // as the companion writes 2 March 2026 09:05:07
  const char* unreadable;    // a date this locale cannot read
  const char* occurrence;    // 9 March 2026 14:30 as the companion must get it
  const char* half;          // 2.5 as text
};

int32_t FailureNumber(void (*convert)()) {
  try {
    convert();
  } catch (const Failure& f) {
    return f.number();
  }
  return 0;
}

void CheckLocale(const LocaleCase& c) {
  DateValue read;
  ASSERT_TRUE(TextToDate(c.lastReported, read));
  // oleaut32 and the runtime's composition may differ in the last bits.
  EXPECT_EQ(std::llround(read.serial * 86400.0),
            std::llround(ComposeDate({2026, 3, 2, 9, 5, 7}).serial * 86400.0));
  EXPECT_TRUE(!TextToDate(c.unreadable, read));
  EXPECT_TRUE(!Variant(c.unreadable).IsDate());
  EXPECT_EQ(DateToText(ComposeDate({2026, 3, 9, 14, 30, 0})), std::string(c.occurrence));
  EXPECT_EQ(Variant(2.5).ToText(), std::string(c.half));
  EXPECT_EQ(Variant("&HFFFF").ToInteger(), int16_t{-1});
}

}  // namespace

TEST(UserLocale, German) {
  InUserLocale("de_DE.UTF-8", 0x0407, "UserLocale.German", [] {
    // Windows writes German dates with two-digit days and months; Wine's
    // locale data does not, so the user's format says it here, for this run.
    wchar_t before[80] = {};
    ASSERT_TRUE(GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, before, 80) > 0);
    ASSERT_TRUE(SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, L"dd.MM.yyyy"));
    struct Restore {
      const wchar_t* format;
      ~Restore() { SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, format); }
    } restore{before};
    CheckLocale({"02.03.2026 09:05:07", "31.02.2026 09:05:07", "09.03.2026 14:30:00", "2,5"});
    // Numbers: a decimal comma; text the locale cannot read is a type mismatch.
    EXPECT_TRUE(Variant("1,5").IsNumeric() && Variant("1,5").ToDouble() == 1.5);
    EXPECT_TRUE(!Variant("1,5x").IsNumeric());
    EXPECT_EQ(FailureNumber([] { Variant("1,5x").ToDouble(); }), err::kTypeMismatch);
  });
}

TEST(UserLocale, EnglishUnitedKingdom) {
  InUserLocale("en_GB.UTF-8", 0x0809, "UserLocale.EnglishUnitedKingdom", [] {
    CheckLocale({"02/03/2026 09:05:07", "31/02/2026 09:05:07", "09/03/2026 14:30:00", "2.5"});
  });
}

}  // namespace qvx::winetest
