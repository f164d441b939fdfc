#include "stdcmp/CZEBKNstdCMPCompParm.h"

#include <cmath>
#include <string_view>

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

int CZEBKNstdCMPCompParm::ilsolvU() const { return m_pParameters->solver.ilsolvU; }
int CZEBKNstdCMPCompParm::ilsolvV() const { return m_pParameters->solver.ilsolvV; }
int CZEBKNstdCMPCompParm::ilsolvW() const { return m_pParameters->solver.ilsolvW; }
int CZEBKNstdCMPCompParm::ilsolvP() const { return m_pParameters->solver.ilsolvP; }
int CZEBKNstdCMPCompParm::ilsolvF() const { return m_pParameters->solver.ilsolvF; }
int CZEBKNstdCMPCompParm::ilsolvT() const { return m_pParameters->solver.ilsolvT; }
int CZEBKNstdCMPCompParm::iNRestartIU() const { return m_pParameters->solver.iNRestartIU; }
int CZEBKNstdCMPCompParm::iNRestartIV() const { return m_pParameters->solver.iNRestartIV; }
int CZEBKNstdCMPCompParm::iNRestartIW() const { return m_pParameters->solver.iNRestartIW; }
int CZEBKNstdCMPCompParm::iNRestartIP() const { return m_pParameters->solver.iNRestartIP; }
int CZEBKNstdCMPCompParm::iPreCond() const { return m_pParameters->solver.iPreCond; }
int CZEBKNstdCMPCompParm::iNiter() const { return m_pParameters->solver.iNiter; }
int CZEBKNstdCMPCompParm::iiterStep() const { return m_pParameters->solver.iiterStep; }
int CZEBKNstdCMPCompParm::iijPresFix() const { return m_pParameters->solver.iijPresFix; }
int CZEBKNstdCMPCompParm::iijProb() const { return m_pParameters->solver.iijProb; }
int CZEBKNstdCMPCompParm::iNPPCorr() const { return m_pParameters->solver.iNPPCorr; }
int CZEBKNstdCMPCompParm::iNiterGrad() const { return m_pParameters->solver.iNiterGrad; }
int CZEBKNstdCMPCompParm::iNTimeStep() const { return m_pParameters->solver.iNTimeStep; }
int CZEBKNstdCMPCompParm::iTimeStep() const { return m_pParameters->solver.iTimeStep; }
double CZEBKNstdCMPCompParm::ddt() const { return m_pParameters->solver.ddt; }
double CZEBKNstdCMPCompParm::dBlendTime() const { return m_pParameters->solver.dBlendTime; }
double CZEBKNstdCMPCompParm::dtoler() const { return m_pParameters->solver.dtoler; }
double CZEBKNstdCMPCompParm::dBlendIU() const { return m_pParameters->solver.dBlendIU; }
double CZEBKNstdCMPCompParm::dBlendIV() const { return m_pParameters->solver.dBlendIV; }
double CZEBKNstdCMPCompParm::dBlendIW() const { return m_pParameters->solver.dBlendIW; }
double CZEBKNstdCMPCompParm::dBlendIP() const { return m_pParameters->solver.dBlendIP; }
double CZEBKNstdCMPCompParm::dBlendIF() const { return m_pParameters->solver.dBlendIF; }
double CZEBKNstdCMPCompParm::dBlendIT() const { return m_pParameters->solver.dBlendIT; }
int CZEBKNstdCMPCompParm::iNiterInIU() const { return m_pParameters->solver.iNiterInIU; }
int CZEBKNstdCMPCompParm::iNiterInIV() const { return m_pParameters->solver.iNiterInIV; }
int CZEBKNstdCMPCompParm::iNiterInIW() const { return m_pParameters->solver.iNiterInIW; }
int CZEBKNstdCMPCompParm::iNiterInIP() const { return m_pParameters->solver.iNiterInIP; }
int CZEBKNstdCMPCompParm::iNiterInIF() const { return m_pParameters->solver.iNiterInIF; }
int CZEBKNstdCMPCompParm::iNiterInIT() const { return m_pParameters->solver.iNiterInIT; }
double CZEBKNstdCMPCompParm::dtolerInIU() const { return m_pParameters->solver.dtolerInIU; }
double CZEBKNstdCMPCompParm::dtolerInIV() const { return m_pParameters->solver.dtolerInIV; }
double CZEBKNstdCMPCompParm::dtolerInIW() const { return m_pParameters->solver.dtolerInIW; }
double CZEBKNstdCMPCompParm::dtolerInIP() const { return m_pParameters->solver.dtolerInIP; }
double CZEBKNstdCMPCompParm::dtolerInIF() const { return m_pParameters->solver.dtolerInIF; }
double CZEBKNstdCMPCompParm::dtolerInIT() const { return m_pParameters->solver.dtolerInIT; }
double CZEBKNstdCMPCompParm::drelaxIU() const { return m_pParameters->solver.drelaxIU; }
double CZEBKNstdCMPCompParm::drelaxIV() const { return m_pParameters->solver.drelaxIV; }
double CZEBKNstdCMPCompParm::drelaxIW() const { return m_pParameters->solver.drelaxIW; }
double CZEBKNstdCMPCompParm::drelaxIP() const { return m_pParameters->solver.drelaxIP; }
double CZEBKNstdCMPCompParm::drelaxIF() const { return m_pParameters->solver.drelaxIF; }
double CZEBKNstdCMPCompParm::drelaxIT() const { return m_pParameters->solver.drelaxIT; }
int CZEBKNstdCMPCompParm::ilCmpChk() const { return m_pParameters->solver.ilCmpChk; }
double CZEBKNstdCMPCompParm::dSRRelax() const { return m_pParameters->solver.dSRRelax; }
double CZEBKNstdCMPCompParm::dVisRelax() const { return m_pParameters->solver.dVisRelax; }
int CZEBKNstdCMPCompParm::iCouple_Type() const { return m_pParameters->solver.iCouple_Type; }
double CZEBKNstdCMPCompParm::dnonOrthLimitFactor() const { return m_pParameters->solver.dnonOrthLimitFactor; }

