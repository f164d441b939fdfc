#include "blocks/CZEBCMPStableFlagParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPStableFlagParm)

ZEB_GETTERS(CZEBCMPStableFlagParm, nSmooth_dP, nPJMSmooth_dP, iGradType, iRead_f2f, iIterNum_MeltFrontTemperature)

void CZEBCMPStableFlagParm::SetnSmooth_dP(int value) { m_nSmooth_dP = value; }
void CZEBCMPStableFlagParm::SetnPJMSmooth_dP(int value) { m_nPJMSmooth_dP = value; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPStableFlagParm>() {
  using T = CZEBCMPStableFlagParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(nSmooth_dP), .key = "nSmooth_dP", .tabs = 6, .doc = "Number of smoothings of dP."},
      {ZEB_FIELD(nPJMSmooth_dP), .key = "nPJMSmooth_dP", .tabs = 5, .doc = "Number of PJM smoothings of dP."},
      {ZEB_FIELD(iGradType), .key = "iGradType", .tabs = 6, .known = "Gradient type."},
      {ZEB_FIELD(iRead_f2f), .key = "Read_f2f", .tabs = 6, .known = "Flag for reading f2f."},
      {ZEB_FIELD(iIterNum_MeltFrontTemperature), .key = "IterNum_MeltFrontTemperature", .tabs = 1,
       .doc = "Number of iterations of the melt-front temperature."},
  };
  static constexpr Order<5> kReadingOrder{
      "nSmooth_dP", "nPJMSmooth_dP", "Read_f2f", "IterNum_MeltFrontTemperature", "iGradType"};
  static constexpr Order<5> kDumpOrder{
      "m_nSmooth_dP", "m_nPJMSmooth_dP", "m_iRead_f2f", "m_iGradType", "m_iIterNum_MeltFrontTemperature"};
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"StableFlag", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable =
      blockTable<T, kSections, kDumpOrder>("\n---------StableFlag Parameters---------");
  return kTable;
}
