#include "cmx/CZEBCMX_FILL_ADVANCED_HRSteady.h"

#include <string>

#include "engine/TableBuilder.hpp"
#include "engine/ValueText.hpp"

ZEB_DEFAULTED(CZEBCMX_FILL_ADVANCED_HRSteady)

ZEB_GETTERS(CZEBCMX_FILL_ADVANCED_HRSteady, dHRFlowRate, dHRConvergenceCriteria, iNHRGate, iHRGateType)
const double* CZEBCMX_FILL_ADVANCED_HRSteady::pHRGateBC() const { return m_pHRGateBC.get(); }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMX_FILL_ADVANCED_HRSteady>() {
  using T = CZEBCMX_FILL_ADVANCED_HRSteady;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(dHRFlowRate), .key = "ValueFlowRate", .doc = "Flow rate."},
      {ZEB_FIELD(dHRConvergenceCriteria), .key = "ValueConvergenceCriteria", .otherKey = "ValueFlowRateDiffRatio",
       .doc = "Convergence criterion: ratio of the flow rate difference."},
      {ZEB_FIELD(iNHRGate), .key = "ValueNoHRGate", .count = Count::kYes,
       .list = {.array = field<&T::m_pHRGateBC>(), .hasLines = false},
       .doc = "Number of hot runner gates, 0 to 1,000,000."},
      {.field = field<&T::m_iHRGateType, &T::iHRGateType>(), .key = "ValueHRGateType",
       // A line without a value leaves its gate as it is; the next line is the next gate's all the same.
       .list = {.array = field<&T::m_pHRGateBC>(), .count = field<&T::m_iNHRGate>(), .makesRoom = false},
       .known = "Type of the gates' boundary condition."},
      {ZEB_FIELD(pHRGateBC), .doc = "Values of the gates' boundary condition, one line each behind ValueHRGateType."},
  };
  // clang-format on
  static constexpr Section kSections[] = {taggedSection<"FILL_ADVANCED_HRSteady", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
