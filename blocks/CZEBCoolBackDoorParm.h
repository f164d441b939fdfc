// Switches of the cooling analyses.
#pragma once

#include "engine/BlockAccess.h"
#include "engine/SharedArray.h"

/// Switches and settings of the cooling analyses, from the section [Whiteboard].
///
/// Words switch: wherever one stands in a line of the section, the closing line included, it sets its flag, whatever
/// follows ("SensorHeatFlux = 0" switches on, too), and nothing switches off again. Rank 0 alone reads the section and
/// shares the members with the other ranks.
///
/// Copies share the file name.
class CZEBCoolBackDoorParm {
 public:
  CZEBCoolBackDoorParm();
  CZEBCoolBackDoorParm(const CZEBCoolBackDoorParm& other);
  ~CZEBCoolBackDoorParm();
  CZEBCoolBackDoorParm& operator=(const CZEBCoolBackDoorParm& other);

  bool bGetIfActiveHeatFluxHistory() const;
  int iGetIfActive_ElectromagneticHeating() const;
  /// The name ended by NUL, empty until a file sets it; valid until the block is destroyed, not owned by the caller.
  const char* cGetElectromagneticxternalFile() const;
  int iGetIfActive_ReadCoolantPropertiesFromPCSFile() const;
  int iGetIfOutput_NonMatchingWallSTL() const;
  int iGetIfOutputAverageTemperature() const;
  int iGetIfActiveSensorHeatFlux() const;
  double dGetTime_StartHeating() const;
  double dGetTime_EndHeating() const;
  int iGetFlagTurnOffCoolTime() const;
  int iGetIdealCooingIterateNumber() const;

 private:
  friend const zeb::BlockTable& zeb::tableOf<CZEBCoolBackDoorParm>();

  bool m_bGetIfActiveHeatFluxHistory = false;
  int m_iGetIfActive_ElectromagneticHeating = 0;
  zeb::OwnedText m_cGetElectromagneticxternalFile;
  int m_iGetIfActive_ReadCoolantPropertiesFromPCSFile = 0;
  int m_iGetIfOutput_NonMatchingWallSTL = 0;
  int m_iGetIfOutputAverageTemperature = 0;
  int m_iGetIfActiveSensorHeatFlux = 0;
  double m_dGetTime_StartHeating = 0.0;
  double m_dGetTime_EndHeating = 0.0;
  int m_iGetFlagTurnOffCoolTime = 0;
  int m_iGetIdealCooingIterateNumber = 2;
};
