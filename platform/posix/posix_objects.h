// PosixObjectFactory: object creation by ProgID on POSIX, with native
// stand-ins for the scripting runtime's objects the add-in uses.
//
// Built in (ProgIDs compared without regard to case):
//  - "Wscript.Shell": Run(command, windowStyle[, wait]) and
//    ExpandEnvironmentStrings(text). Run reads a command of the form
//    `"path" rest` as the path and the whole rest (less the one blank after
//    the closing quote) as ONE argument, and starts it by
//    SystemServices::Launch; any other command is launched as a path alone.
//    It never waits. A launch that fails throws, as the real Run does.
//  - "Scripting.FileSystemObject": FileExists, FolderExists, CreateFolder.
//  - "Scripting.Dictionary": over OrderedDictionary; see MakeDictionary.
// Anything else throws Failure 429, unless a creator was registered for it.
// GetObject answers only ProgIDs registered as running ("Outlook.Application").
//
//   PosixObjectFactory objects(system);
//   objects.RegisterCreator("ZNBLib.ZNBMAPIUtils", [] { return MakeFakeUtils(); });
//   objects.Refuse("Scripting.Dictionary");   // fault injection: now 429
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/ordered_dictionary.h"
#include "platform/object_factory.h"
#include "platform/system_services.h"

namespace qvx::platform {

// Wscript.Shell's Run fails with this when the program cannot be started.
inline constexpr int32_t kFileNotFoundHResult = static_cast<int32_t>(0x80070002u);
// Scripting.Dictionary's Remove of a missing key.
inline constexpr int32_t kElementNotFound = 32811;

class PosixObjectFactory : public ObjectFactory {
 public:
  using Creator = std::function<Object()>;

  explicit PosixObjectFactory(SystemServices& system);

  Object CreateObject(std::string_view progId) override;
  Object GetObject(std::string_view progId) override;

  // Adds or replaces the creator of a ProgID (also over a built-in one).
  void RegisterCreator(std::string_view progId, Creator creator);
  // What GetObject answers for a ProgID; a creator that gives Nothing means
  // "no running instance" (Failure 429).
  void RegisterRunning(std::string_view progId, Creator getter);
  // CreateObject of this ProgID now fails with 429; Allow undoes it.
  void Refuse(std::string_view progId);
  void Allow(std::string_view progId);

  // Every ProgID asked of CreateObject and GetObject, in order, as given.
  const std::vector<std::string>& CreateRequests() const { return createRequests_; }
  const std::vector<std::string>& GetRequests() const { return getRequests_; }
  void ForgetRequests() {
    createRequests_.clear();
    getRequests_.clear();
  }

 private:
  SystemServices& system_;
  OrderedDictionary<Creator> creators_;
  OrderedDictionary<Creator> running_;
  OrderedDictionary<bool> refused_;
  std::vector<std::string> createRequests_;
  std::vector<std::string> getRequests_;
};

// Splits a Run command into the program's path and its one argument.
std::pair<std::string, std::string> SplitRunCommand(std::string_view command);
// ExpandEnvironmentStrings: each %NAME% that is set is replaced by its value.
std::string ExpandEnvironment(SystemServices& system, std::string_view text);

Object MakeWscriptShell(SystemServices& system);
Object MakeFileSystemObject(SystemServices& system);
// Scripting.Dictionary: Add, Exists, Item (get; a get of a missing key adds
// it with Empty, as the real one does; put), Remove (32811 if missing),
// RemoveAll, Count, Keys, Items, CompareMode (put only while empty, else
// Failure 5). Keys are compared as text without regard to case. Keys and Items
// answer an array object: Count, Item(index from 0) and enumeration.
// Enumerating the dictionary gives its keys.
Object MakeDictionary();
// An array object over values, as Keys and Items give it.
Object MakeArray(std::vector<Variant> values);

}  // namespace qvx::platform
