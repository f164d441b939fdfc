#include "blocks/CZEBCMPMAFVMParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPMAFVMParm)

ZEB_GETTERS(CZEBCMPMAFVMParm, iIsMAFVM, iIsMAFVM_Flow, iIsMAFVM_Thermal)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPMAFVMParm>() {
  using T = CZEBCMPMAFVMParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iIsMAFVM), .key = "IsMAFVM", .tabs = 4, .doc = "Switch: multi-algorithm finite-volume variant."},
      {ZEB_FIELD(iIsMAFVM_Flow), .key = "IsFlow", .tabs = 2,
       .doc = "Switch: multi-algorithm finite-volume variant of the flow."},
      {ZEB_FIELD(iIsMAFVM_Thermal), .key = "IsThermal", .tabs = 2,
       .doc = "Switch: multi-algorithm finite-volume variant of the thermal part."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"MAFVM", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------MAFVM Parameters---------");
  return kTable;
}
