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

TEST(ScenarioRunner, AFailedExpectationNamesItsLineWhatWasExpectedAndWhatWasSeen) {
  const Outcome o = RunText(
      "registry set DBChoice 0\n"
      "addin start\n"
      "expect launch QuorvixClient 28\n"
      "expect no-launch\n");
  EXPECT_EQ(o.code, 1);
  EXPECT_NE(o.err.find("t.qvx:3: expect launch QuorvixClient 28\n"), std::string::npos) << o.err;
  EXPECT_NE(o.err.find("expected: \"28\""), std::string::npos) << o.err;
  EXPECT_NE(o.err.find("seen:     \"6\""), std::string::npos) << o.err;
  EXPECT_EQ(o.out, "");
}

TEST(ScenarioRunner, StatementsThatDoNotFitTheirVerbAreErrorsWithTheirLine) {
  struct Row {
    const char* text;
    const char* where;
    const char* message;
  };
  const Row rows[] = {
      {"frobnicate now\n", "t.qvx:1:", "unknown statement"},
      {"registry set OnlyAName\n", "t.qvx:1:", "usage: registry set NAME TEXT"},
      {"say a\npost client many\n", "t.qvx:2:", "is not a whole number"},
      {"expect addin sleeping\n", "t.qvx:1:", "is not one of"},
      {"answer msgbox maybe\n", "t.qvx:1:", "is not one of"},
      {"host fail No.Such.Path 5 x\n", "t.qvx:1:", "no such object"},
      {"expect msgbox a b nonsense\n", "t.qvx:1:", "unknown message box style"},
  };
  for (const Row& row : rows) {
    const Outcome o = RunText(row.text);
    EXPECT_EQ(o.code, 2) << row.text;
    EXPECT_NE(o.err.find(row.where), std::string::npos) << row.text << o.err;
    EXPECT_NE(o.err.find(row.message), std::string::npos) << row.text << o.err;
  }
}

TEST(ScenarioRunner, AScriptThatHoldsSaysSo) {
  // A value below a subkey is not one of the settings key itself.
  const Outcome o = RunText(
      "registry set Sub\\Key\\N v\nregistry expect Sub\\Key\\N v\nregistry expect-absent N\n");
  EXPECT_EQ(o.code, 0);
  EXPECT_EQ(o.out, "t.qvx: 3 statements, all held\n");
  EXPECT_EQ(o.err, "");
}

TEST(ScenarioRunner, RegistryExpectationsTellAbsentAndForeignValues) {
  const std::pair<const char*, int> rows[] = {
      {"registry expect Nothing x\n", 1},
      {"registry set-dword N 4\nregistry expect N 4\n", 1},
      {"registry set-dword N 4\nregistry expect-absent N\n", 1},
  };
  for (const auto& [text, code] : rows) EXPECT_EQ(RunText(text).code, code) << text;
}

}  // namespace
}  // namespace qvx::scenario
