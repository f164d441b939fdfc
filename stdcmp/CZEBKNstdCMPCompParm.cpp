#include "stdcmp/CZEBKNstdCMPCompParm.h"

#include <cmath>
#include <string_view>
#include <tuple>

#include "engine/BlockFunctions.hpp"
#include "engine/TextOutput.hpp"
#include "stdcmp/StdParameters.hpp"

CZEBKNstdCMPCompParm::CZEBKNstdCMPCompParm() : m_pCom(nullptr), m_pParameters(std::make_shared<zeb::StdParameters>()) {}
CZEBKNstdCMPCompParm::CZEBKNstdCMPCompParm(const CZEBKNstdCMPCompParm& other) = default;
CZEBKNstdCMPCompParm::~CZEBKNstdCMPCompParm() = default;
CZEBKNstdCMPCompParm& CZEBKNstdCMPCompParm::operator=(const CZEBKNstdCMPCompParm& other) = default;

int CZEBKNstdCMPCompParm::setZEBCom(CZEBCom* com) {
  if (com == nullptr) return -1;
  if (com->GetNCPU() < 2) return -2;
  m_pCom = com;
  return 1;
}

int CZEBKNstdCMPCompParm::setSolidFillBlock(const std::string& fileName) {
  return m_pParameters->readFileBlock(fileName, m_pCom);
}

int CZEBKNstdCMPCompParm::ZEB_getline_Parallel(std::istream& stream, std::string& line) const {
  return zeb::kStdFormat.lineSource(m_pCom, 0).getLine(stream, line);
}

// The defaults are looked for with the tolerances below; they differ on purpose.
int CZEBKNstdCMPCompParm::modifyParm_ConformalCooling(int mode) {
  zeb::StdSolverSettings& settings = m_pParameters->solver;
  const auto restore = [&settings](double& value, double repaired, std::string_view message) {
    value = repaired;
    if (settings.ilCmpChk != 0) zeb::writeOut(message);
  };
  if (std::fabs(settings.dtoler - 0.01) < 1e-6) {
    restore(settings.dtoler, 0.1, "\n>>> tol restored from 0.01 to 0.1\n\n");
  }
  if (std::fabs(settings.dBlendIT - 0.8) < 0.001) {
    restore(settings.dBlendIT, 0.0, "\n>>> bT restored from 0.8 to 0.0\n\n");
  }
  if (settings.iCouple_Type == 1 && std::fabs(settings.drelaxIP - 0.6) < 0.001) {
    restore(settings.drelaxIP, 0.2, "\n>>> rp restored from 0.6 to 0.2\n\n");
  }
  if (mode == 1) {
    settings.dtoler = 0.1;
    settings.iNiterInIP = 20;
  }
  return 1;
}

#define ZEB_SOLVER(name) m_pParameters->solver.name
ZEB_GETTERS_OF(CZEBKNstdCMPCompParm, ZEB_SOLVER, ilsolvU, ilsolvV, ilsolvW, ilsolvP, ilsolvF, ilsolvT, iNRestartIU,
               iNRestartIV, iNRestartIW, iNRestartIP, iPreCond, iNiter, iiterStep, iijPresFix, iijProb, iNPPCorr,
               iNiterGrad, iNTimeStep, iTimeStep, ddt, dBlendTime, dtoler, dBlendIU, dBlendIV, dBlendIW, dBlendIP,
               dBlendIF, dBlendIT, iNiterInIU, iNiterInIV, iNiterInIW, iNiterInIP, iNiterInIF, iNiterInIT, dtolerInIU,
               dtolerInIV, dtolerInIW, dtolerInIP, dtolerInIF, dtolerInIT, drelaxIU, drelaxIV, drelaxIW, drelaxIP,
               drelaxIF, drelaxIT, ilCmpChk, dSRRelax, dVisRelax, iCouple_Type, dnonOrthLimitFactor)

int CZEBKNstdCMPCompParm::getLine1(int& u, int& v, int& w, int& p, int& f, int& t) const {
  std::tie(u, v, w, p, f, t) = std::tuple(ilsolvU(), ilsolvV(), ilsolvW(), ilsolvP(), ilsolvF(), ilsolvT());
  return 1;
}

int CZEBKNstdCMPCompParm::getLine2(int& u, int& v, int& w, int& p) const {
  std::tie(u, v, w, p) = std::tuple(iNRestartIU(), iNRestartIV(), iNRestartIW(), iNRestartIP());
  return 1;
}

