// The user's side of a dialog: what the user does in it (answer dialog,
// dialog type/key/choose/tick/click/enter/escape/close) and what the user
// sees in it (expect dialog, expect dialog-refused, expect dialog-control,
// expect dialog-control-at-close).
#include <cctype>
#include <functional>
#include <map>

#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"
#include "core/text.h"

namespace qvx::scenario {
namespace {

using platform::FormControl;
using platform::FormScript;

// The script of the next dialog, to which the user's acts are added: the one
// queued last and not yet used, or a new one.
FormScript& NextDialogScript(World& w) {
  if (FormScript* script = w.ui().LastQueuedForm()) return *script;
  w.ui().QueueForm(FormScript());
  return *w.ui().LastQueuedForm();
}

// A key as a number, a single character, or a name.
int KeyOf(const Args& a, size_t i) {
  static const std::map<std::string, int> kNames = {
      {"backspace", 8}, {"tab", 9}, {"enter", 13}, {"escape", 27}, {"space", 32}};
  const std::string& word = a.At(i);
  if (const auto it = kNames.find(word); it != kNames.end()) return it->second;
  if (word.size() == 1 && (isdigit(static_cast<unsigned char>(word[0])) == 0)) {
    return static_cast<unsigned char>(word[0]);
  }
  return a.Int(i);
}

std::string Flag(bool on) {
  return on ? "true" : "false";
}

// What the user sees of one property of a control, as a script writes it.
const std::map<std::string, std::function<std::string(const FormControl&)>> kProperties = {
    {"caption", [](const FormControl& c) { return c.caption; }},
    {"text", [](const FormControl& c) { return c.text; }},
    {"enabled", [](const FormControl& c) { return Flag(c.enabled); }},
    {"visible", [](const FormControl& c) { return Flag(c.visible); }},
    {"locked", [](const FormControl& c) { return Flag(c.locked); }},
    {"value", [](const FormControl& c) { return Flag(c.value); }},
    {"list-index", [](const FormControl& c) { return std::to_string(c.listIndex); }},
    {"tip", [](const FormControl& c) { return c.toolTip; }},
    {"list", [](const FormControl& c) { return Join(c.list, "\n"); }},
    {"picture", [](const FormControl& c) { return c.picture; }},
};

// The dialog that the last `expect dialog` (or `expect form`, `expect error-report`) took.
const platform::FormRecord& CurrentDialog(World& w) {
  if (w.formsSeen == 0) throw UsageError("expect the dialog first (expect dialog CAPTION)");
  return w.ui().Forms()[w.formsSeen - 1];
}

void ExpectControl(const std::vector<FormControl>& controls, const Args& a) {
  a.Expect(2, 64);
  const auto property = kProperties.find(a.At(1));
  if (property == kProperties.end()) {
    std::vector<std::string> names;
    for (const auto& entry : kProperties) names.push_back(entry.first);
    a.Choice(1, names);
  }
  std::vector<std::string> words;
  for (size_t i = 2; i < a.size(); ++i) words.push_back(a.At(i));
  const std::string expected = Join(words, a.At(1) == "list" ? "\n" : " ");
  for (const FormControl& c : controls) {
    if (EqualsText(c.name, a.At(0))) return ExpectEqual(expected, property->second(c));
  }
  throw ExpectationFailed(Shown(a.At(0)), "(no such control)");
}

void AddAct(VerbTable& table, const char* verb, const char* usage, const char* meaning,
            std::function<void(FormScript&, const Args&)> act) {
  table.Add(verb, usage, meaning,
            [act = std::move(act)](World& w, const Args& a) { act(NextDialogScript(w), a); });
}

}  // namespace

void RegisterDialogUserVerbs(VerbTable& table) {
  table.Add("answer dialog", "answer dialog",
            "the user's acts that follow (dialog ...) are on a further dialog",
            [](World& w, const Args& a) {
              a.Expect(0);
              w.ui().QueueForm(FormScript());
            });
  AddAct(table, "dialog type", "dialog type CONTROL TEXT",
         "the user types TEXT into a text or combo box, key by key (KeyPress, then Change)",
         [](FormScript& s, const Args& a) {
           a.Expect(2);
           s.Type(a.At(0), a.At(1));
         });
  AddAct(table, "dialog key", "dialog key CONTROL KEY",
         "the user presses one key: a character, a code, or backspace|tab|enter|escape|space",
         [](FormScript& s, const Args& a) {
           a.Expect(2);
           s.Key(a.At(0), KeyOf(a, 1));
         });
  AddAct(table, "dialog choose", "dialog choose CONTROL ROW",
         "the user chooses the row with this text in a combo or list box",
         [](FormScript& s, const Args& a) {
           a.Expect(2);
           s.Choose(a.At(0), a.At(1));
         });
  AddAct(table, "dialog tick", "dialog tick CONTROL on|off", "the user ticks or clears a check box",
         [](FormScript& s, const Args& a) {
           a.Expect(2);
           s.Tick(a.At(0), a.Choice(1, {"off", "on"}) == 1);
         });
  AddAct(table, "dialog click", "dialog click CONTROL",
         "the user clicks a visible, enabled button, label or box",
         [](FormScript& s, const Args& a) {
           a.Expect(1);
           s.Press(a.At(0));
         });
  AddAct(table, "dialog enter", "dialog enter", "the user presses Enter: the default button",
         [](FormScript& s, const Args& a) {
           a.Expect(0);
           s.Enter();
         });
  AddAct(table, "dialog escape", "dialog escape",
         "the user presses Esc: the cancel button, or the close box if there is none",
         [](FormScript& s, const Args& a) {
           a.Expect(0);
           s.Escape();
         });
  AddAct(table, "dialog close", "dialog close", "the user closes the dialog by its close box",
         [](FormScript& s, const Args& a) {
           a.Expect(0);
           s.Close();
         });

  table.Add("expect dialog", "expect dialog CAPTION",
            "the next dialog has this caption, and the user could do every act on it",
            [](World& w, const Args& a) {
              a.Expect(1);
              const platform::FormRecord& form = NextForm(w, a.At(0));
              if (!form.refused.empty()) {
                throw ExpectationFailed("(every act done)", Shown(Join(form.refused, "; ")));
              }
            });
  table.Add("expect dialog-refused", "expect dialog-refused CAPTION REASON...",
            "the next dialog has this caption, and these acts could not be done, for these "
            "reasons (\"cmdSave is disabled\")",
            [](World& w, const Args& a) {
              a.Expect(2, 32);
              const platform::FormRecord& form = NextForm(w, a.At(0));
              std::vector<std::string> reasons;
              for (size_t i = 1; i < a.size(); ++i) reasons.push_back(a.At(i));
              ExpectEqual(Join(reasons, "; "), Join(form.refused, "; "));
            });
  table.Add("expect dialog-control", "expect dialog-control CONTROL PROPERTY [VALUE...]",
            "in the dialog last expected, as it opened: caption, text, enabled, visible, locked, "
            "value (true|false), list-index, tip, picture, or list (one word a row)",
            [](World& w, const Args& a) { ExpectControl(CurrentDialog(w).controls, a); });
  table.Add("expect dialog-control-at-close",
            "expect dialog-control-at-close CONTROL PROPERTY [VALUE...]",
            "the same, as the dialog was when it closed",
            [](World& w, const Args& a) { ExpectControl(CurrentDialog(w).finalControls, a); });
}

}  // namespace qvx::scenario
