// Tests in another user locale. Wine takes the user's default locale from the
// Unix locale of the process (LC_ALL), once, when the process starts; so the
// test host runs such a test in a second test host, started as a Unix
// process under that locale with the test's own name as its filter.
//
//   TEST(UserLocale, German) {
//     InUserLocale("de_DE.UTF-8", 0x0407, "UserLocale.German", [] {
//       EXPECT_EQ(DateToText(DateSerial(2026, 3, 9)), "09.03.2026");
//     });
//   }
//
// In the first host InUserLocale starts the second and passes when that run
// passes; in the second it REQUIREs the locale and runs the checks. The two
// meet through named events, since Wine gives no handle to a Unix process.
// The Unix locale must be installed (tools/install-deps.sh windows).
#pragma once

#include <windows.h>

namespace qvx::winetest {

void InUserLocale(const char* unixLocale, LCID expected, const char* testName, void (*checks)());
// Tells the first host how the second host's run ended; main calls it last.
void SignalUserLocaleRun(int result);

}  // namespace qvx::winetest
