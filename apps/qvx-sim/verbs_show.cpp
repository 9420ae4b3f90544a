// say, show launches / msgboxes / dialogs / journal / registry: for demos
// and for finding out what a scenario should expect.
#include <ostream>

#include "apps/qvx-sim/verbs.h"
#include "apps/qvx-sim/world.h"

namespace qvx::scenario {
namespace {

std::ostream& Out(World& w) {
  if (w.out == nullptr) throw UsageError("no output");
  return *w.out;
}

std::string ValueText(const platform::FileRegistry::Value& value) {
  if (platform::regfile::IsTextType(value.type)) return Shown(value.data);
  if (value.type == 4 && value.data.size() == 4) {  // REG_DWORD, little-endian
    uint32_t number = 0;
    for (int i = 3; i >= 0; --i) number = (number << 8) | static_cast<unsigned char>(value.data[i]);
    return "dword " + std::to_string(number);
  }
  return "type " + std::to_string(value.type) + " " + Shown(value.data);
}

}  // namespace

void RegisterShowVerbs(VerbTable& table) {
  table.Add("say", "say TEXT", "prints the text", [](World& w, const Args& a) {
    a.Expect(1);
    Out(w) << a.At(0) << "\n";
  });
  table.Add("show launches", "show launches", "prints every program started so far",
            [](World& w, const Args& a) {
              a.Expect(0);
              for (const auto& launch : w.system().Launches()) {
                Out(w) << "  launch " << launch.path << " " << Shown(launch.argument) << "\n";
              }
            });
  table.Add("show msgboxes", "show msgboxes", "prints every message box shown so far",
            [](World& w, const Args& a) {
              a.Expect(0);
              for (const auto& box : w.ui().MessageBoxes()) {
                Out(w) << "  msgbox " << Shown(box.title) << " " << Shown(box.text) << " style "
                       << box.style << " answered " << box.answer << "\n";
              }
            });
  table.Add("show dialogs", "show dialogs", "prints every dialog shown so far",
            [](World& w, const Args& a) {
              a.Expect(0);
              for (const auto& form : w.ui().Forms()) {
                Out(w) << "  dialog " << Shown(form.caption) << "\n";
                for (const auto& control : form.controls) {
                  if (!control.text.empty()) {
                    Out(w) << "    " << control.name << " " << Shown(control.text) << "\n";
                  }
                  if (!control.picture.empty()) {
                    Out(w) << "    " << control.name << " picture " << Shown(control.picture)
                           << "\n";
                  }
                }
              }
            });
  table.Add("show journal", "show journal",
            "prints the companion stand-ins' journal (waits for them to end)",
            [](World& w, const Args& a) {
              a.Expect(0);
              w.WaitForPrograms();
              for (const auto& line : w.JournalLines())
                Out(w) << "  journal " << Shown(line) << "\n";
            });
  table.Add("show registry", "show registry [KEY]",
            "prints the values of the settings key, or of KEY", [](World& w, const Args& a) {
              a.Expect(0, 1);
              const std::string key = a.size() == 1 ? a.At(0) : std::string(kSettingsKey);
              for (const auto& value : w.registry().ListValues(key)) {
                Out(w) << "  " << value.name << " = " << ValueText(value.value) << "\n";
              }
            });
}

}  // namespace qvx::scenario
