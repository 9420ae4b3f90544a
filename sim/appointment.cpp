#include "sim/appointment.h"

#include <cmath>

#include "core/dates.h"
#include "sim/errors.h"
#include "sim/recurrence_pattern.h"

namespace qvx::sim {
namespace {

constexpr double kMinutesPerDay = 24.0 * 60.0;

}  // namespace

SimAppointment::SimAppointment(ContextPtr context)
    : SimItem(std::move(context), host::olAppointment, "IPM.Appointment") {
  const DateValue now = this->context()->Now();
  SetField("Location", "");
  SetField("AllDayEvent", false);
  SetField("BusyStatus", int32_t{2});
  SetField("IsRecurring", false);
  SetField("RecurrenceState", host::olApptNotRecurring);
  SetField("Organizer", "");
  SetTimes(now, DateValue{now.serial + 30.0 / kMinutesPerDay});
}

void SimAppointment::SetTimes(DateValue start, DateValue end) {
  SetField("Start", start);
  SetField("End", end);
  SetField("Duration",
           static_cast<int32_t>(std::lround((end.serial - start.serial) * kMinutesPerDay)));
}

void SimAppointment::MakeSeries() {
  SetField("IsRecurring", true);
  SetField("RecurrenceState", host::olApptMaster);
}

std::shared_ptr<SimAppointment> SimAppointment::Occurrence(DateValue start) {
  if (Field("RecurrenceState").ToLong() != host::olApptMaster) throw InvalidParameter();
  auto& slot = occurrences_[start.serial];
  if (!slot) {
    slot = std::make_shared<SimAppointment>(context());
    slot->SetParent(shared_from_this());
    slot->SetField("Subject", Field("Subject"));
    slot->SetField("Categories", Field("Categories"));
    slot->SetField("Sensitivity", Field("Sensitivity"));
    slot->SetField("EntryID", Field("EntryID"));
    slot->SetField("IsRecurring", true);
    slot->SetField("RecurrenceState", host::olApptOccurrence);
    slot->SetField("Saved", true);
    const double length = Field("End").ToDate().serial - Field("Start").ToDate().serial;
    slot->SetTimes(start, DateValue{start.serial + length});
  }
  return slot;
}

std::shared_ptr<FakeObject> SimAppointment::RecurrencePattern() {
  auto series = std::dynamic_pointer_cast<SimAppointment>(Parent());
  if (series) return series->RecurrencePattern();
  if (!pattern_) {
    pattern_ = MakeRecurrencePattern(std::static_pointer_cast<SimItem>(shared_from_this()),
                                     Field("Start").ToDate());
  }
  return pattern_;
}

void SimAppointment::FieldPut(std::string_view field, const Variant& value) {
  const double start = Field("Start").ToDate().serial;
  const double minutes = Field("Duration").ToLong();
  if (field == "start") {
    SetField("End", DateValue{value.ToDate().serial + minutes / kMinutesPerDay});
  } else if (field == "end") {
    SetTimes(DateValue{start}, value.ToDate());
  } else if (field == "duration") {
    SetField("End", DateValue{start + minutes / kMinutesPerDay});
  }
}

const MemberTable& SimAppointment::Members() const {
  static const MemberTable table = [] {
    MemberTable t = CommonMembers();
    DefineField(t, "Start", FieldType::Date, true);
    DefineField(t, "End", FieldType::Date, true);
    DefineField(t, "Duration", FieldType::Long, true);
    DefineField(t, "Location", FieldType::Text, true);
    DefineField(t, "AllDayEvent", FieldType::Bool, true);
    DefineField(t, "BusyStatus", FieldType::Long, true);
    DefineField(t, "IsRecurring", FieldType::Bool, false);
    DefineField(t, "RecurrenceState", FieldType::Long, false);
    DefineField(t, "Organizer", FieldType::Text, false);
    Define<SimAppointment>(t).Method("GetRecurrencePattern", 0, 0, [](SimAppointment& a, Args&) {
      return a.RecurrencePattern()->AsVariant();
    });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
