// The test add-in (sim/test_addin.h) for the settings tests: its registry
// file is the store under test.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/registry_api.h"
#include "settings/single_list.h"
#include "sim/temp_folder.h"
#include "sim/test_addin.h"
#include "unit/file_bytes.h"
#include "unit/support/failure_report.h"

namespace qvx::testing {

inline constexpr const char* kQvxKey = "Software\\Zenbrook\\QVX";

using sim::TempFolder;
using Strings = std::vector<std::string>;

struct SettingsFixture : sim::TestAddin {
  // `registryOverride`: a registry of the test's own in place of the file.
  explicit SettingsFixture(platform::RegistryApi* registryOverride = nullptr)
      : sim::TestAddin({.registry = registryOverride}) {}

  // Whether one report was shown, of a failure trapped under `label`.
  ::testing::AssertionResult ReportedOnce(std::string_view label) const {
    if (Reports().size() != 1) {
      return ::testing::AssertionFailure() << Reports().size() << " reports";
    }
    return ReportIsTrap(Reports().front(), label);
  }
};

// Each value of the settings key as "name=text", a line each, in the order
// written.
inline std::string Listing(platform::FileRegistry& registry) {
  std::string listing;
  for (const auto& v : registry.ListValues(kQvxKey)) {
    listing += v.name + (v.value.type == platform::kRegSz ? "=" : "=(not text)") + v.value.data;
    listing += "\n";
  }
  return listing;
}

// The items of a list in its order.
inline Strings Items(const cSingleList& list) {
  Strings items;
  for (const auto& entry : list.dicList) items.push_back(entry.value);
  return items;
}

// A registry that hands every call on to `inner`; a test overrides the calls
// it watches or makes fail.
class ForwardingRegistry : public platform::RegistryApi {
 public:
  explicit ForwardingRegistry(platform::RegistryApi& inner) : inner_(inner) {}
  long SetStringValue(Key key, std::u16string_view n, std::u16string_view d) override {
    return inner_.SetStringValue(key, n, d);
  }
  long QueryValueInfoA(Key key, std::string_view n, uint32_t& t, uint32_t& size) override {
    return inner_.QueryValueInfoA(key, n, t, size);
  }
  long QueryValueA(Key key, std::string_view n, uint32_t& t, std::string& b) override {
    return inner_.QueryValueA(key, n, t, b);
  }
  long QueryValueW(Key key, std::u16string_view n, std::u16string& b) override {
    return inner_.QueryValueW(key, n, b);
  }
  long CreateKey(platform::Hive h, std::u16string_view k, Key& key) override {
    return inner_.CreateKey(h, k, key);
  }
  long OpenKey(platform::Hive h, std::u16string_view k, uint32_t a, Key& key) override {
    return inner_.OpenKey(h, k, a, key);
  }
  long OpenKeyA(platform::Hive h, std::string_view k, uint32_t a, Key& key) override {
    return inner_.OpenKeyA(h, k, a, key);
  }
  long CloseKey(Key key) override { return inner_.CloseKey(key); }

 private:
  platform::RegistryApi& inner_;
};

}  // namespace qvx::testing
