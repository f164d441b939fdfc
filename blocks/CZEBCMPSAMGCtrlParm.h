// Controls of the SAMG linear solver.
#pragma once

#include "engine/BlockAccess.h"

/// Controls of the SAMG linear solver, from the section [SAMGParaCtrl]. Plain values; assignment copies them.
/// n_levelx has no default of its own: it is 0 until the file sets it, and the dump never shows it.
class CZEBCMPSAMGCtrlParm {
 public:
  CZEBCMPSAMGCtrlParm();
  CZEBCMPSAMGCtrlParm(const CZEBCMPSAMGCtrlParm& other);
  ~CZEBCMPSAMGCtrlParm();
  CZEBCMPSAMGCtrlParm& operator=(const CZEBCMPSAMGCtrlParm& other);

  int DebugMode() const;
  int n_Default() const;
  int n_nrd() const;
  int n_levelx() const;
  int n_nru() const;
  int n_RES_SCRATCH() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMPSAMGCtrlParm>();

  int m_iDebugMode = 0;
  int m_n_Default = 17;
  int m_n_nrd = 12;
  int m_n_levelx = 0;
  int m_n_nru = -12;
  int m_n_RES_SCRATCH = 100;
};
