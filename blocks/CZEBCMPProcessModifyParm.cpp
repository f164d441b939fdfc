#include "blocks/CZEBCMPProcessModifyParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPProcessModifyParm)

ZEB_GETTERS(CZEBCMPProcessModifyParm, dProcessFRChangeUpperBound, dProcessFRChangeLowerBound)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPProcessModifyParm>() {
  using T = CZEBCMPProcessModifyParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(dProcessFRChangeUpperBound), .key = "FlowRateChangeUpperBound", .rule = {.replace = {below(1.0, 1.0)}},
       .tabs = 1, .doc = "Upper bound of the change of the flow rate; a value below 1.0 becomes 1.0."},
      {ZEB_FIELD(dProcessFRChangeLowerBound), .key = "FlowRateChangeLowerBound",
       .rule = {.replace = {above(0.999, 0.999), below(0.001, 0.001)}}, .tabs = 1,
       .doc = "Lower bound of the change of the flow rate; kept between 0.001 and 0.999."},
  };
  // clang-format on
  static constexpr Section kSections[] = {keyedSection<"ProcessModify", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------ProcessModify Parameters---------");
  return kTable;
}
