// The tables of the standard solver's blocks.
#include "stdcmp/StdBlocks.hpp"

#include "engine/TableBuilder.hpp"

namespace zeb {

namespace {

// The public class has a getter of the same name for every member.
template <auto Member>
consteval Field value() {
  using Block = typename detail::MemberOf<decltype(Member)>::Block;
  Field result = field<Member>();
  result.getter = result.member;
  result.get = [](const void* block) { return static_cast<double>(static_cast<const Block*>(block)->*Member); };
  return result;
}

// No opening announces the head: it follows its version line.
template <const auto& Rows, const auto& Layout>
constexpr Section headSection() {
  Section section = positionalSection<"Head", Rows, Layout>();
  section.open = {};
  section.close = {};
  return section;
}

}  // namespace

template <>
const BlockTable& tableOf<StdSolverSettings>() {
  using T = StdSolverSettings;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = value<&T::ilsolvU>(), .at = {{1, 1}}, .known = "Linear solver of the velocity component U."},
      {.field = value<&T::ilsolvV>(), .at = {{1, 2}}, .known = "Linear solver of the velocity component V."},
      {.field = value<&T::ilsolvW>(), .at = {{1, 3}}, .known = "Linear solver of the velocity component W."},
      {.field = value<&T::ilsolvP>(), .at = {{1, 4}}, .known = "Linear solver of the pressure."},
      {.field = value<&T::ilsolvF>(), .at = {{1, 5}}, .known = "Linear solver of the filling fraction."},
      {.field = value<&T::ilsolvT>(), .at = {{1, 6}}, .known = "Linear solver of the temperature."},
      {.field = value<&T::iNRestartIU>(), .at = {{2, 1}},
       .known = "Restart number of the linear solver of the velocity component U."},
      {.field = value<&T::iNRestartIV>(), .at = {{2, 2}},
       .known = "Restart number of the linear solver of the velocity component V."},
      {.field = value<&T::iNRestartIW>(), .at = {{2, 3}},
       .known = "Restart number of the linear solver of the velocity component W."},
      {.field = value<&T::iNRestartIP>(), .at = {{2, 4}},
       .known = "Restart number of the linear solver of the pressure."},
      {.field = value<&T::iPreCond>(), .at = {{3, 1}}, .known = "Preconditioner of the linear solvers."},
      {.field = value<&T::iNiter>(), .at = {{4, 1}}, .doc = "Number of iterations."},
      {.field = value<&T::iiterStep>(), .at = {{4, 2}}, .known = "Iteration step."},
      {.field = value<&T::iijPresFix>(), .at = {{4, 3}}, .known = "Place of the fixed pressure."},
      {.field = value<&T::iijProb>(), .at = {{4, 4}}, .opaque = true},
      {.field = value<&T::iNPPCorr>(), .at = {{4, 5}}, .doc = "Number of pressure corrections."},
      {.field = value<&T::iNiterGrad>(), .at = {{4, 6}}, .doc = "Number of iterations of the gradients."},
      {.field = value<&T::iNTimeStep>(), .at = {{5, 1}}, .doc = "Number of time steps."},
      {.field = value<&T::iTimeStep>(), .at = {{5, 2}}, .known = "Time step."},
      {.field = value<&T::ddt>(), .at = {{5, 3}}, .doc = "Size of a time step."},
      {.field = value<&T::dBlendTime>(), .at = {{5, 4}}, .known = "Blending factor of the time scheme."},
      {.field = value<&T::dtoler>(), .at = {{6, 1}}, .doc = "Tolerance of the iteration."},
      {.field = value<&T::dBlendIU>(), .at = {{7, 1}}, .known = "Blending factor of the velocity component U."},
      {.field = value<&T::dBlendIV>(), .at = {{7, 2}}, .known = "Blending factor of the velocity component V."},
      {.field = value<&T::dBlendIW>(), .at = {{7, 3}}, .known = "Blending factor of the velocity component W."},
      {.field = value<&T::dBlendIP>(), .at = {{7, 4}}, .known = "Blending factor of the pressure."},
      {.field = value<&T::dBlendIF>(), .at = {{7, 5}}, .known = "Blending factor of the filling fraction."},
      {.field = value<&T::dBlendIT>(), .at = {{7, 6}}, .known = "Blending factor of the temperature."},
      {.field = value<&T::iNiterInIU>(), .at = {{8, 1}},
       .doc = "Number of inner iterations of the velocity component U."},
      {.field = value<&T::iNiterInIV>(), .at = {{8, 2}},
       .doc = "Number of inner iterations of the velocity component V."},
      {.field = value<&T::iNiterInIW>(), .at = {{8, 3}},
       .doc = "Number of inner iterations of the velocity component W."},
      {.field = value<&T::iNiterInIP>(), .at = {{8, 4}}, .doc = "Number of inner iterations of the pressure."},
      {.field = value<&T::iNiterInIF>(), .at = {{8, 5}}, .doc = "Number of inner iterations of the filling fraction."},
      {.field = value<&T::iNiterInIT>(), .at = {{8, 6}}, .doc = "Number of inner iterations of the temperature."},
      {.field = value<&T::dtolerInIU>(), .at = {{9, 1}},
       .doc = "Tolerance of the inner iterations of the velocity component U."},
      {.field = value<&T::dtolerInIV>(), .at = {{9, 2}},
       .doc = "Tolerance of the inner iterations of the velocity component V."},
      {.field = value<&T::dtolerInIW>(), .at = {{9, 3}},
       .doc = "Tolerance of the inner iterations of the velocity component W."},
      {.field = value<&T::dtolerInIP>(), .at = {{9, 4}}, .doc = "Tolerance of the inner iterations of the pressure."},
      {.field = value<&T::dtolerInIF>(), .at = {{9, 5}},
       .doc = "Tolerance of the inner iterations of the filling fraction."},
      {.field = value<&T::dtolerInIT>(), .at = {{9, 6}},
       .doc = "Tolerance of the inner iterations of the temperature."},
      {.field = value<&T::drelaxIU>(), .at = {{10, 1}}, .doc = "Relaxation factor of the velocity component U."},
      {.field = value<&T::drelaxIV>(), .at = {{10, 2}}, .doc = "Relaxation factor of the velocity component V."},
      {.field = value<&T::drelaxIW>(), .at = {{10, 3}}, .doc = "Relaxation factor of the velocity component W."},
      {.field = value<&T::drelaxIP>(), .at = {{10, 4}}, .doc = "Relaxation factor of the pressure."},
      {.field = value<&T::drelaxIF>(), .at = {{10, 5}}, .doc = "Relaxation factor of the filling fraction."},
      {.field = value<&T::drelaxIT>(), .at = {{10, 6}}, .doc = "Relaxation factor of the temperature."},
      {.field = value<&T::ilCmpChk>(), .at = {{12, 1}},
       .doc = "Switch: the repairs for conformal cooling are printed; nonzero: on."},
      {.field = value<&T::dSRRelax>(), .at = {{14, 1}}, .doc = "Relaxation factor of the shear rate."},
      {.field = value<&T::dVisRelax>(), .at = {{14, 2}}, .doc = "Relaxation factor of the viscosity."},
      {.field = value<&T::iCouple_Type>(), .at = {{16, 1}}, .known = "Type of the coupling."},
      {.field = value<&T::dnonOrthLimitFactor>(), .at = {{16, 3}},
       .known = "Limiting factor of the non-orthogonal correction."},
  };
  // clang-format on
  static constexpr Slot kDiscarded[] = {{{16, 2}, FieldType::kInt, nullptr}};
  static constexpr PositionalLayout kLayout{.lines = 17, .discarded = kDiscarded, .headVersion = 1013};
  static constexpr Section kSections[] = {headSection<kRows, kLayout>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}

