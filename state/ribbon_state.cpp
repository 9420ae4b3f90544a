#include "state/ribbon_state.h"

#include <array>
#include <variant>

#include "core/failure.h"

namespace qvx {
namespace {

// A pool's fields by name: a text field or a flag of the pool struct.
template <class Pool>
struct PoolField {
  std::string_view name;
  std::variant<std::string Pool::*, bool Pool::*> member;
};

template <class Pool, size_t N>
void SetByName(const std::array<PoolField<Pool>, N>& fields, Pool& pool, std::string_view name,
               const Variant& value) {
  for (const PoolField<Pool>& field : fields) {
    if (field.name != name) continue;
    if (const auto* text = std::get_if<std::string Pool::*>(&field.member)) {
      pool.*(*text) = value.ToText();
    } else {
      pool.*std::get<bool Pool::*>(field.member) = value.ToBoolean();
    }
    return;
  }
}

template <class Pool, size_t N>
Variant GetByName(const std::array<PoolField<Pool>, N>& fields, const Pool& pool,
                  std::string_view name) {
  for (const PoolField<Pool>& field : fields) {
    if (field.name != name) continue;
    if (const auto* text = std::get_if<std::string Pool::*>(&field.member)) {
      return Variant(pool.*(*text));
    }
    return Variant(pool.*std::get<bool Pool::*>(field.member));
  }
  return Variant();
}

using S = StandardToolbarPool;
constexpr std::array<PoolField<S>, 10> kStandardFields{{
    {"SELECTED_INSPECTOR_PROJECT_VALUE", &S::SELECTED_INSPECTOR_PROJECT_VALUE},
    {"SELECTED_INSPECTOR_ACTIVITY_VALUE", &S::SELECTED_INSPECTOR_ACTIVITY_VALUE},
    {"PROJECT_INSPECTOR_ENABLED", &S::PROJECT_INSPECTOR_ENABLED},
    {"ACTIVITY_INSPECTOR_ENABLED", &S::ACTIVITY_INSPECTOR_ENABLED},
    {"WITHDRAW_BUTTON_INSPECTOR_VISIBLE", &S::WITHDRAW_BUTTON_INSPECTOR_VISIBLE},
    {"REPORT_BUTTON_INSPECTOR_VISIBLE", &S::REPORT_BUTTON_INSPECTOR_VISIBLE},
    {"WITHDRAW_BUTTON_INSPECTOR_CAPTION", &S::WITHDRAW_BUTTON_INSPECTOR_CAPTION},
    {"REPORT_BUTTON_INSPECTOR_CAPTION", &S::REPORT_BUTTON_INSPECTOR_CAPTION},
    {"GROUP_CALENDAR_INSPECTOR_VISIBLE", &S::GROUP_CALENDAR_INSPECTOR_VISIBLE},
    {"GROUP_TASK_INSPECTOR_VISIBLE", &S::GROUP_TASK_INSPECTOR_VISIBLE},
}};

using C = CustomFieldsToolbarPool;
constexpr std::array<PoolField<C>, 12> kCustomFields{{
    {"SELECTED_INSPECTOR_CUSTOM_FIELD1_VALUE", &C::SELECTED_INSPECTOR_CUSTOM_FIELD1_VALUE},
    {"SELECTED_INSPECTOR_CUSTOM_FIELD2_VALUE", &C::SELECTED_INSPECTOR_CUSTOM_FIELD2_VALUE},
    {"SELECTED_INSPECTOR_CUSTOM_FIELD3_VALUE", &C::SELECTED_INSPECTOR_CUSTOM_FIELD3_VALUE},
    {"SELECTED_INSPECTOR_CUSTOM_FIELD4_VALUE", &C::SELECTED_INSPECTOR_CUSTOM_FIELD4_VALUE},
    {"CUSTOM_FIELD1_INSPECTOR_ENABLED", &C::CUSTOM_FIELD1_INSPECTOR_ENABLED},
    {"CUSTOM_FIELD2_INSPECTOR_ENABLED", &C::CUSTOM_FIELD2_INSPECTOR_ENABLED},
    {"CUSTOM_FIELD3_INSPECTOR_ENABLED", &C::CUSTOM_FIELD3_INSPECTOR_ENABLED},
    {"CUSTOM_FIELD4_INSPECTOR_ENABLED", &C::CUSTOM_FIELD4_INSPECTOR_ENABLED},
    {"blnCustomField1VisibleInspector", &C::blnCustomField1VisibleInspector},
    {"blnCustomField2VisibleInspector", &C::blnCustomField2VisibleInspector},
    {"blnCustomField3VisibleInspector", &C::blnCustomField3VisibleInspector},
    {"blnCustomField4VisibleInspector", &C::blnCustomField4VisibleInspector},
}};

// Field 1 to 4 of four like-named members.
template <class T>
T& FieldOf(int field, T& one, T& two, T& three, T& four) {
  switch (field) {
    case 1:
      return one;
    case 2:
      return two;
    case 3:
      return three;
    case 4:
      return four;
    default:
      throw Failure::Runtime(err::kSubscriptOutOfRange);
  }
}

}  // namespace

std::string& ExplorerRibbonValues::SelectedCustomFieldValue(int field) {
  return FieldOf(field, SELECTED_CUSTOM_FIELD1_VALUE, SELECTED_CUSTOM_FIELD2_VALUE,
                 SELECTED_CUSTOM_FIELD3_VALUE, SELECTED_CUSTOM_FIELD4_VALUE);
}
bool& ExplorerRibbonValues::CustomFieldEnabled(int field) {
  return FieldOf(field, CUSTOM_FIELD1_ENABLED, CUSTOM_FIELD2_ENABLED, CUSTOM_FIELD3_ENABLED,
                 CUSTOM_FIELD4_ENABLED);
}
bool& ExplorerRibbonValues::CustomFieldVisible(int field) {
  return FieldOf(field, blnCustomField1Visible, blnCustomField2Visible, blnCustomField3Visible,
                 blnCustomField4Visible);
}

void StandardToolbarPool::SetVariableValue(std::string_view name, const Variant& value) {
  SetByName(kStandardFields, *this, name, value);
}
Variant StandardToolbarPool::GetRibbonValueFromPool(std::string_view name) const {
  return GetByName(kStandardFields, *this, name);
}
void CustomFieldsToolbarPool::SetVariableValue(std::string_view name, const Variant& value) {
  SetByName(kCustomFields, *this, name, value);
}
Variant CustomFieldsToolbarPool::GetRibbonValueFromPool(std::string_view name) const {
  return GetByName(kCustomFields, *this, name);
}

InspectorRibbonPools& RibbonState::Inspector(std::string_view entryId) {
  if (InspectorRibbonPools* pools = inspectors.Find(entryId)) return *pools;
  inspectors.Add(entryId, InspectorRibbonPools{});
  return *inspectors.Find(entryId);
}
const InspectorRibbonPools* RibbonState::FindInspector(std::string_view entryId) const {
  return inspectors.Find(entryId);
}
InspectorRibbonPools* RibbonState::FindInspector(std::string_view entryId) {
  return inspectors.Find(entryId);
}
void RibbonState::DropInspector(std::string_view entryId) {
  inspectors.Remove(entryId);
}

}  // namespace qvx
