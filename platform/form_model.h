// A form split into its model and a view. The model holds the controls (their
// captions, texts, lists, states) and the event handlers with the logic; the
// platform's view shows it and turns the user's acts into events.
//
// The logic reaches a control late-bound, by name, as it reaches the host's
// objects (Text, Value, Caption, Enabled, Visible, Locked, Clear, AddItem,
// List, ListCount, ListIndex, Selected, ControlTipText, MaxLength, ...; see
// form_control_object.h), so that one routine fills a form's combo box and a
// command bar's alike. Handlers take the event's arguments by reference:
//
//   FormModel form("All Project Fields", 6000,
//                  {MakeControl("txtField9", kind::kTextBox, ""),
//                   MakeControl("cmdSave", kind::kButton, "&Save")});
//   form.On("txtField9", "KeyPress", [](EventArgs& a) { a[0] = Variant(int32_t{0}); });
//   form.On(kFormEvents, "QueryClose", [](EventArgs& a) { a[0] = Variant(true); });
//   form.Control("cmdSave").Put("Enabled", Variant(false));
//   form.KeyPress("txtField9", 'x');   // 0: the handler swallowed the key
//
// Declared order is tab order. A form is unloaded by Unload() or by a close
// that no QueryClose handler cancels; the view then closes.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/events.h"
#include "core/object.h"
#include "core/variant.h"

namespace qvx::platform {

namespace kind {
inline constexpr char kLabel[] = "label";  // a clickable one raises Click
inline constexpr char kButton[] = "button";
inline constexpr char kTextBox[] = "textbox";
inline constexpr char kFrame[] = "frame";
inline constexpr char kCombo[] = "combo";
inline constexpr char kList[] = "list";
inline constexpr char kCheck[] = "check";
inline constexpr char kImage[] = "image";  // a mark with a tool tip
// A picture of the add-in's resources (platform/resources.h), named by the
// control's `picture`, drawn at its own size.
inline constexpr char kPicture[] = "picture";
}  // namespace kind

// A combo box's Style: free text, or rows only (its Text cannot be set to
// anything else).
inline constexpr int kStyleDropDownCombo = 0;
inline constexpr int kStyleDropDownList = 2;

// QueryClose's CloseMode: the window's close box (or Esc), or Unload in code.
inline constexpr int kCloseByControlMenu = 0;
inline constexpr int kCloseByCode = 1;

// The name under which form-level events (QueryClose) are raised.
inline constexpr char kFormEvents[] = "UserForm";

struct FormControl {
  std::string name;     // "cmdCancel"
  std::string kind;     // one of kind::
  std::string caption;  // caption or label text
  std::string text;     // a text box's or combo box's text; a list's selected row
  bool visible = true;
  bool enabled = true;
  bool locked = false;            // shown, but the user cannot change it
  bool value = false;             // a check box's tick
  std::vector<std::string> list;  // rows of a combo or list box
  int listIndex = -1;             // the chosen row, -1 for none
  std::vector<bool> selected;     // rows of a multi-select list box
  bool multiSelect = false;
  int style = kStyleDropDownCombo;
  std::string toolTip;  // ControlTipText
  int maxLength = 0;    // 0: no limit on what the user types
  bool multiLine = false;
  bool isDefault = false;  // the button that Enter clicks
  bool isCancel = false;   // the button that Esc clicks
  std::string picture;     // a picture control's resource name ("About")
  // Where the form's designer put it, in twips from the form's top left;
  // a width of 0 leaves the place to the view (top to bottom in tab order).
  int left = 0, top = 0, width = 0, height = 0;
};

// The control placed at left, top with this width and height (twips).
inline FormControl Placed(FormControl c, int left, int top, int width, int height) {
  c.left = left;
  c.top = top;
  c.width = width;
  c.height = height;
  return c;
}

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
  FormModel(std::string caption, int height, std::vector<FormControl> controls);
  virtual ~FormModel();
  FormModel(const FormModel&) = delete;
  FormModel& operator=(const FormModel&) = delete;

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption) { caption_ = std::move(caption); }
  // The window's outer height in twips, title bar included; the view scales it.
  int Height() const { return height_; }
  void SetHeight(int twips) { height_ = twips; }
  // The inner width in twips; 0 leaves it to the view.
  int Width() const { return width_; }
  void SetWidth(int twips) { width_ = twips; }

  // The controls in declared (tab) order. The set is fixed at construction.
  std::vector<FormControl>& Controls() { return controls_; }
  const std::vector<FormControl>& Controls() const { return controls_; }
  FormControl* Find(std::string_view name);
  // The buttons that Enter and Esc click (Default, Cancel), or null.
  FormControl* DefaultButton();
  FormControl* CancelButton();
  // The control by name; Failure 438 if the form has none of that name.
  FormControl& At(std::string_view name);
  // The control's late-bound face. It stays usable while the form lives;
  // after that every member fails with 91.
  Object Control(std::string_view name);

  // Handles an event of a control (or of the form, under kFormEvents) for
  // the life of the form. Handlers run in the order they were added.
  void On(std::string_view control, std::string_view event, EventHandler handler);
  // The same, for as long as the caller keeps the subscription.
  Subscription Subscribe(std::string_view control, std::string_view event, EventHandler handler);
  // Runs the handlers of an event; they may write into args.
  void Raise(std::string_view control, std::string_view event, EventArgs& args);
  void Raise(std::string_view control, std::string_view event);

  // The user's acts, as a view reports them.
  // A key typed into a control: KeyPress with the key code by reference.
  // Returns the key to go on with; 0 when a handler swallowed it.
  int KeyPress(std::string_view control, int keyAscii);
  // The user's new text of a text or combo box: stored, then Change.
  void TextEdited(std::string_view control, std::string text);
  // The user chose a row of a combo or list box: Change, then Click.
  void RowChosen(std::string_view control, int row);
  // The user ticked or cleared a check box: Change, then Click.
  void Ticked(std::string_view control, bool value);
  // The user closes the window (close box, Esc without a cancel button):
  // QueryClose(Cancel, CloseMode); unloads unless a handler set Cancel.
  // Returns true if the form is unloaded.
  bool QueryClose(int closeMode = kCloseByControlMenu);

  bool Unloaded() const { return unloaded_; }
  // Unload from code: QueryClose with kCloseByCode, which may cancel it.
  void Unload() { QueryClose(kCloseByCode); }

 private:
  std::string caption_;
  int height_;
  int width_ = 0;
  std::vector<FormControl> controls_;
  bool unloaded_ = false;
  EventSource events_;
  std::vector<Subscription> handlers_;
  // Control objects hold this weakly, so that they fail once the form is gone.
  std::shared_ptr<FormModel*> self_;
};

}  // namespace qvx::platform
