// The item classes of the simulated host, and the item factory.
#pragma once

#include <memory>
#include <string_view>

#include "sim/appointment.h"
#include "sim/mail_item.h"
#include "sim/task_item.h"

namespace qvx::sim {

// A new, unsaved item of a host item type (0, 1, 3) or of a message class
// ("IPM.Appointment", "IPM.TASK" ...); InvalidParameter for anything else.
std::shared_ptr<SimItem> MakeItem(const ContextPtr& context, int32_t itemType);
std::shared_ptr<SimItem> MakeItem(const ContextPtr& context, std::string_view messageClass);

}  // namespace qvx::sim
