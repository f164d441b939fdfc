#include "cmx/CZEBCMX_SOLID_FILL.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMX_SOLID_FILL)

int CZEBCMX_SOLID_FILL::iSolidFillBlockVersion() const { return m_iSolidFillBlockVersion; }
int CZEBCMX_SOLID_FILL::iIDSolver() const { return m_iIDSolver; }
double CZEBCMX_SOLID_FILL::dEfficiencyFactor() const { return m_dEfficiencyFactor; }
int CZEBCMX_SOLID_FILL::iFiberEfficiencyFactor() const { return m_iFiberEfficiencyFactor; }
double CZEBCMX_SOLID_FILL::dFillEOFPercentage() const { return m_dFillEOFPercentage; }
int CZEBCMX_SOLID_FILL::iMeshType() const { return m_iMeshType; }
int CZEBCMX_SOLID_FILL::iEstimateFiber() const { return m_iEstimateFiber; }
int CZEBCMX_SOLID_FILL::iUnFilledCells() const { return m_iUnFilledCells; }
int CZEBCMX_SOLID_FILL::iStopCalculateCriterionType() const { return m_iStopCalculateCriterionType; }
int CZEBCMX_SOLID_FILL::bIsUseTemperatureDLL() const { return m_bIsUseTemperatureDLL; }
int CZEBCMX_SOLID_FILL::iUseTemperatureDLL_Level1() const { return m_iUseTemperatureDLL_Level1; }
int CZEBCMX_SOLID_FILL::iUseTemperatureDLL_Level2() const { return m_iUseTemperatureDLL_Level2; }
int CZEBCMX_SOLID_FILL::iEstimateCoolTime() const { return m_iEstimateCoolTime; }
double CZEBCMX_SOLID_FILL::dGravX() const { return m_dGravX; }
double CZEBCMX_SOLID_FILL::dGravY() const { return m_dGravY; }
double CZEBCMX_SOLID_FILL::dGravZ() const { return m_dGravZ; }
int CZEBCMX_SOLID_FILL::ilStab() const { return m_ilStab; }
int CZEBCMX_SOLID_FILL::ilTec() const { return m_ilTec; }
int CZEBCMX_SOLID_FILL::ilHMAVI() const { return m_ilHMAVI; }
int CZEBCMX_SOLID_FILL::ilVisHeat() const { return m_ilVisHeat; }
int CZEBCMX_SOLID_FILL::ilGNF() const { return m_ilGNF; }
int CZEBCMX_SOLID_FILL::ilNIsoT() const { return m_ilNIsoT; }
int CZEBCMX_SOLID_FILL::ilInertia() const { return m_ilInertia; }
int CZEBCMX_SOLID_FILL::ilAnaMode() const { return m_ilAnaMode; }
int CZEBCMX_SOLID_FILL::ilCompressible() const { return m_ilCompressible; }
int CZEBCMX_SOLID_FILL::ilFlowVEcoupling() const { return m_ilFlowVEcoupling; }
int CZEBCMX_SOLID_FILL::iCoreShiftMethod() const { return m_iCoreShiftMethod; }
double CZEBCMX_SOLID_FILL::dVolumeFilledCallStress() const { return m_dVolumeFilledCallStress; }
int CZEBCMX_SOLID_FILL::i2WayPSMethod() const { return m_i2WayPSMethod; }
int CZEBCMX_SOLID_FILL::iVentingOption() const { return m_iVentingOption; }
double CZEBCMX_SOLID_FILL::dVentingPressure() const { return m_dVentingPressure; }
double CZEBCMX_SOLID_FILL::dVentingTemperature() const { return m_dVentingTemperature; }
int CZEBCMX_SOLID_FILL::iParticleTracer() const { return m_iParticleTracer; }
int CZEBCMX_SOLID_FILL::nParticleGroup() const { return m_nParticleGroup; }
int CZEBCMX_SOLID_FILL::iWeldLineParticleTracer() const { return m_iWeldLineParticleTracer; }
int CZEBCMX_SOLID_FILL::iCrystalline() const { return m_iCrystalline; }
int CZEBCMX_SOLID_FILL::iInitChargeFiberOrientation() const { return m_iInitChargeFiberOrientation; }
const char* CZEBCMX_SOLID_FILL::strInitChargeFiber() const { return m_strInitChargeFiber.get(); }
int CZEBCMX_SOLID_FILL::iIMDCtrl() const { return m_iIMDCtrl; }
int CZEBCMX_SOLID_FILL::iStopPackingAfterGateFreeze() const { return m_iStopPackingAfterGateFreeze; }
int CZEBCMX_SOLID_FILL::iGateFreezeByTemperature() const { return m_iGateFreezeByTemperature; }
double CZEBCMX_SOLID_FILL::dGateFreezeByTemperature() const { return m_dGateFreezeByTemperature; }
int CZEBCMX_SOLID_FILL::iGateFreezeByFlowRate() const { return m_iGateFreezeByFlowRate; }
double CZEBCMX_SOLID_FILL::dGateFreezeByFlowRate() const { return m_dGateFreezeByFlowRate; }
int CZEBCMX_SOLID_FILL::iGateFreezeByWeightDeviation() const { return m_iGateFreezeByWeightDeviation; }
double CZEBCMX_SOLID_FILL::dGateFreezeByWeightDeviation() const { return m_dGateFreezeByWeightDeviation; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMX_SOLID_FILL>() {
  using T = CZEBCMX_SOLID_FILL;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iSolidFillBlockVersion, &T::iSolidFillBlockVersion>(), .key = "Version",
       .doc = "Version of the block."},
      {.field = field<&T::m_iIDSolver, &T::iIDSolver>(), .key = "IDSolver", .doc = "Choice of the filling solver.",
       .opaque = true},
      {.field = field<&T::m_dEfficiencyFactor, &T::dEfficiencyFactor>(), .key = "IDEfficiencyFactor",
       .doc = "Efficiency factor of the filling solver.", .opaque = true},
      {.field = field<&T::m_iFiberEfficiencyFactor, &T::iFiberEfficiencyFactor>(), .key = "IDFiberEfficiencyFactor",
       .doc = "Efficiency factor of the fiber calculation.", .opaque = true},
      {.field = field<&T::m_dFillEOFPercentage, &T::dFillEOFPercentage>(), .key = "ValueEOFPercent",
       .doc = "Filled fraction at which filling ends."},
      {.field = field<&T::m_iMeshType, &T::iMeshType>(), .key = "MeshType", .doc = "Type of the mesh.", .opaque = true},
      {.field = field<&T::m_iEstimateFiber, &T::iEstimateFiber>(), .key = "FlagEstimateFiber",
       .doc = "Switch: the fiber orientation is calculated."},
      {.field = field<&T::m_iUnFilledCells, &T::iUnFilledCells>(), .key = "ValueUnFilledElement",
       .doc = "Number of unfilled cells.", .opaque = true},
      {.field = field<&T::m_iStopCalculateCriterionType, &T::iStopCalculateCriterionType>(),
       .key = "IDStopCalculateCriterionType", .doc = "Type of the criterion that stops the calculation.",
       .opaque = true},
      {.field = field<&T::m_bIsUseTemperatureDLL, &T::bIsUseTemperatureDLL>(), .key = "UseTemperatureDLL",
       .doc = "Switch: the temperature comes from a library of its own."},
      {.field = field<&T::m_iUseTemperatureDLL_Level1, &T::iUseTemperatureDLL_Level1>(), .key = "Level1",
       .doc = "Level 1 of the temperature library.", .opaque = true},
      {.field = field<&T::m_iUseTemperatureDLL_Level2, &T::iUseTemperatureDLL_Level2>(), .key = "Level2",
       .doc = "Level 2 of the temperature library.", .opaque = true},
      {.field = field<&T::m_iEstimateCoolTime, &T::iEstimateCoolTime>(), .key = "FlagEstimateCoolTime",
       .doc = "Switch: the cooling time is estimated."},
      {.field = field<&T::m_dGravX, &T::dGravX>(), .key = "ValueGravyX", .otherKey = "ValueGravityX",
       .doc = "Gravity in x direction."},
      {.field = field<&T::m_dGravY, &T::dGravY>(), .key = "ValueGravyY", .otherKey = "ValueGravityY",
       .doc = "Gravity in y direction."},
      {.field = field<&T::m_dGravZ, &T::dGravZ>(), .key = "ValueGravyZ", .otherKey = "ValueGravityZ",
       .doc = "Gravity in z direction."},
      {.field = field<&T::m_ilStab, &T::ilStab>(), .key = "FlagStabilizer", .doc = "Switch: the stabilizer is used."},
      {.field = field<&T::m_ilTec, &T::ilTec>(), .key = "FlagOutputTecplot", .doc = "Switch: output for Tecplot."},
      {.field = field<&T::m_ilHMAVI, &T::ilHMAVI>(), .key = "FlagOutputHyperMeshAvi",
       .doc = "Switch: animation output for HyperMesh."},
      {.field = field<&T::m_ilVisHeat, &T::ilVisHeat>(), .key = "FlagViscousHeating",
       .doc = "Switch: viscous heating is considered."},
      {.field = field<&T::m_ilGNF, &T::ilGNF>(), .key = "FlagNonNewtonian",
       .doc = "Switch: the melt is a non-Newtonian fluid."},
      {.field = field<&T::m_ilNIsoT, &T::ilNIsoT>(), .key = "FlagNonIsothermal",
       .doc = "Switch: the flow is non-isothermal."},
      {.field = field<&T::m_ilInertia, &T::ilInertia>(), .key = "FlagInertia", .doc = "Switch: inertia is considered."},
      {.field = field<&T::m_ilAnaMode, &T::ilAnaMode>(), .key = "IDAnalysisMode", .doc = "Analysis mode.",
       .opaque = true},
      {.field = field<&T::m_ilCompressible, &T::ilCompressible>(), .key = "FlagCompressibleFlow",
       .doc = "Switch: the flow is compressible."},
      {.field = field<&T::m_ilFlowVEcoupling, &T::ilFlowVEcoupling>(), .key = "FlagFlowVEcoupling",
       .doc = "Switch: the flow is coupled with the viscoelastic calculation."},
      {.field = field<&T::m_iCoreShiftMethod, &T::iCoreShiftMethod>(), .key = "FlagCoreShiftMethod",
       .doc = "Method of the core shift calculation.", .opaque = true},
      {.field = field<&T::m_dVolumeFilledCallStress, &T::dVolumeFilledCallStress>(), .key = "FlagStressSolverVolume",
       .doc = "Filled volume at which the stress solver is called."},
      {.field = field<&T::m_i2WayPSMethod, &T::i2WayPSMethod>(), .key = "Flag2WayPaddleShiftMethod",
       .doc = "Method of the two-way paddle shift calculation.", .opaque = true},
      {.field = field<&T::m_iVentingOption, &T::iVentingOption>(), .key = "FlagVentingAnalysis",
       .doc = "Option of the venting analysis.", .opaque = true},
      {.field = field<&T::m_dVentingPressure, &T::dVentingPressure>(), .key = "VentingPressure",
       .doc = "Pressure at the vents."},
      {.field = field<&T::m_dVentingTemperature, &T::dVentingTemperature>(), .key = "VentingTemperature",
       .doc = "Temperature at the vents."},
      {.field = field<&T::m_iParticleTracer, &T::iParticleTracer>(), .key = "FlagParticleTracer",
       .doc = "Switch: particles are traced."},
      {.field = field<&T::m_nParticleGroup, &T::nParticleGroup>(), .key = "ValueParticleGroup",
       .doc = "Number of particle groups."},
      {.field = field<&T::m_iWeldLineParticleTracer, &T::iWeldLineParticleTracer>(),
       .key = "FlagWeldingLineParticleTracer", .doc = "Switch: particles of the weld lines are traced."},
      {.field = field<&T::m_iCrystalline, &T::iCrystalline>(), .key = "FlagEstimateCrystall",
       .doc = "Switch: crystallization is calculated."},
      {.field = field<&T::m_iInitChargeFiberOrientation, &T::iInitChargeFiberOrientation>(),
       .key = "FlagInitChargeFiberOrientation", .doc = "Switch: the charge has an initial fiber orientation."},
      {.field = field<&T::m_strInitChargeFiber, &T::strInitChargeFiber>(), .key = "ValueInitChargeFiberExchangeName",
       .lookup = Lookup::kWord, .textBuffer = T::kNameSize,
       .doc = "Name of the exchange file with the charge's initial fiber orientation."},
      {.field = field<&T::m_iIMDCtrl, &T::iIMDCtrl>(), .key = "FlagConsiderIMDBC",
       .doc = "Switch: the boundary condition of in-mold decoration is considered."},
      {.field = field<&T::m_iStopPackingAfterGateFreeze, &T::iStopPackingAfterGateFreeze>(),
       .key = "FlagStopPackingAfterGateFreeze", .doc = "Switch: packing stops when the gates are frozen."},
      {.field = field<&T::m_iGateFreezeByTemperature, &T::iGateFreezeByTemperature>(),
       .key = "FlagGateFreezeByTemperature", .doc = "Switch: temperature tells whether a gate is frozen."},
      {.field = field<&T::m_dGateFreezeByTemperature, &T::dGateFreezeByTemperature>(),
       .key = "ValueGateFreezeByTemperature", .doc = "Temperature at which a gate is frozen."},
      {.field = field<&T::m_iGateFreezeByFlowRate, &T::iGateFreezeByFlowRate>(), .key = "FlagGateFreezeByFlowRate",
       .doc = "Switch: flow rate tells whether a gate is frozen."},
      {.field = field<&T::m_dGateFreezeByFlowRate, &T::dGateFreezeByFlowRate>(), .key = "ValueGateFreezeByFlowRate",
       .doc = "Flow rate at which a gate is frozen."},
      {.field = field<&T::m_iGateFreezeByWeightDeviation, &T::iGateFreezeByWeightDeviation>(),
       .key = "FlagGateFreezeByWeightDeviation", .doc = "Switch: weight deviation tells whether a gate is frozen."},
      {.field = field<&T::m_dGateFreezeByWeightDeviation, &T::dGateFreezeByWeightDeviation>(),
       .key = "ValueGateFreezeByWeightDeviation", .doc = "Weight deviation at which a gate is frozen."},
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
