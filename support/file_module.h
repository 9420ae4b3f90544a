// File and process services: the one launcher, the file system object and
// the repair of the scripting runtime's registration.
//
//   FileModule::RunApp(s, "QuorvixClient", "0|StoreID|entries", "");
//     -> runs "<add-in folder>\QuorvixClient.exe" with the one argument
//   FileModule::RunApp(s, ProductWebPage("/x.asp"), "", "");
//     -> hands the link to the shell
//
// Paths are built in the Windows form with "\"; the POSIX platform reads them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qvx {

class AddinState;

namespace FileModule {

// Starts a program "<folder>\<name>.exe" (the add-in's folder when `folder`
// is empty or lacks it) with `parameters`, or opens a link when `name` starts
// with "HTTP" or "MAIL" in any case. Never waits. A missing program shows
// "Exception occured when running the file <path>"; a failed start is silent.
void RunApp(AddinState& s, std::string_view strName, std::string_view strParameters,
            std::string_view strFolder) noexcept;

// Makes sure of s.support.objFSO, repairing the runtime's registration once
// per process if creation fails. The object may still be Nothing afterwards.
void Initialize(AddinState& s) noexcept;

// Registers the scripting runtime again ("regsvr32 scrrun.dll /s"), without
// waiting; failures are ignored and cleared.
void RepairScriptingRuntime(AddinState& s) noexcept;

}  // namespace FileModule

// Removes one trailing "/" or "\"; clears the pending error.
std::string RemoveTrailingSlash(AddinState& s, std::string_view path) noexcept;
// The path of a special folder (5: the user's documents), or "".
std::string GetSpecialFolder(AddinState& s, int32_t folder, int32_t flags) noexcept;
// Opens a target by the shell; failures are ignored and cleared.
void ShellOpen(AddinState& s, std::string_view target) noexcept;

}  // namespace qvx
