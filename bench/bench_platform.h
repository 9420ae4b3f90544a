// The POSIX platform of a benchmark run in a private temporary folder: the
// registry file, a stand-in companion (found, as in a real installation, but
// never spawned: launches are recorded) and a namespace of its own for the
// listener windows. The folder goes with the object.
//
//   BenchPlatform p;
//   p.Set("DBChoice", "1");
//   platform::PosixSystemServices system(p.options);
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "platform/posix/file_registry.h"
#include "platform/posix/posix_system.h"

namespace qvx::bench {

struct BenchPlatform {
  BenchPlatform() : folder(MakeFolder()), registry(folder + "/registry.qvxreg") {
    std::ofstream(folder + "/QuorvixClient.exe") << "stand-in";
    options.home = folder;
    options.addinFolder = folder;
    options.spawn = false;
    setenv("QVX_WINDOW_NAMESPACE", std::filesystem::path(folder).filename().c_str(), 1);
  }
  ~BenchPlatform() { std::filesystem::remove_all(folder); }
  BenchPlatform(const BenchPlatform&) = delete;
  BenchPlatform& operator=(const BenchPlatform&) = delete;

  // A text value of the add-in's settings key.
  void Set(std::string_view name, const std::string& value) {
    registry.SetString("Software\\Zenbrook\\QVX", name, value);
  }

  static std::string MakeFolder() {
    std::string base = std::filesystem::temp_directory_path().string() + "/qvx-bench-XXXXXX";
    if (mkdtemp(base.data()) == nullptr) std::abort();
    return base;
  }

  std::string folder;
  platform::FileRegistry registry;
  platform::PosixSystemOptions options;
};

}  // namespace qvx::bench
