#include "harness/check.h"

#include <windows.h>

#include <cstdio>
#include <vector>

namespace qvx::winetest {
namespace {

struct TestCase {
  const char* suite;
  const char* name;
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

std::string FullName(const TestCase& test) {
  return std::string(test.suite) + "." + test.name;
}

}  // namespace

Registrar::Registrar(const char* suite, const char* name, TestBody body) {
  State().tests.push_back({suite, name, body});
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
  if (text.empty()) return "\"\"";
  const int n = WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr,
                                    0, nullptr, nullptr);
  std::string out(static_cast<size_t>(n), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), out.data(), n,
                      nullptr, nullptr);
  return "L\"" + out + "\"";
}

void ListAll() {
  for (const TestCase& test : State().tests) std::printf("%s\n", FullName(test).c_str());
}

int RunAll(std::string_view filter) {
  int passed = 0;
  int skipped = 0;
  std::vector<std::string> failed;
  for (const TestCase& test : State().tests) {
    const std::string name = FullName(test);
    if (!filter.empty() && name.find(filter) == std::string::npos) continue;
    std::printf("[ RUN      ] %s\n", name.c_str());
    std::fflush(stdout);
    State().failuresInTest = 0;
    const DWORD started = GetTickCount();
    std::string skipReason;
    bool skippedHere = false;
    try {
      test.body();
    } catch (const TestAbort&) {
      // Already recorded.
    } catch (const TestSkip& skip) {
      skippedHere = true;
      skipReason = skip.reason;
    } catch (const std::exception& e) {
      RecordFailure(__FILE__, __LINE__, std::string("exception: ") + e.what());
    } catch (...) {
      RecordFailure(__FILE__, __LINE__, "unknown exception");
    }
    const DWORD ms = GetTickCount() - started;
    if (State().failuresInTest > 0) {
      failed.push_back(name);
      std::printf("[  FAILED  ] %s (%lu ms)\n", name.c_str(), static_cast<unsigned long>(ms));
    } else if (skippedHere) {
      ++skipped;
      std::printf("[  SKIPPED ] %s: %s\n", name.c_str(), skipReason.c_str());
    } else {
      ++passed;
      std::printf("[       OK ] %s (%lu ms)\n", name.c_str(), static_cast<unsigned long>(ms));
    }
    std::fflush(stdout);
  }
  std::printf("\n%d passed, %d skipped, %zu failed\n", passed, skipped, failed.size());
  for (const std::string& name : failed) std::printf("  FAILED: %s\n", name.c_str());
  std::fflush(stdout);
  return failed.empty() && passed + skipped > 0 ? 0 : 1;
}

}  // namespace qvx::winetest
