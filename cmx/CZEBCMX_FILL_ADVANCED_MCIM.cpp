#include "cmx/CZEBCMX_FILL_ADVANCED_MCIM.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMX_FILL_ADVANCED_MCIM)

ZEB_GETTERS(CZEBCMX_FILL_ADVANCED_MCIM, iEstimateBubble)
int CZEBCMX_FILL_ADVANCED_MCIM::Version() const { return m_iVersion; }
int CZEBCMX_FILL_ADVANCED_MCIM::GasType() const { return m_iGasType; }
int CZEBCMX_FILL_ADVANCED_MCIM::BubbleGrowthModel() const { return m_iBubbleGrowthModel; }
double CZEBCMX_FILL_ADVANCED_MCIM::PolymerMolecularWeight() const { return m_dPolymerMolecularWeight; }
double CZEBCMX_FILL_ADVANCED_MCIM::GasDiffusionCoefficient() const { return m_dGasDiffusionCoefficient; }
double CZEBCMX_FILL_ADVANCED_MCIM::GasSolubilityParameter() const { return m_dGasSolubilityParameter; }
double CZEBCMX_FILL_ADVANCED_MCIM::SurfaceTension() const { return m_dSurfaceTension; }
double CZEBCMX_FILL_ADVANCED_MCIM::CorrectionFactorf0() const { return m_dCorrectionFactorf0; }
double CZEBCMX_FILL_ADVANCED_MCIM::CorrectionFactorF() const { return m_dCorrectionFactorF; }
double CZEBCMX_FILL_ADVANCED_MCIM::ThresholdofBubbleFt() const { return m_dThresholdofBubbleFt; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMX_FILL_ADVANCED_MCIM>() {
  using T = CZEBCMX_FILL_ADVANCED_MCIM;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iEstimateBubble), .key = "FlagEstimateBubble", .doc = "Switch: bubble growth is calculated."},
      {.field = field<&T::m_iVersion, &T::Version>(), .key = "Version", .doc = "Version of the block."},
      {.field = field<&T::m_iGasType, &T::GasType>(), .key = "GasType", .known = "Type of the gas."},
      {.field = field<&T::m_iBubbleGrowthModel, &T::BubbleGrowthModel>(), .key = "BubbleGrowthModel",
       .known = "Model of the bubble growth."},
      {.field = field<&T::m_dPolymerMolecularWeight, &T::PolymerMolecularWeight>(), .key = "PolymerMolecularWeight",
       .doc = "Molecular weight of the polymer."},
      {.field = field<&T::m_dGasDiffusionCoefficient, &T::GasDiffusionCoefficient>(), .key = "GasDiffusionCoefficient",
       .doc = "Diffusion coefficient of the gas in the melt."},
      {.field = field<&T::m_dGasSolubilityParameter, &T::GasSolubilityParameter>(), .key = "GasSolubilityParameter",
       .doc = "Solubility of the gas in the melt."},
      {.field = field<&T::m_dSurfaceTension, &T::SurfaceTension>(), .key = "SurfaceTension",
       .doc = "Surface tension of the melt."},
      {.field = field<&T::m_dCorrectionFactorf0, &T::CorrectionFactorf0>(), .key = "CorrectionFactorf0",
       .known = "Correction factor f0."},
      {.field = field<&T::m_dCorrectionFactorF, &T::CorrectionFactorF>(), .key = "CorrectionFactorF",
       .known = "Correction factor F."},
      {.field = field<&T::m_dThresholdofBubbleFt, &T::ThresholdofBubbleFt>(), .key = "ThresholdofBubbleFt",
       .known = "Threshold Ft of the bubbles."},
  };
  // clang-format on
  static constexpr Section kSections[] = {taggedSection<"FILL_ADVANCED_MCIM", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
