// SimCommandBars: the command bars of one explorer or inspector.
//
// A window starts with the built-in bars: "Menu Bar" (the active menu bar,
// with the menus &File, &Edit, &View, &Tools and &Help) and "Standard", both
// shown. Add(Name, Position, MenuBar, Temporary) takes every argument as
// optional: no name gives "Custom 1", "Custom 2" ...; a name that is there
// already (in any case) fails; MenuBar True makes the new bar the active menu
// bar. Item takes a position or a name (in any case) and fails for one that
// isn't there. FindControl(Type, Id, Tag, Visible) searches every bar and
// its pop-ups and gives the first match or Nothing; with Visible True only
// shown controls on shown bars count.
//
// Restart() is the host's exit and start: temporary bars and temporary
// controls are gone, what was added without Temporary stays.
//
//   auto& bars = explorer->commandBars();
//   auto bar = bars.Add("Quorvix", host::msoBarTop, false, true);
//   bars.Restart();   // bar is gone; bar->deleted() is true
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "sim/collection.h"
#include "sim/command_bar.h"

namespace qvx::sim {

class SimCommandBars : public SimCollection<SimCommandBar> {
 public:
  SimCommandBars(ContextPtr context, std::weak_ptr<SimObject> window);
  std::string TypeName() const override { return "CommandBars"; }
  // Adds the built-in bars; call once right after make_shared.
  void Init();

  std::shared_ptr<SimCommandBar> Add(std::string_view name, int32_t position, bool menuBar,
                                     bool temporary);
  // The bar of this name (in any case), or null.
  std::shared_ptr<SimCommandBar> Find(std::string_view name) const;
  std::shared_ptr<SimCommandBar> ActiveMenuBar() const;
  void Remove(const SimCommandBar& bar);
  void Restart();

 protected:
  const MemberTable& Members() const override;
  Variant ParentObject() override { return OrNothing(window_.lock()); }
  Variant ItemByKey(const Variant& key) override;

 private:
  std::shared_ptr<SimCommandBar> AddBar(std::string name, int32_t position, bool menuBar,
                                        bool temporary, bool builtIn);
  std::string NextCustomName() const;

  std::weak_ptr<SimObject> window_;
  std::weak_ptr<SimCommandBar> activeMenuBar_;
};

}  // namespace qvx::sim
