#include "cmx/CZEBCMX_SOLID_VE.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMX_SOLID_VE)

ZEB_GETTERS(CZEBCMX_SOLID_VE, iEstimateResidualStress)

int CZEBCMX_SOLID_VE::ResetResidualStressFlag(int flag) {
  m_iEstimateResidualStress = flag != 0 ? 1 : 0;
  return 1;
}

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMX_SOLID_VE>() {
  using T = CZEBCMX_SOLID_VE;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iEstimateResidualStress), .key = "FlagEstimateFlowPackStage",
       .doc = "Switch: the residual stress of filling and packing is calculated."},
  };
  // clang-format on
  static constexpr Section kSections[] = {taggedSection<"SOLID_VE", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
