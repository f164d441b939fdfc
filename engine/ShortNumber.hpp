// Numbers as parameter files hold them: short. So few digits are read exactly without the library's help, and inline.
#pragma once

#include <cfloat>
#include <cstddef>
#include <cstdint>

namespace zeb {

/// White space as streams in the classic locale skip it.
constexpr bool isSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// The end of a text behind which an LF or a NUL stands: no character of a number is taken for one, so that its end
/// needs no look.
struct EndsByItself {
  friend constexpr bool operator==(const char*, EndsByItself) { return false; }
};

/// [-] up to 9 digits, which fit an int whatever they are. Null where it is another number, or none.
template <class End>
const char* readShortInt(const char* at, End end, int& value) {
  constexpr std::ptrdiff_t kMostDigits = 9;
  const bool negative = at != end && *at == '-';
  if (negative) ++at;
  const char* const first = at;
  unsigned magnitude = 0;
  for (; at != end && isDigit(*at); ++at) magnitude = magnitude * 10 + static_cast<unsigned>(*at - '0');
  if (at == first || at - first > kMostDigits) return nullptr;
  value = negative ? -static_cast<int>(magnitude) : static_cast<int>(magnitude);
  return at;
}

/// The power of ten behind an 'e', of up to 3 digits; `at` stays where none of these stands there.
template <class End>
int readShortExponent(const char*& at, End end) {
  constexpr std::ptrdiff_t kMostDigits = 3;
  const char* digit = at;
  const bool negative = digit != end && *digit == '-';
  if (digit != end && (*digit == '-' || *digit == '+')) ++digit;
  const char* const first = digit;
  int power = 0;
  for (; digit != end && isDigit(*digit) && digit - first <= kMostDigits; ++digit) power = power * 10 + (*digit - '0');
  if (digit == first || digit - first > kMostDigits) return 0;
  at = digit;
  return negative ? -power : power;
}

/// [+-] digits [. digits] [exponent]: integers up to 2^53 and powers of ten up to 22 are exact doubles, so that one
/// multiplication or division gives the correctly rounded value. Null where it is another number, or none.
template <class End>
const char* readShortDecimal(const char* at, End end, double& value) {
  static_assert(FLT_EVAL_METHOD == 0, "the one rounding must be to double");
  static constexpr double kPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                       1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  constexpr int kLargestPower = 22;
  constexpr std::ptrdiff_t kMostDigits = 18;
  if (at == end) return nullptr;
  const bool negative = *at == '-';
  if (negative || *at == '+') ++at;
  std::uint64_t digits = 0;
  const auto readDigits = [&] {
    const char* const start = at;
    for (; at != end && isDigit(*at); ++at) digits = digits * 10 + static_cast<std::uint64_t>(*at - '0');
    return at - start;
  };
  std::ptrdiff_t count = readDigits(), power = 0;
  if (at != end && *at == '.') {
    ++at;
    power = -readDigits();
    count -= power;
  }
  if (count == 0 || count > kMostDigits || digits > std::uint64_t{1} << 53) return nullptr;
  if (at != end && (*at | 0x20) == 'e') {
    const char* const mark = at++;
    power += readShortExponent(at, end);
    if (at == mark + 1) return nullptr;
  }
  if (power < -kLargestPower || power > kLargestPower) return nullptr;
  const auto whole = static_cast<double>(digits);
  value = power < 0 ? whole / kPowers[-power] : whole * kPowers[power];
  if (negative) value = -value;
  return at;
}

template <class End>
const char* readShort(const char* at, End end, int& value) {
  return readShortInt(at, end, value);
}
template <class End>
const char* readShort(const char* at, End end, double& value) {
  return readShortDecimal(at, end, value);
}

}  // namespace zeb
