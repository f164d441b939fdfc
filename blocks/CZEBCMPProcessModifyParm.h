// Bounds of the change of the flow rate.
#pragma once

#include "engine/BlockAccess.h"

/// Bounds of the change of the flow rate, from the section [ProcessModify]. Plain values; assignment copies them.
///
/// The upper bound read from a file is at least 1.0; the lower one is kept between 0.001 and 0.999.
class CZEBCMPProcessModifyParm {
 public:
  CZEBCMPProcessModifyParm();
  CZEBCMPProcessModifyParm(const CZEBCMPProcessModifyParm& other);
  ~CZEBCMPProcessModifyParm();
  CZEBCMPProcessModifyParm& operator=(const CZEBCMPProcessModifyParm& other);

  double dProcessFRChangeUpperBound() const;
  double dProcessFRChangeLowerBound() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPProcessModifyParm>();

  double m_dProcessFRChangeUpperBound = 1.1;
  double m_dProcessFRChangeLowerBound = 0.9;
};
