#include "inspect/catalogue/NearestNames.hpp"

#include <algorithm>
#include <array>

namespace zeb {

namespace {

constexpr std::size_t kLongestName = 64;  // longer names are no slip of the finger

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; }

// Edits from one to the other, letters compared without case; a difference in case alone weighs nothing. Only as far as
// the limit: what is farther apart gives one more. The lengths differ by the limit at most.
std::size_t distance(std::string_view a, std::string_view b, std::size_t limit) {
  std::array<std::size_t, 2 * kLongestName> row;
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    // Farther from the diagonal than the limit there is nothing to be found.
    const std::size_t first = i > limit ? i - limit : 1, last = std::min(b.size(), i + limit);
    std::size_t diagonal = row[first - 1];
    row[first - 1] = first == 1 ? i : limit + 1;
    std::size_t best = row[first - 1];
    for (std::size_t j = first; j <= last; ++j) {
      const std::size_t changed = diagonal + (lower(a[i - 1]) == lower(b[j - 1]) ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
      best = std::min(best, row[j]);
    }
    if (best > limit) return limit + 1;
  }
  return row[b.size()];
}

std::size_t limitFor(std::string_view name) { return name.size() <= 3 ? 1 : std::max<std::size_t>(2, name.size() / 4); }

}  // namespace

std::vector<std::string_view> nearestOf(std::string_view name, const std::vector<std::string_view>& candidates,
                                        std::size_t most) {
  std::vector<std::pair<std::size_t, std::string_view>> ranked;
  if (name.empty() || name.size() > kLongestName) return {};
  const std::size_t limit = limitFor(name);
  for (const std::string_view candidate : candidates) {
    if (candidate.size() > name.size() + limit || name.size() > candidate.size() + limit) continue;
    const std::size_t edits = distance(name, candidate, limit);
    if (edits <= limit) ranked.emplace_back(edits, candidate);
  }
  std::stable_sort(ranked.begin(), ranked.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<std::string_view> names;
  for (std::size_t i = 0; i < ranked.size() && i < most; ++i) {
    if (std::find(names.begin(), names.end(), ranked[i].second) == names.end()) names.push_back(ranked[i].second);
  }
  return names;
}

}  // namespace zeb
