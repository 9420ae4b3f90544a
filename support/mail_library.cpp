#include "support/mail_library.h"

#include "platform/user_interface.h"
#include "schema/item_schema.h"
#include "state/addin_state.h"
#include "support/app_texts.h"
#include "support/host_items.h"
#include "support/outlook_session.h"

namespace qvx {

bool InitMapiUtils(AddinState& s) noexcept {
  s.err.Clear();
  if (s.support.mapiUtilsFailed) return false;
  if (s.support.mapiUtils) return true;
  s.support.mapiUtils = CreateObjectSafely(s, kMapiUtilsProgId, false);
  if (s.support.mapiUtils) {
    IgnoreFailure(s.err, [&] { s.support.mapiUtils.Put("AuthKey", Variant(kMailLibraryAuthKey)); });
  }
  // CreateObjectSafely clears its own failures: only a refused key is pending here.
  if (!s.err.pending()) return true;
  s.err.Clear();
  s.ui().MessageBox(
      "A library file is missing!\r\nPlease re-install the application using the setup.exe",
      platform::msgbox::kCritical, kMessageTitle);
  s.support.mapiUtilsFailed = true;
  return false;
}

void CleanupMapiUtils(AddinState& s) noexcept {
  // A library that fails to end its session is of no concern at tear-down.
  if (s.support.mapiUtils) Quietly(s.err, [&] { s.support.mapiUtils.Call("Cleanup"); });
  s.support.mapiUtils.Release();
}

Variant GetFieldValueFromItem(AddinState& s, const Object& item, std::string_view strField,
                              VarType type) noexcept {
  return TrappedResult<Variant>(s, "ZNBLib.GetFieldValueFromItem", [&](Line& line, Variant& out) {
    line = 10;
    if (!s.support.mapiUtils) InitMapiUtils(s);
    line = 20;
    const Object utils = s.support.mapiUtils;
    Variant tag;
    // An item without the property has no tag: that is the host's case below.
    const bool tagged =
        utils && IgnoreFailure(s.err, [&] {
          tag = utils.Call("GetIDsFromNames",
                           {Variant(item), Variant(host::kPublicStringsGuid), Variant(strField)});
        });
    if (tagged) {
      line = 30;
      out = utils.Call("HrGetOneProp", {Variant(item), tag});
      line = 40;
      // The store keeps dates in UTC; a null date is left as it is.
      if (type == VarType::Date && !out.IsNull()) out = utils.Call("HrGMTToLocal", {out});
      line = 50;
      if (out.IsNull() && type != VarType::Date) {
        out = type == VarType::String ? Variant(std::string()) : Variant(int16_t{0});
      }
      return;
    }
    line = 60;
    s.err.Clear();
    out = GetUserDefinedFieldValue(s, item, strField, type, Variant(std::string()));
  });
}

bool SendEmailDirectly(AddinState& s, const Object& item) noexcept {
  return TrappedResult<bool>(s, "Redemption.SendEmailDirectly", [&](Line& line, bool& sent) {
    line = 10;
    Object wrapper = CreateObjectSafely(s, kMailItemProgId, false);
    IgnoreFailure(s.err, [&] { wrapper.Put("Item", Variant(item)); });
    line = 20;
    if (InitMapiUtils(s)) {
      IgnoreFailure(s.err, [&] { wrapper.Put("Item", Variant(item)); });
      IgnoreFailure(s.err, [&] { wrapper.Put("AuthKey", Variant(kMailLibraryAuthKey)); });
      sent = IgnoreFailure(s.err, [&] { wrapper.Call("Send"); });
      IgnoreFailure(s.err, [&] { s.support.mapiUtils.Call("DeliverNow"); });
    } else {
      line = 30;
      IgnoreFailure(s.err, [&] { item.Call("Display"); });
    }
    line = 40;
    ExecuteSendReceive(s);
    wrapper.Release();
    s.err.Clear();
  });
}

}  // namespace qvx
