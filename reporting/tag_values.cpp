#include "reporting/tag_values.h"

#include <memory>
#include <string>

#include "core/text.h"
#include "reporting/current_selection.h"
#include "reporting/tag_selection.h"
#include "schema/item_schema.h"
#include "settings/my_settings.h"
#include "settings/tasks_per_project_list.h"
#include "state/addin_state.h"

namespace qvx::Main {
namespace {

// The EntryID of the item in front of the user; "" when there is none.
std::string NoteEntryID(AddinState& s) {
  const Object item = GetCurrentSelectedItem(s, false);
  return item ? item.Get("EntryID").ToText() : std::string();
}

}  // namespace

void TagProjectValueToItem(AddinState& s, std::string_view strValue) noexcept {
  Trapped(s, "Main.TagProjectValueToItem", [&](Line& line) {
    TaggingState& tagging = s.tagging;
    line = 10;
    tagging.blnTaggingInProgress = true;
    line = 20;
    const std::string entryId = NoteEntryID(s);
    line = 30;
    cMySettings& settings = s.main.Settings();
    if (!settings.Projects) throw Failure::Runtime(err::kObjectNotSet);
    const std::string_view project = Trim(strValue);
    if (settings.Projects->dicList.Exists(project)) {
      line = 40;
      // The lists may not have been read yet.
      if (settings.MyProjectsTasks->dicList.Count() == 0) settings.ReadSettings(s);
      line = 50;
      std::shared_ptr<cTasksPerProject> activities;
      if (const auto* found = settings.MyProjectsTasks->dicList.Find(project)) activities = *found;
      line = 60;
      if (activities && !activities->dicList.Exists(s.ribbon.explorer.SELECTED_ACTIVITY_VALUE)) {
        // The chosen activity doesn't belong to the new project.
        Actions::GetCurrentSelectedItem(s, schema::kActivityValue, "", entryId);
        s.ribbon.explorer.SELECTED_ACTIVITY_VALUE.clear();
      }
    }
    line = 70;
    Actions::GetCurrentSelectedItem(s, schema::kProjectValue, strValue, entryId);
    line = 80;
    if (strValue.empty()) {
      Actions::GetCurrentSelectedItem(s, schema::kActivityValue, "", entryId);
      s.ribbon.explorer.SELECTED_ACTIVITY_VALUE.clear();
    }
    line = 90;
    tagging.blnTaggingInProgress = false;
  });
}

void TagTaskValueToItem(AddinState& s, std::string_view strValue) noexcept {
  Trapped(s, "Main.TagTaskValueToItem", [&](Line& line) {
    line = 10;
    const std::string entryId = NoteEntryID(s);
    line = 20;
    if (!entryId.empty())
      Actions::GetCurrentSelectedItem(s, schema::kActivityValue, strValue, entryId);
  });
}

void TagCustomFieldValueToItem(AddinState& s, int16_t intField,
                               std::string_view strValue) noexcept {
  Trapped(s, "Main.TagCustomFieldValueToItem", [&](Line& line) {
    line = 10;
    const std::string entryId = NoteEntryID(s);
    line = 20;
    if (entryId.empty()) return;
    // Only the four list-bound fields are chosen on the ribbon.
    if (intField < 1 || intField > 4) return;
    line = 30;
    Actions::GetCurrentSelectedItem(s, schema::FieldValueName(intField), strValue, entryId);
  });
}

}  // namespace qvx::Main
