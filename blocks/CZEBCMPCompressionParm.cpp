#include "blocks/CZEBCMPCompressionParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPCompressionParm)

ZEB_GETTERS(CZEBCMPCompressionParm, iIsInitialData, iIsCalConversionFromTemp, iIsInitialStress, iIsInitialTemp,
            iIsInitialFiber, dMapFactor, dPreHeatTimeInInitialData)
const char* CZEBCMPCompressionParm::szFilePathOfInitialData() const { return m_szFilePathOfInitialData.get(); }
const char* CZEBCMPCompressionParm::szFilePathOfLocation() const { return m_szFilePathOfLocation.get(); }
ZEB_GETTERS(CZEBCMPCompressionParm, iAbaqusMeshType)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPCompressionParm>() {
  using T = CZEBCMPCompressionParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(iIsInitialData), .key = "IsInitialData", .tabs = 4, .known = "Use of initial data."},
      {ZEB_FIELD(iIsCalConversionFromTemp), .key = "IsCalConversionFromTemp", .tabs = 2,
       .known = "Calculation of the conversion from the temperature."},
      {ZEB_FIELD(iIsInitialStress), .key = "IsInitialStress", .tabs = 4, .known = "Use of initial stresses."},
      {ZEB_FIELD(iIsInitialTemp), .key = "IsInitialTemp", .tabs = 4, .known = "Use of initial temperatures."},
      {ZEB_FIELD(iIsInitialFiber), .key = "IsInitialFiber", .tabs = 4, .known = "Use of initial fiber orientations."},
      {ZEB_FIELD(dMapFactor), .key = "MapFactor", .tabs = 5, .known = "Factor of the mapping."},
      {ZEB_FIELD(dPreHeatTimeInInitialData), .key = "PreHeatTimeInInitialData", .tabs = 1,
       .doc = "Preheating time in the initial data."},
      {ZEB_FIELD(szFilePathOfInitialData), .key = "FilePathOfInitialData", .tabs = 2,
       .doc = "Path of the file with the initial data."},
      {ZEB_FIELD(szFilePathOfLocation), .key = "FilePathOfLocation", .tabs = 3,
       .doc = "Path of the file with the locations."},
      {ZEB_FIELD(iAbaqusMeshType), .key = "AbaqusMeshType", .tabs = 4, .known = "Type of the Abaqus mesh."},
  };
  // clang-format on
  static constexpr Order<10> kReadingOrder{
      "IsInitialData",  "IsCalConversionFromTemp",  "IsInitialTemp", "IsInitialStress",       "IsInitialFiber",
      "AbaqusMeshType", "PreHeatTimeInInitialData", "MapFactor",     "FilePathOfInitialData", "FilePathOfLocation"};
  static constexpr Section kSections[] = {keyedSection<"Compression", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------Compression Parameters---------");
  return kTable;
}
