// The tool behind a CMP parameter set: owner of the 42 blocks, base of the fifteen molding types.
#pragma once

#include <span>
#include <string>
#include <tuple>

#include "engine/LineSource.hpp"
#include "engine/ParameterTable.hpp"
#include "frame/AllBlocks.hpp"

class CZEBCMPInternalTool {
 public:
  CZEBCMPInternalTool();
  CZEBCMPInternalTool(const CZEBCMPInternalTool&) = delete;
  CZEBCMPInternalTool& operator=(const CZEBCMPInternalTool&) = delete;
  virtual ~CZEBCMPInternalTool();

  /// What the molding type changes after reading; the first step of modifyParameters. Returns 1.
  virtual int modifyMoldingParameters() = 0;

  /// The collective line source, see zeb::LineSource::getLine.
  int ZEB_getline_Parallel(std::istream& stream, std::string& line) const;
  zeb::LineSource lineSource() const { return {.com = m_pCom, .printLevel = m_nPrintLevel}; }

  template <class Block>
  Block& block() {
    return std::get<Block>(m_blocks);
  }
  template <class Block>
  const Block& block() const {
    return std::get<Block>(m_blocks);
  }

 private:
  zeb::AllBlocks m_blocks;

 public:
  CZEBCom* m_pCom = nullptr;  ///< Not owned; null means serial.
  int m_iIsWaxMat = 0;
  int m_iMoldingType = 0;
  int m_iMaterialType = 0;
  int m_nPrintLevel = 0;
  zeb::ReadObserver* m_observer = nullptr;  ///< Not owned; null in a solver.
  bool m_writesFiles = true;                ///< False in tools, which only look.
};

namespace zeb {

/// A block of every tool, for those who treat all blocks alike.
struct BlockEntry {
  const BlockTable& (*table)();
  void* (*locate)(CZEBCMPInternalTool& tool);
};

template <class Block>
constexpr BlockEntry blockEntry() {
  return {&tableOf<Block>, [](CZEBCMPInternalTool& tool) -> void* { return &tool.block<Block>(); }};
}

/// The 42 blocks in the order of their construction.
std::span<const BlockEntry> allBlocks();
/// The 38 dumped blocks in the order of OutputParameters.
std::span<const BlockEntry> dumpedBlocks();

}  // namespace zeb
