#include "blocks/CZEBCMPAutoVPCtrlParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPAutoVPCtrlParm)

ZEB_GETTERS(CZEBCMPAutoVPCtrlParm, iIsAutoVPCtrl, iAutoVPCtrlDebug, iAutoVPCtrlFullShotMode, iAutoVPCtrlBarrelEffect,
            dAutoVPCtrlExtraInjWeightRatio, dAutoVPCtrlHRAbsorbRatioCtrl, dAutoVPCtrlCavityPres, dAutoVPCtrlCavityTemp)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPAutoVPCtrlParm>() {
  using T = CZEBCMPAutoVPCtrlParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iIsAutoVPCtrl), .key = "AutoVPMode", .gateBelow = 1, .tabs = 5,
       .doc = "Mode of the automatic control; below 1 the section's other keys are ignored."},
      {ZEB_FIELD(iAutoVPCtrlDebug), .key = "Debug", .tabs = 5, .known = "Debug output of the automatic control."},
      {ZEB_FIELD(iAutoVPCtrlFullShotMode), .key = "FullShotMode", .tabs = 3, .known = "Full-shot mode."},
      {ZEB_FIELD(iAutoVPCtrlBarrelEffect), .key = "ConsiderBarrelEffect", .tabs = 3,
       .known = "Consideration of the effect of the barrel."},
      {ZEB_FIELD(dAutoVPCtrlExtraInjWeightRatio), .key = "ExtraInjWeightRatio", .tabs = 1,
       .known = "Ratio of the extra injected weight."},
      {ZEB_FIELD(dAutoVPCtrlHRAbsorbRatioCtrl), .key = "HRAbsorbRatioControl", .tabs = 2,
       .known = "Control of the hot runner's absorption ratio."},
      {ZEB_FIELD(dAutoVPCtrlCavityPres), .key = "EstCavityPres", .tabs = 3,
       .doc = "Estimated pressure in the cavity, as written in the file."},
      {ZEB_FIELD(dAutoVPCtrlCavityTemp), .key = "EstCavityTemp", .tabs = 3,
       .known = "Estimated temperature in the cavity."},
  };
  // clang-format on
  static constexpr Order<8> kReadingOrder{
      "AutoVPMode",    "Debug",         "FullShotMode",        "ConsiderBarrelEffect",
      "EstCavityPres", "EstCavityTemp", "ExtraInjWeightRatio", "HRAbsorbRatioControl"};
  static constexpr Section kSections[] = {keyedSection<"AutoVPCtrl", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------AutoVPCtrl Parameters---------");
  return kTable;
}
