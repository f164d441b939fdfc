#include "frame/CZEBCMPInternalTool.hpp"

#include <array>
#include <utility>

CZEBCMPInternalTool::CZEBCMPInternalTool() = default;
CZEBCMPInternalTool::~CZEBCMPInternalTool() = default;

int CZEBCMPInternalTool::ZEB_getline_Parallel(std::istream& stream, std::string& line) const {
  return lineSource().getLine(stream, line);
}

namespace zeb {

namespace {

template <std::size_t... Numbers>
constexpr auto entriesOfAll(std::index_sequence<Numbers...>) {
  return std::array{blockEntry<std::tuple_element_t<Numbers, AllBlocks>>()...};
}

template <class... Blocks>
constexpr auto entriesOf() {
  return std::array{blockEntry<Blocks>()...};
}

}  // namespace

std::span<const BlockEntry> allBlocks() {
  static constexpr auto kEntries = entriesOfAll(std::make_index_sequence<std::tuple_size_v<AllBlocks>>());
  return kEntries;
}

std::span<const BlockEntry> dumpedBlocks() {
  static constexpr auto kEntries =
      entriesOf<CZEBCMPIteratParm, CZEBCMPAutoVPCtrlParm, CZEBCMPBiIMParm, CZEBCMPCompressibleFlowParm,
                CZEBCMPCompressionParm, CZEBCMPCtrlHRSystemParm, CZEBCMPFAIMParm, CZEBCMPFEMParm, CZEBCMPGeneralParm,
                CZEBCMPHRSchemesParm, CZEBCMPIBMParm, CZEBCMPInletVelocitySettingParm, CZEBCMPMAFVMParm,
                CZEBCMPMicroMoldingParm, CZEBCMPMuCellParm, CZEBCMPMultiGateParm, CZEBCMPOutletParm,
                CZEBCMPProcessModifyParm, CZEBCMPPUChemFoamParm, CZEBCMPPVTcParm, CZEBCMPRegionVersionParm,
                CZEBCMPRTMParm, CZEBCMPShortShotParm, CZEBCMPStableFlagParm, CZEBCMPTimeStepSizeCtrlParm,
                CZEBCMPUNFSettingParm, CZEBCMPViscositySetting2Parm, CZEBCMPCrystallineParm, CZEBCMP_FaceRBF_Parm,
                CZEBCMP_IBRBF_Parm, CZEBCMP_BaseRBF_Parm, CZEBCMPPIMParm, CZEBCMPSAMGCtrlParm, CZEBCMPFiberParm,
                CZEBCMPFoamParm, CZEBCMPElongationParm, CZEBCMPVEParm, CZEBCMPEpoxyVEParm>();
  return kEntries;
}

}  // namespace zeb
