// The user's locale decides the text of dates and numbers, as it did for the
// legacy runtime: the companion writes LastReported in it, and parses the
// start of a recurring occurrence in it. Each test runs in a second test host
// under its locale (harness/user_locale.h), with the add-in's logic in that
// process (harness/local_addin.h).
#include "platform/win32/win32_api.h"

#include <cmath>
#include <string>
#include <vector>

#include "core/dates.h"
#include "core/failure.h"
#include "harness/check.h"
#include "harness/companion_journal.h"
#include "harness/local_addin.h"
#include "harness/registry_keys.h"
#include "harness/ui_watcher.h"
#include "harness/user_locale.h"
#include "reporting/report_items.h"
#include "settings/my_settings.h"
#include "sim/appointment.h"

namespace qvx::winetest {
namespace {

struct LocaleCase {
  const wchar_t* lastReported;  // as the companion writes 2 March 2026 09:05:07
  const wchar_t* unreadable;    // a date this locale cannot read
  std::string occurrence;       // 9 March 2026 14:30 as the companion must get it
};

// oleaut32 and the runtime's composition may differ in the last bits.
bool SameSecond(DateValue a, DateValue b) {
  return std::llround(a.serial * 86400.0) == std::llround(b.serial * 86400.0);
}

int32_t FailureNumber(void (*convert)()) {
  try {
    convert();
  } catch (const Failure& f) {
    return f.number();
  }
  return 0;
}

void CheckLocale(const LocaleCase& c) {
  WriteSettings({{L"LastReported", c.lastReported}});
  EXPECT_TRUE(
      SameSecond(LocalAddin().s.main.Settings().LastReported, ComposeDate({2026, 3, 2, 9, 5, 7})));
  {
    // Text that is no date here leaves the value as it was, and nobody is told.
    WriteSettings({{L"LastReported", c.unreadable}});
    LocalAddin local;
    EXPECT_TRUE(local.s.main.Settings().LastReported == kEmptyDate);
    EXPECT_TRUE(local.failures->empty());
  }

  WriteSettings({{L"AskForConfirmationBeforeReporting", L"0"}});
  LocalAddin local;
  auto series = local.host.AddRecurringAppointment("Weekly", ComposeDate({2026, 3, 2, 14, 30, 0}),
                                                   ComposeDate({2026, 3, 2, 15, 0, 0}),
                                                   local.host.Calendar());
  auto occurrence = local.host.Occurrence(*series, ComposeDate({2026, 3, 9, 14, 30, 0}));
  ClearJournal();
  ReportToDB(local.s, "STORE", occurrence->AsObject());
  EXPECT_EQ(FinishedLaunches(),
            std::vector<std::string>{"0|STORE|" + occurrence->EntryId() + ";" + c.occurrence});
  EXPECT_TRUE(local.failures->empty());
  EXPECT_TRUE(Watcher().Take().empty());
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
    CheckLocale({L"02.03.2026 09:05:07", L"31.02.2026 09:05:07", "09.03.2026 14:30:00"});
    // Numbers: a decimal comma; text the locale cannot read is a type mismatch.
    EXPECT_TRUE(Variant("1,5").ToDouble() == 1.5);
    EXPECT_EQ(Variant(2.5).ToText(), std::string("2,5"));
    EXPECT_TRUE(Variant("1,5").IsNumeric());
    EXPECT_TRUE(!Variant("1,5x").IsNumeric());
    EXPECT_EQ(FailureNumber([] { Variant("1,5x").ToDouble(); }), err::kTypeMismatch);
    EXPECT_EQ(Variant("&HFFFF").ToInteger(), int16_t{-1});
  });
}

TEST(UserLocale, EnglishUnitedKingdom) {
  InUserLocale("en_GB.UTF-8", 0x0809, "UserLocale.EnglishUnitedKingdom", [] {
    CheckLocale({L"02/03/2026 09:05:07", L"31/02/2026 09:05:07", "09/03/2026 14:30:00"});
    EXPECT_TRUE(Variant("02/03/2026").IsDate());
    EXPECT_TRUE(!Variant("31/02/2026").IsDate());
    EXPECT_EQ(Variant(2.5).ToText(), std::string("2.5"));
  });
}

}  // namespace qvx::winetest
