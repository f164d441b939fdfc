// Switches of the multi-algorithm finite-volume variant.
#pragma once

#include "engine/BlockAccess.h"

/// Switches of the multi-algorithm finite-volume variant, from the section [MAFVM]. Plain values; assignment copies
/// them.
class CZEBCMPMAFVMParm {
 public:
  CZEBCMPMAFVMParm();
  CZEBCMPMAFVMParm(const CZEBCMPMAFVMParm& other);
  ~CZEBCMPMAFVMParm();
  CZEBCMPMAFVMParm& operator=(const CZEBCMPMAFVMParm& other);

  int iIsMAFVM() const;
  int iIsMAFVM_Flow() const;
  int iIsMAFVM_Thermal() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPMAFVMParm>();

  int m_iIsMAFVM = 0;
  int m_iIsMAFVM_Flow = 0;
  int m_iIsMAFVM_Thermal = 0;
};
