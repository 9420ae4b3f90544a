// ScriptedUserInterface: the POSIX user interface. Nothing is drawn: every
// message box and every modal form is recorded, and answered from a script,
// so that tests and scenarios can drive the dialogs and assert what was shown.
//
//   ScriptedUserInterface ui;
//   ui.QueueAnswer(msgbox::kNo);                        // next box answers No
//   ui.QueueForm(FormScript().SetText("txtReport", "edited").Click("cmdOpenEmail"));
//   ui.QueueForm(FormScript().Type("txtField9", "12a").Choose("cboProject", "Alpha").Enter());
//   ... run the logic ...
//   EXPECT_EQ(ui.MessageBoxes().at(0).text, "...");
//
// Message boxes take the next queued answer; with none queued they take the
// default answer (SetDefaultAnswer), or else OK for an OK-only box and the
// first button for the others. Forms take the next queued script; with none
// queued, or when the script is done and the form is still loaded, the form is
// closed by its close box (QueryClose). ShowModal always returns: a form that
// stays loaded even then is recorded as `stuck` and left.
//
// Two sorts of steps: Click, SetText and Event reach the model directly,
// whatever the control's state (a hidden button is clicked all the same);
// the user's acts (Press, Type, Key, Choose, Tick, Enter, Escape, Close) do
// only what a user at the screen can: a hidden or disabled control takes no
// act, a locked one no edit, and Type and Key go through KeyPress. An act
// that cannot be done is skipped and recorded in the form's `refused`.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/form_model.h"
#include "platform/user_interface.h"

namespace qvx::platform {

struct MessageBoxRecord {
  size_t sequence = 0;  // order among all boxes and forms shown
  std::string text;
  int style = 0;
  std::string title;
  int answer = 0;
};

// One scripted act of the user on a form.
struct FormStep {
  enum class Kind {
    Click,
    SetText,
    Event,
    Close,
    Custom,
    Press,
    Type,
    Key,
    Choose,
    Tick,
    Enter,
    Escape
  };
  Kind kind = Kind::Click;
  std::string control;
  std::string value;  // the text of SetText, Type, Choose; the event of Event
  int number = 0;     // the key of Key; 1 or 0 for Tick
  std::function<void(FormModel&)> custom;
};

// The acts on one form, in order. Steps after the form unloads are skipped.
class FormScript {
 public:
  // Raises the control's "Click".
  FormScript& Click(std::string_view control);
  // Sets a text box's contents, then raises its "Change".
  FormScript& SetText(std::string_view control, std::string_view text);
  // Raises any event of a control.
  FormScript& Event(std::string_view control, std::string_view event);
  // Anything else, done on the model directly.
  FormScript& Do(std::function<void(FormModel&)> act);

  // The user's acts.
  // Closes the form by its close box.
  FormScript& Close();
  // Clicks a visible, enabled control.
  FormScript& Press(std::string_view control);
  // Types the text into a text or combo box, key by key (see Key).
  FormScript& Type(std::string_view control, std::string_view text);
  // Presses one key in a text or combo box: KeyPress, then, unless the
  // handler swallowed it, a printable key is appended (up to MaxLength) and
  // backspace (8) takes the last character away, each raising Change.
  FormScript& Key(std::string_view control, int keyAscii);
  // Chooses the row with this text in a combo or list box: Change, Click.
  FormScript& Choose(std::string_view control, std::string_view row);
  // Ticks or clears a check box: Change, Click.
  FormScript& Tick(std::string_view control, bool on);
  // Enter: clicks the default button. Escape: clicks the cancel button, or
  // closes as the close box does when the form has none.
  FormScript& Enter();
  FormScript& Escape();
  const std::vector<FormStep>& steps() const { return steps_; }

 private:
  std::vector<FormStep> steps_;
};

struct FormRecord {
  size_t sequence = 0;
  std::string caption;
  int height = 0;                          // when shown
  std::vector<FormControl> controls;       // snapshot when shown
  std::vector<FormControl> finalControls;  // snapshot when ShowModal returned
  int finalHeight = 0;
  bool closedByCloseBox = false;     // no step unloaded it; QueryClose was used
  bool stuck = false;                // still loaded after QueryClose
  std::vector<std::string> refused;  // the user's acts that could not be done, and why
};

class ScriptedUserInterface : public UserInterface {
 public:
  int MessageBox(std::string_view text, int style, std::string_view title) override;
  void ShowModal(FormModel& form) override;

  void QueueAnswer(int answer) { answers_.push_back(answer); }
  void QueueForm(FormScript script) { forms_.push_back(std::move(script)); }
  // The script queued last and not yet used, to add steps to; null if none.
  FormScript* LastQueuedForm() { return forms_.empty() ? nullptr : &forms_.back(); }
  // The answer when no answer is queued; nullopt restores the button rule.
  void SetDefaultAnswer(std::optional<int> answer) { defaultAnswer_ = answer; }

  const std::vector<MessageBoxRecord>& MessageBoxes() const { return boxes_; }
  const std::vector<FormRecord>& Forms() const { return shownForms_; }
  size_t PendingAnswers() const { return answers_.size(); }
  size_t PendingForms() const { return forms_.size(); }
  // Forgets what was shown and what is queued.
  void Reset();
  // Forgets only what was shown (boxes and forms); the queues and the order
  // of what comes next stay. For long runs that read each record once.
  void ForgetShown();

  // The first button of a box of this style (OK, Abort, Yes, Retry).
  static int FirstButton(int style);

 private:
  // Does one step; returns why a user's act could not be done, or "".
  static std::string Apply(FormModel& form, const FormStep& step);

  std::deque<int> answers_;
  std::deque<FormScript> forms_;
  std::optional<int> defaultAnswer_;
  std::vector<MessageBoxRecord> boxes_;
  std::vector<FormRecord> shownForms_;
  size_t sequence_ = 0;
};

}  // namespace qvx::platform
