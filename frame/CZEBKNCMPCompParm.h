// The CMP parameter set: what a solver host creates to obtain the computation parameters of one analysis.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "engine/BlockAccess.h"
#include "platform/ZEBCom.h"

class CZEBCMPInternalTool;
class CZEBCMPAutoVPCtrlParm;
class CZEBCMPBiIMParm;
class CZEBCMPCompressibleFlowParm;
class CZEBCMPCompressionParm;
class CZEBCMPCtrlHRSystemParm;
class CZEBCMPEpoxyVEParm;
class CZEBCMPFAIMParm;
class CZEBCMPFEMParm;
class CZEBCMPGeneralParm;
class CZEBCMPHRSchemesParm;
class CZEBCMPIBMParm;
class CZEBCMPInletVelocitySettingParm;
class CZEBCMPIteratParm;
class CZEBCMPMAFVMParm;
class CZEBCMPMicroMoldingParm;
class CZEBCMPMuCellParm;
class CZEBCMPMultiGateParm;
class CZEBCMPOutletParm;
class CZEBCMPProcessModifyParm;
class CZEBCMPPUChemFoamParm;
class CZEBCMPPVTcParm;
class CZEBCMPRegionVersionParm;
class CZEBCMPRTMParm;
class CZEBCMPShortShotParm;
class CZEBCMPStableFlagParm;
class CZEBCMPTimeStepSizeCtrlParm;
class CZEBCMPUNFSettingParm;
class CZEBCMPViscositySetting2Parm;
class CZEBCMPCrystallineParm;
class CZEBCMPVEParm;
class CZEBCMP_FaceRBF_Parm;
class CZEBCMP_IBRBF_Parm;
class CZEBCMP_BaseRBF_Parm;
class CZEBCMPPIMParm;
class CZEBCMPSAMGCtrlParm;
class CZEBCMPFiberParm;
class CZEBCMPFoamParm;
class CZEBCMPElongationParm;
class CZEBCoolFastCoolParm;
class CZEBCoolStdCoolParm;
class CZEBCool3DCoolingChannelParm;
class CZEBCoolBackDoorParm;

/// Reads a CMP file (and, when asked for, its viscoelastic companion) into parameter blocks, repairs them for the
/// molding and the material type, dumps them and hands them out.
///
/// Order of use, the same on every rank: construct, setZEBCom (parallel runs), setIsWaxMat and setMaterialType where
/// they apply, setSolidFillBlock, modifyParameters once, OutputParameters where wanted, then the accessors.
///
/// Operations return 1, or -1 for a null argument or when there is no tool (undefined molding type). Bad input never
/// throws, but see setSolidFillBlock. Not for use from several threads at once.
class CZEBKNCMPCompParm {
 public:
  /// `moldingType`, counted from 0: IM, FAIM, RIM, ICPackage, ICM, UNF, GAIM, WAIM, COIM, MCIM, CM, BIIM, PIM, RTM,
  /// CFM. Any other code prints "Undefined Molding Type: " and the code, and leaves the object without a tool: then
  /// every block accessor returns null. `materialType` 1 is a thermoset; 0 any other material.
  CZEBKNCMPCompParm(int moldingType, int materialType);
  /// Copies share the source's blocks; either may be destroyed first.
  CZEBKNCMPCompParm(const CZEBKNCMPCompParm& other);
  /// As the copy constructor. Blocks handed out before stay valid until this object is destroyed.
  CZEBKNCMPCompParm& operator=(const CZEBKNCMPCompParm& other);
  virtual ~CZEBKNCMPCompParm();

  int setMaterialType(int materialType);
  /// `isWax` 1 marks a wax material.
  int setIsWaxMat(int isWax);
  /// Makes the readers collective. The communicator is not owned and must outlive the reading. Call it on every
  /// rank before reading; without it the run is serial.
  int setZEBCom(CZEBCom* com);

  /// Reads the CMP file; then, when the viscoelastic block's setIstoCalcRS(true) was called, the file with the
  /// extension ".vecmp" in its place, which is written with defaults when it is missing or invalid. An invalid one is
  /// kept with ".bak" behind its name, or ".bak.1" and so on; one that cannot be read stays as it is. A missing CMP
  /// file reads as an empty one. Collective. Throws std::out_of_range only when the viscoelastic file is asked for and
  /// `fileName` has no '.'.
  int setSolidFillBlock(const std::string& fileName);
  /// Applies what the molding type, the material and the settings themselves demand. Call it once: some repairs
  /// multiply.
  int modifyParameters();
  /// Dumps the blocks to standard output, on every rank that calls it.
  int OutputParameters();

