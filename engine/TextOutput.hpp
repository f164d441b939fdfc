// Everything the library prints goes through here, untouched by the host's locales and stream flags.
#pragma once

#include <string>
#include <string_view>

namespace zeb {

/// The default stream formatting of a double (printf's "%g"): six significant digits.
std::string formatGeneral(double value);
/// printf's "%lf": six decimals.
std::string formatFixed(double value);
/// A pointer as a stream prints it: "0" when null, else hexadecimal with "0x".
std::string formatAddress(const void* address);

/// Writes the bytes as they stand to std::cout and flushes it.
void writeOut(std::string_view text);

}  // namespace zeb
