// The fibre block: eleven sections, one closing line unlike the others, one dump label unlike the others.
#include <gtest/gtest.h>

#include <string>

#include "blocks/CZEBCMPFiberParm.h"
#include "tests/blocks/ReadBlock.hpp"

using zebtest::dumpOf;
using zebtest::readSectionInto;

namespace {

const char kDefaultDump[] =
    "\n---------Fiber Parameters---------\n"
    "m_PLOT_DYNAMIC_iFlagIsPlotDynamic0\n"
    "m_PLOT_DYNAMIC_dExtenRate = 0\n"
    "m_PLOT_DYNAMIC_dShearRate = 0\n"
    "m_PLOT_DYNAMIC_dObserTime = 0\n"
    "m_FIBER_ARD_iFlagIsARD = 0\n"
    "m_FIBER_ARD_db1 = 0\n"
    "m_FIBER_ARD_db2 = 0\n"
    "m_FIBER_ARD_db3 = 0\n"
    "m_FIBER_ARD_db4 = 0\n"
    "m_FIBER_ARD_db5 = 0\n"
    "m_FIBER_SLOW_iFlagIsSLOW = 0\n"
    "m_FIBER_SLOW_dk = 0\n"
    "m_FIBER_SLOW_db = 0\n"
    "m_FIBER_CLOSURE_iFlagClosureMode = 0\n"
    "m_FIBER_Breakage_iFlagBreakage = 0\n"
    "m_FIBER_Breakage_iFlagBreakInScrewAndNozzle = 0\n"
    "m_FIBER_Breakage_dShearInScrew = 0\n"
    "m_FIBER_Breakage_dDurationInScrew = 0\n"
    "m_FIBER_Breakage_dShearInNozzle = 0\n"
    "m_FIBER_Breakage_dDurationInNozzle = 0\n"
    "m_FIBER_Breakage_iFlagScrewOwnBreakSetting = 0\n"
    "m_FIBER_Breakage_dScrewBreak_CD = 0\n"
    "m_FIBER_Breakage_dScrewBreak_CB = 0\n"
    "m_FIBER_Breakage_dScrewBreak_S = 0\n"
    "m_FIBER_ImproveRPR_iFlagObjectiveARD = 1\n"
    "m_FIBER_ImproveRPR_iFlagImproveRPR = 1\n"
    "m_FIBER_ImproveRPR_dra_SR = 500\n"
    "m_FIBER_ImproveRPR_dCI_SR = 500\n"
    "m_FIBER_ImproveRPR_dra_N = 2\n"
    "m_FIBER_ImproveRPR_dCI_N = 2\n"
    "m_FIBER_ImproveRPR_dCI_Kappa = 2\n"
    "m_FIBER_InletCondition_iInletCondition = 0\n"
    "m_FIBER_InletCondition_da0 = 0.1\n"
    "m_FIBER_InletCondition_da1 = 3.8\n"
    "m_FIBER_InletCondition_da2 = -7.78\n"
    "m_FIBER_InletCondition_da3 = 4.52\n"
    "m_FIBER_InletCondition_da4 = 2.92\n"
    "m_FIBER_InletCondition_da5 = -2.91\n"
    "m_FIBER_FlowCoupling_iFlowCoupling = 0\n"
    "m_FIBER_FlowCoupling_dCof_N = 0\n"
    "m_FIBER_FlowCoupling_dCof_C1 = 0\n"
    "m_FIBER_FlowCoupling_iFixedFiberOrientation = 0\n"
    "m_FIBER_FlowCoupling_iExcludeRunner = 0\n"
    "m_FIBER_FlowCoupling_dAxx = 0.3334\n"
    "m_FIBER_FlowCoupling_dAyy = 0.3333\n"
    "m_FIBER_FlowCoupling_dAzz = 0.3333\n"
    "m_FIBER_DEBUG_iFlagDebug = 0\n"
    "m_FIBER_DEBUG_dSmallGradVRatio = 0\n"
    "m_FIBER_COMPUPARAS_iBreakTransIter = 3\n"
    "m_FIBER_COMPUPARAS_iBreakIntegralIter = 3\n"
    "m_FIBER_COMPUPARAS_dBreakTransMatrixToler = 0.001\n"
    "m_FIBER_COMPUPARAS_iBreakTransMatrixIter = 10\n"
    "m_FIBER_LENGTH_DISTRIBUTION_dMean = 0.006\n"
    "m_FIBER_LENGTH_DISTRIBUTION_dVariance = 0.001\n";

// A section, a key line of it, the double that the line sets, and the tag that ends the section.
struct ClosingCase {
  const char* section;
  const char* keyLine;
  double (CZEBCMPFiberParm::*doubleGetter)() const;
  int (CZEBCMPFiberParm::*intGetter)() const;
  const char* closing;
};

const ClosingCase kClosings[] = {
    {"FIBER_PLOT_DYNAMIC", "ShearRate = 12", &CZEBCMPFiberParm::PLOT_DYNAMIC_dShearRate, nullptr, "[/PLOT_DYNAMIC]"},
    {"FIBER_ARD", "b4 = 12", &CZEBCMPFiberParm::FIBER_ARD_db4, nullptr, "[/FIBER_ARD]"},
    {"FIBER_SLOW", "k = 12", &CZEBCMPFiberParm::FIBER_SLOW_dk, nullptr, "[/FIBER_SLOW]"},
    {"FIBER_CLOSURE", "FlagClosureMode = 12", nullptr, &CZEBCMPFiberParm::FIBER_CLOSURE_iFlagClosureMode,
     "[/FIBER_CLOSURE]"},
    {"FIBER_Breakage", "ScrewBreak_S = 12", &CZEBCMPFiberParm::FIBER_Breakage_dScrewBreak_S, nullptr,
     "[/FIBER_Breakage]"},
    {"FIBER_ImproveRPR", "CI_Kappa = 12", &CZEBCMPFiberParm::FIBER_ImproveRPR_dCI_Kappa, nullptr,
     "[/FIBER_ImproveRPR]"},
    {"FIBER_InletCondition", "a5 = 12", &CZEBCMPFiberParm::FIBER_InletCondition_da5, nullptr,
     "[/FIBER_InletCondition]"},
    {"FIBER_FlowCoupling", "Azz = 12", &CZEBCMPFiberParm::FIBER_FlowCoupling_dAzz, nullptr, "[/FIBER_FlowCoupling]"},
    {"FIBER_DEBUG", "SmallGradVRatio = 12", &CZEBCMPFiberParm::FIBER_DEBUG_dSmallGradVRatio, nullptr, "[/FIBER_DEBUG]"},
    {"FIBER_COMPUPARAS", "BreakTransMatrixIter = 12", nullptr,
     &CZEBCMPFiberParm::FIBER_COMPUPARAS_iBreakTransMatrixIter, "[/FIBER_COMPUPARAS]"},
    {"FIBER_LENGTH_DISTRIBUTION", "Mean = 12", &CZEBCMPFiberParm::FIBER_LENGTH_DISTRIBUTION_dMean, nullptr,
     "[/FIBER_LENGTH_DISTRIBUTION]"},
};

}  // namespace

