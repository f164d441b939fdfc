// The cooling blocks: three positional sections that a version guards, and the section of words.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "blocks/CZEBCool3DCoolingChannelParm.h"
#include "blocks/CZEBCoolBackDoorParm.h"
#include "blocks/CZEBCoolFastCoolParm.h"
#include "blocks/CZEBCoolStdCoolParm.h"
#include "tests/blocks/ReadBlock.hpp"

using zebtest::dumpOf;
using zebtest::readSectionInto;

namespace {

// A version line and empty lines up to `count`, with one line replaced per pair.
std::string positional(int version, std::size_t count, const std::vector<std::pair<std::size_t, std::string>>& lines) {
  std::vector<std::string> all(count);
  all[0] = std::to_string(version);
  for (const auto& [number, text] : lines) all[number - 1] = text;
  std::string text;
  for (const std::string& line : all) text += line + "\n";
  return text;
}

CZEBCoolBackDoorParm whiteboard(const std::string& lines) {
  CZEBCoolBackDoorParm block;
  readSectionInto(block, "Whiteboard", lines + "\n[/Whiteboard]\n");
  return block;
}

}  // namespace

TEST(CoolingParm, NoCoolingBlockIsDumped) {
  EXPECT_EQ(dumpOf(CZEBCoolFastCoolParm()), "");
  EXPECT_EQ(dumpOf(CZEBCoolStdCoolParm()), "");
  EXPECT_EQ(dumpOf(CZEBCool3DCoolingChannelParm()), "");
  EXPECT_EQ(dumpOf(CZEBCoolBackDoorParm()), "");
}

TEST(FastCoolParm, OtherVersionLeavesTheDefaultsAndTheLines) {
  CZEBCoolFastCoolParm block;
  std::string numbers;
  for (int line = 2; line <= 24; ++line) numbers += "7 7 7 7\n";
  bool matched = true;
  EXPECT_EQ(readSectionInto(block, "FastCool", "1016\n" + numbers, &matched), numbers);
  EXPECT_FALSE(matched);
  EXPECT_EQ(block.iGetcfcver_FastCool(), 1017);
  EXPECT_EQ(block.iGetlsolvTP(), 5);
  EXPECT_EQ(block.dGetHeaterEfficicency(), 1.0);
}

TEST(FastCoolParm, LineWithoutAVersionIsAnotherVersion) {
  for (const char* line : {"", "version 1017", "x"}) {
    CZEBCoolFastCoolParm block;
    bool matched = true;
    EXPECT_EQ(readSectionInto(block, "FastCool", std::string(line) + "\n8 8\n", &matched), "8 8\n");
    EXPECT_FALSE(matched) << line;
    EXPECT_EQ(block.iGetlsolvTP(), 5);
  }
}

TEST(FastCoolParm, Lines15And16ShareTheirSecondField) {
  CZEBCoolFastCoolParm block;
  bool matched = false;
  readSectionInto(block, "FastCool", positional(1017, 24, {{15, "0.4 0.6"}, {16, "0.7 0.8"}}), &matched);
  EXPECT_TRUE(matched);
  EXPECT_EQ(block.dGetGeoRhsPUnder(), 0.4);
  EXPECT_EQ(block.dGetGeoTempPUnder(), 0.7);
  EXPECT_EQ(block.dGetGeoTempMUnder(), 0.8);
  EXPECT_EQ(block.dGetGeoRhsMUnder(), 1.0);
}

TEST(FastCoolParm, Line15StandsWhereLine16LacksItsSecondField) {
  CZEBCoolFastCoolParm block;
  readSectionInto(block, "FastCool", positional(1017, 24, {{15, "0.4 0.6"}, {16, "0.7"}}));
  EXPECT_EQ(block.dGetGeoTempPUnder(), 0.7);
  EXPECT_EQ(block.dGetGeoTempMUnder(), 0.6);
}

