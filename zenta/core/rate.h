#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

#include "zenta/core/currency.h"

namespace zenta {

// An accounting rate (Canadian dollars per foreign unit) as an exact decimal: significand ×
// 10^-scale. A host hands rates over as single-precision floats; a float is kept as the
// shortest decimal that reads back as that float (1.35f is 1.35, not 1.35000002...), so the
// rate the payer sees is the one every conversion multiplies by. Conversions form the product
// or quotient in 128 bits and round once, half to even, to the cent; a result out of the
// currency range raises HostError::Overflow with the caller's source, never wraps.
class Rate {
 public:
  static constexpr int kShownDecimals = 6;

  constexpr Rate() = default;

  // NaN and infinities raise HostError::Overflow (source `source`).
  static Rate FromSingle(float value, const char* source = "Rate");
  static Rate FromCurrency(Currency value);
  // significand × 10^-scale; nullopt when the scale is far beyond any float's (|scale| > 64).
  static std::optional<Rate> FromParts(std::int64_t significand, int scale);
  // Invariant text as Currency::Parse reads it, kept to every decimal; nullopt for anything
  // else or more significant digits than the rate keeps.
  static std::optional<Rate> Parse(std::string_view text);

  bool IsZero() const { return significand_ == 0; }
  std::int64_t Significand() const { return significand_; }
  int Scale() const { return scale_; }
  // At least kShownDecimals decimals and every kept one, "." as separator, no grouping:
  // "1.350000", "0.00000012", "-2.500000".
  std::string ToString() const;
  // Half to even at the fourth decimal (a record's currency field); Overflow out of range.
  Currency ToCurrency(const char* source = "Rate") const;

  // foreign × rate, in Canadian dollars to the cent.
  Currency ToHome(Currency foreign, const char* source) const;
  // home ÷ rate, in the foreign currency to the cent; a zero rate raises DivisionByZero.
  Currency FromHome(Currency home, const char* source) const;

  friend bool operator==(const Rate&, const Rate&) = default;

 private:
  // Normalised: no trailing zero digits in the significand, and zero is 0 × 10^0, so equal
  // rates compare equal whatever they were made from.
  void Normalise();

  std::int64_t significand_ = 0;
  int scale_ = 0;
};

std::ostream& operator<<(std::ostream& out, const Rate& rate);

}  // namespace zenta
