// The resources compiled into the add-in: text documents of custom types
// (the view documents, types "VIEWS_APPOINTMENT" and "VIEWS_TASK") and the
// pictures (the ribbon's "Report" and "Withdraw", the about box's "About").
// On Windows they are resources of the DLL; the native build embeds the same
// files. Types and names compare without regard to case, as the system's
// resource look-up does.
//
//   std::string xml = LoadResData(resources, "VIEWS_TASK", "REPORTED_ID");
//   Object picture = LoadResPicture(resources, "Report");  // an IPictureDisp on Windows
//
// A missing resource raises 326, "Resource with identifier not found", as the
// legacy runtime's LoadResData does.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "core/failure.h"
#include "core/object.h"

namespace qvx::platform {

// English (United States), the language of every resource of the add-in.
inline constexpr uint16_t kLanguageEnglishUs = 1033;

class Resources {
 public:
  virtual ~Resources() = default;

  // The bytes of resource `name` of custom type `type` in `language`, as they
  // were compiled in; nullopt if there is no such resource.
  virtual std::optional<std::string> FindData(std::string_view type, std::string_view name,
                                              uint16_t language) = 0;
  // Picture resource `name` as the host takes pictures: an IPictureDisp on
  // Windows; on POSIX an object with "Name", "Type" (1, a bitmap), "Width"
  // and "Height" (in HIMETRIC, as IPictureDisp answers at 96 dots per inch).
  // Nothing if there is no such picture.
  virtual Object FindPicture(std::string_view name) = 0;
};

inline Failure ResourceNotFound() {
  return Failure::Runtime(err::kResourceNotFound);
}

// As FindData, raising 326 when the resource is missing.
inline std::string LoadResData(Resources& resources, std::string_view type, std::string_view name,
                               uint16_t language = kLanguageEnglishUs) {
  std::optional<std::string> data = resources.FindData(type, name, language);
  if (!data) throw ResourceNotFound();
  return std::move(*data);
}

// As FindPicture, raising 326 when the picture is missing.
inline Object LoadResPicture(Resources& resources, std::string_view name) {
  Object picture = resources.FindPicture(name);
  if (picture.IsNothing()) throw ResourceNotFound();
  return picture;
}

}  // namespace qvx::platform
