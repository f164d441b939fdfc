// Radial-basis-function interpolation of the immersed boundary.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the radial-basis-function (RBF) interpolation "IBRBF", from the section [IBRBF]. Plain values;
/// assignment copies them.
class CZEBCMP_IBRBF_Parm {
 public:
  CZEBCMP_IBRBF_Parm();
  CZEBCMP_IBRBF_Parm(const CZEBCMP_IBRBF_Parm& other);
  ~CZEBCMP_IBRBF_Parm();
  CZEBCMP_IBRBF_Parm& operator=(const CZEBCMP_IBRBF_Parm& other);

  int Version() const;
  int Span() const;
  int SearchMethod() const;
  double SearchDistance() const;
  int SearchNumber() const;
  int DebugMode() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMP_IBRBF_Parm>();

  int m_iVersion = 1002;
  int m_iSpan = 500;
  int m_iSearch_method = 3;
  double m_dSearch_distance = -1.0;
  int m_iSearch_number = 20;
  int m_iDebugMode = 0;
};
