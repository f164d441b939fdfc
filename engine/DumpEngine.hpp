// The dump of a block and the text of a single value.
#pragma once

#include <string>

#include "engine/ParameterTable.hpp"

namespace zeb {

/// Heading, then label, value and line end for each dumped member, in the dump's order. Empty for a block without a
/// heading.
std::string dumpText(const BlockTable& table, const void* block);

/// A member's value as the dump writes it: six significant digits for doubles, an empty text for a null one, the
/// address for an array.
std::string dumpValue(const Row& row, const void* block);

}  // namespace zeb
