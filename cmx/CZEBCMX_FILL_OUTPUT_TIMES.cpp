#include "cmx/CZEBCMX_FILL_OUTPUT_TIMES.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMX_FILL_OUTPUT_TIMES)

int CZEBCMX_FILL_OUTPUT_TIMES::MultiOutputType() const { return m_iMultiOutputType; }
int CZEBCMX_FILL_OUTPUT_TIMES::NoOutTimeStep() const { return m_iNoOutTimeStep; }
const double* CZEBCMX_FILL_OUTPUT_TIMES::pOutTimeStep() const { return m_pOutTimeStep.get(); }

int CZEBCMX_FILL_OUTPUT_TIMES::setMultiOutputType(int type) {
  m_iMultiOutputType = type;
  return 1;
}

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMX_FILL_OUTPUT_TIMES>() {
  using T = CZEBCMX_FILL_OUTPUT_TIMES;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iMultiOutputType, &T::MultiOutputType>(), .key = "FlagFillMultiOutputType",
       .rule = {.replace = {equal(3, 2)}},
       .doc = "Scale of the moments, 1 seconds, 2 percent; a 3 in the file becomes 2."},
      {.field = field<&T::m_iNoOutTimeStep, &T::NoOutTimeStep>(), .key = "ValueNoFillOutputTime", .count = Count::kYes,
       .list = {.array = field<&T::m_pOutTimeStep>(), .entry = Entry::kNumbered},
       .doc = "Number of output moments, 0 to 1,000,000."},
      {ZEB_FIELD(pOutTimeStep), .doc = "Output moments in the order of their lines."},
  };
  // clang-format on
  static constexpr Section kSections[] = {taggedSection<"FILL_OUTPUT_TIMES", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
