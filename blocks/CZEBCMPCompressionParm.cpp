#include "blocks/CZEBCMPCompressionParm.h"

#include "engine/TableBuilder.hpp"

CZEBCMPCompressionParm::CZEBCMPCompressionParm() = default;
CZEBCMPCompressionParm::CZEBCMPCompressionParm(const CZEBCMPCompressionParm& other) = default;
CZEBCMPCompressionParm::~CZEBCMPCompressionParm() = default;
CZEBCMPCompressionParm& CZEBCMPCompressionParm::operator=(const CZEBCMPCompressionParm& other) = default;

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
      {.field = field<&T::m_iIsInitialData, &T::iIsInitialData>(), .key = "IsInitialData",
       .label = "m_iIsInitialData\t\t\t\t= ", .doc = "Use of initial data. Meaning defined by the solver."},
      {.field = field<&T::m_iIsCalConversionFromTemp, &T::iIsCalConversionFromTemp>(),
       .key = "IsCalConversionFromTemp",
       .label = "m_iIsCalConversionFromTemp\t\t= ",
       .doc = "Calculation of the conversion from the temperature. Meaning defined by the solver."},
      {.field = field<&T::m_iIsInitialStress, &T::iIsInitialStress>(), .key = "IsInitialStress",
       .label = "m_iIsInitialStress\t\t\t\t= ", .doc = "Use of initial stresses. Meaning defined by the solver."},
      {.field = field<&T::m_iIsInitialTemp, &T::iIsInitialTemp>(), .key = "IsInitialTemp",
       .label = "m_iIsInitialTemp\t\t\t\t= ", .doc = "Use of initial temperatures. Meaning defined by the solver."},
      {.field = field<&T::m_iIsInitialFiber, &T::iIsInitialFiber>(), .key = "IsInitialFiber",
       .label = "m_iIsInitialFiber\t\t\t\t= ",
       .doc = "Use of initial fiber orientations. Meaning defined by the solver."},
      {.field = field<&T::m_dMapFactor, &T::dMapFactor>(), .key = "MapFactor",
       .label = "m_dMapFactor\t\t\t\t\t= ", .doc = "Factor of the mapping. Meaning defined by the solver."},
      {.field = field<&T::m_dPreHeatTimeInInitialData, &T::dPreHeatTimeInInitialData>(),
       .key = "PreHeatTimeInInitialData",
       .label = "m_dPreHeatTimeInInitialData\t= ", .doc = "Preheating time in the initial data."},
      {.field = field<&T::m_szFilePathOfInitialData, &T::szFilePathOfInitialData>(), .key = "FilePathOfInitialData",
       .label = "m_szFilePathOfInitialData\t\t= ", .doc = "Path of the file with the initial data."},
      {.field = field<&T::m_szFilePathOfLocation, &T::szFilePathOfLocation>(), .key = "FilePathOfLocation",
       .label = "m_szFilePathOfLocation\t\t\t= ", .doc = "Path of the file with the locations."},
      {.field = field<&T::m_iAbaqusMeshType, &T::iAbaqusMeshType>(), .key = "AbaqusMeshType",
       .label = "m_iAbaqusMeshType\t\t\t\t= ", .doc = "Type of the Abaqus mesh. Meaning defined by the solver."},
  };
  // clang-format on
  static constexpr Order<10> kReadingOrder{
      "IsInitialData",  "IsCalConversionFromTemp",  "IsInitialTemp", "IsInitialStress",       "IsInitialFiber",
      "AbaqusMeshType", "PreHeatTimeInInitialData", "MapFactor",     "FilePathOfInitialData", "FilePathOfLocation"};
  static constexpr Section kSections[] = {keyedSection<"Compression", kRows, kReadingOrder>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("\n---------Compression Parameters---------");
  return kTable;
}
