// Owner<T>: sole ownership of an object whose type the owner's header only
// declares.
//
// A record in a low layer may own an object of a class from a layer above it
// without including that class: the deleter is chosen where the object is
// made (where its type is complete) and travels with the pointer, so the
// record's destructor needs only the declaration.
//
//   class cMySettings;                          // declared, not included
//   struct Globals { Owner<cMySettings> settings; };
//   g.settings = std::make_unique<cMySettings>();   // in a file that knows it
//
// Everything else is std::unique_ptr: get, reset(), move, bool test. Only an
// object handed over as a std::unique_ptr (std::make_unique) takes its
// deleter along; reset(pointer) is not offered.
#pragma once

#include <memory>
#include <type_traits>

namespace qvx {

template <class T>
class ErasedDelete {
 public:
  ErasedDelete() noexcept = default;
  // Chosen where U is complete: the owner of a std::unique_ptr<U> takes it over.
  template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  ErasedDelete(std::default_delete<U>) noexcept  // NOLINT: implicit on purpose
      : destroy_([](T* object) noexcept { delete static_cast<U*>(object); }) {}

  void operator()(T* object) const noexcept {
    if (destroy_) destroy_(object);
  }

 private:
  void (*destroy_)(T*) noexcept = nullptr;
};

template <class T>
using Owner = std::unique_ptr<T, ErasedDelete<T>>;

}  // namespace qvx
