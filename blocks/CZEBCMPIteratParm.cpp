// The iteration parameters and their places in the fixed-line head of 19 lines.
#include "blocks/CZEBCMPIteratParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPIteratParm)

int CZEBCMPIteratParm::ilsolvU() const { return m_ilsolvU; }
int CZEBCMPIteratParm::ilsolvV() const { return m_ilsolvV; }
int CZEBCMPIteratParm::ilsolvW() const { return m_ilsolvW; }
int CZEBCMPIteratParm::ilsolvP() const { return m_ilsolvP; }
int CZEBCMPIteratParm::ilsolvF() const { return m_ilsolvF; }
int CZEBCMPIteratParm::ilsolvT() const { return m_ilsolvT; }
int CZEBCMPIteratParm::iNRestartIU() const { return m_iNRestartIU; }
int CZEBCMPIteratParm::iNRestartIV() const { return m_iNRestartIV; }
int CZEBCMPIteratParm::iNRestartIW() const { return m_iNRestartIW; }
int CZEBCMPIteratParm::iNRestartIP() const { return m_iNRestartIP; }
int CZEBCMPIteratParm::iPreCond() const { return m_iPreCond; }
int CZEBCMPIteratParm::iNiter() const { return m_iNiter; }
int CZEBCMPIteratParm::iiterStep() const { return m_iiterStep; }
int CZEBCMPIteratParm::iijPresFix() const { return m_iijPresFix; }
int CZEBCMPIteratParm::iijProb() const { return m_iijProb; }
int CZEBCMPIteratParm::iNPPCorr() const { return m_iNPPCorr; }
int CZEBCMPIteratParm::iNiterGrad() const { return m_iNiterGrad; }
int CZEBCMPIteratParm::iNTimeStep() const { return m_iNTimeStep; }
int CZEBCMPIteratParm::iTimeStep() const { return m_iTimeStep; }
double CZEBCMPIteratParm::ddt() const { return m_ddt; }
double CZEBCMPIteratParm::dBlendTime() const { return m_dBlendTime; }
double CZEBCMPIteratParm::dtoler() const { return m_dtoler; }
double CZEBCMPIteratParm::dBlendIU() const { return m_dBlendIU; }
double CZEBCMPIteratParm::dBlendIV() const { return m_dBlendIV; }
double CZEBCMPIteratParm::dBlendIW() const { return m_dBlendIW; }
double CZEBCMPIteratParm::dBlendIP() const { return m_dBlendIP; }
double CZEBCMPIteratParm::dBlendIF() const { return m_dBlendIF; }
double CZEBCMPIteratParm::dBlendIT() const { return m_dBlendIT; }
int CZEBCMPIteratParm::iNiterInIU() const { return m_iNiterInIU; }
int CZEBCMPIteratParm::iNiterInIV() const { return m_iNiterInIV; }
int CZEBCMPIteratParm::iNiterInIW() const { return m_iNiterInIW; }
int CZEBCMPIteratParm::iNiterInIP() const { return m_iNiterInIP; }
int CZEBCMPIteratParm::iNiterInIF() const { return m_iNiterInIF; }
int CZEBCMPIteratParm::iNiterInIT() const { return m_iNiterInIT; }
double CZEBCMPIteratParm::dtolerInIU() const { return m_dtolerInIU; }
double CZEBCMPIteratParm::dtolerInIV() const { return m_dtolerInIV; }
double CZEBCMPIteratParm::dtolerInIW() const { return m_dtolerInIW; }
double CZEBCMPIteratParm::dtolerInIP() const { return m_dtolerInIP; }
double CZEBCMPIteratParm::dtolerInIF() const { return m_dtolerInIF; }
double CZEBCMPIteratParm::dtolerInIT() const { return m_dtolerInIT; }
double CZEBCMPIteratParm::drelaxIU() const { return m_drelaxIU; }
double CZEBCMPIteratParm::drelaxIV() const { return m_drelaxIV; }
double CZEBCMPIteratParm::drelaxIW() const { return m_drelaxIW; }
double CZEBCMPIteratParm::drelaxIP() const { return m_drelaxIP; }
double CZEBCMPIteratParm::drelaxIF() const { return m_drelaxIF; }
double CZEBCMPIteratParm::drelaxIT() const { return m_drelaxIT; }
int CZEBCMPIteratParm::ilCmpChk() const { return m_ilCmpChk; }
double CZEBCMPIteratParm::dSRRelax() const { return m_dSRRelax; }
double CZEBCMPIteratParm::dVisRelax() const { return m_dVisRelax; }
int CZEBCMPIteratParm::iCouple_Type() const { return m_iCouple_Type; }
double CZEBCMPIteratParm::dnonOrthLimitFactor() const { return m_dnonOrthLimitFactor; }
double CZEBCMPIteratParm::dCMPMoreParmVersion() const { return m_dCMPMoreParmVersion; }
int CZEBCMPIteratParm::iIsLowTempVisCorr() const { return m_iIsLowTempVisCorr; }
double CZEBCMPIteratParm::dMat_CrossModel2_VisEps() const { return m_dMat_CrossModel2_VisEps; }
double CZEBCMPIteratParm::dVisTempLimiter() const { return m_dVisTempLimiter; }
int CZEBCMPIteratParm::iIsFaceMassFluxStab() const { return m_iIsFaceMassFluxStab; }
double CZEBCMPIteratParm::dMat_CrossModel_Ts() const { return m_dMat_CrossModel_Ts; }
double CZEBCMPIteratParm::dMat_CrossModel_TTx() const { return m_dMat_CrossModel_TTx; }
double CZEBCMPIteratParm::dMat_CrossModel_TTxSlp() const { return m_dMat_CrossModel_TTxSlp; }
int CZEBCMPIteratParm::iSpruePressCorrLevel() const { return m_iSpruePressCorrLevel; }
double CZEBCMPIteratParm::dUltraHighSRVisTuning() const { return m_dUltraHighSRVisTuning; }
double CZEBCMPIteratParm::dtolerP() const { return m_dtolerP; }
double CZEBCMPIteratParm::dWireEffectWeighting() const { return m_dWireEffectWeighting; }
int CZEBCMPIteratParm::iIsToUseMomSink() const { return m_iIsToUseMomSink; }
int CZEBCMPIteratParm::iNotToUseBinary() const { return m_iNotToUseBinary; }
int CZEBCMPIteratParm::iMFVDebug() const { return m_iMFVDebug; }
int CZEBCMPIteratParm::iLevel1() const { return m_iLevel1; }
int CZEBCMPIteratParm::iLevel2() const { return m_iLevel2; }
int CZEBCMPIteratParm::iOutputMaxShearStressShearRate() const { return m_iOutputMaxShearStressShearRate; }
int CZEBCMPIteratParm::iIsUseVolFDLL() const { return m_iIsUseVolFDLL; }
int CZEBCMPIteratParm::iIsSurfaceTension() const { return m_iIsSurfaceTension; }
double CZEBCMPIteratParm::dHighTempEPS() const { return m_dHighTempEPS; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPIteratParm>() {
  using T = CZEBCMPIteratParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_ilsolvU, &T::ilsolvU>(), .tabs = 7, .at = {{1, 1}},
       .doc = "Linear solver for the first velocity component.", .opaque = true},
      {.field = field<&T::m_ilsolvV, &T::ilsolvV>(), .tabs = 7, .at = {{1, 2}},
       .doc = "Linear solver for the second velocity component.", .opaque = true},
      {.field = field<&T::m_ilsolvW, &T::ilsolvW>(), .tabs = 7, .at = {{1, 3}},
       .doc = "Linear solver for the third velocity component.", .opaque = true},
      {.field = field<&T::m_ilsolvP, &T::ilsolvP>(), .tabs = 7, .at = {{1, 4}},
       .doc = "Linear solver for the pressure.", .opaque = true},
      {.field = field<&T::m_ilsolvF, &T::ilsolvF>(), .tabs = 7, .at = {{1, 5}},
       .doc = "Linear solver for the filling fraction.", .opaque = true},
      {.field = field<&T::m_ilsolvT, &T::ilsolvT>(), .tabs = 7, .at = {{1, 6}},
       .doc = "Linear solver for the temperature.", .opaque = true},
      {.field = field<&T::m_iNRestartIU, &T::iNRestartIU>(), .tabs = 6, .at = {{2, 1}},
       .doc = "Restart count of the linear solver for the first velocity component."},
      {.field = field<&T::m_iNRestartIV, &T::iNRestartIV>(), .tabs = 6, .at = {{2, 2}},
       .doc = "Restart count of the linear solver for the second velocity component."},
      {.field = field<&T::m_iNRestartIW, &T::iNRestartIW>(), .tabs = 6, .at = {{2, 3}},
       .doc = "Restart count of the linear solver for the third velocity component."},
      {.field = field<&T::m_iNRestartIP, &T::iNRestartIP>(), .tabs = 6, .at = {{2, 4}},
       .doc = "Restart count of the linear solver for the pressure."},
      {.field = field<&T::m_iPreCond, &T::iPreCond>(), .tabs = 7, .at = {{3, 1}}, .doc = "Preconditioner.",
       .opaque = true},
      {.field = field<&T::m_iNiter, &T::iNiter>(), .tabs = 7, .at = {{4, 1}}, .doc = "Number of iterations."},
      {.field = field<&T::m_iiterStep, &T::iiterStep>(), .tabs = 6, .at = {{4, 2}}, .doc = "Iteration step.",
       .opaque = true},
      {.field = field<&T::m_iijPresFix, &T::iijPresFix>(), .tabs = 6, .at = {{4, 3}}, .doc = "Fixing of the pressure.",
       .opaque = true},
      {.field = field<&T::m_iijProb, &T::iijProb>(), .tabs = 7, .at = {{4, 4}}, .opaque = true},
      {.field = field<&T::m_iNPPCorr, &T::iNPPCorr>(), .tabs = 7, .at = {{4, 5}}, .doc = "Number of PP corrections.",
       .opaque = true},
      {.field = field<&T::m_iNiterGrad, &T::iNiterGrad>(), .tabs = 6, .at = {{4, 6}},
       .doc = "Number of iterations for the gradient."},
      {.field = field<&T::m_iNTimeStep, &T::iNTimeStep>(), .tabs = 6, .at = {{5, 1}}, .doc = "Number of time steps."},
      {.field = field<&T::m_iTimeStep, &T::iTimeStep>(), .tabs = 6, .at = {{5, 2}}, .doc = "Time step setting.",
       .opaque = true},
      {.field = field<&T::m_ddt, &T::ddt>(), .tabs = 8, .at = {{5, 3}}, .doc = "Size of the time step."},
      {.field = field<&T::m_dBlendTime, &T::dBlendTime>(), .tabs = 6, .at = {{5, 4}},
       .doc = "Blending factor in time."},
      {.field = field<&T::m_dtoler, &T::dtoler>(), .tabs = 7, .at = {{6, 1}}, .doc = "Tolerance.", .opaque = true},
      {.field = field<&T::m_dBlendIU, &T::dBlendIU>(), .tabs = 7, .at = {{7, 1}},
       .doc = "Blending factor for the first velocity component."},
      {.field = field<&T::m_dBlendIV, &T::dBlendIV>(), .tabs = 7, .at = {{7, 2}},
       .doc = "Blending factor for the second velocity component."},
      {.field = field<&T::m_dBlendIW, &T::dBlendIW>(), .tabs = 7, .at = {{7, 3}},
       .doc = "Blending factor for the third velocity component."},
      {.field = field<&T::m_dBlendIP, &T::dBlendIP>(), .tabs = 7, .at = {{7, 4}},
       .doc = "Blending factor for the pressure."},
      {.field = field<&T::m_dBlendIF, &T::dBlendIF>(), .tabs = 7, .at = {{7, 5}},
       .doc = "Blending factor for the filling fraction."},
      {.field = field<&T::m_dBlendIT, &T::dBlendIT>(), .tabs = 7, .at = {{7, 6}},
       .doc = "Blending factor for the temperature."},
      {.field = field<&T::m_iNiterInIU, &T::iNiterInIU>(), .tabs = 6, .at = {{8, 1}},
       .doc = "Number of inner iterations for the first velocity component."},
      {.field = field<&T::m_iNiterInIV, &T::iNiterInIV>(), .tabs = 6, .at = {{8, 2}},
       .doc = "Number of inner iterations for the second velocity component."},
      {.field = field<&T::m_iNiterInIW, &T::iNiterInIW>(), .tabs = 6, .at = {{8, 3}},
       .doc = "Number of inner iterations for the third velocity component."},
      {.field = field<&T::m_iNiterInIP, &T::iNiterInIP>(), .tabs = 6, .at = {{8, 4}},
       .doc = "Number of inner iterations for the pressure."},
      {.field = field<&T::m_iNiterInIF, &T::iNiterInIF>(), .tabs = 6, .at = {{8, 5}},
       .doc = "Number of inner iterations for the filling fraction."},
      {.field = field<&T::m_iNiterInIT, &T::iNiterInIT>(), .tabs = 6, .at = {{8, 6}},
       .doc = "Number of inner iterations for the temperature."},
      {.field = field<&T::m_dtolerInIU, &T::dtolerInIU>(), .tabs = 6, .at = {{9, 1}},
       .doc = "Inner tolerance for the first velocity component."},
      {.field = field<&T::m_dtolerInIV, &T::dtolerInIV>(), .tabs = 6, .at = {{9, 2}},
       .doc = "Inner tolerance for the second velocity component."},
      {.field = field<&T::m_dtolerInIW, &T::dtolerInIW>(), .tabs = 6, .at = {{9, 3}},
       .doc = "Inner tolerance for the third velocity component."},
      {.field = field<&T::m_dtolerInIP, &T::dtolerInIP>(), .tabs = 6, .at = {{9, 4}},
       .doc = "Inner tolerance for the pressure."},
      {.field = field<&T::m_dtolerInIF, &T::dtolerInIF>(), .tabs = 6, .at = {{9, 5}},
       .doc = "Inner tolerance for the filling fraction."},
      {.field = field<&T::m_dtolerInIT, &T::dtolerInIT>(), .tabs = 6, .at = {{9, 6}},
       .doc = "Inner tolerance for the temperature."},
      {.field = field<&T::m_drelaxIU, &T::drelaxIU>(), .tabs = 7, .at = {{10, 1}},
       .doc = "Relaxation factor for the first velocity component."},
      {.field = field<&T::m_drelaxIV, &T::drelaxIV>(), .tabs = 7, .at = {{10, 2}},
       .doc = "Relaxation factor for the second velocity component."},
      {.field = field<&T::m_drelaxIW, &T::drelaxIW>(), .tabs = 7, .at = {{10, 3}},
       .doc = "Relaxation factor for the third velocity component."},
      {.field = field<&T::m_drelaxIP, &T::drelaxIP>(), .tabs = 7, .at = {{10, 4}},
       .doc = "Relaxation factor for the pressure."},
      {.field = field<&T::m_drelaxIF, &T::drelaxIF>(), .tabs = 7, .at = {{10, 5}},
       .doc = "Relaxation factor for the filling fraction."},
      {.field = field<&T::m_drelaxIT, &T::drelaxIT>(), .tabs = 7, .at = {{10, 6}},
       .doc = "Relaxation factor for the temperature."},
      {.field = field<&T::m_ilCmpChk, &T::ilCmpChk>(), .tabs = 7, .at = {{12, 1}}, .opaque = true},
      {.field = field<&T::m_dSRRelax, &T::dSRRelax>(), .tabs = 7, .at = {{14, 1}}, .doc = "Relaxation factor SR.",
       .opaque = true},
      {.field = field<&T::m_dVisRelax, &T::dVisRelax>(), .tabs = 6, .at = {{14, 2}},
       .doc = "Relaxation factor for the viscosity."},
      {.field = field<&T::m_iCouple_Type, &T::iCouple_Type>(), .tabs = 6, .at = {{16, 1}}, .doc = "Type of coupling.",
       .opaque = true},
      {.field = field<&T::m_dnonOrthLimitFactor, &T::dnonOrthLimitFactor>(), .tabs = 4, .at = {{16, 3}},
       .doc = "Limit factor for non-orthogonality."},
      {.field = field<&T::m_dCMPMoreParmVersion, &T::dCMPMoreParmVersion>(), .tabs = 4,
       .doc = "Version of the additional parameters; no input sets it."},
      {.field = field<&T::m_iIsLowTempVisCorr, &T::iIsLowTempVisCorr>(), .tabs = 4, .at = {{18, 2}},
       .doc = "Switch: the viscosity is corrected at low temperature.", .opaque = true},
      {.field = field<&T::m_dMat_CrossModel2_VisEps, &T::dMat_CrossModel2_VisEps>(), .tabs = 3, .at = {{18, 3}},
       .doc = "Viscosity epsilon of the Cross model 2.", .opaque = true},
      {.field = field<&T::m_dVisTempLimiter, &T::dVisTempLimiter>(), .tabs = 5, .at = {{18, 4}},
       .doc = "Temperature limiter of the viscosity.", .opaque = true},
      {.field = field<&T::m_iIsFaceMassFluxStab, &T::iIsFaceMassFluxStab>(), .tabs = 4,
       .doc = "Stabilisation of the mass flux at faces; no input sets it.", .opaque = true},
      {.field = field<&T::m_dMat_CrossModel_Ts, &T::dMat_CrossModel_Ts>(), .tabs = 4, .at = {{18, 6}},
       .doc = "Ts of the Cross model.", .opaque = true},
      {.field = field<&T::m_dMat_CrossModel_TTx, &T::dMat_CrossModel_TTx>(), .tabs = 4, .at = {{18, 7}},
       .doc = "TTx of the Cross model.", .opaque = true},
      {.field = field<&T::m_dMat_CrossModel_TTxSlp, &T::dMat_CrossModel_TTxSlp>(), .tabs = 3, .at = {{18, 8}},
       .doc = "TTxSlp of the Cross model.", .opaque = true},
      {.field = field<&T::m_iSpruePressCorrLevel, &T::iSpruePressCorrLevel>(), .tabs = 4, .at = {{18, 9}},
       .doc = "Level of the sprue pressure correction.", .opaque = true},
      {.field = field<&T::m_dUltraHighSRVisTuning, &T::dUltraHighSRVisTuning>(),
       .rule = {.replace = {truncatesToZero(200.0)}}, .tabs = 3, .at = {{18, 10}},
       .doc = "Tuning of the viscosity at ultra-high SR.", .opaque = true},
      {.field = field<&T::m_dtolerP, &T::dtolerP>(), .tabs = 7, .doc = "Tolerance of the pressure; no input sets it."},
      {.field = field<&T::m_dWireEffectWeighting, &T::dWireEffectWeighting>(),
       .rule = {.replace = {below(0.0, 0.0), notAbove(0.0, 2.0)}}, .tabs = 4, .at = {{19, 1}},
       .doc = "Weighting of the wire effect."},
      {.field = field<&T::m_iIsToUseMomSink, &T::iIsToUseMomSink>(), .tabs = 5, .at = {{19, 2}},
       .doc = "Switch: the momentum sink is used."},
      {.field = field<&T::m_iNotToUseBinary, &T::iNotToUseBinary>(), .tabs = 5, .at = {{19, 3}},
       .doc = "Switch: binary is not used.", .opaque = true},
      {.field = field<&T::m_iMFVDebug, &T::iMFVDebug>(), .tabs = 6, .at = {{19, 4}}, .doc = "Debugging of MFV.",
       .opaque = true},
      {.field = field<&T::m_iLevel1, &T::iLevel1>(), .tabs = 7, .at = {{19, 5}}, .opaque = true},
      {.field = field<&T::m_iLevel2, &T::iLevel2>(), .tabs = 7, .at = {{19, 6}}, .opaque = true},
      {.field = field<&T::m_iOutputMaxShearStressShearRate, &T::iOutputMaxShearStressShearRate>(), .tabs = 1,
       .at = {{19, 7}}, .doc = "Output of the largest shear stress and shear rate.", .opaque = true},
      {.field = field<&T::m_iIsUseVolFDLL, &T::iIsUseVolFDLL>(), .tabs = 5, .at = {{19, 8}},
       .doc = "Switch: VolFDLL is used.", .opaque = true},
      {.field = field<&T::m_iIsSurfaceTension, &T::iIsSurfaceTension>(), .tabs = 4, .at = {{19, 9}},
       .doc = "Switch: surface tension is taken into account."},
      {.field = field<&T::m_dHighTempEPS, &T::dHighTempEPS>(), .rule = {.replace = {atMost(1e-5, 10000.0)}}, .tabs = 6,
       .at = {{19, 10}}, .doc = "Epsilon at high temperature.", .opaque = true},
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
