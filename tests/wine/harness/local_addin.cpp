#include "harness/local_addin.h"

#include "settings/my_settings.h"

namespace qvx::winetest {
namespace {

class RecordedFailures final : public UpwardCalls {
 public:
  explicit RecordedFailures(std::shared_ptr<std::vector<std::string>> labels)
      : labels_(std::move(labels)) {}
  void ReportError(const std::string&, int32_t, int, std::string_view label,
                   bool) noexcept override {
    try {
      labels_->emplace_back(label);
    } catch (...) {
    }
  }

 private:
  std::shared_ptr<std::vector<std::string>> labels_;
};

}  // namespace

LocalAddin::LocalAddin() {
  s.ConnectUpward(std::make_unique<RecordedFailures>(failures));
  s.main.objOutlook = host.Application();
  s.main.objMySettings = std::make_unique<cMySettings>();
  s.main.Settings().ReadSettings(s);
}

LocalAddin::~LocalAddin() = default;

}  // namespace qvx::winetest
