#pragma once

/// @file
/// HostError, the error a public member raises.

#include <cstdint>
#include <stdexcept>
#include <string>

namespace zenta {

/// The error a host receives from a public member: a number, the source that raised it and a
/// fixed description. The library's own errors are numbered above the object-error base
/// (0x80040014 is kObjectErrorBase + 20); the run-time errors (overflow, type mismatch, ...)
/// keep the numbers hosts already know. The control logic throws it; the Qt classes catch it
/// and emit zenta::qt::ControlWidget::HostErrorRaised() instead.
class HostError : public std::runtime_error {
 public:
  /// The base of the library's own error numbers, 0x80040000.
  static constexpr std::int32_t kObjectErrorBase = static_cast<std::int32_t>(0x80040000u);

  /// An error numbered `number`, raised by `source`, reading `description`.
  HostError(std::int32_t number, std::string source, std::string description);

  /// The error's number; negative for the library's own (0x80040014 as a signed 32-bit value).
  std::int32_t Number() const noexcept { return number_; }
  /// What raised it: a control, a field's name ("dtInvoiceDate") or a member ("InvoiceValues").
  const std::string& Source() const noexcept { return source_; }
  /// The fixed text of the error, in English.
  const std::string& Description() const noexcept { return description_; }

  /// Error kObjectErrorBase + `n`, the numbering of the library's own errors.
  static HostError Object(std::int32_t n, std::string source, std::string description);

  static HostError InvalidProcedureCall(std::string source);  ///< Number 5, "Invalid procedure call or argument".
  static HostError Overflow(std::string source);              ///< Number 6, "Overflow".
  static HostError SubscriptOutOfRange(std::string source);   ///< Number 9, "Subscript out of range".
  static HostError DivisionByZero(std::string source);        ///< Number 11, "Division by zero".
  static HostError TypeMismatch(std::string source);          ///< Number 13, "Type mismatch".
  static HostError InvalidUseOfNull(std::string source);      ///< Number 94, "Invalid use of Null".
  static HostError KeyAlreadyAssociated(std::string source);  ///< Number 457, the key is already in use.

 private:
  std::int32_t number_;
  std::string source_;
  std::string description_;
};

}  // namespace zenta
