#include "blocks/CZEBCMPVEParm.h"

#include <algorithm>
#include <string>

#include "engine/ListEngine.hpp"
#include "engine/SectionEngine.hpp"
#include "engine/TableBuilder.hpp"
#include "engine/TextOutput.hpp"

CZEBCMPVEParm::CZEBCMPVEParm() { InitBoundingParameters(); }
CZEBCMPVEParm::CZEBCMPVEParm(const CZEBCMPVEParm& other) = default;
CZEBCMPVEParm::~CZEBCMPVEParm() = default;
CZEBCMPVEParm& CZEBCMPVEParm::operator=(const CZEBCMPVEParm& other) = default;

int CZEBCMPVEParm::InitBoundingParameters() {
  struct Bound {
    double CZEBCMPVEParm::*member;
    double model1;
    double model2;
    double anyOther;
  };
  // clang-format off
  static constexpr Bound kBounds[] = {
      //                                       model 1  model 2  any other
      {&CZEBCMPVEParm::m_dPackPressureLowBond,     0.0,     0.0,     0.0},
      {&CZEBCMPVEParm::m_dShrateUpBond2,        5000.0,  5000.0,  5000.0},
      {&CZEBCMPVEParm::m_dModifyLamdaLowT,         1.0,     1.0,     1.0},
      {&CZEBCMPVEParm::m_dShrateUpBond1,        1000.0,  1000.0,  1000.0},
      {&CZEBCMPVEParm::m_dFreezeLamda,          1000.0,  1000.0,  1000.0},
      {&CZEBCMPVEParm::m_dShrateLowBond1,          1.0,    10.0,    10.0},
      {&CZEBCMPVEParm::m_dModifyLamdaShrateUB,     0.1,     1.0,     1.0},
      {&CZEBCMPVEParm::m_dModifyLamdaShrateLB,    10.0,     1.0,     1.0},
      {&CZEBCMPVEParm::m_dShrateLowBond2,       1000.0,    50.0,    50.0},
      {&CZEBCMPVEParm::m_dStressUpBond,            2e8,     2e8,     2e8},
      {&CZEBCMPVEParm::m_dModifyLamdaStressUB,    0.01,    0.01,     1.0},
      {&CZEBCMPVEParm::m_dPackShrateUpBond,    10000.0, 10000.0, 10000.0},
      {&CZEBCMPVEParm::m_dFreezeViscosity,         1e6,     1e6,     1e6},
  };
  // clang-format on
  for (const Bound& bound : kBounds) {
    this->*bound.member = m_iVEModel == 1 ? bound.model1 : m_iVEModel == 2 ? bound.model2 : bound.anyOther;
  }
  m_dTLowBond = m_dTgPoint;
  return 1;
}

int CZEBCMPVEParm::setIstoCalcRS(bool value) {
  m_bIstoCalcRS = value;
  return 1;
}
int CZEBCMPVEParm::setVEModel(int value) {
  m_iVEModel = value;
  return 1;
}
int CZEBCMPVEParm::setTgPoint(double value) {
  m_dTgPoint = value;
  return 1;
}

