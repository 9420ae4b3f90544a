#include "reporting/fields_form_layout.h"

#include <string>

namespace qvx {
namespace {

namespace kind = platform::kind;
using platform::MakeControl;
using platform::Placed;

constexpr int kLabelLeft = 120;
constexpr int kLabelWidth = 1935;
constexpr int kBoxLeft = 2160;
constexpr int kBoxWidth = 3960;
constexpr int kMarkLeft = 6240;
constexpr int kRowHeight = 420;
constexpr int kFirstRow = 120;

// One row: its label, its box and, where it has one, the mark beside it.
void Row(std::vector<platform::FormControl>& controls, int row, const std::string& label,
         const std::string& caption, platform::FormControl box, const std::string& mark,
         const std::string& tip) {
  const int top = kFirstRow + row * kRowHeight;
  controls.push_back(
      Placed(MakeControl(label, kind::kLabel, caption), kLabelLeft, top + 45, kLabelWidth, 255));
  controls.push_back(Placed(std::move(box), kBoxLeft, top, kBoxWidth, 315));
  if (mark.empty()) return;
  platform::FormControl image = MakeControl(mark, kind::kImage, "");
  image.toolTip = tip;
  controls.push_back(Placed(std::move(image), kMarkLeft, top + 38, 240, 240));
}

}  // namespace

std::vector<platform::FormControl> FieldsFormLayout() {
  constexpr char kListTip[] = "Takes a drop down list";
  std::vector<platform::FormControl> c;
  platform::FormControl reported = MakeControl("txtReportedID", kind::kTextBox, "");
  reported.locked = true;
  Row(c, 0, "lblReportedID", "TimeSheet ID", std::move(reported), "", "");
  Row(c, 1, "lblProject", "Project", MakeControl("cboProject", kind::kCombo, ""), "Image2",
      kListTip);
  Row(c, 2, "lblTask", "Activity", MakeControl("cboTask", kind::kCombo, ""), "Image3", kListTip);
  for (int n = 1; n <= 4; ++n) {
    const std::string N = std::to_string(n);
    Row(c, 2 + n, "lblField" + N, "Custom Field " + N,
        MakeControl("cboField" + N, kind::kCombo, ""), "Image" + std::to_string(n + 3), kListTip);
  }
  for (int n = 5; n <= 10; ++n) {
    const std::string N = std::to_string(n);
    const bool currency = n >= 9;
    Row(c, 2 + n, "lblField" + N, "Custom Field " + N,
        MakeControl("txtField" + N, kind::kTextBox, ""),
        currency ? "Image" + std::to_string(n - 1) : "", currency ? "Currency field" : "");
  }
  const int buttons = kFirstRow + 13 * kRowHeight + 120;
  c.push_back(Placed(MakeControl("cmdSave", kind::kButton, "&Save"), 3465, buttons, 1275, 375));
  platform::FormControl cancel = MakeControl("cmdCancel", kind::kButton, "&Cancel");
  cancel.isCancel = true;
  c.push_back(Placed(std::move(cancel), 4845, buttons, 1275, 375));
  return c;
}

}  // namespace qvx
