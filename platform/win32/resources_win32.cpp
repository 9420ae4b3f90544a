#include "platform/win32/resources_win32.h"

#include <olectl.h>

#include "platform/win32/dispatch_object.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_handles.h"

namespace qvx::win32 {
namespace {

struct WantedLanguage {
  WORD language;
  bool found;
};

BOOL CALLBACK NoteLanguage(HMODULE, LPCWSTR, LPCWSTR, WORD language, LONG_PTR wanted) {
  auto& want = *reinterpret_cast<WantedLanguage*>(wanted);
  want.found = want.found || language == want.language;
  return !want.found;  // stop once found
}

// FindResourceExW falls back to other languages; the seam answers only the one asked for.
bool HasLanguage(HMODULE module, LPCWSTR type, LPCWSTR name, WORD language) {
  WantedLanguage want{language, false};
  EnumResourceLanguagesW(module, type, name, &NoteLanguage, reinterpret_cast<LONG_PTR>(&want));
  return want.found;
}

}  // namespace

UniqueBitmap LoadBitmapResource(HMODULE module, std::string_view name) {
  return UniqueBitmap(static_cast<HBITMAP>(
      LoadImageW(module, Wide(name).c_str(), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
}

std::optional<std::string> Win32Resources::FindData(std::string_view type, std::string_view name,
                                                    uint16_t language) {
  // The look-up upper-cases string names and types, as the compiler stored them.
  const std::wstring wideType = Wide(type);
  const std::wstring wideName = Wide(name);
  if (!HasLanguage(module_, wideType.c_str(), wideName.c_str(), language)) return std::nullopt;
  const HRSRC found = FindResourceExW(module_, wideType.c_str(), wideName.c_str(), language);
  if (found == nullptr) return std::nullopt;
  const HGLOBAL loaded = LoadResource(module_, found);
  const void* bytes = loaded != nullptr ? LockResource(loaded) : nullptr;
  if (bytes == nullptr) return std::nullopt;
  return std::string(static_cast<const char*>(bytes), SizeofResource(module_, found));
}

Object Win32Resources::FindPicture(std::string_view name) {
  UniqueBitmap bitmap = LoadBitmapResource(module_, name);
  if (!bitmap) return Object();
  PICTDESC description{};
  description.cbSizeofstruct = sizeof(description);
  description.picType = PICTYPE_BITMAP;
  description.bmp.hbitmap = bitmap.get();
  ComPtr<IPictureDisp> picture;
  if (FAILED(OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE, picture.PutVoid()))) {
    return Object();
  }
  (void)bitmap.Detach();  // the picture owns it now
  return DispatchObject::Wrap(picture.get());
}

}  // namespace qvx::win32
