// Both grammars rest on std::from_chars, which knows no locale; the code here is what the two add to it or take away.
#include "engine/ValueText.hpp"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>
#include <system_error>

namespace zeb {

namespace {

constexpr bool isHexadecimalDigit(char c) { return isDigit(c) || ((c | 0x20) >= 'a' && (c | 0x20) <= 'f'); }
constexpr bool isSign(char c) { return c == '+' || c == '-'; }

constexpr char toLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; }

const char* skipSpace(const char* at, const char* end) {
  while (at != end && *at <= ' ' && isSpace(*at)) ++at;  // most texts start right away: one comparison
  return at;
}

// from_chars knows no '+'.
const char* skipPlus(const char* at, const char* end) { return at != end && *at == '+' ? at + 1 : at; }

bool startsWithoutCase(const char* at, const char* end, std::string_view lowerCase) {
  if (static_cast<std::size_t>(end - at) < lowerCase.size()) return false;
  for (const char c : lowerCase) {
    if (toLower(*at++) != c) return false;
  }
  return true;
}

// A decimal number at `at`, sign included: [+-] digits [. digits] [exponent].
bool isDecimal(const char* at, const char* end) {
  if (at != end && isSign(*at)) ++at;
  if (at != end && *at == '.') ++at;
  return at != end && isDigit(*at);
}

// from_chars says only "out of range"; which end it was, the decimal position of the first digit that counts tells.
bool isTooSmall(const char* at, const char* end) {
  long position = 0;  // of the first non-zero digit, as a power of ten
  bool pointSeen = false, digitSeen = false;
  for (; at != end && (isDigit(*at) || *at == '.' || isSign(*at)); ++at) {
    if (*at == '.') {
      pointSeen = true;
    } else if (isDigit(*at)) {
      digitSeen = digitSeen || *at != '0';
      if (digitSeen && !pointSeen) ++position;
      if (!digitSeen && pointSeen) --position;
    }
  }
  long exponent = 0;
  if (at != end) {
    const bool negative = at[1] == '-';
    const auto result = std::from_chars(skipPlus(at + 1, end), end, exponent);
    if (result.ec == std::errc::result_out_of_range) return negative;
  }
  return exponent < -position;  // their sum may not fit
}

// A whole decimal number without its optional exponent's mistakes; null when there is none. `tooLarge` replaces what
// does not fit a double (what is too small becomes a signed zero, as with the C library).
const char* readDecimal(const char* at, const char* end, double tooLarge, double& value) {
  if (const char* after = readShortDecimal(at, end, value)) return after;
  if (!isDecimal(at, end)) return nullptr;
  const auto result = std::from_chars(skipPlus(at, end), end, value);
  if (result.ec == std::errc::invalid_argument) return nullptr;
  if (result.ec == std::errc::result_out_of_range) {
    value = isTooSmall(at, result.ptr) ? 0.0 : tooLarge;
    if (*at == '-') value = -value;
  }
  return result.ptr;
}

const char* readInt(const char* at, const char* end, int& value) {
  const char* digits = skipPlus(at, end);
  if (digits != at && digits != end && *digits == '-') return nullptr;  // "+-1" is no number
  if (const char* after = readShortInt(digits, end, value)) return after;
  const auto result = std::from_chars(digits, end, value);
  return result.ec == std::errc() ? result.ptr : nullptr;
}

// Where an exponent mark that no digit follows stands directly behind a number; null where there is none. from_chars
// leaves it alone; a mark behind a whole exponent is just where the number stops.
const char* bareExponent(const char* number, const char* at, const char* end, char mark) {
  if (at == end || (*at | 0x20) != mark) return nullptr;
  for (; number != at; ++number) {
    if ((*number | 0x20) == mark) return nullptr;
  }
  return at;
}

// The formatted scan takes such a mark, with its sign, as part of the number.
const char* skipBareExponent(const char* number, const char* at, const char* end, char mark) {
  const char* exponent = bareExponent(number, at, end, mark);
  if (exponent == nullptr) return at;
  ++exponent;
  return exponent != end && isSign(*exponent) ? exponent + 1 : exponent;
}

const char* scanHexadecimal(const char* at, const char* end, double& value) {
  // from_chars would take a sign, "nan" and "inf" here too.
  if (at == end || !(isHexadecimalDigit(*at) || *at == '.')) return nullptr;
  // from_chars takes "p+-1" for an exponent; there the number ends before its mark.
  const std::string_view text(at, static_cast<std::size_t>(end - at));
  const std::size_t mark = std::min(text.find("p+-"), text.find("P+-"));
  const char* const limit = mark == text.npos ? end : at + mark;
  const auto result = std::from_chars(at, limit, value, std::chars_format::hex);
  if (result.ec == std::errc::invalid_argument) {
    // "0x." counts as a zero.
    value = 0.0;
    return at + 1;
  }
  if (result.ec == std::errc::result_out_of_range) {
    const std::string_view number(at, static_cast<std::size_t>(result.ptr - at));
    const bool tooSmall = number.find("p-") != number.npos || number.find("P-") != number.npos;
    value = tooSmall ? 0.0 : std::numeric_limits<double>::infinity();
  }
  return skipBareExponent(at, result.ptr, end, 'p');
}

const char* scanNamed(const char* at, const char* end, double& value) {
  if (startsWithoutCase(at, end, "nan")) {
    value = std::numeric_limits<double>::quiet_NaN();
    return at + 3;
  }
  if (!startsWithoutCase(at, end, "inf")) return nullptr;
  value = std::numeric_limits<double>::infinity();
  if (startsWithoutCase(at, end, "infinity")) return at + 8;
  // "infi" is the beginning of a longer word that does not come, and so no match.
  return startsWithoutCase(at, end, "infi") ? nullptr : at + 3;
}

const char* scanDouble(const char* at, const char* end, double& value) {
  if (isDecimal(at, end)) {
    const char* unsignedPart = at + (isSign(*at) ? 1 : 0);
    if (!startsWithoutCase(unsignedPart, end, "0x")) {
      const char* after = readDecimal(at, end, std::numeric_limits<double>::infinity(), value);
      return after == nullptr ? nullptr : skipBareExponent(at, after, end, 'e');
    }
  }
  const bool negative = at != end && *at == '-';
  const char* magnitude = at + (at != end && isSign(*at) ? 1 : 0);
  double read = 0.0;
  const char* after = startsWithoutCase(magnitude, end, "0x") ? scanHexadecimal(magnitude + 2, end, read)
                                                              : scanNamed(magnitude, end, read);
  if (after != nullptr) value = negative ? -read : read;
  return after;
}

}  // namespace

