// How the checker's messages show texts and numbers.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

#include "engine/ParameterTable.hpp"

namespace zeb {

/// In single quotation marks, the end of a long text left out.
inline std::string quoted(std::string_view text) {
  constexpr std::size_t kLongest = 60;
  return "'" + std::string(text.substr(0, kLongest)) + (text.size() > kLongest ? "..." : "") + "'";
}

inline std::string number(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.10g", value);
  return text;
}

/// Of a part of the line, where the same text may stand further in front, too.
inline std::size_t offsetIn(std::string_view line, std::string_view part) {
  return part.empty() ? 0 : static_cast<std::size_t>(part.data() - line.data());
}

/// What becomes of a count that the reader refuses.
inline std::string countRefused() {
  return "the count is outside of 0 to " + std::to_string(kLargestCount) + "; 0 is used";
}

}  // namespace zeb
