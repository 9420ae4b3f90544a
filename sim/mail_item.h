// SimMail: the host's MailItem, with its addressing fields and Send.
#pragma once

#include <string>

#include "sim/item.h"

namespace qvx::sim {

class SimMail : public SimItem {
 public:
  explicit SimMail(ContextPtr context);
  std::string TypeName() const override { return "MailItem"; }
  // Marks the message sent, as the host's Send does.
  void Send();

 protected:
  const MemberTable& Members() const override;
};

}  // namespace qvx::sim
