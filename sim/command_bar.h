// SimCommandBar, one bar of a window, and SimBarControls, the controls of a
// bar or of a pop-up.
//
// Controls.Add(Type, Id, Parameter, Before, Temporary): every argument may
// be left out (fewer arguments, or Variant::Missing() in a gap). Type
// defaults to a button, Id to 1 (a custom control), Before to the end and
// Temporary to False; a type that is no msoControl* kind, or a Before
// outside 1..Count+1, fails. Controls.Item takes a position or a caption.
//
// A bar: Name, NameLocal, Visible (False when added), Enabled, Position,
// RowIndex, Top, Left, Width, Height, Protection, Type, BuiltIn, Controls,
// FindControl(Type, Id, Tag, Visible, Recursive) and Delete; a built-in bar
// refuses Delete, and a deleted bar fails every member.
//
//   auto bar = bars.Add("Quorvix", host::msoBarTop, false, true);
//   auto combo = bar->controls().Add(host::msoControlComboBox, 1, "", 0, true);
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "sim/collection.h"
#include "sim/command_bar_control.h"

namespace qvx::sim {

// What FindControl looks for; an unset criterion matches any control.
struct ControlQuery {
  std::optional<int32_t> type;
  std::optional<int32_t> id;
  std::optional<std::string> tag;
  bool visibleOnly = false;
  bool recursive = false;

  // Reads FindControl's arguments (Type, Id, Tag, Visible[, Recursive]);
  // an omitted, empty or -1 Type or Id matches any.
  static ControlQuery FromArgs(const Args& args);
  bool Matches(const SimBarControl& control) const;
};

class SimBarControls : public SimCollection<SimBarControl> {
 public:
  SimBarControls(ContextPtr context, std::weak_ptr<SimObject> owner)
      : SimCollection(std::move(context)), owner_(std::move(owner)) {}
  std::string TypeName() const override { return "CommandBarControls"; }

  // `before` is a 1-based position, 0 for the end.
  std::shared_ptr<SimBarControl> Add(int32_t type, int32_t id = 1, std::string_view parameter = {},
                                     int32_t before = 0, bool temporary = false);
  void Remove(const SimBarControl& control);
  // The first control, depth first, that the query matches.
  std::shared_ptr<SimBarControl> Find(const ControlQuery& query);
  // The control with this caption (as set or as shown) or tag.
  std::shared_ptr<SimBarControl> Named(std::string_view captionOrTag) const;
  // Drops the temporary controls, here and in pop-ups: the host restarted.
  void DropTemporary();
  void MarkAllDeleted();
  std::shared_ptr<SimObject> owner() const { return owner_.lock(); }

 protected:
  const MemberTable& Members() const override;
  Variant ParentObject() override { return OrNothing(owner_.lock()); }
  Variant ItemByKey(const Variant& key) override;

 private:
  std::weak_ptr<SimObject> owner_;
};

class SimCommandBars;

class SimCommandBar : public SimObject {
 public:
  SimCommandBar(ContextPtr context, std::string name, int32_t position, bool menuBar,
                bool temporary, bool builtIn);
  std::string TypeName() const override { return "CommandBar"; }
  // Builds the bar's controls; call once right after make_shared.
  void Init(std::weak_ptr<SimCommandBars> owner);

  const std::string& name() const { return name_; }
  bool visible() const { return visible_; }
  void SetVisible(bool visible) { visible_ = visible; }
  bool menuBar() const { return menuBar_; }
  bool temporary() const { return temporary_; }
  bool builtIn() const { return builtIn_; }
  bool deleted() const { return deleted_; }
  SimBarControls& controls() { return *controls_; }
  void MarkDeleted();

 protected:
  const MemberTable& Members() const override;
  void CheckUsable() const override;

 private:
  ContextPtr context_;
  std::weak_ptr<SimCommandBars> owner_;
  std::shared_ptr<SimBarControls> controls_;
  std::string name_;
  int32_t position_;
  bool menuBar_;
  bool temporary_;
  bool builtIn_;
  bool visible_ = false;
  bool enabled_ = true;
  int32_t rowIndex_ = 0;
  int32_t top_ = 0;
  int32_t left_ = 0;
  int32_t width_ = 0;
  int32_t height_ = 0;
  int32_t protection_ = 0;
  bool deleted_ = false;
};

}  // namespace qvx::sim
