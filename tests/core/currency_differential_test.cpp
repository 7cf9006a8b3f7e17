// Currency against an independent 128-bit reference: seeded random operations, every result
// equal to the exactly rounded one, and every overflow raised rather than wrapped.
#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <random>
#include <string>

#include "zenta/core/currency.h"
#include "zenta/core/host_error.h"

namespace zenta {
namespace {

__extension__ typedef __int128 Int128;

constexpr Int128 kMaxUnits = std::numeric_limits<std::int64_t>::max();
constexpr Int128 kMinUnits = std::numeric_limits<std::int64_t>::min();

// n / d rounded half to even; d > 0.
Int128 DivideHalfEven(Int128 n, Int128 d) {
  Int128 q = n / d;
  Int128 r = n % d;
  if (r < 0) r = -r;
  const Int128 twice = 2 * r;
  if (twice > d || (twice == d && q % 2 != 0)) q += n < 0 ? -1 : 1;
  return q;
}

// The result the type must give: the units, or nullopt where it must raise Overflow.
std::optional<std::int64_t> Fit(Int128 units) {
  if (units > kMaxUnits || units < kMinUnits) return std::nullopt;
  return static_cast<std::int64_t>(units);
}

// A double stands for its shortest decimal (1.35 is 1.35, not the binary value nearest it):
// x = digits * 10^exponent.
struct ShortestDecimal {
  Int128 digits = 0;
  int exponent = 0;
};

ShortestDecimal Shortest(double x) {
  char buffer[64];
  auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, x, std::chars_format::scientific);
  EXPECT_EQ(ec, std::errc());
  const std::string text(buffer, end);
  ShortestDecimal d;
  const std::size_t e = text.find('e');
  int fraction_digits = 0;
  bool after_point = false;
  for (std::size_t i = 0; i < e; ++i) {
    if (text[i] == '-') continue;
    if (text[i] == '.') {
      after_point = true;
      continue;
    }
    d.digits = d.digits * 10 + (text[i] - '0');
    if (after_point) ++fraction_digits;
  }
  if (text[0] == '-') d.digits = -d.digits;
  d.exponent = std::stoi(text.substr(e + 1)) - fraction_digits;
  return d;
}

Int128 PowerOfTen(int n) {
  Int128 p = 1;
  for (int i = 0; i < n; ++i) p *= 10;
  return p;
}

// Exactly units * x, rounded half to even to whole units.
std::optional<std::int64_t> TimesDouble(std::int64_t units, double x) {
  const ShortestDecimal d = Shortest(x);
  const Int128 product = static_cast<Int128>(units) * d.digits;  // below 2^121
  if (d.exponent >= 0) {
    if (product == 0) return 0;
    Int128 scaled = 0;
    if (d.exponent > 38 || __builtin_mul_overflow(product, PowerOfTen(d.exponent), &scaled)) return std::nullopt;
    return Fit(scaled);
  }
  if (-d.exponent > 38) return 0;
  return Fit(DivideHalfEven(product, PowerOfTen(-d.exponent)));
}

// Exactly units / x, rounded half to even; nullopt also where the reference itself cannot hold
// the numerator (the caller skips those).
std::optional<std::optional<std::int64_t>> OverDouble(std::int64_t units, double x) {
  ShortestDecimal d = Shortest(x);
  Int128 n = units;
  if (d.digits < 0) {
    d.digits = -d.digits;
    n = -n;
  }
  if (d.exponent <= 0) {
    Int128 scaled = 0;
    if (-d.exponent > 38 || __builtin_mul_overflow(n, PowerOfTen(-d.exponent), &scaled)) return std::nullopt;
    return Fit(DivideHalfEven(scaled, d.digits));
  }
  Int128 divisor = 0;
  if (d.exponent > 38 || __builtin_mul_overflow(d.digits, PowerOfTen(d.exponent), &divisor)) return Fit(0);
  return Fit(DivideHalfEven(n, divisor));
}

// Decimal text to units, the dropped digits rounded half to even.
std::optional<std::int64_t> ParseReference(bool negative, const std::string& whole, const std::string& fraction) {
  Int128 units = 0;
  for (char c : whole) {
    units = units * 10 + (c - '0');
    if (units > Int128{1} << 100) return std::nullopt;
  }
  for (int i = 0; i < 4; ++i) units = units * 10 + (i < static_cast<int>(fraction.size()) ? fraction[i] - '0' : 0);
  if (fraction.size() > 4) {
    const int first = fraction[4] - '0';
    const bool rest = fraction.find_first_not_of('0', 5) != std::string::npos;
    if (first > 5 || (first == 5 && (rest || units % 2 != 0))) ++units;
  }
  return Fit(negative ? -units : units);
}

template <class Operation>
std::optional<std::int64_t> Actual(Operation operation) {
  try {
    return operation().Units();
  } catch (const HostError& error) {
    EXPECT_EQ(error.Number(), 6);  // Overflow
    return std::nullopt;
  }
}

class CurrencyDifferential : public ::testing::Test {
 protected:
  std::mt19937_64 random{20261123};