int CZEBKNstdCMPCompParm::getLine1(int& u, int& v, int& w, int& p, int& f, int& t) const {
  u = ilsolvU();
  v = ilsolvV();
  w = ilsolvW();
  p = ilsolvP();
  f = ilsolvF();
  t = ilsolvT();
  return 1;
}

int CZEBKNstdCMPCompParm::getLine2(int& u, int& v, int& w, int& p) const {
  u = iNRestartIU();
  v = iNRestartIV();
  w = iNRestartIW();
  p = iNRestartIP();
  return 1;
}

int CZEBKNstdCMPCompParm::getLine3(int& preCond) const {
  preCond = iPreCond();
  return 1;
}

int CZEBKNstdCMPCompParm::getLine4(int& niter, int& iterStep, int& ijPresFix, int& ijProb, int& nPPCorr,
                                   int& niterGrad) const {
  niter = iNiter();
  iterStep = iiterStep();
  ijPresFix = iijPresFix();
  ijProb = iijProb();
  nPPCorr = iNPPCorr();
  niterGrad = iNiterGrad();
  return 1;
}

int CZEBKNstdCMPCompParm::getLine5(int& nTimeStep, int& timeStep, double& dt, double& blendTime) const {
  nTimeStep = iNTimeStep();
  timeStep = iTimeStep();
  dt = ddt();
  blendTime = dBlendTime();
  return 1;
}

int CZEBKNstdCMPCompParm::getLine6(double& toler) const {
  toler = dtoler();
  return 1;
}

int CZEBKNstdCMPCompParm::getLine7(double& u, double& v, double& w, double& p, double& f, double& t) const {
  u = dBlendIU();
  v = dBlendIV();
  w = dBlendIW();
  p = dBlendIP();
  f = dBlendIF();
  t = dBlendIT();
  return 1;
}

int CZEBKNstdCMPCompParm::getLine8(int& u, int& v, int& w, int& p, int& f, int& t) const {
  u = iNiterInIU();
  v = iNiterInIV();
  w = iNiterInIW();
  p = iNiterInIP();
  f = iNiterInIF();
  t = iNiterInIT();
  return 1;
}

int CZEBKNstdCMPCompParm::getLine9(double& u, double& v, double& w, double& p, double& f, double& t) const {
  u = dtolerInIU();
  v = dtolerInIV();
  w = dtolerInIW();
  p = dtolerInIP();
  f = dtolerInIF();
  t = dtolerInIT();
  return 1;
}

int CZEBKNstdCMPCompParm::getLine10(double& u, double& v, double& w, double& p, double& f, double& t) const {
  u = drelaxIU();
  v = drelaxIV();
  w = drelaxIW();
  p = drelaxIP();
  f = drelaxIF();
  t = drelaxIT();
  return 1;
}

