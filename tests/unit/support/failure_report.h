// Checks on the central reporter's text ("At Line: 20\r\nIn Function:
// Main.ReportToDB\r\n..."). A trapped failure is identified by its label; its
// position is the procedure's own numbering, so a test checks only that it
// is a position in tens, and stays true when statements are renumbered.
//
//   EXPECT_TRUE(ReportsTrap(t.Reports(), "Main.ReportToDB"));
//   EXPECT_TRUE(ShownReports(world.ui()).empty());
#pragma once

#include <gtest/gtest.h>

#include <charconv>
#include <string>
#include <string_view>
#include <vector>

#include "platform/posix/scripted_ui.h"

namespace qvx::testing {

// The text of every failure report shown through `ui` so far.
inline std::vector<std::string> ShownReports(const platform::ScriptedUserInterface& ui) {
  std::vector<std::string> reports;
  for (const platform::FormRecord& form : ui.Forms()) {
    for (const platform::FormControl& control : form.controls) {
      if (control.name == "txtReport") reports.push_back(control.text);
    }
  }
  return reports;
}

// Whether `report` is of a failure trapped under `label` at a position in tens.
inline ::testing::AssertionResult ReportIsTrap(std::string_view report, std::string_view label) {
  constexpr std::string_view kAt = "At Line: ";
  const std::string where = "\r\nIn Function: " + std::string(label) + "\r\n";
  const size_t end = report.find("\r\n");
  if (report.substr(0, kAt.size()) != kAt || end == std::string_view::npos ||
      report.substr(end, where.size()) != where) {
    return ::testing::AssertionFailure() << "not a report of " << label << ": " << report;
  }
  int position = 0;
  const std::string_view digits = report.substr(kAt.size(), end - kAt.size());
  const auto [last, rc] = std::from_chars(digits.data(), digits.data() + digits.size(), position);
  if (rc != std::errc() || last != digits.data() + digits.size() || position <= 0 ||
      position % 10 != 0) {
    return ::testing::AssertionFailure() << label << " at " << digits << ", not a position in tens";
  }
  return ::testing::AssertionSuccess();
}

// Whether one of `reports` is of a failure trapped under `label`.
inline ::testing::AssertionResult ReportsTrap(const std::vector<std::string>& reports,
                                              std::string_view label) {
  ::testing::AssertionResult last = ::testing::AssertionFailure() << "no report of " << label;
  for (const std::string& report : reports) {
    last = ReportIsTrap(report, label);
    if (last) return last;
  }
  return last;
}

}  // namespace qvx::testing
