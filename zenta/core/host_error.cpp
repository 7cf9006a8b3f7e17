#include "zenta/core/host_error.h"

#include <utility>

namespace zenta {

HostError::HostError(std::int32_t number, std::string source, std::string description)
    : std::runtime_error(description), number_(number), source_(std::move(source)),
      description_(std::move(description)) {}

HostError HostError::Object(std::int32_t n, std::string source, std::string description) {
  return HostError(kObjectErrorBase + n, std::move(source), std::move(description));
}

HostError HostError::InvalidProcedureCall(std::string source) {
  return HostError(5, std::move(source), "Invalid procedure call or argument");
}
HostError HostError::Overflow(std::string source) { return HostError(6, std::move(source), "Overflow"); }
HostError HostError::SubscriptOutOfRange(std::string source) {
  return HostError(9, std::move(source), "Subscript out of range");
}
HostError HostError::DivisionByZero(std::string source) {
  return HostError(11, std::move(source), "Division by zero");
}
HostError HostError::TypeMismatch(std::string source) { return HostError(13, std::move(source), "Type mismatch"); }
HostError HostError::InvalidUseOfNull(std::string source) {
  return HostError(94, std::move(source), "Invalid use of Null");
}
HostError HostError::KeyAlreadyAssociated(std::string source) {
  return HostError(457, std::move(source), "This key is already associated with an element of this collection");
}

}  // namespace zenta
