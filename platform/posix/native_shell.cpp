// The stand-ins of "Wscript.Shell" and "Scripting.FileSystemObject".
#include <memory>

#include "platform/posix/native_object.h"
#include "platform/posix/posix_objects.h"

namespace qvx::platform {

std::pair<std::string, std::string> SplitRunCommand(std::string_view command) {
  if (command.size() >= 2 && command.front() == '"') {
    const size_t close = command.find('"', 1);
    if (close != std::string_view::npos) {
      std::string_view rest = command.substr(close + 1);
      if (!rest.empty() && rest.front() == ' ') rest.remove_prefix(1);
      return {std::string(command.substr(1, close - 1)), std::string(rest)};
    }
  }
  return {std::string(command), std::string()};
}

std::string ExpandEnvironment(SystemServices& system, std::string_view text) {
  std::string out;
  size_t at = 0;
  while (at < text.size()) {
    const size_t open = text.find('%', at);
    if (open == std::string_view::npos) break;
    const size_t close = text.find('%', open + 1);
    if (close == std::string_view::npos) break;
    const std::string_view name = text.substr(open + 1, close - open - 1);
    const std::string value = name.empty() ? std::string() : system.Environment(name);
    out.append(text.substr(at, open - at));
    if (value.empty()) {
      // Unset: left as it stands, and its closing % may open the next name.
      out.push_back('%');
      at = open + 1;
    } else {
      out.append(value);
      at = close + 1;
    }
  }
  out.append(text.substr(at));
  return out;
}

Object MakeWscriptShell(SystemServices& system) {
  auto shell = std::make_shared<NativeObject>("IWshShell3");
  SystemServices* sys = &system;
  shell->Define("Run", [sys](InvokeKind, std::vector<Variant>& args) {
    const std::string command = RequiredArg(args, 0).ToText();
    const int style = args.size() > 1 ? args[1].ToLong() : 1;
    const auto [path, argument] = SplitRunCommand(command);
    if (!sys->Launch(path, argument, style)) {
      throw Failure(kFileNotFoundHResult, "WshShell.Run",
                    "The system cannot find the file specified.");
    }
    return Variant(int32_t{0});
  });
  shell->Define("ExpandEnvironmentStrings", [sys](InvokeKind, std::vector<Variant>& args) {
    return Variant(ExpandEnvironment(*sys, RequiredArg(args, 0).ToText()));
  });
  return Object(shell);
}

namespace {

Object MakeFolder(std::string path) {
  auto folder = std::make_shared<NativeObject>("Folder");
  folder->Define("Path", [path](InvokeKind, std::vector<Variant>&) { return Variant(path); });
  folder->Define("Name", [path](InvokeKind, std::vector<Variant>&) {
    std::string_view p = path;
    while (!p.empty() && (p.back() == '\\' || p.back() == '/')) p.remove_suffix(1);
    const size_t slash = p.find_last_of("\\/");
    return Variant(slash == std::string_view::npos ? p : p.substr(slash + 1));
  });
  return Object(folder);
}

}  // namespace

Object MakeFileSystemObject(SystemServices& system) {
  auto fso = std::make_shared<NativeObject>("FileSystemObject");
  SystemServices* sys = &system;
  fso->Define("FileExists", [sys](InvokeKind, std::vector<Variant>& args) {
    return Variant(sys->FileExists(RequiredArg(args, 0).ToText()));
  });
  fso->Define("FolderExists", [sys](InvokeKind, std::vector<Variant>& args) {
    return Variant(sys->FolderExists(RequiredArg(args, 0).ToText()));
  });
  fso->Define("CreateFolder", [sys](InvokeKind, std::vector<Variant>& args) {
    const std::string path = RequiredArg(args, 0).ToText();
    if (sys->FolderExists(path) || sys->FileExists(path)) {
      throw Failure(58, "Microsoft VBScript runtime error", "File already exists");
    }
    if (!sys->CreateFolder(path)) {
      throw Failure(76, "Microsoft VBScript runtime error", "Path not found");
    }
    return Variant(MakeFolder(path));
  });
  return Object(fso);
}

}  // namespace qvx::platform
