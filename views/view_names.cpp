#include "views/view_names.h"

#include "core/host_constants.h"
#include "core/text.h"
#include "settings/my_settings.h"
#include "settings/single_list.h"
#include "state/addin_state.h"
#include "views/view_catalogue.h"

namespace qvx {

void subLoadViewNames(AddinState& s) {
  auto names = std::make_unique<cSingleList>();
  for (const PreparedView& view : kPreparedViews) {
    const std::string name = GetActualViewName(s, view.name);
    // Titles that make two names alike leave one entry, as the list is unique.
    if (!names->dicList.Exists(name)) names->dicList.Add(name, name);
  }
  s.main.colViewNames = std::move(names);
}

bool IsPreparedViewName(const AddinState& s, std::string_view name) {
  return s.main.colViewNames && s.main.colViewNames->dicList.Exists(name);
}

std::string GetActualViewName(AddinState& s, std::string_view name) {
  return TrappedResult<std::string>(s, "Main.GetActualViewName", [&](Line& line, auto& result) {
    line = 10;
    const cMySettings& settings = s.main.Settings();
    line = 20;
    result = Replace(Replace(name, "[PROJECT]", settings.ProjectTitle), "[ACTIVITY]",
                     settings.ActivityTitle);
  });
}

std::string GetViewResName(AddinState& s, std::string_view name) {
  return TrappedResult<std::string>(s, "Main.GetViewResName", [&](Line& line, auto& result) {
    line = 10;
    const cMySettings& settings = s.main.Settings();
    line = 20;
    result = Replace(Replace(name, settings.ProjectTitle, "PROJECT"), settings.ActivityTitle,
                     "ACTIVITY");
  });
}

int32_t GetViewType(std::string_view name) {
  return name == "Calendar view of Reported Items (Filtered)" ||
                 name == "Calendar view of Unreported Items (Filtered)"
             ? host::olCalendarView
             : host::olTableView;
}

}  // namespace qvx