TEST(FiberParm, DumpsExactlyItsDefaultsWithoutAnySection) { EXPECT_EQ(dumpOf(CZEBCMPFiberParm()), kDefaultDump); }

TEST(FiberParm, FirstDumpLineHasNoEqualsSign) {
  CZEBCMPFiberParm block;
  readSectionInto(block, "FIBER_PLOT_DYNAMIC", "FlagIsPlotDynamic = 7\n[/PLOT_DYNAMIC]\n");
  const std::string dump = dumpOf(block);
  EXPECT_NE(dump.find("\nm_PLOT_DYNAMIC_iFlagIsPlotDynamic7\n"), dump.npos) << dump;
}

TEST(FiberParm, HasElevenSectionsInTheOrderOfItsDump) {
  const auto sections = zeb::tableOf<CZEBCMPFiberParm>().sections;
  ASSERT_EQ(sections.size(), std::size(kClosings));
  for (std::size_t s = 0; s < sections.size(); ++s) {
    EXPECT_EQ(sections[s].open, "[" + std::string(kClosings[s].section) + "]");
    EXPECT_EQ(sections[s].close, kClosings[s].closing);
  }
}

TEST(FiberParm, EachSectionEndsAtItsOwnClosingLine) {
  for (const ClosingCase& test : kClosings) {
    SCOPED_TRACE(test.section);
    CZEBCMPFiberParm block;
    const std::string lines =
        "\n  " + std::string(test.keyLine) + "\n# remark\nx " + test.closing + " y\n[General]\n" + test.keyLine + "\n";
    EXPECT_EQ(readSectionInto(block, test.section, lines), "[General]\n" + std::string(test.keyLine) + "\n");
    const double value =
        test.doubleGetter != nullptr ? (block.*test.doubleGetter)() : static_cast<double>((block.*test.intGetter)());
    EXPECT_EQ(value, 12.0);
  }
}

