// What a window shows of one element: static attributes, or the add-in's
// answers through the callbacks the element binds, kept until invalidated.
#include <algorithm>

#include "core/failure.h"
#include "sim/fake_object.h"
#include "sim/ribbon/ribbon_host.h"

namespace qvx::sim {
namespace {

// The schema's bound on the rows of a drop-down.
constexpr int32_t kMaxRows = 1000;
constexpr char kKeySeparator = '\x1f';

bool IsOneOf(std::string_view kind, std::initializer_list<std::string_view> kinds) {
  return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

// A stored answer converted as the host reads it; a value that does not
// convert counts as no answer.
template <class Convert>
auto Converted(const std::optional<Variant>& answer, Convert convert)
    -> std::optional<decltype(convert(*answer))> {
  if (!answer) return std::nullopt;
  try {
    return convert(*answer);
  } catch (const Failure&) {
    return std::nullopt;
  }
}

std::optional<bool> StaticBool(const MarkupElement& e, std::string_view attribute) {
  const std::string* value = attribute.empty() ? nullptr : e.Attribute(attribute);
  if (!value) return std::nullopt;
  if (*value == "true" || *value == "1") return true;
  if (*value == "false" || *value == "0") return false;
  return std::nullopt;
}

std::string AnswerKey(std::string_view control, std::string_view getter,
                      std::optional<int32_t> index = {}) {
  return std::string(control) + kKeySeparator + std::string(getter) + kKeySeparator +
         (index ? std::to_string(*index) : std::string());
}

}  // namespace

void RibbonWindow::Forget(std::string_view controlId) {
  const std::string prefix = std::string(controlId) + kKeySeparator;
  std::erase_if(answers_, [&](const auto& entry) { return entry.first.starts_with(prefix); });
}

void RibbonWindow::ForgetAll() {
  answers_.clear();
}

Object RibbonWindow::ControlFor(const MarkupElement& e, const Object& context) const {
  const std::string* tag = e.Attribute("tag");
  auto control = std::make_shared<FakeObject>("IRibbonControl");
  control->ReadOnly("Id", Variant(e.Key()))
      .ReadOnly("Context", Variant(context))
      .ReadOnly("Tag", Variant(tag ? *tag : std::string()));
  return control->AsObject();
}

std::optional<Variant> RibbonWindow::Ask(const MarkupElement& e, std::string_view getter,
                                         const Object& context, std::optional<int32_t> index) {
  const std::string* name = e.Attribute(getter);
  if (!name) return std::nullopt;
  const std::string key = e.Key();
  std::string answerKey;
  if (!key.empty()) {
    answerKey = AnswerKey(key, getter, index);
    if (auto it = answers_.find(answerKey); it != answers_.end()) return it->second;
  }
  std::vector<Variant> args{Variant(ControlFor(e, context))};
  if (index) args.emplace_back(*index);
  Variant result;
  std::optional<Variant> answer;
  if (host_.addin_.Call(*name, args, result) == CallbackOutcome::Done) answer = result;
  if (!key.empty()) answers_[answerKey] = answer;
  return answer;
}

std::string RibbonWindow::AskText(const MarkupElement& e, std::string_view attribute,
                                  std::string_view getter, const Object& context) {
  auto text = Converted(Ask(e, getter, context), [](const Variant& v) { return v.ToText(); });
  if (text) return *text;
  const std::string* value = attribute.empty() ? nullptr : e.Attribute(attribute);
  return value ? *value : std::string();
}

bool RibbonWindow::AskBool(const MarkupElement& e, std::string_view attribute,
                           std::string_view getter, const Object& context, bool fallback) {
  auto flag = Converted(Ask(e, getter, context), [](const Variant& v) { return v.ToBoolean(); });
  if (flag) return *flag;
  return StaticBool(e, attribute).value_or(fallback);
}

std::string RibbonWindow::AskImage(const MarkupElement& e, const Object& context) {
  // getImage answers a picture, or the name of a built-in image.
  const auto answered = [](const std::optional<Variant>& answer) -> std::string {
    if (!answer) return {};
    if (answer->IsObject()) return "picture";
    return Converted(answer, [](const Variant& v) { return v.ToText(); }).value_or("");
  };
  if (e.Attribute("getImage")) return answered(Ask(e, "getImage", context));
  if (const std::string* mso = e.Attribute("imageMso")) return *mso;
  const std::string* image = e.Attribute("image");
  const std::string* loadImage = document_->markup->Attribute("loadImage");
  if (!image || !loadImage) return {};
  // loadImage takes the image's name in place of a control, once until invalidated.
  const std::string answerKey = AnswerKey(e.Key(), "loadImage") + *image;
  auto it = answers_.find(answerKey);
  if (it == answers_.end()) {
    std::vector<Variant> args{Variant(*image)};
    Variant result;
    std::optional<Variant> answer;
    if (host_.addin_.Call(*loadImage, args, result) == CallbackOutcome::Done) answer = result;
    it = answers_.insert_or_assign(answerKey, answer).first;
  }
  return it->second && it->second->IsObject() ? "picture" : "";
}

void RibbonWindow::AskRows(const MarkupElement& e, const Object& context, ShownControl& shown) {
  std::vector<const MarkupElement*> items;
  for (const MarkupElement& child : e.children) {
    if (child.name == "item") items.push_back(&child);
  }
  const auto toLong = [](const Variant& v) { return v.ToLong(); };
  const auto toText = [](const Variant& v) { return v.ToText(); };
  int32_t count = static_cast<int32_t>(items.size());
  if (e.Attribute("getItemCount")) {
    count = Converted(Ask(e, "getItemCount", context), toLong).value_or(0);
  }
  count = std::clamp(count, 0, kMaxRows);
  for (int32_t i = 0; i < count; ++i) {
    const MarkupElement* item = static_cast<size_t>(i) < items.size() ? items[i] : nullptr;
    ShownRow row;
    const auto fromItem = [&](std::string_view attribute) {
      const std::string* value = item ? item->Attribute(attribute) : nullptr;
      return value ? *value : std::string();
    };
    row.label = e.Attribute("getItemLabel")
                    ? Converted(Ask(e, "getItemLabel", context, i), toText).value_or("")
                    : fromItem("label");
    row.id = e.Attribute("getItemID")
                 ? Converted(Ask(e, "getItemID", context, i), toText).value_or("")
                 : fromItem("id");
    shown.rows.push_back(std::move(row));
  }
  if (shown.kind == "comboBox") return;  // a combo box shows its text, not a row
  std::optional<int32_t> selected;
  if (e.Attribute("getSelectedItemIndex")) {
    selected = Converted(Ask(e, "getSelectedItemIndex", context), toLong);
  } else if (e.Attribute("getSelectedItemID")) {
    const auto id = Converted(Ask(e, "getSelectedItemID", context), toText);
    for (int32_t i = 0; id && i < count; ++i) {
      if (shown.rows[i].id == *id) selected = i;
    }
  } else if (auto it = held_.find(shown.id); it != held_.end()) {
    selected = it->second.ToLong();
  } else if (shown.kind == "dropDown") {
    selected = 0;  // a drop-down always shows a row
  }
  shown.selectedIndex = selected && *selected >= 0 && *selected < count ? *selected : -1;
}

ShownControl RibbonWindow::Show(const MarkupElement& e, const Object& context) {
  ShownControl c;
  c.kind = e.name;
  c.id = e.Key();
  c.visible = AskBool(e, "visible", "getVisible", context, true);
  if (!c.visible) return c;  // nothing more is asked of a hidden control
  c.label = e.name == "menuSeparator" ? AskText(e, "title", "getTitle", context)
                                      : AskText(e, "label", "getLabel", context);
  c.enabled = AskBool(e, "enabled", "getEnabled", context, true);
  c.image = AskImage(e, context);
  c.screentip = AskText(e, "screentip", "getScreentip", context);
  c.supertip = AskText(e, "supertip", "getSupertip", context);
  const auto held = held_.find(c.id);
  if (IsOneOf(c.kind, {"toggleButton", "checkBox"})) {
    c.pressed = e.Attribute("getPressed") ? AskBool(e, "", "getPressed", context, false)
                : held != held_.end()     ? held->second.ToBoolean()
                                          : false;
  }
  if (IsOneOf(c.kind, {"editBox", "comboBox"})) {
    c.text = e.Attribute("getText") ? AskText(e, "", "getText", context)
             : held != held_.end()  ? held->second.ToText()
                                    : std::string();
  }
  if (IsOneOf(c.kind, {"dropDown", "comboBox", "gallery"})) AskRows(e, context, c);
  for (const MarkupElement& child : e.children) {
    if (child.name != "item") c.children.push_back(Show(child, context));
  }
  return c;
}

ShownControl RibbonWindow::ShowChildren(std::string_view kind,
                                        const std::vector<const MarkupElement*>& elements,
                                        const Object& context) {
  ShownControl root;
  root.kind = kind;
  for (const MarkupElement* e : elements) root.children.push_back(Show(*e, context));
  return root;
}

void RibbonWindow::Remember(const MarkupElement& e, std::string_view getter, Variant value) {
  if (e.Attribute(getter)) answers_[AnswerKey(e.Key(), getter)] = std::move(value);
}

}  // namespace qvx::sim
