#include "sim/item_classes.h"

#include <cmath>

#include "core/dates.h"
#include "core/text.h"
#include "sim/collection.h"
#include "sim/errors.h"

namespace qvx::sim {
namespace {

constexpr double kMinutesPerDay = 24.0 * 60.0;

std::shared_ptr<FakeObject> MakePattern(const std::shared_ptr<SimItem>& series, DateValue start) {
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

}  // namespace

// ---- AppointmentItem ----

SimAppointment::SimAppointment(ContextPtr context)
    : SimItem(std::move(context), kClassAppointment, "IPM.Appointment") {
  const DateValue now = this->context()->Now();
  SetField("Location", "");
  SetField("AllDayEvent", false);
  SetField("BusyStatus", int32_t{2});
  SetField("IsRecurring", false);
  SetField("RecurrenceState", kNotRecurring);
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
  SetField("RecurrenceState", kRecurrenceMaster);
}

std::shared_ptr<SimAppointment> SimAppointment::Occurrence(DateValue start) {
  if (Field("RecurrenceState").ToLong() != kRecurrenceMaster) throw InvalidParameter();
  auto& slot = occurrences_[start.serial];
  if (!slot) {
    slot = std::make_shared<SimAppointment>(context());
    slot->SetParent(shared_from_this());
    slot->SetField("Subject", Field("Subject"));
    slot->SetField("Categories", Field("Categories"));
    slot->SetField("Sensitivity", Field("Sensitivity"));
    slot->SetField("EntryID", Field("EntryID"));
    slot->SetField("IsRecurring", true);
    slot->SetField("RecurrenceState", kRecurrenceOccurrence);
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
    pattern_ =
        MakePattern(std::static_pointer_cast<SimItem>(shared_from_this()), Field("Start").ToDate());
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

// ---- TaskItem ----

SimTask::SimTask(ContextPtr context) : SimItem(std::move(context), kClassTask, "IPM.Task") {
  SetField("StartDate", kNoneDate);
  SetField("DueDate", kNoneDate);
  SetField("DateCompleted", kNoneDate);
  SetField("PercentComplete", int32_t{0});
  SetField("Status", int32_t{0});
  SetField("Complete", false);
  SetField("IsRecurring", false);
  SetField("Owner", "");
  SetField("TotalWork", int32_t{0});
  SetField("ActualWork", int32_t{0});
}

std::shared_ptr<FakeObject> SimTask::RecurrencePattern() {
  if (!pattern_) {
    pattern_ = MakePattern(std::static_pointer_cast<SimItem>(shared_from_this()),
                           Field("StartDate").ToDate());
  }
  return pattern_;
}

void SimTask::FieldPut(std::string_view field, const Variant& value) {
  if (field == "startdate" || field == "duedate" || field == "datecompleted") {
    SetField(field, DatePart(value.ToDate()));  // task dates carry no time of day
    return;
  }
  bool done = false;
  if (field == "percentcomplete") {
    done = value.ToLong() >= 100;
  } else if (field == "complete") {
    done = value.ToBoolean();
    if (done) SetField("PercentComplete", int32_t{100});
    if (!done && Field("PercentComplete").ToLong() >= 100) SetField("PercentComplete", int32_t{0});
  } else {
    return;
  }
  const int32_t percent = Field("PercentComplete").ToLong();
  SetField("Complete", done);
  SetField("Status", int32_t{done ? 2 : (percent > 0 ? 1 : 0)});
  SetField("DateCompleted", done ? DatePart(context()->Now()) : kNoneDate);
}

const MemberTable& SimTask::Members() const {
  static const MemberTable table = [] {
    MemberTable t = CommonMembers();
    DefineField(t, "StartDate", FieldType::Date, true);
    DefineField(t, "DueDate", FieldType::Date, true);
    DefineField(t, "DateCompleted", FieldType::Date, true);
    DefineField(t, "PercentComplete", FieldType::Long, true);
    DefineField(t, "Status", FieldType::Long, true);
    DefineField(t, "Complete", FieldType::Bool, true);
    DefineField(t, "Owner", FieldType::Text, true);
    DefineField(t, "TotalWork", FieldType::Long, true);
    DefineField(t, "ActualWork", FieldType::Long, true);
    DefineField(t, "IsRecurring", FieldType::Bool, false);
    Define<SimTask>(t)
        .Method("GetRecurrencePattern", 0, 0,
                [](SimTask& x, Args&) { return x.RecurrencePattern()->AsVariant(); })
        .Method("MarkComplete", 0, 0, [](SimTask& x, Args&) {
          x.SetField("Complete", true);
          x.SetField("Saved", false);
          x.FieldPut("complete", Variant(true));
          return Variant();
        });
    return t;
  }();
  return table;
}

// ---- MailItem ----

SimMail::SimMail(ContextPtr context) : SimItem(std::move(context), kClassMail, "IPM.Note") {
  SetField("To", "");
  SetField("CC", "");
  SetField("BCC", "");
  SetField("SenderName", "");
  SetField("ReceivedTime", this->context()->Now());
  SetField("SentOn", kNoneDate);
  SetField("Sent", false);
  SetField("UnRead", false);
}

void SimMail::Send() {
  SetField("Sent", true);
  SetField("SentOn", context()->Now());
  Save();
}

const MemberTable& SimMail::Members() const {
  static const MemberTable table = [] {
    MemberTable t = CommonMembers();
    DefineField(t, "To", FieldType::Text, true);
    DefineField(t, "CC", FieldType::Text, true);
    DefineField(t, "BCC", FieldType::Text, true);
    DefineField(t, "UnRead", FieldType::Bool, true);
    DefineField(t, "SenderName", FieldType::Text, false);
    DefineField(t, "ReceivedTime", FieldType::Date, false);
    DefineField(t, "SentOn", FieldType::Date, false);
    DefineField(t, "Sent", FieldType::Bool, false);
    Define<SimMail>(t).Method("Send", 0, 0, [](SimMail& m, Args&) {
      m.Send();
      return Variant();
    });
    return t;
  }();
  return table;
}

// ---- factory ----

std::shared_ptr<SimItem> MakeItem(const ContextPtr& context, int32_t itemType) {
  switch (itemType) {
    case kMailItem:
      return std::make_shared<SimMail>(context);
    case kAppointmentItem:
      return std::make_shared<SimAppointment>(context);
    case kTaskItem:
      return std::make_shared<SimTask>(context);
    default:
      throw InvalidParameter();
  }
}

std::shared_ptr<SimItem> MakeItem(const ContextPtr& context, std::string_view messageClass) {
  const std::string upper = UCase(messageClass);
  std::shared_ptr<SimItem> item;
  if (upper.rfind("IPM.APPOINTMENT", 0) == 0) {
    item = MakeItem(context, kAppointmentItem);
  } else if (upper.rfind("IPM.TASK", 0) == 0) {
    item = MakeItem(context, kTaskItem);
  } else if (upper.rfind("IPM.NOTE", 0) == 0) {
    item = MakeItem(context, kMailItem);
  } else {
    throw InvalidParameter();
  }
  // A standard class keeps the host's spelling; a custom form class stays as given.
  if (!EqualsText(messageClass, item->MessageClass())) {
    item->SetField("MessageClass", std::string(messageClass));
  }
  return item;
}

}  // namespace qvx::sim
