// The item schema: the user properties that carry everything the add-in and
// the companion know about a calendar or task item, with the host's
// OlUserPropertyType of each.
//
// Values are kept on the item exactly as chosen, never escaped. An item is
// reported if and only if "ReportedID", read as text, is not empty; the add-in
// only reads the "Reported*" properties, the companion writes and clears them.
// "Field9Value" and "Field10Value" are created on first write, are left out of
// folder provisioning and do not count as custom fields.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/host_constants.h"

namespace qvx::schema {

// Written by the add-in.
inline constexpr std::string_view kProjectValue = "ProjectValue";
inline constexpr std::string_view kActivityValue = "ActivityValue";
inline constexpr std::string_view kField1Value = "Field1Value";
inline constexpr std::string_view kField2Value = "Field2Value";
inline constexpr std::string_view kField3Value = "Field3Value";
inline constexpr std::string_view kField4Value = "Field4Value";
inline constexpr std::string_view kField5Value = "Field5Value";
inline constexpr std::string_view kField6Value = "Field6Value";
inline constexpr std::string_view kField7Value = "Field7Value";
inline constexpr std::string_view kField8Value = "Field8Value";
inline constexpr std::string_view kField9Value = "Field9Value";
inline constexpr std::string_view kField10Value = "Field10Value";

// Written by the companion.
inline constexpr std::string_view kReportedDate = "ReportedDate";
inline constexpr std::string_view kReportedDateText = "Reported Date";
inline constexpr std::string_view kReportedID = "ReportedID";
inline constexpr std::string_view kReportedIDHidden = "ReportedIDHidden";
inline constexpr std::string_view kReported = "Reported";
inline constexpr std::string_view kReportedBy = "ReportedBy";

struct UserPropertyDef {
  std::string_view name;
  int32_t type;  // OlUserPropertyType
};

// "Field<n>Value" for n in 1..10; "" outside that range.
constexpr std::string_view FieldValueName(int n) {
  constexpr std::array<std::string_view, 10> names{
      kField1Value, kField2Value, kField3Value, kField4Value, kField5Value,
      kField6Value, kField7Value, kField8Value, kField9Value, kField10Value};
  return n >= 1 && n <= 10 ? names[static_cast<size_t>(n - 1)] : std::string_view{};
}

// The typed user properties, in table order. Field9Value and Field10Value are
// not here: they have no declared type and are never provisioned on folders.
inline constexpr std::array<UserPropertyDef, 16> kTypedUserProperties{{
    {kProjectValue, host::olText},
    {kActivityValue, host::olText},
    {kField1Value, host::olText},
    {kField2Value, host::olText},
    {kField3Value, host::olText},
    {kField4Value, host::olText},
    {kField5Value, host::olText},
    {kField6Value, host::olText},
    {kField7Value, host::olText},
    {kField8Value, host::olText},
    {kReportedDate, host::olDateTime},
    {kReportedDateText, host::olText},
    {kReportedID, host::olText},
    {kReportedIDHidden, host::olText},
    {kReported, host::olYesNo},
    {kReportedBy, host::olText},
}};

// Item classes, tested by substring on the upper-cased MessageClass.
inline constexpr std::string_view kClassTask = "IPM.TASK";
inline constexpr std::string_view kClassAppointment = "IPM.APPOINTMENT";
inline constexpr std::string_view kClassAppointmentException =
    "IPM.OLE.CLASS.{00061055-0000-0000-C000-000000000046}";

}  // namespace qvx::schema
