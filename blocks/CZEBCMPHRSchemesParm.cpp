#include "blocks/CZEBCMPHRSchemesParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPHRSchemesParm)

ZEB_GETTERS(CZEBCMPHRSchemesParm, iHRMethod, dHRKr, iHRDtMethod, iHRPhaseField, dHRCompressiveC, dHRRatio, iHRSkewness,
            dFCRI, iNSmoothVolF)

void CZEBCMPHRSchemesParm::SetHRMethod(int value) { m_iHRMethod = value; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPHRSchemesParm>() {
  using T = CZEBCMPHRSchemesParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iHRMethod), .key = "HRMethod", .tabs = 2, .known = "HR scheme."},
      {ZEB_FIELD(dHRKr), .key = "HRKr", .tabs = 3, .known = "Kr of the HR scheme."},
      {ZEB_FIELD(iHRDtMethod), .key = "HRDtMethod", .label = "m_iHRDtMethod \t\t= ",
       .known = "Time-step method of the HR scheme."},
      {ZEB_FIELD(iHRPhaseField), .key = "HRPhaseField", .label = "m_iHRPhaseField \t= ",
       .known = "Phase-field option of the HR scheme."},
      {ZEB_FIELD(dHRCompressiveC), .key = "HRCompC", .label = "m_dHRCompressiveC \t= ",
       .doc = "Compressive coefficient C of the HR scheme."},
      {ZEB_FIELD(dHRRatio), .key = "HRRatio", .tabs = 3, .known = "Ratio of the HR scheme."},
      {ZEB_FIELD(iHRSkewness), .key = "HRSkewness", .tabs = 2, .known = "Skewness option of the HR scheme."},
      {ZEB_FIELD(dFCRI), .key = "FCRI", .label = "m_dFCRI \t\t\t= ", .opaque = true},
      {ZEB_FIELD(iNSmoothVolF), .key = "NSmoothVolF", .label = "m_iNSmoothVolF \t= ",
       .doc = "Number of smoothings of the volume fraction."},
  };
  static constexpr Order<9> kReadingOrder{
      "HRMethod", "HRKr", "FCRI", "HRDtMethod", "HRPhaseField", "HRCompC", "HRRatio", "HRSkewness", "NSmoothVolF"};
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"HRSchemes", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------HRSchemes Parameters---------");
  return kTable;
}
