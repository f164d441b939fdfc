// How the checker's messages show texts and numbers.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

#include "engine/ParameterTable.hpp"

namespace zeb {

constexpr std::size_t kLongestShown = 60;

/// In single quotation marks, the end of a long text left out.
inline std::string quoted(std::string_view text) {
  return "'" + std::string(text.substr(0, kLongestShown)) + (text.size() > kLongestShown ? "..." : "") + "'";
}

inline std::string number(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.10g", value);
  return text;
}

/// Where something stands in a line, or its start.
inline std::size_t orStart(std::size_t at) { return at == std::string_view::npos ? 0 : at; }

inline bool isInt(const Row& row) { return row.field.type == FieldType::kInt || row.lookup == Lookup::kInt; }

/// What becomes of a count that the reader refuses.
inline std::string countRefused() {
  return "the count is outside of 0 to " + std::to_string(kLargestCount) + "; 0 is used";
}

}  // namespace zeb