template <>
const BlockTable& tableOf<StdGeneral>() {
  using T = StdGeneral;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = value<&T::iDeleteMultiTimeVox>(), .key = "DeleteMultiTimeVox", .opaque = true},
      {.field = value<&T::iAutoHTC>(), .key = "AutoHTC",
       .doc = "Switch: the heat transfer coefficient is found automatically."},
      {.field = value<&T::iOutput_HTC_Value>(), .key = "Output_HTC_Value",
       .doc = "Switch: the heat transfer coefficient is written."},
      {.field = value<&T::iBarrelCompressible>(), .key = "BarrelCompressible",
       .doc = "Switch: the melt in the barrel is compressible."},
      {.field = value<&T::iAccelerationType>(), .key = "AccelerationType", .known = "Type of the acceleration."},
      {.field = value<&T::nParticleSubDt>(), .key = "nParticleSubDt", .known = "Number of sub-steps of the particles."},
      {.field = value<&T::iIsTurbFlow>(), .key = "IsTurbFlow", .doc = "Switch: the flow is turbulent."},
      {.field = value<&T::iIsOutputVP>(), .key = "IsOutputVP",
       .doc = "Switch: the switch-over from filling to packing is written."},
      {.field = value<&T::iVPSwitchByClampingLimit>(), .key = "VPSwitchByClampingLimit",
       .doc = "Switch: the limit of the clamping force switches over to packing."},
      {.field = value<&T::iKeepCCF>(), .key = "KeepCCF", .opaque = true},
      {.field = value<&T::iPassCCFField>(), .key = "PassCCFField", .opaque = true},
      {.field = value<&T::iW3FD3FFormat>(), .key = "W3FD3FFormat", .known = "Format of the W3F and D3F files."},
      {.field = value<&T::iFaceVisByHarmonicMean>(), .key = "FaceVisByHarmonicMean",
       .known = "Harmonic mean of the viscosity at faces."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"General", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}

