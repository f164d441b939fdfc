#include "blocks/CZEBCMPMicroMoldingParm.h"

#include "engine/TableBuilder.hpp"

CZEBCMPMicroMoldingParm::CZEBCMPMicroMoldingParm() = default;
CZEBCMPMicroMoldingParm::CZEBCMPMicroMoldingParm(const CZEBCMPMicroMoldingParm& other) = default;
CZEBCMPMicroMoldingParm::~CZEBCMPMicroMoldingParm() = default;
CZEBCMPMicroMoldingParm& CZEBCMPMicroMoldingParm::operator=(const CZEBCMPMicroMoldingParm& other) = default;

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
      {.field = field<&T::m_iFlagMicroMolding, &T::iFlagMicroMolding>(), .key = "FlagMicroMolding",
       .label = "m_iFlagMicroMolding\t= ", .doc = "Switch: micro-molding."},
      {.field = field<&T::m_dRunnerHTC, &T::dRunnerHTC>(), .key = "RunnerHTC",
       .label = "m_dRunnerHTC\t\t\t= ", .doc = "Heat transfer coefficient in the runner."},
      {.field = field<&T::m_dCavityHTC, &T::dCavityHTC>(), .key = "CavityHTC",
       .label = "m_dCavityHTC\t\t\t= ", .doc = "Heat transfer coefficient in the cavity."},
      {.field = field<&T::m_dRunnerCeLowerBound, &T::dRunnerCeLowerBound>(), .key = "RunnerTimeStepSize",
       .label = "m_dRunnerCeLowerBound\t= ",
       .doc = "Time step size of the runner: lower bound of its Ce. Meaning defined by the solver."},
      {.field = field<&T::m_dCavityCeLowerBound, &T::dCavityCeLowerBound>(), .key = "CavityTimeStepSize",
       .label = "m_dCavityCeLowerBound\t= ",
       .doc = "Time step size of the cavity: lower bound of its Ce. Meaning defined by the solver."},
      {.field = field<&T::m_iIsCTGSTLRunner, &T::iIsCTGSTLRunner>(), .key = "IsCTGSTLRunner",
       .label = "m_iIsCTGSTLRunner\t\t= ", .doc = "Meaning defined by the solver."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"MicroMolding", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------MicroMolding Parameters---------");
  return kTable;
}
