// The runner: what a script's author sees when a statement fails.
#include "apps/qvx-sim/runner.h"

#include <gtest/gtest.h>

#include <sstream>

namespace qvx::scenario {
namespace {

struct Outcome {
  int code = 0;
  std::string out;
  std::string err;
};

Outcome RunText(std::string_view text) {
  VerbTable verbs;
  RegisterAllVerbs(verbs);
  Script script;
  const auto error = ParseScript(text, "t.qvx", script);
  EXPECT_FALSE(error.has_value()) << error->message;
  std::ostringstream out;
  std::ostringstream err;
  const int code = RunScript(script, verbs, out, err);
  return {code, out.str(), err.str()};
}

// A failed expectation exits 1 and names its line, what was expected and
// what was seen; a statement that does not fit its verb exits 2 with its
// line; a script that holds says so on the output.
TEST(ScenarioRunner, WhatAScriptsAuthorSeesOfEachOutcome) {
  struct Row {
    const char* text;
    int code;
    std::vector<const char*> inErr;
    const char* out = "";
  };
  const Row rows[] = {
      {"registry set DBChoice 0\naddin start\nexpect launch QuorvixClient 28\nexpect no-launch\n",
       1,
       {"t.qvx:3: expect launch QuorvixClient 28\n", "expected: \"28\"", "seen:     \"6\""}},
      // Absent values and values of another type.
      {"registry expect Nothing x\n", 1, {}},
      {"registry set-dword N 4\nregistry expect N 4\n", 1, {}},
      {"registry set-dword N 4\nregistry expect-absent N\n", 1, {}},
      {"frobnicate now\n", 2, {"t.qvx:1:", "unknown statement"}},
      {"registry set OnlyAName\n", 2, {"t.qvx:1:", "usage: registry set NAME TEXT"}},
      {"registry set A b\npost client many\n", 2, {"t.qvx:2:", "is not a whole number"}},
      {"expect addin sleeping\n", 2, {"t.qvx:1:", "is not one of"}},
      {"host fail No.Such.Path 5 x\n", 2, {"t.qvx:1:", "no such object"}},
      {"expect msgbox a b nonsense\n", 2, {"t.qvx:1:", "unknown message box style"}},
      // A value below a subkey is not one of the settings key itself.
      {"registry set Sub\\Key\\N v\nregistry expect Sub\\Key\\N v\nregistry expect-absent N\n",
       0,
       {},
       "t.qvx: 3 statements, all held\n"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    const Outcome o = RunText(row.text);
    EXPECT_EQ(o.code, row.code);
    for (const char* part : row.inErr) EXPECT_NE(o.err.find(part), std::string::npos) << o.err;
    if (row.code == 0) {
      EXPECT_EQ(o.err, "");
    }
    EXPECT_EQ(o.out, row.out);
  }
}

}  // namespace
}  // namespace qvx::scenario
