#include "sim/mail_library_standin.h"

#include "core/failure.h"
#include "core/text.h"
#include "core/variant.h"
#include "platform/posix/posix_objects.h"
#include "schema/item_schema.h"
#include "support/mail_library.h"

namespace qvx::sim {

struct MailLibraryStandIn::Library {
  MailLibraryOptions options;
  MailLibraryRecord record;
  std::vector<std::string> tagNames;  // a tag's index is its position here
};

namespace {

using Library = MailLibraryStandIn::Library;

Failure LibraryFailure(int32_t number, std::string description) {
  return Failure(number, "ZNBLib", std::move(description));
}

const Variant& Arg(const std::vector<Variant>& args, size_t index) {
  if (index >= args.size()) throw Failure::Runtime(err::kInvalidProcedureCall, "ZNBLib");
  return args[index];
}

// The item's user property of that name, or Nothing.
Object FindProperty(const Object& item, const std::string& name) {
  const Variant found = item.Get("UserProperties").ToObject().Call("Find", {Variant(name)});
  return found.IsObject() ? found.ToObject() : Object();
}

int32_t TagOf(size_t index) {
  return static_cast<int32_t>(((0x8000u + static_cast<uint32_t>(index)) << 16) | 0x001Fu);
}

// What both ProgIDs share: the access key, checked per object.
class LibraryObject : public HostObject {
 public:
  explicit LibraryObject(std::shared_ptr<Library> library) : library_(std::move(library)) {}
  std::vector<Variant> Enumerate() override { throw Failure::Runtime(err::kNoSuchMember); }
  Subscription Subscribe(std::string_view, EventHandler) override {
    throw Failure::Runtime(err::kNoSuchMember);
  }

 protected:
  // Handles AuthKey; true if `name` was it.
  bool AuthKey(std::string_view name, InvokeKind kind, std::vector<Variant>& args) {
    if (!EqualsText(name, "AuthKey")) return false;
    if (kind != InvokeKind::Put) throw Failure::Runtime(err::kNoSuchMember, "ZNBLib");
    const std::string& accepted = library_->options.acceptedKey;
    const std::string key = Arg(args, 0).ToText();
    if (library_->options.refuseKey || key != (accepted.empty() ? kMailLibraryAuthKey : accepted)) {
      ++library_->record.keysRefused;
      throw LibraryFailure(kMapiNoAccess, "The access key is not valid");
    }
    authorized_ = true;
    return true;
  }
  void CheckAuthorized() const {
    if (!authorized_) throw LibraryFailure(kMapiNoAccess, "No access key was given");
  }

  std::shared_ptr<Library> library_;
  bool authorized_ = false;
};

class MapiUtils final : public LibraryObject {
 public:
  using LibraryObject::LibraryObject;
  std::string TypeName() const override { return "ZNBMAPIUtils"; }

  Variant Invoke(std::string_view name, InvokeKind kind, std::vector<Variant>& args) override {
    if (AuthKey(name, kind, args)) return Variant();
    CheckAuthorized();
    MailLibraryRecord& record = library_->record;
    if (EqualsText(name, "GetIDsFromNames")) {
      ++record.idsFromNames;
      return GetIDsFromNames(Arg(args, 0).ToObject(), Arg(args, 1).ToText(), Arg(args, 2).ToText());
    }
    if (EqualsText(name, "HrGetOneProp")) {
      ++record.getOneProp;
      return GetOneProp(Arg(args, 0).ToObject(), Arg(args, 1).ToLong());
    }
    if (EqualsText(name, "HrGMTToLocal")) {
      ++record.gmtToLocal;
      const Variant& value = Arg(args, 0);
      if (value.IsNull()) return value;
      return Variant(DateValue{value.ToDate().serial + library_->options.utcOffsetHours / 24.0});
    }
    if (EqualsText(name, "DeliverNow")) {
      ++record.deliverNow;
      return Variant();
    }
    if (EqualsText(name, "Cleanup")) {
      ++record.cleanups;
      return Variant();
    }
    throw Failure::Runtime(err::kNoSuchMember, "ZNBLib");
  }

