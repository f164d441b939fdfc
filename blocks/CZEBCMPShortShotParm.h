// Limits that tell a short shot.
#pragma once

#include "engine/BlockAccess.h"

/// Limits that tell a short shot, from the section [ShortShot]. Plain values; assignment copies them.
///
/// The gas-, water- and bi-injection molding types change the time limit after reading.
class CZEBCMPShortShotParm {
 public:
  CZEBCMPShortShotParm();
  CZEBCMPShortShotParm(const CZEBCMPShortShotParm& other);
  ~CZEBCMPShortShotParm();
  CZEBCMPShortShotParm& operator=(const CZEBCMPShortShotParm& other);

  double dTimeLimit() const;
  double dFRLimit() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPShortShotParm>();
  friend struct zeb::Repairs;

  double m_dTimeLimit = 1.1;
  double m_dFRLimit = 0.002;
};
