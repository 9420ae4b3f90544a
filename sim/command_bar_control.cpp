#include "sim/command_bar_control.h"

#include <array>

#include "core/host_constants.h"
#include "sim/collection.h"
#include "sim/command_bar.h"
#include "sim/errors.h"

namespace qvx::sim {

SimBarControl::SimBarControl(ContextPtr context, int32_t type, int32_t id, bool temporary)
    : context_(std::move(context)), type_(type), id_(id), temporary_(temporary) {}

bool SimBarControl::builtIn() const {
  return id_ != host::msoControlIdCustom;
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

// ---- pop-up ----

SimBarPopup::SimBarPopup(ContextPtr context, int32_t id, bool temporary)
    : SimBarControl(std::move(context), host::msoControlPopup, id, temporary) {}

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
    case host::msoControlButton:
      return std::make_shared<SimBarButton>(std::move(context), type, id, temporary);
    case host::msoControlEdit:
    case host::msoControlDropdown:
    case host::msoControlComboBox:
      return std::make_shared<SimBarComboBox>(std::move(context), type, id, temporary);
    case host::msoControlPopup: {
      auto popup = std::make_shared<SimBarPopup>(std::move(context), id, temporary);
      popup->Init();
      return popup;
    }
    default:
      throw InvalidParameter();
  }
}

}  // namespace qvx::sim
