#include "sim/item_classes.h"

#include "core/text.h"
#include "sim/errors.h"

namespace qvx::sim {

std::shared_ptr<SimItem> MakeItem(const ContextPtr& context, int32_t itemType) {
  switch (itemType) {
    case kMailItem:
      return std::make_shared<SimMail>(context);
    case kAppointmentItem:
      return std::make_shared<SimAppointment>(context);
    case kTaskItem:
      return std::make_shared<SimTask>(context);
    default:
      throw InvalidParameter();
  }
}

std::shared_ptr<SimItem> MakeItem(const ContextPtr& context, std::string_view messageClass) {
  const std::string upper = UCase(messageClass);
  std::shared_ptr<SimItem> item;
  if (upper.rfind("IPM.APPOINTMENT", 0) == 0) {
    item = MakeItem(context, kAppointmentItem);
  } else if (upper.rfind("IPM.TASK", 0) == 0) {
    item = MakeItem(context, kTaskItem);
  } else if (upper.rfind("IPM.NOTE", 0) == 0) {
    item = MakeItem(context, kMailItem);
  } else {
    throw InvalidParameter();
  }
  // A standard class keeps the host's spelling; a custom form class stays as given.
  if (!EqualsText(messageClass, item->MessageClass())) {
    item->SetField("MessageClass", std::string(messageClass));
  }
  return item;
}

}  // namespace qvx::sim
