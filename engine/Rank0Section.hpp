// A section that rank 0 reads from the stream by itself.
#pragma once

#include "engine/LineSource.hpp"
#include "engine/ParameterTable.hpp"

namespace zeb {

/// Reads the section on rank 0 only, without a collective call for its lines (so its lines have no length limit), then
/// broadcasts every member of the section's rows, so that all ranks hold rank 0's values. The members are
/// ints, bools, doubles and texts.
void readSectionOnRank0(const Section& section, void* block, LineReader& lines);

}  // namespace zeb
