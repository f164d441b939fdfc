#include "cmx/CZEBCMX_SOLID_PACK.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMX_SOLID_PACK)

int CZEBCMX_SOLID_PACK::iExtendPackCalculation() const { return m_iExtendPackCalculation; }
int CZEBCMX_SOLID_PACK::iExtendPackType() const { return m_iExtendPackType; }
double CZEBCMX_SOLID_PACK::dExtendPackCrystal() const { return m_dExtendPackCrystal; }
double CZEBCMX_SOLID_PACK::dExtendPackNoCrystal() const { return m_dExtendPackNoCrystal; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMX_SOLID_PACK>() {
  using T = CZEBCMX_SOLID_PACK;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iExtendPackCalculation, &T::iExtendPackCalculation>(), .key = "FlagexPackingCalculation",
       .doc = "Switch: the packing calculation is extended."},
      {.field = field<&T::m_iExtendPackType, &T::iExtendPackType>(), .key = "FlagexPackingType",
       .doc = "Type of the extended packing calculation.", .opaque = true},
      {.field = field<&T::m_dExtendPackCrystal, &T::dExtendPackCrystal>(), .key = "ValueexPackingCrystal",
       .doc = "Value of the extended packing for crystalline materials.", .opaque = true},
      {.field = field<&T::m_dExtendPackNoCrystal, &T::dExtendPackNoCrystal>(), .key = "ValueexPackingNoCrystal",
       .doc = "Value of the extended packing for non-crystalline materials.", .opaque = true},
  };
  // clang-format on
  static constexpr Section kSections[] = {taggedSection<"SOLID_PACK", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
