// FileRegistry: the registry of the POSIX build, a file of typed values under
// key paths for each hive (the format: docs/registry-file.md). The user's file
// stands for HKEY_CURRENT_USER, a second file beside it for
// HKEY_LOCAL_MACHINE. Both are shared with other processes (the companion
// stand-ins), so:
//
// - every open and query sees another process's write: the file is read
//   again whenever its identity, size or change time differs from the last
//   read, and also while its change time is too recent to tell two writes
//   within one clock tick apart;
// - every write replaces the file atomically (temporary file, then rename)
//   under an advisory lock, so a reader never sees half a write;
// - a missing, empty, cut, foreign or garbage file reads as "no values", and a
//   read never writes. A write replaces a missing, empty or damaged file of
//   this format, but refuses (access denied) to replace a foreign one.
//
// Key paths are relative to the hive, as "Software\Zenbrook\QVX". Keys and
// value names compare without regard to case, like the registry's. The direct
// calls work on the user's hive unless told another.
//
//   FileRegistry registry;  // QVX_REGISTRY_FILE, or the user's data folder
//   registry.SetString("Software\\Zenbrook\\QVX", "DBChoice", "0");
//   registry.SetString("SOFTWARE\\Vendor", "PATH", "C:\\x.exe", Hive::LocalMachine);
//   std::optional<std::string> v = registry.ReadString("Software\\Zenbrook\\QVX", "DBChoice");
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/posix/file_registry_format.h"
#include "platform/registry_api.h"

struct stat;

namespace qvx::platform {

class FileRegistry final : public RegistryApi {
 public:
  using Value = regfile::Value;
  struct NamedValue {
    std::string name;
    Value value;
  };

  // The user's file at `path` (empty: DefaultLocation()) and the machine's
  // at `machinePath` (empty: MachineLocationBeside(the user's file)).
  explicit FileRegistry(std::string path = {}, std::string machinePath = {});

  // $QVX_REGISTRY_FILE if set, else "quorvix/registry.txt" under
  // $XDG_DATA_HOME, else under $HOME/.local/share.
  static std::string DefaultLocation();
  // $QVX_MACHINE_REGISTRY_FILE if set, else "machine-registry.txt" in the
  // folder of `userFile`.
  static std::string MachineLocationBeside(std::string_view userFile);
  const std::string& path(Hive hive = Hive::CurrentUser) const noexcept { return File(hive).path; }

  // RegistryApi. Results: 0, 2 (absent), 5 (file not writable or foreign),
  // 6 (bad handle), 234 (buffer too small).
  // The ANSI calls take and give UTF-8.
  long CreateKey(Hive hive, std::u16string_view subKey, Key& key) override;
  long SetStringValue(Key key, std::u16string_view name, std::u16string_view data) override;
  long OpenKey(Hive hive, std::u16string_view subKey, uint32_t access, Key& key) override;
  long OpenKeyA(Hive hive, std::string_view ansiSubKey, uint32_t access, Key& key) override;
  // For text: UTF-16 units plus a terminator, or 0 for the empty text.
  long QueryValueInfoA(Key key, std::string_view ansiName, uint32_t& type, uint32_t& size) override;
  long QueryValueA(Key key, std::string_view ansiName, uint32_t& type,
                   std::string& buffer) override;
  long QueryValueW(Key key, std::u16string_view name, std::u16string& buffer) override;
  // The text as the file holds it, without passing through UTF-16.
  long QueryValueUtf8(Key key, std::string_view name, uint32_t units, std::string& text) override;
  long CloseKey(Key key) override;

  // Direct access for tests, scenarios and the companion stand-ins.
  // Setters return false if the file could not be written (or the value is
  // not storable: invalid UTF-8 text, a DWORD of other than 4 bytes).
  bool SetString(std::string_view keyPath, std::string_view name, std::string_view text,
                 Hive hive = Hive::CurrentUser);
  bool SetDword(std::string_view keyPath, std::string_view name, uint32_t value,
                Hive hive = Hive::CurrentUser);
  bool SetBinary(std::string_view keyPath, std::string_view name, std::string_view bytes,
                 Hive hive = Hive::CurrentUser);
  bool SetValue(std::string_view keyPath, std::string_view name, const Value& value,
                Hive hive = Hive::CurrentUser);
  std::optional<Value> ReadValue(std::string_view keyPath, std::string_view name,
                                 Hive hive = Hive::CurrentUser);
  // The text of a REG_SZ value; nullopt if absent or of another type.
  std::optional<std::string> ReadString(std::string_view keyPath, std::string_view name,
                                        Hive hive = Hive::CurrentUser);
  std::vector<NamedValue> ListValues(std::string_view keyPath, Hive hive = Hive::CurrentUser);
  bool KeyExists(std::string_view keyPath, Hive hive = Hive::CurrentUser);
  // Handles opened and not yet closed (the store leaves one open on purpose).
  size_t OpenHandles() const noexcept;
  // How often a file's bytes were read (for tests and benchmarks).
  size_t FileReads() const noexcept { return fileReads_; }
  // How old a file's change time must be, when it is read, for a later
  // unchanged stamp to be trusted. File times move in clock ticks, so two
  // writes within one tick can leave equal stamps; a tick is far below the
  // default. Tests set zero to see the cache at work without waiting.
  void SetSettleTime(std::chrono::nanoseconds settle) noexcept { settle_ = settle; }

 private:
  // What tells one version of a file from another without reading it: a
  // write replaces the file by rename, so its identity changes too.
  struct FileStamp {
    uint64_t device = 0;
    uint64_t inode = 0;
    int64_t size = -1;
    int64_t changedNs = 0;
    bool operator==(const FileStamp&) const = default;
  };
  // One hive's file and what was last read from it.
  struct HiveFile {
    std::string path;
    std::string lastBytes;
    bool haveLast = false;
    FileStamp lastStamp;
    bool stampTrusted = false;  // the file had settled when it was read
    regfile::Verdict lastVerdict = regfile::Verdict::Empty;
    regfile::Contents contents;
  };
  struct OpenKeyPath {
    Hive hive;
    std::string path;
    size_t opens = 0;  // opens of this path not yet closed: one handle serves them all
  };

  HiveFile& File(Hive hive) noexcept { return hive == Hive::LocalMachine ? machine_ : user_; }
  const HiveFile& File(Hive hive) const noexcept {
    return hive == Hive::LocalMachine ? machine_ : user_;
  }
  // Brings the file's contents up to date: reads it only if its stamp moved
  // (or could not be trusted), parses only if its bytes changed. A file that
  // cannot be read is Foreign.
  regfile::Verdict Load(HiveFile& file);
  static FileStamp StampOf(const struct stat& st);
  // Records the stamp of the bytes just read or written.
  void Stamp(HiveFile& file, const struct stat& st) const;
  // Loads under the lock, applies `change`, and replaces the file if it changed.
  template <class Change>
  long Update(HiveFile& file, Change&& change);
  static bool WriteAtomically(const std::string& path, const std::string& text);
  Key HandleFor(Hive hive, const std::string& keyPath);
  const OpenKeyPath* PathOf(Key key) const;
  // The value under an open key, read afresh; nullptr if absent or a bad key.
  const Value* FindValue(Key key, std::string_view name);

  HiveFile user_;
  HiveFile machine_;
  std::vector<OpenKeyPath> handlePaths_;
  std::unordered_map<std::string, size_t> handleIndex_;
  size_t fileReads_ = 0;
  std::chrono::nanoseconds settle_ = std::chrono::milliseconds(100);
};

}  // namespace qvx::platform
