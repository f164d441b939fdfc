// Steady analysis of a hot runner.
#pragma once

#include "engine/BlockAccess.h"
#include "engine/SharedArray.h"

/// Steady hot runner analysis, from the block `<FILL_ADVANCED_HRSteady>`. The key ValueHRGateType is followed at once
/// by one line "name = value" for each gate, when ValueNoHRGate stood above it. A line that sets ValueFlowRateDiffRatio
/// sets the flow rate as well, since the longer key holds the shorter one. Assignment shares the gates' values.
class CZEBCMX_FILL_ADVANCED_HRSteady {
 public:
  CZEBCMX_FILL_ADVANCED_HRSteady();
  CZEBCMX_FILL_ADVANCED_HRSteady(const CZEBCMX_FILL_ADVANCED_HRSteady& other);
  ~CZEBCMX_FILL_ADVANCED_HRSteady();
  CZEBCMX_FILL_ADVANCED_HRSteady& operator=(const CZEBCMX_FILL_ADVANCED_HRSteady& other);

  double dHRFlowRate() const;
  double dHRConvergenceCriteria() const;
  /// Number of hot runner gates, 0 to 1,000,000.
  int iNHRGate() const;
  int iHRGateType() const;
  /// Values of the gates' boundary condition: iNHRGate() + 1 doubles, those of the gates at 1 to iNHRGate(), 0 where
  /// the file had none. Null while no ValueNoHRGate was read. Valid until the block is destroyed; not owned by the
  /// caller.
  const double* pHRGateBC() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMX_FILL_ADVANCED_HRSteady>();

  double m_dHRFlowRate = 0.0;
  double m_dHRConvergenceCriteria = 0.01;
  int m_iNHRGate = 0;
  int m_iHRGateType = 0;
  zeb::SharedArray<double> m_pHRGateBC;
};
