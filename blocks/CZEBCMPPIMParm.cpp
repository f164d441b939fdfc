#include "blocks/CZEBCMPPIMParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPPIMParm)

int CZEBCMPPIMParm::Version() const { return m_iVersion; }
int CZEBCMPPIMParm::ConcentrationEffectOnFlow() const { return m_iConcentrationEffectOnFlow; }
int CZEBCMPPIMParm::UsingRelativeVisCosityToConcentration() const { return m_iUsingRelativeVisCosityToConcentration; }
double CZEBCMPPIMParm::SolverTolerance() const { return m_dSolverTolerance; }
double CZEBCMPPIMParm::IterationTolerance() const { return m_dIterationTolerance; }
int CZEBCMPPIMParm::SolverType() const { return m_iSolverType; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPPIMParm>() {
  using T = CZEBCMPPIMParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iVersion, &T::Version>(), .tabs = 3, .doc = "Version of the settings; fixed."},
      {.field = field<&T::m_iConcentrationEffectOnFlow, &T::ConcentrationEffectOnFlow>(),
       .key = "ConcentrationEffectOnFlow", .label = "m_iConcentrationEffectOnFlow = ",
       .known = "Effect of the powder concentration on the flow."},
      {.field = field<&T::m_iUsingRelativeVisCosityToConcentration, &T::UsingRelativeVisCosityToConcentration>(),
       .key = "UsingRelativeVisCosityToConcentration", .label = "m_iUsingRelativeVisCosityToConcentration = ",
       .known = "Use of the viscosity relative to the concentration."},
      {.field = field<&T::m_dSolverTolerance, &T::SolverTolerance>(), .key = "SolverTolerance",
       .label = "m_dSolverTolerance = ", .doc = "Tolerance of the solver."},
      {.field = field<&T::m_dIterationTolerance, &T::IterationTolerance>(), .key = "IterationTolerance",
       .label = "m_dIterationTolerance = ", .doc = "Tolerance of the iteration."},
      {.field = field<&T::m_iSolverType, &T::SolverType>(), .key = "SolverType", .label = "m_iSolverType = ",
       .known = "Type of the solver."},
  };
  // clang-format on
  static constexpr Order<5> kReadingOrder{"ConcentrationEffectOnFlow", "UsingRelativeVisCosityToConcentration",
                                          "SolverType", "SolverTolerance", "IterationTolerance"};
  static constexpr Section kSections[] = {keyedSection<"PIM", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------PIM Parameters---------");
  return kTable;
}
