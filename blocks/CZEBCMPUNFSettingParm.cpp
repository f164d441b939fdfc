#include "blocks/CZEBCMPUNFSettingParm.h"

#include "engine/TableBuilder.hpp"

namespace {

// The points lie one after the other, three doubles each; point 0 and each point's first double are unused.
enum Axis : std::size_t { kX = 1, kY = 2 };
constexpr std::size_t kPointSize = 3;

constexpr std::size_t placeOf(int point, Axis axis) { return kPointSize * static_cast<std::size_t>(point) + axis; }

// One coordinate of a point.
constexpr zeb::Row coordinate(zeb::Field points, int point, Axis axis, std::string_view key, std::string_view doc,
                              std::string_view label = {}) {
  return {.field = points,
          .key = key,
          .element = static_cast<std::uint16_t>(placeOf(point, axis)),
          .label = label,
          .doc = doc};
}

}  // namespace

ZEB_DEFAULTED(CZEBCMPUNFSettingParm)

ZEB_GETTERS(CZEBCMPUNFSettingParm, dVofInter, dContactAngle, dSTCoeff, dDeng, dDenl, dVisg, dVisl, iFillType,
            iNDispenserPass)

int CZEBCMPUNFSettingParm::dDispenser(double** points, double& speed) const {
  speed = m_dDispenserSpeed;
  if (m_iNDispenserPass < 1) return 1;
  if (points == nullptr) return -1;
  const zeb::SharedArray<double> shared(m_pdDispenserPoint);
  const double* const stored = shared.get();
  for (int i = 1; i <= m_iNDispenserPass; ++i) {
    points[i][kX] = stored[placeOf(i, kX)];
    points[i][kY] = stored[placeOf(i, kY)];
  }
  return 1;
}

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPUNFSettingParm>() {
  using T = CZEBCMPUNFSettingParm;
  static constexpr Field kPoints = field<&T::m_pdDispenserPoint>();
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(dVofInter), .key = "VofInterface", .tabs = 3, .doc = "Volume fraction at the interface."},
      {ZEB_FIELD(dContactAngle), .key = "ContactAngle", .tabs = 2, .doc = "Contact angle."},
      {ZEB_FIELD(dSTCoeff), .key = "SurTensionCoef", .tabs = 4, .doc = "Coefficient of the surface tension."},
      {ZEB_FIELD(dDeng), .key = "Deng", .tabs = 4, .doc = "Density of the gas."},
      {ZEB_FIELD(dDenl), .key = "Denl", .tabs = 4, .doc = "Density of the liquid."},
      {ZEB_FIELD(dVisg), .key = "Visg", .tabs = 4, .doc = "Viscosity of the gas."},
      {ZEB_FIELD(dVisl), .key = "Visl", .tabs = 4, .doc = "Viscosity of the liquid."},
      {ZEB_FIELD(iFillType), .key = "FillType", .gateBelow = 2, .tabs = 3,
       .doc = "Type of the filling; below 2 the dispenser's keys are ignored."},
      {ZEB_FIELD(iNDispenserPass), .key = "nDispenserPoint", .count = Count::kYes,
       .list = {.array = kPoints, .perEntry = kPointSize, .hasLines = false}, .tabs = 2,
       .doc = "Number of dispenser points (0 to 1000000); a new count sets all points to the origin."},
      {.field = field<&T::m_dDispenserSpeed>(), .key = "Speed_V", .tabs = 2, .doc = "Speed of the dispenser."},
      coordinate(kPoints, 1, kX, "Point_x1", "x of dispenser point 1.", "m_pdDispenserPoint\t\t= "),
      coordinate(kPoints, 1, kY, "Point_y1", "y of dispenser point 1."),
      coordinate(kPoints, 2, kX, "Point_x2", "x of dispenser point 2."),
      coordinate(kPoints, 2, kY, "Point_y2", "y of dispenser point 2."),
      coordinate(kPoints, 3, kX, "Point_x3", "x of dispenser point 3."),
      coordinate(kPoints, 3, kY, "Point_y3", "y of dispenser point 3."),
      coordinate(kPoints, 4, kX, "Point_x4", "x of dispenser point 4."),
      coordinate(kPoints, 4, kY, "Point_y4", "y of dispenser point 4."),
      coordinate(kPoints, 5, kX, "Point_x5", "x of dispenser point 5."),
      coordinate(kPoints, 5, kY, "Point_y5", "y of dispenser point 5."),
  };
  // clang-format on
  static constexpr Order<20> kReadingOrder{
      "ContactAngle", "SurTensionCoef",  "VofInterface", "Deng",     "Denl",     "Visg",     "Visl",
      "FillType",     "nDispenserPoint", "Point_x1",     "Point_y1", "Point_x2", "Point_y2", "Point_x3",
      "Point_y3",     "Point_x4",        "Point_y4",     "Point_x5", "Point_y5", "Speed_V"};
  static constexpr Order<11> kDumpOrder{"m_dContactAngle",   "m_dSTCoeff",        "m_dVofInter",       "m_dDeng",
                                        "m_dDenl",           "m_dVisg",           "m_dVisl",           "m_iFillType",
                                        "m_iNDispenserPass", "m_dDispenserSpeed", "m_pdDispenserPoint"};
  static constexpr Section kSections[] = {keyedSection<"UNFSetting", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable =
      blockTable<T, kSections, kDumpOrder>("\n---------UNFSetting Parameters---------");
  return kTable;
}