template <>
const BlockTable& tableOf<StdStableFlag>() {
  using T = StdStableFlag;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = value<&T::iIterNum_MeltFrontTemperature>(), .key = "IterNum_MeltFrontTemperature",
       .doc = "Number of iterations of the melt front temperature."},
      {.field = value<&T::nSmooth_dP>(), .key = "nSmooth_dP",
       .doc = "Number of smoothing steps of the pressure difference."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"StableFlag", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}

template <>
const BlockTable& tableOf<StdMultiGate>() {
  using T = StdMultiGate;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = value<&T::iMultipleGateMethod>(), .key = "MultipleGateMethod", .gateBelow = 1,
       .doc = "Method of the multiple gate control; while it is below 1, the other settings are not read."},
      {.field = value<&T::iMultipleGateDebug>(), .key = "Debug", .known = "Debugging of the multiple gate control."},
      {.field = value<&T::iMultipleGateType>(), .key = "InitialType", .known = "Type of the initial guess."},
      {.field = value<&T::iMultipleGateByTimeStep>(), .key = "ByTimeStep", .known = "Control by time steps."},
      {.field = value<&T::dMultipleGateByVolume>(), .key = "ByVolume", .known = "Control by volume."},
      {.field = value<&T::dMultipleGateByCtrlCRRatio>(), .key = "ByCtrlCRRatio", .known = "Control by the CR ratio."},
      {.field = value<&T::iMultiGateOuteriteration>(), .key = "OuterIteration", .doc = "Number of outer iterations."},
      {.field = value<&T::dMultipleGateTolTargetQ>(), .key = "TolTargetQ", .doc = "Tolerance of the target flow rate."},
      {.field = value<&T::dMultipleGateSPAdjustCoeff>(), .key = "SPAdjustRatio",
       .known = "Ratio by which SP is adjusted."},
      {.field = value<&T::dMultipleGateTolInletQ>(), .key = "TolInletQ",
       .doc = "Tolerance of the flow rate at the inlets."},
      {.field = value<&T::dMultipleGateSPVariationLimit>(), .key = "SPVariationLimit",
       .known = "Limit to the variation of SP."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"MultiGate", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}

}  // namespace zeb
