// Initial data of compression molding.
#pragma once

#include "engine/BlockAccess.h"
#include "engine/SharedArray.h"

/// Initial data of compression molding, from the section [Compression].
///
/// The two paths keep the blanks inside and at their end. Copies and assignment share them.
class CZEBCMPCompressionParm {
 public:
  CZEBCMPCompressionParm();
  CZEBCMPCompressionParm(const CZEBCMPCompressionParm& other);
  ~CZEBCMPCompressionParm();
  CZEBCMPCompressionParm& operator=(const CZEBCMPCompressionParm& other);

  int iIsInitialData() const;
  int iIsCalConversionFromTemp() const;
  int iIsInitialStress() const;
  int iIsInitialTemp() const;
  int iIsInitialFiber() const;
  double dMapFactor() const;
  double dPreHeatTimeInInitialData() const;
  /// Null until a file names it. Valid until the block is destroyed, also after the section was read again; not owned
  /// by the caller.
  const char* szFilePathOfInitialData() const;
  /// As szFilePathOfInitialData().
  const char* szFilePathOfLocation() const;
  int iAbaqusMeshType() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPCompressionParm>();

  int m_iIsInitialData = 0;
  int m_iIsCalConversionFromTemp = 0;
  int m_iIsInitialStress = 0;
  int m_iIsInitialTemp = 0;
  int m_iIsInitialFiber = 0;
  double m_dMapFactor = 1.0;
  double m_dPreHeatTimeInInitialData = 0.0;
  zeb::OwnedText m_szFilePathOfInitialData;
  zeb::OwnedText m_szFilePathOfLocation;
  int m_iAbaqusMeshType = 0;
};
