// The controls of a simulated command bar: a button, a combo box (also the
// edit box and the drop-down, which Office gives the same interface) and a
// pop-up, each the kind that CommandBarControls.Add makes for its
// msoControl* type (core/host_constants.h).
//
// All controls: Caption, Tag, Parameter, TooltipText, BeginGroup, Enabled,
// Visible, Width, Id, Type, BuiltIn, Index, Parent, Delete and Execute. A
// deleted control (or one whose bar went) fails every member.
//
// Button: Style, FaceId, State, BuiltInFace, HyperlinkType and the event
// Click(Ctrl, CancelDefault), CancelDefault by reference; a built-in button
// (Id other than 1) then runs its command unless a handler cancelled.
// Combo box: Text, List(i), ListCount, ListIndex (0 is none; outside
// 0..ListCount fails), AddItem(Text[, Index]), RemoveItem, Clear, Style,
// DropDownWidth, DropDownLines and the event Change(Ctrl). An edit box has no
// list: its list members fail. A drop-down shows only its entries: a Text
// that is none of them fails.
// Pop-up: Controls, the controls of its menu.
//
// Events come only from the user's side (UserClick, UserType, UserPick) and
// from Execute, never from a put, as in Office:
//
//   auto button = bar->controls().Add(host::msoControlButton);
//   button->AsObject().Subscribe("Click", [](EventArgs& a) { a[1] = Variant(true); });
//   button->UserClick();   // Click(button, CancelDefault) runs the handler
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "sim/context.h"
#include "sim/sim_object.h"

namespace qvx::sim {

class SimBarControls;

class SimBarControl : public SimObject {
 public:
  SimBarControl(ContextPtr context, int32_t type, int32_t id, bool temporary);

  int32_t type() const { return type_; }
  int32_t id() const { return id_; }
  bool builtIn() const;
  bool temporary() const { return temporary_; }
  const std::string& caption() const { return caption_; }
  void SetCaption(std::string caption) { caption_ = std::move(caption); }
  void SetTag(std::string tag) { tag_ = std::move(tag); }
  void SetParameter(std::string parameter) { parameter_ = std::move(parameter); }
  // The caption as the host draws it: "&&" shows as "&", a single "&" marks
  // the access key and is not shown.
  std::string ShownCaption() const;
  const std::string& tag() const { return tag_; }
  const std::string& tooltip() const { return tooltip_; }
  bool beginGroup() const { return beginGroup_; }
  bool enabled() const { return enabled_; }
  bool visible() const { return visible_; }
  bool deleted() const { return deleted_; }
  // How often the host raised Click or Change on this control.
  int raised() const { return raised_; }

  // Runs what a click (or Execute) of this control does.
  virtual void Run() {}
  // The controls of a pop-up; null for other kinds.
  virtual SimBarControls* children() { return nullptr; }
  // Marks this control (and what it holds) as gone.
  virtual void MarkDeleted() { deleted_ = true; }

  void SetParent(std::weak_ptr<SimBarControls> parent) { parent_ = std::move(parent); }

 protected:
  // The members every kind has; each kind copies and extends them.
  static MemberTable ControlMembers();
  void CheckUsable() const override;
  const ContextPtr& context() const { return context_; }
  // Raises the control's event with these arguments.
  void RaiseEvent(std::string_view event, EventArgs& args) {
    ++raised_;
    Raise(event, args);
  }

 private:
  ContextPtr context_;
  std::weak_ptr<SimBarControls> parent_;
  int32_t type_;
  int32_t id_;
  bool temporary_;
  std::string caption_;
  std::string tag_;
  std::string parameter_;
  std::string tooltip_;
  bool beginGroup_ = false;
  bool enabled_ = true;
  bool visible_ = true;
  int32_t width_ = 0;
  bool deleted_ = false;
  int raised_ = 0;
};

class SimBarButton : public SimBarControl {
 public:
  using SimBarControl::SimBarControl;
  std::string TypeName() const override { return "CommandBarButton"; }

  // Click(Ctrl, CancelDefault); a built-in command runs unless cancelled.
  void Run() override;
  void UserClick() { Run(); }
  int32_t style() const { return style_; }
  int32_t faceId() const { return faceId_; }
  // How often the built-in command behind the button ran.
  int builtInRuns() const { return builtInRuns_; }

 protected:
  const MemberTable& Members() const override;
  std::span<const std::string_view> EventNames() const override;

 private:
  int32_t style_ = 0;
  int32_t faceId_ = 0;
  int32_t state_ = 0;
  bool builtInFace_ = false;
  int32_t hyperlinkType_ = 0;
  int builtInRuns_ = 0;
};

class SimBarComboBox : public SimBarControl {
 public:
  using SimBarControl::SimBarControl;
  std::string TypeName() const override { return "CommandBarComboBox"; }

  // Change(Ctrl).
  void Run() override;
  // The user types a text (and leaves the box): Text, then Change.
  void UserType(std::string_view text);
  // The user picks the entry at a 1-based position: ListIndex, then Change.
  void UserPick(int32_t index);

  const std::string& text() const { return text_; }
  void SetText(std::string_view text);
  const std::vector<std::string>& entries() const { return list_; }
  int32_t listIndex() const { return listIndex_; }
  void SetListIndex(int32_t index);
  void AddItem(std::string text, int32_t before);

 protected:
  const MemberTable& Members() const override;
  std::span<const std::string_view> EventNames() const override;

 private:
  void CheckList() const;
  // A 1-based List index as a position; outside the list fails.
  size_t EntryArg(const Variant& index) const;

  std::string text_;
  std::vector<std::string> list_;
  int32_t listIndex_ = 0;
  int32_t style_ = 0;
  int32_t dropDownWidth_ = 0;
  int32_t dropDownLines_ = 0;
};

class SimBarPopup : public SimBarControl {
 public:
  SimBarPopup(ContextPtr context, int32_t id, bool temporary);
  std::string TypeName() const override { return "CommandBarPopup"; }
  // Builds the pop-up's own controls; call once right after make_shared.
  void Init();

  SimBarControls* children() override { return controls_.get(); }
  void MarkDeleted() override;

 protected:
  const MemberTable& Members() const override;

 private:
  std::shared_ptr<SimBarControls> controls_;
};

// A new control of an msoControl* type; InvalidParameter for another number.
std::shared_ptr<SimBarControl> MakeBarControl(ContextPtr context, int32_t type, int32_t id,
                                              bool temporary);

}  // namespace qvx::sim
