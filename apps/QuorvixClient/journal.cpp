#include "apps/QuorvixClient/journal.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace qvx::standin {
namespace {

std::string Env(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

// mkdir -p of the folder that holds `path`.
bool MakeParents(const std::string& path) {
  for (size_t slash = path.find('/', 1); slash != std::string::npos;
       slash = path.find('/', slash + 1)) {
    const std::string folder = path.substr(0, slash);
    if (mkdir(folder.c_str(), 0755) != 0 && errno != EEXIST) return false;
  }
  return true;
}

}  // namespace

std::string JournalPath() {
  if (std::string path = Env("QVX_COMPANION_JOURNAL"); !path.empty()) return path;
  std::string data = Env("XDG_DATA_HOME");
  if (data.empty()) data = Env("HOME") + "/.local/share";
  return data + "/quorvix/companion-journal.txt";
}

std::string JournalLine(std::string_view program, std::string_view kind,
                        std::string_view argument) {
  std::string line;
  line.reserve(program.size() + kind.size() + argument.size() + 3);
  line.append(program).append("\t").append(kind).append("\t");
  for (unsigned char c : argument) {
    if (c < 0x20 || c == 0x7f) {
      char escaped[5];
      std::snprintf(escaped, sizeof escaped, "\\x%02X", c);
      line += escaped;
    } else {
      line += static_cast<char>(c);
    }
  }
  line += '\n';
  return line;
}

bool AppendJournalLine(const std::string& path, std::string_view line, std::string& error) {
  if (!MakeParents(path)) {
    error = "cannot create the folder of " + path + ": " + std::strerror(errno);
    return false;
  }
  const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
  if (fd < 0) {
    error = "cannot open " + path + ": " + std::strerror(errno);
    return false;
  }
  ssize_t written;
  do {
    written = write(fd, line.data(), line.size());
  } while (written < 0 && errno == EINTR);
  const int writeErrno = errno;
  close(fd);
  if (written != static_cast<ssize_t>(line.size())) {
    error = "cannot write " + path + ": " +
            (written < 0 ? std::strerror(writeErrno) : std::string("short write"));
    return false;
  }
  return true;
}

}  // namespace qvx::standin
