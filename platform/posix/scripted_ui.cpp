#include "platform/posix/scripted_ui.h"

namespace qvx::platform {
namespace {

FormStep Step(FormStep::Kind kind, std::string_view control = {}, std::string_view value = {},
              int number = 0) {
  return FormStep{kind, std::string(control), std::string(value), number, {}};
}

// Why the user cannot act on the control, or "" if they can.
std::string Unreachable(FormModel& form, const std::string& name, bool edit) {
  const FormControl* c = form.Find(name);
  if (c == nullptr) return "no control " + name;
  if (!c->visible) return name + " is hidden";
  if (!c->enabled) return name + " is disabled";
  if (edit && c->locked) return name + " is locked";
  return {};
}

std::string PressKey(FormModel& form, const std::string& name, int keyAscii) {
  FormControl& c = form.At(name);
  if (c.kind != kind::kTextBox && c.kind != kind::kCombo) return name + " takes no keys";
  const int key = form.KeyPress(name, keyAscii);
  std::string text = c.text;
  if (key == 8) {
    if (text.empty()) return {};
    text.pop_back();
  } else if (key >= 32 && key <= 255) {
    if (c.maxLength > 0 && text.size() >= static_cast<size_t>(c.maxLength)) return {};
    text.push_back(static_cast<char>(key));
  } else {
    return {};
  }
  form.TextEdited(name, std::move(text));
  return {};
}

std::string ChooseRow(FormModel& form, const std::string& name, const std::string& row) {
  const FormControl& c = form.At(name);
  for (size_t i = 0; i < c.list.size(); ++i) {
    if (c.list[i] == row) {
      form.RowChosen(name, static_cast<int>(i));
      return {};
    }
  }
  return name + " has no row \"" + row + "\"";
}

// Enter or Esc: the button with the flag, if the user can reach it.
std::string PressButton(FormModel& form, FormControl* button, bool escape) {
  if (button == nullptr) {
    if (escape) form.QueryClose(kCloseByControlMenu);
    return {};
  }
  const std::string name = button->name;
  const std::string why = Unreachable(form, name, false);
  if (why.empty()) form.Raise(name, "Click");
  return why;
}

std::string UserAct(FormModel& form, const FormStep& step) {
  using Kind = FormStep::Kind;
  if (step.kind == Kind::Close) {
    form.QueryClose(kCloseByControlMenu);
    return {};
  }
  if (step.kind == Kind::Enter) return PressButton(form, form.DefaultButton(), false);
  if (step.kind == Kind::Escape) return PressButton(form, form.CancelButton(), true);
  const bool edit = step.kind != Kind::Press;
  if (std::string why = Unreachable(form, step.control, edit); !why.empty()) return why;
  switch (step.kind) {
    case Kind::Press:
      form.Raise(step.control, "Click");
      return {};
    case Kind::Type:
      for (const char ch : step.value) {
        if (std::string why = PressKey(form, step.control, static_cast<unsigned char>(ch));
            !why.empty() || form.Unloaded()) {
          return why;
        }
      }
      return {};
    case Kind::Key:
      return PressKey(form, step.control, step.number);
    case Kind::Choose:
      return ChooseRow(form, step.control, step.value);
    case Kind::Tick:
      if (form.At(step.control).kind != kind::kCheck) return step.control + " is no check box";
      form.Ticked(step.control, step.number != 0);
      return {};
    default:
      return {};
  }
}

}  // namespace

FormScript& FormScript::Click(std::string_view control) {
  steps_.push_back(Step(FormStep::Kind::Click, control, "Click"));
  return *this;
}

FormScript& FormScript::SetText(std::string_view control, std::string_view text) {
  steps_.push_back(Step(FormStep::Kind::SetText, control, text));
  return *this;
}

FormScript& FormScript::Event(std::string_view control, std::string_view event) {
  steps_.push_back(Step(FormStep::Kind::Event, control, event));
  return *this;
}

FormScript& FormScript::Do(std::function<void(FormModel&)> act) {
  FormStep step = Step(FormStep::Kind::Custom);
  step.custom = std::move(act);
  steps_.push_back(std::move(step));
  return *this;
}

FormScript& FormScript::Close() {
  steps_.push_back(Step(FormStep::Kind::Close));
  return *this;
}

FormScript& FormScript::Press(std::string_view control) {
  steps_.push_back(Step(FormStep::Kind::Press, control));
  return *this;
}

FormScript& FormScript::Type(std::string_view control, std::string_view text) {
  steps_.push_back(Step(FormStep::Kind::Type, control, text));
  return *this;
}

FormScript& FormScript::Key(std::string_view control, int keyAscii) {
  steps_.push_back(Step(FormStep::Kind::Key, control, {}, keyAscii));
  return *this;
}

FormScript& FormScript::Choose(std::string_view control, std::string_view row) {
  steps_.push_back(Step(FormStep::Kind::Choose, control, row));
  return *this;
}

FormScript& FormScript::Tick(std::string_view control, bool on) {
  steps_.push_back(Step(FormStep::Kind::Tick, control, {}, on ? 1 : 0));
  return *this;
}

FormScript& FormScript::Enter() {
  steps_.push_back(Step(FormStep::Kind::Enter));
  return *this;
}

FormScript& FormScript::Escape() {
  steps_.push_back(Step(FormStep::Kind::Escape));
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

std::string ScriptedUserInterface::Apply(FormModel& form, const FormStep& step) {
  switch (step.kind) {
    case FormStep::Kind::Click:
      form.Raise(step.control, "Click");
      return {};
    case FormStep::Kind::SetText:
      if (form.Find(step.control) == nullptr) return "no control " + step.control;
      form.TextEdited(step.control, step.value);
      return {};
    case FormStep::Kind::Event:
      form.Raise(step.control, step.value);
      return {};
    case FormStep::Kind::Custom:
      if (step.custom) step.custom(form);
      return {};
    default:
      return UserAct(form, step);
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
  std::vector<std::string> refused;
  for (const FormStep& step : script.steps()) {
    if (form.Unloaded()) break;
    if (std::string why = Apply(form, step); !why.empty()) refused.push_back(std::move(why));
  }
  bool closedByCloseBox = false;
  if (!form.Unloaded()) {
    closedByCloseBox = true;
    form.QueryClose(kCloseByControlMenu);
  }
  FormRecord& done = shownForms_[index];
  done.closedByCloseBox = closedByCloseBox;
  done.stuck = !form.Unloaded();
  done.finalControls = form.Controls();
  done.finalHeight = form.Height();
  done.refused = std::move(refused);
}

void ScriptedUserInterface::ForgetShown() {
  boxes_.clear();
  shownForms_.clear();
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
