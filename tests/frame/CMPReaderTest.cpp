// The main loop over a CMP file: which lines open what, what a section takes, and what is left alone.
#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "engine/ReadObserver.hpp"
#include "frame/CMPReader.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "frame/MoldingTypes.hpp"
#include "inspect/set/OutputCapture.hpp"
#include "tests/support/ReadSet.hpp"
#include "tests/support/RecordingCommunicator.h"
#include "tests/support/TemporaryFile.hpp"
#include "tests/support/Tsv.hpp"

namespace {

using zebtest::changesOf;
using zebtest::defaultValues;
using zebtest::Lines;
using zebtest::Set;
using zebtest::TemporaryFile;
using zebtest::valuesOf;

constexpr double kDefaultTimeLimit = 1.1;
constexpr double kDefaultFRLimit = 0.002;

// --- Sections ---------------------------------------------------------------------------------------------------

TEST(CMPReader, AFileWithTheGeneralSectionChangesOnlyTheGeneralBlock) {
  const Set set("[General]\nVentMode = 1\nVentPressureDiffLimit = 1.5\n[/General]\n");
  EXPECT_EQ(changesOf(set), (Lines{"General.m_iVentMode = 1", "General.m_dPressureDiffLimit = 1.5"}));
}

TEST(CMPReader, AnOpeningInAnotherCaseIsNotRecognised) {
  for (const char* opening : {"[general]", "[GENERAL]", "[General ]", "[ General]", "(General)", "General"}) {
    const Set set(opening + std::string("\nVentMode = 1\n[/General]\n"));
    EXPECT_EQ(changesOf(set), Lines{}) << opening;
  }
}

TEST(CMPReader, AnOpeningMayStandAnywhereInALine) {
  for (const char* opening : {"x [ShortShot] y", "[ShortShot", "[[ShortShot]]", "[a][b][ShortShot]", "\t[ShortShot]",
                              "[/General][ShortShot] = 5", "[ShortShot[ShortShot]"}) {
    const Set set(opening + std::string("\nTimeLimit = 3\n[/ShortShot]\n"));
    const bool opens = std::string(opening).find("[ShortShot]") != std::string::npos;
    EXPECT_EQ(set.shortShot().dTimeLimit(), opens ? 3.0 : kDefaultTimeLimit) << opening;
  }
}

TEST(CMPReader, AClosingTextMayStandAnywhereInALineAndTakesItsKeysAlong) {
  const Set set("[ShortShot]\nTimeLimit = 3 [/ShortShot]\nFRLimit = 0.5\n");
  EXPECT_EQ(changesOf(set), Lines{});
}

TEST(CMPReader, KeysOutsideOfSectionsAreIgnored) {
  const Set set("TimeLimit = 3\n[ShortShot]\n[/ShortShot]\nTimeLimit = 4\nVentMode = 1\n");
  EXPECT_EQ(changesOf(set), Lines{});
}

TEST(CMPReader, KeysOfAnotherSectionAreIgnored) {
  const Set set("[ShortShot]\nVentMode = 1\nNoSuchKey = 5\nTimeLimit = 3\n[/ShortShot]\n");
  EXPECT_EQ(changesOf(set), Lines{"ShortShot.m_dTimeLimit = 3"});
}

TEST(CMPReader, AClosingLineWithoutOpeningAndUnknownNamesAreIgnored) {
  const Set set(
      "[/General]\n[NoSuchSection]\nTimeLimit = 4\n[/NoSuchSection]\n[ShortShot]\nTimeLimit = 3\n"
      "[/General]\nFRLimit = 0.5\n[/ShortShot]\n");
  EXPECT_EQ(changesOf(set), (Lines{"ShortShot.m_dTimeLimit = 3", "ShortShot.m_dFRLimit = 0.5"}));
}

TEST(CMPReader, ARepeatedSectionOverwritesWhatItHoldsAndKeepsTheRest) {
  const Set set(
      "[ShortShot]\nTimeLimit = 3\nFRLimit = 0.5\n[/ShortShot]\n[General]\nVentMode = 1\n[/General]\n"
      "[ShortShot]\nTimeLimit = 4\n[/ShortShot]\n");
  EXPECT_EQ(set.shortShot().dTimeLimit(), 4.0);
  EXPECT_EQ(set.shortShot().dFRLimit(), 0.5);
  EXPECT_EQ(set.general().iVentMode(), 1);
}

TEST(CMPReader, AnUnterminatedSectionTakesTheRestOfTheFile) {
  const Set set(
      "[ShortShot]\nTimeLimit = 3\n[General]\nVentMode = 1\nFRLimit = 0.5\n[/General]\n[FEM]\n[/FEM]\n"
      "TimeLimit = 7\n");
  EXPECT_EQ(changesOf(set), (Lines{"ShortShot.m_dTimeLimit = 7", "ShortShot.m_dFRLimit = 0.5"}));
}

TEST(CMPReader, AnOpeningInsideAnotherSectionIsAPlainLineOfIt) {
  const Set set("[ShortShot]\n[General] TimeLimit = 3\n[/ShortShot]\nVentMode = 1\n[/General]\n");
  EXPECT_EQ(changesOf(set), Lines{"ShortShot.m_dTimeLimit = 3"});
}

TEST(CMPReader, AnOpeningInTheClosingLineOpensNothing) {
  const Set set("[ShortShot]\nTimeLimit = 3\n[/ShortShot] [General]\nVentMode = 1\n[/General]\n");
  EXPECT_EQ(changesOf(set), Lines{"ShortShot.m_dTimeLimit = 3"});
}

TEST(CMPReader, KeysOfTheOpeningLineAreNotRead) {
  const Set set("[ShortShot] TimeLimit = 3\n[/ShortShot]\n");
  EXPECT_EQ(changesOf(set), Lines{});
}

TEST(CMPReader, EmptyLinesChangeNothing) {
  const Set set("\n\n[ShortShot]\n\nTimeLimit = 3\n\n[/ShortShot]\n\n[General]\nVentMode = 1\n\n[/General]\n\n");
  EXPECT_EQ(changesOf(set), (Lines{"General.m_iVentMode = 1", "ShortShot.m_dTimeLimit = 3"}));
}

// --- Several openings in a line ---------------------------------------------------------------------------------

TEST(CMPReaderOpenings, TwoInALineAreReadInTheOrderOfTheTable) {
  // ShortShot is the earlier one, wherever it stands.
  for (const char* line : {"[General] [ShortShot]", "[ShortShot] [General]", "[ShortShot][General]"}) {
    const Set set(line + std::string("\nTimeLimit = 3\nVentMode = 1\n[/ShortShot]\n"
                                     "TimeLimit = 4\nVentMode = 2\n[/General]\nVentMode = 3\nTimeLimit = 5\n"));
    EXPECT_EQ(set.shortShot().dTimeLimit(), 3.0) << line;
    EXPECT_EQ(set.general().iVentMode(), 2) << line;
  }
}

TEST(CMPReaderOpenings, OneTwiceInALineIsReadOnce) {
  const Set set("[ShortShot] [ShortShot]\nTimeLimit = 3\n[/ShortShot]\nTimeLimit = 4\n[/ShortShot]\n");
  EXPECT_EQ(set.shortShot().dTimeLimit(), 3.0);
}

TEST(CMPReaderOpenings, AreLookedForInTheOldLineNotInTheOneThatASectionReadLast) {
  // General comes later in the table than ShortShot and stands in ShortShot's closing line only.
  const Set set("[ShortShot] old\nTimeLimit = 3\n[/ShortShot] [General]\nVentMode = 1\n[/General]\n");
  EXPECT_EQ(set.shortShot().dTimeLimit(), 3.0);
  EXPECT_EQ(set.general().iVentMode(), 0);
}

TEST(CMPReaderOpenings, TheSecondSectionOfALineMayMeetTheEndOfTheFile) {
  const Set set("[ShortShot] [General]\nTimeLimit = 3\nVentMode = 1\n");
  EXPECT_EQ(changesOf(set), Lines{"ShortShot.m_dTimeLimit = 3"});
}

struct OpenedSections final : zeb::ReadObserver {
  void sectionOpened(const zeb::Section& section, int) override { openings.emplace_back(section.open); }
  Lines openings;
};

Lines openingsOfTheTable() {
  Lines openings;
  for (const zebtest::TsvRow& row : zebtest::readTsv("dispatch.tsv"))
    openings.push_back(zebtest::unquoted(row.at("opening")));
  return openings;
}

TEST(CMPReaderOpenings, AllOfThemInALineAreReadInTheOrderOfTheTable) {
  Lines expected = openingsOfTheTable();
  ASSERT_EQ(expected.size(), 54u);
  std::string reversed;
  for (const std::string& opening : expected) reversed = opening + reversed;
  expected.erase(expected.begin());  // "[VER]" opens no section

  const TemporaryFile file(reversed + "\n");
  CZEBCMPIM tool;
  OpenedSections opened;
  tool.m_observer = &opened;
  EXPECT_EQ(zeb::readCMPFile(tool, file.path()), 1);
  EXPECT_EQ(opened.openings, expected);
}

TEST(CMPReaderOpenings, EachOfThemAloneOpensItsSection) {
  for (const std::string& opening : openingsOfTheTable()) {
    if (opening == "[VER]") continue;
    const TemporaryFile file("text " + opening + " text\n");
    CZEBCMPIM tool;
    OpenedSections opened;
    tool.m_observer = &opened;
    zeb::readCMPFile(tool, file.path());
    EXPECT_EQ(opened.openings, Lines{opening});
  }
}

// --- The version line and the head ------------------------------------------------------------------------------

struct VersionLine {
  const char* line;
  bool hasHead;
};

class Version : public testing::TestWithParam<VersionLine> {};

TEST_P(Version, TellsWhetherAHeadFollows) {
  std::string head = "7 7 7 7 7 7\n";
  for (int line = 2; line <= 19; ++line) head += line == 11 ? "[General]\n" : "\n";
  const Set set(GetParam().line + ("\n" + head) + "VentMode = 1\n");
  EXPECT_EQ(set.getIteratParm()->ilsolvU(), GetParam().hasHead ? 7 : 2);
  // What is no head goes through the loop as ordinary lines: its section opening opens.
  EXPECT_EQ(set.general().iVentMode(), GetParam().hasHead ? 0 : 1);
}

INSTANTIATE_TEST_SUITE_P(Lines, Version,
                         testing::Values(VersionLine{"[VER] 1023", true}, VersionLine{"[VER]\t1023", true},
                                         VersionLine{"  [VER]   1023", true}, VersionLine{"[VER] +1023", true},
                                         VersionLine{"[VER] 01023", true}, VersionLine{"[VER] 1023 old", true},
                                         VersionLine{"[VER] 1023.9", true}, VersionLine{"[VER] 1023abc", true},
                                         VersionLine{"foo 1023 [VER]", true}, VersionLine{"x[VER]y 1023", true},
                                         VersionLine{"[VER] 1024", false}, VersionLine{"[VER] 1013", false},
                                         VersionLine{"[VER] -1023", false}, VersionLine{"[VER] 10230", false},
                                         VersionLine{"[VER]", false}, VersionLine{"[VER] x 1023", false},
                                         VersionLine{"[VER]1023", false}, VersionLine{"my [VER] 1023", false},
                                         VersionLine{"1023 [VER]", false}, VersionLine{"[VER] = 1023", false},
                                         VersionLine{"[ver] 1023", false}, VersionLine{"VER 1023", false},
                                         VersionLine{"[VER] 4294968319", false}, VersionLine{"[/VER] 1023", false}));

const char kHead[] =
    "5 5 5 5 5 5\n3 3 3 3\n9\n1 2 3 4 5 6\n1 2 0.25 0.5\n0.125\n1 1 1 1 1 1\n1 1 1 1 1 1\n1 1 1 1 1 1\n"
    "1 1 1 1 1 1\n\n4\n\n0.5 0.5\n\n3 7 0.25\n\n0 3 1 1 0 1 1 1 1 1\n1.5 1 1 1 1 1 1 1 1 2\n";

TEST(CMPReaderHead, ASectionBehindTheHeadIsRead) {
  const Set set(std::string("[VER] 1023\n") + kHead + "[General]\nVentMode = 1\n[/General]\n");
  EXPECT_EQ(set.getIteratParm()->iPreCond(), 9);
  EXPECT_EQ(set.getIteratParm()->dWireEffectWeighting(), 1.5);
  EXPECT_EQ(set.general().iVentMode(), 1);
}

TEST(CMPReaderHead, MayStandBehindSections) {
  const Set set(std::string("[General]\nVentMode = 1\n[/General]\n[VER] 1023\n") + kHead);
  EXPECT_EQ(set.getIteratParm()->iPreCond(), 9);
  EXPECT_EQ(set.general().iVentMode(), 1);
}

TEST(CMPReaderHead, ASectionThatTheVersionLineOpensFollowsTheHead) {
  const Set set(std::string("[VER] 1023 [ShortShot]\n") + kHead + "TimeLimit = 3\n[/ShortShot]\n");
  EXPECT_EQ(set.getIteratParm()->iPreCond(), 9);
  EXPECT_EQ(set.shortShot().dTimeLimit(), 3.0);
}

TEST(CMPReaderHead, AVersionLineInsideASectionIsAPlainLineOfIt) {
  const Set set(std::string("[General]\n[VER] 1023\n") + kHead + "VentMode = 1\n[/General]\n");
  EXPECT_EQ(changesOf(set), Lines{"General.m_iVentMode = 1"});
}

TEST(CMPReaderHead, TheSectionThatAHeadWithLinesMissingTakesIsLost) {
  // 16 lines are missing: what follows is taken in their place.
  const Set set("[VER] 1023\n5 5 5 5 5 5\n3 3 3 3\n9\n[General]\nVentMode = 1\n[/General]\n");
  EXPECT_EQ(set.getIteratParm()->iPreCond(), 9);
  EXPECT_EQ(set.general().iVentMode(), 0);
}

// The calls of a line, those of a read past the end.
const Lines kEndOfInput = {"Barrier", "Broadi -1"};

TEST(CMPReaderHead, CutShortStillTakesNineteenLinesOnEveryRank) {
  const TemporaryFile file("[VER] 1023\n5 6\n7 8\n");
  const std::string serial = valuesOf(Set("[VER] 1023\n5 6\n7 8\n"));
  zeb::RecordingCommunicator first(2);
  CZEBKNCMPCompParm set(0, 0);
  set.setZEBCom(&first);
  set.setSolidFillBlock(file.path());
  EXPECT_EQ(valuesOf(set), serial);
  EXPECT_EQ(set.getIteratParm()->ilsolvV(), 6);
  EXPECT_EQ(set.getIteratParm()->iNRestartIV(), 8);
  EXPECT_EQ(set.getIteratParm()->iIsLowTempVisCorr(), 0);

  Lines expected = {"Barrier", "Broadi 0", "Broadc \"[VER] 1023\"", "Barrier", "Broadi 0", "Broadc \"5 6\"",
                    "Barrier", "Broadi 0", "Broadc \"7 8\""};
  const int missing = 17, endOfTheLoop = 1;
  for (int read = 0; read < missing + endOfTheLoop; ++read) {
    expected.insert(expected.end(), kEndOfInput.begin(), kEndOfInput.end());
  }
  EXPECT_EQ(first.log().calls(), expected);

  zeb::ReplayingCommunicator second(first.log(), 1, 2);
  CZEBKNCMPCompParm other(0, 0);
  other.setZEBCom(&second);
  other.setSolidFillBlock(file.path());
  EXPECT_TRUE(second.finished());
  EXPECT_EQ(valuesOf(other), serial);
}

// --- Files ------------------------------------------------------------------------------------------------------

TEST(CMPReaderFile, EmptyAndMissingFilesAreTheSame) {
  CZEBKNCMPCompParm missing(0, 0);
  EXPECT_EQ(missing.setSolidFillBlock("no/such/file.cmp"), 1);
  EXPECT_EQ(valuesOf(missing), defaultValues());
  EXPECT_EQ(valuesOf(Set("")), defaultValues());
}

TEST(CMPReaderFile, EmptyAndMissingFilesTakeOneReadOnEveryRank) {
  const TemporaryFile empty("");
  for (const std::string& name :
       {empty.path(), std::string("no/such/file.cmp"), std::filesystem::temp_directory_path().string()}) {
    zeb::RecordingCommunicator first(2);
    CZEBKNCMPCompParm set(0, 0);
    set.setZEBCom(&first);
    const zeb::OutputCapture capture;
    EXPECT_EQ(set.setSolidFillBlock(name), 1);
    EXPECT_EQ(first.log().calls(), kEndOfInput) << name;
    EXPECT_EQ(valuesOf(set), defaultValues()) << name;
    EXPECT_EQ(capture.text(), "") << name;
  }
}

TEST(CMPReaderFile, ReadingTwiceOverwritesAndAccumulatesNothing) {
  const std::string text =
      std::string("[VER] 1023\n") + kHead +
      "[ShortShot]\nTimeLimit = 3\n[/ShortShot]\n[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 3\n"
      "Weightings = 0.25\nWeightings = 0.25\nWeightings = 9\n[/MultiGate]\n";
  Set set(text);
  const std::string once = valuesOf(set);
  EXPECT_NE(once, defaultValues());
  set.read(text);
  EXPECT_EQ(valuesOf(set), once);
}

TEST(CMPReaderFile, ASecondFileKeepsWhatItDoesNotHold) {
  Set set("[ShortShot]\nTimeLimit = 3\nFRLimit = 0.5\n[/ShortShot]\n");
  set.read("[ShortShot]\nTimeLimit = 4\n[/ShortShot]\n[General]\nVentMode = 1\n[/General]\n");
  EXPECT_EQ(set.shortShot().dTimeLimit(), 4.0);
  EXPECT_EQ(set.shortShot().dFRLimit(), 0.5);
  EXPECT_EQ(set.general().iVentMode(), 1);
}

TEST(CMPReaderFile, TheLastLineNeedsNoEnd) {
  EXPECT_EQ(Set("[ShortShot]\nTimeLimit = 3").shortShot().dTimeLimit(), 3.0);
  EXPECT_EQ(Set("[ShortShot]\nTimeLimit = 3\n[/ShortShot]").shortShot().dFRLimit(), kDefaultFRLimit);
}

// --- The trace --------------------------------------------------------------------------------------------------

std::string traceOf(CZEBCom* com, int printLevel, const std::string& file) {
  CZEBCMPIM tool;
  tool.m_pCom = com;
  tool.m_nPrintLevel = printLevel;
  const zeb::OutputCapture capture;
  zeb::readCMPFile(tool, file);
  return capture.text();
}

TEST(CMPReaderTrace, Rank0NamesTheFileAndItsLinesAboveLevelZero) {
  const TemporaryFile file("[ShortShot]\nTimeLimit = 3\n[/ShortShot]\n");
  zeb::RecordingCommunicator com(2);
  EXPECT_EQ(traceOf(&com, 1, file.path()), " CMP file name = " + file.path() +
                                               "\n"
                                               " - CPUID:0 string: [ShortShot]\n"
                                               " - CPUID:0 string: TimeLimit = 3\n"
                                               " - CPUID:0 string: [/ShortShot]\n");
  EXPECT_EQ(traceOf(&com, 0, file.path()), "");
  EXPECT_EQ(traceOf(&com, -1, file.path()), "");
}

TEST(CMPReaderTrace, AMissingFileIsNamedToo) {
  zeb::RecordingCommunicator com(2);
  EXPECT_EQ(traceOf(&com, 1, "no/such/file.cmp"), " CMP file name = no/such/file.cmp\n");
}

TEST(CMPReaderTrace, OtherRanksAndSerialRunsAreSilent) {
  const TemporaryFile file("[ShortShot]\nTimeLimit = 3\n[/ShortShot]\n");
  EXPECT_EQ(traceOf(nullptr, 1, file.path()), "");
  zeb::RecordingCommunicator first(2);
  traceOf(&first, 1, file.path());
  zeb::ReplayingCommunicator second(first.log(), 1, 2);
  EXPECT_EQ(traceOf(&second, 1, file.path()), "");
  EXPECT_TRUE(second.finished());
}

}  // namespace
