#include "blocks/CZEBCMPMicroMoldingParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPMicroMoldingParm)

int CZEBCMPMicroMoldingParm::iFlagMicroMolding() const { return m_iFlagMicroMolding; }
double CZEBCMPMicroMoldingParm::dRunnerHTC() const { return m_dRunnerHTC; }
double CZEBCMPMicroMoldingParm::dCavityHTC() const { return m_dCavityHTC; }
double CZEBCMPMicroMoldingParm::dRunnerCeLowerBound() const { return m_dRunnerCeLowerBound; }
double CZEBCMPMicroMoldingParm::dCavityCeLowerBound() const { return m_dCavityCeLowerBound; }
int CZEBCMPMicroMoldingParm::iIsCTGSTLRunner() const { return m_iIsCTGSTLRunner; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPMicroMoldingParm>() {
  using T = CZEBCMPMicroMoldingParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iFlagMicroMolding, &T::iFlagMicroMolding>(), .key = "FlagMicroMolding", .tabs = 1,
       .doc = "Switch: micro-molding."},
      {.field = field<&T::m_dRunnerHTC, &T::dRunnerHTC>(), .key = "RunnerHTC", .tabs = 3,
       .doc = "Heat transfer coefficient in the runner."},
      {.field = field<&T::m_dCavityHTC, &T::dCavityHTC>(), .key = "CavityHTC", .tabs = 3,
       .doc = "Heat transfer coefficient in the cavity."},
      {.field = field<&T::m_dRunnerCeLowerBound, &T::dRunnerCeLowerBound>(), .key = "RunnerTimeStepSize", .tabs = 1,
       .doc = "Time step size of the runner: lower bound of its Ce.", .opaque = true},
      {.field = field<&T::m_dCavityCeLowerBound, &T::dCavityCeLowerBound>(), .key = "CavityTimeStepSize", .tabs = 1,
       .doc = "Time step size of the cavity: lower bound of its Ce.", .opaque = true},
      {.field = field<&T::m_iIsCTGSTLRunner, &T::iIsCTGSTLRunner>(), .key = "IsCTGSTLRunner", .tabs = 2,
       .opaque = true},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"MicroMolding", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------MicroMolding Parameters---------");
  return kTable;
}
