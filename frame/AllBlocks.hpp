// The 42 blocks of a CMP parameter set, in the order of their construction.
#pragma once

#include <tuple>

#include "blocks/CZEBCMPAutoVPCtrlParm.h"
#include "blocks/CZEBCMPBiIMParm.h"
#include "blocks/CZEBCMPCompressibleFlowParm.h"
#include "blocks/CZEBCMPCompressionParm.h"
#include "blocks/CZEBCMPCrystallineParm.h"
#include "blocks/CZEBCMPCtrlHRSystemParm.h"
#include "blocks/CZEBCMPElongationParm.h"
#include "blocks/CZEBCMPEpoxyVEParm.h"
#include "blocks/CZEBCMPFAIMParm.h"
#include "blocks/CZEBCMPFEMParm.h"
#include "blocks/CZEBCMPFiberParm.h"
#include "blocks/CZEBCMPFoamParm.h"
#include "blocks/CZEBCMPGeneralParm.h"
#include "blocks/CZEBCMPHRSchemesParm.h"
#include "blocks/CZEBCMPIBMParm.h"
#include "blocks/CZEBCMPInletVelocitySettingParm.h"
#include "blocks/CZEBCMPIteratParm.h"
#include "blocks/CZEBCMPMAFVMParm.h"
#include "blocks/CZEBCMPMicroMoldingParm.h"
#include "blocks/CZEBCMPMuCellParm.h"
#include "blocks/CZEBCMPMultiGateParm.h"
#include "blocks/CZEBCMPOutletParm.h"
#include "blocks/CZEBCMPPIMParm.h"
#include "blocks/CZEBCMPPUChemFoamParm.h"
#include "blocks/CZEBCMPPVTcParm.h"
#include "blocks/CZEBCMPProcessModifyParm.h"
#include "blocks/CZEBCMPRTMParm.h"
#include "blocks/CZEBCMPRegionVersionParm.h"
#include "blocks/CZEBCMPSAMGCtrlParm.h"
#include "blocks/CZEBCMPShortShotParm.h"
#include "blocks/CZEBCMPStableFlagParm.h"
#include "blocks/CZEBCMPTimeStepSizeCtrlParm.h"
#include "blocks/CZEBCMPUNFSettingParm.h"
#include "blocks/CZEBCMPVEParm.h"
#include "blocks/CZEBCMPViscositySetting2Parm.h"
#include "blocks/CZEBCMP_BaseRBF_Parm.h"
#include "blocks/CZEBCMP_FaceRBF_Parm.h"
#include "blocks/CZEBCMP_IBRBF_Parm.h"
#include "blocks/CZEBCool3DCoolingChannelParm.h"
#include "blocks/CZEBCoolBackDoorParm.h"
#include "blocks/CZEBCoolFastCoolParm.h"
#include "blocks/CZEBCoolStdCoolParm.h"

namespace zeb {

using AllBlocks =
    std::tuple<CZEBCMPAutoVPCtrlParm, CZEBCMPBiIMParm, CZEBCMPCompressibleFlowParm, CZEBCMPCompressionParm,
               CZEBCMPCtrlHRSystemParm, CZEBCMPEpoxyVEParm, CZEBCMPFAIMParm, CZEBCMPFEMParm, CZEBCMPGeneralParm,
               CZEBCMPHRSchemesParm, CZEBCMPIBMParm, CZEBCMPInletVelocitySettingParm, CZEBCMPIteratParm,
               CZEBCMPMAFVMParm, CZEBCMPMicroMoldingParm, CZEBCMPMuCellParm, CZEBCMPMultiGateParm, CZEBCMPOutletParm,
               CZEBCMPProcessModifyParm, CZEBCMPPUChemFoamParm, CZEBCMPPVTcParm, CZEBCMPRegionVersionParm,
               CZEBCMPRTMParm, CZEBCMPShortShotParm, CZEBCMPStableFlagParm, CZEBCMPTimeStepSizeCtrlParm,
               CZEBCMPUNFSettingParm, CZEBCMPViscositySetting2Parm, CZEBCMPCrystallineParm, CZEBCMPVEParm,
               CZEBCMP_FaceRBF_Parm, CZEBCMP_IBRBF_Parm, CZEBCMP_BaseRBF_Parm, CZEBCMPPIMParm, CZEBCMPSAMGCtrlParm,
               CZEBCMPFiberParm, CZEBCMPFoamParm, CZEBCMPElongationParm, CZEBCoolFastCoolParm, CZEBCoolStdCoolParm,
               CZEBCool3DCoolingChannelParm, CZEBCoolBackDoorParm>;

}  // namespace zeb
