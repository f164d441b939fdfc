#include "blocks/CZEBCMPAutoVPCtrlParm.h"

#include "engine/TableBuilder.hpp"

CZEBCMPAutoVPCtrlParm::CZEBCMPAutoVPCtrlParm() = default;
CZEBCMPAutoVPCtrlParm::CZEBCMPAutoVPCtrlParm(const CZEBCMPAutoVPCtrlParm& other) = default;
CZEBCMPAutoVPCtrlParm::~CZEBCMPAutoVPCtrlParm() = default;
CZEBCMPAutoVPCtrlParm& CZEBCMPAutoVPCtrlParm::operator=(const CZEBCMPAutoVPCtrlParm& other) = default;

int CZEBCMPAutoVPCtrlParm::iIsAutoVPCtrl() const { return m_iIsAutoVPCtrl; }
int CZEBCMPAutoVPCtrlParm::iAutoVPCtrlDebug() const { return m_iAutoVPCtrlDebug; }
int CZEBCMPAutoVPCtrlParm::iAutoVPCtrlFullShotMode() const { return m_iAutoVPCtrlFullShotMode; }
int CZEBCMPAutoVPCtrlParm::iAutoVPCtrlBarrelEffect() const { return m_iAutoVPCtrlBarrelEffect; }
double CZEBCMPAutoVPCtrlParm::dAutoVPCtrlExtraInjWeightRatio() const { return m_dAutoVPCtrlExtraInjWeightRatio; }
double CZEBCMPAutoVPCtrlParm::dAutoVPCtrlHRAbsorbRatioCtrl() const { return m_dAutoVPCtrlHRAbsorbRatioCtrl; }
double CZEBCMPAutoVPCtrlParm::dAutoVPCtrlCavityPres() const { return m_dAutoVPCtrlCavityPres; }
double CZEBCMPAutoVPCtrlParm::dAutoVPCtrlCavityTemp() const { return m_dAutoVPCtrlCavityTemp; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPAutoVPCtrlParm>() {
  using T = CZEBCMPAutoVPCtrlParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iIsAutoVPCtrl, &T::iIsAutoVPCtrl>(), .key = "AutoVPMode", .gateBelow = 1,
       .label = "m_iIsAutoVPCtrl\t\t\t\t\t= ",
       .doc = "Mode of the automatic control; below 1 the section's other keys are ignored."},
      {.field = field<&T::m_iAutoVPCtrlDebug, &T::iAutoVPCtrlDebug>(), .key = "Debug",
       .label = "m_iAutoVPCtrlDebug\t\t\t\t\t= ",
       .doc = "Debug output of the automatic control. Meaning defined by the solver."},
      {.field = field<&T::m_iAutoVPCtrlFullShotMode, &T::iAutoVPCtrlFullShotMode>(), .key = "FullShotMode",
       .label = "m_iAutoVPCtrlFullShotMode\t\t\t= ", .doc = "Full-shot mode. Meaning defined by the solver."},
      {.field = field<&T::m_iAutoVPCtrlBarrelEffect, &T::iAutoVPCtrlBarrelEffect>(), .key = "ConsiderBarrelEffect",
       .label = "m_iAutoVPCtrlBarrelEffect\t\t\t= ",
       .doc = "Consideration of the effect of the barrel. Meaning defined by the solver."},
      {.field = field<&T::m_dAutoVPCtrlExtraInjWeightRatio, &T::dAutoVPCtrlExtraInjWeightRatio>(),
       .key = "ExtraInjWeightRatio",
       .label = "m_dAutoVPCtrlExtraInjWeightRatio\t= ",
       .doc = "Ratio of the extra injected weight. Meaning defined by the solver."},
      {.field = field<&T::m_dAutoVPCtrlHRAbsorbRatioCtrl, &T::dAutoVPCtrlHRAbsorbRatioCtrl>(),
       .key = "HRAbsorbRatioControl",
       .label = "m_dAutoVPCtrlHRAbsorbRatioCtrl\t\t= ",
       .doc = "Control of the hot runner's absorption ratio. Meaning defined by the solver."},
      {.field = field<&T::m_dAutoVPCtrlCavityPres, &T::dAutoVPCtrlCavityPres>(), .key = "EstCavityPres",
       .label = "m_dAutoVPCtrlCavityPres\t\t\t= ",
       .doc = "Estimated pressure in the cavity, as written in the file."},
      {.field = field<&T::m_dAutoVPCtrlCavityTemp, &T::dAutoVPCtrlCavityTemp>(), .key = "EstCavityTemp",
       .label = "m_dAutoVPCtrlCavityTemp\t\t\t= ",
       .doc = "Estimated temperature in the cavity. Meaning defined by the solver."},
  };
  // clang-format on
  static constexpr Order<8> kReadingOrder{
      "AutoVPMode",    "Debug",         "FullShotMode",        "ConsiderBarrelEffect",
      "EstCavityPres", "EstCavityTemp", "ExtraInjWeightRatio", "HRAbsorbRatioControl"};
  static constexpr Section kSections[] = {keyedSection<"AutoVPCtrl", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------AutoVPCtrl Parameters---------");
  return kTable;
}
