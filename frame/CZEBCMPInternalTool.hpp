// The tool behind a CMP parameter set: owner of the blocks, base of the molding types' tools.
#pragma once

#include <span>
#include <string>

#include "engine/BlockAccess.h"
#include "engine/LineSource.hpp"
#include "engine/ParameterTable.hpp"
#include "frame/CMPBlocks.hpp"

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
    return m_blocks.get<Block>();
  }
  template <class Block>
  const Block& block() const {
    return m_blocks.get<Block>();
  }
  /// By its number in the order of construction.
  void* block(std::size_t number) { return m_blocks.at(number); }

 private:
  zeb::BlockSet<zeb::CMPBlocks> m_blocks;

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
  std::size_t number;

  void* locate(CZEBCMPInternalTool& tool) const { return tool.block(number); }
};

template <class Block>
constexpr BlockEntry blockEntry() {
  return {&tableOf<Block>, CMPBlocks::numberOf<Block>()};
}

/// All blocks, in the order of their construction.
std::span<const BlockEntry> allBlocks();
/// The dumped blocks, in the order of OutputParameters.
std::span<const BlockEntry> dumpedBlocks();
/// The blocks of a CMP file, in the order in which a line is tested for their openings.
std::span<const BlockEntry> dispatchedBlocks();

}  // namespace zeb
