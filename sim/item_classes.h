// The three item classes of the simulated host, and the item factory.
//
// AppointmentItem keeps Duration in step as Outlook does: putting Start moves
// End by the same amount, putting End changes Duration. TaskItem keeps its
// dates without a time of day and ties PercentComplete 100 to Complete and
// Status. A recurring appointment (IsRecurring True, RecurrenceState 1) hands
// out occurrences (RecurrenceState 2) whose Parent is the series and whose
// EntryID is the series'; GetRecurrencePattern gives a pattern whose Parent is
// the series. GetRecurrencePattern doesn't make an item recurring here.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "sim/fake_object.h"
#include "sim/item.h"

namespace qvx::sim {

// The host's item types (OlItemType) and recurrence states.
inline constexpr int32_t kMailItem = 0;
inline constexpr int32_t kAppointmentItem = 1;
inline constexpr int32_t kTaskItem = 3;
inline constexpr int32_t kNotRecurring = 0;
inline constexpr int32_t kRecurrenceMaster = 1;
inline constexpr int32_t kRecurrenceOccurrence = 2;
inline constexpr int32_t kRecurrenceException = 3;

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

class SimTask : public SimItem {
 public:
  explicit SimTask(ContextPtr context);
  std::string TypeName() const override { return "TaskItem"; }
  std::shared_ptr<FakeObject> RecurrencePattern();

 protected:
  const MemberTable& Members() const override;
  void FieldPut(std::string_view field, const Variant& value) override;

 private:
  std::shared_ptr<FakeObject> pattern_;
};

class SimMail : public SimItem {
 public:
  explicit SimMail(ContextPtr context);
  std::string TypeName() const override { return "MailItem"; }
  // Marks the message sent, as the host's Send does.
  void Send();

 protected:
  const MemberTable& Members() const override;
};

// A new, unsaved item of a host item type (0, 1, 3) or of a message class
// ("IPM.Appointment", "IPM.TASK" ...); InvalidParameter for anything else.
std::shared_ptr<SimItem> MakeItem(const ContextPtr& context, int32_t itemType);
std::shared_ptr<SimItem> MakeItem(const ContextPtr& context, std::string_view messageClass);

}  // namespace qvx::sim
