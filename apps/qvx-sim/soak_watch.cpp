#include "apps/qvx-sim/soak_watch.h"

#include <algorithm>

#include "apps/qvx-sim/world.h"
#include "sim/application.h"
#include "sim/explorer.h"
#include "sim/folder.h"
#include "sim/inspector.h"
#include "sim/item.h"
#include "sim/items.h"

namespace qvx::scenario {
namespace {

constexpr char kErrorReportCaption[] = "Unknown Exception";

}  // namespace

SoakWatch::SoakWatch(World& world) : world_(world) {
  world_.host().context().itemWritten = [this](const sim::SimItem& item) {
    if (strayWrite_.empty() &&
        std::find(watched_.begin(), watched_.end(), &item) != watched_.end()) {
      strayWrite_ = item.Subject();
    }
  };
}

SoakWatch::~SoakWatch() {
  world_.host().context().itemWritten = nullptr;
}

void SoakWatch::BeforeStep() {
  watched_.clear();
  strayWrite_.clear();
  for (const auto& folder : {world_.host().Calendar(), world_.host().Tasks()}) {
    for (const auto& item : folder->items().list()) watched_.push_back(item.get());
  }
  // What the user has in front of him: the active explorer's selection and
  // the active inspector's item.
  if (const auto explorer = world_.host().app().ActiveExplorer()) {
    for (const auto& item : explorer->selected()) std::erase(watched_, item.get());
  }
  if (const auto inspector = world_.host().app().ActiveInspector()) {
    std::erase(watched_, inspector->item().get());
  }
  callsBefore_ = world_.host().context().hostCalls;
}

SoakWatch::Step SoakWatch::AfterStep() {
  Step step;
  step.strayWrite = strayWrite_;
  step.hostCalls = world_.host().context().hostCalls - callsBefore_;
  const auto& forms = world_.ui().Forms();
  step.errorReports =
      static_cast<size_t>(std::count_if(forms.begin(), forms.end(), [](const auto& form) {
        return form.caption == kErrorReportCaption;
      }));
  step.shown = forms.size() + world_.ui().MessageBoxes().size() +
               world_.system().Launches().size() + world_.system().ShellOpens().size() +
               world_.system().CommandLines().size();
  world_.ForgetRecords();
  return step;
}

}  // namespace qvx::scenario