  /// The blocks. Owned by the parameter set and valid until it (and every copy of it) is destroyed.
  CZEBCMPAutoVPCtrlParm* getAutoVPCtrlParm() const;
  CZEBCMPBiIMParm* getBiIMParm() const;
  CZEBCMPCompressibleFlowParm* getCompressibleFlowParm() const;
  CZEBCMPCompressionParm* getCompressionParm() const;
  CZEBCMPCtrlHRSystemParm* getCtrlHRSystemParm() const;
  CZEBCMPEpoxyVEParm* getEpoxyVEParm() const;
  CZEBCMPFAIMParm* getFAIMParm() const;
  CZEBCMPFEMParm* getFEMParm() const;
  CZEBCMPGeneralParm* getGeneralParm() const;
  CZEBCMPHRSchemesParm* getHRSchemesParm() const;
  CZEBCMPIBMParm* getIBMParm() const;
  CZEBCMPInletVelocitySettingParm* getInletVelocitySettingParm() const;
  CZEBCMPIteratParm* getIteratParm() const;
  CZEBCMPMAFVMParm* getMAFVMParm() const;
  CZEBCMPMicroMoldingParm* getMicroMoldingParm() const;
  CZEBCMPMuCellParm* getMuCellParm() const;
  CZEBCMPMultiGateParm* getMultiGateParm() const;
  CZEBCMPOutletParm* getOutletParm() const;
  CZEBCMPProcessModifyParm* getProcessModifyParm() const;
  CZEBCMPPUChemFoamParm* getPUChemFoamParm() const;
  CZEBCMPPVTcParm* getPVTcParm() const;
  CZEBCMPRegionVersionParm* getRegionVersionParm() const;
  CZEBCMPRTMParm* getRTMParm() const;
  CZEBCMPShortShotParm* getShortShotParm() const;
  CZEBCMPStableFlagParm* getStableFlagParm() const;
  CZEBCMPTimeStepSizeCtrlParm* getTimeStepSizeCtrlParm() const;
  CZEBCMPUNFSettingParm* getUNFSettingParm() const;
  CZEBCMPViscositySetting2Parm* getViscositySetting2Parm() const;
  CZEBCMPCrystallineParm* getCrystallineParm() const;
  CZEBCMPVEParm* getVEParm() const;
  CZEBCMP_FaceRBF_Parm* getFaceRBFParm() const;
  CZEBCMP_IBRBF_Parm* getIBRBFParm() const;
  CZEBCMP_BaseRBF_Parm* getBaseRBFParm() const;
  CZEBCMPPIMParm* getPIMParm() const;
  CZEBCMPSAMGCtrlParm* getSAMGCtrlParm() const;
  CZEBCMPFiberParm* getFiberParm() const;
  CZEBCMPFoamParm* getFoamParm() const;
  CZEBCMPElongationParm* getElongationParm() const;
  CZEBCoolFastCoolParm* getCool_FastCoolParm() const;
  CZEBCoolStdCoolParm* getCool_StdCoolParm() const;
  CZEBCool3DCoolingChannelParm* getCool_3DCoolingChannelParm() const;
  CZEBCoolBackDoorParm* getCool_BackDoorParm() const;

  /// The values of the fixed-line head, line by line in the head's order. Lines 11, 13, 15 and 17 carry nothing.
  int getLine1(int& lsolvU, int& lsolvV, int& lsolvW, int& lsolvP, int& lsolvF, int& lsolvT) const;
  int getLine2(int& nRestartIU, int& nRestartIV, int& nRestartIW, int& nRestartIP) const;
  int getLine3(int& preCond) const;
  int getLine4(int& niter, int& iterStep, int& ijPresFix, int& ijProb, int& nPPCorr, int& niterGrad) const;
  int getLine5(int& nTimeStep, int& timeStep, double& dt, double& blendTime) const;
  int getLine6(double& toler) const;
  int getLine7(double& blendIU, double& blendIV, double& blendIW, double& blendIP, double& blendIF,
               double& blendIT) const;
  int getLine8(int& niterInIU, int& niterInIV, int& niterInIW, int& niterInIP, int& niterInIF, int& niterInIT) const;
  int getLine9(double& tolerInIU, double& tolerInIV, double& tolerInIW, double& tolerInIP, double& tolerInIF,
               double& tolerInIT) const;
  int getLine10(double& relaxIU, double& relaxIV, double& relaxIW, double& relaxIP, double& relaxIF,
                double& relaxIT) const;
  int getLine12(int& lCmpChk) const;
  int getLine14(double& srRelax, double& visRelax) const;
  int getLine16(int& coupleType, double& nonOrthLimitFactor) const;
  /// The first and the fifth argument are never written: their fields are dropped on reading.
  int getLine18(double& unused1, int& isLowTempVisCorr, double& crossModel2VisEps, double& visTempLimiter, int& unused5,
                double& crossModelTs, double& crossModelTTx, double& crossModelTTxSlp, int& spruePressCorrLevel,
                double& ultraHighSRVisTuning) const;
  int getLine19(double& wireEffectWeighting, int& isToUseMomSink, int& notToUseBinary, int& mfvDebug, int& level1,
                int& level2, int& outputMaxShearStressShearRate, int& isUseVolFDLL, int& isSurfaceTension,
                double& highTempEPS) const;

 private:
  friend struct zeb::Inspection;

  int setMoldingType(int moldingType);

  std::shared_ptr<CZEBCMPInternalTool> m_tool;
  std::vector<std::shared_ptr<CZEBCMPInternalTool>> m_earlierTools;
};
