// The one loop that reads keyed sections, and the one that reads positional lines, for every table.
#pragma once

#include <string>
#include <string_view>

#include "engine/LineSource.hpp"
#include "engine/ParameterTable.hpp"
#include "engine/ValueText.hpp"

namespace zeb {

/// Reads the lines of a keyed section into the block, up to and including its closing line or to the end of the input.
void readSection(const Section& section, void* block, LineReader& lines);

/// Reads a positional section's lines straight into the block. False when its version line does not match: then
/// only that line has been taken.
bool readPositional(const Section& section, void* block, LineReader& lines);

bool isClosedBy(const Section& section, std::string_view line);

}  // namespace zeb
