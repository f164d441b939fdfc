// The words, keys and meanings of the section [Whiteboard]; never dumped.
#include "blocks/CZEBCoolBackDoorParm.h"

#include <algorithm>

#include "engine/TableBuilder.hpp"
#include "engine/ValueText.hpp"

ZEB_DEFAULTED(CZEBCoolBackDoorParm)

ZEB_GETTERS(CZEBCoolBackDoorParm, bGetIfActiveHeatFluxHistory, iGetIfActive_ElectromagneticHeating)
const char* CZEBCoolBackDoorParm::cGetElectromagneticxternalFile() const {
  const char* text = m_cGetElectromagneticxternalFile.get();
  return text == nullptr ? "" : text;
}
ZEB_GETTERS(CZEBCoolBackDoorParm, iGetIfActive_ReadCoolantPropertiesFromPCSFile, iGetIfOutput_NonMatchingWallSTL,
            iGetIfOutputAverageTemperature, iGetIfActiveSensorHeatFlux, dGetTime_StartHeating, dGetTime_EndHeating,
            iGetFlagTurnOffCoolTime, iGetIdealCooingIterateNumber)

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCoolBackDoorParm>() {
  using T = CZEBCoolBackDoorParm;
  // "ElemagComsol 1.5 20.0 coil.txt", whatever the first word; what is missing leaves its member and all later ones.
  static constexpr WhenStored kReadHeating = [](void* whiteboard, std::string_view line) {
    constexpr std::size_t kLongestName = 511;
    T& block = *static_cast<T*>(whiteboard);
    FieldScanner scanner(line);
    std::string_view word;
    double start = 0.0, end = 0.0;
    scanner.next(word);
    if (scanner.next(start)) block.m_dGetTime_StartHeating = start;
    if (scanner.next(end)) block.m_dGetTime_EndHeating = end;
    if (scanner.next(word)) {
      block.m_cGetElectromagneticxternalFile.assign(word.data(), std::min(word.size(), kLongestName));
    }
  };

  // clang-format off
  static constexpr Row kRows[] = {
      {ZEB_FIELD(bGetIfActiveHeatFluxHistory), .key = "HeatFluxHistory", .lookup = Lookup::kPresence,
       .doc = "Switch: heat-flux history; set by the word alone."},
      {ZEB_FIELD(iGetIfActive_ElectromagneticHeating), .key = "ElemagComsol", .lookup = Lookup::kPresence,
       .whenStored = kReadHeating,
       .fills = members<&T::m_dGetTime_StartHeating, &T::m_dGetTime_EndHeating, &T::m_cGetElectromagneticxternalFile>,
       .doc = "Switch: electromagnetic heating; set by the word, with start, end and external file as the next words."},
      {ZEB_FIELD(cGetElectromagneticxternalFile),
       .doc = "Name of the external file of the electromagnetic heating, cut to 511 characters."},
      {ZEB_FIELD(iGetIfActive_ReadCoolantPropertiesFromPCSFile), .key = "ReadCoolantFromPCS",
       .lookup = Lookup::kPresence,
       .doc = "Switch: coolant properties are read from the PCS file; set by the word alone."},
      {ZEB_FIELD(iGetIfOutput_NonMatchingWallSTL), .key = "OutputNonMatchingSTL", .lookup = Lookup::kPresence,
       .doc = "Switch: output of non-matching walls as STL; set by the word alone."},
      {ZEB_FIELD(iGetIfOutputAverageTemperature), .key = "OutputAverageTemperature", .lookup = Lookup::kPresence,
       .doc = "Switch: output of the average temperature; set by the word alone."},
      {ZEB_FIELD(iGetIfActiveSensorHeatFlux), .key = "SensorHeatFlux", .lookup = Lookup::kPresence,
       .doc = "Switch: heat flux at the sensors; set by the word alone."},
      {ZEB_FIELD(dGetTime_StartHeating), .doc = "Start time of the electromagnetic heating."},
      {ZEB_FIELD(dGetTime_EndHeating), .doc = "End time of the electromagnetic heating."},
      {ZEB_FIELD(iGetFlagTurnOffCoolTime), .key = "FlagTurnOffEstimateCoolTime",
       .doc = "Switch: the estimate of the cooling time is turned off."},
      {ZEB_FIELD(iGetIdealCooingIterateNumber), .key = "IdealCooingItreateNumber",
       .doc = "Number of iterations of the ideal cooling."},
  };
  // clang-format on
  static constexpr Section kWhiteboard = [] {
    Section section = keyedSection<"Whiteboard", kRows>();
    section.closingLineIsRead = true;
    section.readByRank0 = true;
    return section;
  }();
  static constexpr Section kSections[] = {kWhiteboard};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
