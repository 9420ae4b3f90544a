// A small test harness for the Wine test host, a Windows console program
// where GoogleTest is not at hand.
//
//   WINE_TEST(Registration, WritesTheAddinKey) {
//     REQUIRE(Dll().Register() == S_OK);  // ends this test when false
//     CHECK_EQ(ReadDword(key, L"LoadBehavior"), std::optional<DWORD>(3));  // records, goes on
//   }
//
// Tests run in the order of their registration within a file, files in link
// order. RunAll takes an optional substring filter of "Suite.Name".
#pragma once

#include <cstdint>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace qvx::winetest {

using TestBody = void (*)();

struct Registrar {
  Registrar(const char* suite, const char* name, TestBody body);
};

// Thrown by REQUIRE to end the running test.
struct TestAbort {};

void RecordFailure(const char* file, int line, const std::string& message);
// A remark printed under the running test (findings, not failures).
void Note(const std::string& text);
int RunAll(std::string_view filter);
void ListAll();

std::string Describe(std::string_view text);
std::string Describe(std::wstring_view text);
template <class T>
requires std::is_integral_v<T> || std::is_enum_v<T> std::string Describe(T value) {
  if constexpr (std::is_same_v<T, bool>) return value ? "true" : "false";
  std::ostringstream out;
  const auto number = static_cast<int64_t>(value);
  out << number;
  // HRESULTs and flags read better in hex.
  if (number < 0 || number > 0xFFFF) {
    out << " (0x" << std::hex << std::uppercase << (static_cast<uint64_t>(number) & 0xFFFFFFFFu)
        << ")";
  }
  return out.str();
}
template <class T>
std::string Describe(const std::optional<T>& value) {
  return value ? Describe(*value) : std::string("(none)");
}
template <class T>
std::string Describe(const std::vector<T>& values) {
  std::string out = "{";
  for (size_t i = 0; i < values.size(); ++i) out += (i ? ", " : "") + Describe(values[i]);
  return out + "}";
}

template <class A, class B>
bool CheckEqual(const char* file, int line, const char* aText, const char* bText, const A& a,
                const B& b) {
  if (a == b) return true;
  RecordFailure(file, line,
                std::string(aText) + " == " + bText + "\n      actual:   " + Describe(a) +
                    "\n      expected: " + Describe(b));
  return false;
}

}  // namespace qvx::winetest

#define WINE_TEST(suite, name)                                                                \
  static void suite##_##name##_Test();                                                        \
  static const ::qvx::winetest::Registrar suite##_##name##_registrar(#suite, #name,           \
                                                                     &suite##_##name##_Test); \
  static void suite##_##name##_Test()

#define CHECK(condition) \
  ((condition) ? true : (::qvx::winetest::RecordFailure(__FILE__, __LINE__, #condition), false))

#define CHECK_EQ(actual, expected) \
  ::qvx::winetest::CheckEqual(__FILE__, __LINE__, #actual, #expected, (actual), (expected))

#define REQUIRE(condition)                                     \
  do {                                                         \
    if (!CHECK(condition)) throw ::qvx::winetest::TestAbort{}; \
  } while (false)

#define REQUIRE_EQ(actual, expected)                                     \
  do {                                                                   \
    if (!CHECK_EQ(actual, expected)) throw ::qvx::winetest::TestAbort{}; \
  } while (false)
