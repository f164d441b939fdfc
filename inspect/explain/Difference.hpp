// What differs between two parameter sets, member by member.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "inspect/explain/Settings.hpp"

namespace zeb {

struct Difference {
  std::string block;
  const Setting* a;
  const Setting* b;
};

/// The members whose values differ, in the order of declaration. Numbers and elements of lists count as the same
/// while |a - b| <= tolerance * max(|a|, |b|). Both sides must hold the same blocks and outlive the result.
std::vector<Difference> differencesOf(const std::vector<BlockSettings>& a, const std::vector<BlockSettings>& b,
                                      double tolerance);

/// Whether two values, as valueOf() writes them, are the same within the relative tolerance.
bool sameValue(std::string_view a, std::string_view b, double tolerance);

}  // namespace zeb
