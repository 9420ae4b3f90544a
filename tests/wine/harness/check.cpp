#include "harness/check.h"

#include <windows.h>

#include <cstdio>

namespace qvx::winetest {
namespace {

struct TestCase {
  std::string name;  // "Suite.Name"
  TestBody body;
};

struct RunState {
  std::vector<TestCase> tests;
  int failuresInTest = 0;
};

RunState& State() {
  static RunState state;
  return state;
}

}  // namespace

Registrar::Registrar(const char* suite, const char* name, TestBody body) {
  State().tests.push_back({std::string(suite) + "." + name, body});
}

void RecordFailure(const char* file, int line, const std::string& message) {
  ++State().failuresInTest;
  std::printf("  %s:%d: failed: %s\n", file, line, message.c_str());
  std::fflush(stdout);
}

void Note(const std::string& text) {
  std::printf("  note: %s\n", text.c_str());
  std::fflush(stdout);
}

std::string Describe(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

std::string Describe(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  std::string out(static_cast<size_t>(size) * 3, '\0');
  out.resize(static_cast<size_t>(
      WideCharToMultiByte(CP_UTF8, 0, text.data(), size, out.data(), size * 3, nullptr, nullptr)));
  return "L\"" + out + "\"";
}

void ListAll() {
  for (const TestCase& test : State().tests) std::printf("%s\n", test.name.c_str());
}

int RunAll(std::string_view filter) {
  int passed = 0;
  std::vector<std::string> failed;
  for (const TestCase& test : State().tests) {
    if (!filter.empty() && test.name.find(filter) == std::string::npos) continue;
    std::printf("[ RUN      ] %s\n", test.name.c_str());
    std::fflush(stdout);
    State().failuresInTest = 0;
    try {
      test.body();
    } catch (const TestAbort&) {
      // Already recorded.
    } catch (const std::exception& e) {
      RecordFailure(__FILE__, __LINE__, std::string("exception: ") + e.what());
    } catch (...) {
      RecordFailure(__FILE__, __LINE__, "unknown exception");
    }
    if (State().failuresInTest > 0) {
      failed.push_back(test.name);
      std::printf("[  FAILED  ] %s\n", test.name.c_str());
    } else {
      ++passed;
      std::printf("[       OK ] %s\n", test.name.c_str());
    }
    std::fflush(stdout);
  }
  std::printf("\n%d passed, %zu failed\n", passed, failed.size());
  for (const std::string& name : failed) std::printf("  FAILED: %s\n", name.c_str());
  std::fflush(stdout);
  return failed.empty() && passed > 0 ? 0 : 1;
}

}  // namespace qvx::winetest
