#include "blocks/CZEBCMPFAIMParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPFAIMParm)

ZEB_GETTERS(CZEBCMPFAIMParm, dFluidFCRI, dMeltFCRI, dFluidVisFactor, dFluidRealxFactor, dSecondFactor, iSecondModel,
            iIsCoIM, iIsCoIMGNF)
const char* CZEBCMPFAIMParm::CoMatName() const { return m_szCoMatName.get(); }
ZEB_GETTERS(CZEBCMPFAIMParm, iIsCoIM121, dMeltReEnterTime, iIsBiIM, iFAIM123, iFAIMPushBack, iShowOverflowGateData,
            dFluidEnterTime, dPushBackTime, dPushBackCloseTime, dFrozenRatio)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPFAIMParm>() {
  using T = CZEBCMPFAIMParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(dFluidFCRI), .key = "FluidFCRI", .tabs = 4, .known = "FCRI of the fluid."},
      {ZEB_FIELD(dMeltFCRI), .key = "MeltFCRI", .tabs = 4, .known = "FCRI of the melt."},
      {ZEB_FIELD(dFluidVisFactor), .key = "FluidVisFactor", .tabs = 3, .doc = "Factor of the fluid's viscosity."},
      {ZEB_FIELD(dFluidRealxFactor), .key = "FluidRelaxFactor", .tabs = 2, .doc = "Relaxation factor of the fluid."},
      {ZEB_FIELD(dSecondFactor), .key = "SecondFactor", .tabs = 3, .known = "Second factor."},
      {ZEB_FIELD(iSecondModel), .key = "SecondModel", .tabs = 4, .known = "Second model."},
      {ZEB_FIELD(iIsCoIM), .key = "IsCoIM", .tabs = 5, .doc = "Switch: co-injection."},
      {ZEB_FIELD(iIsCoIMGNF), .key = "CoIMGNF", .tabs = 4, .known = "Co-injection GNF."},
      {.field = field<&T::m_szCoMatName, &T::CoMatName>(), .key = "CoMtrName", .tabs = 4,
       .doc = "Name of the co-injected material."},
      {ZEB_FIELD(iIsCoIM121), .key = "CoIM121", .tabs = 4, .known = "Co-injection 121."},
      {ZEB_FIELD(dMeltReEnterTime), .key = "MeltReEnterTime", .tabs = 3, .doc = "Time at which the melt enters again."},
      {ZEB_FIELD(iIsBiIM), .key = "IsBiIM", .tabs = 5, .doc = "Switch: bi-injection."},
      {ZEB_FIELD(iFAIM123), .key = "FAIM123", .tabs = 5, .known = "Fluid-assisted injection 123."},
      {ZEB_FIELD(iFAIMPushBack), .key = "FAIMPushBack", .tabs = 3, .known = "Push-back of the melt."},
      {ZEB_FIELD(iShowOverflowGateData), .key = "ShowOverflowGateData ", .tabs = 1,
       .known = "Output of the data of the overflow gate."},
      {ZEB_FIELD(dFluidEnterTime), .key = "FluidEnterTime", .tabs = 3, .doc = "Time at which the fluid enters."},
      {ZEB_FIELD(dPushBackTime), .key = "PushBackTime", .tabs = 3, .doc = "Time of the push-back."},
      {ZEB_FIELD(dPushBackCloseTime), .key = "PushBackCloseTime", .tabs = 2, .known = "Closing time of the push-back."},
      {ZEB_FIELD(dFrozenRatio), .key = "FrozenRatio", .tabs = 4, .known = "Frozen ratio."},
  };
  // clang-format on
  static constexpr Order<19> kReadingOrder{"FluidFCRI",
                                           "MeltFCRI",
                                           "FluidVisFactor",
                                           "SecondFactor",
                                           "FluidRelaxFactor",
                                           "SecondModel",
                                           "IsCoIM",
                                           "CoIMGNF",
                                           "CoMtrName",
                                           "CoIM121",
                                           "MeltReEnterTime",
                                           "IsBiIM",
                                           "FAIM123",
                                           "FluidEnterTime",
                                           "FrozenRatio",
                                           "FAIMPushBack",
                                           "PushBackTime",
                                           "PushBackCloseTime",
                                           "ShowOverflowGateData "};
  static constexpr Order<19> kDumpOrder{
      "m_dFluidFCRI",        "m_dMeltFCRI",     "m_iSecondModel",       "m_dSecondFactor",         "m_dFluidVisFactor",
      "m_dFluidRealxFactor", "m_iIsCoIM",       "m_iIsCoIMGNF",         "m_szCoMatName",           "m_dMeltReEnterTime",
      "m_iIsCoIM121",        "m_iIsBiIM",       "m_iFAIM123",           "m_iShowOverflowGateData", "m_iFAIMPushBack",
      "m_dFluidEnterTime",   "m_dPushBackTime", "m_dPushBackCloseTime", "m_dFrozenRatio"};
  static constexpr Section kSections[] = {keyedSection<"FAIM", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable = blockTable<T, kSections, kDumpOrder>("\n---------FAIM Parameters---------");
  return kTable;
}