int CZEBCMPVEParm::getVEModel() const { return m_iVEModel; }
int CZEBCMPVEParm::getVECMPVersion() const { return m_iVECMPVersion; }
double CZEBCMPVEParm::getRelaxationFactor_Tau() const { return m_dRelaxTau; }
double CZEBCMPVEParm::getCtrlParam_TLowBond() const { return m_dTLowBond; }
double CZEBCMPVEParm::getCtrlParam_ModifyLamdaLowT() const { return m_dModifyLamdaLowT; }
double CZEBCMPVEParm::getCtrlParam_ShrateUpBond1() const { return m_dShrateUpBond1; }
double CZEBCMPVEParm::getCtrlParam_ShrateUpBond2() const { return m_dShrateUpBond2; }
double CZEBCMPVEParm::getCtrlParam_ModifyLamdaShrateUB() const { return m_dModifyLamdaShrateUB; }
double CZEBCMPVEParm::getCtrlParam_ShrateLowBond1() const { return m_dShrateLowBond1; }
double CZEBCMPVEParm::getCtrlParam_ShrateLowBond2() const { return m_dShrateLowBond2; }
double CZEBCMPVEParm::getCtrlParam_ModifyLamdaShrateLB() const { return m_dModifyLamdaShrateLB; }
double CZEBCMPVEParm::getCtrlParam_StressUpBond() const { return m_dStressUpBond; }
double CZEBCMPVEParm::getCtrlParam_ModifyLamdaStressUB() const { return m_dModifyLamdaStressUB; }
double CZEBCMPVEParm::getCtrlParam_FreezeLamda() const { return m_dFreezeLamda; }
double CZEBCMPVEParm::getCtrlParam_FreezeViscosity() const { return m_dFreezeViscosity; }
double CZEBCMPVEParm::getCtrlParam_PackPressureLowBond() const { return m_dPackPressureLowBond; }
double CZEBCMPVEParm::getCtrlParam_PackShrateUpBond() const { return m_dPackShrateUpBond; }
int CZEBCMPVEParm::getWMGaiParam_UseWMGaiModel() const { return m_iUseWMGaiModel; }
double CZEBCMPVEParm::getWMGaiParam_els() const { return m_dWM_els; }
double CZEBCMPVEParm::getWMLimitRatio() const { return m_dWM_LimitRatio; }
double CZEBCMPVEParm::getCompletePTTParam_Xi() const { return m_dXi; }
bool CZEBCMPVEParm::getMatFunPlotParam_isPlotMaterialFun() const { return m_bPlotMaterialFun; }
bool CZEBCMPVEParm::getMatFunPlotParam_isPlotMaterialFun_ideal() const { return m_bPlotMaterialFun_ideal; }
int CZEBCMPVEParm::getMatFunPlotParam_FlagIsPlotShearVis() const { return m_iFlagIsPlotShearVis; }
int CZEBCMPVEParm::getMatFunPlotParam_FlagIsPlotElongVis() const { return m_iFlagIsPlotElongVis; }
double CZEBCMPVEParm::getMatFunPlotParam_RefTem() const { return m_dRefTem; }
double CZEBCMPVEParm::getMatFunPlotParam_DeltaTem() const { return m_dDeltaTem; }
double CZEBCMPVEParm::getMatFunPlotParam_DeltaTime() const { return m_dDeltaTime; }
double CZEBCMPVEParm::getMatFunPlotParam_TargetTime() const { return m_dTargetTime; }
double CZEBCMPVEParm::getMatFunPlotParam_SRateLB() const { return m_dSRateLB; }
double CZEBCMPVEParm::getMatFunPlotParam_SRateUB() const { return m_dSRateUB; }
bool CZEBCMPVEParm::getMatFunPlotParam_Transient_isPlotMaterialFun() const { return m_bTransient_PlotMaterialFun; }
int CZEBCMPVEParm::getMatFunPlotParam_Transient_FlagIsPlotShearVis() const { return m_iTransient_FlagIsPlotShearVis; }
int CZEBCMPVEParm::getMatFunPlotParam_Transient_NSetofInput_ShearRate() const { return m_nTransient_InputShearRate; }
const double* CZEBCMPVEParm::getMatFunPlotParam_Transient_InputShearRate() const {
  return m_dTransient_InputShearRate.get();
}
int CZEBCMPVEParm::getMatFunPlotParam_Transient_FlagIsPlotElongVis_Transient() const {
  return m_iTransient_FlagIsPlotElongVis;
}
int CZEBCMPVEParm::getMatFunPlotParam_Transient_NSetofInput_StrainRate() const { return m_nTransient_InputStrainRate; }
const double* CZEBCMPVEParm::getMatFunPlotParam_Transient_InputStrainRate() const {
  return m_dTransient_InputStrainRate.get();
}
double CZEBCMPVEParm::getMatFunPlotParam_Transient_RefTem() const { return m_dTransient_RefTem; }
double CZEBCMPVEParm::getMatFunPlotParam_Transient_DeltaTem() const { return m_dTransient_DeltaTem; }
double CZEBCMPVEParm::getMatFunPlotParam_Transient_DeltaTime() const { return m_dTransient_DeltaTime; }
double CZEBCMPVEParm::getMatFunPlotParam_Transient_TargetTime() const { return m_dTransient_TargetTime; }
double CZEBCMPVEParm::getMatFunPlotParam_Transient_SRateLB() const { return m_dTransient_SRateLB; }
double CZEBCMPVEParm::getMatFunPlotParam_Transient_SRateUB() const { return m_dTransient_SRateUB; }
bool CZEBCMPVEParm::getGradientParam_ModifyGradient() const { return m_bModifyGradient; }
int CZEBCMPVEParm::getGradientParam_GradMethod() const { return m_iGradMethod; }
int CZEBCMPVEParm::getGradientParam_GradIterN() const { return m_iGradIterN; }
double CZEBCMPVEParm::getGradientParam_SmoothFactor() const { return m_dSmoothFactor; }

