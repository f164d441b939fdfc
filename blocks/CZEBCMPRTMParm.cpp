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

int CZEBCMPRTMParm::iUseDllTemp() const { return m_iUseDllTemp; }
int CZEBCMPRTMParm::iOutputM3K() const { return m_iOutputM3K; }
int CZEBCMPRTMParm::iUseMessage() const { return m_iUseMessage; }
int CZEBCMPRTMParm::iShowVentBC() const { return m_iShowVentBC; }
int CZEBCMPRTMParm::iUseShowK11() const { return m_iUseShowK11; }
int CZEBCMPRTMParm::iUseShowK22() const { return m_iUseShowK22; }
int CZEBCMPRTMParm::iUseShowK33() const { return m_iUseShowK33; }
int CZEBCMPRTMParm::iSurf_XYZ() const { return m_iSurf_XYZ; }
int CZEBCMPRTMParm::iCell_XYZ() const { return m_iCell_XYZ; }
int CZEBCMPRTMParm::iOutputKPTID() const { return m_iOutputKPTID; }
int CZEBCMPRTMParm::iUseErrMesh() const { return m_iUseErrMesh; }
int CZEBCMPRTMParm::iUsePARDISO() const { return m_iUsePARDISO; }
int CZEBCMPRTMParm::iUsePCG() const { return m_iUsePCG; }
int CZEBCMPRTMParm::iRTMAlgorithm() const { return m_iRTMAlgorithm; }
int CZEBCMPRTMParm::iVoidPrediction() const { return m_iVoidPrediction; }
double CZEBCMPRTMParm::dKTube() const { return m_dKTube; }
double CZEBCMPRTMParm::dKTow() const { return m_dKTow; }
double CZEBCMPRTMParm::dTowThick() const { return m_dTowThick; }
double CZEBCMPRTMParm::dMacroCoeff1() const { return m_dMacroCoeff1; }
double CZEBCMPRTMParm::dMacroCoeff2() const { return m_dMacroCoeff2; }
double CZEBCMPRTMParm::dmicroCoeff1() const { return m_dmicroCoeff1; }
double CZEBCMPRTMParm::dmicroCoeff2() const { return m_dmicroCoeff2; }
double CZEBCMPRTMParm::dRTMTimeConstant() const { return m_dRTMTimeConstant; }
double CZEBCMPRTMParm::dTCTol() const { return m_dTCTol; }
int CZEBCMPRTMParm::iGCStable() const { return m_iGCStable; }
int CZEBCMPRTMParm::iUseSetInitialdt() const { return m_iUseSetInitialdt; }
int CZEBCMPRTMParm::iBarrelPressureDrop() const { return m_iBarrelPressureDrop; }
double CZEBCMPRTMParm::dBarrelHTop() const { return m_dBarrelHTop; }
double CZEBCMPRTMParm::dBarrelHBottom() const { return m_dBarrelHBottom; }
double CZEBCMPRTMParm::dBarrelDiameter() const { return m_dBarrelDiameter; }
double CZEBCMPRTMParm::dInletH() const { return m_dInletH; }
int CZEBCMPRTMParm::iUseFiberConv() const { return m_iUseFiberConv; }
double CZEBCMPRTMParm::dDenfiber() const { return m_dDenfiber; }
double CZEBCMPRTMParm::dDenresin() const { return m_dDenresin; }
double CZEBCMPRTMParm::dCpfiber() const { return m_dCpfiber; }
double CZEBCMPRTMParm::dCpresin() const { return m_dCpresin; }
double CZEBCMPRTMParm::dKfiber() const { return m_dKfiber; }
double CZEBCMPRTMParm::dKresin() const { return m_dKresin; }
int CZEBCMPRTMParm::iUseAirP() const { return m_iUseAirP; }
double CZEBCMPRTMParm::dVentPressure() const { return m_dVentPressure; }
int CZEBCMPRTMParm::iUseShowFiberOnly() const { return m_iUseShowFiberOnly; }
int CZEBCMPRTMParm::iOutputFiberMatOrient() const { return m_iOutputFiberMatOrient; }
int CZEBCMPRTMParm::iRTMTubeRunner() const { return m_iRTMTubeRunner; }
int CZEBCMPRTMParm::iRTMVentingBoundaryConditionType() const { return m_iRTMVentingBoundaryConditionType; }
int CZEBCMPRTMParm::iRTMCureSpeedUp() const { return m_iRTMCureSpeedUp; }
int CZEBCMPRTMParm::iUseRTMPultrusionPreprocessor() const { return m_iUseRTMPultrusionPreprocessor; }
int CZEBCMPRTMParm::iUseRTMPultrusionCalc() const { return m_iUseRTMPultrusionCalc; }
double CZEBCMPRTMParm::dPultrusionPorosity() const { return m_dPultrusionPorosity; }
double CZEBCMPRTMParm::dPultrusionK11() const { return m_dPultrusionK11; }
double CZEBCMPRTMParm::dPultrusionK33() const { return m_dPultrusionK33; }
double CZEBCMPRTMParm::dPultrusionVelocity() const { return m_dPultrusionVelocity; }
int CZEBCMPRTMParm::iUseOutletVelBC() const { return m_iUseOutletVelBC; }
int CZEBCMPRTMParm::iUseDrapePorosity() const { return m_iUseDrapePorosity; }
int CZEBCMPRTMParm::iReadFilePorosity() const { return m_iReadFilePorosity; }
double CZEBCMPRTMParm::dModifyProperitybyPressure_Coeff() const { return m_dModifyProperitybyPressure_Coeff; }
double CZEBCMPRTMParm::dModifyProperitybyPressure_P0() const { return m_dModifyProperitybyPressure_P0; }
int CZEBCMPRTMParm::iModifyProperitybyFiberAngle() const { return m_iModifyProperitybyFiberAngle; }
int CZEBCMPRTMParm::iUseKozenyCarmanShearAngle() const { return m_iUseKozenyCarmanShearAngle; }
int CZEBCMPRTMParm::iOutputErrorMesh() const { return m_iOutputErrorMesh; }
int CZEBCMPRTMParm::iIsVentInlet() const { return m_iIsVentInlet; }
int CZEBCMPRTMParm::iNVentInlet() const { return m_iNVentInlet; }

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
    std::string& line = context.line;
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
  static constexpr WhenStored kEchoVoidPrediction = [](void* block, const std::string& line) {
    const std::string value = std::to_string(static_cast<const T*>(block)->m_iVoidPrediction);
    writeOut("sline = " + line + "\nii = " + value + "\nm_iVoidPrediction = " + value + "\n");
  };

  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iUseDllTemp, &T::iUseDllTemp>(), .key = "UseDllTemp", .label = "m_iUseDllTemp\t=",
       .opaque = true},
      {.field = field<&T::m_iOutputM3K, &T::iOutputM3K>(), .key = "OutputM3K", .label = "m_iOutputM3K\t=",
       .doc = "Output of the M3K file.", .opaque = true},
      {.field = field<&T::m_iUseMessage, &T::iUseMessage>(), .key = "UseMessage", .doc = "Use of messages.",
       .opaque = true},
      {.field = field<&T::m_iShowVentBC, &T::iShowVentBC>(), .key = "ShowVentBC",
       .doc = "Output of the boundary condition at the vents.", .opaque = true},
      {.field = field<&T::m_iUseShowK11, &T::iUseShowK11>(), .key = "UseShowK11", .doc = "Output of K11.",
       .opaque = true},
      {.field = field<&T::m_iUseShowK22, &T::iUseShowK22>(), .key = "UseShowK22", .doc = "Output of K22.",
       .opaque = true},
      {.field = field<&T::m_iUseShowK33, &T::iUseShowK33>(), .key = "UseShowK33", .doc = "Output of K33.",
       .opaque = true},
      {.field = field<&T::m_iSurf_XYZ, &T::iSurf_XYZ>(), .key = "Surf_XYZ", .opaque = true},
      {.field = field<&T::m_iCell_XYZ, &T::iCell_XYZ>(), .key = "Cell_XYZ", .opaque = true},
      {.field = field<&T::m_iOutputKPTID, &T::iOutputKPTID>(), .key = "OutputKPTID", .opaque = true},
      {.field = field<&T::m_iUseErrMesh, &T::iUseErrMesh>(), .key = "UseErrMesh", .opaque = true},
      {.field = field<&T::m_iUsePARDISO, &T::iUsePARDISO>(), .key = "UsePARDISO",
       .doc = "Use of the PARDISO linear solver.", .opaque = true},
      {.field = field<&T::m_iUsePCG, &T::iUsePCG>(), .key = "UsePCG", .doc = "Use of the PCG linear solver.",
       .opaque = true},
      {.field = field<&T::m_iRTMAlgorithm, &T::iRTMAlgorithm>(), .key = "RTMAlgorithm",
       .doc = "Algorithm of resin transfer molding.", .opaque = true},
      {.field = field<&T::m_iVoidPrediction, &T::iVoidPrediction>(), .key = "VoidPrediction",
       .whenStored = kEchoVoidPrediction, .doc = "Prediction of voids; reading it prints three lines.", .opaque = true},
      {.field = field<&T::m_dKTube, &T::dKTube>(), .key = "KTube", .opaque = true},
      {.field = field<&T::m_dKTow, &T::dKTow>(), .key = "KTow", .opaque = true},
      {.field = field<&T::m_dTowThick, &T::dTowThick>(), .key = "TowThick", .doc = "Thickness of the tow."},
      {.field = field<&T::m_dMacroCoeff1, &T::dMacroCoeff1>(), .key = "MacroCoeff1",
       .doc = "First coefficient of the macro scale.", .opaque = true},
      {.field = field<&T::m_dMacroCoeff2, &T::dMacroCoeff2>(), .key = "MacroCoeff2",
       .doc = "Second coefficient of the macro scale.", .opaque = true},
      {.field = field<&T::m_dmicroCoeff1, &T::dmicroCoeff1>(), .key = "microCoeff1",
       .doc = "First coefficient of the micro scale.", .opaque = true},
      {.field = field<&T::m_dmicroCoeff2, &T::dmicroCoeff2>(), .key = "microCoeff2",
       .doc = "Second coefficient of the micro scale.", .opaque = true},
      {.field = field<&T::m_dRTMTimeConstant, &T::dRTMTimeConstant>(), .key = "RTMTimeConstant",
       .doc = "Time constant of resin transfer molding.", .opaque = true},
      {.field = field<&T::m_dTCTol, &T::dTCTol>(), .key = "TCTol", .doc = "TC tolerance.", .opaque = true},
      {.field = field<&T::m_iGCStable, &T::iGCStable>(), .key = "GCStable", .opaque = true},
      {.field = field<&T::m_iUseSetInitialdt, &T::iUseSetInitialdt>(), .key = "UseSetInitialdt",
       .doc = "Use of a set initial time step.", .opaque = true},
      {.field = field<&T::m_iBarrelPressureDrop, &T::iBarrelPressureDrop>(), .key = "BarrelPressureDrop",
       .doc = "Pressure drop in the barrel.", .opaque = true},
      {.field = field<&T::m_dBarrelHTop, &T::dBarrelHTop>(), .key = "BarrelHTop", .doc = "Top H of the barrel.",
       .opaque = true},
      {.field = field<&T::m_dBarrelHBottom, &T::dBarrelHBottom>(), .key = "BarrelHBottom",
       .doc = "Bottom H of the barrel.", .opaque = true},
      {.field = field<&T::m_dBarrelDiameter, &T::dBarrelDiameter>(), .key = "BarrelDiameter",
       .doc = "Diameter of the barrel."},
      {.field = field<&T::m_dInletH, &T::dInletH>(), .key = "InletH", .doc = "H of the inlet.", .opaque = true},
      {.field = field<&T::m_iUseFiberConv, &T::iUseFiberConv>(), .key = "UseFiberConv", .opaque = true},
      {.field = field<&T::m_dDenfiber, &T::dDenfiber>(), .key = "Denfiber", .doc = "Density of the fiber."},
      {.field = field<&T::m_dDenresin, &T::dDenresin>(), .key = "Denresin", .doc = "Density of the resin."},
      {.field = field<&T::m_dCpfiber, &T::dCpfiber>(), .key = "Cpfiber", .doc = "Heat capacity of the fiber."},
      {.field = field<&T::m_dCpresin, &T::dCpresin>(), .key = "Cpresin", .doc = "Heat capacity of the resin."},
      {.field = field<&T::m_dKfiber, &T::dKfiber>(), .key = "Kfiber", .doc = "K of the fiber.", .opaque = true},
      {.field = field<&T::m_dKresin, &T::dKresin>(), .key = "Kresin", .doc = "K of the resin.", .opaque = true},
      {.field = field<&T::m_iUseAirP, &T::iUseAirP>(), .key = "UseAirP", .doc = "Use of the air pressure.",
       .opaque = true},
      {.field = field<&T::m_dVentPressure, &T::dVentPressure>(), .key = "VentPressure",
       .doc = "Pressure at the vents."},
      {.field = field<&T::m_iUseShowFiberOnly, &T::iUseShowFiberOnly>(), .key = "UseShowFiberOnly",
       .doc = "Output of the fiber only.", .opaque = true},
      {.field = field<&T::m_iOutputFiberMatOrient, &T::iOutputFiberMatOrient>(), .key = "OutputFiberMatOrient",
       .doc = "Output of the orientation of the fiber mat.", .opaque = true},
      {.field = field<&T::m_iRTMTubeRunner, &T::iRTMTubeRunner>(), .key = "RTMTubeRunner", .doc = "Tube runner.",
       .opaque = true},
      {.field = field<&T::m_iRTMVentingBoundaryConditionType, &T::iRTMVentingBoundaryConditionType>(),
       .key = "RTMVentingBoundaryConditionType", .doc = "Type of the boundary condition at the vents.", .opaque = true},
      {.field = field<&T::m_iRTMCureSpeedUp, &T::iRTMCureSpeedUp>(), .key = "RTMCureSpeedUp",
       .doc = "Speed-up of the cure.", .opaque = true},
      {.field = field<&T::m_iUseRTMPultrusionPreprocessor, &T::iUseRTMPultrusionPreprocessor>(),
       .key = "UseRTMPultrusionPreprocessor", .doc = "Use of the preprocessor of pultrusion.", .opaque = true},
      {.field = field<&T::m_iUseRTMPultrusionCalc, &T::iUseRTMPultrusionCalc>(), .key = "UseRTMPultrusionCalc",
       .doc = "Use of the calculation of pultrusion.", .opaque = true},
      {.field = field<&T::m_dPultrusionPorosity, &T::dPultrusionPorosity>(), .key = "PultrusionPorosity",
       .doc = "Porosity in pultrusion."},
      {.field = field<&T::m_dPultrusionK11, &T::dPultrusionK11>(), .key = "PultrusionK11", .doc = "K11 in pultrusion.",
       .opaque = true},
      {.field = field<&T::m_dPultrusionK33, &T::dPultrusionK33>(), .key = "PultrusionK33", .doc = "K33 in pultrusion.",
       .opaque = true},
      {.field = field<&T::m_dPultrusionVelocity, &T::dPultrusionVelocity>(), .key = "PultrusionVelocity",
       .doc = "Velocity of pultrusion."},
      {.field = field<&T::m_iUseOutletVelBC, &T::iUseOutletVelBC>(), .key = "UseOutletVelBC",
       .doc = "Use of a velocity boundary condition at the outlet.", .opaque = true},
      {.field = field<&T::m_iUseDrapePorosity, &T::iUseDrapePorosity>(), .key = "UseDrapePorosity",
       .doc = "Use of the porosity from draping.", .opaque = true},
      {.field = field<&T::m_iReadFilePorosity, &T::iReadFilePorosity>(), .key = "ReadFilePorosity",
       .doc = "Reading of the porosity from a file.", .opaque = true},
      {.field = field<&T::m_dModifyProperitybyPressure_Coeff, &T::dModifyProperitybyPressure_Coeff>(),
       .key = "ModifyProperitybyPressure_Coeff", .doc = "Coefficient of the change of properties with the pressure."},
      {.field = field<&T::m_dModifyProperitybyPressure_P0, &T::dModifyProperitybyPressure_P0>(),
       .key = "ModifyProperitybyPressure_P0", .doc = "Pressure P0 of the change of properties with the pressure."},
      {.field = field<&T::m_iModifyProperitybyFiberAngle, &T::iModifyProperitybyFiberAngle>(),
       .key = "ModifyProperitybyFiberAngle", .doc = "Change of properties with the fiber angle.", .opaque = true},
      {.field = field<&T::m_iUseKozenyCarmanShearAngle, &T::iUseKozenyCarmanShearAngle>(),
       .key = "UseKozenyCarmanShearAngle", .doc = "Use of the Kozeny-Carman relation with the shear angle.",
       .opaque = true},
      {.field = field<&T::m_iOutputErrorMesh, &T::iOutputErrorMesh>(), .key = "OutputErrorMesh",
       .doc = "Output of the erroneous mesh.", .opaque = true},
      {.field = field<&T::m_iIsVentInlet, &T::iIsVentInlet>(), .key = "IsVentInlet",
       .list = {.array = field<&T::m_piVentInletID>(), .entryName = kVentKey, .countName = kVentCountKey,
               .read = kReadVentInlets},
       .fills = members<&T::m_iNVentInlet>, .doc = "List of vent inlets; 1 announces it on the next lines."},
      {.field = field<&T::m_iNVentInlet, &T::iNVentInlet>(),
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
