#include "fake_outlook.h"

namespace qvx::testing {
namespace {

Variant Nothing() {
  return Variant(Object());
}

}  // namespace

Object FakeItem::AsObject() {
  auto item = std::make_shared<NativeObject>(typeName);
  FakeItem* self = this;
  const auto guard = [self] {
    if (self->gone) throw Failure(-2147221233, "Microsoft Outlook", "The item has been deleted.");
  };
  item->Define("UserProperties", [self, guard](InvokeKind, Args&) {
    guard();
    auto props = std::make_shared<NativeObject>("UserProperties");
    props->Define("Find", [self](InvokeKind, Args& args) {
      const std::string name = platform::RequiredArg(args, 0).ToText();
      for (auto& [key, value] : self->userProperties) {
        if (EqualsText(key, name)) {
          auto prop = std::make_shared<NativeObject>("UserProperty");
          const Variant v = value;
          prop->Define("Value", [v](InvokeKind, Args&) { return v; });
          return Variant(Object(prop));
        }
      }
      return Nothing();
    });
    return Variant(Object(props));
  });
  item->Define("IsRecurring", [self, guard](InvokeKind, Args&) {
    guard();
    return Variant(self->isRecurring);
  });
  item->Define("RecurrenceState", [self, guard](InvokeKind, Args&) {
    guard();
    return Variant(self->recurrenceState);
  });
  const auto text = [self, guard](std::string FakeItem::*field) {
    return [self, guard, field](InvokeKind kind, Args& args) {
      guard();
      if (kind == InvokeKind::Put) self->*field = args.back().ToText();
      return Variant(self->*field);
    };
  };
  item->Define("To", text(&FakeItem::to));
  item->Define("Subject", text(&FakeItem::subject));
  item->Define("Body", text(&FakeItem::body));
  item->Define("Save", [self, guard](InvokeKind, Args&) {
    guard();
    ++self->saves;
    return Variant();
  });
  item->Define("Display", [self, guard](InvokeKind, Args&) {
    guard();
    ++self->displays;
    return Variant();
  });
  return Object(item);
}

Object FakeOutlook::Application() {
  if (application) return application;
  FakeOutlook* self = this;
  auto app = std::make_shared<NativeObject>("Application");

  auto explorer = std::make_shared<NativeObject>("Explorer");
  explorer->Define("Activate", [self](InvokeKind, Args&) {
    ++self->activations;
    return Variant();
  });
  explorer->Define("Display", [self](InvokeKind, Args&) {
    ++self->displays;
    return Variant();
  });
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
    const Object storeObject(store);
    folder->Define("Parent", [storeObject](InvokeKind, Args&) { return Variant(storeObject); });
    return Variant(Object(folder));
  });
  const Object nsObject(ns);

  app->Define("Version", [self](InvokeKind, Args&) { return Variant(self->version); });
  app->Define("GetNamespace", [self, nsObject](InvokeKind, Args& args) {
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