TEST(FastCoolParm, MissingFieldsLeaveTheirMembers) {
  CZEBCoolFastCoolParm block;
  readSectionInto(block, "FastCool", positional(1017, 24, {{5, "16 2"}, {6, "99 x 3"}, {21, "-40"}}));
  EXPECT_EQ(block.iGetNiterP(), 16);
  EXPECT_EQ(block.iGetNiterM(), 2);
  EXPECT_EQ(block.iGetIterStep(), 10);
  EXPECT_EQ(block.iGetNTimeStep(), 99);
  EXPECT_EQ(block.iGetTimeStep(), 50);
  EXPECT_EQ(block.dGetDt(), 0.001);
  EXPECT_EQ(block.dGetAllowTemperature_min(), -40.0);
  EXPECT_EQ(block.dGetAllowTemperature_max(), 1000.0);
  EXPECT_EQ(block.dGetTimeStep_min(), 1e-9);
}

TEST(FastCoolParm, NumberCutByAnIntegerFieldGoesOnInTheNextField) {
  CZEBCoolFastCoolParm block;
  readSectionInto(block, "FastCool", positional(1017, 24, {{13, "5.75"}}));
  EXPECT_EQ(block.iGetNiterMP(), 5);
  EXPECT_EQ(block.dGetTolerMP(), 0.75);
}

TEST(FastCoolParm, TakesItsTwentyFourLinesAndNoClosingLine) {
  CZEBCoolFastCoolParm block;
  bool matched = false;
  const std::string lines = positional(1017, 24, {{2, "[/FastCool]"}, {24, "1 0.25 left over"}});
  EXPECT_EQ(readSectionInto(block, "FastCool", lines + "[/FastCool]\n[General]\n", &matched),
            "[/FastCool]\n[General]\n");
  EXPECT_TRUE(matched);
  EXPECT_EQ(block.iGetIfCalHeaterTemperature(), 1);
  EXPECT_EQ(block.dGetHeaterEfficicency(), 0.25);
}

TEST(FastCoolParm, InputThatEndsEarlyKeepsTheDefaultsOfTheLinesThatItLacks) {
  CZEBCoolFastCoolParm block;
  bool matched = false;
  EXPECT_EQ(readSectionInto(block, "FastCool", "1017\n6 3", &matched), "");
  EXPECT_TRUE(matched);
  EXPECT_EQ(block.iGetlsolvTP(), 6);
  EXPECT_EQ(block.iGetlsolvTM(), 3);
  EXPECT_EQ(block.dGetHotRunnerHTC(), 0.0);
  EXPECT_EQ(block.dGetAllowMaxMinTemperatureDiff_Factor(), 1.5);
}

TEST(StdCoolParm, ReadsOnlyItsOwnVersion) {
  for (const int version : {1017, 1046, 1047, 1048}) {
    CZEBCoolStdCoolParm block;
    bool matched = false;
    readSectionInto(block, "StdCool", positional(version, 24, {{24, "12.5"}}), &matched);
    EXPECT_EQ(matched, version == 1047) << version;
    EXPECT_EQ(block.dGetMoldAirHTCValue(), version == 1047 ? 12.5 : -1.0) << version;
    EXPECT_EQ(block.iGetcfcver_StdCool(), 1047);
  }
}

TEST(StdCoolParm, Lines15And16ShareTheirSecondField) {
  CZEBCoolStdCoolParm block;
  readSectionInto(block, "StdCool", positional(1047, 24, {{15, "0.4 0.6"}, {16, "0.7 0.8"}}));
  EXPECT_EQ(block.dGetGeoRhsPUnder(), 0.4);
  EXPECT_EQ(block.dGetGeoTempPUnder(), 0.7);
  EXPECT_EQ(block.dGetGeoTempMUnder(), 0.8);
  EXPECT_EQ(block.dGetGeoRhsMUnder(), 0.5);
}