std::size_t extractDouble(std::string_view text, double& value) {
  constexpr double kTooLarge = std::numeric_limits<double>::infinity();
  const char* end = text.data() + text.size();
  double read = 0.0;
  const char* after = readDecimal(skipSpace(text.data(), end), end, kTooLarge, read);
  if (after == nullptr || read == kTooLarge || read == -kTooLarge) return 0;
  // A stream has taken the bare mark and fails.
  if (bareExponent(text.data(), after, end, 'e') != nullptr) return 0;
  value = read;
  return static_cast<std::size_t>(after - text.data());
}

bool isDoubleOutOfRange(std::string_view text) {
  const char* end = text.data() + text.size();
  const char* at = skipSpace(text.data(), end);
  double value = 0.0;
  if (!isDecimal(at, end)) return false;
  const auto result = std::from_chars(skipPlus(at, end), end, value);
  return result.ec == std::errc::result_out_of_range && !isTooSmall(at, result.ptr);
}

bool isIntOutOfRange(std::string_view text) {
  const char* end = text.data() + text.size();
  const char* at = skipSpace(text.data(), end);
  int value = 0;
  return std::from_chars(skipPlus(at, end), end, value).ec == std::errc::result_out_of_range;
}

std::size_t extractInt(std::string_view text, int& value) {
  const char* end = text.data() + text.size();
  const char* after = readInt(skipSpace(text.data(), end), end, value);
  return after == nullptr ? 0 : static_cast<std::size_t>(after - text.data());
}

std::size_t extractWord(std::string_view text, std::string_view& value) {
  const char* end = text.data() + text.size();
  const char* first = skipSpace(text.data(), end);
  const char* last = first;
  while (last != end && !isSpace(*last)) ++last;
  if (first == last) return 0;
  value = {first, static_cast<std::size_t>(last - first)};
  return static_cast<std::size_t>(last - text.data());
}

bool FieldScanner::take(std::size_t used) {
  m_failed = used == 0;
  m_rest.remove_prefix(used);
  return !m_failed;
}

bool FieldScanner::nextOfAnyForm(double& value) {
  if (m_failed) return false;
  const char* end = m_rest.data() + m_rest.size();
  const char* after = scanDouble(skipSpace(m_rest.data(), end), end, value);
  return take(after == nullptr ? 0 : static_cast<std::size_t>(after - m_rest.data()));
}

bool FieldScanner::nextOfAnyForm(int& value) { return !m_failed && take(extractInt(m_rest, value)); }

bool FieldScanner::next(std::string_view& word) { return !m_failed && take(extractWord(m_rest, word)); }

}  // namespace zeb
