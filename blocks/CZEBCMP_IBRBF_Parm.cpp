#include "blocks/CZEBCMP_IBRBF_Parm.h"

#include "blocks/RbfRows.hpp"
#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMP_IBRBF_Parm)

int CZEBCMP_IBRBF_Parm::Version() const { return m_iVersion; }
int CZEBCMP_IBRBF_Parm::Span() const { return m_iSpan; }
int CZEBCMP_IBRBF_Parm::SearchMethod() const { return m_iSearch_method; }
double CZEBCMP_IBRBF_Parm::SearchDistance() const { return m_dSearch_distance; }
int CZEBCMP_IBRBF_Parm::SearchNumber() const { return m_iSearch_number; }
int CZEBCMP_IBRBF_Parm::DebugMode() const { return m_iDebugMode; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMP_IBRBF_Parm>() {
  using T = CZEBCMP_IBRBF_Parm;
  static constexpr auto kRows = rbfSearchRows(
      field<&T::m_iVersion, &T::Version>(), field<&T::m_iSpan, &T::Span>(),
      field<&T::m_iSearch_method, &T::SearchMethod>(), field<&T::m_dSearch_distance, &T::SearchDistance>(),
      field<&T::m_iSearch_number, &T::SearchNumber>(), field<&T::m_iDebugMode, &T::DebugMode>());
  static constexpr Section kSections[] = {keyedSection<"IBRBF", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------IBRBF Parameters---------");
  return kTable;
}
