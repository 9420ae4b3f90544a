// The Wine test host's checks are GoogleTest's (built for Windows from
// Debian's source package, CMakeLists.txt). A helper that returns a value,
// where ASSERT_* cannot stand, ends the running test with REQUIRE instead:
// GoogleTest records the exception it throws as the test's failure.
//
//   TEST(Registration, WritesTheAddinKey) {
//     ASSERT_EQ(Dll().Register(), S_OK);
//     EXPECT_EQ(ReadDword(key, L"LoadBehavior"), std::optional<DWORD>(3));
//   }
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <stdexcept>
#include <string>

namespace qvx::winetest {

// A remark printed under the running test (findings, not failures).
inline void Note(const std::string& text) {
  std::printf("  note: %s\n", text.c_str());
  std::fflush(stdout);
}

}  // namespace qvx::winetest

#define REQUIRE(condition)                                                            \
  do {                                                                                \
    if (!(condition))                                                                 \
      throw std::runtime_error(std::string(__FILE__ ":") + std::to_string(__LINE__) + \
                               ": required: " #condition);                            \
  } while (false)
