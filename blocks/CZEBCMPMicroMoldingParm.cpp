#include "blocks/CZEBCMPMicroMoldingParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPMicroMoldingParm)

ZEB_GETTERS(CZEBCMPMicroMoldingParm, iFlagMicroMolding, dRunnerHTC, dCavityHTC, dRunnerCeLowerBound,
            dCavityCeLowerBound, iIsCTGSTLRunner)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPMicroMoldingParm>() {
  using T = CZEBCMPMicroMoldingParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iFlagMicroMolding), .key = "FlagMicroMolding", .tabs = 1, .doc = "Switch: micro-molding."},
      {ZEB_FIELD(dRunnerHTC), .key = "RunnerHTC", .tabs = 3, .doc = "Heat transfer coefficient in the runner."},
      {ZEB_FIELD(dCavityHTC), .key = "CavityHTC", .tabs = 3, .doc = "Heat transfer coefficient in the cavity."},
      {ZEB_FIELD(dRunnerCeLowerBound), .key = "RunnerTimeStepSize", .tabs = 1,
       .known = "Time step size of the runner: lower bound of its Ce."},
      {ZEB_FIELD(dCavityCeLowerBound), .key = "CavityTimeStepSize", .tabs = 1,
       .known = "Time step size of the cavity: lower bound of its Ce."},
      {ZEB_FIELD(iIsCTGSTLRunner), .key = "IsCTGSTLRunner", .tabs = 2, .opaque = true},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"MicroMolding", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------MicroMolding Parameters---------");
  return kTable;
}
