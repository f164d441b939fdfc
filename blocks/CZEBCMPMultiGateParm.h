// Balancing of several gates, with a weight for each group of inlets.
#pragma once

#include "engine/BlockAccess.h"
#include "engine/SharedArray.h"

/// Balancing of several gates, from the section [MultiGate], with a weight for each group of inlets.
///
/// The other keys count only while the method is 1 or more, so MultipleGateMethod comes first in a file. A number of
/// groups N is followed by N lines "Weightings = ..."; the weight of the last group is always one minus the others.
///
/// Copies and assignment share the weights.
class CZEBCMPMultiGateParm {
 public:
  CZEBCMPMultiGateParm();
  CZEBCMPMultiGateParm(const CZEBCMPMultiGateParm& other);
  ~CZEBCMPMultiGateParm();
  CZEBCMPMultiGateParm& operator=(const CZEBCMPMultiGateParm& other);

  int iMultipleGateDebug() const;
  int iMultipleGateMethod() const;
  int iMultipleGateType() const;
  int iMultipleGateByTimeStep() const;
  double dMultipleGateByVolume() const;
  double dMultipleGateByCtrlCRRatio() const;
  int iMultiGateOuteriteration() const;
  double dMultipleGateTolTargetQ() const;
  double dMultipleGateSPAdjustCoeff() const;
  double dMultipleGateTolInletQ() const;
  double dMultipleGateSPVariationLimit() const;
  int iNumberofInletGroups() const;
  /// The weights: iNumberofInletGroups() + 1 doubles, group i (from 1) at [i]; [0] is no group's. Null until a number
  /// of groups was read. Valid until the block is destroyed, also after the section was read again; not owned by the
  /// caller.
  const double* pdInletWeightings() const;
  /// Copies the weights of groups 1 to N = iNumberofInletGroups() into out[1] to out[N]; out[0] is not touched, so
  /// `out` needs N + 1 doubles. Returns 1, also when N is 0 (then nothing is copied), or -1 when a weight has nowhere
  /// to go (`out` is null).
  int InletWeightings(double* out) const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPMultiGateParm>();

  int m_iMultipleGateDebug = 0;
  int m_iMultipleGateMethod = -1;
  int m_iMultipleGateType = 3;
  int m_iMultipleGateByTimeStep = 1;
  double m_dMultipleGateByVolume = 0.02;
  double m_dMultipleGateByCtrlCRRatio = 0.5;
  int m_iMultiGateOuteriteration = 30;
  double m_dMultipleGateTolTargetQ = 0.01;
  double m_dMultipleGateSPAdjustCoeff = 1.0;
  double m_dMultipleGateTolInletQ = 0.05;
  double m_dMultipleGateSPVariationLimit = 20.0;
  int m_iNumberofInletGroups = 0;
  zeb::SharedArray<double> m_pdInletWeightings;
};
