// The blocks of a CMP parameter set, and the orders in which they are dumped and their sections looked for. What
// belongs to one block alone stands in its own table.
#pragma once

#include "engine/BlockTypes.hpp"
#include "frame/CZEBKNCMPCompParm.h"

// One row per block, in the order of construction: its class, the parameter set's accessor, its place in the dump.
// clang-format off
#define ZEB_CMP_BLOCKS(BLOCK)                                                  \
  BLOCK(CZEBCMPAutoVPCtrlParm, getAutoVPCtrlParm, kInTurn)                     \
  BLOCK(CZEBCMPBiIMParm, getBiIMParm, kInTurn)                                 \
  BLOCK(CZEBCMPCompressibleFlowParm, getCompressibleFlowParm, kInTurn)         \
  BLOCK(CZEBCMPCompressionParm, getCompressionParm, kInTurn)                   \
  BLOCK(CZEBCMPCtrlHRSystemParm, getCtrlHRSystemParm, kInTurn)                 \
  BLOCK(CZEBCMPEpoxyVEParm, getEpoxyVEParm, kLast)                             \
  BLOCK(CZEBCMPFAIMParm, getFAIMParm, kInTurn)                                 \
  BLOCK(CZEBCMPFEMParm, getFEMParm, kInTurn)                                   \
  BLOCK(CZEBCMPGeneralParm, getGeneralParm, kInTurn)                           \
  BLOCK(CZEBCMPHRSchemesParm, getHRSchemesParm, kInTurn)                       \
  BLOCK(CZEBCMPIBMParm, getIBMParm, kInTurn)                                   \
  BLOCK(CZEBCMPInletVelocitySettingParm, getInletVelocitySettingParm, kInTurn) \
  BLOCK(CZEBCMPIteratParm, getIteratParm, kFirst)                              \
  BLOCK(CZEBCMPMAFVMParm, getMAFVMParm, kInTurn)                               \
  BLOCK(CZEBCMPMicroMoldingParm, getMicroMoldingParm, kInTurn)                 \
  BLOCK(CZEBCMPMuCellParm, getMuCellParm, kInTurn)                             \
  BLOCK(CZEBCMPMultiGateParm, getMultiGateParm, kInTurn)                       \
  BLOCK(CZEBCMPOutletParm, getOutletParm, kInTurn)                             \
  BLOCK(CZEBCMPProcessModifyParm, getProcessModifyParm, kInTurn)               \
  BLOCK(CZEBCMPPUChemFoamParm, getPUChemFoamParm, kInTurn)                     \
  BLOCK(CZEBCMPPVTcParm, getPVTcParm, kInTurn)                                 \
  BLOCK(CZEBCMPRegionVersionParm, getRegionVersionParm, kInTurn)               \
  BLOCK(CZEBCMPRTMParm, getRTMParm, kInTurn)                                   \
  BLOCK(CZEBCMPShortShotParm, getShortShotParm, kInTurn)                       \
  BLOCK(CZEBCMPStableFlagParm, getStableFlagParm, kInTurn)                     \
  BLOCK(CZEBCMPTimeStepSizeCtrlParm, getTimeStepSizeCtrlParm, kInTurn)         \
  BLOCK(CZEBCMPUNFSettingParm, getUNFSettingParm, kInTurn)                     \
  BLOCK(CZEBCMPViscositySetting2Parm, getViscositySetting2Parm, kInTurn)       \
  BLOCK(CZEBCMPCrystallineParm, getCrystallineParm, kInTurn)                   \
  BLOCK(CZEBCMPVEParm, getVEParm, kSecondLast)                                 \
  BLOCK(CZEBCMP_FaceRBF_Parm, getFaceRBFParm, kInTurn)                         \
  BLOCK(CZEBCMP_IBRBF_Parm, getIBRBFParm, kInTurn)                             \
  BLOCK(CZEBCMP_BaseRBF_Parm, getBaseRBFParm, kInTurn)                         \
  BLOCK(CZEBCMPPIMParm, getPIMParm, kInTurn)                                   \
  BLOCK(CZEBCMPSAMGCtrlParm, getSAMGCtrlParm, kInTurn)                         \
  BLOCK(CZEBCMPFiberParm, getFiberParm, kInTurn)                               \
  BLOCK(CZEBCMPFoamParm, getFoamParm, kInTurn)                                 \
  BLOCK(CZEBCMPElongationParm, getElongationParm, kInTurn)                     \
  BLOCK(CZEBCoolFastCoolParm, getCool_FastCoolParm, kNever)                    \
  BLOCK(CZEBCoolStdCoolParm, getCool_StdCoolParm, kNever)                      \
  BLOCK(CZEBCool3DCoolingChannelParm, getCool_3DCoolingChannelParm, kNever)    \
  BLOCK(CZEBCoolBackDoorParm, getCool_BackDoorParm, kNever)
// clang-format on

namespace zeb {

/// Where the whole dump shows a block: in the order of construction, but for three.
enum class DumpPlace { kFirst, kInTurn, kSecondLast, kLast, kNever };

#define ZEB_CLASS(Class, accessor, place) , Class
using CMPBlocks = BlockTypesAfter<void ZEB_CMP_BLOCKS(ZEB_CLASS)>;
#undef ZEB_CLASS

/// The order in which a line is tested for the blocks' openings; those of one block stand together, in an order of
/// which its table knows. The viscoelastic block has a file of its own.
using CMPDispatchOrder =
    BlockTypes<CZEBCMPIteratParm, CZEBCMPViscositySetting2Parm, CZEBCMPShortShotParm, CZEBCMPInletVelocitySettingParm,
               CZEBCMPMicroMoldingParm, CZEBCMPTimeStepSizeCtrlParm, CZEBCMPFAIMParm, CZEBCMPHRSchemesParm,
               CZEBCMPUNFSettingParm, CZEBCMPCompressibleFlowParm, CZEBCMPProcessModifyParm, CZEBCMPGeneralParm,
               CZEBCMPPVTcParm, CZEBCMPRTMParm, CZEBCMPPUChemFoamParm, CZEBCMPStableFlagParm, CZEBCMPOutletParm,
               CZEBCMPBiIMParm, CZEBCMPIBMParm, CZEBCMPFEMParm, CZEBCMPMAFVMParm, CZEBCMPEpoxyVEParm,
               CZEBCMPMultiGateParm, CZEBCMPAutoVPCtrlParm, CZEBCMPRegionVersionParm, CZEBCMPCtrlHRSystemParm,
               CZEBCMPCompressionParm, CZEBCMPCrystallineParm, CZEBCMP_FaceRBF_Parm, CZEBCMP_IBRBF_Parm,
               CZEBCMP_BaseRBF_Parm, CZEBCMPPIMParm, CZEBCMPSAMGCtrlParm, CZEBCMPFiberParm, CZEBCMPMuCellParm,
               CZEBCMPFoamParm, CZEBCoolFastCoolParm, CZEBCoolStdCoolParm, CZEBCool3DCoolingChannelParm,
               CZEBCoolBackDoorParm, CZEBCMPElongationParm>;

/// Makes all blocks, with their defaults.
BlockSet<CMPBlocks> makeCMPBlocks();

}  // namespace zeb
