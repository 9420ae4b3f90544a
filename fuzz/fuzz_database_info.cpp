// The stored "DatabaseInfo" text: any text is read by the settings without a
// crash, whatever it reports.
#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/fuzz_state.h"
#include "settings/my_settings.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  qvx::sim::TestAddin& addin = qvx::fuzz::FuzzState::Instance().addin;
  const std::string text(reinterpret_cast<const char*>(data), size);
  if (!addin.registry.SetString("Software\\Zenbrook\\QVX", "DatabaseInfo", text)) return 0;
  qvx::cMySettings settings;
  settings.ReadSettings(addin.s);
  return 0;
}
