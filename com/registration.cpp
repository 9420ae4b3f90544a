#include "com/registration.h"

#include <cstring>

#include "com/class_ids.h"
#include "platform/win32/win_handles.h"

namespace qvx::com {
namespace {

struct Entry {
  std::wstring key;
  std::wstring name;
  RegistryValue value;
};

std::wstring ClassKey() {
  return std::wstring(kClassesKey) + L"\\CLSID\\" + kClsidText;
}
std::wstring ProgIdKey() {
  return std::wstring(kClassesKey) + L"\\" + kProgId;
}
std::wstring AddinKey() {
  return std::wstring(kOutlookAddinsKey) + L"\\" + kProgId;
}

// Everything registration writes, in writing order.
std::vector<Entry> Layout(const std::wstring& dllPath) {
  const std::wstring cls = ClassKey();
  return {
      {cls, L"", StringValue(kProgId)},
      {cls + L"\\InprocServer32", L"", StringValue(dllPath)},
      {cls + L"\\InprocServer32", L"ThreadingModel", StringValue(L"Apartment")},
      {cls + L"\\ProgID", L"", StringValue(kProgId)},
      {ProgIdKey(), L"", StringValue(kProgId)},
      {ProgIdKey() + L"\\CLSID", L"", StringValue(kClsidText)},
      {AddinKey(), L"FriendlyName", StringValue(kFriendlyName)},
      {AddinKey(), L"Description", StringValue(kDescription)},
      {AddinKey(), L"LoadBehavior", DwordValue(kLoadBehavior)},
  };
}

// The keys registration owns, deepest first, for unregistration.
std::vector<std::wstring> OwnKeys() {
  const std::wstring cls = ClassKey();
  return {cls + L"\\InprocServer32", cls + L"\\ProgID", cls,
          ProgIdKey() + L"\\CLSID",  ProgIdKey(),       AddinKey()};
}

// What has been done so far, to be undone in reverse.
class UndoLog {
 public:
  explicit UndoLog(RegistryWriter& registry) : registry_(registry) {}

  void KeyCreated(const std::wstring& key) { steps_.push_back({key, L"", true, std::nullopt}); }
  void ValueWritten(const std::wstring& key, const std::wstring& name,
                    std::optional<RegistryValue> previous) {
    steps_.push_back({key, name, false, std::move(previous)});
  }

  void Undo() noexcept {
    for (auto it = steps_.rbegin(); it != steps_.rend(); ++it) {
      try {
        if (it->createdKey) {
          registry_.DeleteEmptyKey(it->key);
        } else if (it->previous) {
          registry_.WriteValue(it->key, it->name, *it->previous);
        } else {
          registry_.DeleteValue(it->key, it->name);
        }
      } catch (...) {
        // Undo what can be undone.
      }
    }
    steps_.clear();
  }