 private:
  Variant GetIDsFromNames(const Object& item, const std::string& guid, const std::string& name) {
    if (!EqualsText(guid, host::kPublicStringsGuid)) {
      throw LibraryFailure(kMapiNotFound, "Unknown property set");
    }
    if (FindProperty(item, name).IsNothing()) {
      throw LibraryFailure(kMapiNotFound, "The property does not exist");
    }
    std::vector<std::string>& names = library_->tagNames;
    for (size_t i = 0; i < names.size(); ++i) {
      if (EqualsText(names[i], name)) return Variant(TagOf(i));
    }
    names.push_back(name);
    return Variant(TagOf(names.size() - 1));
  }

  Variant GetOneProp(const Object& item, int32_t tag) {
    if (library_->options.failGetOneProp)
      throw LibraryFailure(kMapiCallFailed, "Unspecified error");
    const uint32_t index = (static_cast<uint32_t>(tag) >> 16) - 0x8000u;
    if (index >= library_->tagNames.size()) throw LibraryFailure(kMapiNotFound, "Unknown tag");
    const Object property = FindProperty(item, library_->tagNames[index]);
    if (property.IsNothing()) return Variant::Null();
    const Variant value = property.Get("Value");
    if (value.IsEmpty() || value.IsNull()) return Variant::Null();
    // The store keeps dates in UTC.
    if (const DateValue* date = value.As<DateValue>()) {
      return Variant(DateValue{date->serial - library_->options.utcOffsetHours / 24.0});
    }
    return value;
  }
};

class MailItem final : public LibraryObject {
 public:
  using LibraryObject::LibraryObject;
  std::string TypeName() const override { return "ZNBMailItem"; }

  Variant Invoke(std::string_view name, InvokeKind kind, std::vector<Variant>& args) override {
    if (AuthKey(name, kind, args)) return Variant();
    if (EqualsText(name, "Item")) {
      // The wrapped item may be given before the key, as the add-in does.
      if (kind == InvokeKind::Put) {
        item_ = Arg(args, 0).ToObject();
        return Variant();
      }
      return Variant(item_);
    }
    CheckAuthorized();
    if (EqualsText(name, "Send")) {
      if (item_.IsNothing()) throw Failure::Runtime(err::kObjectNotSet, "ZNBLib");
      library_->record.sent.push_back(item_);
      return Variant();
    }
    throw Failure::Runtime(err::kNoSuchMember, "ZNBLib");
  }

 private:
  Object item_;
};

}  // namespace

MailLibraryStandIn::MailLibraryStandIn(MailLibraryOptions options)
    : library_(std::make_shared<Library>()) {
  library_->options = std::move(options);
}

namespace {

Object NewMapiUtils(const std::shared_ptr<Library>& library) {
  ++library->record.utilsCreated;
  return Object(std::make_shared<MapiUtils>(library));
}

Object NewMailItem(const std::shared_ptr<Library>& library) {
  ++library->record.mailItemsCreated;
  return Object(std::make_shared<MailItem>(library));
}

}  // namespace

void MailLibraryStandIn::Install(platform::PosixObjectFactory& objects) {
  // The factory may outlive this handle: the creators share the library.
  objects.RegisterCreator(kMapiUtilsProgId, [library = library_] { return NewMapiUtils(library); });
  objects.RegisterCreator(kMailItemProgId, [library = library_] { return NewMailItem(library); });
}

Object MailLibraryStandIn::CreateMapiUtils() {
  return NewMapiUtils(library_);
}
Object MailLibraryStandIn::CreateMailItem() {
  return NewMailItem(library_);
}

MailLibraryOptions& MailLibraryStandIn::options() {
  return library_->options;
}
const MailLibraryRecord& MailLibraryStandIn::record() const {
  return library_->record;
}

}  // namespace qvx::sim
