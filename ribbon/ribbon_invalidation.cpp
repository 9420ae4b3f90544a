#include "ribbon/ribbon_invalidation.h"

#include <array>

#include "state/addin_state.h"

namespace qvx {

void subInvalidateRibbon(AddinState& s) noexcept {
  if (s.main.objRibbonUI.IsNothing()) return;
  Quietly(s.err, [&] { s.main.objRibbonUI.Call("Invalidate"); });
}

void subInvalidateControl(AddinState& s, std::string_view controlId) noexcept {
  if (s.main.objRibbonUI.IsNothing()) return;
  Quietly(s.err, [&] { s.main.objRibbonUI.Call("InvalidateControl", {Variant(controlId)}); });
}

namespace {

constexpr std::array<std::string_view, 5> kActivityControls{"cboTaskCal", "cboTaskCalTable",
                                                            "cboTaskTask", "cboTaskAppointment",
                                                            "cboTaskRecurringAppointment"};

constexpr std::array<std::string_view, 24> kCustomFieldControls{
    "cboField1",     "cboField1Cal",         "cboField1CalTable",
    "cboField1Task", "cboField1Appointment", "cboField1RecurringAppointment",
    "cboField2",     "cboField2Cal",         "cboField2CalTable",
    "cboField2Task", "cboField2Appointment", "cboField2RecurringAppointment",
    "cboField3",     "cboField3Cal",         "cboField3CalTable",
    "cboField3Task", "cboField3Appointment", "cboField3RecurringAppointment",
    "cboField4",     "cboField4Cal",         "cboField4CalTable",
    "cboField4Task", "cboField4Appointment", "cboField4RecurringAppointment"};

}  // namespace

void subInvalidateInspectorActivity(AddinState& s) noexcept {
  subInvalidateControl(s, "cboTask");
}

void subInvalidateActivityControls(AddinState& s) noexcept {
  for (const std::string_view id : kActivityControls) subInvalidateControl(s, id);
}

void subInvalidateCustomFieldControls(AddinState& s) noexcept {
  for (const std::string_view id : kCustomFieldControls) subInvalidateControl(s, id);
}

}  // namespace qvx