TEST(StdCoolParm, LongLinesFillTheirMembersInOrder) {
  CZEBCoolStdCoolParm block;
  readSectionInto(
      block, "StdCool",
      positional(1047, 24, {{6, "1 2 0.5 3 4"}, {13, "5 0.25 0.125 6.5"}, {18, "7.5 8 9.5"}, {20, "1 2 3 4 0.5 6"}}));
  EXPECT_EQ(block.iGetNTimeStep(), 1);
  EXPECT_EQ(block.iGetTimeStep(), 2);
  EXPECT_EQ(block.dGetDt(), 0.5);
  EXPECT_EQ(block.iGetBlendTime(), 3);
  EXPECT_EQ(block.iGetNMaxTimeStep_Ct(), 4);
  EXPECT_EQ(block.iGetNiterMP(), 5);
  EXPECT_EQ(block.dGetTolerMP(), 0.25);
  EXPECT_EQ(block.dGetAllowMin_tolerMP(), 0.125);
  EXPECT_EQ(block.dGetMaxDifferTemperatureMP(), 6.5);
  EXPECT_EQ(block.dGetOffsetEjectionTemp(), 7.5);
  EXPECT_EQ(block.dGetIfCalCtCoolTime(), 8);
  EXPECT_EQ(block.dGetUserMaxAllowCoolingTime(), 9.5);
  EXPECT_EQ(block.iGetIfCalPartInsertUsePartTemperature(), 1);
  EXPECT_EQ(block.iGetIfModifyHeatFlux(), 2);
  EXPECT_EQ(block.iGetCt_BFacePType(), 3);
  EXPECT_EQ(block.iGetCt_BFaceP_Niter(), 4);
  EXPECT_EQ(block.dGetCt_BFaceP_MFactor(), 0.5);
  EXPECT_EQ(block.iGetIfIgnoreBadElement(), 6);
}

TEST(StdCoolParm, HeatFluxHistoryStaysOff) {
  CZEBCoolStdCoolParm block;
  readSectionInto(block, "StdCool", positional(1047, 24, {{19, "1 HeatFluxHistory"}}));
  EXPECT_EQ(block.dGetIfDynamicMatProperty(), 1);
  EXPECT_FALSE(block.bGetIfActiveHeatFluxHistory());
}

TEST(CoolingChannelParm, Lines3And4BothHoldTheIterations) {
  CZEBCool3DCoolingChannelParm block;
  readSectionInto(block, "3DCoolingChannel", positional(1002, 7, {{3, "7 0.5"}, {4, "9 0.25"}}));
  EXPECT_EQ(block.iGetNiterC(), 9);
  EXPECT_EQ(block.dGetTolerC(), 0.1);
  EXPECT_EQ(block.iGetNiterInC(), 30);
  EXPECT_EQ(block.dGetTolerInC(), 0.001);
}

TEST(CoolingChannelParm, Line3StandsWhereLine4HasNoNumber) {
  CZEBCool3DCoolingChannelParm block;
  readSectionInto(block, "3DCoolingChannel", positional(1002, 7, {{3, "7"}}));
  EXPECT_EQ(block.iGetNiterC(), 7);
}

TEST(CoolingChannelParm, SevenLinesFillTheMembers) {
  CZEBCool3DCoolingChannelParm block;
  bool matched = false;
  EXPECT_EQ(readSectionInto(block, "3DCoolingChannel",
                            "1002\n1\n2\n3\n0.25 0.5\n0.75 1.5\n2.5 4\n[/3DCoolingChannel]\n", &matched),
            "[/3DCoolingChannel]\n");
  EXPECT_TRUE(matched);
  EXPECT_EQ(block.i_GetcfcVer_3DCChannel(), 1002);
  EXPECT_EQ(block.iGet3DCChanelDebug(), 1);
  EXPECT_EQ(block.iGetNiterC(), 3);
  EXPECT_EQ(block.dGetGeoTempCUnder(), 0.25);
  EXPECT_EQ(block.dGetGeoRhsCUnder(), 0.5);
  EXPECT_EQ(block.dGetBlendC(), 0.75);
  EXPECT_EQ(block.dGetRelaxC(), 1.5);
  EXPECT_EQ(block.dGetAllowCChannelBoundaryChangeTemperature(), 2.5);
  EXPECT_EQ(block.iGetCChannelCalculateStep(), 4);
}

TEST(CoolingChannelParm, OtherVersionIsRefused) {
  CZEBCool3DCoolingChannelParm block;
  bool matched = true;
  EXPECT_EQ(readSectionInto(block, "3DCoolingChannel", "1001\n1\n2\n", &matched), "1\n2\n");
  EXPECT_FALSE(matched);
  EXPECT_EQ(block.iGet3DCChanelDebug(), 0);
}

