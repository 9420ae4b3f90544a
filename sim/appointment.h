// SimAppointment: the host's AppointmentItem.
//
// Duration is kept in step as the host does: putting Start moves End by the
// same amount, putting End changes Duration. A series master (IsRecurring
// True, RecurrenceState 1) hands out occurrences (RecurrenceState 2) whose
// Parent is the series and whose EntryID is the series'; GetRecurrencePattern
// gives a pattern whose Parent is the series. GetRecurrencePattern doesn't
// make an item recurring here.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "sim/fake_object.h"
#include "sim/item.h"

namespace qvx::sim {

class SimAppointment : public SimItem {
 public:
  explicit SimAppointment(ContextPtr context);
  std::string TypeName() const override { return "AppointmentItem"; }

  // Start and End together, Duration to match.
  void SetTimes(DateValue start, DateValue end);
  // Makes this a series master (IsRecurring True, RecurrenceState 1).
  void MakeSeries();
  // The occurrence of this series that starts at `start`, the same object
  // for the same start. Fails for an appointment that isn't a series.
  std::shared_ptr<SimAppointment> Occurrence(DateValue start);
  std::shared_ptr<FakeObject> RecurrencePattern();

 protected:
  const MemberTable& Members() const override;
  void FieldPut(std::string_view field, const Variant& value) override;

 private:
  std::map<double, std::shared_ptr<SimAppointment>> occurrences_;
  std::shared_ptr<FakeObject> pattern_;
};

}  // namespace qvx::sim
