#include "cmx/CZEBCMX_SOLID_FILL.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMX_SOLID_FILL)

ZEB_GETTERS(CZEBCMX_SOLID_FILL, iSolidFillBlockVersion, iIDSolver, dEfficiencyFactor, iFiberEfficiencyFactor,
            dFillEOFPercentage, iMeshType, iEstimateFiber, iUnFilledCells, iStopCalculateCriterionType,
            bIsUseTemperatureDLL, iUseTemperatureDLL_Level1, iUseTemperatureDLL_Level2, iEstimateCoolTime, dGravX,
            dGravY, dGravZ, ilStab, ilTec, ilHMAVI, ilVisHeat, ilGNF, ilNIsoT, ilInertia, ilAnaMode, ilCompressible,
            ilFlowVEcoupling, iCoreShiftMethod, dVolumeFilledCallStress, i2WayPSMethod, iVentingOption,
            dVentingPressure, dVentingTemperature, iParticleTracer, nParticleGroup, iWeldLineParticleTracer,
            iCrystalline, iInitChargeFiberOrientation)
const char* CZEBCMX_SOLID_FILL::strInitChargeFiber() const { return m_strInitChargeFiber.get(); }
ZEB_GETTERS(CZEBCMX_SOLID_FILL, iIMDCtrl, iStopPackingAfterGateFreeze, iGateFreezeByTemperature,
            dGateFreezeByTemperature, iGateFreezeByFlowRate, dGateFreezeByFlowRate, iGateFreezeByWeightDeviation,
            dGateFreezeByWeightDeviation)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMX_SOLID_FILL>() {
  using T = CZEBCMX_SOLID_FILL;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iSolidFillBlockVersion), .key = "Version", .doc = "Version of the block."},
      {ZEB_FIELD(iIDSolver), .key = "IDSolver", .known = "Choice of the filling solver."},
      {ZEB_FIELD(dEfficiencyFactor), .key = "IDEfficiencyFactor", .known = "Efficiency factor of the filling solver."},
      {ZEB_FIELD(iFiberEfficiencyFactor), .key = "IDFiberEfficiencyFactor",
       .known = "Efficiency factor of the fiber calculation."},
      {ZEB_FIELD(dFillEOFPercentage), .key = "ValueEOFPercent", .doc = "Filled fraction at which filling ends."},
      {ZEB_FIELD(iMeshType), .key = "MeshType", .known = "Type of the mesh."},
      {ZEB_FIELD(iEstimateFiber), .key = "FlagEstimateFiber", .doc = "Switch: the fiber orientation is calculated."},
      {ZEB_FIELD(iUnFilledCells), .key = "ValueUnFilledElement", .known = "Number of unfilled cells."},
      {ZEB_FIELD(iStopCalculateCriterionType), .key = "IDStopCalculateCriterionType",
       .known = "Type of the criterion that stops the calculation."},
      {ZEB_FIELD(bIsUseTemperatureDLL), .key = "UseTemperatureDLL",
       .doc = "Switch: the temperature comes from a library of its own."},
      {ZEB_FIELD(iUseTemperatureDLL_Level1), .key = "Level1", .known = "Level 1 of the temperature library."},
      {ZEB_FIELD(iUseTemperatureDLL_Level2), .key = "Level2", .known = "Level 2 of the temperature library."},
      {ZEB_FIELD(iEstimateCoolTime), .key = "FlagEstimateCoolTime", .doc = "Switch: the cooling time is estimated."},
      {ZEB_FIELD(dGravX), .key = "ValueGravyX", .otherKey = "ValueGravityX", .doc = "Gravity in x direction."},
      {ZEB_FIELD(dGravY), .key = "ValueGravyY", .otherKey = "ValueGravityY", .doc = "Gravity in y direction."},
      {ZEB_FIELD(dGravZ), .key = "ValueGravyZ", .otherKey = "ValueGravityZ", .doc = "Gravity in z direction."},
      {ZEB_FIELD(ilStab), .key = "FlagStabilizer", .doc = "Switch: the stabilizer is used."},
      {ZEB_FIELD(ilTec), .key = "FlagOutputTecplot", .doc = "Switch: output for Tecplot."},
      {ZEB_FIELD(ilHMAVI), .key = "FlagOutputHyperMeshAvi", .doc = "Switch: animation output for HyperMesh."},
      {ZEB_FIELD(ilVisHeat), .key = "FlagViscousHeating", .doc = "Switch: viscous heating is considered."},
      {ZEB_FIELD(ilGNF), .key = "FlagNonNewtonian", .doc = "Switch: the melt is a non-Newtonian fluid."},
      {ZEB_FIELD(ilNIsoT), .key = "FlagNonIsothermal", .doc = "Switch: the flow is non-isothermal."},
      {ZEB_FIELD(ilInertia), .key = "FlagInertia", .doc = "Switch: inertia is considered."},
      {ZEB_FIELD(ilAnaMode), .key = "IDAnalysisMode", .known = "Analysis mode."},
      {ZEB_FIELD(ilCompressible), .key = "FlagCompressibleFlow", .doc = "Switch: the flow is compressible."},
      {ZEB_FIELD(ilFlowVEcoupling), .key = "FlagFlowVEcoupling",
       .doc = "Switch: the flow is coupled with the viscoelastic calculation."},
      {ZEB_FIELD(iCoreShiftMethod), .key = "FlagCoreShiftMethod", .known = "Method of the core shift calculation."},
      {ZEB_FIELD(dVolumeFilledCallStress), .key = "FlagStressSolverVolume",
       .doc = "Filled volume at which the stress solver is called."},
      {ZEB_FIELD(i2WayPSMethod), .key = "Flag2WayPaddleShiftMethod",
       .known = "Method of the two-way paddle shift calculation."},
      {ZEB_FIELD(iVentingOption), .key = "FlagVentingAnalysis", .known = "Option of the venting analysis."},
      {ZEB_FIELD(dVentingPressure), .key = "VentingPressure", .doc = "Pressure at the vents."},
      {ZEB_FIELD(dVentingTemperature), .key = "VentingTemperature", .doc = "Temperature at the vents."},
      {ZEB_FIELD(iParticleTracer), .key = "FlagParticleTracer", .doc = "Switch: particles are traced."},
      {ZEB_FIELD(nParticleGroup), .key = "ValueParticleGroup", .doc = "Number of particle groups."},
      {ZEB_FIELD(iWeldLineParticleTracer), .key = "FlagWeldingLineParticleTracer",
       .doc = "Switch: particles of the weld lines are traced."},
      {ZEB_FIELD(iCrystalline), .key = "FlagEstimateCrystall", .doc = "Switch: crystallization is calculated."},
      {ZEB_FIELD(iInitChargeFiberOrientation), .key = "FlagInitChargeFiberOrientation",
       .doc = "Switch: the charge has an initial fiber orientation."},
      {ZEB_FIELD(strInitChargeFiber), .key = "ValueInitChargeFiberExchangeName", .lookup = Lookup::kWord,
       .textBuffer = T::kNameSize, .doc = "Name of the exchange file with the charge's initial fiber orientation."},
      {ZEB_FIELD(iIMDCtrl), .key = "FlagConsiderIMDBC",
       .doc = "Switch: the boundary condition of in-mold decoration is considered."},
      {ZEB_FIELD(iStopPackingAfterGateFreeze), .key = "FlagStopPackingAfterGateFreeze",
       .doc = "Switch: packing stops when the gates are frozen."},
      {ZEB_FIELD(iGateFreezeByTemperature), .key = "FlagGateFreezeByTemperature",
       .doc = "Switch: temperature tells whether a gate is frozen."},
      {ZEB_FIELD(dGateFreezeByTemperature), .key = "ValueGateFreezeByTemperature",
       .doc = "Temperature at which a gate is frozen."},
      {ZEB_FIELD(iGateFreezeByFlowRate), .key = "FlagGateFreezeByFlowRate",
       .doc = "Switch: flow rate tells whether a gate is frozen."},
      {ZEB_FIELD(dGateFreezeByFlowRate), .key = "ValueGateFreezeByFlowRate",
       .doc = "Flow rate at which a gate is frozen."},
      {ZEB_FIELD(iGateFreezeByWeightDeviation), .key = "FlagGateFreezeByWeightDeviation",
       .doc = "Switch: weight deviation tells whether a gate is frozen."},
      {ZEB_FIELD(dGateFreezeByWeightDeviation), .key = "ValueGateFreezeByWeightDeviation",
       .doc = "Weight deviation at which a gate is frozen."},
  };
  static constexpr Order<46> kReadingOrder{
      "Version", "IDSolver", "IDEfficiencyFactor", "IDFiberEfficiencyFactor", "ValueEOFPercent", "MeshType",
      "IDAnalysisMode", "FlagInertia", "FlagNonIsothermal", "FlagNonNewtonian", "FlagViscousHeating", "FlagStabilizer",
      "FlagEstimateCoolTime", "FlagEstimateFiber", "FlagOutputTecplot", "FlagOutputHyperMeshAvi",
      "FlagCompressibleFlow", "FlagFlowVEcoupling", "FlagStopPackingAfterGateFreeze", "FlagGateFreezeByTemperature",
      "ValueGateFreezeByTemperature", "FlagGateFreezeByFlowRate", "ValueGateFreezeByFlowRate",
      "FlagGateFreezeByWeightDeviation", "ValueGateFreezeByWeightDeviation", "ValueUnFilledElement",
      "IDStopCalculateCriterionType", "ValueGravyX", "ValueGravyY", "ValueGravyZ", "UseTemperatureDLL", "Level1",
      "Level2", "FlagCoreShiftMethod", "FlagStressSolverVolume", "Flag2WayPaddleShiftMethod", "FlagVentingAnalysis",
      "VentingPressure", "VentingTemperature", "FlagParticleTracer", "ValueParticleGroup",
      "FlagWeldingLineParticleTracer", "FlagEstimateCrystall", "FlagInitChargeFiberOrientation",
      "ValueInitChargeFiberExchangeName", "FlagConsiderIMDBC"};
  // clang-format on
  static constexpr Section kSections[] = {taggedSection<"SOLID_FILL", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
