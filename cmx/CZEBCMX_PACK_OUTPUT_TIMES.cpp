#include "cmx/CZEBCMX_PACK_OUTPUT_TIMES.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMX_PACK_OUTPUT_TIMES)

ZEB_GETTERS(CZEBCMX_PACK_OUTPUT_TIMES, iNoOutTimeStep)
const double* CZEBCMX_PACK_OUTPUT_TIMES::pOutTimeStep() const { return m_pOutTimeStep.get(); }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMX_PACK_OUTPUT_TIMES>() {
  using T = CZEBCMX_PACK_OUTPUT_TIMES;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iNoOutTimeStep), .key = "ValueNoPackOutputTime", .count = Count::kYes,
       .list = {.array = field<&T::m_pOutTimeStep>(), .entry = Entry::kNumbered},
       .doc = "Number of output moments, 0 to 1,000,000."},
      {ZEB_FIELD(pOutTimeStep), .doc = "Output moments in the order of their lines."},
  };
  // clang-format on
  static constexpr Section kSections[] = {taggedSection<"PACK_OUTPUT_TIMES", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
