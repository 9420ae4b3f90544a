#include "sim/command_bars.h"

#include <algorithm>

#include "core/host_constants.h"
#include "core/text.h"
#include "sim/errors.h"

namespace qvx::sim {
namespace {

// The built-in menus of the menu bar, with their Office control ids.
struct BuiltInMenu {
  const char* caption;
  int32_t id;
};
constexpr BuiltInMenu kMenus[] = {
    {"&File", 30002}, {"&Edit", 30003}, {"&View", 30004}, {"&Tools", 30007}, {"&Help", 30010}};

}  // namespace

SimCommandBars::SimCommandBars(ContextPtr context, std::weak_ptr<SimObject> window)
    : SimCollection(std::move(context)), window_(std::move(window)) {}

void SimCommandBars::Init() {
  auto menuBar = AddBar("Menu Bar", host::msoBarTop, true, false, true);
  for (const BuiltInMenu& menu : kMenus) {
    menuBar->controls().Add(host::msoControlPopup, menu.id)->SetCaption(menu.caption);
  }
  menuBar->SetVisible(true);
  activeMenuBar_ = menuBar;
  AddBar("Standard", host::msoBarTop, false, false, true)->SetVisible(true);
}

std::shared_ptr<SimCommandBar> SimCommandBars::AddBar(std::string name, int32_t position,
                                                      bool menuBar, bool temporary, bool builtIn) {
  auto bar = std::make_shared<SimCommandBar>(collectionContext(), std::move(name), position,
                                             menuBar, temporary, builtIn);
  bar->Init(std::static_pointer_cast<SimCommandBars>(shared_from_this()));
  list_.push_back(bar);
  return bar;
}

std::shared_ptr<SimCommandBar> SimCommandBars::Add(std::string_view name, int32_t position,
                                                   bool menuBar, bool temporary) {
  if (position < host::msoBarLeft || position > host::msoBarPopup) {
    throw InvalidParameter();
  }
  std::string barName = name.empty() ? NextCustomName() : std::string(name);
  if (Find(barName)) throw InvalidParameter();
  auto bar = AddBar(std::move(barName), position, menuBar, temporary, false);
  if (menuBar) activeMenuBar_ = bar;
  return bar;
}

std::string SimCommandBars::NextCustomName() const {
  for (int n = 1;; ++n) {
    std::string name = "Custom " + std::to_string(n);
    if (!Find(name)) return name;
  }
}

std::shared_ptr<SimCommandBar> SimCommandBars::Find(std::string_view name) const {
  for (const auto& bar : list_) {
    if (EqualsText(bar->name(), name)) return bar;
  }
  return nullptr;
}

std::shared_ptr<SimCommandBar> SimCommandBars::ActiveMenuBar() const {
  auto bar = activeMenuBar_.lock();
  return bar && !bar->deleted() ? bar : Find("Menu Bar");
}

void SimCommandBars::Remove(const SimCommandBar& bar) {
  std::erase_if(list_, [&](const auto& b) { return b.get() == &bar; });
}

void SimCommandBars::Restart() {
  for (const auto& bar : list_) {
    if (bar->temporary()) {
      bar->MarkDeleted();
    } else {
      bar->controls().DropTemporary();
    }
  }
  std::erase_if(list_, [](const auto& b) { return b->temporary(); });
}

Variant SimCommandBars::ItemByKey(const Variant& key) {
  auto bar = Find(key.ToText());
  if (!bar) throw InvalidParameter();
  return bar->AsVariant();
}

const MemberTable& SimCommandBars::Members() const {
  static const MemberTable table = [] {
    MemberTable t = CollectionMembers();
    Define<SimCommandBars>(t)
        .Method("Add", 0, 4,
                [](SimCommandBars& c, Args& a) {
                  return c
                      .Add(TextArgOr(a, 0, ""), LongArgOr(a, 1, host::msoBarFloating),
                           BoolArgOr(a, 2, false), BoolArgOr(a, 3, false))
                      ->AsVariant();
                })
        .Get("ActiveMenuBar", [](SimCommandBars& c) { return OrNothing(c.ActiveMenuBar()); })
        .Method("FindControl", 0, 4, [](SimCommandBars& c, Args& a) {
          ControlQuery query = ControlQuery::FromArgs(a);
          query.recursive = true;
          for (const auto& bar : c.list_) {
            if (query.visibleOnly && !bar->visible()) continue;
            if (auto found = bar->controls().Find(query)) return found->AsVariant();
          }
          return Variant(Object());
        });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
