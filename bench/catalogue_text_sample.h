// The catalogue text of the benchmarks: `projects` lines of `activities`
// activities, with encoded separators in every name and dates on about half
// of the activities (6.3 MB at 10,000 x 20).
#pragma once

#include <random>
#include <string>

namespace qvx::bench {

inline std::string CatalogueText(size_t projects, size_t activities) {
  std::mt19937 random(7);
  std::string text;
  for (size_t p = 0; p < projects; ++p) {
    if (p > 0) text += "\r\n";
    text += "Project " + std::to_string(p) + "_COMMA_ phase " + std::to_string(random() % 9) + "," +
            std::to_string(random() % 25) + ",2011-" + std::to_string(1 + random() % 12) + "-" +
            std::to_string(1 + random() % 28) + ",:";
    for (size_t a = 0; a < activities; ++a) {
      if (a > 0) text += ";";
      text += "Activity " + std::to_string(a) + "_COLON_ work,";
      if (random() % 2) text += "2012-" + std::to_string(1 + random() % 12) + "-15";
    }
  }
  return text;
}

}  // namespace qvx::bench
