#include "blocks/CZEBCMPFEMParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPFEMParm)

ZEB_GETTERS(CZEBCMPFEMParm, iIsFEM)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPFEMParm>() {
  using T = CZEBCMPFEMParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iIsFEM), .key = "IsFEM", .tabs = 4, .doc = "Switch: finite-element variant."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"FEM", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------FEM Parameters---------");
  return kTable;
}
