#include "fake_outlook.h"

namespace qvx::testing {
namespace {

Variant Nothing() {
  return Variant(Object());
}

// A member that counts its calls.
NativeObject::Member Counting(int* calls) {
  return [calls](InvokeKind, Args&) {
    ++*calls;
    return Variant();
  };
}

}  // namespace

Object FakeItem::AsObject() {
  auto item = std::make_shared<NativeObject>(typeName);
  FakeItem* self = this;
  // Every member fails once the item is gone.
  const auto define = [self, &item](std::string_view name, NativeObject::Member member) {
    item->Define(name, [self, member](InvokeKind kind, Args& args) {
      if (self->gone) throw Failure(-2147221233, "Microsoft Outlook", "The item has been deleted.");
      return member(kind, args);
    });
  };
  define("UserProperties", [self](InvokeKind, Args&) {
    auto props = std::make_shared<NativeObject>("UserProperties");
    props->Define("Find", [self](InvokeKind, Args& args) {
      const std::string name = platform::RequiredArg(args, 0).ToText();
      for (auto& [key, value] : self->userProperties) {
        if (!EqualsText(key, name)) continue;
        auto prop = std::make_shared<NativeObject>("UserProperty");
        prop->Define("Value", [v = value](InvokeKind, Args&) { return v; });
        return Variant(Object(prop));
      }
      return Nothing();
    });
    return Variant(Object(props));
  });
  define("IsRecurring", [self](InvokeKind, Args&) { return Variant(self->isRecurring); });
  define("RecurrenceState", [self](InvokeKind, Args&) { return Variant(self->recurrenceState); });
  for (auto [name, field] :
       {std::pair{"To", &FakeItem::to}, std::pair{"Subject", &FakeItem::subject},
        std::pair{"Body", &FakeItem::body}}) {
    define(name, [self, field](InvokeKind kind, Args& args) {
      if (kind == InvokeKind::Put) self->*field = args.back().ToText();
      return Variant(self->*field);
    });
  }
  define("Save", Counting(&saves));
  define("Display", Counting(&displays));
  return Object(item);
}

Object FakeOutlook::Application() {
  if (application) return application;
  FakeOutlook* self = this;
  auto app = std::make_shared<NativeObject>("Application");

  auto explorer = std::make_shared<NativeObject>("Explorer");
  explorer->Define("Activate", Counting(&activations));
  explorer->Define("Display", Counting(&displays));
  const Object explorerObject(explorer);

  auto explorers = std::make_shared<NativeObject>("Explorers");
  explorers->Define("Count", [self](InvokeKind, Args&) { return Variant(self->explorerCount); });
  explorers->Define("Item", [self, explorerObject](InvokeKind, Args& args) {
    const int32_t index = platform::RequiredArg(args, 0).ToLong();
    if (index < 1 || index > self->explorerCount)
      throw Failure::Runtime(err::kInvalidProcedureCall);
    return Variant(explorerObject);
  });
  explorers->Define("Add", [self, explorerObject](InvokeKind, Args& args) {
    const Object folder = platform::RequiredArg(args, 0).ToObject();
    self->explorersAddedFor.push_back(folder.Get("Number").ToLong());
    self->explorerAddModes.push_back(args.size() > 1 ? args[1].ToLong() : -1);
    ++self->explorerCount;
    return Variant(explorerObject);
  });
  const Object explorersObject(explorers);

  auto ns = std::make_shared<NativeObject>("NameSpace");
  ns->Define("GetDefaultFolder", [self](InvokeKind, Args& args) {
    if (self->failGetDefaultFolder) throw Failure(-2147221219, "Microsoft Outlook", "No access.");
    const int32_t number = platform::RequiredArg(args, 0).ToLong();
    auto store = std::make_shared<NativeObject>("MAPIFolder");
    store->Define("Name", [self](InvokeKind, Args&) { return Variant(self->mailboxName); });
    auto folder = std::make_shared<NativeObject>("MAPIFolder");
    folder->Define("Number", [number](InvokeKind, Args&) { return Variant(number); });
    folder->Define("Parent", [store = Object(store)](InvokeKind, Args&) { return Variant(store); });
    return Variant(Object(folder));
  });

  app->Define("Version", [self](InvokeKind, Args&) { return Variant(self->version); });
  app->Define("GetNamespace", [self, nsObject = Object(ns)](InvokeKind, Args& args) {
    ++self->namespaceCalls;
    if (platform::RequiredArg(args, 0).ToText() != "MAPI") throw Failure::Runtime(5);
    return Variant(nsObject);
  });
  app->Define("Explorers",
              [explorersObject](InvokeKind, Args&) { return Variant(explorersObject); });
  app->Define("ActiveExplorer", [self, explorerObject](InvokeKind, Args&) {
    return self->hasActiveExplorer ? Variant(explorerObject) : Nothing();
  });
  app->Define("ActiveWindow", [self](InvokeKind, Args&) {
    if (self->activeWindowType.empty()) return Nothing();
    return Variant(Object(std::make_shared<NativeObject>(self->activeWindowType)));
  });
  app->Define("CreateItem", [self](InvokeKind, Args& args) {
    if (self->failCreateItem) throw Failure(-2147467259, "Microsoft Outlook", "Cannot create.");
    if (platform::RequiredArg(args, 0).ToLong() != 0) throw Failure::Runtime(5);
    auto item = std::make_shared<FakeItem>();
    item->typeName = "MailItem";
    self->createdItems.push_back(item);
    return Variant(item->AsObject());
  });
  app->Define("CreateObject", [self](InvokeKind, Args& args) {
    self->hostCreateObjectRequests.push_back(platform::RequiredArg(args, 0).ToText());
    if (self->hostCreates.IsNothing()) throw Failure(429, "Outlook", "cannot create");
    return Variant(self->hostCreates);
  });
  application = Object(app);
  return application;
}

}  // namespace qvx::testing
