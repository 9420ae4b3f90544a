#include "platform/form_model.h"

#include "core/failure.h"
#include "core/text.h"
#include "core/variant.h"
#include "platform/form_control_object.h"

namespace qvx::platform {
namespace {

std::string EventKey(std::string_view control, std::string_view event) {
  std::string key(control);
  key += '.';
  key += event;
  return key;
}

}  // namespace

FormModel::FormModel(std::string caption, int height, std::vector<FormControl> controls)
    : caption_(std::move(caption)),
      height_(height),
      controls_(std::move(controls)),
      self_(std::make_shared<FormModel*>(this)) {}

FormModel::~FormModel() = default;

FormControl* FormModel::Find(std::string_view name) {
  for (FormControl& c : controls_) {
    if (EqualsText(c.name, name)) return &c;
  }
  return nullptr;
}

FormControl* FormModel::DefaultButton() {
  for (FormControl& c : controls_) {
    if (c.kind == kind::kButton && c.isDefault) return &c;
  }
  return nullptr;
}

FormControl* FormModel::CancelButton() {
  for (FormControl& c : controls_) {
    if (c.kind == kind::kButton && c.isCancel) return &c;
  }
  return nullptr;
}

FormControl& FormModel::At(std::string_view name) {
  FormControl* c = Find(name);
  if (c == nullptr) throw Failure::Runtime(err::kNoSuchMember);
  return *c;
}

Object FormModel::Control(std::string_view name) {
  const FormControl& c = At(name);
  return MakeControlObject(self_, c.name);
}

void FormModel::On(std::string_view control, std::string_view event, EventHandler handler) {
  handlers_.push_back(Subscribe(control, event, std::move(handler)));
}

Subscription FormModel::Subscribe(std::string_view control, std::string_view event,
                                  EventHandler handler) {
  return events_.Subscribe(EventKey(control, event), std::move(handler));
}

void FormModel::Raise(std::string_view control, std::string_view event, EventArgs& args) {
  events_.Raise(EventKey(control, event), args);
}

void FormModel::Raise(std::string_view control, std::string_view event) {
  EventArgs none;
  Raise(control, event, none);
}

int FormModel::KeyPress(std::string_view control, int keyAscii) {
  EventArgs args{Variant(static_cast<int32_t>(keyAscii))};
  Raise(control, "KeyPress", args);
  return args.at(0).ToLong();
}

void FormModel::TextEdited(std::string_view control, std::string text) {
  At(control).text = std::move(text);
  Raise(control, "Change");
}

void FormModel::RowChosen(std::string_view control, int row) {
  FormControl& c = At(control);
  if (row < 0 || static_cast<size_t>(row) >= c.list.size()) {
    throw Failure::Runtime(err::kInvalidProcedureCall);
  }
  c.listIndex = row;
  c.text = c.list[static_cast<size_t>(row)];
  if (c.multiSelect) {
    c.selected.resize(c.list.size());
    c.selected[static_cast<size_t>(row)] = !c.selected[static_cast<size_t>(row)];
  }
  Raise(control, "Change");
  Raise(control, "Click");
}

void FormModel::Ticked(std::string_view control, bool value) {
  At(control).value = value;
  Raise(control, "Change");
  Raise(control, "Click");
}

bool FormModel::QueryClose(int closeMode) {
  if (unloaded_) return true;
  EventArgs args{Variant(int16_t{0}), Variant(static_cast<int16_t>(closeMode))};
  Raise(kFormEvents, "QueryClose", args);
  if (args.at(0).ToBoolean()) return false;
  unloaded_ = true;
  return true;
}

}  // namespace qvx::platform
