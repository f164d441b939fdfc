// The iteration parameters and their places in the fixed-line head of 19 lines.
#include "blocks/CZEBCMPIteratParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPIteratParm)

ZEB_GETTERS(CZEBCMPIteratParm, ilsolvU, ilsolvV, ilsolvW, ilsolvP, ilsolvF, ilsolvT, iNRestartIU, iNRestartIV,
            iNRestartIW, iNRestartIP, iPreCond, iNiter, iiterStep, iijPresFix, iijProb, iNPPCorr, iNiterGrad,
            iNTimeStep, iTimeStep, ddt, dBlendTime, dtoler, dBlendIU, dBlendIV, dBlendIW, dBlendIP, dBlendIF, dBlendIT,
            iNiterInIU, iNiterInIV, iNiterInIW, iNiterInIP, iNiterInIF, iNiterInIT, dtolerInIU, dtolerInIV, dtolerInIW,
            dtolerInIP, dtolerInIF, dtolerInIT, drelaxIU, drelaxIV, drelaxIW, drelaxIP, drelaxIF, drelaxIT, ilCmpChk,
            dSRRelax, dVisRelax, iCouple_Type, dnonOrthLimitFactor, dCMPMoreParmVersion, iIsLowTempVisCorr,
            dMat_CrossModel2_VisEps, dVisTempLimiter, iIsFaceMassFluxStab, dMat_CrossModel_Ts, dMat_CrossModel_TTx,
            dMat_CrossModel_TTxSlp, iSpruePressCorrLevel, dUltraHighSRVisTuning, dtolerP, dWireEffectWeighting,
            iIsToUseMomSink, iNotToUseBinary, iMFVDebug, iLevel1, iLevel2, iOutputMaxShearStressShearRate,
            iIsUseVolFDLL, iIsSurfaceTension, dHighTempEPS)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPIteratParm>() {
  using T = CZEBCMPIteratParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(ilsolvU), .tabs = 7, .at = {{1, 1}}, .known = "Linear solver for the first velocity component."},
      {ZEB_FIELD(ilsolvV), .tabs = 7, .at = {{1, 2}}, .known = "Linear solver for the second velocity component."},
      {ZEB_FIELD(ilsolvW), .tabs = 7, .at = {{1, 3}}, .known = "Linear solver for the third velocity component."},
      {ZEB_FIELD(ilsolvP), .tabs = 7, .at = {{1, 4}}, .known = "Linear solver for the pressure."},
      {ZEB_FIELD(ilsolvF), .tabs = 7, .at = {{1, 5}}, .known = "Linear solver for the filling fraction."},
      {ZEB_FIELD(ilsolvT), .tabs = 7, .at = {{1, 6}}, .known = "Linear solver for the temperature."},
      {ZEB_FIELD(iNRestartIU), .tabs = 6, .at = {{2, 1}},
       .doc = "Restart count of the linear solver for the first velocity component."},
      {ZEB_FIELD(iNRestartIV), .tabs = 6, .at = {{2, 2}},
       .doc = "Restart count of the linear solver for the second velocity component."},
      {ZEB_FIELD(iNRestartIW), .tabs = 6, .at = {{2, 3}},
       .doc = "Restart count of the linear solver for the third velocity component."},
      {ZEB_FIELD(iNRestartIP), .tabs = 6, .at = {{2, 4}},
       .doc = "Restart count of the linear solver for the pressure."},
      {ZEB_FIELD(iPreCond), .tabs = 7, .at = {{3, 1}}, .known = "Preconditioner."},
      {ZEB_FIELD(iNiter), .tabs = 7, .at = {{4, 1}}, .doc = "Number of iterations."},
      {ZEB_FIELD(iiterStep), .tabs = 6, .at = {{4, 2}}, .known = "Iteration step."},
      {ZEB_FIELD(iijPresFix), .tabs = 6, .at = {{4, 3}}, .known = "Fixing of the pressure."},
      {ZEB_FIELD(iijProb), .tabs = 7, .at = {{4, 4}}, .opaque = true},
      {ZEB_FIELD(iNPPCorr), .tabs = 7, .at = {{4, 5}}, .known = "Number of PP corrections."},
      {ZEB_FIELD(iNiterGrad), .tabs = 6, .at = {{4, 6}}, .doc = "Number of iterations for the gradient."},
      {ZEB_FIELD(iNTimeStep), .tabs = 6, .at = {{5, 1}}, .doc = "Number of time steps."},
      {ZEB_FIELD(iTimeStep), .tabs = 6, .at = {{5, 2}}, .known = "Time step setting."},
      {ZEB_FIELD(ddt), .tabs = 8, .at = {{5, 3}}, .doc = "Size of the time step."},
      {ZEB_FIELD(dBlendTime), .tabs = 6, .at = {{5, 4}}, .doc = "Blending factor in time."},
      {ZEB_FIELD(dtoler), .tabs = 7, .at = {{6, 1}}, .known = "Tolerance."},
      {ZEB_FIELD(dBlendIU), .tabs = 7, .at = {{7, 1}}, .doc = "Blending factor for the first velocity component."},
      {ZEB_FIELD(dBlendIV), .tabs = 7, .at = {{7, 2}}, .doc = "Blending factor for the second velocity component."},
      {ZEB_FIELD(dBlendIW), .tabs = 7, .at = {{7, 3}}, .doc = "Blending factor for the third velocity component."},
      {ZEB_FIELD(dBlendIP), .tabs = 7, .at = {{7, 4}}, .doc = "Blending factor for the pressure."},
      {ZEB_FIELD(dBlendIF), .tabs = 7, .at = {{7, 5}}, .doc = "Blending factor for the filling fraction."},
      {ZEB_FIELD(dBlendIT), .tabs = 7, .at = {{7, 6}}, .doc = "Blending factor for the temperature."},
      {ZEB_FIELD(iNiterInIU), .tabs = 6, .at = {{8, 1}},
       .doc = "Number of inner iterations for the first velocity component."},
      {ZEB_FIELD(iNiterInIV), .tabs = 6, .at = {{8, 2}},
       .doc = "Number of inner iterations for the second velocity component."},
      {ZEB_FIELD(iNiterInIW), .tabs = 6, .at = {{8, 3}},
       .doc = "Number of inner iterations for the third velocity component."},
      {ZEB_FIELD(iNiterInIP), .tabs = 6, .at = {{8, 4}}, .doc = "Number of inner iterations for the pressure."},
      {ZEB_FIELD(iNiterInIF), .tabs = 6, .at = {{8, 5}}, .doc = "Number of inner iterations for the filling fraction."},
      {ZEB_FIELD(iNiterInIT), .tabs = 6, .at = {{8, 6}}, .doc = "Number of inner iterations for the temperature."},
      {ZEB_FIELD(dtolerInIU), .tabs = 6, .at = {{9, 1}}, .doc = "Inner tolerance for the first velocity component."},
      {ZEB_FIELD(dtolerInIV), .tabs = 6, .at = {{9, 2}}, .doc = "Inner tolerance for the second velocity component."},
      {ZEB_FIELD(dtolerInIW), .tabs = 6, .at = {{9, 3}}, .doc = "Inner tolerance for the third velocity component."},
      {ZEB_FIELD(dtolerInIP), .tabs = 6, .at = {{9, 4}}, .doc = "Inner tolerance for the pressure."},
      {ZEB_FIELD(dtolerInIF), .tabs = 6, .at = {{9, 5}}, .doc = "Inner tolerance for the filling fraction."},
      {ZEB_FIELD(dtolerInIT), .tabs = 6, .at = {{9, 6}}, .doc = "Inner tolerance for the temperature."},
      {ZEB_FIELD(drelaxIU), .tabs = 7, .at = {{10, 1}}, .doc = "Relaxation factor for the first velocity component."},
      {ZEB_FIELD(drelaxIV), .tabs = 7, .at = {{10, 2}}, .doc = "Relaxation factor for the second velocity component."},
      {ZEB_FIELD(drelaxIW), .tabs = 7, .at = {{10, 3}}, .doc = "Relaxation factor for the third velocity component."},
      {ZEB_FIELD(drelaxIP), .tabs = 7, .at = {{10, 4}}, .doc = "Relaxation factor for the pressure."},
      {ZEB_FIELD(drelaxIF), .tabs = 7, .at = {{10, 5}}, .doc = "Relaxation factor for the filling fraction."},
      {ZEB_FIELD(drelaxIT), .tabs = 7, .at = {{10, 6}}, .doc = "Relaxation factor for the temperature."},
      {ZEB_FIELD(ilCmpChk), .tabs = 7, .at = {{12, 1}}, .opaque = true},
      {ZEB_FIELD(dSRRelax), .tabs = 7, .at = {{14, 1}}, .known = "Relaxation factor SR."},
      {ZEB_FIELD(dVisRelax), .tabs = 6, .at = {{14, 2}}, .doc = "Relaxation factor for the viscosity."},
      {ZEB_FIELD(iCouple_Type), .tabs = 6, .at = {{16, 1}}, .known = "Type of coupling."},
      {ZEB_FIELD(dnonOrthLimitFactor), .tabs = 4, .at = {{16, 3}}, .doc = "Limit factor for non-orthogonality."},
      {ZEB_FIELD(dCMPMoreParmVersion), .tabs = 4, .doc = "Version of the additional parameters; no input sets it."},
      {ZEB_FIELD(iIsLowTempVisCorr), .tabs = 4, .at = {{18, 2}},
       .known = "Switch: the viscosity is corrected at low temperature."},
      {ZEB_FIELD(dMat_CrossModel2_VisEps), .tabs = 3, .at = {{18, 3}},
       .known = "Viscosity epsilon of the Cross model 2."},
      {ZEB_FIELD(dVisTempLimiter), .tabs = 5, .at = {{18, 4}}, .known = "Temperature limiter of the viscosity."},
      {ZEB_FIELD(iIsFaceMassFluxStab), .tabs = 4,
       .known = "Stabilisation of the mass flux at faces; no input sets it."},
      {ZEB_FIELD(dMat_CrossModel_Ts), .tabs = 4, .at = {{18, 6}}, .known = "Ts of the Cross model."},
      {ZEB_FIELD(dMat_CrossModel_TTx), .tabs = 4, .at = {{18, 7}}, .known = "TTx of the Cross model."},
      {ZEB_FIELD(dMat_CrossModel_TTxSlp), .tabs = 3, .at = {{18, 8}}, .known = "TTxSlp of the Cross model."},
      {ZEB_FIELD(iSpruePressCorrLevel), .tabs = 4, .at = {{18, 9}}, .known = "Level of the sprue pressure correction."},
      {ZEB_FIELD(dUltraHighSRVisTuning), .rule = {.replace = {truncatesToZero(200.0)}}, .tabs = 3, .at = {{18, 10}},
       .known = "Tuning of the viscosity at ultra-high SR."},
      {ZEB_FIELD(dtolerP), .tabs = 7, .doc = "Tolerance of the pressure; no input sets it."},
      {ZEB_FIELD(dWireEffectWeighting), .rule = {.replace = {below(0.0, 0.0), notAbove(0.0, 2.0)}}, .tabs = 4,
       .at = {{19, 1}}, .doc = "Weighting of the wire effect."},
      {ZEB_FIELD(iIsToUseMomSink), .tabs = 5, .at = {{19, 2}}, .doc = "Switch: the momentum sink is used."},
      {ZEB_FIELD(iNotToUseBinary), .tabs = 5, .at = {{19, 3}}, .known = "Switch: binary is not used."},
      {ZEB_FIELD(iMFVDebug), .tabs = 6, .at = {{19, 4}}, .known = "Debugging of MFV."},
      {ZEB_FIELD(iLevel1), .tabs = 7, .at = {{19, 5}}, .opaque = true},
      {ZEB_FIELD(iLevel2), .tabs = 7, .at = {{19, 6}}, .opaque = true},
      {ZEB_FIELD(iOutputMaxShearStressShearRate), .tabs = 1, .at = {{19, 7}},
       .known = "Output of the largest shear stress and shear rate."},
      {ZEB_FIELD(iIsUseVolFDLL), .tabs = 5, .at = {{19, 8}}, .known = "Switch: VolFDLL is used."},
      {ZEB_FIELD(iIsSurfaceTension), .tabs = 4, .at = {{19, 9}},
       .doc = "Switch: surface tension is taken into account."},
      {ZEB_FIELD(dHighTempEPS), .rule = {.replace = {atMost(1e-5, 10000.0)}}, .tabs = 6, .at = {{19, 10}},
       .known = "Epsilon at high temperature."},
  };
  // clang-format on
  static constexpr Slot kDiscarded[] = {
      {{16, 2}, FieldType::kInt, nullptr},
      {{18, 1}, FieldType::kDouble, nullptr},
      {{18, 5}, FieldType::kInt, nullptr},
  };
  // Lines 11, 13, 15 and 17 hold nothing that is kept.
  static constexpr PositionalLayout kLayout{
      .lines = 19, .absentIsZero = 1u << 18 | 1u << 19, .discarded = kDiscarded, .headVersion = 1023};
  static constexpr Section kSections[] = {positionalSection<"VER", kRows, kLayout>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------Iterat Parameters---------");
  return kTable;
}
