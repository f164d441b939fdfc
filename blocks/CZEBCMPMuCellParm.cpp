// The keys, dump lines and meanings of the section [MuCell].
#include "blocks/CZEBCMPMuCellParm.h"

#include "engine/TableBuilder.hpp"

CZEBCMPMuCellParm::CZEBCMPMuCellParm() = default;
CZEBCMPMuCellParm::CZEBCMPMuCellParm(const CZEBCMPMuCellParm& other) = default;
CZEBCMPMuCellParm::~CZEBCMPMuCellParm() = default;
CZEBCMPMuCellParm& CZEBCMPMuCellParm::operator=(const CZEBCMPMuCellParm& other) = default;

int CZEBCMPMuCellParm::iIsViscoFacByFoaming() const { return m_iIsViscoFacByFoaming; }
int CZEBCMPMuCellParm::iViscoFoamMixingMethod() const { return m_iViscoFoamMixingMethod; }
int CZEBCMPMuCellParm::OutputBubbleNucleationAndGrowthRate() const { return m_iIsOutputBubbleNucleationAndGrowthRate; }
int CZEBCMPMuCellParm::iCpFoamMixingMethod() const { return m_iCpFoamMixingMethod; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPMuCellParm>() {
  using T = CZEBCMPMuCellParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iIsViscoFacByFoaming, &T::iIsViscoFacByFoaming>(),
       .key = "IsViscoFacByFoaming", .label = "m_iIsViscoFacByFoaming\t= ",
       .doc = "Switch: foaming changes the viscosity."},
      {.field = field<&T::m_iViscoFoamMixingMethod, &T::iViscoFoamMixingMethod>(),
       .key = "ViscoFoamMixingMethod", .label = "m_iViscoFoamMixingMethod\t= ",
       .doc = "Mixing method for the viscosity of the foam. Meaning defined by the solver."},
      {.field = field<&T::m_iIsOutputBubbleNucleationAndGrowthRate, &T::OutputBubbleNucleationAndGrowthRate>(),
       .key = "OutputBubbleNucleationAndGrowthRate", .label = "m_iIsOutputBubbleNucleationAndGrowthRate\t= ",
       .doc = "Switch: output of the nucleation and growth rates of the bubbles."},
      {.field = field<&T::m_iCpFoamMixingMethod, &T::iCpFoamMixingMethod>(),
       .key = "CpFoamMixingMethod", .label = "m_iCpFoamMixingMethod\t= ",
       .doc = "Mixing method for the specific heat of the foam. Meaning defined by the solver."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"MuCell", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------MuCell Parameters---------");
  return kTable;
}
