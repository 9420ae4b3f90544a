#include "platform/posix/scripted_ui.h"

namespace qvx::platform {

FormScript& FormScript::Click(std::string_view control) {
  steps_.push_back(FormStep{FormStep::Kind::Click, std::string(control), "Click", {}});
  return *this;
}

FormScript& FormScript::SetText(std::string_view control, std::string_view text) {
  steps_.push_back(FormStep{FormStep::Kind::SetText, std::string(control), std::string(text), {}});
  return *this;
}

FormScript& FormScript::Event(std::string_view control, std::string_view event) {
  steps_.push_back(FormStep{FormStep::Kind::Event, std::string(control), std::string(event), {}});
  return *this;
}

FormScript& FormScript::Close() {
  steps_.push_back(FormStep{FormStep::Kind::Close, {}, {}, {}});
  return *this;
}

FormScript& FormScript::Do(std::function<void(FormModel&)> act) {
  steps_.push_back(FormStep{FormStep::Kind::Custom, {}, {}, std::move(act)});
  return *this;
}

int ScriptedUserInterface::FirstButton(int style) {
  switch (style & 7) {
    case 2:  // Abort, Retry, Ignore
      return 3;
    case 3:  // Yes, No, Cancel
    case 4:  // Yes, No
      return msgbox::kYes;
    case 5:  // Retry, Cancel
      return 4;
    default:  // OK, or OK and Cancel
      return msgbox::kOk;
  }
}

int ScriptedUserInterface::MessageBox(std::string_view text, int style, std::string_view title) {
  int answer = 0;
  if (!answers_.empty()) {
    answer = answers_.front();
    answers_.pop_front();
  } else if (defaultAnswer_) {
    answer = *defaultAnswer_;
  } else {
    answer = FirstButton(style);
  }
  boxes_.push_back(
      MessageBoxRecord{++sequence_, std::string(text), style, std::string(title), answer});
  return answer;
}

void ScriptedUserInterface::Apply(FormModel& form, const FormStep& step) {
  switch (step.kind) {
    case FormStep::Kind::Click:
      form.OnEvent(step.control, "Click");
      break;
    case FormStep::Kind::SetText:
      if (FormControl* c = form.Find(step.control)) c->text = step.value;
      form.OnEvent(step.control, "Change");
      break;
    case FormStep::Kind::Event:
      form.OnEvent(step.control, step.value);
      break;
    case FormStep::Kind::Close:
      form.OnClose();
      break;
    case FormStep::Kind::Custom:
      if (step.custom) step.custom(form);
      break;
  }
}

void ScriptedUserInterface::ShowModal(FormModel& form) {
  // Index, not reference: a handler may show further boxes and forms.
  const size_t index = shownForms_.size();
  FormRecord record;
  record.sequence = ++sequence_;
  record.caption = form.Caption();
  record.height = form.Height();
  record.controls = form.Controls();
  shownForms_.push_back(std::move(record));

  FormScript script;
  if (!forms_.empty()) {
    script = std::move(forms_.front());
    forms_.pop_front();
  }
  for (const FormStep& step : script.steps()) {
    if (form.Unloaded()) break;
    Apply(form, step);
  }
  bool closedByCloseBox = false;
  if (!form.Unloaded()) {
    closedByCloseBox = true;
    form.OnClose();
  }
  FormRecord& done = shownForms_[index];
  done.closedByCloseBox = closedByCloseBox;
  done.stuck = !form.Unloaded();
  done.finalControls = form.Controls();
  done.finalHeight = form.Height();
}

void ScriptedUserInterface::Reset() {
  answers_.clear();
  forms_.clear();
  defaultAnswer_.reset();
  boxes_.clear();
  shownForms_.clear();
  sequence_ = 0;
}

}  // namespace qvx::platform
