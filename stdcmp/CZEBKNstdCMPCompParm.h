// The reduced reader of the CMP file for the standard solver.
#pragma once

#include <istream>
#include <memory>
#include <string>

#include "engine/BlockAccess.h"
#include "platform/ZEBCom.h"

namespace zeb {
class StdParameters;
}

/// What the standard solver takes from a CMP file: the fixed-line head behind "[VER]" with the number 1013, and some
/// keys of [General], [StableFlag] and [MultiGate]. In [MultiGate] the order of lines counts: a key is read only when
/// MultipleGateMethod is 1 or more by then.
///
/// Order of calls: setZEBCom() on every rank of a parallel run, setSolidFillBlock() on every rank,
/// modifyParm_ConformalCooling() where it applies, then the getters.
///
/// Copies share the parameters, each has a communicator of its own; destroying all of them is safe.
class CZEBKNstdCMPCompParm {
 public:
  CZEBKNstdCMPCompParm();
  /// Shares the other's parameters.
  CZEBKNstdCMPCompParm(const CZEBKNstdCMPCompParm& other);
  virtual ~CZEBKNstdCMPCompParm();
  CZEBKNstdCMPCompParm& operator=(const CZEBKNstdCMPCompParm& other);

  /// Sets the communicator, which stays the caller's and must live as long as files are read. Returns 1; -1 for null
  /// and -2 for a communicator of a single rank, which change nothing. Without a communicator this process reads alone.
  int setZEBCom(CZEBCom* com);

  /// Reads a CMP file over what is held. Collective: rank 0 reads and echoes the file's name and, with a
  /// communicator, every line on standard output; every rank calls it with the same name. Always 1: a file that
  /// cannot be opened is read as an empty one.
  int setSolidFillBlock(const std::string& fileName);

  /// The line source: delivers the next line on every rank and returns 1, or returns 0 on every rank at the
  /// end of the input. Collective; `stream` is used on rank 0 only, which echoes the line.
  int ZEB_getline_Parallel(std::istream& stream, std::string& line) const;

  /// Replaces the head's defaults that do not suit conformal cooling, and leaves other values alone: a tolerance of
  /// 0.01 becomes 0.1, a blending of the temperature of 0.8 becomes 0.0, and with coupling type 1 a relaxation of the
  /// pressure of 0.6 becomes 0.2; each is printed on standard output when ilCmpChk() is not 0. With `mode` 1 the
  /// tolerance becomes 0.1 and the inner iterations of the pressure 20, whatever they were. Always 1.
  int modifyParm_ConformalCooling(int mode);

  // The head. U, V, W, P, F and T stand for the velocity components, pressure, filling fraction and temperature.
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

  // A line of the head at a time, in the order of the line. Always 1; lines 11, 13, 15 and 17 hold nothing.
  int getLine1(int& u, int& v, int& w, int& p, int& f, int& t) const;
  int getLine2(int& u, int& v, int& w, int& p) const;
  int getLine3(int& preCond) const;
  int getLine4(int& niter, int& iterStep, int& ijPresFix, int& ijProb, int& nPPCorr, int& niterGrad) const;
  int getLine5(int& nTimeStep, int& timeStep, double& dt, double& blendTime) const;
  int getLine6(double& toler) const;
  int getLine7(double& u, double& v, double& w, double& p, double& f, double& t) const;
  int getLine8(int& u, int& v, int& w, int& p, int& f, int& t) const;
  int getLine9(double& u, double& v, double& w, double& p, double& f, double& t) const;
  int getLine10(double& u, double& v, double& w, double& p, double& f, double& t) const;
  int getLine12(int& lCmpChk) const;
  int getLine14(double& srRelax, double& visRelax) const;
  int getLine16(int& coupleType, double& nonOrthLimitFactor) const;

  // [General]
  int iDeleteMultiTimeVox() const;
  int iAutoHTC() const;
  int iOutput_HTC_Value() const;
  int iBarrelCompressible() const;
  int iAccelerationType() const;
  int nParticleSubDt() const;
  int iIsTurbFlow() const;
  int iIsOutputVP() const;
  int iVPSwitchByClampingLimit() const;
  int iKeepCCF() const;
  int iPassCCFField() const;
  int iW3FD3FFormat() const;
  int iFaceVisByHarmonicMean() const;

  // [StableFlag]
  int iIterNum_MeltFrontTemperature() const;
  int nSmooth_dP() const;

  // [MultiGate]
  int iMultipleGateMethod() const;
  int iMultipleGateDebug() const;
  int iMultipleGateType() const;
  int iMultipleGateByTimeStep() const;
  double dMultipleGateByVolume() const;
  double dMultipleGateByCtrlCRRatio() const;
  int iMultiGateOuteriteration() const;
  double dMultipleGateTolTargetQ() const;
  double dMultipleGateSPAdjustCoeff() const;
  double dMultipleGateTolInletQ() const;
  double dMultipleGateSPVariationLimit() const;

 private:
  friend struct zeb::Inspection;

  CZEBCom* m_pCom;
  std::shared_ptr<zeb::StdParameters> m_pParameters;
};
