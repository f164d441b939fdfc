// Openings are rare, so the test for their first character decides most lines.
#include "engine/Format.hpp"

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

// Runs sections whose openings stand in a line.
class Dispatcher {
 public:
  Dispatcher(std::span<const DispatchEntry> entries, LineReader& lines)
      : m_entries(entries), m_lines(lines), m_bracket(entries.front().opening().front()) {
    // All openings of a format begin with the same character; the one behind it tells most of them apart.
    for (const DispatchEntry& entry : entries) m_initials += entry.opening()[1];
  }

  /// Every section whose opening stands anywhere in the line, in the order of the entries. Each takes its lines from
  /// the same stream; the openings are all looked for in `line`, never in what a section has read.
  void runSections(std::string_view line) const {
    const std::size_t first = line.find(m_bracket);
    if (first == line.npos || first + 1 == line.size()) return;
    const std::string copy(line);  // the line itself goes when a section takes the next one
    const std::string_view candidates = std::string_view(copy).substr(first);
    if (candidates.find(m_bracket, 1) == candidates.npos) {
      runOnly(candidates, copy);
    } else {
      runAll(candidates, copy);
    }
  }

 private:
  // One bracket opens one section at most.
  void runOnly(std::string_view candidate, std::string_view line) const {
    for (std::size_t at = 0; (at = m_initials.find(candidate[1], at)) != m_initials.npos; ++at) {
      if (candidate.starts_with(m_entries[at].opening()))
        return run(m_entries[at], line, m_lines.lineNumber(), m_lines);
    }
  }

  void runAll(std::string_view candidates, std::string_view line) const {
    const int lineNumber = m_lines.lineNumber();
    for (const DispatchEntry& entry : m_entries) {
      if (candidates.find(entry.opening()) != candidates.npos) run(entry, line, lineNumber, m_lines);
    }
  }

  std::span<const DispatchEntry> m_entries;
  LineReader& m_lines;
  char m_bracket;
  std::string m_initials;
};

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

void readLines(std::span<const DispatchEntry> sections, LineReader& lines) {
  const Dispatcher dispatcher(sections, lines);
  std::string_view line;
  while (lines.next(line)) dispatcher.runSections(line);
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
