// Which of the known names somebody may have meant.
#pragma once

#include <string_view>
#include <vector>

namespace zeb {

/// The candidates whose spelling is nearest to the name, the nearest first, each once; at most `most`, none that is far
/// off. Letters count without their case.
std::vector<std::string_view> nearestOf(std::string_view name, const std::vector<std::string_view>& candidates,
                                        std::size_t most = 3);

}  // namespace zeb
