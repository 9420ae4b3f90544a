// The combo box, edit box and drop-down of a command bar: text, list and Change.
#include <array>

#include "core/host_constants.h"
#include "sim/collection.h"
#include "sim/command_bar_control.h"
#include "sim/errors.h"

namespace qvx::sim {
namespace {

Failure ListlessControl() {
  return HostFailure(hresult::kFail, "This property fails on a control that has no list.");
}

}  // namespace

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
  if (type() == host::msoControlEdit) throw ListlessControl();
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
  if (type() == host::msoControlDropdown && found == 0 && !text.empty()) {
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

}  // namespace qvx::sim
