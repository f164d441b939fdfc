// The main loop over a CMP file.
#pragma once

#include <string>
#include <vector>

#include "engine/Format.hpp"
#include "frame/CZEBCMPInternalTool.hpp"

namespace zeb {

/// The head and the keyed and positional sections of a CMP file with the tool's blocks, in the order in which each line
/// is tested for them.
std::vector<DispatchEntry> cmpSections(CZEBCMPInternalTool& tool);

inline constexpr Format kCMPFormat{.name = "CMP", .nameLine = Format::NameLine::kIfTracedInParallel};

/// Reads the whole file into the tool's blocks. Collective. Returns 1, also for a missing file: it reads as an empty
/// one.
int readCMPFile(CZEBCMPInternalTool& tool, const std::string& fileName);

}  // namespace zeb
