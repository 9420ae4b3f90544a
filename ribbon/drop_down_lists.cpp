#include "ribbon/drop_down_lists.h"

#include "settings/my_settings.h"
#include "state/addin_state.h"

namespace qvx {
namespace {

cSingleList& Required(const std::shared_ptr<cSingleList>& list) {
  if (!list) throw Failure::Runtime(err::kObjectNotSet);
  return *list;
}

}  // namespace

cSingleList& DropDownProjectList(AddinState& s) {
  return Required(s.main.Settings().Projects);
}

cSingleList& CustomFieldList(AddinState& s, int field) {
  cMySettings& settings = s.main.Settings();
  switch (field) {
    case 1:
      return Required(settings.CustomField1List);
    case 2:
      return Required(settings.CustomField2List);
    case 3:
      return Required(settings.CustomField3List);
    case 4:
      return Required(settings.CustomField4List);
    default:
      throw Failure::Runtime(err::kSubscriptOutOfRange);
  }
}

std::shared_ptr<cTasksPerProject> FindActivities(AddinState& s, std::string_view project) noexcept {
  return Quietly(s.err,
                 [&]() -> std::shared_ptr<cTasksPerProject> {
                   const auto* found = s.main.Settings().MyProjectsTasks->dicList.Find(project);
                   return found ? *found : nullptr;
                 })
      .value_or(nullptr);
}

}  // namespace qvx
