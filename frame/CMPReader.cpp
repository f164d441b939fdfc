// The version line is tested first, then the sections in the order of the table below; text outside of sections is
// ignored.
#include "frame/CMPReader.hpp"

#include <stdexcept>

namespace zeb {

namespace {

struct DispatchRow {
  BlockEntry block;
  std::string_view section;  // empty: the block's only one
};

template <class Block>
constexpr DispatchRow row(std::string_view section = {}) {
  return {blockEntry<Block>(), section};
}

constexpr DispatchRow kRows[] = {
    row<CZEBCMPIteratParm>(),  // the fixed-line head behind "[VER]"
    row<CZEBCMPViscositySetting2Parm>(),
    row<CZEBCMPShortShotParm>(),
    row<CZEBCMPInletVelocitySettingParm>(),
    row<CZEBCMPMicroMoldingParm>(),
    row<CZEBCMPTimeStepSizeCtrlParm>(),
    row<CZEBCMPFAIMParm>(),
    row<CZEBCMPHRSchemesParm>(),
    row<CZEBCMPUNFSettingParm>(),
    row<CZEBCMPCompressibleFlowParm>(),
    row<CZEBCMPProcessModifyParm>(),
    row<CZEBCMPGeneralParm>(),
    row<CZEBCMPPVTcParm>(),
    row<CZEBCMPRTMParm>(),
    row<CZEBCMPPUChemFoamParm>(),
    row<CZEBCMPStableFlagParm>(),
    row<CZEBCMPOutletParm>(),
    row<CZEBCMPBiIMParm>(),
    row<CZEBCMPIBMParm>(),
    row<CZEBCMPFEMParm>(),
    row<CZEBCMPMAFVMParm>(),
    row<CZEBCMPEpoxyVEParm>(),
    row<CZEBCMPMultiGateParm>(),
    row<CZEBCMPAutoVPCtrlParm>(),
    row<CZEBCMPRegionVersionParm>(),
    row<CZEBCMPCtrlHRSystemParm>(),
    row<CZEBCMPCompressionParm>(),
    row<CZEBCMPCrystallineParm>(),
    row<CZEBCMP_FaceRBF_Parm>(),
    row<CZEBCMP_IBRBF_Parm>(),
    row<CZEBCMP_BaseRBF_Parm>(),
    row<CZEBCMPPIMParm>(),
    row<CZEBCMPSAMGCtrlParm>(),
    row<CZEBCMPFiberParm>("FIBER_PLOT_DYNAMIC"),
    row<CZEBCMPFiberParm>("FIBER_ARD"),
    row<CZEBCMPFiberParm>("FIBER_SLOW"),
    row<CZEBCMPFiberParm>("FIBER_CLOSURE"),
    row<CZEBCMPFiberParm>("FIBER_Breakage"),
    row<CZEBCMPFiberParm>("FIBER_ImproveRPR"),
    row<CZEBCMPFiberParm>("FIBER_InletCondition"),
    row<CZEBCMPFiberParm>("FIBER_FlowCoupling"),
    row<CZEBCMPFiberParm>("FIBER_DEBUG"),
    row<CZEBCMPFiberParm>("FIBER_COMPUPARAS"),
    row<CZEBCMPFiberParm>("FIBER_LENGTH_DISTRIBUTION"),
    row<CZEBCMPMuCellParm>(),
    row<CZEBCMPFoamParm>("Foam_PLOT_DYNAMIC"),
    row<CZEBCMPFoamParm>("Foam_MuCell_Pro"),
    row<CZEBCMPFoamParm>("Mucell_DEBUG"),
    row<CZEBCMPFoamParm>("Foam_FoamingComputeParas"),
    row<CZEBCoolFastCoolParm>(),
    row<CZEBCoolStdCoolParm>(),
    row<CZEBCool3DCoolingChannelParm>(),
    row<CZEBCoolBackDoorParm>(),
    row<CZEBCMPElongationParm>(),
};

const Section& sectionOf(const DispatchRow& row) {
  const std::span<const Section> sections = row.block.table().sections;
  if (row.section.empty()) return sections.front();
  for (const Section& section : sections) {
    if (section.name == row.section) return section;
  }
  throw std::logic_error("the dispatch names a section that no block has: " + std::string(row.section));
}

}  // namespace

std::vector<DispatchEntry> cmpSections(CZEBCMPInternalTool& tool) {
  static const std::vector<DispatchEntry> kWithoutBlocks = [] {
    std::vector<DispatchEntry> entries;
    for (const DispatchRow& row : kRows) entries.push_back({&sectionOf(row), nullptr});
    return entries;
  }();
  std::vector<DispatchEntry> entries = kWithoutBlocks;
  for (std::size_t i = 0; i < entries.size(); ++i) entries[i].block = kRows[i].block.locate(tool);
  return entries;
}

int readCMPFile(CZEBCMPInternalTool& tool, const std::string& fileName) {
  return readFile(kCMPFormat, cmpSections(tool), fileName, tool.lineSource(), tool.m_observer);
}

}  // namespace zeb
