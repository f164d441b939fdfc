// What stands behind the CMX parameter set: the twelve blocks and the reader that fills them.
#pragma once

#include <array>
#include <istream>
#include <span>
#include <string>
#include <tuple>

#include "cmx/CZEBCMX_Dyna_Forming.h"
#include "cmx/CZEBCMX_FILL_ADVANCED_HRSteady.h"
#include "cmx/CZEBCMX_FILL_ADVANCED_LONGFIBER.h"
#include "cmx/CZEBCMX_FILL_ADVANCED_MCIM.h"
#include "cmx/CZEBCMX_FILL_ADVANCED_SlipBC.h"
#include "cmx/CZEBCMX_FILL_OUTPUT_TIMES.h"
#include "cmx/CZEBCMX_PACK_OUTPUT_TIMES.h"
#include "cmx/CZEBCMX_SOLID_COOL.h"
#include "cmx/CZEBCMX_SOLID_FILL.h"
#include "cmx/CZEBCMX_SOLID_PACK.h"
#include "cmx/CZEBCMX_SOLID_VE.h"
#include "cmx/CZEBCMX_TASKMANAGER.h"
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
    return std::get<Block>(m_blocks);
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
  std::tuple<CZEBCMX_SOLID_FILL, CZEBCMX_FILL_ADVANCED_SlipBC, CZEBCMX_FILL_ADVANCED_LONGFIBER,
             CZEBCMX_FILL_ADVANCED_HRSteady, CZEBCMX_SOLID_COOL, CZEBCMX_SOLID_VE, CZEBCMX_SOLID_PACK,
             CZEBCMX_TASKMANAGER, CZEBCMX_Dyna_Forming, CZEBCMX_FILL_ADVANCED_MCIM, CZEBCMX_FILL_OUTPUT_TIMES,
             CZEBCMX_PACK_OUTPUT_TIMES>
      m_blocks;
  std::array<zeb::DispatchEntry, 1 + std::tuple_size_v<decltype(m_blocks)>> m_sections;
};
