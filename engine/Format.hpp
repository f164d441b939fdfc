// What a reader of files is made of, and the one loop that all of them share: open, trace, dispatch.
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

  /// What announces the section: its opening or, for a head, the version line. It begins with the format's bracket.
  std::string_view opening() const { return section->headVersion != 0 ? "[VER]" : section->open; }
};

/// How one format's readers talk to the outside.
struct Format {
  enum class NameLine { kAlways, kIfTraced, kIfTracedInParallel };

  std::string_view name;  ///< "CMP"
  NameLine nameLine;      ///< whether rank 0 prints the file's name
  bool barrier = true;    ///< as LineSource
  bool alwaysTrace = false;

  LineSource lineSource(CZEBCom* com, int printLevel) const {
    return {.com = com, .printLevel = printLevel, .barrier = barrier, .alwaysTrace = alwaysTrace};
  }
};

/// Opens the file where it is read and reads it to its end. `sections` stand in the order in which each line is tested
/// for them. Collective. Returns 1, also for a missing file: it reads as an empty one.
int readFile(const Format& format, std::span<const DispatchEntry> sections, const std::string& fileName,
             const LineSource& source, ReadObserver* observer);

/// Reads an open stream, of which ranks other than 0 take no notice. Collective.
void readLines(std::span<const DispatchEntry> sections, LineReader& lines);

/// A version line scanned with "%s%d": one word, then the number. False (and 0) when there is no number.
bool scanVersion(std::string_view line, int& version);

}  // namespace zeb
