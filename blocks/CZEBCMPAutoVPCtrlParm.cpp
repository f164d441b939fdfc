#include "blocks/CZEBCMPAutoVPCtrlParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPAutoVPCtrlParm)

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
      {.field = field<&T::m_iIsAutoVPCtrl, &T::iIsAutoVPCtrl>(), .key = "AutoVPMode", .gateBelow = 1, .tabs = 5,
       .doc = "Mode of the automatic control; below 1 the section's other keys are ignored."},
      {.field = field<&T::m_iAutoVPCtrlDebug, &T::iAutoVPCtrlDebug>(), .key = "Debug", .tabs = 5,
       .doc = "Debug output of the automatic control.", .opaque = true},
      {.field = field<&T::m_iAutoVPCtrlFullShotMode, &T::iAutoVPCtrlFullShotMode>(), .key = "FullShotMode", .tabs = 3,
       .doc = "Full-shot mode.", .opaque = true},
      {.field = field<&T::m_iAutoVPCtrlBarrelEffect, &T::iAutoVPCtrlBarrelEffect>(), .key = "ConsiderBarrelEffect",
       .tabs = 3, .doc = "Consideration of the effect of the barrel.", .opaque = true},
      {.field = field<&T::m_dAutoVPCtrlExtraInjWeightRatio, &T::dAutoVPCtrlExtraInjWeightRatio>(),
       .key = "ExtraInjWeightRatio", .tabs = 1, .doc = "Ratio of the extra injected weight.", .opaque = true},
      {.field = field<&T::m_dAutoVPCtrlHRAbsorbRatioCtrl, &T::dAutoVPCtrlHRAbsorbRatioCtrl>(),
       .key = "HRAbsorbRatioControl", .tabs = 2, .doc = "Control of the hot runner's absorption ratio.",
       .opaque = true},
      {.field = field<&T::m_dAutoVPCtrlCavityPres, &T::dAutoVPCtrlCavityPres>(), .key = "EstCavityPres", .tabs = 3,
       .doc = "Estimated pressure in the cavity, as written in the file."},
      {.field = field<&T::m_dAutoVPCtrlCavityTemp, &T::dAutoVPCtrlCavityTemp>(), .key = "EstCavityTemp", .tabs = 3,
       .doc = "Estimated temperature in the cavity.", .opaque = true},
  };
  // clang-format on
  static constexpr Order<8> kReadingOrder{
      "AutoVPMode",    "Debug",         "FullShotMode",        "ConsiderBarrelEffect",
      "EstCavityPres", "EstCavityTemp", "ExtraInjWeightRatio", "HRAbsorbRatioControl"};
  static constexpr Section kSections[] = {keyedSection<"AutoVPCtrl", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------AutoVPCtrl Parameters---------");
  return kTable;
}
