// Failure: the program's one error value (number, source, description).
//
// Host calls and conversions throw it. It never crosses an entry point from
// outside (COM method, callback, event sink, window procedure): traps catch it
// and hand it to the central reporter, see trap.h.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace qvx {

// Error numbers of the legacy runtime that the logic raises itself.
namespace err {
inline constexpr int32_t kInvalidProcedureCall = 5;
inline constexpr int32_t kOverflow = 6;
inline constexpr int32_t kOutOfMemory = 7;
inline constexpr int32_t kSubscriptOutOfRange = 9;
inline constexpr int32_t kTypeMismatch = 13;
inline constexpr int32_t kInternalError = 51;
inline constexpr int32_t kObjectNotSet = 91;
inline constexpr int32_t kInvalidUseOfNull = 94;
inline constexpr int32_t kResourceNotFound = 326;
inline constexpr int32_t kObjectRequired = 424;
inline constexpr int32_t kNoSuchMember = 438;
inline constexpr int32_t kArgumentNotOptional = 449;
inline constexpr int32_t kWrongArgumentCount = 450;
inline constexpr int32_t kKeyAlreadyAssociated = 457;
// The platform's object error base (vbObjectError).
inline constexpr int32_t kObjectErrorBase = static_cast<int32_t>(0x80040000u);
}  // namespace err

// The runtime's own description of its error numbers; empty for others.
std::string RuntimeErrorDescription(int32_t number);

class Failure : public std::exception {
 public:
  Failure(int32_t number, std::string source, std::string description)
      : number_(number), source_(std::move(source)), description_(std::move(description)) {}

  // A runtime error with the runtime's own description.
  static Failure Runtime(int32_t number, std::string source = "QVXClient") {
    return Failure(number, std::move(source), RuntimeErrorDescription(number));
  }

  int32_t number() const noexcept { return number_; }
  const std::string& source() const noexcept { return source_; }
  const std::string& description() const noexcept { return description_; }
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  int32_t number_;
  std::string source_;
  std::string description_;
};

}  // namespace qvx