namespace {

constexpr std::string_view kStrainRateKey = "StrainRate";

std::string lineOf(std::string_view label, int value) { return std::string(label) + std::to_string(value) + '\n'; }
std::string lineOf(std::string_view label, double value) {
  return std::string(label) + zeb::formatGeneral(value) + '\n';
}

void writeStarred(const std::string& text) {
  constexpr std::string_view kStars = "*********************\n";
  zeb::writeOut("\n" + std::string(kStars) + text + std::string(kStars));
}

// Takes every line to the end of the file, the section's closing line and whatever follows it included.
zeb::ListResult readStrainRates(zeb::ListContext& context, double* rates, int count) {
  bool closed = false;
  int stored = 0;
  std::string_view line;
  while (context.lines.next(line)) {
    closed = closed || zeb::isClosedBy(context.section, line);
    zeb::EntryEvent taken;
    if (stored < count) taken = zeb::takeValue(line, kStrainRateKey, rates[stored + 1]);
    if (taken.used) ++stored;
    zeb::reportLineOfList(context, taken);
  }
  context.line = closed ? context.section.close : std::string_view();
  return zeb::ListResult::kSectionEnded;
}

}  // namespace

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPVEParm>() {
  using T = CZEBCMPVEParm;

  static constexpr ListReader kReadStrainRates = [](ListContext& context) {
    T& block = *static_cast<T*>(context.block);
    const int count = block.m_nTransient_InputStrainRate;
    if (count <= 0 || block.m_dTransient_InputStrainRate.get() != nullptr) return ListResult::kSameLine;
    double* const rates = block.m_dTransient_InputStrainRate.allocate(static_cast<std::size_t>(count) + 1);
    block.m_nTransient_HeldStrainRate = count;
    return readStrainRates(context, rates, count);
  };

  static constexpr auto kApplyPlotFlags = [](void* viscoelastic) {
    T& block = *static_cast<T*>(viscoelastic);
    if (block.m_iFlagIsPlotShearVis != 1 && block.m_iFlagIsPlotElongVis != 1) return;
    block.m_bPlotMaterialFun = true;
    writeStarred(lineOf("FlagIsPlotShearVis = ", block.m_iFlagIsPlotShearVis) +
                 lineOf("FlagIsPlotElongVis = ", block.m_iFlagIsPlotElongVis) +
                 lineOf("RefTemperature    = ", block.m_dRefTem) + lineOf("DeltaTemperature    = ", block.m_dDeltaTem) +
                 lineOf("DeltaTime          = ", block.m_dDeltaTime) +
                 lineOf("TargetTime         = ", block.m_dTargetTime) +
                 lineOf("SRateLowerBound    = ", block.m_dSRateLB) + lineOf("SRateUpperBound    = ", block.m_dSRateUB));
  };

  static constexpr auto kApplyTransientFlag = [](void* viscoelastic) {
    T& block = *static_cast<T*>(viscoelastic);
    if (block.m_iTransient_FlagIsPlotElongVis != 1) return;
    block.m_bTransient_PlotMaterialFun = true;
    std::string text = lineOf("FlagIsPlotElongVis_Transient = ", block.m_iTransient_FlagIsPlotElongVis) +
                       lineOf("RefTemperature               = ", block.m_dTransient_RefTem) +
                       lineOf("DeltaTemperature             = ", block.m_dTransient_DeltaTem) +
                       lineOf("DeltaTime                    = ", block.m_dTransient_DeltaTime) +
                       lineOf("TargetTime                   = ", block.m_dTransient_TargetTime) +
                       lineOf("SRateLowerBound              = ", block.m_dTransient_SRateLB) +
                       lineOf("SRateUpperBound              = ", block.m_dTransient_SRateUB) +
                       lineOf("TotalSetofInputSRate         = ", block.m_nTransient_InputStrainRate);
    // A block that is read again may announce more strain rates than its array, which stays, has room for.
    const int held = std::min(block.m_nTransient_InputStrainRate, block.m_nTransient_HeldStrainRate);
    for (int i = 1; i <= held; ++i) {
      text += lineOf("#" + std::to_string(i) + " StrainRate                = ",
                     block.m_dTransient_InputStrainRate.get()[i]);
    }
    writeStarred(text);
  };

  // clang-format off
  // The head's places.
  static constexpr Row kHeadRows[] = {
      {.field = field<&T::m_bIstoCalcRS>(), .label = "m_bIstoCalcRS               = ",
       .doc = "Switch, set by the host alone: the viscoelastic file is read after the CMP file."},
      {.field = field<&T::m_iVEModel, &T::getVEModel>(), .label = "m_iVEModel                  = ", .at = {{8, 1}},
       .doc = "Number of the constitutive model; line 9 confirms a change of it by a number that is not negative."},
      {.field = field<&T::m_iNVE_Model>(), .label = "m_iNVE_Model                = ",
       .doc = "Highest valid number of a constitutive model."},
      {.field = field<&T::m_iVECMPVersion, &T::getVECMPVersion>(), .label = "m_iVECMPVersion             = ",
       .at = {{1, 1}}, .doc = "Version of the viscoelastic file; a file of another version is refused."},
      {.field = field<&T::m_dTgPoint>(),
       .doc = "Temperature point, set by the host alone, that the lower temperature bound starts from."},
      {.field = field<&T::m_dTLowBond, &T::getCtrlParam_TLowBond>(), .rule = {.takenAbove = 10.0},
       .label = "\nm_iNVE_Model                = ", .at = {{2, 1}}, .doc = "Lower bound of the temperature."},
      {.field = field<&T::m_dModifyLamdaLowT, &T::getCtrlParam_ModifyLamdaLowT>(), .rule = {.takenAbove = 0.0},
       .label = "m_dModifyLamdaLowT          = ", .at = {{2, 2}},
       .doc = "Modifier of the relaxation time at low temperature."},
      {.field = field<&T::m_dShrateUpBond1, &T::getCtrlParam_ShrateUpBond1>(), .rule = {.takenAbove = 10.0},
       .label = "m_dShrateUpBond1            = ", .at = {{3, 1}}, .doc = "First upper bound of the shear rate."},
      {.field = field<&T::m_dShrateUpBond2, &T::getCtrlParam_ShrateUpBond2>(), .rule = {.takenAbove = 10.0},
       .label = "m_dShrateUpBond2            = ", .at = {{3, 3}}, .doc = "Second upper bound of the shear rate."},
      {.field = field<&T::m_dModifyLamdaShrateUB, &T::getCtrlParam_ModifyLamdaShrateUB>(), .rule = {.takenAbove = 0.0},
       .label = "m_dModifyLamdaShrateUB      = ", .at = {{3, 2}},
       .doc = "Modifier of the relaxation time at the upper shear rate bound."},
      {.field = field<&T::m_dShrateLowBond1, &T::getCtrlParam_ShrateLowBond1>(), .rule = {.takenAbove = 0.0},
       .label = "m_dShrateLowBond1           = ", .at = {{7, 1}}, .doc = "First lower bound of the shear rate."},
      {.field = field<&T::m_dShrateLowBond2, &T::getCtrlParam_ShrateLowBond2>(), .rule = {.takenAbove = 0.0},
       .label = "m_dShrateLowBond2           = ", .at = {{7, 3}}, .doc = "Second lower bound of the shear rate."},
      {.field = field<&T::m_dModifyLamdaShrateLB, &T::getCtrlParam_ModifyLamdaShrateLB>(), .rule = {.takenAbove = 0.0},
       .label = "m_dModifyLamdaShrateLB      = ", .at = {{7, 2}},
       .doc = "Modifier of the relaxation time at the lower shear rate bound."},
      {.field = field<&T::m_dStressUpBond, &T::getCtrlParam_StressUpBond>(), .rule = {.scale = 1e7, .takenAbove = 0.0},
       .label = "m_dStressUpBond             = ", .at = {{4, 1}}, .unit = "dyn/cm^2 (file: MPa)",
       .doc = "Upper bound of the stress."},
      {.field = field<&T::m_dModifyLamdaStressUB, &T::getCtrlParam_ModifyLamdaStressUB>(), .rule = {.takenAbove = 0.0},
       .label = "m_dModifyLamdaStressUB      = ", .at = {{4, 2}},
       .doc = "Modifier of the relaxation time at the upper stress bound."},
      {.field = field<&T::m_dFreezeLamda, &T::getCtrlParam_FreezeLamda>(), .rule = {.takenAbove = 0.0},
       .label = "m_dFreezeLamda              = ", .at = {{5, 1}}, .doc = "Freeze bound of the relaxation time."},
      {.field = field<&T::m_dFreezeViscosity, &T::getCtrlParam_FreezeViscosity>(), .rule = {.takenAbove = 1e4},
       .label = "m_dFreezeViscosity          = ", .at = {{5, 2}}, .doc = "Freeze bound of the viscosity."},
      {.field = field<&T::m_dPackPressureLowBond, &T::getCtrlParam_PackPressureLowBond>(),
       .rule = {.scale = 1e7, .takenAbove = -50.0}, .label = "m_dPackPressureLowBond      = ", .at = {{6, 1}},
       .unit = "dyn/cm^2 (file: MPa)", .doc = "Lower bound of the pressure in packing."},
      {.field = field<&T::m_dPackShrateUpBond, &T::getCtrlParam_PackShrateUpBond>(), .rule = {.takenAbove = 10.0},
       .label = "m_dPackShrateUpBond         = ", .at = {{6, 2}}, .doc = "Upper bound of the shear rate in packing."},
      {.field = field<&T::m_bPlotMaterialFun, &T::getMatFunPlotParam_isPlotMaterialFun>(), .at = {{8, 3}},
       .doc = "Switch: material functions are plotted; set by plot mode 1 or 2 and by either plot flag of 1."},
      {.field = field<&T::m_bPlotMaterialFun_ideal, &T::getMatFunPlotParam_isPlotMaterialFun_ideal>(), .at = {{8, 3}},
       .doc = "Switch: ideal material functions are plotted; set by plot mode 2."},
      {.field = field<&T::m_bTransient_PlotMaterialFun, &T::getMatFunPlotParam_Transient_isPlotMaterialFun>(),
       .doc = "Switch: transient material functions are plotted; set by a transient elongation flag of 1."},
      {.field = field<&T::m_iTransient_FlagIsPlotShearVis, &T::getMatFunPlotParam_Transient_FlagIsPlotShearVis>(),
       .doc = "Flag of the transient shear viscosity's plot; no file sets it."},
      {.field = field<&T::m_nTransient_InputShearRate, &T::getMatFunPlotParam_Transient_NSetofInput_ShearRate>(),
       .doc = "Number of input shear rates; no file sets it."},
      {.field = field<&T::m_dTransient_InputShearRate, &T::getMatFunPlotParam_Transient_InputShearRate>(),
       .doc = "Input shear rates; no file sets them."},
      {.field = field<&T::m_bModifyGradient, &T::getGradientParam_ModifyGradient>(), .at = {{8, 2}},
       .doc = "Switch: the gradient is modified; set by a smoothing weight above 0.01, never for model 6."},
      {.field = field<&T::m_iGradMethod, &T::getGradientParam_GradMethod>(),
       .known = "Gradient method; no file sets it."},
      {.field = field<&T::m_iGradIterN, &T::getGradientParam_GradIterN>(),
       .doc = "Number of gradient iterations; no file sets it."},
      {.field = field<&T::m_dSmoothFactor, &T::getGradientParam_SmoothFactor>(),
       .label = "m_dSmoothFactor             = ", .at = {{8, 2}},
       .doc = "Smoothing weight of the gradient, at most 1; one that is not above 0.01 counts as 0."},
  };

  static constexpr Row kSolverRows[] = {
      {.field = field<&T::m_dRelaxTau, &T::getRelaxationFactor_Tau>(), .key = "VE_Para1",
       .label = "m_dRelaxTau                 = ", .dump = DumpFormat::kLowBits,
       .doc = "Relaxation factor of the viscoelastic stress solution. The dump shows the low half of its bits."},
  };

  static constexpr Row kWhiteMetznerRows[] = {
      {.field = field<&T::m_iUseWMGaiModel, &T::getWMGaiParam_UseWMGaiModel>(), .key = "WM_Switch",
       .label = "\nm_iUseWMGaiModel            = ", .doc = "Switch of the White-Metzner model's Gai form."},
      {.field = field<&T::m_dWM_els, &T::getWMGaiParam_els>(), .key = "WM_Para1",
       .label = "m_dWM_els                   = ", .known = "White-Metzner parameter els."},
      {.field = field<&T::m_dWM_LimitRatio, &T::getWMLimitRatio>(), .key = "WM_Para2",
       .label = "m_dWM_LimitRatio            = ", .doc = "Limiting ratio of the White-Metzner model."},
  };

  static constexpr Row kCompletePttRows[] = {
      {.field = field<&T::m_dXi, &T::getCompletePTTParam_Xi>(), .key = "PTT_Xi",
       .label = "\nm_dXi                       = ", .doc = "Parameter xi of the complete Phan-Thien-Tanner model."},
  };

  static constexpr Row kPlotRows[] = {
      {.field = field<&T::m_iFlagIsPlotShearVis, &T::getMatFunPlotParam_FlagIsPlotShearVis>(),
       .key = "FlagIsPlotShearVis", .doc = "Flag: the shear viscosity is plotted if 1."},
      {.field = field<&T::m_iFlagIsPlotElongVis, &T::getMatFunPlotParam_FlagIsPlotElongVis>(),
       .key = "FlagIsPlotElongVis", .doc = "Flag: the elongational viscosity is plotted if 1."},
      {.field = field<&T::m_dRefTem, &T::getMatFunPlotParam_RefTem>(), .key = "RefTemperature",
       .doc = "Reference temperature of the plot."},
      {.field = field<&T::m_dDeltaTem, &T::getMatFunPlotParam_DeltaTem>(), .key = "DeltaTemperature",
       .doc = "Temperature step of the plot."},
      {.field = field<&T::m_dDeltaTime, &T::getMatFunPlotParam_DeltaTime>(), .key = "DeltaTime",
       .doc = "Time step of the plot."},
      {.field = field<&T::m_dTargetTime, &T::getMatFunPlotParam_TargetTime>(), .key = "TargetTime",
       .doc = "Target time of the plot."},
      {.field = field<&T::m_dSRateLB, &T::getMatFunPlotParam_SRateLB>(), .key = "SRateLowerBound",
       .doc = "Lower bound of the plot's shear rates."},
      {.field = field<&T::m_dSRateUB, &T::getMatFunPlotParam_SRateUB>(), .key = "SRateUpperBound",
       .doc = "Upper bound of the plot's shear rates."},
  };

  static constexpr Row kTransientRows[] = {
      {.field = field<&T::m_iTransient_FlagIsPlotElongVis,
                      &T::getMatFunPlotParam_Transient_FlagIsPlotElongVis_Transient>(),
       .key = "FlagIsPlotElongVis_Transient", .doc = "Flag: the transient elongational viscosity is plotted if 1."},
      {.field = field<&T::m_nTransient_InputStrainRate, &T::getMatFunPlotParam_Transient_NSetofInput_StrainRate>(),
       .key = "TotalSetofInputSRate", .count = Count::kNegativeIsNone,
       .list = {.array = field<&T::m_dTransient_InputStrainRate>(), .toEndOfFile = true, .read = kReadStrainRates},
       .doc = "Number of input strain rates; above 0 it announces them, negative: none."},
      {.field = field<&T::m_dTransient_InputStrainRate, &T::getMatFunPlotParam_Transient_InputStrainRate>(),
       .key = kStrainRateKey, .element = kNoElement,  // outside of the list, there is no place for it
       .doc = "Input strain rates, one a line, to the end of the file."},
      {.field = field<&T::m_dTransient_RefTem, &T::getMatFunPlotParam_Transient_RefTem>(), .key = "RefTemperature",
       .doc = "Reference temperature of the transient plot."},
      {.field = field<&T::m_dTransient_DeltaTem, &T::getMatFunPlotParam_Transient_DeltaTem>(),
       .key = "DeltaTemperature", .doc = "Temperature step of the transient plot."},
      {.field = field<&T::m_dTransient_DeltaTime, &T::getMatFunPlotParam_Transient_DeltaTime>(), .key = "DeltaTime",
       .doc = "Time step of the transient plot."},
      {.field = field<&T::m_dTransient_TargetTime, &T::getMatFunPlotParam_Transient_TargetTime>(), .key = "TargetTime",
       .doc = "Target time of the transient plot."},
      {.field = field<&T::m_dTransient_SRateLB, &T::getMatFunPlotParam_Transient_SRateLB>(), .key = "SRateLowerBound",
       .doc = "Lower bound of the transient plot's rates."},
      {.field = field<&T::m_dTransient_SRateUB, &T::getMatFunPlotParam_Transient_SRateUB>(), .key = "SRateUpperBound",
       .doc = "Upper bound of the transient plot's rates."},
  };

  static constexpr Order<9> kTransientReadingOrder{
      "FlagIsPlotElongVis_Transient", "RefTemperature", "DeltaTemperature", "DeltaTime", "TargetTime",
      "SRateLowerBound", "SRateUpperBound", "TotalSetofInputSRate", "StrainRate"};

  static constexpr Order<24> kDumpOrder{
      "m_bIstoCalcRS", "m_iVEModel", "m_iVECMPVersion", "m_iNVE_Model", "m_dRelaxTau",
      "m_dTLowBond", "m_dModifyLamdaLowT", "m_dShrateUpBond1", "m_dShrateUpBond2", "m_dModifyLamdaShrateUB",
      "m_dStressUpBond", "m_dModifyLamdaStressUB", "m_dFreezeLamda", "m_dFreezeViscosity", "m_dPackPressureLowBond",
      "m_dPackShrateUpBond", "m_dShrateLowBond1", "m_dShrateLowBond2", "m_dModifyLamdaShrateLB",
      "m_iUseWMGaiModel", "m_dWM_els", "m_dWM_LimitRatio", "m_dSmoothFactor",
      "m_dXi"};
  // clang-format on

  static constexpr Section kHead = [] {
    Section head = unreadMembers<kHeadRows>();  // by the section readers
    head.name = "viscoelastic head";
    return head;
  }();
  static constexpr auto read = [](Section section, void (*whenRead)(void*)) {
    section.whenRead = whenRead;
    return section;
  };
  // The head, then the blocks in the order in which the reader looks for their tags.
  static constexpr Section kSections[] = {
      kHead,
      taggedSection<"VE_Solver", kSolverRows>(),
      taggedSection<"WhiteMetzner_Gai", kWhiteMetznerRows>(),
      taggedSection<"Complete_PTT", kCompletePttRows>(),
      read(taggedSection<"PLOT_MATERIAL", kPlotRows>(), kApplyPlotFlags),
      read(taggedSection<"PLOT_TRANSIENT_EXTENSION_MATERIAL", kTransientRows, kTransientReadingOrder>(),
           kApplyTransientFlag)};
  static constexpr BlockTable kTable = blockTable<T, kSections, kDumpOrder>("\n---------VECMP Parameters---------");
  return kTable;
}
