#include "blocks/CZEBCMPFAIMParm.h"

#include "engine/TableBuilder.hpp"

CZEBCMPFAIMParm::CZEBCMPFAIMParm() = default;
CZEBCMPFAIMParm::CZEBCMPFAIMParm(const CZEBCMPFAIMParm& other) = default;
CZEBCMPFAIMParm::~CZEBCMPFAIMParm() = default;
CZEBCMPFAIMParm& CZEBCMPFAIMParm::operator=(const CZEBCMPFAIMParm& other) = default;

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
      {.field = field<&T::m_dFluidFCRI, &T::dFluidFCRI>(), .key = "FluidFCRI",
       .label = "m_dFluidFCRI\t\t\t\t= ", .doc = "FCRI of the fluid. Meaning defined by the solver."},
      {.field = field<&T::m_dMeltFCRI, &T::dMeltFCRI>(), .key = "MeltFCRI",
       .label = "m_dMeltFCRI\t\t\t\t= ", .doc = "FCRI of the melt. Meaning defined by the solver."},
      {.field = field<&T::m_dFluidVisFactor, &T::dFluidVisFactor>(), .key = "FluidVisFactor",
       .label = "m_dFluidVisFactor\t\t\t= ", .doc = "Factor of the fluid's viscosity."},
      {.field = field<&T::m_dFluidRealxFactor, &T::dFluidRealxFactor>(), .key = "FluidRelaxFactor",
       .label = "m_dFluidRealxFactor\t\t= ", .doc = "Relaxation factor of the fluid."},
      {.field = field<&T::m_dSecondFactor, &T::dSecondFactor>(), .key = "SecondFactor",
       .label = "m_dSecondFactor\t\t\t= ", .doc = "Second factor. Meaning defined by the solver."},
      {.field = field<&T::m_iSecondModel, &T::iSecondModel>(), .key = "SecondModel",
       .label = "m_iSecondModel\t\t\t\t= ", .doc = "Second model. Meaning defined by the solver."},
      {.field = field<&T::m_iIsCoIM, &T::iIsCoIM>(), .key = "IsCoIM",
       .label = "m_iIsCoIM\t\t\t\t\t= ", .doc = "Switch: co-injection."},
      {.field = field<&T::m_iIsCoIMGNF, &T::iIsCoIMGNF>(), .key = "CoIMGNF",
       .label = "m_iIsCoIMGNF\t\t\t\t= ", .doc = "Co-injection GNF. Meaning defined by the solver."},
      {.field = field<&T::m_szCoMatName, &T::CoMatName>(), .key = "CoMtrName",
       .label = "m_szCoMatName\t\t\t\t= ", .doc = "Name of the co-injected material."},
      {.field = field<&T::m_iIsCoIM121, &T::iIsCoIM121>(), .key = "CoIM121",
       .label = "m_iIsCoIM121\t\t\t\t= ", .doc = "Co-injection 121. Meaning defined by the solver."},
      {.field = field<&T::m_dMeltReEnterTime, &T::dMeltReEnterTime>(), .key = "MeltReEnterTime",
       .label = "m_dMeltReEnterTime\t\t\t= ", .doc = "Time at which the melt enters again."},
      {.field = field<&T::m_iIsBiIM, &T::iIsBiIM>(), .key = "IsBiIM",
       .label = "m_iIsBiIM\t\t\t\t\t= ", .doc = "Switch: bi-injection."},
      {.field = field<&T::m_iFAIM123, &T::iFAIM123>(), .key = "FAIM123",
       .label = "m_iFAIM123\t\t\t\t\t= ", .doc = "Fluid-assisted injection 123. Meaning defined by the solver."},
      {.field = field<&T::m_iFAIMPushBack, &T::iFAIMPushBack>(), .key = "FAIMPushBack",
       .label = "m_iFAIMPushBack\t\t\t= ", .doc = "Push-back of the melt. Meaning defined by the solver."},
      {.field = field<&T::m_iShowOverflowGateData, &T::iShowOverflowGateData>(), .key = "ShowOverflowGateData ",
       .label = "m_iShowOverflowGateData\t= ",
       .doc = "Output of the data of the overflow gate. Meaning defined by the solver."},
      {.field = field<&T::m_dFluidEnterTime, &T::dFluidEnterTime>(), .key = "FluidEnterTime",
       .label = "m_dFluidEnterTime\t\t\t= ", .doc = "Time at which the fluid enters."},
      {.field = field<&T::m_dPushBackTime, &T::dPushBackTime>(), .key = "PushBackTime",
       .label = "m_dPushBackTime\t\t\t= ", .doc = "Time of the push-back."},
      {.field = field<&T::m_dPushBackCloseTime, &T::dPushBackCloseTime>(), .key = "PushBackCloseTime",
       .label = "m_dPushBackCloseTime\t\t= ", .doc = "Closing time of the push-back. Meaning defined by the solver."},
      {.field = field<&T::m_dFrozenRatio, &T::dFrozenRatio>(), .key = "FrozenRatio",
       .label = "m_dFrozenRatio\t\t\t\t= ", .doc = "Frozen ratio. Meaning defined by the solver."},
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