int CZEBKNstdCMPCompParm::getLine12(int& lCmpChk) const {
  lCmpChk = ilCmpChk();
  return 1;
}

int CZEBKNstdCMPCompParm::getLine14(double& srRelax, double& visRelax) const {
  srRelax = dSRRelax();
  visRelax = dVisRelax();
  return 1;
}

int CZEBKNstdCMPCompParm::getLine16(int& coupleType, double& nonOrthLimitFactor) const {
  coupleType = iCouple_Type();
  nonOrthLimitFactor = dnonOrthLimitFactor();
  return 1;
}

int CZEBKNstdCMPCompParm::iDeleteMultiTimeVox() const { return m_pParameters->general.iDeleteMultiTimeVox; }
int CZEBKNstdCMPCompParm::iAutoHTC() const { return m_pParameters->general.iAutoHTC; }
int CZEBKNstdCMPCompParm::iOutput_HTC_Value() const { return m_pParameters->general.iOutput_HTC_Value; }
int CZEBKNstdCMPCompParm::iBarrelCompressible() const { return m_pParameters->general.iBarrelCompressible; }
int CZEBKNstdCMPCompParm::iAccelerationType() const { return m_pParameters->general.iAccelerationType; }
int CZEBKNstdCMPCompParm::nParticleSubDt() const { return m_pParameters->general.nParticleSubDt; }
int CZEBKNstdCMPCompParm::iIsTurbFlow() const { return m_pParameters->general.iIsTurbFlow; }
int CZEBKNstdCMPCompParm::iIsOutputVP() const { return m_pParameters->general.iIsOutputVP; }
int CZEBKNstdCMPCompParm::iVPSwitchByClampingLimit() const { return m_pParameters->general.iVPSwitchByClampingLimit; }
int CZEBKNstdCMPCompParm::iKeepCCF() const { return m_pParameters->general.iKeepCCF; }
int CZEBKNstdCMPCompParm::iPassCCFField() const { return m_pParameters->general.iPassCCFField; }
int CZEBKNstdCMPCompParm::iW3FD3FFormat() const { return m_pParameters->general.iW3FD3FFormat; }
int CZEBKNstdCMPCompParm::iFaceVisByHarmonicMean() const { return m_pParameters->general.iFaceVisByHarmonicMean; }

int CZEBKNstdCMPCompParm::iIterNum_MeltFrontTemperature() const {
  return m_pParameters->stableFlag.iIterNum_MeltFrontTemperature;
}
int CZEBKNstdCMPCompParm::nSmooth_dP() const { return m_pParameters->stableFlag.nSmooth_dP; }

int CZEBKNstdCMPCompParm::iMultipleGateMethod() const { return m_pParameters->multiGate.iMultipleGateMethod; }
int CZEBKNstdCMPCompParm::iMultipleGateDebug() const { return m_pParameters->multiGate.iMultipleGateDebug; }
int CZEBKNstdCMPCompParm::iMultipleGateType() const { return m_pParameters->multiGate.iMultipleGateType; }
int CZEBKNstdCMPCompParm::iMultipleGateByTimeStep() const { return m_pParameters->multiGate.iMultipleGateByTimeStep; }
double CZEBKNstdCMPCompParm::dMultipleGateByVolume() const { return m_pParameters->multiGate.dMultipleGateByVolume; }
double CZEBKNstdCMPCompParm::dMultipleGateByCtrlCRRatio() const {
  return m_pParameters->multiGate.dMultipleGateByCtrlCRRatio;
}
int CZEBKNstdCMPCompParm::iMultiGateOuteriteration() const { return m_pParameters->multiGate.iMultiGateOuteriteration; }
double CZEBKNstdCMPCompParm::dMultipleGateTolTargetQ() const {
  return m_pParameters->multiGate.dMultipleGateTolTargetQ;
}
double CZEBKNstdCMPCompParm::dMultipleGateSPAdjustCoeff() const {
  return m_pParameters->multiGate.dMultipleGateSPAdjustCoeff;
}
double CZEBKNstdCMPCompParm::dMultipleGateTolInletQ() const { return m_pParameters->multiGate.dMultipleGateTolInletQ; }
double CZEBKNstdCMPCompParm::dMultipleGateSPVariationLimit() const {
  return m_pParameters->multiGate.dMultipleGateSPVariationLimit;
}
