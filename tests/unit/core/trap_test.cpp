#include "core/trap.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace qvx {
namespace {

struct RecordingSink : FailureSink {
  ErrorState err;
  std::vector<std::tuple<std::string, int32_t, int, std::string>> reports;
  ErrorState& Err() noexcept override { return err; }
  void ReportError(const std::string& description, int32_t number, int line, std::string_view label,
                   bool) noexcept override {
    reports.emplace_back(description, number, line, label);
  }
};

TEST(Trapped, ReportsLabelLineAndEndsTheProcedure) {
  RecordingSink sink;
  bool after = false;
  Trapped(sink, "Main.ReportToDB", [&](Line& line) {
    line = 110;
    line = 120;
    throw Failure(91, "QVX", "Object variable or With block variable not set");
    after = true;
  });
  EXPECT_FALSE(after);
  EXPECT_EQ(sink.err.source, "QVX");
  const int result = TrappedResult<int>(sink, "X.Count", [](Line& line, int& r) {
    line = 10;
    r = 7;
    throw std::runtime_error("boom");
  });
  EXPECT_EQ(result, 7);  // a function returns its result so far
  using Report = std::tuple<std::string, int32_t, int, std::string>;
  EXPECT_EQ(sink.reports, (std::vector<Report>{{"Object variable or With block variable not set",
                                                91, 120, "Main.ReportToDB"},
                                               {"boom", err::kInternalError, 10, "X.Count"}}));
}

TEST(IgnoreFailure, LeavesTheFailurePendingForTheNextStatement) {
  ErrorState err;
  EXPECT_FALSE(IgnoreFailure(err, [] { throw Failure(5, "src", "bad"); }));
  EXPECT_TRUE(err.pending());
  EXPECT_EQ(err.description, "bad");
  EXPECT_EQ(err.source, "src");
  EXPECT_TRUE(IgnoreFailure(err, [] {}));
  EXPECT_TRUE(err.pending());  // a good statement does not clear it, as in the runtime
  Quietly(err, [] { throw Failure(6, "", ""); });
  EXPECT_FALSE(err.pending());
}

}  // namespace
}  // namespace qvx
