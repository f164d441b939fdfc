// The fixed-line head handed back line by line, for callers that still think in head lines.
#include <tuple>

#include "blocks/CZEBCMPIteratParm.h"
#include "frame/CZEBKNCMPCompParm.h"

namespace {

using Iterat = CZEBCMPIteratParm;

// Calls the getters one after the other. Returns 1, or -1 without a block: then nothing is written.
template <class... Values, class... Getters>
int handOut(const Iterat* block, std::tuple<Values&...> values, Getters... getters) {
  if (block == nullptr) return -1;
  values = std::make_tuple((block->*getters)()...);
  return 1;
}

}  // namespace

int CZEBKNCMPCompParm::getLine1(int& lsolvU, int& lsolvV, int& lsolvW, int& lsolvP, int& lsolvF, int& lsolvT) const {
  return handOut(getIteratParm(), std::tie(lsolvU, lsolvV, lsolvW, lsolvP, lsolvF, lsolvT), &Iterat::ilsolvU,
                 &Iterat::ilsolvV, &Iterat::ilsolvW, &Iterat::ilsolvP, &Iterat::ilsolvF, &Iterat::ilsolvT);
}

int CZEBKNCMPCompParm::getLine2(int& nRestartIU, int& nRestartIV, int& nRestartIW, int& nRestartIP) const {
  return handOut(getIteratParm(), std::tie(nRestartIU, nRestartIV, nRestartIW, nRestartIP), &Iterat::iNRestartIU,
                 &Iterat::iNRestartIV, &Iterat::iNRestartIW, &Iterat::iNRestartIP);
}

int CZEBKNCMPCompParm::getLine3(int& preCond) const {
  return handOut(getIteratParm(), std::tie(preCond), &Iterat::iPreCond);
}

int CZEBKNCMPCompParm::getLine4(int& niter, int& iterStep, int& ijPresFix, int& ijProb, int& nPPCorr,
                                int& niterGrad) const {
  return handOut(getIteratParm(), std::tie(niter, iterStep, ijPresFix, ijProb, nPPCorr, niterGrad), &Iterat::iNiter,
                 &Iterat::iiterStep, &Iterat::iijPresFix, &Iterat::iijProb, &Iterat::iNPPCorr, &Iterat::iNiterGrad);
}

int CZEBKNCMPCompParm::getLine5(int& nTimeStep, int& timeStep, double& dt, double& blendTime) const {
  return handOut(getIteratParm(), std::tie(nTimeStep, timeStep, dt, blendTime), &Iterat::iNTimeStep, &Iterat::iTimeStep,
                 &Iterat::ddt, &Iterat::dBlendTime);
}

int CZEBKNCMPCompParm::getLine6(double& toler) const {
  return handOut(getIteratParm(), std::tie(toler), &Iterat::dtoler);
}

int CZEBKNCMPCompParm::getLine7(double& blendIU, double& blendIV, double& blendIW, double& blendIP, double& blendIF,
                                double& blendIT) const {
  return handOut(getIteratParm(), std::tie(blendIU, blendIV, blendIW, blendIP, blendIF, blendIT), &Iterat::dBlendIU,
                 &Iterat::dBlendIV, &Iterat::dBlendIW, &Iterat::dBlendIP, &Iterat::dBlendIF, &Iterat::dBlendIT);
}

int CZEBKNCMPCompParm::getLine8(int& niterInIU, int& niterInIV, int& niterInIW, int& niterInIP, int& niterInIF,
                                int& niterInIT) const {
  return handOut(getIteratParm(), std::tie(niterInIU, niterInIV, niterInIW, niterInIP, niterInIF, niterInIT),
                 &Iterat::iNiterInIU, &Iterat::iNiterInIV, &Iterat::iNiterInIW, &Iterat::iNiterInIP,
                 &Iterat::iNiterInIF, &Iterat::iNiterInIT);
}

