// What stands behind the standard solver's parameters: the four blocks and the reader that fills them.
#pragma once

#include <array>
#include <istream>
#include <span>
#include <string>

#include "engine/SectionDispatch.hpp"
#include "stdcmp/StdBlocks.hpp"

namespace zeb {

/// Shared by a CZEBKNstdCMPCompParm and its copies.
class StdParameters {
 public:
  StdParameters();
  StdParameters(const StdParameters&) = delete;
  StdParameters& operator=(const StdParameters&) = delete;

  /// As CZEBKNstdCMPCompParm::setSolidFillBlock.
  int readFileBlock(const std::string& fileName, const LineSource& source);
  /// Reads an open stream, of which ranks other than 0 take no notice. Collective.
  void readLines(std::istream& stream, const LineSource& source);

  /// The keyed sections in the order in which the reader tests a line for them; the head, which no opening
  /// announces, is not among them.
  std::span<const DispatchEntry> sections() const { return m_sections; }
  /// The fixed-line head.
  const DispatchEntry& head() const { return m_head; }
  /// The tables of the head and of the sections, in this order.
  static std::span<const BlockTable* const> tables();

  StdSolverSettings solver;
  StdGeneral general;
  StdStableFlag stableFlag;
  StdMultiGate multiGate;
  /// Watches every reading; not owned, null in a solver.
  ReadObserver* observer = nullptr;

 private:
  void readVersionLine(const std::string& line, LineReader& lines);
  int readOldFormat(LineReader& lines);

  DispatchEntry m_head;
  std::array<DispatchEntry, 3> m_sections;
};

}  // namespace zeb
