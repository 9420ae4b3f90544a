#include "platform/posix/file_registry.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <numeric>
#include <utility>

#include "core/text.h"
#include "platform/posix/unique_fd.h"

namespace qvx::platform {
namespace {

using regfile::Contents;
using regfile::Verdict;

// Larger than any registry this program writes; a bigger file is not ours.
constexpr off_t kMaxFileBytes = 16 * 1024 * 1024;

enum class FileRead { Missing, Unreadable, Read };

// `st` receives the status of the file whose bytes were read.
FileRead ReadWhole(const std::string& path, std::string& out, struct stat& st) {
  out.clear();
  // Non-blocking, so that a FIFO or device in its place cannot hang a read.
  const UniqueFd fd(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
  if (!fd) return errno == ENOENT ? FileRead::Missing : FileRead::Unreadable;
  FileRead result = FileRead::Read;
  if (::fstat(fd.get(), &st) != 0 || !S_ISREG(st.st_mode) || st.st_size > kMaxFileBytes) {
    result = FileRead::Unreadable;
  } else {
    char buffer[8192];
    while (true) {
      const ssize_t n = ::read(fd.get(), buffer, sizeof buffer);
      if (n == 0) break;
      if (n < 0) {
        if (errno == EINTR) continue;
        result = FileRead::Unreadable;
        break;
      }
      out.append(buffer, static_cast<size_t>(n));
      if (out.size() > static_cast<size_t>(kMaxFileBytes)) {
        result = FileRead::Unreadable;
        break;
      }
    }
  }
  if (result != FileRead::Read) out.clear();
  return result;
}

// mkdir -p of the folder that holds `path`.
void EnsureParentFolder(const std::string& path) {
  for (size_t at = path.find('/', 1); at != std::string::npos; at = path.find('/', at + 1)) {
    ::mkdir(path.substr(0, at).c_str(), 0700);  // an existing folder is fine
  }
}

bool WriteAll(int fd, const std::string& text) {
  size_t done = 0;
  while (done < text.size()) {
    const ssize_t n = ::write(fd, text.data() + done, text.size() - done);
    if (n < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    done += static_cast<size_t>(n);
  }
  return true;
}

// Serialises writers of one file across processes; best effort: without the
// lock a write still replaces the file whole.
// Closing the descriptor releases the lock.
UniqueFd LockFile(const std::string& path) {
  UniqueFd fd(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOCTTY, 0600));
  if (fd) {
    while (::flock(fd.get(), LOCK_EX) != 0 && errno == EINTR) {
    }
  }
  return fd;
}

bool IsUtf8(std::string_view s) {
  return SanitizeUtf8(s) == s;
}

// The UTF-16 length of valid UTF-8 (the store holds no other text): one
// unit a code point, two for those past U+FFFF.
size_t Utf16Units(std::string_view utf8) {
  size_t units = 0;
  for (const char c : utf8) {
    const auto b = static_cast<unsigned char>(c);
    units += static_cast<size_t>((b & 0xC0) != 0x80) + static_cast<size_t>(b >= 0xF0);
  }
  return units;
}

int64_t Nanoseconds(const struct timespec& t) {
  return static_cast<int64_t>(t.tv_sec) * 1'000'000'000 + t.tv_nsec;
}

}  // namespace

FileRegistry::FileRegistry(std::string path, std::string machinePath) {
  user_.path = path.empty() ? DefaultLocation() : std::move(path);
  machine_.path = machinePath.empty() ? MachineLocationBeside(user_.path) : std::move(machinePath);
}

std::string FileRegistry::DefaultLocation() {
  if (const char* file = std::getenv("QVX_REGISTRY_FILE"); file != nullptr && *file != '\0') {
    return file;
  }
  if (const char* data = std::getenv("XDG_DATA_HOME"); data != nullptr && data[0] == '/') {
    return std::string(data) + "/quorvix/registry.txt";
  }
  if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') {
    return std::string(home) + "/.local/share/quorvix/registry.txt";
  }
  return "quorvix-registry.txt";
}

std::string FileRegistry::MachineLocationBeside(std::string_view userFile) {
  if (const char* file = std::getenv("QVX_MACHINE_REGISTRY_FILE");
      file != nullptr && *file != '\0') {
    return file;
  }
  const size_t slash = userFile.rfind('/');
  const std::string_view folder =
      slash == std::string_view::npos ? std::string_view() : userFile.substr(0, slash + 1);
  return std::string(folder) + "machine-registry.txt";
}

FileRegistry::FileStamp FileRegistry::StampOf(const struct stat& st) {
  return FileStamp{static_cast<uint64_t>(st.st_dev), static_cast<uint64_t>(st.st_ino),
                   static_cast<int64_t>(st.st_size), Nanoseconds(st.st_ctim)};
}

void FileRegistry::Stamp(HiveFile& file, const struct stat& st) const {
  file.lastStamp = StampOf(st);
  struct timespec now {};
  ::clock_gettime(CLOCK_REALTIME, &now);
  // A write after this moment gets a change time of at least now less one
  // tick, so it cannot repeat a change time that lies further back.
  file.stampTrusted = file.lastStamp.changedNs < Nanoseconds(now) - settle_.count();
}

Verdict FileRegistry::Load(HiveFile& file) {
  if (file.haveLast && file.stampTrusted) {
    struct stat st {};
    if (::stat(file.path.c_str(), &st) == 0 && StampOf(st) == file.lastStamp) {
      return file.lastVerdict;
    }
  }
  std::string bytes;
  struct stat st {};
  ++fileReads_;
  switch (ReadWhole(file.path, bytes, st)) {
    case FileRead::Missing:
      file.haveLast = false;
      file.contents = Contents{};
      return Verdict::Empty;
    case FileRead::Unreadable:
      file.haveLast = false;
      file.contents = Contents{};
      return Verdict::Foreign;
    case FileRead::Read:
      break;
  }
  Stamp(file, st);
  if (file.haveLast && bytes == file.lastBytes) return file.lastVerdict;
  file.lastVerdict = regfile::Parse(bytes, file.contents);
  file.lastBytes = std::move(bytes);
  file.haveLast = true;
  return file.lastVerdict;
}

template <class Change>
long FileRegistry::Update(HiveFile& file, Change&& change) {
  EnsureParentFolder(file.path);
  const UniqueFd lock = LockFile(file.path + ".lock");
  const Verdict verdict = Load(file);
  if (verdict == Verdict::Foreign) return kErrorAccessDenied;
  Contents next = file.contents;  // empty unless the file was valid
  const bool changed = std::forward<Change>(change)(next);
  if (!changed && verdict == Verdict::Valid) return kErrorSuccess;
  std::string text = regfile::Serialize(next);
  if (!WriteAtomically(file.path, text)) return kErrorAccessDenied;
  file.contents = std::move(next);
  file.lastBytes = std::move(text);
  file.lastVerdict = Verdict::Valid;
  file.haveLast = true;
  // Under the lock nobody else writes: the file now is the one just written.
  struct stat st {};
  if (::stat(file.path.c_str(), &st) == 0) {
    Stamp(file, st);
  } else {
    file.stampTrusted = false;
  }
  return kErrorSuccess;
}

bool FileRegistry::WriteAtomically(const std::string& path, const std::string& text) {
  std::string name = path + ".tmp.XXXXXX";
  UniqueFd fd(::mkstemp(name.data()));
  if (!fd) return false;
  ::fcntl(fd.get(), F_SETFD, FD_CLOEXEC);
  const bool written = WriteAll(fd.get(), text);
  const bool closed = ::close(fd.Detach()) == 0;
  if (!written || !closed || ::rename(name.c_str(), path.c_str()) != 0) {
    ::unlink(name.c_str());
    return false;
  }
  return true;
}

RegistryApi::Key FileRegistry::HandleFor(Hive hive, const std::string& keyPath) {
  std::string folded = FoldCase(keyPath);
  folded.insert(0, hive == Hive::LocalMachine ? "M:" : "U:");
  auto it = handleIndex_.find(folded);
  if (it == handleIndex_.end()) {
    it = handleIndex_.emplace(folded, handlePaths_.size()).first;
    handlePaths_.push_back(OpenKeyPath{hive, keyPath});
  }
  ++handlePaths_[it->second].opens;
  return static_cast<Key>(it->second + 1);
}

const FileRegistry::OpenKeyPath* FileRegistry::PathOf(Key key) const {
  if (key == 0 || key > handlePaths_.size()) return nullptr;
  // A handle closed as often as it was opened is gone, as on Windows: no
  // read, write or close through it succeeds until the path is opened again.
  const OpenKeyPath& open = handlePaths_[key - 1];
  return open.opens == 0 ? nullptr : &open;
}

long FileRegistry::CreateKey(Hive hive, std::u16string_view subKey, Key& key) {
  key = 0;
  const std::string path = Utf16ToUtf8(subKey);
  if (!path.empty()) {
    const long result = Update(File(hive), [&](Contents& c) {
      if (c.HasKey(path)) return false;
      c.AddKey(path);
      return true;
    });
    if (result != kErrorSuccess) return result;
  }
  key = HandleFor(hive, path);
  return kErrorSuccess;
}

long FileRegistry::SetStringValue(Key key, std::u16string_view name, std::u16string_view data) {
  const OpenKeyPath* open = PathOf(key);
  if (open == nullptr) return kErrorInvalidHandle;
  Value value{kRegSz, Utf16ToUtf8(data)};
  const std::string valueName = Utf16ToUtf8(name);
  return Update(File(open->hive),
                [&](Contents& c) { return c.Set(open->path, valueName, std::move(value)); });
}

long FileRegistry::OpenKey(Hive hive, std::u16string_view subKey, uint32_t access, Key& key) {
  return OpenKeyA(hive, Utf16ToUtf8(subKey), access, key);
}

long FileRegistry::OpenKeyA(Hive hive, std::string_view ansiSubKey, uint32_t, Key& key) {
  key = 0;
  const std::string path(ansiSubKey);
  HiveFile& file = File(hive);
  Load(file);
  if (!path.empty() && !file.contents.HasKey(path)) return kErrorFileNotFound;
  key = HandleFor(hive, path);
  return kErrorSuccess;
}

const regfile::Value* FileRegistry::FindValue(Key key, std::string_view name) {
  const OpenKeyPath* open = PathOf(key);
  if (open == nullptr) return nullptr;
  HiveFile& file = File(open->hive);
  Load(file);
  return file.contents.Find(open->path, name);
}

long FileRegistry::QueryValueInfoA(Key key, std::string_view ansiName, uint32_t& type,
                                   uint32_t& size) {
  if (PathOf(key) == nullptr) return kErrorInvalidHandle;
  const Value* value = FindValue(key, ansiName);
  if (value == nullptr) return kErrorFileNotFound;
  type = value->type;
  if (regfile::IsTextType(value->type)) {
    const size_t units = Utf16Units(value->data);
    size = units == 0 ? 0 : static_cast<uint32_t>(units + 1);
  } else {
    size = static_cast<uint32_t>(value->data.size());
  }
  return kErrorSuccess;
}

long FileRegistry::QueryValueA(Key key, std::string_view ansiName, uint32_t& type,
                               std::string& buffer) {
  if (PathOf(key) == nullptr) return kErrorInvalidHandle;
  const Value* value = FindValue(key, ansiName);
  if (value == nullptr) return kErrorFileNotFound;
  type = value->type;
  std::string bytes = value->data;
  if (regfile::IsTextType(value->type)) bytes += '\0';
  if (bytes.size() > buffer.size()) return kErrorMoreData;
  buffer = std::move(bytes);
  return kErrorSuccess;
}

long FileRegistry::QueryValueW(Key key, std::u16string_view name, std::u16string& buffer) {
  if (PathOf(key) == nullptr) return kErrorInvalidHandle;
  const Value* value = FindValue(key, Utf16ToUtf8(name));
  if (value == nullptr) return kErrorFileNotFound;
  if (regfile::IsTextType(value->type)) {
    const std::u16string text = Utf8ToUtf16(value->data);
    if (text.size() > buffer.size()) return kErrorMoreData;
    text.copy(buffer.data(), text.size());
    return kErrorSuccess;
  }
  const std::string& bytes = value->data;
  if ((bytes.size() + 1) / 2 > buffer.size()) return kErrorMoreData;
  for (size_t i = 0; i < bytes.size(); ++i) {
    const auto b = static_cast<char16_t>(static_cast<unsigned char>(bytes[i]));
    buffer[i / 2] = static_cast<char16_t>(i % 2 == 0 ? (buffer[i / 2] & 0xFF00) | b
                                                     : (buffer[i / 2] & 0x00FF) | (b << 8));
  }
  return kErrorSuccess;
}

long FileRegistry::QueryValueUtf8(Key key, std::string_view name, uint32_t units,
                                  std::string& text) {
  if (PathOf(key) == nullptr) return kErrorInvalidHandle;
  const Value* value = FindValue(key, name);
  if (value == nullptr) return kErrorFileNotFound;
  // A value that fills the buffer exactly up to its terminator is the text
  // as held; the rest (other types, a size changed since it was asked) take
  // the wide call's path with its padding and truncation.
  if (!regfile::IsTextType(value->type) || units == 0 || Utf16Units(value->data) != units - 1) {
    return RegistryApi::QueryValueUtf8(key, name, units, text);
  }
  text = value->data;
  return kErrorSuccess;
}

size_t FileRegistry::OpenHandles() const noexcept {
  return std::accumulate(handlePaths_.begin(), handlePaths_.end(), size_t{0},
                         [](size_t sum, const OpenKeyPath& p) { return sum + p.opens; });
}

long FileRegistry::CloseKey(Key key) {
  // Closing twice fails, so that it cannot hide a key left open elsewhere.
  if (PathOf(key) == nullptr) return kErrorInvalidHandle;
  --handlePaths_[key - 1].opens;
  return kErrorSuccess;
}

bool FileRegistry::SetValue(std::string_view keyPath, std::string_view name, const Value& value,
                            Hive hive) {
  if (keyPath.empty() || !IsUtf8(keyPath) || !IsUtf8(name) || !regfile::IsStorable(value)) {
    return false;
  }
  return Update(File(hive), [&](Contents& c) { return c.Set(keyPath, name, value); }) ==
         kErrorSuccess;
}

bool FileRegistry::SetString(std::string_view keyPath, std::string_view name, std::string_view text,
                             Hive hive) {
  return SetValue(keyPath, name, Value{kRegSz, std::string(text)}, hive);
}

bool FileRegistry::SetDword(std::string_view keyPath, std::string_view name, uint32_t value,
                            Hive hive) {
  std::string bytes;
  for (int i = 0; i < 4; ++i) bytes += static_cast<char>((value >> (8 * i)) & 0xFF);
  return SetValue(keyPath, name, Value{kRegDword, std::move(bytes)}, hive);
}

bool FileRegistry::SetBinary(std::string_view keyPath, std::string_view name,
                             std::string_view bytes, Hive hive) {
  return SetValue(keyPath, name, Value{kRegBinary, std::string(bytes)}, hive);
}

std::optional<FileRegistry::Value> FileRegistry::ReadValue(std::string_view keyPath,
                                                           std::string_view name, Hive hive) {
  HiveFile& file = File(hive);
  Load(file);
  const Value* value = file.contents.Find(keyPath, name);
  if (value == nullptr) return std::nullopt;
  return *value;
}

std::optional<std::string> FileRegistry::ReadString(std::string_view keyPath, std::string_view name,
                                                    Hive hive) {
  std::optional<Value> value = ReadValue(keyPath, name, hive);
  if (!value || value->type != kRegSz) return std::nullopt;
  return std::move(value->data);
}

std::vector<FileRegistry::NamedValue> FileRegistry::ListValues(std::string_view keyPath,
                                                               Hive hive) {
  std::vector<NamedValue> out;
  HiveFile& file = File(hive);
  Load(file);
  if (const auto* values = file.contents.keys.Find(keyPath)) {
    for (const auto& entry : *values) out.push_back(NamedValue{entry.key, entry.value});
  }
  return out;
}

bool FileRegistry::KeyExists(std::string_view keyPath, Hive hive) {
  HiveFile& file = File(hive);
  Load(file);
  return file.contents.HasKey(keyPath);
}

}  // namespace qvx::platform
