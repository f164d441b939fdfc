#include "blocks/CZEBCMP_FaceRBF_Parm.h"

#include "blocks/RbfRows.hpp"
#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMP_FaceRBF_Parm)

int CZEBCMP_FaceRBF_Parm::Version() const { return m_iVersion; }
int CZEBCMP_FaceRBF_Parm::Span() const { return m_iSpan; }
int CZEBCMP_FaceRBF_Parm::SearchMethod() const { return m_iSearch_method; }
double CZEBCMP_FaceRBF_Parm::SearchDistance() const { return m_dSearch_distance; }
int CZEBCMP_FaceRBF_Parm::SearchNumber() const { return m_iSearch_number; }
int CZEBCMP_FaceRBF_Parm::DebugMode() const { return m_iDebugMode; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMP_FaceRBF_Parm>() {
  using T = CZEBCMP_FaceRBF_Parm;
  static constexpr auto kRows = rbfSearchRows(
      field<&T::m_iVersion, &T::Version>(), field<&T::m_iSpan, &T::Span>(),
      field<&T::m_iSearch_method, &T::SearchMethod>(), field<&T::m_dSearch_distance, &T::SearchDistance>(),
      field<&T::m_iSearch_number, &T::SearchNumber>(), field<&T::m_iDebugMode, &T::DebugMode>());
  static constexpr Section kSections[] = {keyedSection<"FaceRBF", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------FaceRBF Parameters---------");
  return kTable;
}
