// Number formatting by std::to_chars: always the "C" notation, whatever std::locale::global or setlocale said.
#include "engine/TextOutput.hpp"

#include <charconv>
#include <cstdint>
#include <iostream>

namespace zeb {

namespace {

// 1e308 with six decimals is the longest text: 309 digits, a point and the decimals.
std::string formatDouble(double value, std::chars_format format) {
  char text[400];
  const auto result = std::to_chars(text, text + sizeof text, value, format, 6);
  return {text, result.ptr};
}

}  // namespace

std::string formatGeneral(double value) { return formatDouble(value, std::chars_format::general); }

std::string formatFixed(double value) { return formatDouble(value, std::chars_format::fixed); }

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
