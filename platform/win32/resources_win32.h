// Resources over the resources of one module (the add-in's DLL): text through
// FindResourceExW in the language asked for, pictures as bitmaps turned into
// an IPictureDisp that owns its bitmap (OleCreatePictureIndirect).
#pragma once

#include "platform/resources.h"
#include "platform/win32/win32_api.h"
#include "platform/win32/win_handles.h"

namespace qvx::win32 {

// The bitmap resource `name` of `module` as a DIB section; empty if none.
UniqueBitmap LoadBitmapResource(HMODULE module, std::string_view name);

class Win32Resources final : public platform::Resources {
 public:
  explicit Win32Resources(HMODULE module) : module_(module) {}

  std::optional<std::string> FindData(std::string_view type, std::string_view name,
                                      uint16_t language) override;
  Object FindPicture(std::string_view name) override;

 private:
  HMODULE module_;
};

}  // namespace qvx::win32
