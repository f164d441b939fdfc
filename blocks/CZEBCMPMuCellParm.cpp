// The keys, dump lines and meanings of the section [MuCell].
#include "blocks/CZEBCMPMuCellParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPMuCellParm)

ZEB_GETTERS(CZEBCMPMuCellParm, iIsViscoFacByFoaming, iViscoFoamMixingMethod)
int CZEBCMPMuCellParm::OutputBubbleNucleationAndGrowthRate() const { return m_iIsOutputBubbleNucleationAndGrowthRate; }
ZEB_GETTERS(CZEBCMPMuCellParm, iCpFoamMixingMethod)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPMuCellParm>() {
  using T = CZEBCMPMuCellParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iIsViscoFacByFoaming), .key = "IsViscoFacByFoaming", .tabs = 1,
       .doc = "Switch: foaming changes the viscosity."},
      {ZEB_FIELD(iViscoFoamMixingMethod), .key = "ViscoFoamMixingMethod", .tabs = 1,
       .known = "Mixing method for the viscosity of the foam."},
      {.field = field<&T::m_iIsOutputBubbleNucleationAndGrowthRate, &T::OutputBubbleNucleationAndGrowthRate>(),
       .key = "OutputBubbleNucleationAndGrowthRate", .tabs = 1,
       .doc = "Switch: output of the nucleation and growth rates of the bubbles."},
      {ZEB_FIELD(iCpFoamMixingMethod), .key = "CpFoamMixingMethod", .tabs = 1,
       .known = "Mixing method for the specific heat of the foam."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"MuCell", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------MuCell Parameters---------");
  return kTable;
}
