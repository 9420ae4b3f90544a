#include "reporting/report_rules.h"

#include <array>

#include "core/failure.h"
#include "core/host_constants.h"
#include "core/text.h"
#include "reporting/default_values.h"
#include "schema/item_schema.h"
#include "settings/my_settings.h"
#include "state/addin_state.h"
#include "support/mail_library.h"

namespace qvx {
namespace {

// One of the twelve mandatory tests.
struct MandatoryTest {
  std::string_view property;             // the user property read
  bool projectOrActivity;                // the wording with " field"
  std::string (*fallback)(AddinState&);  // the default tried, or none
};

constexpr std::array<MandatoryTest, 12> kTests{{
    {schema::kProjectValue, true, GetDefaultProjectValue},
    {schema::kActivityValue, true, GetDefaultActivityValue},
    {schema::kField1Value, false, GetDefaultField1Value},
    {schema::kField2Value, false, GetDefaultField2Value},
    {schema::kField3Value, false, GetDefaultField3Value},
    {schema::kField4Value, false, GetDefaultField4Value},
    {schema::kField5Value, false, nullptr},
    {schema::kField6Value, false, nullptr},
    {schema::kField7Value, false, nullptr},
    {schema::kField8Value, false, nullptr},
    {schema::kField9Value, false, nullptr},
    {schema::kField10Value, false, nullptr},
}};

// Whether test i is taken into account, and the label of its field.
bool Wanted(const cMySettings& c, size_t i, std::string& label) {
  struct Custom {
    int16_t active;
    int16_t mandatory;
    const std::string& name;
  };
  if (i == 0) {
    label = c.ProjectTitle;
    return c.ProjectMandatory != 0;
  }
  if (i == 1) {
    label = c.ActivityTitle;
    return c.ActivityMandatory != 0;
  }
  const std::array<Custom, 10> custom{{
      {c.CustomList1Active, c.CustomList1Mandatory, c.CustomList1Name},
      {c.CustomList2Active, c.CustomList2Mandatory, c.CustomList2Name},
      {c.CustomList3Active, c.CustomList3Mandatory, c.CustomList3Name},
      {c.CustomList4Active, c.CustomList4Mandatory, c.CustomList4Name},
      {c.CustomField5Active, c.CustomField5Mandatory, c.CustomField5Name},
      {c.CustomField6Active, c.CustomField6Mandatory, c.CustomField6Name},
      {c.CustomField7Active, c.CustomField7Mandatory, c.CustomField7Name},
      {c.CustomField8Active, c.CustomField8Mandatory, c.CustomField8Name},
      {c.CustomField9Active, c.CustomField9Mandatory, c.CustomField9Name},
      {c.CustomField10Active, c.CustomField10Mandatory, c.CustomField10Name},
  }};
  const Custom& field = custom[i - 2];
  label = Trim(field.name).empty() ? "Custom Field " + std::to_string(i - 1) : field.name;
  return field.active != 0 && field.mandatory != 0;
}

}  // namespace

bool IsPrivateAllowed(AddinState& s, const Object& objItem) {
  // Both sides are always evaluated: the item is read even when private items pass.
  const bool isPrivate = objItem.Get("Sensitivity").ToLong() == host::olPrivate;
  return !(isPrivate && s.main.Settings().AllowPrivate == 0);
}

bool IsRecurringAllowed(AddinState& s, const Object& objItem) {
  const bool recurring = objItem.Get("IsRecurring").ToBoolean();
  return !(recurring && s.main.Settings().AllowRecurring == 0);
}

std::string AllMandatoryFieldsFilled(AddinState& s, const Object& objItem) noexcept {
  return TrappedResult<std::string>(
      s, "Main.AllMandatoryFieldsFilled", [&](Line& line, std::string& problems) {
        line = 10;
        const cMySettings& settings = s.main.Settings();
        for (size_t i = 0; i < kTests.size(); ++i) {
          const MandatoryTest& test = kTests[i];
          line = 20;
          std::string label;
          if (!Wanted(settings, i, label)) continue;
          line = 30;
          std::string value(
              Trim(GetFieldValueFromItem(s, objItem, test.property, VarType::String).ToText()));
          line = 40;
          if (value.empty() && test.fallback != nullptr) value = Trim(test.fallback(s));
          if (!value.empty()) continue;
          line = 50;
          const std::string problem = "\t- " + label +
                                      (test.projectOrActivity ? " field is mandatory for reporting!"
                                                              : " is mandatory for reporting!");
          problems += problems.empty() ? problem : "\r\n" + problem;
        }
      });
}

}  // namespace qvx
