// Openings are rare, so the test for their first character decides most lines.
#include "engine/Format.hpp"

#include <algorithm>
#include <fstream>

#include "engine/Rank0Section.hpp"
#include "engine/ReadObserver.hpp"
#include "engine/SectionEngine.hpp"
#include "engine/TextOutput.hpp"
#include "engine/ValueText.hpp"

namespace zeb {

namespace {

// The version line of a head: any other number than the head's, or none, has no effect.
bool isHeadWanted(const Section& head, std::string_view line, const LineReader& lines) {
  int version = 0;
  const bool parsed = scanVersion(line, version);
  if (lines.observer() != nullptr) lines.observer()->versionRead(parsed, version);
  return version == head.headVersion;
}

void run(const DispatchEntry& entry, std::string_view line, int lineNumber, LineReader& lines) {
  const Section& section = *entry.section;
  if (section.headVersion != 0 && !isHeadWanted(section, line, lines)) return;
  if (lines.observer() != nullptr) [[unlikely]] {
    lines.observer()->sectionOpened(section, entry.block, lineNumber, line);
  }
  if (section.isPositional()) {
    readPositional(section, entry.block, lines);
  } else if (section.readByRank0) {
    readSectionOnRank0(section, entry.block, lines);
  } else {
    readSection(section, entry.block, lines);
  }
  if (section.whenRead != nullptr) section.whenRead(entry.block);
}

// Whether the opening stands at the text's first bracket or, where there are more of them, at another one.
bool holds(std::string_view fromFirstBracket, bool hasMoreBrackets, std::string_view open) {
  if (fromFirstBracket.starts_with(open)) return true;
  return hasMoreBrackets && fromFirstBracket.find(open, 1) != fromFirstBracket.npos;
}

bool printsName(Format::NameLine when, const LineSource& source) {
  switch (when) {
    case Format::NameLine::kAlways:
      return true;
    case Format::NameLine::kIfTraced:
      return source.traces();
    case Format::NameLine::kIfTracedInParallel:
      return source.com != nullptr && source.traces();
  }
  return false;
}

}  // namespace

void dispatchLine(std::span<const DispatchEntry> entries, std::string_view line, LineReader& lines) {
  // All openings of a format begin with the same character.
  const char bracket = entries.front().opening().front();
  const std::size_t first = line.find(bracket);
  if (first == line.npos) return;
  // A copy, as the sections take further lines.
  const std::string whole(line);
  const int lineNumber = lines.lineNumber();
  const std::string_view candidates = std::string_view(whole).substr(first);
  const bool hasMore = candidates.find(bracket, 1) != candidates.npos;
  const char initial = whole.c_str()[first + 1];
  const auto mayOpen = [=](const DispatchEntry& entry) { return entry.initial == initial || hasMore; };
  auto entry = entries.begin();
  while ((entry = std::find_if(entry, entries.end(), mayOpen)) != entries.end()) {
    if (holds(candidates, hasMore, entry->opening())) run(*entry, whole, lineNumber, lines);
    ++entry;
  }
}

void readLines(std::span<const DispatchEntry> sections, LineReader& lines) {
  std::string_view line;
  while (lines.next(line)) dispatchLine(sections, line, lines);
}

int readFile(const Format& format, std::span<const DispatchEntry> sections, const std::string& fileName,
             const LineSource& source, ReadObserver* observer) {
  std::ifstream stream;
  if (source.reads()) {
    if (printsName(format.nameLine, source)) {
      writeOut(" " + std::string(format.name) + " file name = " + fileName + "\n");
    }
    openFile(stream, fileName);
  }
  if (observer != nullptr) observer->fileStarted(fileName);
  LineReader lines(stream, source, observer);
  readLines(sections, lines);
  return 1;
}

bool scanVersion(std::string_view line, int& version) {
  version = 0;
  FieldScanner scanner(line);
  std::string_view tag;
  return scanner.next(tag) && scanner.next(version);
}

}  // namespace zeb
