#include "core/failure.h"

namespace qvx {

std::string RuntimeErrorDescription(int32_t number) {
  switch (number) {
    case err::kInvalidProcedureCall:
      return "Invalid procedure call or argument";
    case err::kOverflow:
      return "Overflow";
    case err::kOutOfMemory:
      return "Out of memory";
    case err::kSubscriptOutOfRange:
      return "Subscript out of range";
    case err::kTypeMismatch:
      return "Type mismatch";
    case err::kInternalError:
      return "Internal error";
    case err::kObjectNotSet:
      return "Object variable or With block variable not set";
    case err::kInvalidUseOfNull:
      return "Invalid use of Null";
    case err::kResourceNotFound:
      return "Resource with identifier not found";
    case err::kObjectRequired:
      return "Object required";
    case err::kNoSuchMember:
      return "Object doesn't support this property or method";
    case err::kKeyAlreadyAssociated:
      return "This key is already associated with an element of this collection";
    default:
      return {};
  }
}

}  // namespace qvx
