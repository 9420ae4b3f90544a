#include "companion/listener_form.h"

#include "companion/companion_launch.h"
#include "companion/message_names.h"
#include "companion/section_codes.h"
#include "platform/resources.h"
#include "settings/my_settings.h"
#include "state/addin_state.h"

namespace qvx {
namespace {

std::shared_ptr<ListenerForm>& FormOf(AddinState& s, Channel channel) {
  return channel == Channel::Client ? s.main.fListenToLocal : s.main.fListenToAdmin;
}

// Forms are auto-created on their first mention, as the runtime does.
ListenerForm& EnsureForm(AddinState& s, Channel channel) {
  auto& form = FormOf(s, channel);
  if (!form) form = std::make_shared<ListenerForm>(s, channel);
  return *form;
}

}  // namespace

ListenerForm::~ListenerForm() = default;

std::string ListenerForm::FormName() const {
  return channel_ == Channel::Client ? "fListenToLocal" : "fListenToAdmin";
}

void ListenerForm::Load() {
  const bool client = channel_ == Channel::Client;
  Trapped(s_, client ? "fListToLocal.Form_Load" : "fListToAdmin.Form_Load", [&](Line& line) {
    line = 10;
    AddinState& s = s_;
    window_ = s.platform.windows->CreateListener(
        client ? companion::kClientWindowCaption : companion::kManagerWindowCaption,
        [&s](uint32_t message, intptr_t wParam, intptr_t) {
          return WindowProc(s, message, wParam);
        });
    line = 20;
    if (!window_) throw Failure(err::kInternalError, "QVXClient", "Could not create the window");
  });
}

Object ListenerForm::LoadedPicture(Object& picture, std::string_view resource) {
  if (picture.IsNothing()) {
    if (!s_.platform.resources) throw platform::ResourceNotFound();
    picture = platform::LoadResPicture(*s_.platform.resources, resource);
  }
  return picture;
}

Object ListenerForm::picReport() {
  return LoadedPicture(picReport_, "REPORT");
}

Object ListenerForm::picWithdraw() {
  return LoadedPicture(picWithdraw_, "WITHDRAW");
}

bool ListenerForm::Unload() noexcept {
  window_.reset();  // unhooks: the window's destructor restores the procedure
  return true;
}

void ListenerForm::subPassWMToken(int32_t& lngValue) noexcept {
  const bool client = channel_ == Channel::Client;
  Trapped(s_, client ? "fListToLocal.GetMessageID" : "fListToAdmin.GetMessageID", [&](Line& line) {
    AddinState& s = s_;
    line = 10;
    iCurrentWindowMessage = lngValue;
    if (!client) {
      if (lngValue == 0) {
        line = 20;
        s.main.Settings().ReadSettings(s);
        line = 30;
        s.upward().subInvalidateRibbon();
      }
      return;
    }
    switch (lngValue) {
      case 0:
        line = 40;
        s.main.Settings().ReadSettings(s);
        line = 50;
        s.upward().UpdateAllDisplayedToolbars();
        line = 60;
        s.upward().LoadProjectColorCodesToOutlook();
        break;
      case 1:
        line = 70;
        subLoadSection(s, companion::kSectionAutoSync);
        break;
      case 2:
        line = 80;
        s.upward().UpdateAllDisplayedToolbars();
        break;
      default:
        break;
    }
  });
}

uint32_t WM_MYMESSAGE(AddinState& s, Channel channel) noexcept {
  uint32_t& id =
      channel == Channel::Client ? s.main.channel.clientMessageId : s.main.channel.managerMessageId;
  if (id != 0) return id;
  Trapped(s, "WM_MYMESSAGE", [&](Line& line) {
    line = 10;
    id = s.platform.windows->RegisterMessage(channel == Channel::Client
                                                 ? companion::kClientMessageName
                                                 : companion::kManagerMessageName);
    if (id == 0) throw Failure(err::kInternalError, "QVXClient", "RegisterWindowMessage failed");
  });
  return id;
}

bool WindowProc(AddinState& s, uint32_t uMsg, intptr_t wParam) noexcept {
  for (const Channel channel : {Channel::Client, Channel::Manager}) {
    const uint32_t id = WM_MYMESSAGE(s, channel);
    if (id == 0 || uMsg != id) continue;
    try {
      int32_t value = static_cast<int32_t>(wParam);
      EnsureForm(s, channel).subPassWMToken(value);
    } catch (...) {
      // Only the allocation of the form can fail here; the message is dropped.
    }
    return true;
  }
  return false;
}

void LoadListenToLocal(AddinState& s) {
  ListenerForm& form = EnsureForm(s, Channel::Client);
  form.Load();
  s.main.forms.push_back(s.main.fListenToLocal);
}

}  // namespace qvx
