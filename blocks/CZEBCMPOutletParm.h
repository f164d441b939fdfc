// Air outlets of the cavity.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the air outlets, from the section [Outlet]. Plain values; assignment copies them.
class CZEBCMPOutletParm {
 public:
  CZEBCMPOutletParm();
  CZEBCMPOutletParm(const CZEBCMPOutletParm& other);
  ~CZEBCMPOutletParm();
  CZEBCMPOutletParm& operator=(const CZEBCMPOutletParm& other);

  int iIsOutlet() const;
  double dAirPressure() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPOutletParm>();

  int m_iIsOutlet = 0;
  double m_dAirPressure = 0.0;
};
