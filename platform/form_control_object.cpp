#include "platform/form_control_object.h"

#include <array>

#include "core/failure.h"
#include "core/text.h"
#include "core/variant.h"
#include "platform/form_model.h"

namespace qvx::platform {
namespace {

using Args = std::vector<Variant>;

constexpr int32_t kInvalidPropertyValue = 380;
constexpr int32_t kInvalidArrayIndex = 381;
constexpr int32_t kWrongArguments = 450;

enum Kinds : unsigned {
  kLabelBit = 1,
  kButtonBit = 2,
  kTextBoxBit = 4,
  kFrameBit = 8,
  kComboBit = 16,
  kListBit = 32,
  kCheckBit = 64,
  kImageBit = 128,
  kPictureBit = 256,
  kAll = 511,
  kRows = kComboBit | kListBit,
  kTexts = kTextBoxBit | kRows,
  kCaptioned = kLabelBit | kButtonBit | kCheckBit | kFrameBit,
};

struct KindInfo {
  const char* kind;
  unsigned bit;
  const char* typeName;
};

constexpr std::array<KindInfo, 9> kKinds{{{kind::kLabel, kLabelBit, "Label"},
                                          {kind::kButton, kButtonBit, "CommandButton"},
                                          {kind::kTextBox, kTextBoxBit, "TextBox"},
                                          {kind::kFrame, kFrameBit, "Frame"},
                                          {kind::kCombo, kComboBit, "ComboBox"},
                                          {kind::kList, kListBit, "ListBox"},
                                          {kind::kCheck, kCheckBit, "CheckBox"},
                                          {kind::kImage, kImageBit, "Image"},
                                          {kind::kPicture, kPictureBit, "PictureBox"}}};

const KindInfo* InfoOf(const FormControl& c) {
  for (const KindInfo& k : kKinds) {
    if (c.kind == k.kind) return &k;
  }
  return nullptr;
}

Failure Invalid(int32_t number, std::string description) {
  return Failure(number, "Forms", std::move(description));
}

const Variant& Arg(const Args& args, size_t index) {
  if (index >= args.size() || args[index].IsMissing()) {
    throw Invalid(kWrongArguments, "Wrong number of arguments or invalid property assignment");
  }
  return args[index];
}

size_t RowArg(const FormControl& c, const Args& args, size_t index) {
  const int32_t row = Arg(args, index).ToLong();
  if (row < 0 || static_cast<size_t>(row) >= c.list.size()) {
    throw Invalid(kInvalidArrayIndex, "Invalid property array index");
  }
  return static_cast<size_t>(row);
}

int RowOf(const FormControl& c, const std::string& text) {
  for (size_t i = 0; i < c.list.size(); ++i) {
    if (c.list[i] == text) return static_cast<int>(i);
  }
  return -1;
}

// Shows a new text and row, raising Change and Click as the controls do.
void Show(FormModel& form, FormControl& c, std::string text, int row) {
  const bool textChanged = c.text != text;
  const bool rowChosen = row >= 0 && row != c.listIndex;
  c.text = std::move(text);
  c.listIndex = row;
  const std::string name = c.name;
  if (textChanged) form.Raise(name, "Change");
  if (rowChosen) form.Raise(name, "Click");
}

void PutText(FormModel& form, FormControl& c, const std::string& text) {
  if (c.kind == kind::kTextBox) return Show(form, c, text, -1);
  const int row = RowOf(c, text);
  const bool rowsOnly = c.kind == kind::kList || c.style == kStyleDropDownList;
  if (row < 0 && rowsOnly && !text.empty()) {
    throw Invalid(kInvalidPropertyValue, "Invalid property value");
  }
  Show(form, c, text, row);
}

void PutListIndex(FormModel& form, FormControl& c, int32_t row) {
  if (row < -1 || row >= static_cast<int32_t>(c.list.size())) {
    throw Invalid(kInvalidPropertyValue, "Could not set the ListIndex property");
  }
  Show(form, c, row < 0 ? std::string() : c.list[static_cast<size_t>(row)], row);
}

void AddItem(FormControl& c, const Args& args) {
  const std::string text = Arg(args, 0).ToText();
  size_t at = c.list.size();
  if (args.size() > 1 && !args[1].IsMissing()) {
    const int32_t index = args[1].ToLong();
    if (index < 0 || static_cast<size_t>(index) > c.list.size()) {
      throw Invalid(kInvalidArrayIndex, "Invalid property array index");
    }
    at = static_cast<size_t>(index);
  }
  c.list.insert(c.list.begin() + static_cast<std::ptrdiff_t>(at), text);
  if (c.multiSelect) c.selected.insert(c.selected.begin() + static_cast<std::ptrdiff_t>(at), false);
  if (c.listIndex >= static_cast<int>(at)) ++c.listIndex;
}

void RemoveItem(FormControl& c, const Args& args) {
  const size_t row = RowArg(c, args, 0);
  c.list.erase(c.list.begin() + static_cast<std::ptrdiff_t>(row));
  if (c.multiSelect) c.selected.erase(c.selected.begin() + static_cast<std::ptrdiff_t>(row));
  if (c.listIndex == static_cast<int>(row)) {
    c.listIndex = -1;
  } else if (c.listIndex > static_cast<int>(row)) {
    --c.listIndex;
  }
}

bool IsSelected(const FormControl& c, size_t row) {
  if (!c.multiSelect) return c.listIndex == static_cast<int>(row);
  return row < c.selected.size() && c.selected[row];
}

void PutSelected(FormModel& form, FormControl& c, size_t row, bool on) {
  if (!c.multiSelect) {
    if (on) return PutListIndex(form, c, static_cast<int32_t>(row));
    if (c.listIndex == static_cast<int>(row)) PutListIndex(form, c, -1);
    return;
  }
  c.selected.resize(c.list.size());
  c.selected[row] = on;
}

using Getter = Variant (*)(FormModel&, FormControl&, Args&);
using Setter = void (*)(FormModel&, FormControl&, Args&, const Variant&);

struct MemberDef {
  const char* name;
  unsigned kinds;
  Getter get;  // property get or method
  Setter put;  // null: read-only
};

Variant None() {
  return Variant();
}

// One row per member; see the header for the table in words.
const MemberDef kMembers[] = {
    {"Name", kAll, [](FormModel&, FormControl& c, Args&) { return Variant(c.name); }, nullptr},
    {"Enabled", kAll, [](FormModel&, FormControl& c, Args&) { return Variant(c.enabled); },
     [](FormModel&, FormControl& c, Args&, const Variant& v) { c.enabled = v.ToBoolean(); }},
    {"Visible", kAll, [](FormModel&, FormControl& c, Args&) { return Variant(c.visible); },
     [](FormModel&, FormControl& c, Args&, const Variant& v) { c.visible = v.ToBoolean(); }},
    {"ControlTipText", kAll, [](FormModel&, FormControl& c, Args&) { return Variant(c.toolTip); },
     [](FormModel&, FormControl& c, Args&, const Variant& v) { c.toolTip = v.ToText(); }},
    {"Caption", kCaptioned, [](FormModel&, FormControl& c, Args&) { return Variant(c.caption); },
     [](FormModel&, FormControl& c, Args&, const Variant& v) { c.caption = v.ToText(); }},
    {"Default", kButtonBit, [](FormModel&, FormControl& c, Args&) { return Variant(c.isDefault); },
     [](FormModel&, FormControl& c, Args&, const Variant& v) { c.isDefault = v.ToBoolean(); }},
    {"Cancel", kButtonBit, [](FormModel&, FormControl& c, Args&) { return Variant(c.isCancel); },
     [](FormModel&, FormControl& c, Args&, const Variant& v) { c.isCancel = v.ToBoolean(); }},
    {"Text", kTexts, [](FormModel&, FormControl& c, Args&) { return Variant(c.text); },
     [](FormModel& f, FormControl& c, Args&, const Variant& v) { PutText(f, c, v.ToText()); }},
    {"Value", kTexts | kCheckBit,
     [](FormModel&, FormControl& c, Args&) {
       return c.kind == kind::kCheck ? Variant(c.value) : Variant(c.text);
     },
     [](FormModel& f, FormControl& c, Args&, const Variant& v) {
       if (c.kind != kind::kCheck) return PutText(f, c, v.ToText());
       if (c.value == v.ToBoolean()) return;
       c.value = !c.value;
       const std::string name = c.name;
       f.Raise(name, "Change");
       f.Raise(name, "Click");
     }},
    {"Locked", kTexts | kCheckBit,
     [](FormModel&, FormControl& c, Args&) { return Variant(c.locked); },
     [](FormModel&, FormControl& c, Args&, const Variant& v) { c.locked = v.ToBoolean(); }},
    {"MaxLength", kTextBoxBit | kComboBit,
     [](FormModel&, FormControl& c, Args&) { return Variant(static_cast<int32_t>(c.maxLength)); },
     [](FormModel&, FormControl& c, Args&, const Variant& v) {
       if (v.ToLong() < 0) throw Invalid(kInvalidPropertyValue, "Invalid property value");
       c.maxLength = v.ToLong();
     }},
    {"MultiLine", kTextBoxBit,
     [](FormModel&, FormControl& c, Args&) { return Variant(c.multiLine); },
     [](FormModel&, FormControl& c, Args&, const Variant& v) { c.multiLine = v.ToBoolean(); }},
    {"Style", kComboBit,
     [](FormModel&, FormControl& c, Args&) { return Variant(static_cast<int32_t>(c.style)); },
     [](FormModel&, FormControl& c, Args&, const Variant& v) {
       const int32_t style = v.ToLong();
       if (style != kStyleDropDownCombo && style != kStyleDropDownList) {
         throw Invalid(kInvalidPropertyValue, "Invalid property value");
       }
       c.style = style;
     }},
    {"MultiSelect", kListBit,
     [](FormModel&, FormControl& c, Args&) { return Variant(c.multiSelect); },
     [](FormModel&, FormControl& c, Args&, const Variant& v) {
       c.multiSelect = v.ToBoolean();
       c.selected.assign(c.list.size(), false);
     }},
    {"Clear", kRows,
     [](FormModel& f, FormControl& c, Args&) {
       c.list.clear();
       c.selected.clear();
       Show(f, c, std::string(), -1);
       return None();
     },
     nullptr},
    {"AddItem", kRows,
     [](FormModel&, FormControl& c, Args& a) {
       AddItem(c, a);
       return None();
     },
     nullptr},
    {"RemoveItem", kRows,
     [](FormModel&, FormControl& c, Args& a) {
       RemoveItem(c, a);
       return None();
     },
     nullptr},
    {"List", kRows,
     [](FormModel&, FormControl& c, Args& a) { return Variant(c.list[RowArg(c, a, 0)]); },
     [](FormModel&, FormControl& c, Args& a, const Variant& v) {
       const size_t row = RowArg(c, a, 0);
       c.list[row] = v.ToText();
       if (c.listIndex == static_cast<int>(row)) c.text = c.list[row];
     }},
    {"ListCount", kRows,
     [](FormModel&, FormControl& c, Args&) { return Variant(static_cast<int32_t>(c.list.size())); },
     nullptr},
    {"ListIndex", kRows,
     [](FormModel&, FormControl& c, Args&) { return Variant(static_cast<int32_t>(c.listIndex)); },
     [](FormModel& f, FormControl& c, Args&, const Variant& v) { PutListIndex(f, c, v.ToLong()); }},
    {"Selected", kListBit,
     [](FormModel&, FormControl& c, Args& a) { return Variant(IsSelected(c, RowArg(c, a, 0))); },
     [](FormModel& f, FormControl& c, Args& a, const Variant& v) {
       PutSelected(f, c, RowArg(c, a, 0), v.ToBoolean());
     }},
};

class ControlObject : public HostObject {
 public:
  ControlObject(std::weak_ptr<FormModel*> form, std::string name)
      : form_(std::move(form)), name_(std::move(name)) {}

