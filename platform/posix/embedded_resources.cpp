#include "platform/posix/embedded_resources.h"

#include <cstdlib>
#include <memory>

#include "core/text.h"
#include "platform/posix/native_object.h"

namespace qvx::platform {
namespace {

constexpr int kPictureTypeBitmap = 1;  // PICTYPE_BITMAP

int32_t LittleEndian32(std::string_view bytes, size_t at) {
  uint32_t v = 0;
  for (size_t i = 0; i < 4; ++i) {
    v |= static_cast<uint32_t>(static_cast<unsigned char>(bytes[at + i])) << (8 * i);
  }
  return static_cast<int32_t>(v);
}

// Pixels to HIMETRIC at 96 dots per inch, rounded as MulDiv rounds.
int32_t Himetric(int32_t pixels) {
  return (pixels * 2540 + 48) / 96;
}

// A bitmap file: "BM", then the width and height in its info header.
bool BitmapSize(std::string_view bytes, int32_t& width, int32_t& height) {
  if (bytes.size() < 26 || bytes.substr(0, 2) != "BM") return false;
  width = LittleEndian32(bytes, 18);
  height = std::abs(LittleEndian32(bytes, 22));  // negative: rows top-down
  return width > 0 && height > 0;
}

Variant ReadOnly(Variant value, InvokeKind kind) {
  if (kind == InvokeKind::Put) throw Failure::Runtime(err::kNoSuchMember);
  return value;
}

}  // namespace

const EmbeddedResource* EmbeddedResources::Find(std::string_view type, std::string_view name,
                                                uint16_t language) const {
  for (const EmbeddedResource& resource : table_) {
    if (resource.language == language && EqualsText(resource.type, type) &&
        EqualsText(resource.name, name)) {
      return &resource;
    }
  }
  return nullptr;
}

std::optional<std::string> EmbeddedResources::FindData(std::string_view type, std::string_view name,
                                                       uint16_t language) {
  const EmbeddedResource* resource = Find(type, name, language);
  if (resource == nullptr) return std::nullopt;
  return std::string(resource->bytes);
}

Object EmbeddedResources::FindPicture(std::string_view name) {
  const EmbeddedResource* resource = Find(kBitmapType, name, kLanguageEnglishUs);
  int32_t width = 0;
  int32_t height = 0;
  if (resource == nullptr || !BitmapSize(resource->bytes, width, height)) return Object();
  auto picture = std::make_shared<NativeObject>("Picture");
  const std::string pictureName(resource->name);
  picture->Define("Name", [pictureName](InvokeKind kind, std::vector<Variant>&) {
    return ReadOnly(Variant(pictureName), kind);
  });
  picture->Define("Type", [](InvokeKind kind, std::vector<Variant>&) {
    return ReadOnly(Variant(kPictureTypeBitmap), kind);
  });
  picture->Define("Width", [width](InvokeKind kind, std::vector<Variant>&) {
    return ReadOnly(Variant(Himetric(width)), kind);
  });
  picture->Define("Height", [height](InvokeKind kind, std::vector<Variant>&) {
    return ReadOnly(Variant(Himetric(height)), kind);
  });
  return Object(picture);
}

}  // namespace qvx::platform
