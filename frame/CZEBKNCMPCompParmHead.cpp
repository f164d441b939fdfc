// The fixed-line head handed back line by line, for callers that still think in head lines.
#include <type_traits>

#include "blocks/CZEBCMPIteratParm.h"
#include "engine/ParameterTable.hpp"
#include "frame/CZEBKNCMPCompParm.h"

namespace {

// The value of the member with this place in the head; where the place has none, `value` stays as it is.
template <class Value>
void take(CZEBCMPIteratParm* block, zeb::Position place, Value& value) {
  for (const zeb::Slot& slot : zeb::tableOf<CZEBCMPIteratParm>().sections.front().positional.slots) {
    const bool isIt = slot.at.line == place.line && slot.at.field == place.field;
    if (isIt && slot.row != nullptr && slot.type == zeb::detail::fieldType<Value>())
      value = slot.row->field.in<Value>(block);
  }
}

// Hands out the fields of a line in their order. Returns 1, or -1 without a block: then nothing is written.
template <class... Values>
int handOut(CZEBCMPIteratParm* block, std::uint8_t line, Values&... values) {
  if (block == nullptr) return -1;
  std::uint8_t field = 0;
  (take(block, {line, ++field}, values), ...);
  return 1;
}

}  // namespace

int CZEBKNCMPCompParm::getLine1(int& lsolvU, int& lsolvV, int& lsolvW, int& lsolvP, int& lsolvF, int& lsolvT) const {
  return handOut(getIteratParm(), 1, lsolvU, lsolvV, lsolvW, lsolvP, lsolvF, lsolvT);
}

int CZEBKNCMPCompParm::getLine2(int& nRestartIU, int& nRestartIV, int& nRestartIW, int& nRestartIP) const {
  return handOut(getIteratParm(), 2, nRestartIU, nRestartIV, nRestartIW, nRestartIP);
}

int CZEBKNCMPCompParm::getLine3(int& preCond) const { return handOut(getIteratParm(), 3, preCond); }

int CZEBKNCMPCompParm::getLine4(int& niter, int& iterStep, int& ijPresFix, int& ijProb, int& nPPCorr,
                                int& niterGrad) const {
  return handOut(getIteratParm(), 4, niter, iterStep, ijPresFix, ijProb, nPPCorr, niterGrad);
}

int CZEBKNCMPCompParm::getLine5(int& nTimeStep, int& timeStep, double& dt, double& blendTime) const {
  return handOut(getIteratParm(), 5, nTimeStep, timeStep, dt, blendTime);
}

int CZEBKNCMPCompParm::getLine6(double& toler) const { return handOut(getIteratParm(), 6, toler); }

int CZEBKNCMPCompParm::getLine7(double& blendIU, double& blendIV, double& blendIW, double& blendIP, double& blendIF,
                                double& blendIT) const {
  return handOut(getIteratParm(), 7, blendIU, blendIV, blendIW, blendIP, blendIF, blendIT);
}

int CZEBKNCMPCompParm::getLine8(int& niterInIU, int& niterInIV, int& niterInIW, int& niterInIP, int& niterInIF,
                                int& niterInIT) const {
  return handOut(getIteratParm(), 8, niterInIU, niterInIV, niterInIW, niterInIP, niterInIF, niterInIT);
}

int CZEBKNCMPCompParm::getLine9(double& tolerInIU, double& tolerInIV, double& tolerInIW, double& tolerInIP,
                                double& tolerInIF, double& tolerInIT) const {
  return handOut(getIteratParm(), 9, tolerInIU, tolerInIV, tolerInIW, tolerInIP, tolerInIF, tolerInIT);
}

int CZEBKNCMPCompParm::getLine10(double& relaxIU, double& relaxIV, double& relaxIW, double& relaxIP, double& relaxIF,
                                 double& relaxIT) const {
  return handOut(getIteratParm(), 10, relaxIU, relaxIV, relaxIW, relaxIP, relaxIF, relaxIT);
}

int CZEBKNCMPCompParm::getLine12(int& lCmpChk) const { return handOut(getIteratParm(), 12, lCmpChk); }

int CZEBKNCMPCompParm::getLine14(double& srRelax, double& visRelax) const {
  return handOut(getIteratParm(), 14, srRelax, visRelax);
}

int CZEBKNCMPCompParm::getLine16(int& coupleType, double& nonOrthLimitFactor) const {
  int unused2 = 0;
  return handOut(getIteratParm(), 16, coupleType, unused2, nonOrthLimitFactor);
}

int CZEBKNCMPCompParm::getLine18(double& unused1, int& isLowTempVisCorr, double& crossModel2VisEps,
                                 double& visTempLimiter, int& unused5, double& crossModelTs, double& crossModelTTx,
                                 double& crossModelTTxSlp, int& spruePressCorrLevel,
                                 double& ultraHighSRVisTuning) const {
  return handOut(getIteratParm(), 18, unused1, isLowTempVisCorr, crossModel2VisEps, visTempLimiter, unused5,
                 crossModelTs, crossModelTTx, crossModelTTxSlp, spruePressCorrLevel, ultraHighSRVisTuning);
}

int CZEBKNCMPCompParm::getLine19(double& wireEffectWeighting, int& isToUseMomSink, int& notToUseBinary, int& mfvDebug,
                                 int& level1, int& level2, int& outputMaxShearStressShearRate, int& isUseVolFDLL,
                                 int& isSurfaceTension, double& highTempEPS) const {
  return handOut(getIteratParm(), 19, wireEffectWeighting, isToUseMomSink, notToUseBinary, mfvDebug, level1, level2,
                 outputMaxShearStressShearRate, isUseVolFDLL, isSurfaceTension, highTempEPS);
}
