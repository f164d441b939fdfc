// The four blocks of the standard solver's reader. Their members bear the names of the public getters.
#pragma once

#include "engine/BlockAccess.h"

namespace zeb {

/// Linear solvers and iteration, from the fixed-line head. The suffixes U, V, W, P, F and T name the solved fields:
/// three velocity components, pressure, filling fraction, temperature.
struct StdSolverSettings {
  int ilsolvU = 2;
  int ilsolvV = 2;
  int ilsolvW = 2;
  int ilsolvP = 2;
  int ilsolvF = 2;
  int ilsolvT = 2;
  int iNRestartIU = 1;
  int iNRestartIV = 1;
  int iNRestartIW = 1;
  int iNRestartIP = 10;
  int iPreCond = 1;
  int iNiter = 20;
  int iiterStep = 10;
  int iijPresFix = 2;
  int iijProb = 2;
  int iNPPCorr = 1;
  int iNiterGrad = 1;
  int iNTimeStep = 10000;
  int iTimeStep = 50;
  double ddt = 0.0005;
  double dBlendTime = 0.0;
  double dtoler = 0.01;
  double dBlendIU = 0.8;
  double dBlendIV = 0.8;
  double dBlendIW = 0.8;
  double dBlendIP = 1.0;
  double dBlendIF = 0.0;
  double dBlendIT = 0.8;
  int iNiterInIU = 5;
  int iNiterInIV = 5;
  int iNiterInIW = 5;
  int iNiterInIP = 100;
  int iNiterInIF = 10;
  int iNiterInIT = 5;
  double dtolerInIU = 0.1;
  double dtolerInIV = 0.1;
  double dtolerInIW = 0.1;
  double dtolerInIP = 0.1;
  double dtolerInIF = 0.0001;
  double dtolerInIT = 0.001;
  double drelaxIU = 0.7;
  double drelaxIV = 0.7;
  double drelaxIW = 0.7;
  double drelaxIP = 0.6;
  double drelaxIF = 1.0;
  double drelaxIT = 0.9;
  int ilCmpChk = 0;
  double dSRRelax = 1.0;
  double dVisRelax = 1.0;
  int iCouple_Type = 14;
  double dnonOrthLimitFactor = 0.5;
};

/// The part of [General] that the standard solver uses.
struct StdGeneral {
  int iDeleteMultiTimeVox = 1;
  int iAutoHTC = 0;
  int iOutput_HTC_Value = 0;
  int iBarrelCompressible = 0;
  int iAccelerationType = 0;
  int nParticleSubDt = -1;
  int iIsTurbFlow = 0;
  int iIsOutputVP = 1;
  int iVPSwitchByClampingLimit = 0;
  int iKeepCCF = 0;
  int iPassCCFField = 0;
  int iW3FD3FFormat = 3;
  int iFaceVisByHarmonicMean = 3;
};

/// The part of [StableFlag] that the standard solver uses.
struct StdStableFlag {
  int iIterNum_MeltFrontTemperature = 10;
  int nSmooth_dP = 0;
};

/// Control of several gates, from [MultiGate]. A line counts only once the method is 1 or more.
struct StdMultiGate {
  int iMultipleGateMethod = -1;
  int iMultipleGateDebug = 0;
  int iMultipleGateType = 3;
  int iMultipleGateByTimeStep = 1;
  double dMultipleGateByVolume = 0.02;
  double dMultipleGateByCtrlCRRatio = 0.5;
  int iMultiGateOuteriteration = 30;
  double dMultipleGateTolTargetQ = 0.01;
  double dMultipleGateSPAdjustCoeff = 1.0;
  double dMultipleGateTolInletQ = 0.05;
  double dMultipleGateSPVariationLimit = 20.0;
};

}  // namespace zeb
