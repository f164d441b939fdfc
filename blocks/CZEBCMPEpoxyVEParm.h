// Epoxy viscoelasticity.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the epoxy viscoelasticity, from the section [Epoxy_VE]. Plain values; assignment copies them. The file's
/// Model_G is read as an integer: 12345.6 gives 12345.0, 1.5e4 gives 1.0.
class CZEBCMPEpoxyVEParm {
 public:
  CZEBCMPEpoxyVEParm();
  CZEBCMPEpoxyVEParm(const CZEBCMPEpoxyVEParm& other);
  ~CZEBCMPEpoxyVEParm();
  CZEBCMPEpoxyVEParm& operator=(const CZEBCMPEpoxyVEParm& other);

  int iIsRIMVE() const;
  int iRIMVEModel() const;
  double dEpoxy_VE_G() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPEpoxyVEParm>();

  int m_iIsRIMVE = 0;
  int m_iRIMVEModel = 0;
  double m_dEpoxy_VE_G = 10000.0;
};
