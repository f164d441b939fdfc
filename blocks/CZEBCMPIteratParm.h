// Settings of the solver's outer and inner iterations.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the solver's outer and inner iterations, from the 19 lines that follow a version line "[VER] 1023". No
/// section with keys sets them: without that head every member keeps its default. Plain values; assignment copies them.
///
/// The endings U, V, W, P, F and T name the six solved fields: the three velocity components, the pressure, the
/// filling fraction and the temperature.
///
/// A value that a head line lacks keeps what it was, but counts as 0 on lines 18 and 19.
class CZEBCMPIteratParm {
 public:
  CZEBCMPIteratParm();
  CZEBCMPIteratParm(const CZEBCMPIteratParm& other);
  ~CZEBCMPIteratParm();
  CZEBCMPIteratParm& operator=(const CZEBCMPIteratParm& other);

  int ilsolvU() const;
  int ilsolvV() const;
  int ilsolvW() const;
  int ilsolvP() const;
  int ilsolvF() const;
  int ilsolvT() const;
  int iNRestartIU() const;
  int iNRestartIV() const;
  int iNRestartIW() const;
  int iNRestartIP() const;
  int iPreCond() const;
  int iNiter() const;
  int iiterStep() const;
  int iijPresFix() const;
  int iijProb() const;
  int iNPPCorr() const;
  int iNiterGrad() const;
  int iNTimeStep() const;
  int iTimeStep() const;
  double ddt() const;
  double dBlendTime() const;
  double dtoler() const;
  double dBlendIU() const;
  double dBlendIV() const;
  double dBlendIW() const;
  double dBlendIP() const;
  double dBlendIF() const;
  double dBlendIT() const;
  int iNiterInIU() const;
  int iNiterInIV() const;
  int iNiterInIW() const;
  int iNiterInIP() const;
  int iNiterInIF() const;
  int iNiterInIT() const;
  double dtolerInIU() const;
  double dtolerInIV() const;
  double dtolerInIW() const;
  double dtolerInIP() const;
  double dtolerInIF() const;
  double dtolerInIT() const;
  double drelaxIU() const;
  double drelaxIV() const;
  double drelaxIW() const;
  double drelaxIP() const;
  double drelaxIF() const;
  double drelaxIT() const;
  int ilCmpChk() const;
  double dSRRelax() const;
  double dVisRelax() const;
  int iCouple_Type() const;
  double dnonOrthLimitFactor() const;
  double dCMPMoreParmVersion() const;
  int iIsLowTempVisCorr() const;
  double dMat_CrossModel2_VisEps() const;
  double dVisTempLimiter() const;
  int iIsFaceMassFluxStab() const;
  double dMat_CrossModel_Ts() const;
  double dMat_CrossModel_TTx() const;
  double dMat_CrossModel_TTxSlp() const;
  int iSpruePressCorrLevel() const;
  double dUltraHighSRVisTuning() const;
  double dtolerP() const;
  double dWireEffectWeighting() const;
  int iIsToUseMomSink() const;
  int iNotToUseBinary() const;
  int iMFVDebug() const;
  int iLevel1() const;
  int iLevel2() const;
  int iOutputMaxShearStressShearRate() const;
  int iIsUseVolFDLL() const;
  int iIsSurfaceTension() const;
  double dHighTempEPS() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPIteratParm>();

  int m_ilsolvU = 2;
  int m_ilsolvV = 2;
  int m_ilsolvW = 2;
  int m_ilsolvP = 2;
  int m_ilsolvF = 2;
  int m_ilsolvT = 2;
  int m_iNRestartIU = 1;
  int m_iNRestartIV = 1;
  int m_iNRestartIW = 1;
  int m_iNRestartIP = 10;
  int m_iPreCond = 1;
  int m_iNiter = 20;
  int m_iiterStep = 10;
  int m_iijPresFix = 2;
  int m_iijProb = 2;
  int m_iNPPCorr = 1;
  int m_iNiterGrad = 1;
  int m_iNTimeStep = 100000;
  int m_iTimeStep = 50;
  double m_ddt = 0.0005;
  double m_dBlendTime = 0.0;
  double m_dtoler = 0.01;
  double m_dBlendIU = 0.8;
  double m_dBlendIV = 0.8;
  double m_dBlendIW = 0.8;
  double m_dBlendIP = 1.0;
  double m_dBlendIF = 0.0;
  double m_dBlendIT = 0.8;
  int m_iNiterInIU = 5;
  int m_iNiterInIV = 5;
  int m_iNiterInIW = 5;
  int m_iNiterInIP = 100;
  int m_iNiterInIF = 10;
  int m_iNiterInIT = 5;
  double m_dtolerInIU = 0.1;
  double m_dtolerInIV = 0.1;
  double m_dtolerInIW = 0.1;
  double m_dtolerInIP = 0.1;
  double m_dtolerInIF = 0.0001;
  double m_dtolerInIT = 0.001;
  double m_drelaxIU = 0.7;
  double m_drelaxIV = 0.7;
  double m_drelaxIW = 0.7;
  double m_drelaxIP = 0.6;
  double m_drelaxIF = 1.0;
  double m_drelaxIT = 0.9;
  int m_ilCmpChk = 0;
  double m_dSRRelax = 1.0;
  double m_dVisRelax = 1.0;
  int m_iCouple_Type = 14;
  double m_dnonOrthLimitFactor = 0.5;
  double m_dCMPMoreParmVersion = 1001.4;
  int m_iIsLowTempVisCorr = 1;
  double m_dMat_CrossModel2_VisEps = 10000.0;
  double m_dVisTempLimiter = 5.0;
  int m_iIsFaceMassFluxStab = 3;
  double m_dMat_CrossModel_Ts = -1.0;
  double m_dMat_CrossModel_TTx = -1.0;
  double m_dMat_CrossModel_TTxSlp = 0.1;
  int m_iSpruePressCorrLevel = 0;
  double m_dUltraHighSRVisTuning = 200.0;
  double m_dtolerP = 0.1;
  double m_dWireEffectWeighting = 2.0;
  int m_iIsToUseMomSink = 0;
  int m_iNotToUseBinary = 0;
  int m_iMFVDebug = 0;
  int m_iLevel1 = 0;
  int m_iLevel2 = 0;
  int m_iOutputMaxShearStressShearRate = 0;
  int m_iIsUseVolFDLL = 0;
  int m_iIsSurfaceTension = 0;
  double m_dHighTempEPS = 10000.0;
};
