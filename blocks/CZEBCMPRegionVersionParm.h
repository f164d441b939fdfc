// Region version.
#pragma once

#include "engine/BlockAccess.h"

/// The region version, from the section [RegionVersion]. A plain value; assignment copies it.
class CZEBCMPRegionVersionParm {
 public:
  CZEBCMPRegionVersionParm();
  CZEBCMPRegionVersionParm(const CZEBCMPRegionVersionParm& other);
  ~CZEBCMPRegionVersionParm();
  CZEBCMPRegionVersionParm& operator=(const CZEBCMPRegionVersionParm& other);

  int iRegionVersion() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPRegionVersionParm>();

  int m_iRegionVersion = 0;
};
