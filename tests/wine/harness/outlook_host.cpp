#include "harness/outlook_host.h"

#include "platform/win32/dispatch_face.h"
#include "sim/fake_object.h"

namespace qvx::winetest {

OutlookHost::OutlookHost(sim::Outlook::Options options)
    : world_(std::make_unique<sim::Outlook>(std::move(options))) {
  world_->SetCreateObject([requests = createRequests_](std::string_view progId) {
    requests->emplace_back(progId);
    return Object();
  });
  application_ = win32::MakeDispatchFace(world_->Application().shared());
  auto addIn = std::make_shared<sim::FakeObject>("COMAddIn");
  addIn->ReadOnly("ProgId", Variant("QVX_C.QVXClientDLL"))
      .ReadOnly("Description", Variant("Quorvix Client for Outlook"))
      .Property("Connect", Variant(true));
  addInInst_ = win32::MakeDispatchFace(addIn);
}

OutlookHost::~OutlookHost() {
  // Our own references go first; the world lives on in any face the add-in still holds.
  addInInst_.Reset();
  application_.Reset();
}

}  // namespace qvx::winetest
