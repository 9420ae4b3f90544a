#include "platform/registry_api.h"

#include "core/text.h"

namespace qvx::platform {

long RegistryApi::QueryValueUtf8(Key key, std::string_view name, uint32_t units,
                                 std::string& text) {
  std::u16string buffer(units, u'\0');
  const long result = QueryValueW(key, Utf8ToUtf16(name), buffer);
  if (result == kErrorSuccess) {
    if (!buffer.empty()) buffer.pop_back();  // the terminator's place
    text = Utf16ToUtf8(buffer);
  }
  return result;
}

RegistryApi::TextValue RegistryApi::QueryTextValue(Key key, std::string_view ansiName) {
  TextValue value;
  value.info = QueryValueInfoA(key, ansiName, value.type, value.size);
  if (value.info == kErrorSuccess && value.type == kRegSz && value.size != 0) {
    value.query = QueryValueUtf8(key, ansiName, value.size, value.text);
  }
  return value;
}

}  // namespace qvx::platform
