#include "settings/settings_lists.h"

#include "core/failure.h"
#include "core/trap.h"
#include "settings/my_settings.h"
#include "settings/single_list.h"
#include "settings/tasks_per_project_list.h"
#include "state/addin_state.h"

namespace qvx {
namespace {

template <class List>
List& Required(const std::shared_ptr<List>& list) {
  if (!list) throw Failure::Runtime(err::kObjectNotSet);
  return *list;
}

}  // namespace

cSingleList& ProjectList(AddinState& s) {
  return Required(s.main.Settings().Projects);
}

CustomSlot CustomSlotOf(const cMySettings& m, int n) {
  switch (n) {
    case 1:
      return {m.CustomList1Name, m.CustomList1Active != 0, m.CustomField1List};
    case 2:
      return {m.CustomList2Name, m.CustomList2Active != 0, m.CustomField2List};
    case 3:
      return {m.CustomList3Name, m.CustomList3Active != 0, m.CustomField3List};
    case 4:
      return {m.CustomList4Name, m.CustomList4Active != 0, m.CustomField4List};
    case 5:
      return {m.CustomField5Name, m.CustomField5Active != 0, nullptr};
    case 6:
      return {m.CustomField6Name, m.CustomField6Active != 0, nullptr};
    case 7:
      return {m.CustomField7Name, m.CustomField7Active != 0, nullptr};
    case 8:
      return {m.CustomField8Name, m.CustomField8Active != 0, nullptr};
    case 9:
      return {m.CustomField9Name, m.CustomField9Active != 0, nullptr};
    default:
      return {m.CustomField10Name, m.CustomField10Active != 0, nullptr};
  }
}

cSingleList& CustomFieldList(AddinState& s, int field) {
  if (field < 1 || field > 4) throw Failure::Runtime(err::kSubscriptOutOfRange);
  return Required(CustomSlotOf(s.main.Settings(), field).list);
}

std::shared_ptr<cTasksPerProject> ProjectActivities(AddinState& s, std::string_view project) {
  const auto* found = Required(s.main.Settings().MyProjectsTasks).dicList.Find(project);
  return found ? *found : nullptr;
}

std::shared_ptr<cTasksPerProject> FindActivities(AddinState& s, std::string_view project) noexcept {
  return Quietly(s.err, [&] { return ProjectActivities(s, project); }).value_or(nullptr);
}

}  // namespace qvx
