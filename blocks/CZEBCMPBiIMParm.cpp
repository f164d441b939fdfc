#include "blocks/CZEBCMPBiIMParm.h"

#include "engine/TableBuilder.hpp"

CZEBCMPBiIMParm::CZEBCMPBiIMParm() = default;
CZEBCMPBiIMParm::CZEBCMPBiIMParm(const CZEBCMPBiIMParm& other) = default;
CZEBCMPBiIMParm::~CZEBCMPBiIMParm() = default;
CZEBCMPBiIMParm& CZEBCMPBiIMParm::operator=(const CZEBCMPBiIMParm& other) = default;

int CZEBCMPBiIMParm::iBiIMABA() const { return m_iBiIMABA; }
int CZEBCMPBiIMParm::iCalculateVOFtoPack() const { return m_iCalculateVOFtoPack; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPBiIMParm>() {
  using T = CZEBCMPBiIMParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iBiIMABA, &T::iBiIMABA>(), .key = "IsABA",
       .label = "m_iBiIMABA\t\t\t\t\t= ", .doc = "Bi-injection ABA. Meaning defined by the solver."},
      {.field = field<&T::m_iCalculateVOFtoPack, &T::iCalculateVOFtoPack>(), .key = "CalculateVOFtoPack",
       .label = "m_iCalculateVOFtoPack\t\t= ",
       .doc = "Calculation of the volume fraction up to packing. Meaning defined by the solver."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"BiIM", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------BiIM Parameters---------");
  return kTable;
}