int CZEBKNCMPCompParm::getLine9(double& tolerInIU, double& tolerInIV, double& tolerInIW, double& tolerInIP,
                                double& tolerInIF, double& tolerInIT) const {
  return handOut(getIteratParm(), std::tie(tolerInIU, tolerInIV, tolerInIW, tolerInIP, tolerInIF, tolerInIT),
                 &Iterat::dtolerInIU, &Iterat::dtolerInIV, &Iterat::dtolerInIW, &Iterat::dtolerInIP,
                 &Iterat::dtolerInIF, &Iterat::dtolerInIT);
}

int CZEBKNCMPCompParm::getLine10(double& relaxIU, double& relaxIV, double& relaxIW, double& relaxIP, double& relaxIF,
                                 double& relaxIT) const {
  return handOut(getIteratParm(), std::tie(relaxIU, relaxIV, relaxIW, relaxIP, relaxIF, relaxIT), &Iterat::drelaxIU,
                 &Iterat::drelaxIV, &Iterat::drelaxIW, &Iterat::drelaxIP, &Iterat::drelaxIF, &Iterat::drelaxIT);
}

int CZEBKNCMPCompParm::getLine12(int& lCmpChk) const {
  return handOut(getIteratParm(), std::tie(lCmpChk), &Iterat::ilCmpChk);
}

int CZEBKNCMPCompParm::getLine14(double& srRelax, double& visRelax) const {
  return handOut(getIteratParm(), std::tie(srRelax, visRelax), &Iterat::dSRRelax, &Iterat::dVisRelax);
}

int CZEBKNCMPCompParm::getLine16(int& coupleType, double& nonOrthLimitFactor) const {
  return handOut(getIteratParm(), std::tie(coupleType, nonOrthLimitFactor), &Iterat::iCouple_Type,
                 &Iterat::dnonOrthLimitFactor);
}

int CZEBKNCMPCompParm::getLine18(double& /*unused1*/, int& isLowTempVisCorr, double& crossModel2VisEps,
                                 double& visTempLimiter, int& /*unused5*/, double& crossModelTs, double& crossModelTTx,
                                 double& crossModelTTxSlp, int& spruePressCorrLevel,
                                 double& ultraHighSRVisTuning) const {
  return handOut(getIteratParm(),
                 std::tie(isLowTempVisCorr, crossModel2VisEps, visTempLimiter, crossModelTs, crossModelTTx,
                          crossModelTTxSlp, spruePressCorrLevel, ultraHighSRVisTuning),
                 &Iterat::iIsLowTempVisCorr, &Iterat::dMat_CrossModel2_VisEps, &Iterat::dVisTempLimiter,
                 &Iterat::dMat_CrossModel_Ts, &Iterat::dMat_CrossModel_TTx, &Iterat::dMat_CrossModel_TTxSlp,
                 &Iterat::iSpruePressCorrLevel, &Iterat::dUltraHighSRVisTuning);
}

int CZEBKNCMPCompParm::getLine19(double& wireEffectWeighting, int& isToUseMomSink, int& notToUseBinary, int& mfvDebug,
                                 int& level1, int& level2, int& outputMaxShearStressShearRate, int& isUseVolFDLL,
                                 int& isSurfaceTension, double& highTempEPS) const {
  return handOut(getIteratParm(),
                 std::tie(wireEffectWeighting, isToUseMomSink, notToUseBinary, mfvDebug, level1, level2,
                          outputMaxShearStressShearRate, isUseVolFDLL, isSurfaceTension, highTempEPS),
                 &Iterat::dWireEffectWeighting, &Iterat::iIsToUseMomSink, &Iterat::iNotToUseBinary, &Iterat::iMFVDebug,
                 &Iterat::iLevel1, &Iterat::iLevel2, &Iterat::iOutputMaxShearStressShearRate, &Iterat::iIsUseVolFDLL,
                 &Iterat::iIsSurfaceTension, &Iterat::dHighTempEPS);
}
