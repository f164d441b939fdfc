// Radial-basis-function interpolation, base settings.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the radial-basis-function (RBF) interpolation "BaseRBF", from the section [BaseRBF]. Plain values;
/// assignment copies them. Its DebugMode has no key and stays 0.
class CZEBCMP_BaseRBF_Parm {
 public:
  CZEBCMP_BaseRBF_Parm();
  CZEBCMP_BaseRBF_Parm(const CZEBCMP_BaseRBF_Parm& other);
  ~CZEBCMP_BaseRBF_Parm();
  CZEBCMP_BaseRBF_Parm& operator=(const CZEBCMP_BaseRBF_Parm& other);

  int Version() const;
  int Span() const;
  int ShapeNormalize() const;
  int DebugMode() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMP_BaseRBF_Parm>();

  int m_iVersion = 1001;
  int m_iSpan = 500;
  int m_nShapeNormalize = 0;
  int m_iDebugMode = 0;
};
