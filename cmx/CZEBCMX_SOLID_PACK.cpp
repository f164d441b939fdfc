#include "cmx/CZEBCMX_SOLID_PACK.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMX_SOLID_PACK)

ZEB_GETTERS(CZEBCMX_SOLID_PACK, iExtendPackCalculation, iExtendPackType, dExtendPackCrystal, dExtendPackNoCrystal)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMX_SOLID_PACK>() {
  using T = CZEBCMX_SOLID_PACK;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iExtendPackCalculation), .key = "FlagexPackingCalculation",
       .doc = "Switch: the packing calculation is extended."},
      {ZEB_FIELD(iExtendPackType), .key = "FlagexPackingType", .known = "Type of the extended packing calculation."},
      {ZEB_FIELD(dExtendPackCrystal), .key = "ValueexPackingCrystal",
       .known = "Value of the extended packing for crystalline materials."},
      {ZEB_FIELD(dExtendPackNoCrystal), .key = "ValueexPackingNoCrystal",
       .known = "Value of the extended packing for non-crystalline materials."},
  };
  // clang-format on
  static constexpr Section kSections[] = {taggedSection<"SOLID_PACK", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
