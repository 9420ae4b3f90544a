// The native build's resources: the add-in's files embedded at build time
// (cmake/QvxResources.cmake writes the table), read through the same seam as
// the DLL's resources. A picture is a bitmap file (BMP); FindPicture answers
// a small object that names it and gives its size, enough for the simulated
// ribbon host to tell one picture from another.
//
//   EmbeddedResources resources(ProductResources());
//   std::optional<std::string> xml = resources.FindData("VIEWS_TASK", "REPORTED_ID", 1033);
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "platform/resources.h"

namespace qvx::platform {

// One embedded file. Pictures have the type "BITMAP", as on Windows.
struct EmbeddedResource {
  std::string_view type;
  std::string_view name;
  uint16_t language;
  std::string_view bytes;
};

inline constexpr std::string_view kBitmapType = "BITMAP";

// The add-in's own resources (generated at build time).
std::span<const EmbeddedResource> ProductResources();

class EmbeddedResources final : public Resources {
 public:
  explicit EmbeddedResources(std::span<const EmbeddedResource> table) : table_(table) {}

  std::optional<std::string> FindData(std::string_view type, std::string_view name,
                                      uint16_t language) override;
  // Nothing also for a file that is not a bitmap.
  Object FindPicture(std::string_view name) override;

 private:
  const EmbeddedResource* Find(std::string_view type, std::string_view name,
                               uint16_t language) const;

  std::span<const EmbeddedResource> table_;
};

}  // namespace qvx::platform
