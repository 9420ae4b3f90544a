#include "ribbon/ribbon_images.h"

#include "companion/listener_form.h"
#include "state/addin_state.h"

namespace qvx {

Object getImages(AddinState& s, std::string_view imageId) noexcept {
  return TrappedResult<Object>(s, "getImages", [&](Line& line, Object& result) {
    line = 10;
    if (imageId != "Report" && imageId != "Withdraw") return;
    if (!s.main.fListenToLocal) LoadListenToLocal(s);
    line = 20;
    result = imageId == "Report" ? s.main.fListenToLocal->picReport()
                                 : s.main.fListenToLocal->picWithdraw();
  });
}

}  // namespace qvx
