#include "companion/companion_launch.h"

#include <string>

#include "companion/command_lines.h"
#include "companion/section_codes.h"
#include "core/failure.h"
#include "platform/user_interface.h"
#include "settings/my_settings.h"
#include "support/app_texts.h"
#include "support/endpoints.h"
#include "support/file_module.h"
#include "support/host_items.h"

namespace qvx {
void subLoadSection(AddinState& s, int32_t lngSection) noexcept {
  Trapped(s, "Main.subLoadSection", [&](Line& line) {
    line = 10;
    s.companion.lngLastSection = lngSection;
    line = 20;
    const std::string text = std::to_string(lngSection);
    line = 30;
    FileModule::RunApp(s, companion::kClientProgram, text, "");
  });
}

void subLoadOLAPStatistics(AddinState& s) noexcept {
  Trapped(s, "Main.subLoadOLAPStatistics", [&](Line& line) {
    line = 10;
    const cMySettings& settings = s.main.Settings();
    std::string connection = settings.DBConnectionString;
    line = 20;
    if (connection.empty()) {
      s.ui().MessageBox(
          "Please configure the database connectivity first before running statistical tool!",
          platform::msgbox::kCritical, kMessageTitle);
      return;
    }
    line = 30;
    // DBChoice 0: the setting names the folder of the file database.
    if (settings.DBChoice == 0) connection = companion::FileDatabaseConnection(connection);
    line = 40;
    const std::string userName = GetCurrentUserName(s);
    line = 50;
    const std::string text = companion::StatisticsCommand(connection, userName);
    line = 60;
    FileModule::RunApp(s, companion::kStatisticsProgram, text, "");
  });
}

void GotoVideoTutorial(AddinState& s) noexcept {
  Trapped(s, "Main.GotoVideoTutorial", [&](Line& line) {
    line = 10;
    FileModule::RunApp(s, ProductWebPage("/Quorvix/TutorialClips.asp"), "", "");
  });
}

}  // namespace qvx
