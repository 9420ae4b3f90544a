#include "sim/explorer.h"

#include "sim/collection.h"
#include "sim/folder.h"
#include "sim/item.h"
#include "sim/items.h"
#include "sim/selection.h"
#include "sim/views.h"

namespace qvx::sim {

SimExplorer::SimExplorer(ContextPtr context, std::shared_ptr<SimFolder> folder)
    : SimWindow(std::move(context)), folder_(std::move(folder)) {}

std::string SimExplorer::Caption() const {
  return (folder_ ? folder_->name() : std::string()) + " - Microsoft Outlook";
}

bool SimExplorer::SwitchFolder(const std::shared_ptr<SimFolder>& folder) {
  EventArgs before{folder->AsVariant(), Variant(false)};
  Raise("BeforeFolderSwitch", before);
  if (before[1].ToBoolean()) return false;
  folder_ = folder;
  selected_.clear();
  if (folder_->items().size() > 0) selected_.push_back(folder_->items().list().front());
  Raise("FolderSwitch");
  Raise("SelectionChange");
  return true;
}

void SimExplorer::Select(std::vector<std::shared_ptr<SimItem>> items) {
  selected_ = std::move(items);
  Raise("SelectionChange");
}

std::shared_ptr<SimSelection> SimExplorer::Selection() {
  auto selection = std::make_shared<SimSelection>(
      context(), selected_, std::static_pointer_cast<SimExplorer>(shared_from_this()));
  selection->ShareFaults(selectionFaults_);
  return selection;
}

void SimExplorer::SwitchView(std::string_view viewName) {
  auto view = folder_->views().Find(viewName);
  if (!view) throw InvalidParameter();
  EventArgs before{view->AsVariant(), Variant(false)};
  Raise("BeforeViewSwitch", before);
  if (before[1].ToBoolean()) return;
  folder_->views().SetCurrent(view);
  Raise("ViewSwitch");
}

std::span<const std::string_view> SimExplorer::EventNames() const {
  static constexpr std::array<std::string_view, 9> kEvents{
      "Activate",     "Deactivate",         "Close",
      "FolderSwitch", "BeforeFolderSwitch", "SelectionChange",
      "ViewSwitch",   "BeforeViewSwitch",   "BeforeItemPaste"};
  return kEvents;
}

const MemberTable& SimExplorer::Members() const {
  static const MemberTable table = [] {
    MemberTable t = WindowMembers();
    Define<SimExplorer>(t)
        .Prop(
            "CurrentFolder", [](SimExplorer& e) { return OrNothing(e.folder_); },
            [](SimExplorer& e, const Variant& v) { e.SwitchFolder(SimArg<SimFolder>(v)); })
        .Get("Selection", [](SimExplorer& e) { return e.Selection()->AsVariant(); })
        .Prop(
            "CurrentView", [](SimExplorer& e) { return OrNothing(e.folder_->views().current()); },
            [](SimExplorer& e, const Variant& v) {
              if (v.IsObject()) {
                e.SwitchView(SimArg<SimView>(v)->name());
              } else {
                e.SwitchView(v.ToText());
              }
            })
        .Method("Close", 0, 0,
                [](SimExplorer& e, Args&) {
                  e.Close();
                  return Variant();
                })
        .Get("Class", [](SimExplorer&) { return Variant(int32_t{34}); });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
