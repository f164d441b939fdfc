#include "cmx/CZEBCMX_FILL_ADVANCED_LONGFIBER.h"

#include <span>
#include <string>

#include "engine/ListEngine.hpp"
#include "engine/TableBuilder.hpp"
#include "engine/ValueText.hpp"

ZEB_DEFAULTED(CZEBCMX_FILL_ADVANCED_LONGFIBER)

ZEB_GETTERS(CZEBCMX_FILL_ADVANCED_LONGFIBER, iVersion, iOrthotropicClosureMethod, dModifiedFactor, dAspectRatio,
            dWeightPercent, iDiffusionModelType, dARD_b1, dARD_b2, dARD_b3, dARD_b4, dARD_b5, dARD_Cf, dARD_Cm,
            dFiber_CI, iFiberBreakage, dFiberDiamemter, dParticleDiameter)
double CZEBCMX_FILL_ADVANCED_LONGFIBER::DragCoe() const { return m_dDragCoe; }
double CZEBCMX_FILL_ADVANCED_LONGFIBER::CB() const { return m_dCB; }
double CZEBCMX_FILL_ADVANCED_LONGFIBER::S() const { return m_dS; }
ZEB_GETTERS(CZEBCMX_FILL_ADVANCED_LONGFIBER, isBreakInScrewAndNozzle, iFiberConcen, iFiberType, dAverageWeightConcen,
            dMaxWeightConcen, dResisAlpha)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMX_FILL_ADVANCED_LONGFIBER>() {
  using T = CZEBCMX_FILL_ADVANCED_LONGFIBER;
  // The names on the coefficients' lines mean nothing, their order does.
  static constexpr ListReader kReadCoefficients = [](ListContext& context) {
    T& block = *static_cast<T*>(context.block);
    double* const model0[] = {&block.m_dFiber_CI};
    double* const model1[] = {&block.m_dARD_Cf, &block.m_dARD_Cm};
    double* const model2[] = {&block.m_dARD_b1, &block.m_dARD_b2, &block.m_dARD_b3, &block.m_dARD_b4, &block.m_dARD_b5};
    std::span<double* const> coefficients;
    if (block.m_iDiffusionModelType == 0) coefficients = model0;
    if (block.m_iDiffusionModelType == 1) coefficients = model1;
    if (block.m_iDiffusionModelType == 2) coefficients = model2;
    std::string_view line;
    for (double* coefficient : coefficients) {
      if (!nextLineOfList(context, line)) break;
      const EntryEvent taken = scanValue(line, Entry::kNamed, *coefficient);
      if (taken.used) reportMemberOfList(context, coefficient, line, valueText(line));
      reportLineOfList(context, taken);
    }
    return ListResult::kSameLine;
  };
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iVersion), .key = "Version", .doc = "Version of the block."},
      {ZEB_FIELD(iOrthotropicClosureMethod), .key = "OrthotropicClosureMethod", .known = "Orthotropic closure method."},
      {ZEB_FIELD(dModifiedFactor), .key = "ModifiedFactor", .known = "Modifying factor of the fiber orientation."},
      {ZEB_FIELD(dAspectRatio), .key = "AspectRatio", .doc = "Aspect ratio of the fibers."},
      {ZEB_FIELD(dWeightPercent), .key = "Weight", .doc = "Weight percentage of the fibers."},
      {ZEB_FIELD(iDiffusionModelType), .key = "DiffusionModelType",
       .list = {.entry = Entry::kNamed, .read = kReadCoefficients},
       .fills = members<&T::m_dARD_b1, &T::m_dARD_b2, &T::m_dARD_b3, &T::m_dARD_b4, &T::m_dARD_b5, &T::m_dARD_Cf,
               &T::m_dARD_Cm, &T::m_dFiber_CI>,
       .doc = "Fiber diffusion model, 0, 1 or 2; the lines of its coefficients follow."},
      {ZEB_FIELD(dARD_b1), .doc = "Coefficient b1 of fiber diffusion model 2."},
      {ZEB_FIELD(dARD_b2), .doc = "Coefficient b2 of fiber diffusion model 2."},
      {ZEB_FIELD(dARD_b3), .doc = "Coefficient b3 of fiber diffusion model 2."},
      {ZEB_FIELD(dARD_b4), .doc = "Coefficient b4 of fiber diffusion model 2."},
      {ZEB_FIELD(dARD_b5), .doc = "Coefficient b5 of fiber diffusion model 2."},
      {ZEB_FIELD(dARD_Cf), .doc = "Coefficient Cf of fiber diffusion model 1."},
      {ZEB_FIELD(dARD_Cm), .doc = "Coefficient Cm of fiber diffusion model 1."},
      {ZEB_FIELD(dFiber_CI), .doc = "Coefficient CI of fiber diffusion model 0."},
      {ZEB_FIELD(iFiberBreakage), .key = "FlagFiberBreakage", .doc = "Switch: fiber breakage is calculated."},
      {ZEB_FIELD(dFiberDiamemter), .key = "ValueFiberDiameter", .doc = "Diameter of the fibers."},
      {ZEB_FIELD(dParticleDiameter), .key = "ValueParticleDiameter", .doc = "Diameter of the particles."},
      {.field = field<&T::m_dDragCoe, &T::DragCoe>(), .key = "ValueFiberBreakageCD",
       .doc = "Drag coefficient of the fiber breakage."},
      {.field = field<&T::m_dCB, &T::CB>(), .key = "ValueFiberBreakageCB",
       .known = "Coefficient CB of the fiber breakage."},
      {.field = field<&T::m_dS, &T::S>(), .key = "ValueFiberBreakageS",
       .known = "Coefficient S of the fiber breakage."},
      {ZEB_FIELD(isBreakInScrewAndNozzle), .key = "FlagScrewFiberBreakage",
       .doc = "Switch: fibers break in screw and nozzle."},
      {ZEB_FIELD(iFiberConcen), .key = "FlagConcertration", .doc = "Switch: the fiber concentration is calculated."},
      {ZEB_FIELD(iFiberType), .key = "FiberType", .known = "Type of the fibers."},
      {ZEB_FIELD(dAverageWeightConcen), .key = "ValueAverageConcentration", .doc = "Average weight concentration."},
      {ZEB_FIELD(dMaxWeightConcen), .key = "ValueMaximumConcentration", .doc = "Maximum weight concentration."},
      {ZEB_FIELD(dResisAlpha), .key = "ValueParticleFrictionIndex", .known = "Friction index of the particles."},
  };
  static constexpr Order<18> kReadingOrder{
      "Version", "OrthotropicClosureMethod", "ModifiedFactor", "AspectRatio", "Weight", "FiberType",
      "DiffusionModelType", "FlagFiberBreakage", "ValueFiberDiameter", "ValueParticleDiameter", "ValueFiberBreakageCD",
      "ValueFiberBreakageCB", "ValueFiberBreakageS", "ValueAverageConcentration", "ValueMaximumConcentration",
      "ValueParticleFrictionIndex", "FlagScrewFiberBreakage", "FlagConcertration"};
  // clang-format on
  static constexpr Section kSections[] = {taggedSection<"FILL_ADVANCED_LONGFIBER", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
