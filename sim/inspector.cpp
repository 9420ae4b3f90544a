#include "sim/inspector.h"

#include "sim/collection.h"
#include "sim/item.h"

namespace qvx::sim {

std::string SimInspector::Caption() const {
  std::string kind = "Message";
  if (item_->TypeName() == "AppointmentItem") kind = "Appointment";
  if (item_->TypeName() == "TaskItem") kind = "Task";
  const std::string subject = item_->Subject();
  return (subject.empty() ? std::string("Untitled") : subject) + " - " + kind;
}

std::span<const std::string_view> SimInspector::EventNames() const {
  static constexpr std::array<std::string_view, 3> kEvents{"Activate", "Deactivate", "Close"};
  return kEvents;
}

const MemberTable& SimInspector::Members() const {
  static const MemberTable table = [] {
    MemberTable t = WindowMembers();
    Define<SimInspector>(t)
        .Get("CurrentItem", [](SimInspector& i) { return OrNothing(i.item_); })
        .Method("Close", 1, 1,
                [](SimInspector& i, Args& a) {
                  if (LongArg(a, 0) == 0) i.item_->Save();  // olSave
                  i.Close();
                  return Variant();
                })
        .Get("Class", [](SimInspector&) { return Variant(int32_t{35}); });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
