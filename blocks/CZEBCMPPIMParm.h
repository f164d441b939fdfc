// Powder injection.
#pragma once

#include "engine/BlockAccess.h"

/// Powder injection, from the section [PIM]. Plain values; assignment copies them.
///
/// No key sets the version.
class CZEBCMPPIMParm {
 public:
  CZEBCMPPIMParm();
  CZEBCMPPIMParm(const CZEBCMPPIMParm& other);
  ~CZEBCMPPIMParm();
  CZEBCMPPIMParm& operator=(const CZEBCMPPIMParm& other);

  int Version() const;
  int ConcentrationEffectOnFlow() const;
  int UsingRelativeVisCosityToConcentration() const;
  double SolverTolerance() const;
  double IterationTolerance() const;
  int SolverType() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPPIMParm>();

  int m_iVersion = 1401;
  int m_iConcentrationEffectOnFlow = 0;
  int m_iUsingRelativeVisCosityToConcentration = 1;
  double m_dSolverTolerance = 1e-06;
  double m_dIterationTolerance = 0.01;
  int m_iSolverType = 0;
};
