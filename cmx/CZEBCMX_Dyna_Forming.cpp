#include "cmx/CZEBCMX_Dyna_Forming.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMX_Dyna_Forming)

ZEB_GETTERS(CZEBCMX_Dyna_Forming, iIsRunIBFSIforfibermat, iRunfibermatCycle)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMX_Dyna_Forming>() {
  using T = CZEBCMX_Dyna_Forming;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iIsRunIBFSIforfibermat), .key = "RunIBFSIforfibermat",
       .doc = "Switch: the IBFSI calculation runs for fiber mats."},
      {ZEB_FIELD(iRunfibermatCycle), .key = "RunfibermatCycle",
       .doc = "Number of cycles of the fiber mat calculation."},
  };
  // clang-format on
  static constexpr Section kSections[] = {taggedSection<"Dyna_Forming", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
