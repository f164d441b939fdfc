// Viscoelastic flow models.
#pragma once

#include "engine/BlockAccess.h"
#include "engine/SharedArray.h"

/// Settings of the viscoelastic flow models, from the viscoelastic file: the file beside the CMP file whose name ends
/// in
/// ".vecmp". It is read only when the host asked for it with setIstoCalcRS. Assignment copies the values; arrays are
/// shared by copies. Pressures and stresses are in dyn/cm^2 (in the file: MPa).
class CZEBCMPVEParm {
 public:
  CZEBCMPVEParm();
  CZEBCMPVEParm(const CZEBCMPVEParm& other);
  ~CZEBCMPVEParm();
  CZEBCMPVEParm& operator=(const CZEBCMPVEParm& other);

  /// Sets the fourteen bounds and modifiers to what suits the current model and temperature point, as the constructor
  /// does. A host that changes either and wants the bounds to follow calls it itself. Returns 1.
  int InitBoundingParameters();

  /// Whether the viscoelastic file is read after the CMP file. Like the other setters it returns 1.
  int setIstoCalcRS(bool value);
  /// Number of the constitutive model, 1 to 19. The bounds stay as they are.
  int setVEModel(int value);
  /// Temperature point from which InitBoundingParameters takes the lower temperature bound.
  int setTgPoint(double value);

  int getVEModel() const;
  int getVECMPVersion() const;
  double getRelaxationFactor_Tau() const;

  double getCtrlParam_TLowBond() const;
  double getCtrlParam_ModifyLamdaLowT() const;
  double getCtrlParam_ShrateUpBond1() const;
  double getCtrlParam_ShrateUpBond2() const;
  double getCtrlParam_ModifyLamdaShrateUB() const;
  double getCtrlParam_ShrateLowBond1() const;
  double getCtrlParam_ShrateLowBond2() const;
  double getCtrlParam_ModifyLamdaShrateLB() const;
  double getCtrlParam_StressUpBond() const;
  double getCtrlParam_ModifyLamdaStressUB() const;
  double getCtrlParam_FreezeLamda() const;
  double getCtrlParam_FreezeViscosity() const;
  double getCtrlParam_PackPressureLowBond() const;
  double getCtrlParam_PackShrateUpBond() const;

  int getWMGaiParam_UseWMGaiModel() const;
  double getWMGaiParam_els() const;
  double getWMLimitRatio() const;
  double getCompletePTTParam_Xi() const;

  bool getMatFunPlotParam_isPlotMaterialFun() const;
  bool getMatFunPlotParam_isPlotMaterialFun_ideal() const;
  int getMatFunPlotParam_FlagIsPlotShearVis() const;
  int getMatFunPlotParam_FlagIsPlotElongVis() const;
  double getMatFunPlotParam_RefTem() const;
  double getMatFunPlotParam_DeltaTem() const;
  double getMatFunPlotParam_DeltaTime() const;
  double getMatFunPlotParam_TargetTime() const;
  double getMatFunPlotParam_SRateLB() const;
  double getMatFunPlotParam_SRateUB() const;

  bool getMatFunPlotParam_Transient_isPlotMaterialFun() const;
  int getMatFunPlotParam_Transient_FlagIsPlotShearVis() const;
  int getMatFunPlotParam_Transient_NSetofInput_ShearRate() const;
  /// Always null: no file sets the input shear rates.
  const double* getMatFunPlotParam_Transient_InputShearRate() const;
  int getMatFunPlotParam_Transient_FlagIsPlotElongVis_Transient() const;
  /// Number of input strain rates; -1 when no file said any.
  int getMatFunPlotParam_Transient_NSetofInput_StrainRate() const;
  /// The input strain rates from index 1 on (index 0 holds 0): one more element than the count that the file announced
  /// when the array was made. That happens once for a block: a later file may announce another count, which the count's
  /// getter then returns, but changes neither the array nor its size. Null while there is none. Valid until the block
  /// is destroyed; not owned by the caller.
  const double* getMatFunPlotParam_Transient_InputStrainRate() const;
  double getMatFunPlotParam_Transient_RefTem() const;
  double getMatFunPlotParam_Transient_DeltaTem() const;
  double getMatFunPlotParam_Transient_DeltaTime() const;
  double getMatFunPlotParam_Transient_TargetTime() const;
  double getMatFunPlotParam_Transient_SRateLB() const;
  double getMatFunPlotParam_Transient_SRateUB() const;

  bool getGradientParam_ModifyGradient() const;
  int getGradientParam_GradMethod() const;
  int getGradientParam_GradIterN() const;
  double getGradientParam_SmoothFactor() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPVEParm>();
  friend struct zeb::ViscoelasticReader;

  bool m_bIstoCalcRS = false;
  int m_iVEModel = 1;
  int m_iNVE_Model = 19;
  int m_iVECMPVersion = 1006;
  double m_dRelaxTau = 0.7;
  double m_dTgPoint = -1.0;

  // The constructor sets these by InitBoundingParameters.
  double m_dTLowBond = 0.0;
  double m_dModifyLamdaLowT = 0.0;
  double m_dShrateUpBond1 = 0.0;
  double m_dShrateUpBond2 = 0.0;
  double m_dModifyLamdaShrateUB = 0.0;
  double m_dShrateLowBond1 = 0.0;
  double m_dShrateLowBond2 = 0.0;
  double m_dModifyLamdaShrateLB = 0.0;
  double m_dStressUpBond = 0.0;
  double m_dModifyLamdaStressUB = 0.0;
  double m_dFreezeLamda = 0.0;
  double m_dFreezeViscosity = 0.0;
  double m_dPackPressureLowBond = 0.0;
  double m_dPackShrateUpBond = 0.0;

  int m_iUseWMGaiModel = 1;
  double m_dWM_els = 0.1;
  double m_dWM_LimitRatio = 0.8;
  double m_dXi = 0.0;

  bool m_bPlotMaterialFun = false;
  bool m_bPlotMaterialFun_ideal = false;
  int m_iFlagIsPlotShearVis = 0;
  int m_iFlagIsPlotElongVis = 0;
  double m_dRefTem = 200.0;
  double m_dDeltaTem = 20.0;
  double m_dDeltaTime = 0.01;
  double m_dTargetTime = 20.0;
  double m_dSRateLB = 0.01;
  double m_dSRateUB = 1000.0;

  bool m_bTransient_PlotMaterialFun = false;
  int m_iTransient_FlagIsPlotShearVis = -1;
  int m_nTransient_InputShearRate = -1;
  zeb::SharedArray<double> m_dTransient_InputShearRate;
  int m_iTransient_FlagIsPlotElongVis = -1;
  int m_nTransient_InputStrainRate = -1;
  zeb::SharedArray<double> m_dTransient_InputStrainRate;
  int m_nTransient_HeldStrainRate = 0;  // for which count the array was made
  double m_dTransient_RefTem = 200.0;
  double m_dTransient_DeltaTem = 20.0;
  double m_dTransient_DeltaTime = 0.01;
  double m_dTransient_TargetTime = 200.0;
  double m_dTransient_SRateLB = 0.01;
  double m_dTransient_SRateUB = 10.0;

  bool m_bModifyGradient = false;
  int m_iGradMethod = 0;
  int m_iGradIterN = 0;
  double m_dSmoothFactor = 0.0;
};
