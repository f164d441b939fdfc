#include "blocks/CZEBCMPCompressionParm.h"

#include "engine/TableBuilder.hpp"

ZEB_DEFAULTED(CZEBCMPCompressionParm)

int CZEBCMPCompressionParm::iIsInitialData() const { return m_iIsInitialData; }
int CZEBCMPCompressionParm::iIsCalConversionFromTemp() const { return m_iIsCalConversionFromTemp; }
int CZEBCMPCompressionParm::iIsInitialStress() const { return m_iIsInitialStress; }
int CZEBCMPCompressionParm::iIsInitialTemp() const { return m_iIsInitialTemp; }
int CZEBCMPCompressionParm::iIsInitialFiber() const { return m_iIsInitialFiber; }
double CZEBCMPCompressionParm::dMapFactor() const { return m_dMapFactor; }
double CZEBCMPCompressionParm::dPreHeatTimeInInitialData() const { return m_dPreHeatTimeInInitialData; }
const char* CZEBCMPCompressionParm::szFilePathOfInitialData() const { return m_szFilePathOfInitialData.get(); }
const char* CZEBCMPCompressionParm::szFilePathOfLocation() const { return m_szFilePathOfLocation.get(); }
int CZEBCMPCompressionParm::iAbaqusMeshType() const { return m_iAbaqusMeshType; }

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMPCompressionParm>() {
  using T = CZEBCMPCompressionParm;
  // clang-format off
  static constexpr Row kRows[] = {
      {.field = field<&T::m_iIsInitialData, &T::iIsInitialData>(), .key = "IsInitialData", .tabs = 4,
       .doc = "Use of initial data.", .opaque = true},
      {.field = field<&T::m_iIsCalConversionFromTemp, &T::iIsCalConversionFromTemp>(), .key = "IsCalConversionFromTemp",
       .tabs = 2, .doc = "Calculation of the conversion from the temperature.", .opaque = true},
      {.field = field<&T::m_iIsInitialStress, &T::iIsInitialStress>(), .key = "IsInitialStress", .tabs = 4,
       .doc = "Use of initial stresses.", .opaque = true},
      {.field = field<&T::m_iIsInitialTemp, &T::iIsInitialTemp>(), .key = "IsInitialTemp", .tabs = 4,
       .doc = "Use of initial temperatures.", .opaque = true},
      {.field = field<&T::m_iIsInitialFiber, &T::iIsInitialFiber>(), .key = "IsInitialFiber", .tabs = 4,
       .doc = "Use of initial fiber orientations.", .opaque = true},
      {.field = field<&T::m_dMapFactor, &T::dMapFactor>(), .key = "MapFactor", .tabs = 5,
       .doc = "Factor of the mapping.", .opaque = true},
      {.field = field<&T::m_dPreHeatTimeInInitialData, &T::dPreHeatTimeInInitialData>(),
       .key = "PreHeatTimeInInitialData", .tabs = 1, .doc = "Preheating time in the initial data."},
      {.field = field<&T::m_szFilePathOfInitialData, &T::szFilePathOfInitialData>(), .key = "FilePathOfInitialData",
       .tabs = 2, .doc = "Path of the file with the initial data."},
      {.field = field<&T::m_szFilePathOfLocation, &T::szFilePathOfLocation>(), .key = "FilePathOfLocation", .tabs = 3,
       .doc = "Path of the file with the locations."},
      {.field = field<&T::m_iAbaqusMeshType, &T::iAbaqusMeshType>(), .key = "AbaqusMeshType", .tabs = 4,
       .doc = "Type of the Abaqus mesh.", .opaque = true},
  };
  // clang-format on
  static constexpr Order<10> kReadingOrder{
      "IsInitialData",  "IsCalConversionFromTemp",  "IsInitialTemp", "IsInitialStress",       "IsInitialFiber",
      "AbaqusMeshType", "PreHeatTimeInInitialData", "MapFactor",     "FilePathOfInitialData", "FilePathOfLocation"};
  static constexpr Section kSections[] = {keyedSection<"Compression", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------Compression Parameters---------");
  return kTable;
}
