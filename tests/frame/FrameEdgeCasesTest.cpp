// Corners of the frame: lookups on odd lines, reads that break off, lines that open and close at once, heads with odd
// numbers, and repairs of values that a file has set.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <streambuf>
#include <typeinfo>

#include "frame/CZEBCMPInternalTool.hpp"
#include "frame/KeyLookup.h"
#include "inspect/set/OutputCapture.hpp"
#include "tests/blocks/ReadBlock.hpp"
#include "tests/ranks/RankReading.hpp"
#include "tests/support/ReadSet.hpp"
#include "tests/support/RecordingCommunicator.h"
#include "tests/support/Tsv.hpp"

namespace {

using zebtest::changesOf;
using zebtest::defaultValues;
using zebtest::Lines;
using zebtest::Set;
using zebtest::TemporaryFile;
using zebtest::valuesOf;

constexpr double kInfinite = std::numeric_limits<double>::infinity();

// --- Lookups ----------------------------------------------------------------------------------------------------

TEST(KeyLookupEdges, AnEmptyKeyIsInEveryLine) {
  for (const std::string& key : {std::string(), std::string("\0N", 2)}) {
    int value = -7;
    EXPECT_EQ(GetKeyValueInt("", key, value), 1);
    EXPECT_EQ(value, -7);
    EXPECT_EQ(GetKeyValueInt("N = 3", key, value), 1);
    EXPECT_EQ(value, 3);
  }
}

TEST(KeyLookupEdges, AStringLosesOnlyItsLeadingSpaces) {
  const struct {
    const char* line;
    const char* string;
    const char* word;
  } cases[] = {
      {"Name =\tmy part", "\tmy part", "my"},          {"Name =  \t my part", "\t my part", "my"},
      {"Name = a = b // c", "a = b // c", "a"},        {"x = b Name = a", "b Name = a", "b"},
      {"Name = part.m3f\r", "part.m3f\r", "part.m3f"}, {"Name == part", "= part", "="},
  };
  for (const auto& [line, expectedString, expectedWord] : cases) {
    std::string string = "before", word = "before";
    EXPECT_EQ(GetKeyValueString(line, "Name", string), 1) << line;
    EXPECT_EQ(string, expectedString) << line;
    EXPECT_EQ(GetKeyValueWord(line, "Name", word), 1) << line;
    EXPECT_EQ(word, expectedWord) << line;
  }
}

// --- Line source ------------------------------------------------------------------------------------------------

// Delivers "abc", a line end and half a line; then the device fails.
class FailingDevice final : public std::streambuf {
 protected:
  int_type underflow() override {
    if (gptr() != nullptr) throw std::runtime_error("device");
    setg(m_text, m_text, m_text + sizeof m_text - 1);
    return traits_type::to_int_type(m_text[0]);
  }