 private:
  struct Step {
    std::wstring key;
    std::wstring name;
    bool createdKey;
    std::optional<RegistryValue> previous;
  };
  RegistryWriter& registry_;
  std::vector<Step> steps_;
};

// Creates `key` and any missing parent, logging each one created.
bool EnsureKey(RegistryWriter& registry, const std::wstring& key, UndoLog& log) {
  size_t pos = 0;
  for (;;) {
    pos = key.find(L'\\', pos + 1);
    const std::wstring part = key.substr(0, pos);
    if (!registry.KeyExists(part)) {
      if (registry.CreateKey(part) != ERROR_SUCCESS) return false;
      log.KeyCreated(part);
    }
    if (pos == std::wstring::npos) return true;
  }
}

}  // namespace

RegistryValue StringValue(const std::wstring& text) {
  RegistryValue v;
  v.type = REG_SZ;
  const size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  v.data.resize(bytes);
  std::memcpy(v.data.data(), text.c_str(), bytes);
  return v;
}

RegistryValue DwordValue(DWORD number) {
  RegistryValue v;
  v.type = REG_DWORD;
  v.data.resize(sizeof(DWORD));
  std::memcpy(v.data.data(), &number, sizeof(DWORD));
  return v;
}

HRESULT RegisterServer(RegistryWriter& registry, const std::wstring& dllPath) noexcept {
  try {
    UndoLog log(registry);
    try {
      for (const Entry& e : Layout(dllPath)) {
        if (!EnsureKey(registry, e.key, log)) {
          log.Undo();
          return SELFREG_E_CLASS;
        }
        std::optional<RegistryValue> previous = registry.ReadValue(e.key, e.name);
        if (registry.WriteValue(e.key, e.name, e.value) != ERROR_SUCCESS) {
          log.Undo();
          return SELFREG_E_CLASS;
        }
        log.ValueWritten(e.key, e.name, std::move(previous));
      }
      return S_OK;
    } catch (...) {
      log.Undo();
      return SELFREG_E_CLASS;
    }
  } catch (...) {
    return SELFREG_E_CLASS;
  }
}

HRESULT UnregisterServer(RegistryWriter& registry) noexcept {
  try {
    bool complete = true;
    for (const Entry& e : Layout(L"")) {
      if (!registry.KeyExists(e.key)) continue;
      const LSTATUS rc = registry.DeleteValue(e.key, e.name);
      if (rc != ERROR_SUCCESS && rc != ERROR_FILE_NOT_FOUND) complete = false;
    }
    for (const std::wstring& key : OwnKeys()) {
      if (!registry.KeyExists(key)) continue;
      if (registry.DeleteEmptyKey(key) != ERROR_SUCCESS) complete = false;
    }
    return complete ? S_OK : S_FALSE;
  } catch (...) {
    return SELFREG_E_CLASS;
  }
}

bool Win32RegistryWriter::KeyExists(const std::wstring& key) {
  win32::UniqueHkey handle;
  return RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_READ, handle.Put()) == ERROR_SUCCESS;
}

LSTATUS Win32RegistryWriter::CreateKey(const std::wstring& key) {
  win32::UniqueHkey handle;
  return RegCreateKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                         KEY_WRITE, nullptr, handle.Put(), nullptr);
}

std::optional<RegistryValue> Win32RegistryWriter::ReadValue(const std::wstring& key,
                                                            const std::wstring& name) {
  win32::UniqueHkey handle;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_READ, handle.Put()) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  RegistryValue v;
  DWORD size = 0;
  if (RegQueryValueExW(handle.get(), name.c_str(), nullptr, &v.type, nullptr, &size) !=
      ERROR_SUCCESS) {
    return std::nullopt;
  }
  v.data.resize(size);
  if (RegQueryValueExW(handle.get(), name.c_str(), nullptr, &v.type,
                       v.data.empty() ? nullptr : v.data.data(), &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  v.data.resize(size);
  return v;
}

LSTATUS Win32RegistryWriter::WriteValue(const std::wstring& key, const std::wstring& name,
                                        const RegistryValue& value) {
  win32::UniqueHkey handle;
  const LSTATUS rc = RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_SET_VALUE, handle.Put());
  if (rc != ERROR_SUCCESS) return rc;
  return RegSetValueExW(handle.get(), name.c_str(), 0, value.type, value.data.data(),
                        static_cast<DWORD>(value.data.size()));
}

LSTATUS Win32RegistryWriter::DeleteValue(const std::wstring& key, const std::wstring& name) {
  win32::UniqueHkey handle;
  const LSTATUS rc = RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_SET_VALUE, handle.Put());
  if (rc != ERROR_SUCCESS) return rc;
  return RegDeleteValueW(handle.get(), name.c_str());
}

LSTATUS Win32RegistryWriter::DeleteEmptyKey(const std::wstring& key) {
  {
    win32::UniqueHkey handle;
    LSTATUS rc = RegOpenKeyExW(HKEY_CURRENT_USER, key.c_str(), 0, KEY_READ, handle.Put());
    if (rc != ERROR_SUCCESS) return rc;
    DWORD subkeys = 0;
    DWORD values = 0;
    rc = RegQueryInfoKeyW(handle.get(), nullptr, nullptr, nullptr, &subkeys, nullptr, nullptr,
                          &values, nullptr, nullptr, nullptr, nullptr);
    if (rc != ERROR_SUCCESS) return rc;
    if (subkeys != 0 || values != 0) return ERROR_DIR_NOT_EMPTY;
  }
  return RegDeleteKeyW(HKEY_CURRENT_USER, key.c_str());
}

}  // namespace qvx::com
