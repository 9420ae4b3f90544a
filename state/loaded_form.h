// A form that is loaded, as the runtime's Forms collection holds it.
#pragma once

#include <string>

namespace qvx {

class LoadedForm {
 public:
  virtual ~LoadedForm() = default;
  virtual std::string FormName() const = 0;
  // Unloads the form; false if it refuses to go.
  virtual bool Unload() noexcept = 0;
};

}  // namespace qvx
