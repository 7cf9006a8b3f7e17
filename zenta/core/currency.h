#pragma once

#include <compare>
#include <cstdint>
#include <limits>
#include <optional>
#include <iosfwd>
#include <string>
#include <string_view>

namespace zenta {

// Money as a signed 64-bit count of ten-thousandths: sums, differences and comparisons are
// exact. Every operation that could leave the range raises HostError::Overflow; nothing wraps.
// Conversions from double and from text round half to even at the fourth decimal.
class Currency {
 public:
  static constexpr std::int64_t kScale = 10000;

  constexpr Currency() = default;

  static constexpr Currency FromUnits(std::int64_t ten_thousandths) {
    Currency c;
    c.units_ = ten_thousandths;
    return c;
  }
  static Currency FromInteger(std::int64_t whole);
  static Currency FromDouble(double value);
  // Invariant text: optional sign, digits, optional "." and digits ("12.5", "-0.05", ".5",
  // "1234."). Surrounding blanks are allowed. Returns nullopt for anything else; raises
  // Overflow for a well-formed number out of range.
  static std::optional<Currency> Parse(std::string_view text);
  // As Parse, but a malformed text raises HostError::TypeMismatch.
  static Currency FromText(std::string_view text);

  static constexpr Currency Max() { return FromUnits(std::numeric_limits<std::int64_t>::max()); }
  static constexpr Currency Min() { return FromUnits(std::numeric_limits<std::int64_t>::min()); }

  constexpr std::int64_t Units() const { return units_; }
  constexpr bool IsZero() const { return units_ == 0; }
  double ToDouble() const;
  float ToSingle() const;
  // Shortest plain text, no grouping, "." as separator: "12.5", "1234", "-0.05", "0".
  std::string ToString() const;

  // Multiplication and division by a double, rounded half to even at the fourth decimal.
  Currency MultipliedBy(double factor) const;
  Currency DividedBy(double divisor) const;  // divisor 0 raises DivisionByZero
  // Half to even at `places` decimals (0 to 4).
  Currency RoundedTo(int places) const;

  Currency operator-() const;
  Currency& operator+=(Currency other);
  Currency& operator-=(Currency other);
  friend Currency operator+(Currency a, Currency b) { return a += b; }
  friend Currency operator-(Currency a, Currency b) { return a -= b; }

  friend constexpr bool operator==(Currency, Currency) = default;
  friend constexpr auto operator<=>(Currency, Currency) = default;

 private:
  std::int64_t units_ = 0;
};

// Writes ToString(): test failures and logs show "12.5", not the raw units.
std::ostream& operator<<(std::ostream& out, const Currency& value);

}  // namespace zenta
