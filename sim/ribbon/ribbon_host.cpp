#include "sim/ribbon/ribbon_host.h"

#include <algorithm>

#include "sim/fake_object.h"
#include "sim/ribbon/scripted_ribbon_addin.h"

namespace qvx::sim {

RibbonHost::RibbonHost(RibbonAddin& addin) : addin_(addin) {}

RibbonHost::~RibbonHost() {
  windows_.clear();  // before the documents they show
}

RibbonWindow& RibbonHost::Open(std::string_view ribbonId, Object context) {
  windows_.push_back(std::make_unique<RibbonWindow>(*this, Load(ribbonId), std::move(context)));
  return *windows_.back();
}

void RibbonHost::Close(RibbonWindow& window) {
  std::erase_if(windows_, [&](const auto& w) { return w.get() == &window; });
}

std::shared_ptr<RibbonHost::Document> RibbonHost::Load(std::string_view ribbonId) {
  std::shared_ptr<Document>& document = documents_[std::string(ribbonId)];
  if (document) return document;  // the host asks once per ribbon id
  document = std::make_shared<Document>();
  document->markup = ParseRibbonMarkup(addin_.GetCustomUI(ribbonId), "customUI");
  if (!document->markup) return document;
  const std::string* onLoad = document->markup->Attribute("onLoad");
  if (!onLoad) return document;
  // Invalidation reaches every window of this ribbon id while it lasts.
  const std::weak_ptr<Document> weak = document;
  // A null id is the whole ribbon.
  auto forget = [weak](const std::string* controlId) {
    if (auto d = weak.lock()) {
      for (RibbonWindow* window : d->windows) {
        if (controlId) {
          window->Forget(*controlId);
        } else {
          window->ForgetAll();
        }
      }
    }
    return Variant();
  };
  document->ribbonUi = std::make_shared<FakeObject>("IRibbonUI");
  document->ribbonUi->Method("Invalidate", 0, 0, [forget](Args&) { return forget(nullptr); })
      .Method("InvalidateControl", 1, 1,
              [forget](Args& a) {
                const std::string id = TextArg(a, 0);
                return forget(&id);
              })
      .Method("InvalidateControlMso", 1, 1, [forget](Args& a) {
        const std::string id = TextArg(a, 0);
        return forget(&id);
      });
  std::vector<Variant> args{document->ribbonUi->AsVariant()};
  Variant ignored;
  addin_.Call(*onLoad, args, ignored);
  return document;
}

Object RibbonHost::RibbonUi(std::string_view ribbonId) const {
  auto it = documents_.find(std::string(ribbonId));
  if (it == documents_.end() || !it->second->ribbonUi) return Object();
  return it->second->ribbonUi->AsObject();
}

int RibbonHost::InvalidationCount() const {
  int count = 0;
  for (const auto& [id, document] : documents_) {
    if (document->ribbonUi) count += document->ribbonUi->CallCount("Invalidate");
  }
  return count;
}

void RibbonHost::Act(const std::string& callback, std::vector<Variant>& args) {
  RibbonAction action;
  action.callback = callback;
  for (const Variant& a : args) action.arguments.push_back(RibbonArgumentText(a));
  Variant ignored;
  action.outcome = addin_.Call(callback, args, ignored);
  actions_.push_back(std::move(action));
}

}  // namespace qvx::sim
