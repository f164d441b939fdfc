#include "stdcmp/StdParameters.hpp"

#include <fstream>

#include "engine/ReadObserver.hpp"
#include "engine/SectionEngine.hpp"
#include "engine/TextOutput.hpp"

namespace zeb {

namespace {

template <class Block>
DispatchEntry entryOf(Block& block) {
  return {&tableOf<Block>().sections.front(), &block};
}

}  // namespace

StdParameters::StdParameters()
    : m_head(entryOf(solver)), m_sections{entryOf(general), entryOf(stableFlag), entryOf(multiGate)} {}

std::span<const BlockTable* const> StdParameters::tables() {
  static const BlockTable* const kTables[] = {&tableOf<StdSolverSettings>(), &tableOf<StdGeneral>(),
                                              &tableOf<StdStableFlag>(), &tableOf<StdMultiGate>()};
  return kTables;
}

int StdParameters::readFileBlock(const std::string& fileName, const LineSource& source) {
  std::ifstream stream;
  if (source.reads()) {
    writeOut(" CMP file name = " + fileName + "\n");
    openFile(stream, fileName);
  }
  if (observer != nullptr) observer->fileStarted(fileName);
  readLines(stream, source);
  return 1;
}

void StdParameters::readLines(std::istream& stream, const LineSource& source) {
  LineReader lines(stream, source, observer);
  std::string line;
  while (lines.next(line)) {
    if (line.find("[VER]") != line.npos) readVersionLine(line, lines);
    dispatchLine(m_sections, line, lines);
  }
}

void StdParameters::readVersionLine(const std::string& line, LineReader& lines) {
  int version = 0;
  const bool parsed = scanVersion(line, version);
  if (observer != nullptr) observer->versionRead(lines.lineNumber(), line, parsed, version);
  if (version == m_head.section->headVersion) readOldFormat(lines);
}

int StdParameters::readOldFormat(LineReader& lines) {
  readPositional(*m_head.section, m_head.block, lines);
  return 1;
}

}  // namespace zeb