  Variant Invoke(std::string_view member, InvokeKind kind, std::vector<Variant>& args) override {
    FormModel& form = Form();
    FormControl& c = form.At(name_);
    const KindInfo* info = InfoOf(c);
    for (const MemberDef& m : kMembers) {
      if (!EqualsText(m.name, member) || info == nullptr || (m.kinds & info->bit) == 0) continue;
      if (kind != InvokeKind::Put) return m.get(form, c, args);
      if (m.put == nullptr || args.empty()) throw Failure::Runtime(err::kNoSuchMember);
      const Variant value = args.back();
      args.pop_back();
      m.put(form, c, args, value);
      return Variant();
    }
    throw Failure::Runtime(err::kNoSuchMember);
  }

  std::string TypeName() const override {
    const KindInfo* info = InfoOf(Form().At(name_));
    return info != nullptr ? info->typeName : "Control";
  }

  std::vector<Variant> Enumerate() override { throw Failure::Runtime(err::kNoSuchMember); }

  Subscription Subscribe(std::string_view event, EventHandler handler) override {
    return Form().Subscribe(name_, event, std::move(handler));
  }

  const void* Identity() const override { return &Form().At(name_); }

 private:
  FormModel& Form() const {
    const std::shared_ptr<FormModel*> form = form_.lock();
    if (!form) throw Failure::Runtime(err::kObjectNotSet);
    return **form;
  }

  std::weak_ptr<FormModel*> form_;
  std::string name_;
};

}  // namespace

Object MakeControlObject(std::weak_ptr<FormModel*> form, std::string name) {
  return Object(std::make_shared<ControlObject>(std::move(form), std::move(name)));
}

}  // namespace qvx::platform
