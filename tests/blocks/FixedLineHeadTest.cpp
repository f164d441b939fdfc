// The fixed-line head of 19 lines and the iteration block that it fills.
#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <vector>

#include "blocks/CZEBCMPIteratParm.h"
#include "tests/blocks/ReadBlock.hpp"

using Block = CZEBCMPIteratParm;

namespace {

constexpr std::size_t kLines = 19;

// A head of empty lines but for those given; line numbers count from 1.
std::string headWith(std::initializer_list<std::pair<std::size_t, const char*>> lines) {
  std::array<std::string, kLines> head;
  for (const auto& [number, text] : lines) head[number - 1] = text;
  std::string text;
  for (const std::string& line : head) text += line + "\n";
  return text;
}

Block read(const std::string& head) {
  Block block;
  zebtest::readSectionInto(block, "VER", head);
  return block;
}

Block read(std::initializer_list<std::pair<std::size_t, const char*>> lines) { return read(headWith(lines)); }

struct Value {
  const char* name;
  double (*get)(const Block&);
  double byDefault;
  double inFullHead;
};

#define VALUE(getter, byDefault, inFullHead)                                                    \
  Value {                                                                                       \
#getter, [](const Block& block) -> double { return block.getter(); }, byDefault, inFullHead \
  }

// All 72 members; no two neighbours of a line hold the same in the full head.
const Value kValues[] = {
    VALUE(ilsolvU, 2, 11),
    VALUE(ilsolvV, 2, 12),
    VALUE(ilsolvW, 2, 13),
    VALUE(ilsolvP, 2, 14),
    VALUE(ilsolvF, 2, 15),
    VALUE(ilsolvT, 2, 16),
    VALUE(iNRestartIU, 1, 21),
    VALUE(iNRestartIV, 1, 22),
    VALUE(iNRestartIW, 1, 23),
    VALUE(iNRestartIP, 10, 24),
    VALUE(iPreCond, 1, 31),
    VALUE(iNiter, 20, 41),
    VALUE(iiterStep, 10, 42),
    VALUE(iijPresFix, 2, 43),
    VALUE(iijProb, 2, 44),
    VALUE(iNPPCorr, 1, 45),
    VALUE(iNiterGrad, 1, 46),
    VALUE(iNTimeStep, 100000, 51),
    VALUE(iTimeStep, 50, 52),
    VALUE(ddt, 0.0005, 5.3),
    VALUE(dBlendTime, 0.0, 5.4),
    VALUE(dtoler, 0.01, 6.1),
    VALUE(dBlendIU, 0.8, 7.1),
    VALUE(dBlendIV, 0.8, 7.2),
    VALUE(dBlendIW, 0.8, 7.3),
    VALUE(dBlendIP, 1.0, 7.4),
    VALUE(dBlendIF, 0.0, 7.5),
    VALUE(dBlendIT, 0.8, 7.6),
    VALUE(iNiterInIU, 5, 81),
    VALUE(iNiterInIV, 5, 82),
    VALUE(iNiterInIW, 5, 83),
    VALUE(iNiterInIP, 100, 84),
    VALUE(iNiterInIF, 10, 85),
    VALUE(iNiterInIT, 5, 86),
    VALUE(dtolerInIU, 0.1, 9.1),
    VALUE(dtolerInIV, 0.1, 9.2),
    VALUE(dtolerInIW, 0.1, 9.3),
    VALUE(dtolerInIP, 0.1, 9.4),
    VALUE(dtolerInIF, 0.0001, 9.5),
    VALUE(dtolerInIT, 0.001, 9.6),
    VALUE(drelaxIU, 0.7, 10.1),
    VALUE(drelaxIV, 0.7, 10.2),
    VALUE(drelaxIW, 0.7, 10.3),
    VALUE(drelaxIP, 0.6, 10.4),
    VALUE(drelaxIF, 1.0, 10.5),
    VALUE(drelaxIT, 0.9, 10.6),
    VALUE(ilCmpChk, 0, 121),
    VALUE(dSRRelax, 1.0, 14.1),
    VALUE(dVisRelax, 1.0, 14.2),
    VALUE(iCouple_Type, 14, 161),
    VALUE(dnonOrthLimitFactor, 0.5, 16.3),
    VALUE(dCMPMoreParmVersion, 1001.4, 1001.4),
    VALUE(iIsLowTempVisCorr, 1, 182),
    VALUE(dMat_CrossModel2_VisEps, 10000.0, 18.3),
    VALUE(dVisTempLimiter, 5.0, 18.4),
    VALUE(iIsFaceMassFluxStab, 3, 3),
    VALUE(dMat_CrossModel_Ts, -1.0, 18.6),
    VALUE(dMat_CrossModel_TTx, -1.0, 18.7),
    VALUE(dMat_CrossModel_TTxSlp, 0.1, 18.8),
    VALUE(iSpruePressCorrLevel, 0, 189),
    VALUE(dUltraHighSRVisTuning, 200.0, 18.15),
    VALUE(dtolerP, 0.1, 0.1),
    VALUE(dWireEffectWeighting, 2.0, 19.1),
    VALUE(iIsToUseMomSink, 0, 192),
    VALUE(iNotToUseBinary, 0, 193),
    VALUE(iMFVDebug, 0, 194),
    VALUE(iLevel1, 0, 195),
    VALUE(iLevel2, 0, 196),
    VALUE(iOutputMaxShearStressShearRate, 0, 197),
    VALUE(iIsUseVolFDLL, 0, 198),
    VALUE(iIsSurfaceTension, 0, 199),
    VALUE(dHighTempEPS, 10000.0, 19.15),
};
#undef VALUE

const char kFullHead[] =
    "11 12 13 14 15 16\n"
    "21 22 23 24\n"
    "31\n"
    "41 42 43 44 45 46\n"
    "51 52 5.3 5.4\n"
    "6.1\n"
    "7.1 7.2 7.3 7.4 7.5 7.6\n"
    "81 82 83 84 85 86\n"
    "9.1 9.2 9.3 9.4 9.5 9.6\n"
    "10.1 10.2 10.3 10.4 10.5 10.6\n"
    "ignored\n"
    "121\n"
    "ignored\n"
    "14.1 14.2\n"
    "ignored\n"
    "161 162 16.3\n"
    "ignored\n"
    "18.1 182 18.3 18.4 185 18.6 18.7 18.8 189 18.15\n"
    "19.1 192 193 194 195 196 197 198 199 19.15\n";

// Members of lines 18 and 19 that an empty line changes.
struct Emptied {
  const char* name;
  double becomes;
};
const Emptied kEmptied[] = {
    {"iIsLowTempVisCorr", 0.0},    {"dMat_CrossModel2_VisEps", 0.0}, {"dVisTempLimiter", 0.0},
    {"dMat_CrossModel_Ts", 0.0},   {"dMat_CrossModel_TTx", 0.0},     {"dMat_CrossModel_TTxSlp", 0.0},
    {"iSpruePressCorrLevel", 0.0}, {"dUltraHighSRVisTuning", 200.0}, {"dWireEffectWeighting", 2.0},
    {"dHighTempEPS", 10000.0},
};

void expectAsAfterEmptyHead(const Block& block) {
  for (const Value& value : kValues) {
    double expected = value.byDefault;
    for (const Emptied& emptied : kEmptied) {
      if (std::string_view(emptied.name) == value.name) expected = emptied.becomes;
    }
    EXPECT_EQ(value.get(block), expected) << value.name;
  }
}

// --- The whole head ---------------------------------------------------------------------------------------------

TEST(FixedLineHead, MembersHaveTheirDefaultsWithoutAHead) {
  const Block block;
  for (const Value& value : kValues) EXPECT_EQ(value.get(block), value.byDefault) << value.name;
}

TEST(FixedLineHead, EveryMemberOfTheNineteenLinesIsSet) {
  const Block block = read(kFullHead);
  for (const Value& value : kValues) EXPECT_EQ(value.get(block), value.inFullHead) << value.name;
}

TEST(FixedLineHead, TakesExactlyNineteenLines) {
  Block block;
  EXPECT_EQ(zebtest::readSectionInto(block, "VER", kFullHead + std::string("[General]\nVentMode = 1\n")),
            "[General]\nVentMode = 1\n");
}

TEST(FixedLineHead, ASecondHeadOverwritesTheFirst) {
  Block block = read({{3, "8"}, {6, "0.5"}});
  zebtest::readSectionInto(block, "VER", headWith({{3, "9"}}));
  EXPECT_EQ(block.iPreCond(), 9);
  EXPECT_EQ(block.dtoler(), 0.5);
}

TEST(FixedLineHead, EmptyLinesKeepTheDefaultsUpToLine16) { expectAsAfterEmptyHead(read(headWith({}))); }

TEST(FixedLineHead, AHeadCutShortReadsAsEmptyLines) {
  expectAsAfterEmptyHead(read(std::string()));
  const Block block = read("5 6\n7 8 9\n");
  EXPECT_EQ(block.ilsolvU(), 5);
  EXPECT_EQ(block.ilsolvV(), 6);
  EXPECT_EQ(block.ilsolvW(), 2);
  EXPECT_EQ(block.iNRestartIW(), 9);
  EXPECT_EQ(block.iNRestartIP(), 10);
  EXPECT_EQ(block.iPreCond(), 1);
  EXPECT_EQ(block.iIsLowTempVisCorr(), 0);
  EXPECT_EQ(block.dHighTempEPS(), 10000.0);
}

TEST(FixedLineHead, PrintsNothing) {
  EXPECT_EQ(zebtest::printedBy([] { read({{1, "x"}, {18, "-1 2"}, {19, "nan"}}); }), "");
}

// --- Lines ------------------------------------------------------------------------------------------------------

TEST(FixedLineHead, LinesBetweenMayHoldAnything) {
  Block block;
  const std::string head = headWith({{10, "1 2 3 4 5 6"},
                                     {11, "[General]"},
                                     {12, "7"},
                                     {13, "[/VER] 5"},
                                     {14, "0.25 0.75"},
                                     {15, "1 2 3"},
                                     {16, "3 7 0.25"},
                                     {17, "[VER] 1023"},
                                     {18, "0 4"}});
  EXPECT_EQ(zebtest::readSectionInto(block, "VER", head + "rest\n"), "rest\n");
  EXPECT_EQ(block.drelaxIT(), 6.0);
  EXPECT_EQ(block.ilCmpChk(), 7);
  EXPECT_EQ(block.dSRRelax(), 0.25);
  EXPECT_EQ(block.dVisRelax(), 0.75);
  EXPECT_EQ(block.iIsLowTempVisCorr(), 4);
}

TEST(FixedLineHead, Line16LosesItsMiddleNumber) {
  const Block block = read({{16, "3 7 0.25"}});
  EXPECT_EQ(block.iCouple_Type(), 3);
  EXPECT_EQ(block.dnonOrthLimitFactor(), 0.25);
}

TEST(FixedLineHead, ConversionStopsAtTheFirstFieldThatDoesNotMatch) {
  const Block block = read({{1, "3 x 5 6"}, {4, "9 8.5 7"}, {5, "70\t80 off 3"}, {7, "0.5 1e 2"}, {16, "3 x 0.25"}});
  EXPECT_EQ(block.ilsolvU(), 3);
  EXPECT_EQ(block.ilsolvV(), 2);
  EXPECT_EQ(block.ilsolvW(), 2);
  EXPECT_EQ(block.iNiter(), 9);
  EXPECT_EQ(block.iiterStep(), 8);  // the scan goes on at ".5", which is no int
  EXPECT_EQ(block.iijPresFix(), 2);
  EXPECT_EQ(block.iNTimeStep(), 70);
  EXPECT_EQ(block.iTimeStep(), 80);
  EXPECT_EQ(block.ddt(), 0.0005);
  EXPECT_EQ(block.dBlendTime(), 0.0);
  EXPECT_EQ(block.dBlendIU(), 0.5);
  EXPECT_EQ(block.iCouple_Type(), 3);
  EXPECT_EQ(block.dnonOrthLimitFactor(), 0.5);
}

TEST(FixedLineHead, FieldsBeyondALinesOwnAreIgnored) {
  const Block block = read({{3, "4 5 6"}, {12, "1 2"}});
  EXPECT_EQ(block.iPreCond(), 4);
  EXPECT_EQ(block.iNiter(), 20);
  EXPECT_EQ(block.ilCmpChk(), 1);
}

TEST(FixedLineHead, AnEmptyLine18StoresZeros) {
  const Block block = read({{19, "1 2 3 4 5 6 7 8 9 10"}});
  EXPECT_EQ(block.iIsLowTempVisCorr(), 0);
  EXPECT_EQ(block.dMat_CrossModel2_VisEps(), 0.0);
  EXPECT_EQ(block.dVisTempLimiter(), 0.0);
  EXPECT_EQ(block.dMat_CrossModel_Ts(), 0.0);
  EXPECT_EQ(block.dMat_CrossModel_TTx(), 0.0);
  EXPECT_EQ(block.dMat_CrossModel_TTxSlp(), 0.0);
  EXPECT_EQ(block.iSpruePressCorrLevel(), 0);
  EXPECT_EQ(block.dUltraHighSRVisTuning(), 200.0);
  EXPECT_EQ(block.iIsFaceMassFluxStab(), 3);
}

TEST(FixedLineHead, FieldsThatLine18LacksAreZero) {
  const Block block = read({{18, "9 2 30 40 8 50 x 3 3 3"}});
  EXPECT_EQ(block.iIsLowTempVisCorr(), 2);
  EXPECT_EQ(block.dMat_CrossModel2_VisEps(), 30.0);
  EXPECT_EQ(block.dVisTempLimiter(), 40.0);
  EXPECT_EQ(block.dMat_CrossModel_Ts(), 50.0);
  EXPECT_EQ(block.dMat_CrossModel_TTx(), 0.0);
  EXPECT_EQ(block.dMat_CrossModel_TTxSlp(), 0.0);
  EXPECT_EQ(block.iSpruePressCorrLevel(), 0);
  EXPECT_EQ(block.dUltraHighSRVisTuning(), 200.0);
}

TEST(FixedLineHead, FieldsThatLine19LacksAreZero) {
  Block block = read(kFullHead);
  zebtest::readSectionInto(block, "VER", headWith({{19, "1.5 1 2"}}));
  EXPECT_EQ(block.dWireEffectWeighting(), 1.5);
  EXPECT_EQ(block.iIsToUseMomSink(), 1);
  EXPECT_EQ(block.iNotToUseBinary(), 2);
  EXPECT_EQ(block.iMFVDebug(), 0);
  EXPECT_EQ(block.iIsSurfaceTension(), 0);
  EXPECT_EQ(block.dHighTempEPS(), 10000.0);
}

// --- Value rules ------------------------------------------------------------------------------------------------

struct Replaced {
  const char* written;
  double stored;
};

TEST(FixedLineHead, UltraHighShearTuningFallsBackWhenItTruncatesToZero) {
  const Replaced cases[] = {{"0.7", 200.0},    {"-0.5", 200.0}, {"0", 200.0},        {"0.999999", 200.0},
                            {"-0.999", 200.0}, {"1.0", 1.0},    {"-1", -1.0},        {"-3.2", -3.2},
                            {"1.5", 1.5},      {"200", 200.0},  {"12345.5", 12345.5}};
  for (const auto& [written, stored] : cases) {
    const std::string line = std::string("0 0 0 0 0 0 0 0 0 ") + written;
    EXPECT_EQ(read({{18, line.c_str()}}).dUltraHighSRVisTuning(), stored) << written;
  }
}

TEST(FixedLineHead, WireWeightingIsNeverNegativeAndZeroMeansTwo) {
  const Replaced cases[] = {{"1.5", 1.5},  {"-1", 0.0},  {"-1e-9", 0.0}, {"0", 2.0},
                            {"-0.0", 2.0}, {"nan", 2.0}, {"1e-9", 1e-9}};
  for (const auto& [written, stored] : cases)
    EXPECT_EQ(read({{19, written}}).dWireEffectWeighting(), stored) << written;
}

TEST(FixedLineHead, HighTemperatureEpsilonFallsBackAtItsLimit) {
  const Replaced cases[] = {{"1e-5", 10000.0}, {"2e-5", 2e-5}, {"0", 10000.0}, {"-4", 10000.0}, {"50", 50.0}};
  for (const auto& [written, stored] : cases) {
    const std::string line = std::string("1 0 0 0 0 0 0 0 0 ") + written;
    EXPECT_EQ(read({{19, line.c_str()}}).dHighTempEPS(), stored) << written;
  }
  EXPECT_TRUE(std::isnan(read({{19, "1 0 0 0 0 0 0 0 0 nan"}}).dHighTempEPS()));
}

// --- Block ------------------------------------------------------------------------------------------------------

TEST(IterationBlock, AssignmentAndCopyTakeEveryMember) {
  const Block original = read(kFullHead);
  const Block constructed(original);
  Block assigned;
  assigned = original;
  for (const Value& value : kValues) {
    EXPECT_EQ(value.get(constructed), value.inFullHead) << value.name;
    EXPECT_EQ(value.get(assigned), value.inFullHead) << value.name;
  }
}

TEST(IterationBlock, DumpHoldsAllMembersInTheirOrder) {
  std::istringstream dump(zebtest::dumpOf(read(kFullHead)));
  std::string line;
  std::getline(dump, line);
  EXPECT_EQ(line, "");
  std::getline(dump, line);
  EXPECT_EQ(line, "---------Iterat Parameters---------");
  for (const Value& value : kValues) {
    std::ostringstream text;
    text << value.inFullHead;
    std::getline(dump, line);
    EXPECT_EQ(line.substr(0, line.find('\t')), std::string("m_") + value.name);
    EXPECT_EQ(line.substr(line.find_last_of('\t') + 1), "= " + text.str());
  }
  EXPECT_FALSE(std::getline(dump, line)) << line;
}

TEST(IterationBlock, DumpLabelsHaveTheirOwnNumberOfTabs) {
  const std::string dump = zebtest::dumpOf(Block());
  for (const char* line : {
           "\nm_ilsolvU\t\t\t\t\t\t\t= 2\n",
           "\nm_iiterStep\t\t\t\t\t\t= 10\n",
           "\nm_ddt\t\t\t\t\t\t\t\t= 0.0005\n",
           "\nm_dVisRelax\t\t\t\t\t\t= 1\n",
           "\nm_dnonOrthLimitFactor\t\t\t\t= 0.5\n",
           "\nm_dCMPMoreParmVersion\t\t\t\t= 1001.4\n",
           "\nm_dMat_CrossModel2_VisEps\t\t\t= 10000\n",
           "\nm_dVisTempLimiter\t\t\t\t\t= 5\n",
           "\nm_iOutputMaxShearStressShearRate\t= 0\n",
           "\nm_dHighTempEPS\t\t\t\t\t\t= 10000\n",
       }) {
    EXPECT_THAT(dump, testing::HasSubstr(line));
  }
}

}  // namespace
