#include "sim/mail_item.h"

#include "core/dates.h"

namespace qvx::sim {

SimMail::SimMail(ContextPtr context) : SimItem(std::move(context), host::olMail, "IPM.Note") {
  SetField("To", "");
  SetField("CC", "");
  SetField("BCC", "");
  SetField("SenderName", "");
  SetField("ReceivedTime", this->context()->Now());
  SetField("SentOn", kNoneDate);
  SetField("Sent", false);
  SetField("UnRead", false);
}

void SimMail::Send() {
  SetField("Sent", true);
  SetField("SentOn", context()->Now());
  Save();
}

const MemberTable& SimMail::Members() const {
  static const MemberTable table = [] {
    MemberTable t = CommonMembers();
    DefineField(t, "To", FieldType::Text, true);
    DefineField(t, "CC", FieldType::Text, true);
    DefineField(t, "BCC", FieldType::Text, true);
    DefineField(t, "UnRead", FieldType::Bool, true);
    DefineField(t, "SenderName", FieldType::Text, false);
    DefineField(t, "ReceivedTime", FieldType::Date, false);
    DefineField(t, "SentOn", FieldType::Date, false);
    DefineField(t, "Sent", FieldType::Bool, false);
    Define<SimMail>(t).Method("Send", 0, 0, [](SimMail& m, Args&) {
      m.Send();
      return Variant();
    });
    return t;
  }();
  return table;
}

}  // namespace qvx::sim
