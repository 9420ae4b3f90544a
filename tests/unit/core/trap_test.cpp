#include "core/trap.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace qvx {
namespace {

struct RecordingSink : FailureSink {
  struct Report {
    std::string description;
    int32_t number;
    int line;
    std::string label;
  };
  ErrorState err;
  std::vector<Report> reports;
  ErrorState& Err() noexcept override { return err; }
  void ReportError(const std::string& description, int32_t number, int line, std::string_view label,
                   bool) noexcept override {
    reports.push_back({description, number, line, std::string(label)});
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
  ASSERT_EQ(sink.reports.size(), 1u);
  EXPECT_EQ(sink.reports[0].label, "Main.ReportToDB");
  EXPECT_EQ(sink.reports[0].line, 120);
  EXPECT_EQ(sink.reports[0].number, 91);
  EXPECT_EQ(sink.err.source, "QVX");
}

TEST(Trapped, FunctionsReturnTheirResultSoFar) {
  RecordingSink sink;
  const int result = TrappedResult<int>(sink, "X.Count", [](Line& line, int& r) {
    line = 10;
    r = 7;
    line = 20;
    throw std::runtime_error("boom");
  });
  EXPECT_EQ(result, 7);
  ASSERT_EQ(sink.reports.size(), 1u);
  EXPECT_EQ(sink.reports[0].number, err::kInternalError);
  EXPECT_EQ(sink.reports[0].description, "boom");
}

TEST(IgnoreFailure, LeavesTheFailurePendingForTheNextStatement) {
  ErrorState err;
  EXPECT_FALSE(IgnoreFailure(err, [] { throw Failure(5, "src", "bad"); }));
  EXPECT_TRUE(err.pending());
  EXPECT_EQ(err.description, "bad");
  EXPECT_TRUE(IgnoreFailure(err, [] {}));
  EXPECT_TRUE(err.pending());  // a good statement does not clear it, as in the runtime
  Quietly(err, [] { throw Failure(6, "", ""); });
  EXPECT_FALSE(err.pending());
}

}  // namespace
}  // namespace qvx
