#include "sim/item_classes.h"

#include "core/text.h"
#include "sim/errors.h"

namespace qvx::sim {

std::shared_ptr<SimItem> MakeItem(const ContextPtr& context, int32_t itemType) {
  switch (itemType) {
    case host::olMailItem:
      return std::make_shared<SimMail>(context);
    case host::olAppointmentItem:
      return std::make_shared<SimAppointment>(context);
    case host::olTaskItem:
      return std::make_shared<SimTask>(context);
    default:
      throw InvalidParameter();
  }
}

std::shared_ptr<SimItem> MakeItem(const ContextPtr& context, std::string_view messageClass) {
  const std::string upper = UCase(messageClass);
  std::shared_ptr<SimItem> item;
  if (upper.rfind("IPM.APPOINTMENT", 0) == 0) {
    item = MakeItem(context, host::olAppointmentItem);
  } else if (upper.rfind("IPM.TASK", 0) == 0) {
    item = MakeItem(context, host::olTaskItem);
  } else if (upper.rfind("IPM.NOTE", 0) == 0) {
    item = MakeItem(context, host::olMailItem);
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
