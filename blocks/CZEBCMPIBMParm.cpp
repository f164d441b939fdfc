#include "blocks/CZEBCMPIBMParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPIBMParm)

ZEB_GETTERS(CZEBCMPIBMParm, iIsIBM)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPIBMParm>() {
  using T = CZEBCMPIBMParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iIsIBM), .key = "IsIBM", .tabs = 2, .doc = "Switch: immersed-boundary variant."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"IBM", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------IBM Parameters---------");
  return kTable;
}
