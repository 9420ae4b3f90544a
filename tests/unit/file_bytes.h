// Reading whole files in tests: a file the code under test wrote, or a
// recorded document under tests/resources.
#pragma once

#include <fstream>
#include <sstream>
#include <string>

namespace qvx::testing {

// The bytes of a file; empty when there is none.
inline std::string FileBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream out;
  out << in.rdbuf();
  return out.str();
}

// The bytes of tests/resources/<relative>, e.g. "settings/default_settings.txt".
inline std::string TestResource(const std::string& relative) {
  return FileBytes(QVX_TEST_RESOURCES_DIR "/" + relative);
}

}  // namespace qvx::testing
