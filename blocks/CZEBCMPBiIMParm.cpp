#include "blocks/CZEBCMPBiIMParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPBiIMParm)

ZEB_GETTERS(CZEBCMPBiIMParm, iBiIMABA, iCalculateVOFtoPack)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPBiIMParm>() {
  using T = CZEBCMPBiIMParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iBiIMABA), .key = "IsABA", .tabs = 5, .known = "Bi-injection ABA."},
      {ZEB_FIELD(iCalculateVOFtoPack), .key = "CalculateVOFtoPack", .tabs = 2,
       .known = "Calculation of the volume fraction up to packing."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"BiIM", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------BiIM Parameters---------");
  return kTable;
}
