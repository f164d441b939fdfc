#include "cmx/CZEBCMX_TASKMANAGER.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMX_TASKMANAGER)

ZEB_GETTERS(CZEBCMX_TASKMANAGER, iFlagAccelerationType)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMX_TASKMANAGER>() {
  using T = CZEBCMX_TASKMANAGER;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iFlagAccelerationType), .key = "flagAccelerationType", .known = "Type of the acceleration."},
  };
  // clang-format on
  static constexpr Section kSections[] = {taggedSection<"TASKMANAGER", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
