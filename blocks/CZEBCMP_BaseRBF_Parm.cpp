#include "blocks/CZEBCMP_BaseRBF_Parm.h"

#include "blocks/RbfRows.hpp"
#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMP_BaseRBF_Parm)

int CZEBCMP_BaseRBF_Parm::Version() const { return m_iVersion; }
int CZEBCMP_BaseRBF_Parm::Span() const { return m_iSpan; }
int CZEBCMP_BaseRBF_Parm::ShapeNormalize() const { return m_nShapeNormalize; }
int CZEBCMP_BaseRBF_Parm::DebugMode() const { return m_iDebugMode; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMP_BaseRBF_Parm>() {
  using T = CZEBCMP_BaseRBF_Parm;
  // clang-format off
  static constexpr Row kRows[] = {
      rbfVersion(field<&T::m_iVersion, &T::Version>()),
      rbfSpan(field<&T::m_iSpan, &T::Span>()),
      {.field = field<&T::m_nShapeNormalize, &T::ShapeNormalize>(), .key = "Shape_Normalize", .tabs = 1,
       .known = "Shape normalization."},
      {.field = field<&T::m_iDebugMode, &T::DebugMode>(), .tabs = 2, .known = "Debug mode."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"BaseRBF", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------BaseRBF Parameters---------");
  return kTable;
}
