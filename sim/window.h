// SimWindow: what explorers and inspectors share: being shown, activated
// and closed, a caption, and the window's command bars (SimCommandBars, made
// at first use; the context's hook, if set, gives another object instead).
//
// Activate makes the window the host's active one: the window that was
// active before gets Deactivate, then this one Activate. Close takes the
// window out of its collection (Explorers.Count no longer counts it, so the
// last explorer's Close sees 0), raises Close while the window is still
// usable and active, then forgets it; the next window in activation order
// becomes active (Activate), and closing the last window quits the host
// unless the context says otherwise. A closed window fails every member as
// the host does.
#pragma once

#include <memory>
#include <string>

#include "sim/context.h"
#include "sim/sim_object.h"

namespace qvx::sim {

class SimCommandBars;

class SimWindow : public SimObject {
 public:
  explicit SimWindow(ContextPtr context) : context_(std::move(context)) {}

  virtual std::string Caption() const = 0;
  void Activate();
  void Display();
  void Close();
  bool displayed() const { return displayed_; }
  bool closed() const { return closed_; }
  bool IsActive() const;
  // What CommandBars gives: the context's hook's object, else commandBars().
  Object CommandBars();
  // The window's own command bars, made at first use.
  SimCommandBars& commandBars();
  // Whether commandBars() has been made.
  bool hasCommandBars() const { return bars_ != nullptr; }
  const ContextPtr& context() const { return context_; }

 protected:
  // Activate, Close, Display, Caption, CommandBars, WindowState, Application, Session.
  static MemberTable WindowMembers();
  void CheckUsable() const override;

 private:
  ContextPtr context_;
  bool displayed_ = false;
  bool closed_ = false;
  int32_t windowState_ = 0;  // olMaximized
  Object commandBars_;
  std::shared_ptr<SimCommandBars> bars_;
};

}  // namespace qvx::sim
