#pragma once

/// @file
/// Currency, the exact money type.

#include <compare>
#include <cstdint>
#include <limits>
#include <optional>
#include <iosfwd>
#include <string>
#include <string_view>

/// The library's value types, records and control logic.
namespace zenta {

/// Money as a signed 64-bit count of ten-thousandths of a dollar: four decimals, from
/// -922,337,203,685,477.5808 to 922,337,203,685,477.5807. Sums, differences and comparisons
/// are exact. Every operation that could leave the range raises HostError::Overflow (6);
/// nothing wraps. Conversions from double and from text round half to even at the fourth
/// decimal; a double stands for its shortest decimal text, so 1.35 is 1.35.
///
/// **Display.** ToString() is the shortest text ("113", "12.5"), for logs and round trips. To
/// show an amount use FormatNumber(value, formats::kAmount) ("113.00"), or, in Qt, the
/// QString a QVariant holding it converts to ("113.00", see zenta::qt::RegisterMetaTypes()).
class Currency {
 public:
  /// Units in one dollar.
  static constexpr std::int64_t kScale = 10000;

  /// Zero.
  constexpr Currency() = default;

  /// The amount of `ten_thousandths` units (FromUnits(12500) is 1.25).
  static constexpr Currency FromUnits(std::int64_t ten_thousandths) {
    Currency c;
    c.units_ = ten_thousandths;
    return c;
  }
  /// `whole` dollars; Overflow past the range.
  static Currency FromInteger(std::int64_t whole);
  /// `value` dollars rounded half to even at the fourth decimal; NaN, infinity or a value
  /// past the range raise Overflow.
  static Currency FromDouble(double value);
  /// Invariant text: optional sign, digits, optional "." and digits ("12.5", "-0.05", ".5",
  /// "1234."). Surrounding blanks are allowed. Returns nullopt for anything else; raises
  /// Overflow for a well-formed number out of range.
  static std::optional<Currency> Parse(std::string_view text);
  /// As Parse(), but a malformed text raises HostError::TypeMismatch (13).
  static Currency FromText(std::string_view text);

  /// The largest amount, 922,337,203,685,477.5807.
  static constexpr Currency Max() { return FromUnits(std::numeric_limits<std::int64_t>::max()); }
  /// The smallest amount, -922,337,203,685,477.5808.
  static constexpr Currency Min() { return FromUnits(std::numeric_limits<std::int64_t>::min()); }

  /// The amount in ten-thousandths of a dollar.
  constexpr std::int64_t Units() const { return units_; }
  /// Whether the amount is 0.
  constexpr bool IsZero() const { return units_ == 0; }
  /// The nearest double, for display-only use.
  double ToDouble() const;
  /// The nearest float, for hosts that read amounts as single precision.
  float ToSingle() const;
  /// Shortest plain text, no grouping, "." as separator: "12.5", "1234", "-0.05", "0". Not
  /// a display form: see the class description.
  std::string ToString() const;

  /// The amount times `factor`, from the exact product rounded half to even at the fourth
  /// decimal; Overflow past the range.
  Currency MultipliedBy(double factor) const;
  /// The amount divided by `divisor`, rounded as MultipliedBy(); a divisor of 0 raises
  /// DivisionByZero (11).
  Currency DividedBy(double divisor) const;
  /// Rounded half to even at `places` decimals (0 to 4): RoundedTo(2) is to the cent.
  Currency RoundedTo(int places) const;

  Currency operator-() const;                   ///< The negated amount; Overflow for Min().
  Currency& operator+=(Currency other);         ///< Adds exactly; Overflow past the range.
  Currency& operator-=(Currency other);         ///< Subtracts exactly; Overflow past the range.
  /// The exact sum; Overflow past the range.
  friend Currency operator+(Currency a, Currency b) { return a += b; }
  /// The exact difference; Overflow past the range.
  friend Currency operator-(Currency a, Currency b) { return a -= b; }

  /// Exact equality.
  friend constexpr bool operator==(Currency, Currency) = default;
  /// Exact ordering.
  friend constexpr auto operator<=>(Currency, Currency) = default;

 private:
  std::int64_t units_ = 0;
};

/// Writes ToString(): test failures and logs show "12.5", not the raw units.
std::ostream& operator<<(std::ostream& out, const Currency& value);

}  // namespace zenta
