#include "inspect/explain/Difference.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace zeb {

namespace {

bool parseNumber(std::string_view text, double& value) {
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, value);
  return result.ec == std::errc() && result.ptr == end;
}

bool sameNumber(std::string_view a, std::string_view b, double tolerance) {
  double x = 0.0, y = 0.0;
  if (!parseNumber(a, x) || !parseNumber(b, y)) return a == b;
  if (std::isnan(x) || std::isnan(y)) return std::isnan(x) && std::isnan(y);
  if (std::isinf(x) || std::isinf(y)) return x == y;
  return std::abs(x - y) <= tolerance * std::max(std::abs(x), std::abs(y));
}

// Takes the next element of "0.2, 0.5".
std::string_view nextElement(std::string_view& list) {
  const auto comma = list.find(", ");
  const std::string_view element = list.substr(0, comma);
  list.remove_prefix(comma == list.npos ? list.size() : comma + 2);
  return element;
}

}  // namespace

bool sameValue(std::string_view a, std::string_view b, double tolerance) {
  if (a == b) return true;
  if (a.empty() || b.empty() || a.front() == '"' || b.front() == '"') return false;
  if (a.front() != '[' || b.front() != '[') return sameNumber(a, b, tolerance);
  a = a.substr(1, a.size() - 2);
  b = b.substr(1, b.size() - 2);
  while (!a.empty() && !b.empty()) {
    if (!sameNumber(nextElement(a), nextElement(b), tolerance)) return false;
  }
  return a.empty() && b.empty();
}

std::vector<Difference> differencesOf(const std::vector<BlockSettings>& a, const std::vector<BlockSettings>& b,
                                      double tolerance) {
  std::vector<Difference> differences;
  for (std::size_t block = 0; block < std::min(a.size(), b.size()); ++block) {
    const auto &left = a[block].settings, &right = b[block].settings;
    for (std::size_t i = 0; i < std::min(left.size(), right.size()); ++i) {
      if (sameValue(left[i].value, right[i].value, tolerance)) continue;
      differences.push_back({a[block].name, &left[i], &right[i]});
    }
  }
  return differences;
}

}  // namespace zeb
