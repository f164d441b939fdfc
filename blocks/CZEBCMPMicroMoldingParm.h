// Heat transfer and time steps of micro-molding.
#pragma once

#include "engine/BlockAccess.h"

/// Heat transfer and time steps of micro-molding, from the section [MicroMolding]. Plain values; assignment copies
/// them.
///
/// The two lower bounds called Ce are written in files as the time step sizes of runner and cavity.
class CZEBCMPMicroMoldingParm {
 public:
  CZEBCMPMicroMoldingParm();
  CZEBCMPMicroMoldingParm(const CZEBCMPMicroMoldingParm& other);
  ~CZEBCMPMicroMoldingParm();
  CZEBCMPMicroMoldingParm& operator=(const CZEBCMPMicroMoldingParm& other);

  int iFlagMicroMolding() const;
  double dRunnerHTC() const;
  double dCavityHTC() const;
  double dRunnerCeLowerBound() const;
  double dCavityCeLowerBound() const;
  int iIsCTGSTLRunner() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPMicroMoldingParm>();

  int m_iFlagMicroMolding = 0;
  double m_dRunnerHTC = 5000.0;
  double m_dCavityHTC = 5000.0;
  double m_dRunnerCeLowerBound = 1.0;
  double m_dCavityCeLowerBound = 1.0;
  int m_iIsCTGSTLRunner = 0;
};
