#include "reporting/tag_item.h"

#include <string>

#include "core/text.h"
#include "core/variant.h"
#include "reporting/tag_dates.h"
#include "schema/item_schema.h"
#include "settings/my_settings.h"
#include "state/addin_state.h"
#include "support/host_items.h"
#include "support/mail_library.h"

namespace qvx::Actions {
namespace {

// The item's property of that name, creating a text property (a folder field
// too) when there is none; Nothing when the item won't give one.
Object FindOrAddProperty(AddinState& s, const Object& objItem, std::string_view strProperty) {
  Object properties;
  Object property;
  IgnoreFailure(s.err, [&] { properties = objItem.Get("UserProperties").ToObject(); });
  if (properties) {
    IgnoreFailure(s.err, [&] {
      const Variant found = properties.Call("Item", {Variant(strProperty)});
      if (found.IsObject()) property = found.ToObject();
    });
    if (property.IsNothing()) {
      IgnoreFailure(s.err, [&] {
        const Variant added =
            properties.Call("Add", {Variant(strProperty), Variant(host::olText), Variant(true)});
        if (added.IsObject()) property = added.ToObject();
      });
    }
  }
  s.err.Clear();
  return property;
}

// Either category setting covers project and activity alike; only the custom
// fields have a setting of their own.
bool WantsCategory(const cMySettings& settings, std::string_view strProperty) {
  if (IsCustomFieldProperty(strProperty)) return settings.TagCustomFieldsToCategories != 0;
  return settings.TagProjectToCategories != 0 || settings.TagTaskToCategories != 0;
}

}  // namespace

bool IsCustomFieldProperty(std::string_view strProperty) noexcept {
  for (int n = 1; n <= 8; ++n) {
    if (strProperty == schema::FieldValueName(n)) return true;
  }
  return false;
}

bool TagProjectToItem(AddinState& s, const Object& objItem, std::string_view strProperty,
                      std::string_view strValue, bool blnSave) noexcept {
  return TrappedResult<bool>(s, "Actions.TagProjectToItem", [&](Line& line, bool& result) {
    line = 10;
    Object property = FindOrAddProperty(s, objItem, strProperty);
    if (property) {
      line = 20;
      property.Put("Value", Variant(strValue));
      line = 30;
      const std::string upper = UCase(strProperty);
      if (upper == "PROJECTVALUE") {
        if (!strValue.empty()) {
          ApplyProjectStartFinishDateToTaggedItem(s, objItem, strValue);
        }
      } else if (upper == "ACTIVITYVALUE") {
        if (!strValue.empty()) {
          line = 40;
          const std::string project(Trim(
              GetFieldValueFromItem(s, objItem, schema::kProjectValue, VarType::String).ToText()));
          if (!project.empty()) ApplyEndOrDueDateToTaggedItem(s, objItem, project, strValue);
        }
      }
      line = 50;
      const cMySettings& settings = s.main.Settings();
      if (WantsCategory(settings, strProperty) && !IsRecurrenceAppointmentOccurence(s, objItem)) {
        line = 60;
        const std::string old = objItem.Get("Categories").ToText();
        // The new value goes in front; nothing is taken out or tested for.
        const std::string categories =
            old.empty() ? std::string(strValue) : std::string(strValue) + "," + old;
        line = 70;
        Quietly(s.err, [&] { objItem.Put("Categories", Variant(categories)); });
      }
      line = 80;
      if (blnSave) Quietly(s.err, [&] { objItem.Call("Save"); });
    }
    line = 90;
    result = true;
  });
}

}  // namespace qvx::Actions
