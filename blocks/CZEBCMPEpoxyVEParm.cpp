#include "blocks/CZEBCMPEpoxyVEParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPEpoxyVEParm)

ZEB_GETTERS(CZEBCMPEpoxyVEParm, iIsRIMVE, iRIMVEModel, dEpoxy_VE_G)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPEpoxyVEParm>() {
  using T = CZEBCMPEpoxyVEParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iIsRIMVE), .key = "FlagEpoxy_VE", .tabs = 2, .doc = "Switch: epoxy viscoelasticity."},
      {ZEB_FIELD(iRIMVEModel), .key = "VEModel", .tabs = 1, .known = "Viscoelastic model of the epoxy."},
      {ZEB_FIELD(dEpoxy_VE_G), .key = "Model_G", .lookup = Lookup::kInt, .tabs = 1,
       .doc = "Parameter G of the viscoelastic model; the file gives an integer."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"Epoxy_VE", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------EpoxyVE Parameters---------");
  return kTable;
}
