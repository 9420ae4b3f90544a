// The failures that the simulated host raises, with the numbers and texts the
// real host and the automation runtime give for the same situations.
#pragma once

#include <cstdint>
#include <string>

#include "core/failure.h"

namespace qvx::sim {

// Source of the host's own failures.
inline constexpr const char* kHostSource = "Microsoft Outlook";

namespace hresult {
inline constexpr int32_t kFail = static_cast<int32_t>(0x80004005u);              // E_FAIL
inline constexpr int32_t kInvalidArg = static_cast<int32_t>(0x80070057u);        // E_INVALIDARG
inline constexpr int32_t kIndexOutOfBounds = static_cast<int32_t>(0x8002000Bu);  // DISP_E_BADINDEX
inline constexpr int32_t kNotFound = static_cast<int32_t>(0x8004010Fu);          // MAPI_E_NOT_FOUND
inline constexpr int32_t kObjectDeleted =
    static_cast<int32_t>(0x8004010Au);  // MAPI_E_OBJECT_DELETED
}  // namespace hresult

inline constexpr int32_t kArgumentNotOptional = err::kArgumentNotOptional;
inline constexpr int32_t kWrongArgumentCount = err::kWrongArgumentCount;
inline constexpr int32_t kCannotCreateObject = 429;

// A failure raised by the host itself.
inline Failure HostFailure(int32_t number, std::string description) {
  return Failure(number, kHostSource, std::move(description));
}

// What the runtime raises when late binding finds no such member (438).
inline Failure NoSuchMember() {
  return Failure::Runtime(err::kNoSuchMember);
}
inline Failure ArgumentNotOptional() {
  return Failure(kArgumentNotOptional, "QVXClient", "Argument not optional");
}
inline Failure WrongArgumentCount() {
  return Failure(kWrongArgumentCount, "QVXClient",
                 "Wrong number of arguments or invalid property assignment");
}
inline Failure IndexOutOfBounds() {
  return HostFailure(hresult::kIndexOutOfBounds, "Array index out of bounds.");
}
inline Failure InvalidParameter() {
  return HostFailure(hresult::kInvalidArg,
                     "Could not complete the operation. One or more parameter values are not "
                     "valid.");
}
inline Failure CannotCreateObject() {
  return Failure(kCannotCreateObject, "QVXClient", "ActiveX component can't create object");
}

}  // namespace qvx::sim
