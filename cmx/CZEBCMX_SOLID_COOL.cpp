#include "cmx/CZEBCMX_SOLID_COOL.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMX_SOLID_COOL)

ZEB_GETTERS(CZEBCMX_SOLID_COOL, iTransientCoolType)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMX_SOLID_COOL>() {
  using T = CZEBCMX_SOLID_COOL;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iTransientCoolType), .key = "IDSolver", .known = "Type of the transient cooling solver."},
  };
  // clang-format on
  static constexpr Section kSections[] = {taggedSection<"SOLID_COOL", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
