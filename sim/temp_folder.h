// A private folder under the system's temporary folder, removed with
// everything in it when the object goes: the files of one test's world.
//
//   sim::TempFolder folder("qvx-settings");
//   platform::FileRegistry registry(folder.File("registry.txt"));
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace qvx::sim {

class TempFolder {
 public:
  explicit TempFolder(std::string_view prefix = "qvx-test") {
    std::string pattern =
        (std::filesystem::temp_directory_path() / (std::string(prefix) + "-XXXXXX")).string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("cannot make " + pattern);
    path_ = pattern;
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::string& path() const { return path_; }
  std::string File(std::string_view name) const { return path_ + "/" + std::string(name); }

 private:
  std::string path_;
};

}  // namespace qvx::sim
