#include "inspect/NearestNames.hpp"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace zeb {

namespace {

// Longer names are no slip of the finger, and the distance takes time in the square of the length.
constexpr std::size_t kLongestName = 100;

std::string lower(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return result;
}

// Insertions, deletions, substitutions and swaps of neighbours that turn one text into the other.
std::size_t distance(const std::string& a, const std::string& b) {
  std::vector<std::size_t> beforeLast, last(b.size() + 1), row(b.size() + 1);
  std::iota(last.begin(), last.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t cost = a[i - 1] == b[j - 1] ? 0 : 1;
      row[j] = std::min({row[j - 1] + 1, last[j] + 1, last[j - 1] + cost});
      const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (swapped) row[j] = std::min(row[j], beforeLast[j - 2] + 1);
    }
    beforeLast = last;
    last = row;
  }
  return last[b.size()];
}

}  // namespace

std::vector<std::string> nearestOf(std::string_view name, const std::vector<std::string>& candidates,
                                   std::size_t most) {
  if (name.size() > kLongestName) return {};
  const std::string wanted = lower(name);
  const std::size_t farthest = std::max<std::size_t>(2, name.size() / 3);
  std::vector<std::pair<std::size_t, std::string>> ranked;
  for (const std::string& candidate : candidates) {
    const std::size_t steps = distance(wanted, lower(candidate));
    // Where every letter would have to change there is no likeness left.
    if (steps <= farthest && steps < candidate.size()) ranked.emplace_back(steps, candidate);
  }
  std::sort(ranked.begin(), ranked.end());
  ranked.erase(std::unique(ranked.begin(), ranked.end()), ranked.end());
  std::vector<std::string> names;
  for (const auto& [steps, candidate] : ranked) {
    if (names.size() < most) names.push_back(candidate);
  }
  return names;
}

}  // namespace zeb
