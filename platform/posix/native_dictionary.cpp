// The stand-in of "Scripting.Dictionary".
#include <memory>

#include "platform/posix/native_object.h"
#include "platform/posix/posix_objects.h"

namespace qvx::platform {

Object MakeArray(std::vector<Variant> values) {
  auto array = std::make_shared<NativeObject>("Variant()");
  auto data = std::make_shared<std::vector<Variant>>(std::move(values));
  array->Define("Count", [data](InvokeKind, std::vector<Variant>&) {
    return Variant(static_cast<int32_t>(data->size()));
  });
  array->Define("Item", [data](InvokeKind, std::vector<Variant>& args) {
    const int32_t index = RequiredArg(args, 0).ToLong();
    if (index < 0 || static_cast<size_t>(index) >= data->size()) {
      throw Failure::Runtime(err::kSubscriptOutOfRange);
    }
    return (*data)[static_cast<size_t>(index)];
  });
  array->DefineEnumerator([data] { return *data; });
  return Object(array);
}

Object MakeDictionary() {
  struct Data {
    OrderedDictionary<Variant> entries;
    int32_t compareMode = 0;
  };
  auto dict = std::make_shared<NativeObject>("Dictionary");
  auto data = std::make_shared<Data>();
  using Args = std::vector<Variant>;
  dict->Define("Add", [data](InvokeKind, Args& args) {
    data->entries.Add(RequiredArg(args, 0).ToText(), RequiredArg(args, 1));
    return Variant();
  });
  dict->Define("Exists", [data](InvokeKind, Args& args) {
    return Variant(data->entries.Exists(RequiredArg(args, 0).ToText()));
  });
  dict->Define("Item", [data](InvokeKind kind, Args& args) {
    const std::string key = RequiredArg(args, 0).ToText();
    if (kind == InvokeKind::Put) {
      data->entries.Set(key, RequiredArg(args, 1));
      return Variant();
    }
    if (const Variant* v = data->entries.Find(key)) return *v;
    data->entries.Add(key, Variant());  // a read of a missing key adds it
    return Variant();
  });
  dict->Define("Remove", [data](InvokeKind, Args& args) {
    if (!data->entries.Remove(RequiredArg(args, 0).ToText())) {
      throw Failure(kElementNotFound, "Microsoft VBScript runtime error", "Element not found");
    }
    return Variant();
  });
  dict->Define("RemoveAll", [data](InvokeKind, Args&) {
    data->entries.Clear();
    return Variant();
  });
  dict->Define("Count", [data](InvokeKind, Args&) {
    return Variant(static_cast<int32_t>(data->entries.Count()));
  });
  dict->Define("Keys", [data](InvokeKind, Args&) {
    std::vector<Variant> keys;
    for (const auto& e : data->entries) keys.emplace_back(e.key);
    return Variant(MakeArray(std::move(keys)));
  });
  dict->Define("Items", [data](InvokeKind, Args&) {
    std::vector<Variant> items;
    for (const auto& e : data->entries) items.push_back(e.value);
    return Variant(MakeArray(std::move(items)));
  });
  dict->Define("CompareMode", [data](InvokeKind kind, Args& args) {
    if (kind != InvokeKind::Put) return Variant(data->compareMode);
    if (data->entries.Count() != 0) throw Failure::Runtime(err::kInvalidProcedureCall);
    data->compareMode = RequiredArg(args, 0).ToLong();
    return Variant();
  });
  dict->DefineEnumerator([data] {
    std::vector<Variant> keys;
    for (const auto& e : data->entries) keys.emplace_back(e.key);
    return keys;
  });
  return Object(dict);
}

}  // namespace qvx::platform
