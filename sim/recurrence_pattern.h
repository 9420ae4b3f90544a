// The RecurrencePattern that GetRecurrencePattern gives: stored pattern
// fields, Parent (the series) and GetOccurrence(start) for an appointment.
#pragma once

#include <memory>

#include "sim/fake_object.h"

namespace qvx::sim {

class SimItem;

std::shared_ptr<FakeObject> MakeRecurrencePattern(const std::shared_ptr<SimItem>& series,
                                                  DateValue start);

}  // namespace qvx::sim
