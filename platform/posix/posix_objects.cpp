#include "platform/posix/posix_objects.h"

#include "platform/posix/native_object.h"

namespace qvx::platform {
namespace {

Failure CannotCreate() {
  return Failure(kCannotCreateObject, "QVXClient", "ActiveX component can't create object");
}

}  // namespace

PosixObjectFactory::PosixObjectFactory(SystemServices& system) : system_(system) {
  creators_.Set("Wscript.Shell", [this] { return MakeWscriptShell(system_); });
  creators_.Set("Scripting.FileSystemObject", [this] { return MakeFileSystemObject(system_); });
  creators_.Set("Scripting.Dictionary", [] { return MakeDictionary(); });
}

Object PosixObjectFactory::CreateObject(std::string_view progId) {
  createRequests_.emplace_back(progId);
  const Creator* creator = creators_.Find(progId);
  if (creator == nullptr || refused_.Exists(progId) || !*creator) {
    throw CannotCreate();
  }
  Object made = (*creator)();
  if (made.IsNothing()) throw CannotCreate();
  return made;
}

Object PosixObjectFactory::GetObject(std::string_view progId) {
  getRequests_.emplace_back(progId);
  const Creator* getter = running_.Find(progId);
  if (getter == nullptr || !*getter) throw CannotCreate();
  Object running = (*getter)();
  if (running.IsNothing()) throw CannotCreate();
  return running;
}

void PosixObjectFactory::RegisterCreator(std::string_view progId, Creator creator) {
  creators_.Set(progId, std::move(creator));
}

void PosixObjectFactory::RegisterRunning(std::string_view progId, Creator getter) {
  running_.Set(progId, std::move(getter));
}

void PosixObjectFactory::Refuse(std::string_view progId) {
  refused_.Set(progId, true);
}

void PosixObjectFactory::Allow(std::string_view progId) {
  refused_.Remove(progId);
}

}  // namespace qvx::platform
