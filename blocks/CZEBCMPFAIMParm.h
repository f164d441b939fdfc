// Fluid-assisted injection and co-injection.
#pragma once

#include "engine/BlockAccess.h"
#include "engine/SharedArray.h"

/// Fluid-assisted injection and co-injection, from the section [FAIM].
///
/// The fluid-, gas- and water-assisted molding types change factors after reading. The key of the overflow gate data
/// ends in a blank: it counts only where a blank follows the word. Copies and assignment share the material's name.
class CZEBCMPFAIMParm {
 public:
  CZEBCMPFAIMParm();
  CZEBCMPFAIMParm(const CZEBCMPFAIMParm& other);
  ~CZEBCMPFAIMParm();
  CZEBCMPFAIMParm& operator=(const CZEBCMPFAIMParm& other);

  double dFluidFCRI() const;
  double dMeltFCRI() const;
  double dFluidVisFactor() const;
  double dFluidRealxFactor() const;
  double dSecondFactor() const;
  int iSecondModel() const;
  int iIsCoIM() const;
  int iIsCoIMGNF() const;
  /// Null until a file names it. Valid until the block is destroyed, also after the section was read again; not owned
  /// by the caller.
  const char* CoMatName() const;
  int iIsCoIM121() const;
  double dMeltReEnterTime() const;
  int iIsBiIM() const;
  int iFAIM123() const;
  int iFAIMPushBack() const;
  int iShowOverflowGateData() const;
  double dFluidEnterTime() const;
  double dPushBackTime() const;
  double dPushBackCloseTime() const;
  double dFrozenRatio() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPFAIMParm>();
  friend struct zeb::Repairs;

  double m_dFluidFCRI = 0.7;
  double m_dMeltFCRI = 0.9;
  double m_dFluidVisFactor = 20.0;
  double m_dFluidRealxFactor = 1.0;
  double m_dSecondFactor = 1.0;
  int m_iSecondModel = 0;
  int m_iIsCoIM = 0;
  int m_iIsCoIMGNF = 1;
  zeb::OwnedText m_szCoMatName;
  int m_iIsCoIM121 = 0;
  double m_dMeltReEnterTime = 0.0;
  int m_iIsBiIM = 0;
  int m_iFAIM123 = 0;
  int m_iFAIMPushBack = 0;
  int m_iShowOverflowGateData = 0;
  double m_dFluidEnterTime = 0.0;
  double m_dPushBackTime = 0.0;
  double m_dPushBackCloseTime = -1.0;
  double m_dFrozenRatio = 0.9;
};
