// Radial-basis-function interpolation of the faces.
#pragma once

#include "engine/BlockAccess.h"

/// Settings of the radial-basis-function (RBF) interpolation "FaceRBF", from the section [FaceRBF]. Plain values;
/// assignment copies them.
class CZEBCMP_FaceRBF_Parm {
 public:
  CZEBCMP_FaceRBF_Parm();
  CZEBCMP_FaceRBF_Parm(const CZEBCMP_FaceRBF_Parm& other);
  ~CZEBCMP_FaceRBF_Parm();
  CZEBCMP_FaceRBF_Parm& operator=(const CZEBCMP_FaceRBF_Parm& other);

  int Version() const;
  int Span() const;
  int SearchMethod() const;
  double SearchDistance() const;
  int SearchNumber() const;
  int DebugMode() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCMP_FaceRBF_Parm>();

  int m_iVersion = 1004;
  int m_iSpan = 1000;
  int m_iSearch_method = 4;
  double m_dSearch_distance = -1.0;
  int m_iSearch_number = 20;
  int m_iDebugMode = 0;
};
