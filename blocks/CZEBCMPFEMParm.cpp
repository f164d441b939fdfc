#include "blocks/CZEBCMPFEMParm.h"

#include "engine/TableBuilder.hpp"

CZEBCMPFEMParm::CZEBCMPFEMParm() = default;
CZEBCMPFEMParm::CZEBCMPFEMParm(const CZEBCMPFEMParm& other) = default;
CZEBCMPFEMParm::~CZEBCMPFEMParm() = default;
CZEBCMPFEMParm& CZEBCMPFEMParm::operator=(const CZEBCMPFEMParm& other) = default;

int CZEBCMPFEMParm::iIsFEM() const { return m_iIsFEM; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPFEMParm>() {
  using T = CZEBCMPFEMParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iIsFEM, &T::iIsFEM>(), .key = "IsFEM", .label = "m_iIsFEM\t\t\t\t= ",
       .doc = "Switch: finite-element variant."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"FEM", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------FEM Parameters---------");
  return kTable;
}