TEST(FiberParm, PlotDynamicIsNotEndedByAClosingLineWithTheFiberPrefix) {
  CZEBCMPFiberParm block;
  const std::string rest =
      readSectionInto(block, "FIBER_PLOT_DYNAMIC",
                      "ExtenRate = 2\n[/FIBER_PLOT_DYNAMIC]\nShearRate = 3\n[/PLOT_DYNAMIC]\nObserTime = 4\n");
  EXPECT_EQ(block.PLOT_DYNAMIC_dExtenRate(), 2.0);
  EXPECT_EQ(block.PLOT_DYNAMIC_dShearRate(), 3.0);
  EXPECT_EQ(block.PLOT_DYNAMIC_dObserTime(), 0.0);
  EXPECT_EQ(rest, "ObserTime = 4\n");
}

TEST(FiberParm, UnclosedSectionTakesTheRestOfTheFile) {
  CZEBCMPFiberParm block;
  EXPECT_EQ(readSectionInto(block, "FIBER_PLOT_DYNAMIC",
                            "[/FIBER_PLOT_DYNAMIC]\n[FIBER_ARD]\nb1 = 5\nObserTime = 6\n[/FIBER_ARD]"),
            "");
  EXPECT_EQ(block.PLOT_DYNAMIC_dObserTime(), 6.0);
  EXPECT_EQ(block.FIBER_ARD_db1(), 0.0);
}

TEST(FiberParm, ClosingLineIsNotSearchedForKeys) {
  CZEBCMPFiberParm block;
  readSectionInto(block, "FIBER_LENGTH_DISTRIBUTION", "[/FIBER_LENGTH_DISTRIBUTION] Mean = 5\n");
  EXPECT_EQ(block.FIBER_LENGTH_DISTRIBUTION_dMean(), 0.006);
}

TEST(FiberParm, SlowTakesTheKeyLine) {
  CZEBCMPFiberParm block;
  readSectionInto(block, "FIBER_SLOW", "b = 0.25\n[/FIBER_SLOW]\n");
  EXPECT_EQ(block.FIBER_SLOW_db(), 0.25);
  EXPECT_EQ(block.FIBER_SLOW_dk(), 0.0);
}

TEST(FiberParm, SlowTakesAnyLineWithTheLetterForItsOneLetterKeys) {
  CZEBCMPFiberParm block;
  readSectionInto(block, "FIBER_SLOW", "b = 0.25\nFlagIsSLOW = 1 # back\n[/FIBER_SLOW]\n");
  EXPECT_EQ(block.FIBER_SLOW_iFlagIsSLOW(), 1);
  EXPECT_EQ(block.FIBER_SLOW_db(), 1.0);
  EXPECT_EQ(block.FIBER_SLOW_dk(), 1.0);
}

