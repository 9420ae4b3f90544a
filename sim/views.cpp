#include "sim/views.h"

#include <algorithm>

#include "core/text.h"
#include "sim/application.h"
#include "sim/collection.h"
#include "sim/folder.h"

namespace qvx::sim {

SimView::SimView(std::weak_ptr<SimViews> owner, std::string name, int32_t viewType,
                 int32_t saveOption, bool standard)
    : owner_(std::move(owner)),
      name_(std::move(name)),
      viewType_(viewType),
      saveOption_(saveOption),
      standard_(standard),
      xml_("<?xml version=\"1.0\"?>\r\n<view type=\"" +
           std::string(viewType == 2 ? "calendar" : "table") + "\"><viewname>" + name_ +
           "</viewname></view>") {}

void SimView::CheckUsable() const {
  if (deleted_) throw HostFailure(hresult::kNotFound, "The view has been deleted.");
}

const MemberTable& SimView::Members() const {
  static const MemberTable table = [] {
    MemberTable t;
    Define<SimView>(t)
        .Prop(
            "Name", [](SimView& v) { return Variant(v.name_); },
            [](SimView& v, const Variant& x) {
              if (v.standard_) throw HostFailure(hresult::kFail, "The operation failed.");
              v.name_ = x.ToText();
            })
        .Prop(
            "XML", [](SimView& v) { return Variant(v.xml_); },
            [](SimView& v, const Variant& x) {
              std::string text = x.ToText();
              if (InStrText(text, "<view") == 0) {
                throw HostFailure(hresult::kFail, "The operation failed.");
              }
              v.xml_ = std::move(text);
            })
        .Prop(
            "Filter", [](SimView& v) { return Variant(v.filter_); },
            [](SimView& v, const Variant& x) { v.filter_ = x.ToText(); })
        .Get("ViewType", [](SimView& v) { return Variant(v.viewType_); })
        .Get("SaveOption", [](SimView& v) { return Variant(v.saveOption_); })
        .Get("Standard", [](SimView& v) { return Variant(v.standard_); })
        .Get("Parent",
             [](SimView& v) {
               auto owner = v.owner_.lock();
               return OrNothing(owner ? owner->folder() : nullptr);
             })
        .Method("Save", 0, 0,
                [](SimView& v, Args&) {
                  ++v.saves_;
                  return Variant();
                })
        .Method("Apply", 0, 0,
                [](SimView& v, Args&) {
                  ++v.applies_;
                  if (auto owner = v.owner_.lock()) {
                    owner->SetCurrent(std::static_pointer_cast<SimView>(v.shared_from_this()));
                  }
                  return Variant();
                })
        .Method("Reset", 0, 0, [](SimView&, Args&) { return Variant(); })
        .Method("Delete", 0, 0, [](SimView& v, Args&) {
          if (v.standard_) throw HostFailure(hresult::kFail, "The operation failed.");
          if (auto owner = v.owner_.lock()) owner->Remove(v);
          return Variant();
        });
    return t;
  }();
  return table;
}

std::shared_ptr<SimView> SimViews::Find(std::string_view name) const {
  for (const auto& v : list_) {
    if (EqualsText(v->name(), name)) return v;
  }
  return nullptr;
}

std::shared_ptr<SimView> SimViews::Add(std::string_view name, int32_t viewType, int32_t saveOption,
                                       bool standard) {
  if (Trim(name).empty() || Find(name)) throw InvalidParameter();
  auto view = std::make_shared<SimView>(std::static_pointer_cast<SimViews>(shared_from_this()),
                                        std::string(name), viewType, saveOption, standard);
  list_.push_back(view);
  return view;
}

void SimViews::Remove(const SimView& view) {
  for (auto& v : list_) {
    if (v.get() == &view) v->deleted_ = true;
  }
  std::erase_if(list_, [&](const auto& v) { return v.get() == &view; });
}

std::shared_ptr<SimView> SimViews::current() const {
  auto view = current_.lock();
  if (view && !view->deleted()) return view;
  return list_.empty() ? nullptr : list_.front();
}

Variant SimViews::ParentObject() {
  return OrNothing(folder());
}

Variant SimViews::ItemByKey(const Variant& key) {
  auto view = Find(key.ToText());
  if (!view) throw IndexOutOfBounds();
  return view->AsVariant();
}

const MemberTable& SimViews::Members() const {
  static const MemberTable table = [] {
    MemberTable t = CollectionMembers();
    Define<SimViews>(t)
        .Method("Add", 2, 3,
                [](SimViews& c, Args& a) {
                  return c.Add(TextArg(a, 0), LongArg(a, 1), LongArgOr(a, 2, 0))->AsVariant();
                })
        .Method("Remove", 1, 1, [](SimViews& c, Args& a) {
          const auto view = IsPositional(a[0]) ? c.At(a[0]) : c.Find(TextArg(a, 0));
          if (!view) throw IndexOutOfBounds();
          c.Remove(*view);
          return Variant();
        });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
