// fAbout, "About": the product's name and picture, the build, the tool's name,
// and a start of the system's information tool. Constructing it is the form's
// load: lblBuild reads "Build " and the version, lblTool the tool's name.
//
//   ShowAbout(s);   // the ribbon's cmdAbout, the menu's "About Quorvix"
//
// cmdOK (also Enter and Esc) unloads the form; cmdSystemInfo starts the tool
// that the machine's registry names (StartSysInfo), or says that it cannot.
#pragma once

#include <string>
#include <string_view>

#include "platform/form_model.h"
#include "platform/registry_api.h"

namespace qvx {

class AddinState;

class fAbout : public platform::FormModel {
 public:
  explicit fAbout(AddinState& s);

  // The tool's registry entries under HKEY_LOCAL_MACHINE: its whole path, or
  // the folder that holds kSysInfoProgram.
  static constexpr std::string_view kSysInfoPathKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
  static constexpr std::string_view kSysInfoPathValue = "PATH";
  static constexpr std::string_view kSysInfoFolderKey =
      "SOFTWARE\\Microsoft\\Shared Tools Location";
  static constexpr std::string_view kSysInfoFolderValue = "MSINFO";
  static constexpr std::string_view kSysInfoProgram = "\\MSINFO32.EXE";
  static constexpr std::string_view kSysInfoUnavailable =
      "System Information Is Unavailable At This Time";

  // Starts the tool at the path of the first entry; else, when the second
  // entry's folder holds the program, that one; else, or when the start
  // fails, shows kSysInfoUnavailable.
  void StartSysInfo() noexcept;

  // One text value read from any hive, the key opened with RegOpenKeyExA
  // and access 0x2003F and closed on every way out. True and `Value` set
  // when the key opens and the value is read; otherwise false, with `Value`
  // emptied when the key does not open and left as it was when the value
  // cannot be read. The text is cut at its first terminator; a value longer
  // than kKeyValueBufferSize bytes with its terminator is no value.
  static constexpr size_t kKeyValueBufferSize = 1024;
  static bool GetKeyValue(platform::RegistryApi& registry, platform::Hive Root,
                          std::string_view KeyName, std::string_view ValueName, std::string& Value);

 private:
  // Starts the program; false if it could not be started.
  bool StartTool(const std::string& path);

  AddinState& s_;
};

// Shows a new fAbout modally. Trap "Main.ShowAbout".
void ShowAbout(AddinState& s) noexcept;

}  // namespace qvx
