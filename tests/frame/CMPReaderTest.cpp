// The main loop over a CMP file: what opens sections, which calls it makes, what it traces. What it reads from which
// lines stands in the readings.
#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "blocks/CZEBCMPIteratParm.h"
#include "engine/ReadObserver.hpp"
#include "frame/CMPReader.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/OutputCapture.hpp"
#include "tests/support/ReadSet.hpp"
#include "tests/support/RecordingCommunicator.h"
#include "tests/support/TemporaryFile.hpp"
#include "tests/support/Tsv.hpp"

namespace {

using zebtest::defaultValues;
using zebtest::Lines;
using zebtest::Set;
using zebtest::TemporaryFile;
using zebtest::valuesOf;

// --- Openings ---------------------------------------------------------------------------------------------------

struct OpenedSections final : zeb::ReadObserver {
  void sectionOpened(const zeb::Section& section, void*, int, std::string_view) override {
    openings.emplace_back(section.open);
  }
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
  std::string reversed;
  for (const std::string& opening : expected) reversed = opening + reversed;
  expected.erase(expected.begin());  // "[VER]" opens no section

  const TemporaryFile file(reversed + "\n");
  const CZEBKNCMPCompParm set(0, 0);
  CZEBCMPInternalTool& tool = *zeb::Inspection::tool(set);
  OpenedSections opened;
  tool.m_observer = &opened;
  EXPECT_EQ(zeb::readCMPFile(tool, file.path()), 1);
  EXPECT_EQ(opened.openings, expected);
}

TEST(CMPReaderOpenings, EachOfThemAloneOpensItsSection) {
  for (const std::string& opening : openingsOfTheTable()) {
    if (opening == "[VER]") continue;
    const TemporaryFile file("text " + opening + " text\n");
    const CZEBKNCMPCompParm set(0, 0);
    CZEBCMPInternalTool& tool = *zeb::Inspection::tool(set);
    OpenedSections opened;
    tool.m_observer = &opened;
    zeb::readCMPFile(tool, file.path());
    EXPECT_EQ(opened.openings, Lines{opening});
  }
}

// --- Files that end early ---------------------------------------------------------------------------------------

// The calls of a line, those of a read past the end.
const Lines kEndOfInput = {"Barrier", "Broadi -1"};

TEST(CMPReaderHead, CutShortStillTakesNineteenLinesOnEveryRank) {
  const TemporaryFile file("[VER] 1023\n5 6\n7 8\n");
  const zebtest::Values serial = valuesOf(Set("[VER] 1023\n5 6\n7 8\n"));
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

TEST(CMPReaderFile, ASecondFileKeepsWhatItDoesNotHold) {
  Set set("[ShortShot]\nTimeLimit = 3\nFRLimit = 0.5\n[/ShortShot]\n");
  set.read("[ShortShot]\nTimeLimit = 4\n[/ShortShot]\n[General]\nVentMode = 1\n[/General]\n");
  EXPECT_EQ(set.changes(), (Lines{"General.iVentMode = 1", "ShortShot.dFRLimit = 0.5", "ShortShot.dTimeLimit = 4"}));
}

// --- The trace --------------------------------------------------------------------------------------------------

std::string traceOf(CZEBCom* com, int printLevel, const std::string& file) {
  const CZEBKNCMPCompParm set(0, 0);
  CZEBCMPInternalTool& tool = *zeb::Inspection::tool(set);
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
