// Every value of the standard solver's parameters, taken through its public getter.
#pragma once

#include <charconv>
#include <map>
#include <string>

#include "stdcmp/CZEBKNstdCMPCompParm.h"

namespace zebtest {

/// By the getter's name.
inline std::map<std::string, double> publicValues(const CZEBKNstdCMPCompParm& set) {
  std::map<std::string, double> values;
#define ZEB_VALUE(getter) values[#getter] = set.getter()
  // clang-format off
  ZEB_VALUE(ilsolvU); ZEB_VALUE(ilsolvV); ZEB_VALUE(ilsolvW); ZEB_VALUE(ilsolvP); ZEB_VALUE(ilsolvF);
  ZEB_VALUE(ilsolvT); ZEB_VALUE(iNRestartIU); ZEB_VALUE(iNRestartIV); ZEB_VALUE(iNRestartIW); ZEB_VALUE(iNRestartIP);
  ZEB_VALUE(iPreCond); ZEB_VALUE(iNiter); ZEB_VALUE(iiterStep); ZEB_VALUE(iijPresFix); ZEB_VALUE(iijProb);
  ZEB_VALUE(iNPPCorr); ZEB_VALUE(iNiterGrad); ZEB_VALUE(iNTimeStep); ZEB_VALUE(iTimeStep); ZEB_VALUE(ddt);
  ZEB_VALUE(dBlendTime); ZEB_VALUE(dtoler); ZEB_VALUE(dBlendIU); ZEB_VALUE(dBlendIV); ZEB_VALUE(dBlendIW);
  ZEB_VALUE(dBlendIP); ZEB_VALUE(dBlendIF); ZEB_VALUE(dBlendIT); ZEB_VALUE(iNiterInIU); ZEB_VALUE(iNiterInIV);
  ZEB_VALUE(iNiterInIW); ZEB_VALUE(iNiterInIP); ZEB_VALUE(iNiterInIF); ZEB_VALUE(iNiterInIT); ZEB_VALUE(dtolerInIU);
  ZEB_VALUE(dtolerInIV); ZEB_VALUE(dtolerInIW); ZEB_VALUE(dtolerInIP); ZEB_VALUE(dtolerInIF); ZEB_VALUE(dtolerInIT);
  ZEB_VALUE(drelaxIU); ZEB_VALUE(drelaxIV); ZEB_VALUE(drelaxIW); ZEB_VALUE(drelaxIP); ZEB_VALUE(drelaxIF);
  ZEB_VALUE(drelaxIT); ZEB_VALUE(ilCmpChk); ZEB_VALUE(dSRRelax); ZEB_VALUE(dVisRelax); ZEB_VALUE(iCouple_Type);
  ZEB_VALUE(dnonOrthLimitFactor); ZEB_VALUE(iDeleteMultiTimeVox); ZEB_VALUE(iAutoHTC); ZEB_VALUE(iOutput_HTC_Value);
  ZEB_VALUE(iBarrelCompressible); ZEB_VALUE(iAccelerationType); ZEB_VALUE(nParticleSubDt); ZEB_VALUE(iIsTurbFlow);
  ZEB_VALUE(iIsOutputVP); ZEB_VALUE(iVPSwitchByClampingLimit); ZEB_VALUE(iKeepCCF); ZEB_VALUE(iPassCCFField);
  ZEB_VALUE(iW3FD3FFormat); ZEB_VALUE(iFaceVisByHarmonicMean); ZEB_VALUE(iIterNum_MeltFrontTemperature);
  ZEB_VALUE(nSmooth_dP); ZEB_VALUE(iMultipleGateMethod); ZEB_VALUE(iMultipleGateDebug); ZEB_VALUE(iMultipleGateType);
  ZEB_VALUE(iMultipleGateByTimeStep); ZEB_VALUE(dMultipleGateByVolume); ZEB_VALUE(dMultipleGateByCtrlCRRatio);
  ZEB_VALUE(iMultiGateOuteriteration); ZEB_VALUE(dMultipleGateTolTargetQ); ZEB_VALUE(dMultipleGateSPAdjustCoeff);
  ZEB_VALUE(dMultipleGateTolInletQ); ZEB_VALUE(dMultipleGateSPVariationLimit);
  // clang-format on
#undef ZEB_VALUE
  return values;
}

/// Exact: equal texts are equal values.
inline std::string textOf(const std::map<std::string, double>& values) {
  std::string text;
  for (const auto& [name, value] : values) {
    char digits[64];
    text += name + ' ' + std::string(digits, std::to_chars(digits, digits + sizeof digits, value).ptr) + '\n';
  }
  return text;
}

}  // namespace zebtest
