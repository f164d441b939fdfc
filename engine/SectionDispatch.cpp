// Openings are rare, so the test for their first character decides most lines.
#include "engine/SectionDispatch.hpp"

#include <algorithm>

#include "engine/Rank0Section.hpp"
#include "engine/ReadObserver.hpp"
#include "engine/SectionEngine.hpp"
#include "engine/ValueText.hpp"

namespace zeb {

namespace {

// The version line of a head: any other number than the head's, or none, has no effect.
bool isHeadWanted(const Section& head, const std::string& line, const LineReader& lines) {
  int version = 0;
  const bool parsed = scanVersion(line, version);
  if (lines.observer() != nullptr) lines.observer()->versionRead(lines.lineNumber(), line, parsed, version);
  return version == head.headVersion;
}

void run(const DispatchEntry& entry, const std::string& line, LineReader& lines) {
  if (entry.section->headVersion != 0 && !isHeadWanted(*entry.section, line, lines)) return;
  if (entry.section->isPositional()) {
    readPositional(*entry.section, entry.block, lines);
  } else if (entry.section->readByRank0) {
    readSectionOnRank0(*entry.section, entry.block, lines);
  } else {
    readSection(*entry.section, entry.block, lines);
  }
}

// Whether the opening stands at the text's first bracket or, where there are more of them, at another one.
bool holds(std::string_view fromFirstBracket, bool hasMoreBrackets, std::string_view open) {
  if (fromFirstBracket.starts_with(open)) return true;
  return hasMoreBrackets && fromFirstBracket.find(open, 1) != fromFirstBracket.npos;
}

}  // namespace

bool dispatchLine(std::span<const DispatchEntry> entries, const std::string& line, LineReader& lines) {
  // All openings of a format begin with the same character.
  const char bracket = entries.front().section->open.front();
  const std::size_t first = line.find(bracket);
  bool opened = false;
  if (first != line.npos) {
    const std::string_view candidates = std::string_view(line).substr(first);
    const bool hasMore = candidates.find(bracket, 1) != candidates.npos;
    const char initial = line.c_str()[first + 1];
    const auto mayOpen = [=](const DispatchEntry& entry) { return entry.initial == initial || hasMore; };
    auto entry = entries.begin();
    while ((entry = std::find_if(entry, entries.end(), mayOpen)) != entries.end()) {
      if (holds(candidates, hasMore, entry->section->open)) {
        run(*entry, line, lines);
        opened = true;
      }
      ++entry;
    }
  }
  if (!opened && lines.observer() != nullptr) [[unlikely]] {
    lines.observer()->lineOutside(lines.lineNumber(), line);
  }
  return opened;
}

bool scanVersion(std::string_view line, int& version) {
  version = 0;
  FieldScanner scanner(line);
  std::string_view tag;
  return scanner.next(tag) && scanner.next(version);
}

}  // namespace zeb
