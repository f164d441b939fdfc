// The keys, dump lines and meanings of the section [MuCell].
#include "blocks/CZEBCMPMuCellParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPMuCellParm)

int CZEBCMPMuCellParm::iIsViscoFacByFoaming() const { return m_iIsViscoFacByFoaming; }
int CZEBCMPMuCellParm::iViscoFoamMixingMethod() const { return m_iViscoFoamMixingMethod; }
int CZEBCMPMuCellParm::OutputBubbleNucleationAndGrowthRate() const { return m_iIsOutputBubbleNucleationAndGrowthRate; }
int CZEBCMPMuCellParm::iCpFoamMixingMethod() const { return m_iCpFoamMixingMethod; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPMuCellParm>() {
  using T = CZEBCMPMuCellParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iIsViscoFacByFoaming, &T::iIsViscoFacByFoaming>(), .key = "IsViscoFacByFoaming", .tabs = 1,
       .doc = "Switch: foaming changes the viscosity."},
      {.field = field<&T::m_iViscoFoamMixingMethod, &T::iViscoFoamMixingMethod>(), .key = "ViscoFoamMixingMethod",
       .tabs = 1, .doc = "Mixing method for the viscosity of the foam.", .opaque = true},
      {.field = field<&T::m_iIsOutputBubbleNucleationAndGrowthRate, &T::OutputBubbleNucleationAndGrowthRate>(),
       .key = "OutputBubbleNucleationAndGrowthRate", .tabs = 1,
       .doc = "Switch: output of the nucleation and growth rates of the bubbles."},
      {.field = field<&T::m_iCpFoamMixingMethod, &T::iCpFoamMixingMethod>(), .key = "CpFoamMixingMethod", .tabs = 1,
       .doc = "Mixing method for the specific heat of the foam.", .opaque = true},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"MuCell", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------MuCell Parameters---------");
  return kTable;
}
