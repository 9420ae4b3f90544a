#include "sim/window.h"

#include "sim/application.h"
#include "sim/collection.h"
#include "sim/command_bars.h"
#include "sim/name_space.h"

namespace qvx::sim {

void SimWindow::Activate() {
  displayed_ = true;
  if (auto app = context_->app.lock()) {
    app->ActivateWindow(std::static_pointer_cast<SimWindow>(shared_from_this()));
  }
}

void SimWindow::Display() {
  Activate();
}

void SimWindow::Close() {
  if (closed_) return;
  auto self = std::static_pointer_cast<SimWindow>(shared_from_this());  // lives through the close
  auto app = context_->app.lock();
  if (app) app->WindowClosing(*self);
  Raise("Close");
  closed_ = true;
  if (app) app->WindowClosed(self);
}

bool SimWindow::IsActive() const {
  auto app = context_->app.lock();
  return app && app->ActiveWindow().get() == this;
}

Object SimWindow::CommandBars() {
  if (!context_->commandBars) return commandBars().AsObject();
  if (commandBars_.IsNothing()) commandBars_ = context_->commandBars(*this);
  return commandBars_;
}

SimCommandBars& SimWindow::commandBars() {
  if (!bars_) {
    bars_ = std::make_shared<SimCommandBars>(context_, weak_from_this());
    bars_->Init();
  }
  return *bars_;
}

void SimWindow::CheckUsable() const {
  if (closed_) {
    throw HostFailure(hresult::kFail, "The " + TypeName() +
                                          " has been closed and cannot be used for further "
                                          "operations. Review your code and restart Outlook.");
  }
}

MemberTable SimWindow::WindowMembers() {
  MemberTable t;
  Define<SimWindow>(t)
      .Method("Activate", 0, 0,
              [](SimWindow& w, Args&) {
                w.Activate();
                return Variant();
              })
      .Method("Display", 0, 1,
              [](SimWindow& w, Args&) {
                w.Display();
                return Variant();
              })
      .Get("Caption", [](SimWindow& w) { return Variant(w.Caption()); })
      .Get("CommandBars", [](SimWindow& w) { return Variant(w.CommandBars()); })
      .Prop(
          "WindowState", [](SimWindow& w) { return Variant(w.windowState_); },
          [](SimWindow& w, const Variant& v) { w.windowState_ = v.ToLong(); })
      .Get("Application", [](SimWindow& w) { return OrNothing(w.context_->app.lock()); })
      .Get("Session", [](SimWindow& w) {
        auto app = w.context_->app.lock();
        return app ? app->session().AsVariant() : Variant(Object());
      });
  return t;
}

}  // namespace qvx::sim
