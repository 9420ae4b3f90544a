// A form split into its model and a view. The model holds the controls'
// captions, texts, enabled and visible state, and the event handlers with the
// logic; the platform's view shows it and turns the user's acts into events.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qvx::platform {

struct FormControl {
  std::string name;     // "cmdCancel"
  std::string kind;     // "label", "button", "textbox", "frame", "combo", "list", "check"
  std::string caption;  // caption or label text
  std::string text;     // a text box's contents
  bool visible = true;
  bool enabled = true;
};

// A control as a form lays it out first: visible, enabled, no text.
inline FormControl MakeControl(std::string name, std::string kind, std::string caption) {
  FormControl c;
  c.name = std::move(name);
  c.kind = std::move(kind);
  c.caption = std::move(caption);
  return c;
}

class FormModel {
 public:
  virtual ~FormModel() = default;
  virtual std::string Caption() const = 0;
  // Height in twips; the view scales it.
  virtual int Height() const = 0;
  virtual std::vector<FormControl>& Controls() = 0;
  // An event of a control ("Click", "Change") as the user caused it.
  virtual void OnEvent(std::string_view control, std::string_view event) = 0;
  // True once the form has unloaded itself; the view then closes.
  virtual bool Unloaded() const = 0;
  // Closing by the window's own close box.
  virtual void OnClose() = 0;

  FormControl* Find(std::string_view name) {
    for (FormControl& c : Controls()) {
      if (c.name == name) return &c;
    }
    return nullptr;
  }
};

}  // namespace qvx::platform
