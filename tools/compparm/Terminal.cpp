#include "tools/compparm/Terminal.hpp"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <new>

#include "tools/compparm/Ranks.hpp"

namespace compparm {

namespace {

bool wantsColour() {
  static const bool kWanted = [] {
    const char* noColour = std::getenv("NO_COLOR");
    // mpirun gives its ranks a terminal of its own, wherever their output goes in the end.
    const bool isTerminal = isatty(STDOUT_FILENO) == 1 && !MpiRun::isPresent();
    return isTerminal && (noColour == nullptr || *noColour == '\0');
  }();
  return kWanted;
}

std::string_view code(Colour colour) {
  switch (colour) {
    case Colour::kBold:
      return "\033[1m";
    case Colour::kDim:
      return "\033[2m";
    case Colour::kRed:
      return "\033[31m";
    case Colour::kGreen:
      return "\033[32m";
    case Colour::kYellow:
      return "\033[33m";
    case Colour::kCyan:
      return "\033[36m";
  }
  return "";
}

}  // namespace

std::string coloured(Colour colour, std::string_view text) {
  if (!wantsColour()) return std::string(text);
  return std::string(code(colour)) + std::string(text) + "\033[0m";
}

std::string printable(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string result;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte != 0x7f) {
      result += c;
    } else if (c == '\t') {
      result += "\\t";
    } else {
      result += std::string("\\x") + kDigits[byte >> 4] + kDigits[byte & 15u];
    }
  }
  return result;
}

int fail(std::string_view text) {
  std::fputs("compparm: ", stderr);
  std::fwrite(text.data(), 1, text.size(), stderr);
  std::fputc('\n', stderr);
  return kError;
}

int fail(const std::exception& error) {
  const bool isMemory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr;
  return fail(isMemory ? "not enough memory" : error.what());
}

std::vector<std::string> split(std::string_view text, char separator) {
  std::vector<std::string> parts;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(separator), text.size());
    parts.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return parts;
}

std::string padded(std::string_view text, std::size_t width) {
  const auto continues = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; };
  const auto columns = text.size() - static_cast<std::size_t>(std::count_if(text.begin(), text.end(), continues));
  return std::string(text) + std::string(columns < width ? width - columns : 0, ' ');
}

}  // namespace compparm