TEST(Whiteboard, EverythingIsOffByDefault) {
  const CZEBCoolBackDoorParm block;
  EXPECT_FALSE(block.bGetIfActiveHeatFluxHistory());
  EXPECT_EQ(block.iGetIfActive_ElectromagneticHeating(), 0);
  EXPECT_STREQ(block.cGetElectromagneticxternalFile(), "");
  EXPECT_EQ(block.iGetIfActive_ReadCoolantPropertiesFromPCSFile(), 0);
  EXPECT_EQ(block.iGetIfOutput_NonMatchingWallSTL(), 0);
  EXPECT_EQ(block.iGetIfOutputAverageTemperature(), 0);
  EXPECT_EQ(block.iGetIfActiveSensorHeatFlux(), 0);
  EXPECT_EQ(block.dGetTime_StartHeating(), 0.0);
  EXPECT_EQ(block.dGetTime_EndHeating(), 0.0);
  EXPECT_EQ(block.iGetFlagTurnOffCoolTime(), 0);
  EXPECT_EQ(block.iGetIdealCooingIterateNumber(), 2);
}

TEST(Whiteboard, HeatingLineGivesTimesAndFile) {
  const CZEBCoolBackDoorParm block = whiteboard("ElemagComsol 1.5 20.0 coil.txt");
  EXPECT_EQ(block.iGetIfActive_ElectromagneticHeating(), 1);
  EXPECT_EQ(block.dGetTime_StartHeating(), 1.5);
  EXPECT_EQ(block.dGetTime_EndHeating(), 20.0);
  EXPECT_STREQ(block.cGetElectromagneticxternalFile(), "coil.txt");
}

TEST(Whiteboard, HeatingLineKeepsWhatItDoesNotGive) {
  struct {
    const char* line;
    double start, end;
    const char* file;
  } const kCases[] = {
      {"ElemagComsol", 1.5, 20.0, "coil.txt"},
      {"ElemagComsol = 2 30 other.txt", 1.5, 20.0, "coil.txt"},  // "=" is no number
      {"use ElemagComsol 2 30 other.txt", 1.5, 20.0, "coil.txt"},
      {"ElemagComsol 2", 2.0, 20.0, "coil.txt"},
      {"ElemagComsol 2 other.txt", 2.0, 20.0, "coil.txt"},
      {"ElemagComsol 2 30", 2.0, 30.0, "coil.txt"},
      {"  ElemagComsol=1\t2 30 other.txt more", 2.0, 30.0, "other.txt"},
  };
  for (const auto& test : kCases) {
    SCOPED_TRACE(test.line);
    const CZEBCoolBackDoorParm block = whiteboard(std::string("ElemagComsol 1.5 20.0 coil.txt\n") + test.line);
    EXPECT_EQ(block.iGetIfActive_ElectromagneticHeating(), 1);
    EXPECT_EQ(block.dGetTime_StartHeating(), test.start);
    EXPECT_EQ(block.dGetTime_EndHeating(), test.end);
    EXPECT_STREQ(block.cGetElectromagneticxternalFile(), test.file);
  }
}

TEST(Whiteboard, FileNameIsCutTo511Characters) {
  for (const std::size_t length : {510u, 511u, 512u, 5000u}) {
    const CZEBCoolBackDoorParm block = whiteboard("ElemagComsol 0 1 " + std::string(length, 'f'));
    EXPECT_EQ(std::string(block.cGetElectromagneticxternalFile()), std::string(length < 511 ? length : 511, 'f'));
  }
}

TEST(Whiteboard, FileNameOnceHandedOutStaysValid) {
  CZEBCoolBackDoorParm block = whiteboard("ElemagComsol 0 1 coil.txt");
  const char* first = block.cGetElectromagneticxternalFile();
  readSectionInto(block, "Whiteboard", "ElemagComsol 0 1 other.txt\n[/Whiteboard]\n");
  EXPECT_STREQ(first, "coil.txt");
  EXPECT_STREQ(block.cGetElectromagneticxternalFile(), "other.txt");
}

