// Number formatting by std::to_chars: always the "C" notation, whatever std::locale::global or setlocale said.
#include "engine/TextOutput.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iostream>

namespace zeb {

namespace {

constexpr int kPrecision = 6;
// 1e308 with six decimals is the longest text: 309 digits, a point and the decimals.
constexpr std::size_t kLongest = 400;

// Of the number in front of an exponent, from its first one that is not zero.
std::ptrdiff_t countDigits(std::string_view number) {
  number = number.substr(0, number.find('e'));
  number.remove_prefix(std::min(number.find_first_of("123456789"), number.size()));
  return std::count_if(number.begin(), number.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

// The shortest text that gives the value back is found in a third of the time. With so few digits it is the one rounded
// to six, unless the value has fewer than these itself, as those close to zero have.
std::string formatGeneral(double value) {
  char text[kLongest];
  auto result = std::to_chars(text, text + kLongest, value, std::chars_format::general);
  if (!std::isnormal(value) || countDigits({text, result.ptr}) > kPrecision) {
    result = std::to_chars(text, text + kLongest, value, std::chars_format::general, kPrecision);
  }
  return {text, result.ptr};
}

std::string formatFixed(double value) {
  char text[kLongest];
  const auto result = std::to_chars(text, text + kLongest, value, std::chars_format::fixed, kPrecision);
  return {text, result.ptr};
}

std::string formatAddress(const void* address) {
  if (address == nullptr) return "0";
  char text[20] = "0x";
  const auto result = std::to_chars(text + 2, text + sizeof text, reinterpret_cast<std::uintptr_t>(address), 16);
  return {text, result.ptr};
}

void writeOut(std::string_view text) {
  // write() ignores width, fill and number flags that a host may have left on the stream.
  std::cout.write(text.data(), static_cast<std::streamsize>(text.size()));
  std::cout.flush();
}

}  // namespace zeb
