// FileRegistry: the registry of the POSIX build, a file of typed values under
// key paths (the format: docs/registry-file.md). It stands for
// HKEY_CURRENT_USER and is shared with the companion stand-ins, so:
//
// - every open and query reads the file again, and sees another process's write;
// - every write replaces the file atomically (temporary file, then rename)
//   under an advisory lock, so a reader never sees half a write;
// - a missing, empty, cut, foreign or garbage file reads as "no values", and a
//   read never writes. A write replaces a missing, empty or damaged file of
//   this format, but refuses (access denied) to replace a foreign one.
//
// Key paths are relative to the hive, as "Software\Zenbrook\QVX". Keys and
// value names compare without regard to case, like the registry's.
//
//   FileRegistry registry;  // QVX_REGISTRY_FILE, or the user's data folder
//   registry.SetString("Software\\Zenbrook\\QVX", "DBChoice", "0");
//   std::optional<std::string> v = registry.ReadString("Software\\Zenbrook\\QVX", "DBChoice");
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/posix/file_registry_format.h"
#include "platform/registry_api.h"

namespace qvx::platform {

class FileRegistry final : public RegistryApi {
 public:
  using Value = regfile::Value;
  struct NamedValue {
    std::string name;
    Value value;
  };

  // The file at `path`; an empty path means DefaultLocation().
  explicit FileRegistry(std::string path = {});

  // $QVX_REGISTRY_FILE if set, else "quorvix/registry.txt" under
  // $XDG_DATA_HOME, else under $HOME/.local/share.
  static std::string DefaultLocation();
  const std::string& path() const noexcept { return path_; }

  // RegistryApi. Results: 0, 2 (absent), 5 (file not writable or foreign),
  // 6 (bad handle), 234 (buffer too small).
  long CreateKey(std::u16string_view subKey, Key& key) override;
  long SetStringValue(Key key, std::u16string_view name, std::u16string_view data) override;
  long OpenKey(std::u16string_view subKey, uint32_t access, Key& key) override;
  // For text: UTF-16 units plus a terminator, or 0 for the empty text.
  long QueryValueInfoA(Key key, std::string_view ansiName, uint32_t& type, uint32_t& size) override;
  long QueryValueW(Key key, std::u16string_view name, std::u16string& buffer) override;
  long CloseKey(Key key) override;

  // Direct access for tests, scenarios and the companion stand-ins.
  // Setters return false if the file could not be written (or the value is
  // not storable: invalid UTF-8 text, a DWORD of other than 4 bytes).
  bool SetString(std::string_view keyPath, std::string_view name, std::string_view text);
  bool SetDword(std::string_view keyPath, std::string_view name, uint32_t value);
  bool SetBinary(std::string_view keyPath, std::string_view name, std::string_view bytes);
  bool SetValue(std::string_view keyPath, std::string_view name, const Value& value);
  std::optional<Value> ReadValue(std::string_view keyPath, std::string_view name);
  // The text of a REG_SZ value; nullopt if absent or of another type.
  std::optional<std::string> ReadString(std::string_view keyPath, std::string_view name);
  std::vector<NamedValue> ListValues(std::string_view keyPath);
  bool KeyExists(std::string_view keyPath);
  // Handles opened and not yet closed (the store leaves one open on purpose).
  size_t OpenHandles() const noexcept { return openHandles_; }

 private:
  // Reads the file again into contents_; parses only if its bytes changed
  // since the last time. A file that cannot be read is Foreign.
  regfile::Verdict Load();
  // Loads under the lock, applies `change`, and replaces the file if it changed.
  template <class Change>
  long Update(Change&& change);
  bool WriteAtomically(const std::string& text) const;
  Key HandleFor(const std::string& keyPath);
  const std::string* PathOf(Key key) const;

  std::string path_;
  std::string lastBytes_;
  bool haveLast_ = false;
  regfile::Verdict lastVerdict_ = regfile::Verdict::Empty;
  regfile::Contents contents_;
  std::vector<std::string> handlePaths_;
  std::unordered_map<std::string, size_t> handleIndex_;
  size_t openHandles_ = 0;
};

}  // namespace qvx::platform