  std::int64_t AnyUnits() {
    switch (random() % 4) {
      case 0: return static_cast<std::int64_t>(random());                          // the whole range
      case 1: return static_cast<std::int64_t>(random() % 2000000001) - 1000000000;  // everyday amounts
      case 2: return std::numeric_limits<std::int64_t>::max() - static_cast<std::int64_t>(random() % 1000);
      default: return std::numeric_limits<std::int64_t>::min() + static_cast<std::int64_t>(random() % 1000);
    }
  }
  double AnyFactor() {
    switch (random() % 3) {
      case 0: return static_cast<double>(static_cast<std::int64_t>(random() % 20001) - 10000) / 100.0;
      case 1: return std::uniform_real_distribution<double>(-1e6, 1e6)(random);
      default: return std::ldexp(static_cast<double>(random() % 1000 + 1), -static_cast<int>(random() % 20));
    }
  }
  std::string Digits(std::size_t count) {
    std::string digits;
    for (std::size_t i = 0; i < count; ++i) digits += static_cast<char>('0' + random() % 10);
    return digits;
  }
};

constexpr int kOperations = 100000;

TEST_F(CurrencyDifferential, EveryOperationMatchesTheExactReference) {
  for (int i = 0; i < kOperations; ++i) {
    const std::int64_t a = AnyUnits();
    const std::int64_t b = AnyUnits();
    const Currency x = Currency::FromUnits(a);
    const Currency y = Currency::FromUnits(b);
    switch (i % 6) {
      case 0:
        ASSERT_EQ(Actual([&] { return x + y; }), Fit(Int128{a} + b)) << a << " + " << b;
        break;
      case 1:
        ASSERT_EQ(Actual([&] { return x - y; }), Fit(Int128{a} - b)) << a << " - " << b;
        break;
      case 2: {
        const double f = AnyFactor();
        ASSERT_EQ(Actual([&] { return x.MultipliedBy(f); }), TimesDouble(a, f)) << a << " * " << f;
        break;
      }
      case 3: {
        double f = AnyFactor();
        if (f == 0) f = 1.35;
        if (const auto expected = OverDouble(a, f)) {
          ASSERT_EQ(Actual([&] { return x.DividedBy(f); }), *expected) << a << " / " << f;
        }
        break;
      }
      case 4: {
        const int places = static_cast<int>(random() % 5);
        const Int128 step = places == 4 ? 1 : (places == 3 ? 10 : places == 2 ? 100 : places == 1 ? 1000 : 10000);
        ASSERT_EQ(Actual([&] { return x.RoundedTo(places); }), Fit(DivideHalfEven(a, step) * step))
            << a << " to " << places;
        break;
      }
      default: {
        // Text with many decimals, exact halves among them, and integer parts past the range.
        const bool negative = random() % 2 == 0;
        const std::string whole = Digits(random() % 17);
        std::string fraction = Digits(random() % 9);
        if (random() % 3 == 0) fraction = Digits(4) + "5" + std::string(random() % 3, '0');
        const std::string text = (negative ? "-" : "") + (whole.empty() ? "0" : whole) + "." + fraction;
        ASSERT_EQ(Actual([&] { return Currency::FromText(text); }), ParseReference(negative, whole, fraction))
            << text;
      }
    }
  }
}

}  // namespace
}  // namespace zenta
