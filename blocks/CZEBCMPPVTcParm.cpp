#include "blocks/CZEBCMPPVTcParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPPVTcParm)

ZEB_GETTERS(CZEBCMPPVTcParm, iIsPVTc, dPVTc_a0, dPVTc_a1, dPVTc_a2, dPVTc_b0, dPVTc_b1, dPVTc_b2, dPVTc_c0, dPVTc_c1,
            dPVTc_c2, dPVTc_d0, dPVTc_d1, dPVTc_d2)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPPVTcParm>() {
  using T = CZEBCMPPVTcParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iIsPVTc), .key = "iSPVTc", .tabs = 2, .doc = "Switch: cure-dependent PVT model."},
      {ZEB_FIELD(dPVTc_a0), .key = "a0", .tabs = 2, .doc = "Coefficient a0 of the cure-dependent PVT model."},
      {ZEB_FIELD(dPVTc_a1), .key = "a1", .tabs = 2, .doc = "Coefficient a1 of the cure-dependent PVT model."},
      {ZEB_FIELD(dPVTc_a2), .key = "a2", .tabs = 2, .doc = "Coefficient a2 of the cure-dependent PVT model."},
      {ZEB_FIELD(dPVTc_b0), .key = "b0", .tabs = 2, .doc = "Coefficient b0 of the cure-dependent PVT model."},
      {ZEB_FIELD(dPVTc_b1), .key = "b1", .tabs = 2, .doc = "Coefficient b1 of the cure-dependent PVT model."},
      {ZEB_FIELD(dPVTc_b2), .key = "b2", .tabs = 2, .doc = "Coefficient b2 of the cure-dependent PVT model."},
      {ZEB_FIELD(dPVTc_c0), .key = "c0", .tabs = 2, .doc = "Coefficient c0 of the cure-dependent PVT model."},
      {ZEB_FIELD(dPVTc_c1), .key = "c1", .tabs = 2, .doc = "Coefficient c1 of the cure-dependent PVT model."},
      {ZEB_FIELD(dPVTc_c2), .key = "c2", .tabs = 2, .doc = "Coefficient c2 of the cure-dependent PVT model."},
      {ZEB_FIELD(dPVTc_d0), .key = "d0", .tabs = 2, .doc = "Coefficient d0 of the cure-dependent PVT model."},
      {ZEB_FIELD(dPVTc_d1), .key = "d1", .tabs = 2, .doc = "Coefficient d1 of the cure-dependent PVT model."},
      {ZEB_FIELD(dPVTc_d2), .key = "d2", .tabs = 2, .doc = "Coefficient d2 of the cure-dependent PVT model."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"PVTc", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------PVTc Parameters---------");
  return kTable;
}
