// Members as texts, exactly.
#pragma once

#include <string>
#include <vector>

#include "engine/ParameterTable.hpp"
#include "inspect/set/Inspection.hpp"

namespace zeb {

/// The shortest text that reads back as the value.
std::string exact(double value);
std::string exact(int value);

/// A member's value: texts stand in quotation marks, arrays as "[0.2, 0.5]" (their used entries), a null one as "none",
/// doubles with as many digits as it takes to read them back unchanged.
std::string valueOf(const Row& row, void* block);

/// What the member means, and the limit of its value in a head.
std::string describe(const Row& row);

/// Every value of every block on a line of its own: two sets are equal when these texts are.
std::string fingerprint(const std::vector<BlockView>& blocks);

}  // namespace zeb
