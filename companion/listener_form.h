// The hidden forms that receive the companion's registered window messages.
//
// fListenToLocal is loaded at start-up: its window carries the caption the
// companion looks for, and its procedure sees both channels. fListenToAdmin
// only ever exists as a handler object, made on the first manager message.
// So only one window is ever hooked, and the previous procedure that the
// platform keeps with it is the process's one slot; unloading the form
// puts it back.
//
// Client channel "ZNB_QVX_Client", wParam: 0 settings changed, 1 run the
// unattended synchronisation, 2 items or toolbars changed. Manager channel
// "ZNB_QVX_Manager": 0 settings changed. Any other value is only stored.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/message_windows.h"
#include "state/loaded_form.h"

namespace qvx {

class AddinState;

enum class Channel { Client, Manager };

class ListenerForm final : public LoadedForm {
 public:
  ListenerForm(AddinState& s, Channel channel) : s_(s), channel_(channel) {}
  ~ListenerForm() override;

  std::string FormName() const override;
  // Form_Load: sets the caption and hooks the window.
  void Load();
  // Form_Unload: unhooks, with failures ignored, and allows the unload.
  bool Unload() noexcept override;
  bool HasWindow() const noexcept { return window_ != nullptr; }

  // Stores the value and acts on it as the channel's table says.
  void subPassWMToken(int32_t& lngValue) noexcept;

  int32_t iCurrentWindowMessage = 0;

 private:
  AddinState& s_;
  Channel channel_;
  std::unique_ptr<platform::ListenerWindow> window_;
};

// The identifier of a channel's registered message; registered on first use.
uint32_t WM_MYMESSAGE(AddinState& s, Channel channel) noexcept;

// The listener's window procedure: true if the message was one of ours
// (result 0), false to hand it to the previous procedure. Never fails.
bool WindowProc(AddinState& s, uint32_t uMsg, intptr_t wParam) noexcept;

// Loads fListenToLocal (auto-creating it) and enters it in the loaded forms.
void LoadListenToLocal(AddinState& s);

}  // namespace qvx
