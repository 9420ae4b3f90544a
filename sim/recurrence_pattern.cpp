#include "sim/recurrence_pattern.h"

#include "core/dates.h"
#include "sim/appointment.h"
#include "sim/collection.h"
#include "sim/errors.h"

namespace qvx::sim {

std::shared_ptr<FakeObject> MakeRecurrencePattern(const std::shared_ptr<SimItem>& series,
                                                  DateValue start) {
  auto pattern = std::make_shared<FakeObject>("RecurrencePattern");
  std::weak_ptr<SimItem> weak = series;
  pattern->Property("RecurrenceType", int32_t{1})
      .Property("Interval", int32_t{1})
      .Property("PatternStartDate", DatePart(start))
      .Property("PatternEndDate", kNoneDate)
      .Property("NoEndDate", true)
      .Property("Occurrences", int32_t{0})
      .Method("Parent", 0, 0, [weak](Args&) { return OrNothing(weak.lock()); })
      .Method("GetOccurrence", 1, 1, [weak](Args& a) {
        auto appointment = std::dynamic_pointer_cast<SimAppointment>(weak.lock());
        if (!appointment) throw InvalidParameter();
        return appointment->Occurrence(a[0].ToDate())->AsVariant();
      });
  return pattern;
}

}  // namespace qvx::sim
