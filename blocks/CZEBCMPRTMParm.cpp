#include "blocks/CZEBCMPRTMParm.h"

#include <algorithm>

#include "engine/ListEngine.hpp"
#include "engine/SectionEngine.hpp"
#include "engine/TableBuilder.hpp"
#include "engine/TextOutput.hpp"

namespace {

// The lines of the vent inlets: their count, then one for each.
constexpr std::string_view kVentCountKey = "NVentInlet";
constexpr std::string_view kVentKey = "VentInletID";

}  // namespace

ZEB_DEFAULTED(CZEBCMPRTMParm)

ZEB_GETTERS(CZEBCMPRTMParm, iUseDllTemp, iOutputM3K, iUseMessage, iShowVentBC, iUseShowK11, iUseShowK22, iUseShowK33,
            iSurf_XYZ, iCell_XYZ, iOutputKPTID, iUseErrMesh, iUsePARDISO, iUsePCG, iRTMAlgorithm, iVoidPrediction,
            dKTube, dKTow, dTowThick, dMacroCoeff1, dMacroCoeff2, dmicroCoeff1, dmicroCoeff2, dRTMTimeConstant, dTCTol,
            iGCStable, iUseSetInitialdt, iBarrelPressureDrop, dBarrelHTop, dBarrelHBottom, dBarrelDiameter, dInletH,
            iUseFiberConv, dDenfiber, dDenresin, dCpfiber, dCpresin, dKfiber, dKresin, iUseAirP, dVentPressure,
            iUseShowFiberOnly, iOutputFiberMatOrient, iRTMTubeRunner, iRTMVentingBoundaryConditionType, iRTMCureSpeedUp,
            iUseRTMPultrusionPreprocessor, iUseRTMPultrusionCalc, dPultrusionPorosity, dPultrusionK11, dPultrusionK33,
            dPultrusionVelocity, iUseOutletVelBC, iUseDrapePorosity, iReadFilePorosity,
            dModifyProperitybyPressure_Coeff, dModifyProperitybyPressure_P0, iModifyProperitybyFiberAngle,
            iUseKozenyCarmanShearAngle, iOutputErrorMesh, iIsVentInlet, iNVentInlet)

