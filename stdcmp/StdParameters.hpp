// What stands behind the standard solver's parameters: the blocks and the reader that fills them.
#pragma once

#include <array>
#include <span>
#include <string>
#include <tuple>

#include "engine/Format.hpp"
#include "stdcmp/StdBlocks.hpp"

namespace zeb {

/// The same files as those of the CMP parameter set, told of in another way.
inline constexpr Format kStdFormat{.name = "CMP", .nameLine = Format::NameLine::kAlways, .alwaysTrace = true};

/// Shared by a CZEBKNstdCMPCompParm and its copies.
class StdParameters {
  // The head, then the sections in the order in which a line is tested for them.
  using Blocks = std::tuple<StdSolverSettings, StdGeneral, StdStableFlag, StdMultiGate>;
  Blocks m_blocks;

 public:
  StdParameters();
  StdParameters(const StdParameters&) = delete;
  StdParameters& operator=(const StdParameters&) = delete;

  /// As CZEBKNstdCMPCompParm::setSolidFillBlock.
  int readFileBlock(const std::string& fileName, CZEBCom* com);

  /// The head and the sections in the order in which the reader tests a line for them.
  std::span<const DispatchEntry> sections() const { return m_sections; }
  /// Their tables, in the same order.
  static std::span<const BlockTable* const> tables();

  StdSolverSettings& solver = std::get<StdSolverSettings>(m_blocks);
  StdGeneral& general = std::get<StdGeneral>(m_blocks);
  StdStableFlag& stableFlag = std::get<StdStableFlag>(m_blocks);
  StdMultiGate& multiGate = std::get<StdMultiGate>(m_blocks);
  /// Watches every reading; not owned, null in a solver.
  ReadObserver* observer = nullptr;

 private:
  std::array<DispatchEntry, std::tuple_size_v<Blocks>> m_sections;
};

}  // namespace zeb
