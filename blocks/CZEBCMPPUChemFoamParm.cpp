#include "blocks/CZEBCMPPUChemFoamParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPPUChemFoamParm)

ZEB_GETTERS(CZEBCMPPUChemFoamParm, iIsPUChemFoam, dPUConcentration_polyol, dPUConcentration_isocyanate,
            dPUConcentration_water, dPUReactionHeat_gelling, dPUReactionHeat_blowing, dPUA_gelling, dPUEa_gelling,
            dPUA_blowing, dPUEa_blowing, dPUDelayTime, dPUCompressibleFactor, iPUKineticModel, dPUVis_Gas_ParmN,
            dPUExpansionRatio, dKineticParasbyMacro)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPPUChemFoamParm>() {
  using T = CZEBCMPPUChemFoamParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iIsPUChemFoam), .key = "IsPUChemFoam", .tabs = 4,
       .doc = "Switch: chemically blown polyurethane foam."},
      {ZEB_FIELD(dPUConcentration_polyol), .key = "Concentration_polyol", .tabs = 2,
       .doc = "Concentration of the polyol."},
      {ZEB_FIELD(dPUConcentration_isocyanate), .key = "Concentration_isocyanate", .tabs = 1,
       .doc = "Concentration of the isocyanate."},
      {ZEB_FIELD(dPUConcentration_water), .key = "Concentration_water", .tabs = 2,
       .doc = "Concentration of the water."},
      {ZEB_FIELD(dPUReactionHeat_gelling), .key = "ReactionHeat_gelling", .tabs = 2,
       .doc = "Reaction heat of the gelling."},
      {ZEB_FIELD(dPUReactionHeat_blowing), .key = "ReactionHeat_blowing", .tabs = 2,
       .doc = "Reaction heat of the blowing."},
      {ZEB_FIELD(dPUA_gelling), .key = "A_gelling", .tabs = 5, .doc = "Coefficient A of the gelling kinetics."},
      {ZEB_FIELD(dPUEa_gelling), .key = "Ea_gelling", .tabs = 4, .doc = "Coefficient Ea of the gelling kinetics."},
      {ZEB_FIELD(dPUA_blowing), .key = "A_blowing", .tabs = 5, .doc = "Coefficient A of the blowing kinetics."},
      {ZEB_FIELD(dPUEa_blowing), .key = "Ea_blowing", .tabs = 4, .doc = "Coefficient Ea of the blowing kinetics."},
      {ZEB_FIELD(dPUDelayTime), .key = "DelayTime", .tabs = 5, .doc = "Delay time."},
      {ZEB_FIELD(dPUCompressibleFactor), .key = "CompressibleFactor", .tabs = 2,
       .doc = "Factor of the compressibility."},
      {ZEB_FIELD(iPUKineticModel), .key = "KineticModel", .tabs = 4, .known = "Kinetic model."},
      {ZEB_FIELD(dPUVis_Gas_ParmN), .key = "Vis_Gas_ParmN", .label = "m_dPUVis_Gas_ParmN\t\t        = ",
       .known = "Parameter N of the viscosity with gas."},
      {ZEB_FIELD(dPUExpansionRatio), .key = "ExpansionRatio", .label = "m_dPUExpansionRatio\t\t        = ",
       .doc = "Expansion ratio."},
      {ZEB_FIELD(dKineticParasbyMacro), .key = "KineticParasbyMacro", .lookup = Lookup::kInt,
       .label = "m_dKineticParasbyMacro\t\t        = ",
       .known = "Kinetic parameters by macro; a fraction in the file is cut off."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"PUChemFoam", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------PUChemFoam Parameters---------");
  return kTable;
}
