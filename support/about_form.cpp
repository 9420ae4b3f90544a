#include "support/about_form.h"

#include "platform/system_services.h"
#include "platform/user_interface.h"
#include "state/addin_state.h"
#include "support/app_texts.h"
#include "support/endpoints.h"
#include "support/error_reporting.h"

namespace qvx {
namespace {

constexpr int kWidth = 5730;   // twips
constexpr int kHeight = 3900;  // title bar included
constexpr int kNormalFocus = 1;

std::vector<platform::FormControl> Layout() {
  using platform::MakeControl;
  using platform::Placed;
  namespace kind = platform::kind;
  platform::FormControl picture = MakeControl("Picture1", kind::kPicture, "");
  picture.picture = "About";
  platform::FormControl ok = MakeControl("cmdOK", kind::kButton, "OK");
  ok.isDefault = true;
  ok.isCancel = true;
  return {
      Placed(std::move(picture), 240, 240, 960, 960),
      Placed(std::move(ok), 4320, 2100, 1200, 375),
      Placed(MakeControl("Label1", kind::kLabel, "Quorvix for Outlook"), 1440, 240, 4080, 300),
      Placed(MakeControl("Label3", kind::kLabel, "Copyright (C) Zenbrook. All rights reserved."),
             1440, 1320, 4080, 255),
      Placed(MakeControl("Label4", kind::kLabel, ProductWebPage("/Quorvix/")), 1440, 1620, 4080,
             255),
      Placed(MakeControl("Label5", kind::kLabel,
                         "Warning: this program is protected by copyright law. Copying or "
                         "passing on the program, or any part of it, without the maker's leave "
                         "is not allowed."),
             240, 2100, 3840, 1005),
      Placed(MakeControl("lblBuild", kind::kLabel, ""), 1440, 660, 4080, 255),
      Placed(MakeControl("lblTool", kind::kLabel, ""), 1440, 960, 4080, 255),
      Placed(MakeControl("cmdSystemInfo", kind::kButton, "System Info"), 4320, 2580, 1200, 375),
  };
}

}  // namespace

fAbout::fAbout(AddinState& s) : FormModel("About", kHeight, Layout()), s_(s) {
  SetWidth(kWidth);
  At("lblBuild").caption = "Build " + GetVersionText();
  At("lblTool").caption = s.main.strToolName;
  On("cmdOK", "Click", [this](EventArgs&) { Unload(); });
  On("cmdSystemInfo", "Click", [this](EventArgs&) { StartSysInfo(); });
}

bool fAbout::StartTool(const std::string& path) {
  return s_.system().Launch(path, "", kNormalFocus);
}

void fAbout::StartSysInfo() noexcept {
  Trapped(s_, "fAbout.StartSysInfo", [&](Line& line) {
    // Whatever fails on the way to the tool ends in the message.
    bool started = false;
    IgnoreFailure(s_.err, [&] {
      line = 10;
      std::string path;
      if (GetKeyValue(s_.registry(), platform::Hive::LocalMachine, kSysInfoPathKey,
                      kSysInfoPathValue, path)) {
        line = 20;
        started = StartTool(path);
      } else if (GetKeyValue(s_.registry(), platform::Hive::LocalMachine, kSysInfoFolderKey,
                             kSysInfoFolderValue, path)) {
        line = 30;
        path += kSysInfoProgram;
        started = s_.system().FileExists(path) && StartTool(path);
      }
    });
    s_.err.Clear();
    line = 40;
    if (!started) {
      s_.ui().MessageBox(kSysInfoUnavailable, platform::msgbox::kOkOnly, kMessageTitle);
    }
  });
}

void ShowAbout(AddinState& s) noexcept {
  Trapped(s, "Main.ShowAbout", [&](Line& line) {
    line = 10;
    fAbout form(s);
    line = 20;
    s.ui().ShowModal(form);
  });
}

}  // namespace qvx
