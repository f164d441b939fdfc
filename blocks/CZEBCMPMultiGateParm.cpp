#include "blocks/CZEBCMPMultiGateParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPMultiGateParm)

ZEB_GETTERS(CZEBCMPMultiGateParm, iMultipleGateDebug, iMultipleGateMethod, iMultipleGateType, iMultipleGateByTimeStep,
            dMultipleGateByVolume, dMultipleGateByCtrlCRRatio, iMultiGateOuteriteration, dMultipleGateTolTargetQ,
            dMultipleGateSPAdjustCoeff, dMultipleGateTolInletQ, dMultipleGateSPVariationLimit, iNumberofInletGroups)
const double* CZEBCMPMultiGateParm::pdInletWeightings() const { return m_pdInletWeightings.get(); }

int CZEBCMPMultiGateParm::InletWeightings(double* out) const {
  if (m_iNumberofInletGroups < 1) return 1;
  if (out == nullptr) return -1;
  m_pdInletWeightings.copyEntries(out);
  return 1;
}

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPMultiGateParm>() {
  using T = CZEBCMPMultiGateParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iMultipleGateDebug), .key = "Debug", .tabs = 4, .known = "Debug output of the balancing."},
      {ZEB_FIELD(iMultipleGateMethod), .key = "MultipleGateMethod", .gateBelow = 1, .tabs = 4,
       .doc = "Method of the balancing; below 1 the section's other keys are ignored."},
      {ZEB_FIELD(iMultipleGateType), .key = "InitialType", .tabs = 4, .known = "Initial type of the balancing."},
      {ZEB_FIELD(iMultipleGateByTimeStep), .key = "ByTimeStep", .tabs = 3, .known = "Balancing by time step."},
      {ZEB_FIELD(dMultipleGateByVolume), .key = "ByVolume", .tabs = 3, .known = "Balancing by volume."},
      {ZEB_FIELD(dMultipleGateByCtrlCRRatio), .key = "ByCtrlCRRatio", .tabs = 2,
       .known = "Balancing by the control CR ratio."},
      {ZEB_FIELD(iMultiGateOuteriteration), .key = "OuterIteration", .tabs = 3, .doc = "Number of outer iterations."},
      {ZEB_FIELD(dMultipleGateTolTargetQ), .key = "TolTargetQ", .tabs = 3, .doc = "Tolerance of the target flow rate."},
      {ZEB_FIELD(dMultipleGateSPAdjustCoeff), .key = "SPAdjustRatio", .tabs = 2,
       .known = "Ratio by which SP is adjusted."},
      {ZEB_FIELD(dMultipleGateTolInletQ), .key = "TolInletQ", .tabs = 3, .doc = "Tolerance of the inlet flow rate."},
      {ZEB_FIELD(dMultipleGateSPVariationLimit), .key = "SPVariationLimit", .tabs = 1,
       .known = "Limit of the variation of SP."},
      {ZEB_FIELD(iNumberofInletGroups), .key = "NumberofInletGroups", .count = Count::kYes,
       .list = {.array = field<&T::m_pdInletWeightings>(), .lastIsRest = true, .entryName = "Weightings", 
                .missing = "The Number of Inlet Groups and the number of Weightings Groups is different\n"}, .tabs = 4,
       .doc = "Number of inlet groups (0 to 1000000); as many lines with their weights follow."},
      {ZEB_FIELD(pdInletWeightings), .tabs = 4,
       .doc = "Weights of the inlet groups, from 1; that of the last group is one minus the others."},
  };
  // clang-format on
  static constexpr Order<12> kReadingOrder{
      "MultipleGateMethod", "Debug",      "InitialType",   "ByTimeStep", "ByVolume",         "ByCtrlCRRatio",
      "OuterIteration",     "TolTargetQ", "SPAdjustRatio", "TolInletQ",  "SPVariationLimit", "NumberofInletGroups"};
  static constexpr Order<13> kDumpOrder{"m_iMultipleGateMethod",
                                        "m_iMultipleGateDebug",
                                        "m_iMultipleGateType",
                                        "m_iMultipleGateByTimeStep",
                                        "m_dMultipleGateByVolume",
                                        "m_dMultipleGateByCtrlCRRatio",
                                        "m_iMultiGateOuteriteration",
                                        "m_dMultipleGateTolTargetQ",
                                        "m_dMultipleGateSPAdjustCoeff",
                                        "m_dMultipleGateTolInletQ",
                                        "m_dMultipleGateSPVariationLimit",
                                        "m_iNumberofInletGroups",
                                        "m_pdInletWeightings"};
  static constexpr Section kSections[] = {keyedSection<"MultiGate", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable = blockTable<T, kSections, kDumpOrder>("\n---------MultiGate Parameters---------");
  return kTable;
}
