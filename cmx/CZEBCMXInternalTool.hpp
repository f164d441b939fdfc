// What stands behind the CMX parameter set: the blocks and the reader that fills them.
#pragma once

#include <array>
#include <istream>
#include <span>
#include <string>

#include "cmx/CMXBlocks.hpp"
#include "engine/BlockAccess.h"
#include "engine/Format.hpp"

/// Shared by a CMX parameter set and its copies.
class CZEBCMXInternalTool {
 public:
  CZEBCMXInternalTool();
  virtual ~CZEBCMXInternalTool();
  CZEBCMXInternalTool(const CZEBCMXInternalTool&) = delete;
  CZEBCMXInternalTool& operator=(const CZEBCMXInternalTool&) = delete;

  /// As CZEBKNCMXCompParm::setZEBCom.
  int setZEBCom(CZEBCom* com);
  /// As CZEBKNCMXCompParm::setSolidFillBlock.
  int setSolidFillBlock(const std::string& fileName);
  /// Reads the blocks from an open stream, of which ranks other than 0 take no notice. Collective.
  void readBlocks(std::istream& stream);
  /// Above 0, rank 0 traces the file's name and, with a communicator, every line.
  void setPrintLevel(int level);

  /// The file's blocks in the order in which the reader tests a line for their tags, <SUMMARY> (this object) first.
  std::span<const zeb::DispatchEntry> sections() const { return m_sections; }
  /// The tables of these blocks, in the same order.
  static std::span<const zeb::BlockTable* const> tables();

  template <class Block>
  Block& block() {
    return m_blocks.get<Block>();
  }

  /// The version in <SUMMARY>.
  int nCMXVersion() const;

  /// Watches every reading; not owned, null in a solver.
  zeb::ReadObserver* observer = nullptr;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMXInternalTool>();

  zeb::LineSource lineSource() const;

  CZEBCom* m_pCom = nullptr;
  int m_nPrintLevel = 0;
  int m_nCMXVersion = 0;
  zeb::BlockSet<zeb::CMXBlocks> m_blocks;
  std::array<zeb::DispatchEntry, 1 + zeb::CMXBlocks::kCount> m_sections;
};
