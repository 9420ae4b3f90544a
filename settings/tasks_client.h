// cTasksClient: one activity of a project, its name and due date.
//
// Its record in the catalogue text is the encoded name, ",", and the due date
// as "year-month-day" (nothing for the empty date):
//
//   cTasksClient t;
//   t.Activity = "Review: final";
//   t.ToString(s) == "Review_COLON_ final,"
#pragma once

#include <string>

#include "core/dates.h"
#include "core/trap.h"
#include "core/variant.h"

namespace qvx {

class cTasksClient {
 public:
  std::string Activity;
  DateValue DueDate = kEmptyDate;

  // The activity record. No trap of its own: a failure goes to the caller.
  std::string ToString(FailureSink& s) const;
  // The same record, appended to `out`.
  void AppendTo(FailureSink& s, std::string& out) const;
};

// The key of an activity in its project's dictionary: its name.
struct ActivityName {
  const std::string& operator()(const cTasksClient& task) const noexcept { return task.Activity; }
};

}  // namespace qvx
