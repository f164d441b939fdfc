// The General block: keys that fire on other keys' lines, texts, the echo, setters and the dump.
#include <gmock/gmock.h>

#include <utility>
#include <vector>

#include "blocks/CZEBCMPGeneralParm.h"
#include "tests/blocks/ReadBlock.hpp"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using zebtest::dumpOf;
using zebtest::printedBy;

namespace {

CZEBCMPGeneralParm read(const std::string& lines) {
  CZEBCMPGeneralParm block;
  zebtest::readSectionInto(block, "General", lines + "\n[/General]\n");
  return block;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

// The dump's lines that differ from a default block's, tabs reduced to one blank.
std::vector<std::string> changedDumpLines(const CZEBCMPGeneralParm& block) {
  const auto before = linesOf(dumpOf(CZEBCMPGeneralParm()));
  const auto after = linesOf(dumpOf(block));
  std::vector<std::string> changed;
  for (std::size_t i = 0; i < after.size(); ++i) {
    if (i < before.size() && after[i] == before[i]) continue;
    std::string line = after[i];
    const auto first = line.find('\t');
    if (first != line.npos) line.replace(first, line.find_last_of('\t') - first + 1, " ");
    changed.push_back(line);
  }
  return changed;
}

// The members that the dump leaves out.
void expectUndumpedDefaults(const CZEBCMPGeneralParm& block) {
  EXPECT_EQ(block.dCompressibilityFactor(), 1.0);
  EXPECT_EQ(block.iCMForceCtrl(), 0);
  EXPECT_EQ(block.dCMForceCtrlConst(), 0.3);
  EXPECT_EQ(block.iRIMInletConvSolver(), 0);
  EXPECT_EQ(block.dVECouplingDegree(), 0.1);
  EXPECT_EQ(block.iShowAirZoneResult(), 0);
  EXPECT_EQ(block.iShowNegativePressureField(), 0);
  EXPECT_EQ(block.dPreFillingPercent(), 0.0);
}

// --- Keys -------------------------------------------------------------------------------------------------------

TEST(GeneralKeys, OneKeyLineLeavesAllOtherMembersAtTheirDefaults) {
  const CZEBCMPGeneralParm block = read("VentPressureDiffLimit = 5");
  EXPECT_EQ(block.dPressureDiffLimit(), 5.0);
  EXPECT_THAT(changedDumpLines(block), ElementsAre("m_dPressureDiffLimit = 5"));
  expectUndumpedDefaults(block);
}

TEST(GeneralKeys, TheMisspeltToleranceKeyIsTheOnlyOne) {
  EXPECT_EQ(read("TempConvergToler = 0.01").dTempConvergToler(), 0.001);
  EXPECT_EQ(read("TempCovergToler = 0.01").dTempConvergToler(), 0.01);
}

TEST(GeneralKeys, KeysSetMembersOfQuiteOtherNames) {
  const CZEBCMPGeneralParm block = read(
      "FiberCTGRaio = 0.6\nCMdt = 0.25\nJet_Flow = 1\nPIMOn = 2\nOutputVent = 3\nW3FD3FFormat = 4\nW3FD3FType = 5\n"
      "HotRunnerTemperatureDiff = 12.5\nHotRunnerSurfaceBCType = 6\nUpdateHRSurfaceTempFromCool = 7\nMFSIndicator = 8");
  EXPECT_THAT(changedDumpLines(block),
              ElementsAre("m_iW3FFormat = 4", "m_iOutputD3FW3FType = 5", "m_iOutput_VentFace = 3",
                          "m_iUVWPT_VolumeFlux = 1", "m_dHotInitTDiff = 12.5", "m_iPIM = 2", "m_dFiberCTGRatio = 0.6",
                          "m_iMeltFrontSpeedIndicator = 8", "m_iHotRunnerSurfaceT_Dirichlet_BCType = 6",
                          "m_iHotRunnerSurfaceTFromCool = 7", "m_dCMFixedDt = 0.25"));
  expectUndumpedDefaults(block);
}

TEST(GeneralKeys, KeysAreCaseSensitive) { EXPECT_TRUE(changedDumpLines(read("autohtc = 1\nAUTOHTC = 1")).empty()); }

TEST(GeneralKeys, PackTimeLineAlsoSetsThePackSwitchToItsWholePart) {
  const CZEBCMPGeneralParm block = read("PacktoCalcFSI = 1\nPacktoCalcFSITime = 0.8");
  EXPECT_EQ(block.dIsPackCalcFSI_Time(), 0.8);
  EXPECT_EQ(block.iIsPackCalcFSI(), 0);
}

TEST(GeneralKeys, PackSwitchLineLeavesThePackTime) {
  const CZEBCMPGeneralParm block = read("PacktoCalcFSITime = 0.8\nPacktoCalcFSI = 1");
  EXPECT_EQ(block.dIsPackCalcFSI_Time(), 0.8);
  EXPECT_EQ(block.iIsPackCalcFSI(), 1);
}

TEST(GeneralKeys, MeshDeformMethodLineAlsoSetsTheDeformMethod) {
  const CZEBCMPGeneralParm block = read("ICM_MeshDeformMethod = 2");
  EXPECT_EQ(block.iICM_MeshDeformMethod(), 2);
  EXPECT_EQ(block.iDeformMethod(), 2);
}

TEST(GeneralKeys, DeformMethodLineLeavesTheMeshDeformMethod) {
  const CZEBCMPGeneralParm block = read("DeformMethod = 1");
  EXPECT_EQ(block.iICM_MeshDeformMethod(), 2);
  EXPECT_EQ(block.iDeformMethod(), 1);
}

TEST(GeneralKeys, FixCompressionFaceLineAlsoSetsTheFaceValue) {
  const CZEBCMPGeneralParm block = read("FixCompressionFaceCK = 1");
  EXPECT_EQ(block.iIsCompressionFaceCK(), 1);
  EXPECT_EQ(block.dCompressionFaceCK(), 1.0);
  EXPECT_EQ(block.dCompressionFaceCp(), 50.0);
}

TEST(GeneralKeys, OfTheTwoFaceViscosityKeysTheLaterLineWins) {
  EXPECT_EQ(read("FaceVisByHarmonicMean = 1").iFaceVisByHarmonicMean(), 1);
  EXPECT_EQ(read("VisInterMethod = 2").iFaceVisByHarmonicMean(), 2);
  EXPECT_EQ(read("FaceVisByHarmonicMean = 1\nVisInterMethod = 2").iFaceVisByHarmonicMean(), 2);
  EXPECT_EQ(read("VisInterMethod = 2\nFaceVisByHarmonicMean = 1").iFaceVisByHarmonicMean(), 1);
}

TEST(GeneralKeys, ViscoelasticCouplingIsNotReadFromTheFile) {
  EXPECT_EQ(read("Couple_VE = 1\nm_iCouple_VE = 1\niCouple_VE = 1").iCouple_VE(), 0);
}

TEST(GeneralKeys, AValueThatDoesNotParseStoresNothing) {
  EXPECT_TRUE(changedDumpLines(read("VentMode = on\nHotInitT =\nFirstMeshNam = 3\nValueInitChargeFiberExchangeName ="))
                  .empty());
}

TEST(GeneralKeys, WhatFollowsTheClosingLineIsLeft) {
  CZEBCMPGeneralParm block;
  EXPECT_EQ(zebtest::readSectionInto(block, "General", "VentMode = 1\nx [/General] VentMode = 2\nVentMode = 3\n"),
            "VentMode = 3\n");
  EXPECT_EQ(block.iVentMode(), 1);
}

// --- Texts ------------------------------------------------------------------------------------------------------

TEST(GeneralTexts, AreNullWithoutAFile) {
  const CZEBCMPGeneralParm block;
  EXPECT_EQ(block.strInitChargeFiber(), nullptr);
  EXPECT_EQ(block.FirstMeshName(), nullptr);
  EXPECT_EQ(block.SecondM3FName(), nullptr);
  EXPECT_EQ(block.SecondM3OName(), nullptr);
}

TEST(GeneralTexts, NamesKeepTheirBlanks) {
  const CZEBCMPGeneralParm block =
      read("FirstMeshName = part one.m3f\nSecondM3FName =   second part.m3f  \nSecondM3OName = third part.m3o");
  EXPECT_STREQ(block.FirstMeshName(), "part one.m3f");
  EXPECT_STREQ(block.SecondM3FName(), "second part.m3f  ");
  EXPECT_STREQ(block.SecondM3OName(), "third part.m3o");
}

TEST(GeneralTexts, TheExchangeNameIsOneWord) {
  EXPECT_STREQ(read("ValueInitChargeFiberExchangeName =  charge two.o2d").strInitChargeFiber(), "charge");
}

TEST(GeneralTexts, TheLastLineOfARepeatedKeyCounts) {
  EXPECT_STREQ(read("FirstMeshName = a much longer name.m3f\nFirstMeshName = b.m3f").FirstMeshName(), "b.m3f");
}

TEST(GeneralTexts, ANameOnceHandedOutStaysValidWhenTheKeyIsReadAgain) {
  CZEBCMPGeneralParm block = read("FirstMeshName = first.m3f");
  const char* first = block.FirstMeshName();
  zebtest::readSectionInto(block, "General", "FirstMeshName = second.m3f\n[/General]\n");
  EXPECT_STREQ(first, "first.m3f");
  EXPECT_STREQ(block.FirstMeshName(), "second.m3f");
}

TEST(GeneralTexts, CopiesShareThemAndOutliveTheOriginal) {
  CZEBCMPGeneralParm assigned;
  {
    const CZEBCMPGeneralParm original = read("FirstMeshName = part one.m3f\nVentMode = 4");
    assigned = original;
    const CZEBCMPGeneralParm constructed(original);
    EXPECT_EQ(assigned.FirstMeshName(), original.FirstMeshName());
    EXPECT_EQ(constructed.FirstMeshName(), original.FirstMeshName());
    EXPECT_EQ(constructed.iVentMode(), 4);
  }
  EXPECT_STREQ(assigned.FirstMeshName(), "part one.m3f");
  EXPECT_EQ(assigned.iVentMode(), 4);
}

// --- Echo -------------------------------------------------------------------------------------------------------

TEST(GeneralEcho, CouplingDegreeIsPrintedAsItIsRead) {
  EXPECT_EQ(printedBy([] { read("VECouplingDegree = 0.25"); }), "m_dVECouplingDegree = 0.250000 \n");
  EXPECT_EQ(printedBy([] { read("VECouplingDegree = 1\nVentMode = 1\nVECouplingDegree = 2.5e-7"); }),
            "m_dVECouplingDegree = 1.000000 \nm_dVECouplingDegree = 0.000000 \n");
}

TEST(GeneralEcho, NothingElseIsPrinted) {
  EXPECT_EQ(printedBy([] { read("VentMode = 1\nVECouplingDegree = x\nFirstMeshName = part.m3f"); }), "");
}

// --- Setters ----------------------------------------------------------------------------------------------------

TEST(GeneralSetters, EachSetsItsOwnMember) {
  CZEBCMPGeneralParm block;
  block.SetBarrelCompressible(11);
  block.SetCouple_VE(12);
  block.SetDeformMethod(13);
  block.SetHotInitT(14.5);
  block.SetHotRunnerSurfaceT(15.5);
  block.SetICM_MeshDeformMethod(16);
  block.SetLength_Criterion(17.5);
  block.SetOutputEOSc2f(18);
  block.SetParticleSubDt(19);
  block.SetSIMPLE_LowerLimit(20);
  block.SetSpruePressureMin(21.5);
  block.SetUVWPT_VolumeFlux(22);
  EXPECT_EQ(block.iBarrelCompressible(), 11);
  EXPECT_EQ(block.iCouple_VE(), 12);
  EXPECT_EQ(block.iDeformMethod(), 13);
  EXPECT_EQ(block.dHotInitT(), 14.5);
  EXPECT_EQ(block.dHotRunnerSurfaceT(), 15.5);
  EXPECT_EQ(block.iICM_MeshDeformMethod(), 16);
  EXPECT_EQ(block.dLength_Criterion(), 17.5);
  EXPECT_EQ(block.iOutputEOSc2f(), 18);
  EXPECT_EQ(block.nParticleSubDt(), 19);
  EXPECT_EQ(block.nSIMPLE_LowerLimit(), 20);
  EXPECT_EQ(block.dSpruePressureMin(), 21.5);
  EXPECT_EQ(block.iUVWPT_VolumeFlux(), 22);
  EXPECT_EQ(changedDumpLines(block).size(), 12u);
}

// --- Dump -------------------------------------------------------------------------------------------------------

TEST(GeneralDump, OpensWithItsHeadingAndEndsBeforeTheLastEightMembers) {
  const std::string dump = dumpOf(CZEBCMPGeneralParm());
  EXPECT_EQ(dump.substr(0, dump.find('\n', 1) + 1), "\n---------General Parameters---------\n");
  const auto lines = linesOf(dump);
  // An empty line, the heading, and 121 members less eight.
  EXPECT_EQ(lines.size(), 2u + 113u);
  EXPECT_THAT(lines.back(), testing::MatchesRegex("m_iShowCompressionSpeed\t+= 0"));
  for (const char* member :
       {"m_dCompressibilityFactor", "m_iCMForceCtrl", "m_dCMForceCtrlConst", "m_iRIMInletConvSolver",
        "m_dVECouplingDegree", "m_iShowAirZoneResult", "m_iShowNegativePressureField", "m_dPreFillingPercent"}) {
    EXPECT_THAT(dump, Not(HasSubstr(member)));
  }
}

TEST(GeneralDump, EveryLineIsNameTabsEqualsValue) {
  const auto lines = linesOf(dumpOf(CZEBCMPGeneralParm()));
  for (std::size_t i = 2; i < lines.size(); ++i) {
    EXPECT_THAT(lines[i], testing::MatchesRegex("m_[A-Za-z0-9_]+\t+= [-+.e0-9]*"));
  }
}

TEST(GeneralDump, ViscoelasticCouplingFollowsTheAccelerationType) {
  EXPECT_THAT(dumpOf(CZEBCMPGeneralParm()),
              testing::ContainsRegex("\nm_iAccelerationType\t+= 0\nm_iCouple_VE\t+= 0\nm_iCrystall_Viscosity\t+= 0\n"));
}

TEST(GeneralDump, FaceViscosityStandsThereOnce) {
  const std::string dump = dumpOf(CZEBCMPGeneralParm());
  const auto first = dump.find("m_iFaceVisByHarmonicMean");
  ASSERT_NE(first, dump.npos);
  EXPECT_EQ(dump.find("m_iFaceVisByHarmonicMean", first + 1), dump.npos);
  EXPECT_THAT(dump, Not(HasSubstr("VisInterMethod")));
}

TEST(GeneralDump, DoublesHaveSixSignificantDigits) {
  const std::string dump = dumpOf(read("VentStartTime = -0.123456789"));
  EXPECT_THAT(dump, testing::ContainsRegex("\nm_dMax_HTC_Value\t+= 7.5e\\+06\n"));
  EXPECT_THAT(dump, testing::ContainsRegex("\nm_dVentStopTime\t+= 1e\\+30\nm_dVentStartTime\t+= -0.123457\n"));
}

TEST(GeneralDump, TextsArePrintedAsTextsAndNullTextsAsNothing) {
  EXPECT_THAT(dumpOf(CZEBCMPGeneralParm()),
              testing::ContainsRegex("\nm_szFirstMeshName\t+= \nm_szSecondM3FName\t+= \nm_szSecondM3OName\t+= \n"));
  EXPECT_THAT(changedDumpLines(read("FirstMeshName = part one.m3f\nValueInitChargeFiberExchangeName = word rest")),
              ElementsAre("m_strInitChargeFiber = word", "m_szFirstMeshName = part one.m3f"));
}

}  // namespace