 private:
  char m_text[7] = "abc\nde";
};

TEST(LineSourceEdges, ALineThatAReadErrorCutsIsNotDelivered) {
  FailingDevice serialDevice, device;
  std::istream serial(&serialDevice), shared(&device);
  std::string line;
  EXPECT_EQ(zeb::LineSource{}.getLine(serial, line), 1);
  EXPECT_EQ(line, "abc");
  EXPECT_EQ(zeb::LineSource{}.getLine(serial, line), 0);
  EXPECT_EQ(line, "");

  zeb::RecordingCommunicator com(2);
  const zeb::LineSource source{.com = &com};
  EXPECT_EQ(source.getLine(shared, line), 1);
  EXPECT_EQ(source.getLine(shared, line), 0);
  EXPECT_EQ(com.log().calls(), (Lines{"Barrier", "Broadi 0", "Broadc \"abc\"", "Barrier", "Broadi -1"}));
}

TEST(LineSourceEdges, ACommunicatorOfOneRankIsCollectiveAndLimitsTheLine) {
  zeb::RecordingCommunicator com(1);
  const zeb::LineSource source{.com = &com};
  std::istringstream stream(std::string(300, 'x') + "\n");
  std::string line;
  EXPECT_EQ(source.getLine(stream, line), 1);
  EXPECT_EQ(line, std::string(254, 'x'));
  EXPECT_EQ(com.log().calls(), (Lines{"Barrier", "Broadi 0", "Broadc \"" + line + "\""}));
}

// --- Reader -----------------------------------------------------------------------------------------------------

TEST(CMPReaderEdges, TheClosingTextInTheOpeningLineClosesNothing) {
  for (const char* opening : {"[ShortShot] [/ShortShot]", "[/ShortShot][ShortShot]"}) {
    const Set set(opening + std::string("\nTimeLimit = 3\n[/ShortShot]\nFRLimit = 0.5\n"));
    EXPECT_EQ(changesOf(set), Lines{"ShortShot.m_dTimeLimit = 3"}) << opening;
  }
}

TEST(CMPReaderEdges, ALineThatClosesTwoSectionsClosesTheFirst) {
  const Set set(
      "[ShortShot] [General]\nTimeLimit = 3\n[/ShortShot] [/General]\nVentMode = 1\nTimeLimit = 4\n[/General]\n"
      "VentMode = 2\n");
  EXPECT_EQ(changesOf(set), (Lines{"General.m_iVentMode = 1", "ShortShot.m_dTimeLimit = 3"}));
}

TEST(CMPReaderEdges, ASecondHeadIsReadAgain) {
  const std::string head(18, '\n');
  const Set set("[VER] 1023\n7 8 9\n" + head + "[VER] 1024\n[VER] 1023\n5\n" + head);
  EXPECT_EQ(set.getIteratParm()->ilsolvU(), 5);
  EXPECT_EQ(set.getIteratParm()->ilsolvV(), 8);
}

TEST(CMPReaderEdges, EveryRankEchoesTheCouplingDegree) {
  const TemporaryFile file("[General]\nVECouplingDegree = 0.25\n[/General]\n");
  const std::string echo = "m_dVECouplingDegree = 0.250000 \n";
  EXPECT_EQ(zebtest::readAs(nullptr, file.path()).printed, echo);
  // The other ranks are compared with rank 0.
  EXPECT_EQ(zebtest::readOnRanks(file.path(), 3, {1, 2}).printed, echo);
}

// --- Head -------------------------------------------------------------------------------------------------------

// A head that ends with this line; the lines that are missing count as empty ones.
CZEBCMPIteratParm readHeadLine(std::size_t number, const std::string& text) {
  CZEBCMPIteratParm block;
  zebtest::readSectionInto(block, "VER", std::string(number - 1, '\n') + text + "\n");
  return block;
}

TEST(HeadEdges, AnIntThatDoesNotFitEndsItsLine) {
  for (const char* line : {"3 2147483648 5", "3 -2147483649 5", "3 99999999999999999999 5", "3 nan 5", "3 inf 5"}) {
    const CZEBCMPIteratParm block = readHeadLine(1, line);
    EXPECT_EQ(block.ilsolvU(), 3) << line;
    EXPECT_EQ(block.ilsolvV(), 2) << line;
    EXPECT_EQ(block.ilsolvW(), 2) << line;
  }
  EXPECT_EQ(readHeadLine(1, "3 -2147483648 2147483647").ilsolvW(), 2147483647);
}

TEST(HeadEdges, DoublesMayBeInfiniteNotANumberOrHexadecimal) {
  EXPECT_TRUE(std::isnan(readHeadLine(6, "nan").dtoler()));
  const CZEBCMPIteratParm block = readHeadLine(7, "inf -INF 0x10 0x1p-1 infinity 1e400");
  EXPECT_EQ(block.dBlendIU(), kInfinite);
  EXPECT_EQ(block.dBlendIV(), -kInfinite);
  EXPECT_EQ(block.dBlendIW(), 16.0);
  EXPECT_EQ(block.dBlendIP(), 0.5);
  EXPECT_EQ(block.dBlendIF(), kInfinite);
  EXPECT_EQ(block.dBlendIT(), kInfinite);
}

TEST(HeadEdges, TheDumpNamesWhatIsNoNumber) {
  const std::string dump = zebtest::dumpOf(readHeadLine(7, "inf -inf nan"));
  EXPECT_NE(
      dump.find("\nm_dBlendIU\t\t\t\t\t\t\t= inf\nm_dBlendIV\t\t\t\t\t\t\t= -inf\nm_dBlendIW\t\t\t\t\t\t\t= nan\n"),
      std::string::npos);
}

TEST(HeadEdges, AnyWhiteSpaceSeparatesFields) {
  const CZEBCMPIteratParm block = readHeadLine(2, "\t 3\v4\f 5\r 6\r");
  EXPECT_EQ(block.iNRestartIU(), 3);
  EXPECT_EQ(block.iNRestartIV(), 4);
  EXPECT_EQ(block.iNRestartIW(), 5);
  EXPECT_EQ(block.iNRestartIP(), 6);
}

TEST(HeadEdges, Line16NeedsItsMiddleNumber) {
  EXPECT_EQ(readHeadLine(16, "3 7").iCouple_Type(), 3);
  EXPECT_EQ(readHeadLine(16, "3 7").dnonOrthLimitFactor(), 0.5);
  EXPECT_EQ(readHeadLine(16, "x 7 0.25").iCouple_Type(), 14);
  EXPECT_EQ(readHeadLine(16, "x 7 0.25").dnonOrthLimitFactor(), 0.5);
  // The scan takes "7" of "7.25" as the middle number and ".25" as the last one.
  EXPECT_EQ(readHeadLine(16, "3 7.25").dnonOrthLimitFactor(), 0.25);
}

TEST(HeadEdges, Line18IsScannedFieldByField) {
  const CZEBCMPIteratParm none = readHeadLine(18, "x 3 4 5 6 7 8 9 10 11");
  EXPECT_EQ(none.iIsLowTempVisCorr(), 0);
  EXPECT_EQ(none.dVisTempLimiter(), 0.0);
  EXPECT_EQ(none.iSpruePressCorrLevel(), 0);
  EXPECT_EQ(none.dUltraHighSRVisTuning(), 200.0);
  // An int field ends at the point; the next field goes on there.
  const CZEBCMPIteratParm shifted = readHeadLine(18, "0 2.5 30 4 50 60 70 8 90");
  EXPECT_EQ(shifted.iIsLowTempVisCorr(), 2);
  EXPECT_EQ(shifted.dMat_CrossModel2_VisEps(), 0.5);
  EXPECT_EQ(shifted.dVisTempLimiter(), 30.0);
  EXPECT_EQ(shifted.dMat_CrossModel_Ts(), 50.0);
  EXPECT_EQ(shifted.iSpruePressCorrLevel(), 8);
  EXPECT_EQ(shifted.dUltraHighSRVisTuning(), 90.0);
}

TEST(HeadEdges, OnlyTuningsBetweenMinusOneAndOneFallBack) {
  // What does not fit an int is not between them either.
  const std::pair<const char*, double> cases[] = {{"1e300", 1e300},
                                                  {"-1e300", -1e300},
                                                  {"4294967296", 4294967296.0},
                                                  {"4294967296.5", 4294967296.5},
                                                  {"inf", kInfinite},
                                                  {"1e-300", 200.0},
                                                  {"-0", 200.0}};
  for (const auto& [written, stored] : cases) {
    const std::string line = std::string("0 0 0 0 0 0 0 0 0 ") + written;
    EXPECT_EQ(readHeadLine(18, line).dUltraHighSRVisTuning(), stored) << written;
  }
}

TEST(HeadEdges, InfiniteValuesOfLine19PassItsRules) {
  EXPECT_EQ(readHeadLine(19, "inf").dWireEffectWeighting(), kInfinite);
  EXPECT_EQ(readHeadLine(19, "-inf").dWireEffectWeighting(), 0.0);
  EXPECT_EQ(readHeadLine(19, "1 0 0 0 0 0 0 0 0 inf").dHighTempEPS(), kInfinite);
  EXPECT_EQ(readHeadLine(19, "1 0 0 0 0 0 0 0 0 -inf").dHighTempEPS(), 10000.0);
  EXPECT_EQ(readHeadLine(19, "1 0 0 0 0 0 0 0 0 1.0000001e-5").dHighTempEPS(), 1.0000001e-5);
}

// --- Parameter set ----------------------------------------------------------------------------------------------

TEST(ToolEdges, EveryMoldingTypeHasItsToolAndItsStartValues) {
  std::map<int, std::string> toolClasses;
  for (const zebtest::TsvRow& row : zebtest::readTsv("molding.tsv")) {
    toolClasses[std::stoi(row.at("code"))] = row.at("tool_class");
  }
  ASSERT_EQ(toolClasses.size(), 15u);
  for (const auto& [code, name] : toolClasses) {
    const CZEBKNCMPCompParm set(code, 7);
    CZEBCMPInternalTool& tool = *zeb::Inspection::tool(set);
    EXPECT_EQ(typeid(tool).name(), std::to_string(name.size()) + name);
    EXPECT_EQ(tool.m_iMoldingType, code);
    EXPECT_EQ(tool.m_iMaterialType, 7);
    EXPECT_EQ(tool.m_iIsWaxMat, 0);
    EXPECT_EQ(tool.m_nPrintLevel, 0);
    EXPECT_EQ(tool.m_pCom, nullptr);
    EXPECT_EQ(tool.modifyMoldingParameters(), 1) << name;
  }
}

TEST(ParameterSetEdges, SettersAnswerOneAndTheLastOneCounts) {
  CZEBKNCMPCompParm set(0, 1);
  EXPECT_EQ(set.setMaterialType(0), 1);
  EXPECT_EQ(set.setIsWaxMat(1), 1);
  EXPECT_EQ(set.setIsWaxMat(0), 1);
  EXPECT_EQ(set.modifyParameters(), 1);
  EXPECT_EQ(valuesOf(set), defaultValues());
  EXPECT_EQ(set.setMaterialType(1), 1);
  set.modifyParameters();
  EXPECT_EQ(set.getGeneralParm()->iVentMode(), 1);
}

TEST(ParameterSetEdges, ANullCommunicatorChangesNothingAndALaterOneCounts) {
  const TemporaryFile file("");
  zeb::RecordingCommunicator first(2), second(2);
  CZEBKNCMPCompParm set(0, 0);
  EXPECT_EQ(set.setZEBCom(&first), 1);
  EXPECT_EQ(set.setZEBCom(nullptr), -1);
  set.setSolidFillBlock(file.path());
  EXPECT_EQ(first.log().calls(), (Lines{"Barrier", "Broadi -1"}));
  EXPECT_EQ(set.setZEBCom(&second), 1);
  set.setSolidFillBlock(file.path());
  EXPECT_EQ(first.log().size(), 2u);
  EXPECT_EQ(second.log().size(), 2u);
}

TEST(ParameterSetEdges, CopiesShareEverythingButTheirLife) {
  CZEBKNCMPCompParm set(0, 0), assigned(13, 0);
  CZEBKNCMPCompParm copy(set);
  assigned = set;
  copy.setMaterialType(1);
  assigned.modifyParameters();
  EXPECT_EQ(set.getGeneralParm()->iVentMode(), 1);
  EXPECT_EQ(set.getGeneralParm()->iMFTScheme(), 1) << "the assigned set is no RTM set any more";
}

TEST(ParameterSetEdges, ASetWithoutToolCanBeAssigned) {
  const zeb::OutputCapture silence;
  const CZEBKNCMPCompParm undefined(15, 0);
  CZEBKNCMPCompParm set(0, 0);
  const CZEBCMPGeneralParm* before = set.getGeneralParm();
  set = undefined;
  EXPECT_EQ(set.getGeneralParm(), nullptr);
  EXPECT_EQ(set.modifyParameters(), -1);
  EXPECT_EQ(before->iW3FFormat(), 3);
  set = CZEBKNCMPCompParm(9, 0);
  EXPECT_EQ(set.modifyParameters(), 1);
  EXPECT_EQ(set.getGeneralParm()->iIsWeightedFlowRate(), 1);
}

TEST(ParameterSetEdges, EveryRankDumpsTheBlocksInTheirOrder) {
  std::map<std::size_t, std::string> headings;
  for (const zebtest::TsvRow& row : zebtest::readTsv("blocks.tsv")) {
    if (row.at("dump_position") != "-") {
      headings[std::stoul(row.at("dump_position"))] = zebtest::unquoted(row.at("heading")) + "\n";
    }
  }
  ASSERT_EQ(headings.size(), 38u);
  const zeb::CallLog noCalls;
  zeb::ReplayingCommunicator rank1(noCalls, 1, 2);
  CZEBKNCMPCompParm set(0, 0);
  set.setZEBCom(&rank1);
  const zeb::OutputCapture capture;
  EXPECT_EQ(set.OutputParameters(), 1);
  std::size_t at = 0;
  for (const auto& [position, heading] : headings) {
    const std::size_t found = capture.text().find(heading, at);
    ASSERT_NE(found, std::string::npos) << position << heading;
    at = found + heading.size();
  }
}

// --- Repairs of values that a file has set ----------------------------------------------------------------------

struct Repaired : Set {
  Repaired(const std::string& text, int molding, int material, int wax = 0) : Set(molding, material) {
    const zeb::OutputCapture silence;
    setIsWaxMat(wax);
    read(text);
    EXPECT_EQ(modifyParameters(), 1);
  }
};

// What molding types change, at values that are neither a default nor a result.
struct Molded {
  double fluidFCRI = 5, secondFactor = 6, fluidVisFactor = 7, fluidRelaxFactor = 8, timeLimit = 2.5, lowerBound = 50;
  int weightedFlowRate = 9, mftScheme = 8, volumeFlux = 7, newMethod = 1, gradType = 0;
};

const char kMolded[] =
    "[FAIM]\nFluidFCRI = 5\nSecondFactor = 6\nFluidVisFactor = 7\nFluidRelaxFactor = 8\n[/FAIM]\n"
    "[ShortShot]\nTimeLimit = 2.5\n[/ShortShot]\n"
    "[General]\ndtNorLowerBound = 50\nWeightedFlowRate = 9\nMFTScheme = 8\nJet_Flow = 7\n[/General]\n"
    "[TimeStepSizeCtrl]\nNewMethod = 1\n[/TimeStepSizeCtrl]\n[StableFlag]\niGradType = 0\n[/StableFlag]\n";

Molded moldedBy(int code) {
  switch (code) {
    case 1:
      return {.secondFactor = 1.0, .fluidVisFactor = 1.0, .fluidRelaxFactor = 0.8};
    case 6:
      return {.secondFactor = 1.0, .fluidVisFactor = 1.0, .fluidRelaxFactor = 0.8, .timeLimit = 10.0};
    case 7:
      return {.fluidFCRI = 0.8, .secondFactor = 1.0, .fluidVisFactor = 1.0, .fluidRelaxFactor = 0.8, .timeLimit = 10.0};
    case 9:
      return {.weightedFlowRate = 1};
    case 11:
      return {.timeLimit = 1.0, .weightedFlowRate = 1};
    case 13:
      return {.lowerBound = 1.0, .mftScheme = 0};
    case 14:
      return {.lowerBound = 10.0, .weightedFlowRate = 1, .volumeFlux = 1, .newMethod = 0, .gradType = 3};
    default:
      return {};
  }
}

TEST(RepairEdges, EveryMoldingTypeOverwritesWhatTheFileSays) {
  for (int code = 0; code < 15; ++code) {
    SCOPED_TRACE("molding type " + std::to_string(code));
    const Repaired set(kMolded, code, 0);
    const Molded expected = moldedBy(code);
    EXPECT_EQ(set.getFAIMParm()->dFluidFCRI(), expected.fluidFCRI);
    EXPECT_EQ(set.getFAIMParm()->dSecondFactor(), expected.secondFactor);
    EXPECT_EQ(set.getFAIMParm()->dFluidVisFactor(), expected.fluidVisFactor);
    EXPECT_EQ(set.getFAIMParm()->dFluidRealxFactor(), expected.fluidRelaxFactor);
    EXPECT_EQ(set.shortShot().dTimeLimit(), expected.timeLimit);
    EXPECT_DOUBLE_EQ(set.general().ddtNorLowerBound(), expected.lowerBound);
    EXPECT_EQ(set.general().iIsWeightedFlowRate(), expected.weightedFlowRate);
    EXPECT_EQ(set.general().iMFTScheme(), expected.mftScheme);
    EXPECT_EQ(set.general().iUVWPT_VolumeFlux(), expected.volumeFlux);
    EXPECT_EQ(set.getTimeStepSizeCtrlParm()->iNewMethod(), expected.newMethod);
    EXPECT_EQ(set.getStableFlagParm()->iGradType(), expected.gradType);
  }
}

TEST(RepairEdges, AThermosetScalesTheSmallestViscosityThatWasRead) {
  for (int code = 0; code < 15; ++code) {
    const std::string text = "[ViscositySetting2]\nMinVis = 40\n[/ViscositySetting2]\n";
    EXPECT_DOUBLE_EQ(Repaired(text, code, 1).getViscositySetting2Parm()->dMinVis(), code == 5    ? 0.04
                                                                                    : code == 13 ? 0.004
                                                                                                 : 4.0)
        << code;
    EXPECT_EQ(Repaired(text, code, 0).getViscositySetting2Parm()->dMinVis(), 40.0) << code;
  }
}

const char kVented[] =
    "[TimeStepSizeCtrl]\nHRVof = 3\n[/TimeStepSizeCtrl]\n[CompressibleFlow]\nVentdDdp = 4\n[/CompressibleFlow]\n"
    "[General]\nVentMode = 5\nVentPressureDiffLimit = 6\nReduceSAEF = 1.0\n";

void expectVenting(const Set& set, int hrVof, double airDdp, int ventMode, double pressureLimit, double reduceSAEF) {
  EXPECT_EQ(set.getTimeStepSizeCtrlParm()->iHRVof(), hrVof);
  EXPECT_EQ(set.getCompressibleFlowParm()->dVentAirDdp(), airDdp);
  EXPECT_EQ(set.general().iVentMode(), ventMode);
  EXPECT_EQ(set.general().dPressureDiffLimit(), pressureLimit);
  EXPECT_EQ(set.general().dReduceSAEF(), reduceSAEF);
}

TEST(RepairEdges, VentingThatWasReadGivesWay) {
  expectVenting(Repaired(kVented, 0, 0), 3, 4.0, 5, 6.0, 1.0);
  expectVenting(Repaired(kVented, 0, 1), 1, 2e-7, 1, 1.005, 1.0);
  expectVenting(Repaired(kVented, 0, 0, 1), 1, 4.0, 5, 6.0, 1.0);
  const std::string enhanced = std::string(kVented) + "EnhancedVenting = 1\n";
  expectVenting(Repaired(enhanced, 0, 0), 3, 1e-8, 0, 20.0, 0.05);
  expectVenting(Repaired(enhanced, 0, 1, 1), 1, 1e-8, 0, 20.0, 0.05);
  expectVenting(Repaired(enhanced + "ReduceSAEF = 1.0000001\n", 0, 0), 3, 1e-8, 0, 20.0, 1.0000001);
}

TEST(RepairEdges, SwitchesCountOnlyWhenTheyAreOne) {
  for (const int value : {2, -1}) {
    const std::string number = std::to_string(value);
    const Repaired set(std::string(kVented) + "EnhancedVenting = " + number + "\nJet_Flow = 7\n[/General]\n" +
                           "[PUChemFoam]\nIsPUChemFoam = " + number + "\n[/PUChemFoam]\n",
                       0, value, value);
    expectVenting(set, 3, 4.0, 5, 6.0, 1.0);
    EXPECT_EQ(set.getPUChemFoamParm()->iIsPUChemFoam(), value);
    EXPECT_EQ(set.general().iUVWPT_VolumeFlux(), 7);
  }
}

TEST(RepairEdges, TrappedAirAtItsBoundsStays) {
  for (const double value : {0.0, 1.0}) {
    const Repaired set("[General]\nTrapAirVolFilled = " + std::to_string(value) + "\n[/General]\n", 0, 0);
    EXPECT_EQ(set.general().dTrapAirVolFilled(), value);
  }
}

TEST(RepairEdges, ApplyWithoutAFileToo) {
  CZEBKNCMPCompParm set(13, 1);
  EXPECT_EQ(set.setSolidFillBlock("no/such/file.cmp"), 1);
  EXPECT_EQ(set.modifyParameters(), 1);
  EXPECT_DOUBLE_EQ(set.getGeneralParm()->ddtNorLowerBound(), 0.001);
  EXPECT_EQ(set.getGeneralParm()->iMFTScheme(), 0);
  EXPECT_EQ(set.getGeneralParm()->iVentMode(), 1);
  EXPECT_DOUBLE_EQ(set.getViscositySetting2Parm()->dMinVis(), 0.001);
}

}  // namespace
