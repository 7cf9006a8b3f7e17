#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace zenta {

// The error a host receives from a public member: a number, the source that raised it and a
// fixed description. The library's own errors are numbered above the object-error base; the
// run-time errors (overflow, type mismatch, ...) keep the numbers hosts already know.
class HostError : public std::runtime_error {
 public:
  static constexpr std::int32_t kObjectErrorBase = static_cast<std::int32_t>(0x80040000u);

  HostError(std::int32_t number, std::string source, std::string description);

  std::int32_t Number() const noexcept { return number_; }
  const std::string& Source() const noexcept { return source_; }
  const std::string& Description() const noexcept { return description_; }

  // kObjectErrorBase + n, the numbering of the library's own errors.
  static HostError Object(std::int32_t n, std::string source, std::string description);

  static HostError InvalidProcedureCall(std::string source);  // 5
  static HostError Overflow(std::string source);              // 6
  static HostError SubscriptOutOfRange(std::string source);   // 9
  static HostError DivisionByZero(std::string source);        // 11
  static HostError TypeMismatch(std::string source);          // 13
  static HostError InvalidUseOfNull(std::string source);      // 94
  static HostError KeyAlreadyAssociated(std::string source);  // 457

 private:
  std::int32_t number_;
  std::string source_;
  std::string description_;
};

}  // namespace zenta
