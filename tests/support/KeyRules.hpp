// The rules of keys in tests/data: what they make of a number that was read.
#pragma once

#include <charconv>
#include <cmath>
#include <string>

#include "tests/support/Tsv.hpp"

namespace zebtest {

inline bool hasRule(const TsvRow& row, const char* rule) { return row.at("rule").find(rule) != std::string::npos; }

/// The number at the beginning of the text; not a number where there is none.
inline double numberIn(const std::string& text) {
  double number = std::nan("");
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

/// The value, scaled and then clamped.
inline double ruled(const TsvRow& row, double value) {
  const std::string& rule = row.at("rule");
  if (hasRule(row, "scale=")) value *= numberIn(rule.substr(rule.find("scale=") + 6));
  if (!hasRule(row, "clamp=")) return value;
  const std::string range = rule.substr(rule.find("clamp=") + 6);
  const std::size_t dots = range.find("..");
  const double low = numberIn(range.substr(0, dots)), high = numberIn(range.substr(dots + 2));
  return value < low ? low : value > high ? high : value;  // an open end is no number and bounds nothing
}

}  // namespace zebtest