TEST(Whiteboard, CopiesShareTheFileName) {
  CZEBCoolBackDoorParm copy;
  {
    const CZEBCoolBackDoorParm block = whiteboard("ElemagComsol 0 1 coil.txt");
    copy = block;
    EXPECT_EQ(copy.cGetElectromagneticxternalFile(), block.cGetElectromagneticxternalFile());
  }
  EXPECT_STREQ(copy.cGetElectromagneticxternalFile(), "coil.txt");
}

TEST(Whiteboard, AWordSwitchesOnWhateverFollows) {
  const CZEBCoolBackDoorParm block = whiteboard(
      "no HeatFluxHistory\nSensorHeatFlux 0\nReadCoolantFromPCS = 0\nxOutputNonMatchingSTLx\nOutputAverageTemperature "
      "off");
  EXPECT_TRUE(block.bGetIfActiveHeatFluxHistory());
  EXPECT_EQ(block.iGetIfActiveSensorHeatFlux(), 1);
  EXPECT_EQ(block.iGetIfActive_ReadCoolantPropertiesFromPCSFile(), 1);
  EXPECT_EQ(block.iGetIfOutput_NonMatchingWallSTL(), 1);
  EXPECT_EQ(block.iGetIfOutputAverageTemperature(), 1);
  EXPECT_EQ(block.iGetIfActive_ElectromagneticHeating(), 0);
}

TEST(Whiteboard, EachWordSwitchesOnlyItsOwnFlag) {
  const CZEBCoolBackDoorParm block = whiteboard("SensorHeatFlux");
  EXPECT_EQ(block.iGetIfActiveSensorHeatFlux(), 1);
  EXPECT_FALSE(block.bGetIfActiveHeatFluxHistory());
  EXPECT_EQ(block.iGetIfOutputAverageTemperature(), 0);
}

TEST(Whiteboard, NothingSwitchesOff) {
  CZEBCoolBackDoorParm block = whiteboard("SensorHeatFlux");
  readSectionInto(block, "Whiteboard", "SensorHeatFlux = 0\n[/Whiteboard]\n");
  EXPECT_EQ(block.iGetIfActiveSensorHeatFlux(), 1);
  readSectionInto(block, "Whiteboard", "[/Whiteboard]\n");
  EXPECT_EQ(block.iGetIfActiveSensorHeatFlux(), 1);
}

TEST(Whiteboard, IdealCoolingIterationsHaveTheirOwnSpelling) {
  EXPECT_EQ(whiteboard("IdealCooingIterateNumber = 9").iGetIdealCooingIterateNumber(), 2);
  EXPECT_EQ(whiteboard("IdealCoolingItreateNumber = 9").iGetIdealCooingIterateNumber(), 2);
  EXPECT_EQ(whiteboard("IdealCooingItreateNumber = 9").iGetIdealCooingIterateNumber(), 9);
}

TEST(Whiteboard, IntegerKeysNeedAValue) {
  EXPECT_EQ(whiteboard("FlagTurnOffEstimateCoolTime = 1").iGetFlagTurnOffCoolTime(), 1);
  EXPECT_EQ(whiteboard("FlagTurnOffEstimateCoolTime").iGetFlagTurnOffCoolTime(), 0);
  EXPECT_EQ(whiteboard("FlagTurnOffCoolTime = 1").iGetFlagTurnOffCoolTime(), 0);
}

TEST(Whiteboard, KeysOfTheClosingLineCount) {
  CZEBCoolBackDoorParm block;
  EXPECT_EQ(readSectionInto(block, "Whiteboard",
                            "x\n[/Whiteboard] SensorHeatFlux IdealCooingItreateNumber = 7\nHeatFluxHistory\n"),
            "HeatFluxHistory\n");
  EXPECT_EQ(block.iGetIfActiveSensorHeatFlux(), 1);
  EXPECT_EQ(block.iGetIdealCooingIterateNumber(), 7);
  EXPECT_FALSE(block.bGetIfActiveHeatFluxHistory());
}

TEST(Whiteboard, IsReadByRank0Alone) {
  const zeb::Section& section = zebtest::sectionOf<CZEBCoolBackDoorParm>("Whiteboard");
  EXPECT_TRUE(section.readByRank0);
  EXPECT_EQ(section.open, "[Whiteboard]");
  EXPECT_EQ(section.close, "[/Whiteboard]");
}
