#include "sim/command_bar_control.h"

#include <array>

#include "sim/collection.h"
#include "sim/command_bar.h"
#include "sim/errors.h"
#include "sim/office_constants.h"

namespace qvx::sim {
namespace {

Failure ListlessControl() {
  return HostFailure(hresult::kFail, "This property fails on a control that has no list.");
}

}  // namespace

SimBarControl::SimBarControl(ContextPtr context, int32_t type, int32_t id, bool temporary)
    : context_(std::move(context)), type_(type), id_(id), temporary_(temporary) {}

bool SimBarControl::builtIn() const {
  return id_ != office::kCustomControlId;
}

std::string SimBarControl::ShownCaption() const {
  std::string shown;
  for (size_t i = 0; i < caption_.size(); ++i) {
    if (caption_[i] != '&') {
      shown += caption_[i];
    } else if (i + 1 < caption_.size() && caption_[i + 1] == '&') {
      shown += '&';
      ++i;
    }
  }
  return shown;
}

void SimBarControl::CheckUsable() const {
  if (deleted_) throw HostFailure(hresult::kFail, "The command bar control has been deleted.");
}

MemberTable SimBarControl::ControlMembers() {
  MemberTable t;
  Define<SimBarControl>(t)
      .Prop(
          "Caption", [](SimBarControl& c) { return Variant(c.caption_); },
          [](SimBarControl& c, const Variant& v) { c.caption_ = v.ToText(); })
      .Prop(
          "Tag", [](SimBarControl& c) { return Variant(c.tag_); },
          [](SimBarControl& c, const Variant& v) { c.tag_ = v.ToText(); })
      .Prop(
          "Parameter", [](SimBarControl& c) { return Variant(c.parameter_); },
          [](SimBarControl& c, const Variant& v) { c.parameter_ = v.ToText(); })
      .Prop(
          "TooltipText", [](SimBarControl& c) { return Variant(c.tooltip_); },
          [](SimBarControl& c, const Variant& v) { c.tooltip_ = v.ToText(); })
      .Prop(
          "BeginGroup", [](SimBarControl& c) { return Variant(c.beginGroup_); },
          [](SimBarControl& c, const Variant& v) { c.beginGroup_ = v.ToBoolean(); })
      .Prop(
          "Enabled", [](SimBarControl& c) { return Variant(c.enabled_); },
          [](SimBarControl& c, const Variant& v) { c.enabled_ = v.ToBoolean(); })
      .Prop(
          "Visible", [](SimBarControl& c) { return Variant(c.visible_); },
          [](SimBarControl& c, const Variant& v) { c.visible_ = v.ToBoolean(); })
      .Prop(
          "Width", [](SimBarControl& c) { return Variant(c.width_); },
          [](SimBarControl& c, const Variant& v) { c.width_ = v.ToLong(); })
      .Get("Id", [](SimBarControl& c) { return Variant(c.id_); })
      .Get("Type", [](SimBarControl& c) { return Variant(c.type_); })
      .Get("BuiltIn", [](SimBarControl& c) { return Variant(c.builtIn()); })
      .Get("Index",
           [](SimBarControl& c) {
             if (auto parent = c.parent_.lock()) {
               const auto& list = parent->list();
               for (size_t i = 0; i < list.size(); ++i) {
                 if (list[i].get() == &c) return Variant(static_cast<int32_t>(i + 1));
               }
             }
             return Variant(int32_t{0});
           })
      .Get("Parent",
           [](SimBarControl& c) {
             auto parent = c.parent_.lock();
             return OrNothing(parent ? parent->owner() : nullptr);
           })
      .Get("Application", [](SimBarControl& c) { return Variant(c.context_->Application()); })
      .Method("Delete", 0, 1,
              [](SimBarControl& c, Args&) {
                if (auto parent = c.parent_.lock()) parent->Remove(c);
                c.MarkDeleted();
                return Variant();
              })
      .Method("Execute", 0, 0, [](SimBarControl& c, Args&) {
        c.Run();
        return Variant();
      });
  return t;
}

// ---- button ----

void SimBarButton::Run() {
  auto self = shared_from_this();  // a handler may delete the button
  EventArgs args{AsVariant(), Variant(false)};
  RaiseEvent("Click", args);
  if (builtIn() && !args[1].ToBoolean()) ++builtInRuns_;
}

std::span<const std::string_view> SimBarButton::EventNames() const {
  static constexpr std::array<std::string_view, 1> kEvents{"Click"};
  return kEvents;
}

const MemberTable& SimBarButton::Members() const {
  static const MemberTable table = [] {
    MemberTable t = ControlMembers();
    Define<SimBarButton>(t)
        .Prop(
            "Style", [](SimBarButton& b) { return Variant(b.style_); },
            [](SimBarButton& b, const Variant& v) { b.style_ = v.ToLong(); })
        .Prop(
            "FaceId", [](SimBarButton& b) { return Variant(b.faceId_); },
            [](SimBarButton& b, const Variant& v) { b.faceId_ = v.ToLong(); })
        .Prop(
            "State", [](SimBarButton& b) { return Variant(b.state_); },
            [](SimBarButton& b, const Variant& v) { b.state_ = v.ToLong(); })
        .Prop(
            "BuiltInFace", [](SimBarButton& b) { return Variant(b.builtInFace_); },
            [](SimBarButton& b, const Variant& v) { b.builtInFace_ = v.ToBoolean(); })
        .Prop(
            "HyperlinkType", [](SimBarButton& b) { return Variant(b.hyperlinkType_); },
            [](SimBarButton& b, const Variant& v) { b.hyperlinkType_ = v.ToLong(); });
    return t;
  }();
  return table;
}

// ---- combo box, edit box, drop-down ----

void SimBarComboBox::Run() {
  auto self = shared_from_this();
  EventArgs args{AsVariant()};
  RaiseEvent("Change", args);
}

void SimBarComboBox::UserType(std::string_view text) {
  SetText(text);
  Run();
}

void SimBarComboBox::UserPick(int32_t index) {
  SetListIndex(index);
  Run();
}

void SimBarComboBox::CheckList() const {
  if (type() == office::kMsoControlEdit) throw ListlessControl();
}

size_t SimBarComboBox::EntryArg(const Variant& index) const {
  const int32_t i = index.ToLong();
  if (i < 1 || static_cast<size_t>(i) > list_.size()) throw InvalidParameter();
  return static_cast<size_t>(i - 1);
}

void SimBarComboBox::SetText(std::string_view text) {
  int32_t found = 0;
  for (size_t i = 0; i < list_.size(); ++i) {
    if (list_[i] == text) {
      found = static_cast<int32_t>(i + 1);
      break;
    }
  }
  if (type() == office::kMsoControlDropdown && found == 0 && !text.empty()) {
    throw InvalidParameter();
  }
  text_ = std::string(text);
  listIndex_ = found;
}

void SimBarComboBox::SetListIndex(int32_t index) {
  CheckList();
  if (index < 0 || static_cast<size_t>(index) > list_.size()) throw InvalidParameter();
  listIndex_ = index;
  text_ = index == 0 ? std::string() : list_[static_cast<size_t>(index - 1)];
}

void SimBarComboBox::AddItem(std::string text, int32_t before) {
  CheckList();
  if (before < 0 || static_cast<size_t>(before) > list_.size() + 1) throw InvalidParameter();
  const size_t at = before == 0 ? list_.size() : static_cast<size_t>(before - 1);
  list_.insert(list_.begin() + static_cast<long>(at), std::move(text));
  if (listIndex_ > 0 && static_cast<size_t>(listIndex_) > at) ++listIndex_;
}

std::span<const std::string_view> SimBarComboBox::EventNames() const {
  static constexpr std::array<std::string_view, 1> kEvents{"Change"};
  return kEvents;
}

const MemberTable& SimBarComboBox::Members() const {
  static const MemberTable table = [] {
    MemberTable t = ControlMembers();
    Define<SimBarComboBox>(t)
        .Prop(
            "Text", [](SimBarComboBox& c) { return Variant(c.text_); },
            [](SimBarComboBox& c, const Variant& v) { c.SetText(v.ToText()); })
        .Get("ListCount",
             [](SimBarComboBox& c) {
               c.CheckList();
               return Variant(static_cast<int32_t>(c.list_.size()));
             })
        .Prop(
            "ListIndex",
            [](SimBarComboBox& c) {
              c.CheckList();
              return Variant(c.listIndex_);
            },
            [](SimBarComboBox& c, const Variant& v) { c.SetListIndex(v.ToLong()); })
        .Method("AddItem", 1, 2,
                [](SimBarComboBox& c, Args& a) {
                  c.AddItem(TextArg(a, 0), LongArgOr(a, 1, 0));
                  return Variant();
                })
        .Method("RemoveItem", 1, 1,
                [](SimBarComboBox& c, Args& a) {
                  c.CheckList();
                  const size_t at = IndexArg(a[0], c.list_.size());
                  c.list_.erase(c.list_.begin() + static_cast<long>(at));
                  if (static_cast<size_t>(c.listIndex_) == at + 1) c.listIndex_ = 0;
                  if (static_cast<size_t>(c.listIndex_) > at + 1) --c.listIndex_;
                  return Variant();
                })
        .Method("Clear", 0, 0,
                [](SimBarComboBox& c, Args&) {
                  c.CheckList();
                  c.list_.clear();
                  c.listIndex_ = 0;
                  return Variant();
                })
        .Prop(
            "Style", [](SimBarComboBox& c) { return Variant(c.style_); },
            [](SimBarComboBox& c, const Variant& v) { c.style_ = v.ToLong(); })
        .Prop(
            "DropDownWidth", [](SimBarComboBox& c) { return Variant(c.dropDownWidth_); },
            [](SimBarComboBox& c, const Variant& v) { c.dropDownWidth_ = v.ToLong(); })
        .Prop(
            "DropDownLines", [](SimBarComboBox& c) { return Variant(c.dropDownLines_); },
            [](SimBarComboBox& c, const Variant& v) { c.dropDownLines_ = v.ToLong(); });
    // List(Index): an entry by its 1-based position, read and replaced.
    Member& list = t.Entry("List");
    list.get = [](SimObject& o, Args& a) {
      auto& c = static_cast<SimBarComboBox&>(o);
      c.CheckList();
      return Variant(c.list_[c.EntryArg(a[0])]);
    };
    list.minArgs = list.maxArgs = 1;
    list.put = [](SimObject& o, Args& a, const Variant& v) {
      auto& c = static_cast<SimBarComboBox&>(o);
      c.CheckList();
      c.list_[c.EntryArg(a[0])] = v.ToText();
    };
    list.putArgs = 1;
    return t;
  }();
  return table;
}

// ---- pop-up ----

SimBarPopup::SimBarPopup(ContextPtr context, int32_t id, bool temporary)
    : SimBarControl(std::move(context), office::kMsoControlPopup, id, temporary) {}

void SimBarPopup::Init() {
  controls_ = std::make_shared<SimBarControls>(context(), weak_from_this());
}

void SimBarPopup::MarkDeleted() {
  SimBarControl::MarkDeleted();
  controls_->MarkAllDeleted();
}

const MemberTable& SimBarPopup::Members() const {
  static const MemberTable table = [] {
    MemberTable t = ControlMembers();
    Define<SimBarPopup>(t).Get("Controls", [](SimBarPopup& p) { return p.controls_->AsVariant(); });
    return t;
  }();
  return table;
}

std::shared_ptr<SimBarControl> MakeBarControl(ContextPtr context, int32_t type, int32_t id,
                                              bool temporary) {
  switch (type) {
    case office::kMsoControlButton:
      return std::make_shared<SimBarButton>(std::move(context), type, id, temporary);
    case office::kMsoControlEdit:
    case office::kMsoControlDropdown:
    case office::kMsoControlComboBox:
      return std::make_shared<SimBarComboBox>(std::move(context), type, id, temporary);
    case office::kMsoControlPopup: {
      auto popup = std::make_shared<SimBarPopup>(std::move(context), id, temporary);
      popup->Init();
      return popup;
    }
    default:
      throw InvalidParameter();
  }
}

}  // namespace qvx::sim
