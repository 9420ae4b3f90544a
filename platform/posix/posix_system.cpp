#include "platform/posix/posix_system.h"

#include <limits.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <fstream>

#include "core/dates.h"
#include "core/text.h"

extern char** environ;

namespace qvx::platform {
namespace {

constexpr int kCsidlFlagCreate = 0x8000;
constexpr long kShellExecuteDone = 42;  // any value above 32 is success
constexpr long kShellExecuteNotFound = 2;

std::string StripTrailingSlash(std::string path) {
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

std::string ProgramFolder() {
  char buffer[PATH_MAX];
  const ssize_t n = readlink("/proc/self/exe", buffer, sizeof buffer - 1);
  if (n <= 0) return {};
  std::string exe(buffer, static_cast<size_t>(n));
  const size_t slash = exe.rfind('/');
  return slash == std::string::npos ? std::string() : exe.substr(0, slash);
}

bool OnPath(const std::string& program) {
  const char* path = std::getenv("PATH");
  if (path == nullptr) return false;
  for (const std::string& dir : Split(path, ":")) {
    if (!dir.empty() && access((dir + "/" + program).c_str(), X_OK) == 0) return true;
  }
  return false;
}

}  // namespace

PosixSystemServices::PosixSystemServices(PosixSystemOptions options)
    : options_(std::move(options)) {}

PosixSystemServices::~PosixSystemServices() {
  ReapChildren();
}

std::string PosixSystemServices::NativePath(std::string_view path) {
  std::string out(path);
  for (char& c : out) {
    if (c == '\\') c = '/';
  }
  return out;
}

std::string PosixSystemServices::SpecialFolder(int folder, int /*flags*/) {
  std::string home = options_.home;
  if (home.empty()) {
    const char* env = std::getenv("HOME");
    if (env != nullptr) home = env;
  }
  if (home.empty()) return {};
  home = StripTrailingSlash(home);
  std::string path;
  switch (folder & 0xFF) {
    case 0:  // desktop
      path = home + "/Desktop";
      break;
    case 5:  // documents
      path = home + "/Documents";
      break;
    case 0x1A:  // roaming application data
      path = home + "/.config";
      break;
    case 0x1C:  // local application data
      path = home + "/.local/share";
      break;
    case 0x28:  // the user's profile
      path = home;
      break;
    default:
      return {};
  }
  if ((folder & kCsidlFlagCreate) != 0 && !FolderExists(path)) {
    mkdir(path.c_str(), 0777);
  }
  return path;
}

std::string PosixSystemServices::AddinFolder() {
  if (!options_.addinFolder.empty()) return StripTrailingSlash(NativePath(options_.addinFolder));
  if (const char* env = std::getenv("QVX_ADDIN_FOLDER"); env != nullptr && *env != '\0') {
    return StripTrailingSlash(NativePath(env));
  }
  return ProgramFolder();
}

bool PosixSystemServices::FileExists(std::string_view path) {
  struct stat st {};
  return stat(NativePath(path).c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

bool PosixSystemServices::FolderExists(std::string_view path) {
  struct stat st {};
  return stat(NativePath(path).c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool PosixSystemServices::CreateFolder(std::string_view path) {
  const std::string native = StripTrailingSlash(NativePath(path));
  return !native.empty() && mkdir(native.c_str(), 0777) == 0;
}

bool PosixSystemServices::AppendToFile(std::string_view path, std::string_view text) {
  std::ofstream out(NativePath(path), std::ios::app | std::ios::binary);
  if (!out) return false;
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  return static_cast<bool>(out);
}

bool PosixSystemServices::Spawn(const std::string& program, const std::vector<std::string>& args,
                                pid_t& pid) {
  std::vector<char*> argv;
  std::string arg0 = program;
  argv.push_back(arg0.data());
  std::vector<std::string> copies = args;
  for (std::string& a : copies) argv.push_back(a.data());
  argv.push_back(nullptr);
  const bool searchPath = program.find('/') == std::string::npos;
  const int rc = searchPath
                     ? posix_spawnp(&pid, program.c_str(), nullptr, nullptr, argv.data(), environ)
                     : posix_spawn(&pid, program.c_str(), nullptr, nullptr, argv.data(), environ);
  if (rc != 0) return false;
  children_.push_back(pid);
  return true;
}

void PosixSystemServices::ReapChildren() {
  std::erase_if(children_, [](pid_t pid) {
    int status = 0;
    const pid_t r = waitpid(pid, &status, WNOHANG);
    return r == pid || (r < 0 && errno == ECHILD);
  });
}

void PosixSystemServices::WaitForChildren() {
  for (pid_t pid : children_) {
    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
  }
  children_.clear();
}

bool PosixSystemServices::Launch(std::string_view path, std::string_view argument,
                                 int windowStyle) {
  ReapChildren();
  LaunchRecord record{std::string(path), std::string(argument), windowStyle, false, 0};
  bool ok = true;
  if (options_.spawn) {
    std::vector<std::string> args;
    if (!argument.empty()) args.emplace_back(argument);
    // A bare name would be looked up on PATH; the launcher means a file here.
    std::string program = NativePath(path);
    if (program.find('/') == std::string::npos) program = "./" + program;
    ok = Spawn(program, args, record.pid);
    record.started = ok;
  }
  launches_.push_back(std::move(record));
  return ok;
}

long PosixSystemServices::ShellExecute(std::string_view file) {
  ReapChildren();
  shellOpens_.emplace_back(file);
  if (options_.spawn && options_.useXdgOpen && OnPath("xdg-open")) {
    pid_t pid = 0;
    return Spawn("xdg-open", {std::string(file)}, pid) ? kShellExecuteDone : kShellExecuteNotFound;
  }
  return kShellExecuteDone;
}

bool PosixSystemServices::RunCommandLine(std::string_view commandLine, int /*windowStyle*/) {
  // Nothing here needs registering again (regsvr32 repairs): recorded only.
  commandLines_.emplace_back(commandLine);
  return true;
}

void PosixSystemServices::SetEnvironment(std::string_view name, std::string_view value) {
  options_.environment[std::string(name)] = std::string(value);
}

std::string PosixSystemServices::Environment(std::string_view name) {
  // Windows variable names are case-blind.
  for (const auto& [key, value] : options_.environment) {
    if (EqualsText(key, name)) return value;
  }
  const std::string key(name);
  if (const char* v = std::getenv(key.c_str()); v != nullptr) return v;
  if (EqualsText(name, "USERNAME")) {
    for (const char* alt : {"USER", "LOGNAME"}) {
      if (const char* v = std::getenv(alt); v != nullptr) return v;
    }
  }
  return {};
}

DateValue PosixSystemServices::Now() {
  if (fixedNow_) return *fixedNow_;
  const std::time_t t = std::time(nullptr);
  std::tm local{};
  localtime_r(&t, &local);
  return ComposeDate(DateParts{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour,
                               local.tm_min, local.tm_sec});
}

void PosixSystemServices::DoEvents() {
  ReapChildren();
  if (doEvents_) doEvents_();
}

void PosixSystemServices::ClearRecords() {
  launches_.clear();
  shellOpens_.clear();
  commandLines_.clear();
}

}  // namespace qvx::platform
