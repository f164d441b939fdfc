// From a line that opens sections to the sections' readers: the main loop's step, for every format.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "engine/LineSource.hpp"
#include "engine/ParameterTable.hpp"

namespace zeb {

/// A section and the block that it fills.
struct DispatchEntry {
  const Section* section;
  void* block;
  /// What follows the opening's bracket, at hand for the test that refuses most sections.
  char initial = section->open.size() > 1 ? section->open[1] : '\0';
};

/// Runs, in the order of `entries`, every section whose opening stands anywhere in the line. Each takes its lines from
/// the same stream; the openings are all looked for in `line`, never in what a section has read. True when there was
/// one.
bool dispatchLine(std::span<const DispatchEntry> entries, const std::string& line, LineReader& lines);

/// A version line scanned with "%s%d": one word, then the number. False (and 0) when there is no number.
bool scanVersion(std::string_view line, int& version);

}  // namespace zeb