int CZEBCMPRTMParm::getVentInletID(int* out) const {
  if (m_iNVentInlet < 1) return 0;
  if (out == nullptr) return -1;
  m_piVentInletID.copyEntries(out);
  return 0;
}
int CZEBCMPRTMParm::piVentInletID(int* out) const { return getVentInletID(out); }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPRTMParm>() {
  using T = CZEBCMPRTMParm;
  static constexpr ListReader kReadVentInlets = [](ListContext& context) {
    T& block = *static_cast<T*>(context.block);
    if (block.m_iIsVentInlet != 1) return ListResult::kSameLine;
    std::string_view& line = context.line;
    const auto takeLine = [&] { return nextLineOfList(context, line) && !isClosedBy(context.section, line); };
    if (!takeLine()) return ListResult::kSectionEnded;
    int count = 0;
    EntryEvent counted = takeValue(line, kVentCountKey, count);
    counted.isCount = true;
    const bool valid = isValidCount(Count::kYes, count);
    if (counted.used) {
      block.m_iNVentInlet = valid ? count : 0;  // with a refused one, the list that an earlier line filled is gone
      reportMemberOfList(context, &block.m_iNVentInlet, line, counted.value);
    }
    reportLineOfList(context, counted);
    if (!counted.used) return ListResult::kNextLine;
    if (!valid) {
      refuseCount(context.section, context.row, &block, kVentCountKey, count, context.lines);
      return ListResult::kNextLine;
    }
    int* const numbers = block.m_piVentInletID.allocate(static_cast<std::size_t>(count) + 1);
    for (int i = 1; i <= count; ++i) {
      if (!takeLine()) return ListResult::kSectionEnded;
      reportLineOfList(context, takeValue(line, kVentKey, numbers[i]));
    }
    return ListResult::kNextLine;
  };
  static constexpr WhenStored kEchoVoidPrediction = [](void* block, std::string_view line) {
    const std::string value = std::to_string(static_cast<const T*>(block)->m_iVoidPrediction);
    writeOut("sline = " + std::string(line) + "\nii = " + value + "\nm_iVoidPrediction = " + value + "\n");
  };

  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iUseDllTemp), .key = "UseDllTemp", .label = "m_iUseDllTemp\t=", .opaque = true},
      {ZEB_FIELD(iOutputM3K), .key = "OutputM3K", .label = "m_iOutputM3K\t=", .known = "Output of the M3K file."},
      {ZEB_FIELD(iUseMessage), .key = "UseMessage", .known = "Use of messages."},
      {ZEB_FIELD(iShowVentBC), .key = "ShowVentBC", .known = "Output of the boundary condition at the vents."},
      {ZEB_FIELD(iUseShowK11), .key = "UseShowK11", .known = "Output of K11."},
      {ZEB_FIELD(iUseShowK22), .key = "UseShowK22", .known = "Output of K22."},
      {ZEB_FIELD(iUseShowK33), .key = "UseShowK33", .known = "Output of K33."},
      {ZEB_FIELD(iSurf_XYZ), .key = "Surf_XYZ", .opaque = true},
      {ZEB_FIELD(iCell_XYZ), .key = "Cell_XYZ", .opaque = true},
      {ZEB_FIELD(iOutputKPTID), .key = "OutputKPTID", .opaque = true},
      {ZEB_FIELD(iUseErrMesh), .key = "UseErrMesh", .opaque = true},
      {ZEB_FIELD(iUsePARDISO), .key = "UsePARDISO", .known = "Use of the PARDISO linear solver."},
      {ZEB_FIELD(iUsePCG), .key = "UsePCG", .known = "Use of the PCG linear solver."},
      {ZEB_FIELD(iRTMAlgorithm), .key = "RTMAlgorithm", .known = "Algorithm of resin transfer molding."},
      {ZEB_FIELD(iVoidPrediction), .key = "VoidPrediction", .whenStored = kEchoVoidPrediction,
       .known = "Prediction of voids; reading it prints three lines."},
      {ZEB_FIELD(dKTube), .key = "KTube", .opaque = true},
      {ZEB_FIELD(dKTow), .key = "KTow", .opaque = true},
      {ZEB_FIELD(dTowThick), .key = "TowThick", .doc = "Thickness of the tow."},
      {ZEB_FIELD(dMacroCoeff1), .key = "MacroCoeff1", .known = "First coefficient of the macro scale."},
      {ZEB_FIELD(dMacroCoeff2), .key = "MacroCoeff2", .known = "Second coefficient of the macro scale."},
      {ZEB_FIELD(dmicroCoeff1), .key = "microCoeff1", .known = "First coefficient of the micro scale."},
      {ZEB_FIELD(dmicroCoeff2), .key = "microCoeff2", .known = "Second coefficient of the micro scale."},
      {ZEB_FIELD(dRTMTimeConstant), .key = "RTMTimeConstant", .known = "Time constant of resin transfer molding."},
      {ZEB_FIELD(dTCTol), .key = "TCTol", .known = "TC tolerance."},
      {ZEB_FIELD(iGCStable), .key = "GCStable", .opaque = true},
      {ZEB_FIELD(iUseSetInitialdt), .key = "UseSetInitialdt", .known = "Use of a set initial time step."},
      {ZEB_FIELD(iBarrelPressureDrop), .key = "BarrelPressureDrop", .known = "Pressure drop in the barrel."},
      {ZEB_FIELD(dBarrelHTop), .key = "BarrelHTop", .known = "Top H of the barrel."},
      {ZEB_FIELD(dBarrelHBottom), .key = "BarrelHBottom", .known = "Bottom H of the barrel."},
      {ZEB_FIELD(dBarrelDiameter), .key = "BarrelDiameter", .doc = "Diameter of the barrel."},
      {ZEB_FIELD(dInletH), .key = "InletH", .known = "H of the inlet."},
      {ZEB_FIELD(iUseFiberConv), .key = "UseFiberConv", .opaque = true},
      {ZEB_FIELD(dDenfiber), .key = "Denfiber", .doc = "Density of the fiber."},
      {ZEB_FIELD(dDenresin), .key = "Denresin", .doc = "Density of the resin."},
      {ZEB_FIELD(dCpfiber), .key = "Cpfiber", .doc = "Heat capacity of the fiber."},
      {ZEB_FIELD(dCpresin), .key = "Cpresin", .doc = "Heat capacity of the resin."},
      {ZEB_FIELD(dKfiber), .key = "Kfiber", .known = "K of the fiber."},
      {ZEB_FIELD(dKresin), .key = "Kresin", .known = "K of the resin."},
      {ZEB_FIELD(iUseAirP), .key = "UseAirP", .known = "Use of the air pressure."},
      {ZEB_FIELD(dVentPressure), .key = "VentPressure", .doc = "Pressure at the vents."},
      {ZEB_FIELD(iUseShowFiberOnly), .key = "UseShowFiberOnly", .known = "Output of the fiber only."},
      {ZEB_FIELD(iOutputFiberMatOrient), .key = "OutputFiberMatOrient",
       .known = "Output of the orientation of the fiber mat."},
      {ZEB_FIELD(iRTMTubeRunner), .key = "RTMTubeRunner", .known = "Tube runner."},
      {ZEB_FIELD(iRTMVentingBoundaryConditionType), .key = "RTMVentingBoundaryConditionType",
       .known = "Type of the boundary condition at the vents."},
      {ZEB_FIELD(iRTMCureSpeedUp), .key = "RTMCureSpeedUp", .known = "Speed-up of the cure."},
      {ZEB_FIELD(iUseRTMPultrusionPreprocessor), .key = "UseRTMPultrusionPreprocessor",
       .known = "Use of the preprocessor of pultrusion."},
      {ZEB_FIELD(iUseRTMPultrusionCalc), .key = "UseRTMPultrusionCalc",
       .known = "Use of the calculation of pultrusion."},
      {ZEB_FIELD(dPultrusionPorosity), .key = "PultrusionPorosity", .doc = "Porosity in pultrusion."},
      {ZEB_FIELD(dPultrusionK11), .key = "PultrusionK11", .known = "K11 in pultrusion."},
      {ZEB_FIELD(dPultrusionK33), .key = "PultrusionK33", .known = "K33 in pultrusion."},
      {ZEB_FIELD(dPultrusionVelocity), .key = "PultrusionVelocity", .doc = "Velocity of pultrusion."},
      {ZEB_FIELD(iUseOutletVelBC), .key = "UseOutletVelBC",
       .known = "Use of a velocity boundary condition at the outlet."},
      {ZEB_FIELD(iUseDrapePorosity), .key = "UseDrapePorosity", .known = "Use of the porosity from draping."},
      {ZEB_FIELD(iReadFilePorosity), .key = "ReadFilePorosity", .known = "Reading of the porosity from a file."},
      {ZEB_FIELD(dModifyProperitybyPressure_Coeff), .key = "ModifyProperitybyPressure_Coeff",
       .doc = "Coefficient of the change of properties with the pressure."},
      {ZEB_FIELD(dModifyProperitybyPressure_P0), .key = "ModifyProperitybyPressure_P0",
       .doc = "Pressure P0 of the change of properties with the pressure."},
      {ZEB_FIELD(iModifyProperitybyFiberAngle), .key = "ModifyProperitybyFiberAngle",
       .known = "Change of properties with the fiber angle."},
      {ZEB_FIELD(iUseKozenyCarmanShearAngle), .key = "UseKozenyCarmanShearAngle",
       .known = "Use of the Kozeny-Carman relation with the shear angle."},
      {ZEB_FIELD(iOutputErrorMesh), .key = "OutputErrorMesh", .known = "Output of the erroneous mesh."},
      {ZEB_FIELD(iIsVentInlet), .key = "IsVentInlet",
       .list = {.array = field<&T::m_piVentInletID>(), .entryName = kVentKey, .countName = kVentCountKey,
               .read = kReadVentInlets},
       .fills = members<&T::m_iNVentInlet>, .doc = "List of vent inlets; 1 announces it on the next lines."},
      {ZEB_FIELD(iNVentInlet),
       .doc = "Number of vent inlets (0 to 1000000), from the key NVentInlet on the line after IsVentInlet."},
      {.field = field<&T::m_piVentInletID>(),
       .doc = "Numbers of the vent inlets, from 1; one line with the key VentInletID for each."},
  };
  // clang-format on
  // The list replaces the line, so the key that announces it is tested before all others.
  static constexpr auto kReadingOrder = [] {
    constexpr std::size_t kMembersWithoutKey = 2;
    Order<std::size(kRows) - kMembersWithoutKey> keys{"IsVentInlet"};
    auto next = keys.begin() + 1;
    for (const Row& row : kRows) {
      if (!row.key.empty() && row.key != keys.front()) *next++ = row.key;
    }
    return keys;
  }();
  static constexpr Section kSections[] = {keyedSection<"RTM", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------RTM Parameters---------");
  return kTable;
}