int CZEBKNstdCMPCompParm::getLine3(int& preCond) const {
  preCond = iPreCond();
  return 1;
}

int CZEBKNstdCMPCompParm::getLine4(int& niter, int& iterStep, int& ijPresFix, int& ijProb, int& nPPCorr,
                                   int& niterGrad) const {
  std::tie(niter, iterStep, ijPresFix, ijProb, nPPCorr, niterGrad) =
      std::tuple(iNiter(), iiterStep(), iijPresFix(), iijProb(), iNPPCorr(), iNiterGrad());
  return 1;
}

int CZEBKNstdCMPCompParm::getLine5(int& nTimeStep, int& timeStep, double& dt, double& blendTime) const {
  std::tie(nTimeStep, timeStep, dt, blendTime) = std::tuple(iNTimeStep(), iTimeStep(), ddt(), dBlendTime());
  return 1;
}

int CZEBKNstdCMPCompParm::getLine6(double& toler) const {
  toler = dtoler();
  return 1;
}

int CZEBKNstdCMPCompParm::getLine7(double& u, double& v, double& w, double& p, double& f, double& t) const {
  std::tie(u, v, w, p, f, t) = std::tuple(dBlendIU(), dBlendIV(), dBlendIW(), dBlendIP(), dBlendIF(), dBlendIT());
  return 1;
}

int CZEBKNstdCMPCompParm::getLine8(int& u, int& v, int& w, int& p, int& f, int& t) const {
  std::tie(u, v, w, p, f, t) =
      std::tuple(iNiterInIU(), iNiterInIV(), iNiterInIW(), iNiterInIP(), iNiterInIF(), iNiterInIT());
  return 1;
}

int CZEBKNstdCMPCompParm::getLine9(double& u, double& v, double& w, double& p, double& f, double& t) const {
  std::tie(u, v, w, p, f, t) =
      std::tuple(dtolerInIU(), dtolerInIV(), dtolerInIW(), dtolerInIP(), dtolerInIF(), dtolerInIT());
  return 1;
}

int CZEBKNstdCMPCompParm::getLine10(double& u, double& v, double& w, double& p, double& f, double& t) const {
  std::tie(u, v, w, p, f, t) = std::tuple(drelaxIU(), drelaxIV(), drelaxIW(), drelaxIP(), drelaxIF(), drelaxIT());
  return 1;
}

int CZEBKNstdCMPCompParm::getLine12(int& lCmpChk) const {
  lCmpChk = ilCmpChk();
  return 1;
}

int CZEBKNstdCMPCompParm::getLine14(double& srRelax, double& visRelax) const {
  std::tie(srRelax, visRelax) = std::tuple(dSRRelax(), dVisRelax());
  return 1;
}

int CZEBKNstdCMPCompParm::getLine16(int& coupleType, double& nonOrthLimitFactor) const {
  std::tie(coupleType, nonOrthLimitFactor) = std::tuple(iCouple_Type(), dnonOrthLimitFactor());
  return 1;
}

#define ZEB_GENERAL(name) m_pParameters->general.name
ZEB_GETTERS_OF(CZEBKNstdCMPCompParm, ZEB_GENERAL, iDeleteMultiTimeVox, iAutoHTC, iOutput_HTC_Value, iBarrelCompressible,
               iAccelerationType, nParticleSubDt, iIsTurbFlow, iIsOutputVP, iVPSwitchByClampingLimit, iKeepCCF,
               iPassCCFField, iW3FD3FFormat, iFaceVisByHarmonicMean)

#define ZEB_STABLE_FLAG(name) m_pParameters->stableFlag.name
ZEB_GETTERS_OF(CZEBKNstdCMPCompParm, ZEB_STABLE_FLAG, iIterNum_MeltFrontTemperature, nSmooth_dP)

#define ZEB_MULTI_GATE(name) m_pParameters->multiGate.name
ZEB_GETTERS_OF(CZEBKNstdCMPCompParm, ZEB_MULTI_GATE, iMultipleGateMethod, iMultipleGateDebug, iMultipleGateType,
               iMultipleGateByTimeStep, dMultipleGateByVolume, dMultipleGateByCtrlCRRatio, iMultiGateOuteriteration,
               dMultipleGateTolTargetQ, dMultipleGateSPAdjustCoeff, dMultipleGateTolInletQ,
               dMultipleGateSPVariationLimit)
