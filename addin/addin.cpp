#include "addin/addin.h"

#include "addin/main_module.h"

namespace qvx {

QVXClientAddin::QVXClientAddin(platform::Platform platform)
    : state_(std::make_unique<AddinState>(platform)) {}

QVXClientAddin::~QVXClientAddin() = default;

void QVXClientAddin::OnConnection(const Object&, int, const Object&) noexcept {}
void QVXClientAddin::OnStartupComplete() noexcept {}
void QVXClientAddin::OnBeginShutdown() noexcept {}
void QVXClientAddin::OnDisconnection(int) noexcept {}
void QVXClientAddin::Terminate() noexcept {}
std::string QVXClientAddin::GetCustomUI(std::string_view) noexcept {
  return {};
}
bool QVXClientAddin::InvokeCallback(std::string_view, std::vector<Variant>&, Variant&) noexcept {
  return false;
}
bool QVXClientAddin::HasCallback(std::string_view) const noexcept {
  return false;
}

}  // namespace qvx
