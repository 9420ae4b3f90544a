#include "sim/command_bar.h"

#include <algorithm>

#include "core/host_constants.h"
#include "core/text.h"
#include "sim/command_bars.h"
#include "sim/errors.h"

namespace qvx::sim {
namespace {

// An omitted, empty or -1 Type or Id matches any control.
std::optional<int32_t> AnyOr(const Args& args, size_t i) {
  if (!HasArg(args, i)) return std::nullopt;
  const int32_t value = args[i].ToLong();
  return value == -1 ? std::nullopt : std::optional<int32_t>(value);
}

}  // namespace

// ---- FindControl ----

ControlQuery ControlQuery::FromArgs(const Args& args) {
  ControlQuery query;
  query.type = AnyOr(args, 0);
  query.id = AnyOr(args, 1);
  if (HasArg(args, 2)) query.tag = args[2].ToText();
  query.visibleOnly = BoolArgOr(args, 3, false);
  query.recursive = BoolArgOr(args, 4, false);
  return query;
}

bool ControlQuery::Matches(const SimBarControl& control) const {
  if (visibleOnly && !control.visible()) return false;
  if (type && control.type() != *type) return false;
  if (id && control.id() != *id) return false;
  return !tag || control.tag() == *tag;
}

// ---- controls ----

std::shared_ptr<SimBarControl> SimBarControls::Add(int32_t type, int32_t id,
                                                   std::string_view parameter, int32_t before,
                                                   bool temporary) {
  if (before < 0 || static_cast<size_t>(before) > list_.size() + 1) throw InvalidParameter();
  auto control = MakeBarControl(collectionContext(), type, id, temporary);
  control->SetParent(std::static_pointer_cast<SimBarControls>(shared_from_this()));
  control->SetParameter(std::string(parameter));
  const size_t at = before == 0 ? list_.size() : static_cast<size_t>(before - 1);
  list_.insert(list_.begin() + static_cast<long>(at), control);
  return control;
}

void SimBarControls::Remove(const SimBarControl& control) {
  std::erase_if(list_, [&](const auto& c) { return c.get() == &control; });
}

std::shared_ptr<SimBarControl> SimBarControls::Find(const ControlQuery& query) {
  for (const auto& control : list_) {
    if (query.Matches(*control)) return control;
    SimBarControls* children = control->children();
    if (query.recursive && children && (!query.visibleOnly || control->visible())) {
      if (auto found = children->Find(query)) return found;
    }
  }
  return nullptr;
}

std::shared_ptr<SimBarControl> SimBarControls::Named(std::string_view captionOrTag) const {
  for (const auto& control : list_) {
    if (control->caption() == captionOrTag || control->ShownCaption() == captionOrTag ||
        (!control->tag().empty() && control->tag() == captionOrTag)) {
      return control;
    }
  }
  return nullptr;
}

void SimBarControls::DropTemporary() {
  for (const auto& control : list_) {
    if (control->temporary()) {
      control->MarkDeleted();
    } else if (SimBarControls* children = control->children()) {
      children->DropTemporary();
    }
  }
  std::erase_if(list_, [](const auto& c) { return c->temporary(); });
}

void SimBarControls::MarkAllDeleted() {
  for (const auto& control : list_) control->MarkDeleted();
}

Variant SimBarControls::ItemByKey(const Variant& key) {
  const std::string caption = key.ToText();
  for (const auto& control : list_) {
    if (EqualsText(control->caption(), caption)) return control->AsVariant();
  }
  throw InvalidParameter();
}

const MemberTable& SimBarControls::Members() const {
  static const MemberTable table = [] {
    MemberTable t = CollectionMembers();
    Define<SimBarControls>(t).Method("Add", 0, 5, [](SimBarControls& c, Args& a) {
      return c
          .Add(LongArgOr(a, 0, host::msoControlButton), LongArgOr(a, 1, host::msoControlIdCustom),
               TextArgOr(a, 2, ""), LongArgOr(a, 3, 0), BoolArgOr(a, 4, false))
          ->AsVariant();
    });
    return t;
  }();
  return table;
}

// ---- bar ----

SimCommandBar::SimCommandBar(ContextPtr context, std::string name, int32_t position, bool menuBar,
                             bool temporary, bool builtIn)
    : context_(std::move(context)),
      name_(std::move(name)),
      position_(position),
      menuBar_(menuBar),
      temporary_(temporary),
      builtIn_(builtIn) {}

void SimCommandBar::Init(std::weak_ptr<SimCommandBars> owner) {
  owner_ = std::move(owner);
  controls_ = std::make_shared<SimBarControls>(context_, weak_from_this());
}

void SimCommandBar::MarkDeleted() {
  deleted_ = true;
  controls_->MarkAllDeleted();
}

void SimCommandBar::CheckUsable() const {
  if (deleted_) throw HostFailure(hresult::kFail, "The command bar has been deleted.");
}

const MemberTable& SimCommandBar::Members() const {
  static const MemberTable table = [] {
    MemberTable t;
    Define<SimCommandBar>(t)
        .Prop(
            "Name", [](SimCommandBar& b) { return Variant(b.name_); },
            [](SimCommandBar& b, const Variant& v) {
              if (b.builtIn_) throw HostFailure(hresult::kFail, "A built-in bar keeps its name.");
              b.name_ = v.ToText();
            })
        .Get("NameLocal", [](SimCommandBar& b) { return Variant(b.name_); })
        .Prop(
            "Visible", [](SimCommandBar& b) { return Variant(b.visible_); },
            [](SimCommandBar& b, const Variant& v) { b.visible_ = v.ToBoolean(); })
        .Prop(
            "Enabled", [](SimCommandBar& b) { return Variant(b.enabled_); },
            [](SimCommandBar& b, const Variant& v) { b.enabled_ = v.ToBoolean(); })
        .Prop(
            "Position", [](SimCommandBar& b) { return Variant(b.position_); },
            [](SimCommandBar& b, const Variant& v) {
              const int32_t position = v.ToLong();
              if (position < host::msoBarLeft || position > host::msoBarPopup) {
                throw InvalidParameter();
              }
              b.position_ = position;
            })
        .Prop(
            "RowIndex", [](SimCommandBar& b) { return Variant(b.rowIndex_); },
            [](SimCommandBar& b, const Variant& v) { b.rowIndex_ = v.ToLong(); })
        .Prop(
            "Top", [](SimCommandBar& b) { return Variant(b.top_); },
            [](SimCommandBar& b, const Variant& v) { b.top_ = v.ToLong(); })
        .Prop(
            "Left", [](SimCommandBar& b) { return Variant(b.left_); },
            [](SimCommandBar& b, const Variant& v) { b.left_ = v.ToLong(); })
        .Prop(
            "Width", [](SimCommandBar& b) { return Variant(b.width_); },
            [](SimCommandBar& b, const Variant& v) { b.width_ = v.ToLong(); })
        .Prop(
            "Height", [](SimCommandBar& b) { return Variant(b.height_); },
            [](SimCommandBar& b, const Variant& v) { b.height_ = v.ToLong(); })
        .Prop(
            "Protection", [](SimCommandBar& b) { return Variant(b.protection_); },
            [](SimCommandBar& b, const Variant& v) { b.protection_ = v.ToLong(); })
        .Get("Type",
             [](SimCommandBar& b) {
               if (b.menuBar_) return Variant(host::msoBarTypeMenuBar);
               return Variant(b.position_ == host::msoBarPopup ? host::msoBarTypePopup
                                                               : host::msoBarTypeNormal);
             })
        .Get("BuiltIn", [](SimCommandBar& b) { return Variant(b.builtIn_); })
        .Get("Controls", [](SimCommandBar& b) { return b.controls_->AsVariant(); })
        .Get("Parent", [](SimCommandBar& b) { return OrNothing(b.owner_.lock()); })
        .Get("Application", [](SimCommandBar& b) { return Variant(b.context_->Application()); })
        .Method("FindControl", 0, 5,
                [](SimCommandBar& b, Args& a) {
                  const ControlQuery query = ControlQuery::FromArgs(a);
                  if (query.visibleOnly && !b.visible_) return Variant(Object());
                  return OrNothing(b.controls_->Find(query));
                })
        .Method("Delete", 0, 0, [](SimCommandBar& b, Args&) {
          if (b.builtIn_) throw HostFailure(hresult::kFail, "Method 'Delete' of object failed.");
          if (auto owner = b.owner_.lock()) owner->Remove(b);
          b.MarkDeleted();
          return Variant();
        });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