TEST(FiberParm, SlowKeepsItsCoefficientsOnALineOfLettersWithoutAValue) {
  CZEBCMPFiberParm block;
  readSectionInto(block, "FIBER_SLOW", "k = 2\nb = 3\nthick back\nb k = none\n[/FIBER_SLOW]\n");
  EXPECT_EQ(block.FIBER_SLOW_dk(), 2.0);
  EXPECT_EQ(block.FIBER_SLOW_db(), 3.0);
}

TEST(FiberParm, LastOccurrenceOfAKeyWins) {
  CZEBCMPFiberParm block;
  readSectionInto(block, "FIBER_ARD", "b3 = 1\nb3 = 2.5\n[/FIBER_ARD]\n");
  EXPECT_EQ(block.FIBER_ARD_db3(), 2.5);
  readSectionInto(block, "FIBER_ARD", "b1 = 4\n[/FIBER_ARD]\n");
  EXPECT_EQ(block.FIBER_ARD_db3(), 2.5);
}

TEST(FiberParm, OneLineSetsEveryKeyThatStandsInIt) {
  CZEBCMPFiberParm block;
  readSectionInto(block, "FIBER_ARD", "b1 b2 b5 = 0.5\n[/FIBER_ARD]\n");
  EXPECT_EQ(block.FIBER_ARD_db1(), 0.5);
  EXPECT_EQ(block.FIBER_ARD_db2(), 0.5);
  EXPECT_EQ(block.FIBER_ARD_db3(), 0.0);
  EXPECT_EQ(block.FIBER_ARD_db5(), 0.5);
}

TEST(FiberParm, ValueThatDoesNotParseLeavesTheMember) {
  CZEBCMPFiberParm block;
  readSectionInto(block, "FIBER_COMPUPARAS", "BreakTransIter = many\nBreakTransMatrixToler =\n[/FIBER_COMPUPARAS]\n");
  EXPECT_EQ(block.FIBER_COMPUPARAS_iBreakTransIter(), 3);
  EXPECT_EQ(block.FIBER_COMPUPARAS_dBreakTransMatrixToler(), 0.001);
}

TEST(FiberParm, FixedOrientationTensorHasTraceOne) {
  const CZEBCMPFiberParm block;
  EXPECT_EQ(block.FIBER_FlowCoupling_dAxx(), 0.3334);
  EXPECT_EQ(block.FIBER_FlowCoupling_dAyy(), 0.3333);
  EXPECT_EQ(block.FIBER_FlowCoupling_dAzz(), 0.3333);
}

TEST(FiberParm, ValuesAreKeptAsWritten) {
  CZEBCMPFiberParm block;
  readSectionInto(block, "FIBER_InletCondition", "InletCondition = -3\na2 = -1e3\n[/FIBER_InletCondition]\n");
  EXPECT_EQ(block.FIBER_InletCondition_iInletCondition(), -3);
  EXPECT_EQ(block.FIBER_InletCondition_da2(), -1000.0);
  EXPECT_EQ(block.FIBER_InletCondition_da1(), 3.8);
}

TEST(FiberParm, AssignmentCopiesAllMembers) {
  CZEBCMPFiberParm block, copy;
  readSectionInto(block, "FIBER_PLOT_DYNAMIC", "FlagIsPlotDynamic = 1\n[/PLOT_DYNAMIC]\n");
  readSectionInto(block, "FIBER_LENGTH_DISTRIBUTION", "Variance = 9\n[/FIBER_LENGTH_DISTRIBUTION]\n");
  copy = block;
  EXPECT_EQ(dumpOf(copy), dumpOf(block));
  EXPECT_EQ(copy.PLOT_DYNAMIC_iFlagIsPlotDynamic(), 1);
  EXPECT_EQ(copy.FIBER_LENGTH_DISTRIBUTION_dVariance(), 9.0);
}
