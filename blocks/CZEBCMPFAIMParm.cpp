#include "blocks/CZEBCMPFAIMParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPFAIMParm)

double CZEBCMPFAIMParm::dFluidFCRI() const { return m_dFluidFCRI; }
double CZEBCMPFAIMParm::dMeltFCRI() const { return m_dMeltFCRI; }
double CZEBCMPFAIMParm::dFluidVisFactor() const { return m_dFluidVisFactor; }
double CZEBCMPFAIMParm::dFluidRealxFactor() const { return m_dFluidRealxFactor; }
double CZEBCMPFAIMParm::dSecondFactor() const { return m_dSecondFactor; }
int CZEBCMPFAIMParm::iSecondModel() const { return m_iSecondModel; }
int CZEBCMPFAIMParm::iIsCoIM() const { return m_iIsCoIM; }
int CZEBCMPFAIMParm::iIsCoIMGNF() const { return m_iIsCoIMGNF; }
const char* CZEBCMPFAIMParm::CoMatName() const { return m_szCoMatName.get(); }
int CZEBCMPFAIMParm::iIsCoIM121() const { return m_iIsCoIM121; }
double CZEBCMPFAIMParm::dMeltReEnterTime() const { return m_dMeltReEnterTime; }
int CZEBCMPFAIMParm::iIsBiIM() const { return m_iIsBiIM; }
int CZEBCMPFAIMParm::iFAIM123() const { return m_iFAIM123; }
int CZEBCMPFAIMParm::iFAIMPushBack() const { return m_iFAIMPushBack; }
int CZEBCMPFAIMParm::iShowOverflowGateData() const { return m_iShowOverflowGateData; }
double CZEBCMPFAIMParm::dFluidEnterTime() const { return m_dFluidEnterTime; }
double CZEBCMPFAIMParm::dPushBackTime() const { return m_dPushBackTime; }
double CZEBCMPFAIMParm::dPushBackCloseTime() const { return m_dPushBackCloseTime; }
double CZEBCMPFAIMParm::dFrozenRatio() const { return m_dFrozenRatio; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPFAIMParm>() {
  using T = CZEBCMPFAIMParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_dFluidFCRI, &T::dFluidFCRI>(), .key = "FluidFCRI", .tabs = 4, .doc = "FCRI of the fluid.",
       .opaque = true},
      {.field = field<&T::m_dMeltFCRI, &T::dMeltFCRI>(), .key = "MeltFCRI", .tabs = 4, .doc = "FCRI of the melt.",
       .opaque = true},
      {.field = field<&T::m_dFluidVisFactor, &T::dFluidVisFactor>(), .key = "FluidVisFactor", .tabs = 3,
       .doc = "Factor of the fluid's viscosity."},
      {.field = field<&T::m_dFluidRealxFactor, &T::dFluidRealxFactor>(), .key = "FluidRelaxFactor", .tabs = 2,
       .doc = "Relaxation factor of the fluid."},
      {.field = field<&T::m_dSecondFactor, &T::dSecondFactor>(), .key = "SecondFactor", .tabs = 3,
       .doc = "Second factor.", .opaque = true},
      {.field = field<&T::m_iSecondModel, &T::iSecondModel>(), .key = "SecondModel", .tabs = 4, .doc = "Second model.",
       .opaque = true},
      {.field = field<&T::m_iIsCoIM, &T::iIsCoIM>(), .key = "IsCoIM", .tabs = 5, .doc = "Switch: co-injection."},
      {.field = field<&T::m_iIsCoIMGNF, &T::iIsCoIMGNF>(), .key = "CoIMGNF", .tabs = 4, .doc = "Co-injection GNF.",
       .opaque = true},
      {.field = field<&T::m_szCoMatName, &T::CoMatName>(), .key = "CoMtrName", .tabs = 4,
       .doc = "Name of the co-injected material."},
      {.field = field<&T::m_iIsCoIM121, &T::iIsCoIM121>(), .key = "CoIM121", .tabs = 4, .doc = "Co-injection 121.",
       .opaque = true},
      {.field = field<&T::m_dMeltReEnterTime, &T::dMeltReEnterTime>(), .key = "MeltReEnterTime", .tabs = 3,
       .doc = "Time at which the melt enters again."},
      {.field = field<&T::m_iIsBiIM, &T::iIsBiIM>(), .key = "IsBiIM", .tabs = 5, .doc = "Switch: bi-injection."},
      {.field = field<&T::m_iFAIM123, &T::iFAIM123>(), .key = "FAIM123", .tabs = 5,
       .doc = "Fluid-assisted injection 123.", .opaque = true},
      {.field = field<&T::m_iFAIMPushBack, &T::iFAIMPushBack>(), .key = "FAIMPushBack", .tabs = 3,
       .doc = "Push-back of the melt.", .opaque = true},
      {.field = field<&T::m_iShowOverflowGateData, &T::iShowOverflowGateData>(), .key = "ShowOverflowGateData ",
       .tabs = 1, .doc = "Output of the data of the overflow gate.", .opaque = true},
      {.field = field<&T::m_dFluidEnterTime, &T::dFluidEnterTime>(), .key = "FluidEnterTime", .tabs = 3,
       .doc = "Time at which the fluid enters."},
      {.field = field<&T::m_dPushBackTime, &T::dPushBackTime>(), .key = "PushBackTime", .tabs = 3,
       .doc = "Time of the push-back."},
      {.field = field<&T::m_dPushBackCloseTime, &T::dPushBackCloseTime>(), .key = "PushBackCloseTime", .tabs = 2,
       .doc = "Closing time of the push-back.", .opaque = true},
      {.field = field<&T::m_dFrozenRatio, &T::dFrozenRatio>(), .key = "FrozenRatio", .tabs = 4, .doc = "Frozen ratio.",
       .opaque = true},
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
