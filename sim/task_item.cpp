#include "sim/task_item.h"

#include "core/dates.h"
#include "sim/recurrence_pattern.h"

namespace qvx::sim {

SimTask::SimTask(ContextPtr context) : SimItem(std::move(context), host::olTask, "IPM.Task") {
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
    pattern_ = MakeRecurrencePattern(std::static_pointer_cast<SimItem>(shared_from_this()),
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

}  // namespace qvx::sim
