#include "sim/context.h"

#include <cstdio>

#include "sim/application.h"

namespace qvx::sim {

Object SimContext::Application() const {
  auto application = app.lock();
  return application ? application->AsObject() : Object();
}

std::string SimContext::NewEntryId() {
  char buffer[49];
  std::snprintf(buffer, sizeof buffer, "00000000A1B2C3D4E5F60718293A4B5C0700%012llX",
                static_cast<unsigned long long>(nextEntryId++));
  return buffer;
}

}  // namespace qvx::sim
