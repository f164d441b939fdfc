// What the record of a line says, for every part that a line can play.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "inspect/set/OutputCapture.hpp"
#include "inspect/trace/LineTrace.hpp"
#include "tests/support/TemporaryFile.hpp"

namespace {

using Lines = std::vector<std::string>;
using Part = zeb::ReadLine::Part;

std::string nameOf(const zeb::Section& section) {
  return std::string(section.open.empty() ? "the head" : section.open);
}

// Writes the records down, so that whole readings can be compared.
struct Recorder final : zeb::TraceReader {
  Lines records;
  std::vector<zeb::ReadLine> lines;

  void fileStarted(std::string_view) override { records.emplace_back("file"); }
  void fileRefused(int line, std::string_view text, std::string_view) override {
    records.push_back("refused by " + std::to_string(line) + " '" + std::string(text) + "'");
  }
  void repaired(const zeb::RepairEvent& event) override {
    records.push_back("repaired " + std::string(event.row->field.member));
  }
  void line(const zeb::ReadLine& line) override {
    lines.push_back(line);
    const char* parts[] = {"outside", "keyed", "entry", "positional", "none"};
    std::string text = std::to_string(line.number) + " " + parts[static_cast<int>(line.part)];
    if (line.part == Part::kEntry)
      text += std::string(line.entry.used ? " used" : " unused") + " of " + std::to_string(line.entry.list);
    if (line.part == Part::kPositional)
      text += " " + std::to_string(line.positionalLine) + (line.isMissing ? " missing" : "");
    if (line.version) text += " version " + std::to_string(line.version->number);
    for (const zeb::Hit& hit : line.hits) {
      const char* outcomes[] = {"stored", "unparsed", "gated", "not stored", "refused", "not taken", "confirmed"};
      text += ", " + std::string(hit.row->field.member) + " " + outcomes[static_cast<int>(hit.outcome)];
    }
    for (const zeb::ListTaken& list : line.lists) text += ", ends the list of " + std::to_string(list.line);
    if (line.end) {
      const char* ends[] = {"closes", "leaves open", "completes", "refuses"};
      text += std::string(", ") + ends[static_cast<int>(*line.end)] + " " + nameOf(*line.section);
    }
    for (const zeb::Opening& opening : line.openings) {
      text += ", opens " + nameOf(*opening.section) + " of " + std::to_string(opening.line);
    }
    records.push_back(text);
  }
};

Recorder recorded(const std::string& text, zeb::FileKind kind = zeb::FileKind::kCmp,
                  zeb::AnalysisOptions options = {}) {
  const zebtest::TemporaryFile file(text);
  options.repair = false;
  Recorder recorder;
  const zeb::OutputCapture quiet;
  const auto set = zeb::readTraced(file.path(), kind, options, nullptr, recorder);
  return recorder;
}

Lines recordsOf(const std::string& text, zeb::FileKind kind = zeb::FileKind::kCmp) {
  return recorded(text, kind).records;
}

TEST(LineTrace, TellsOpeningsKeysAndClosings) {
  EXPECT_EQ(recordsOf("text\n[ShortShot]\nTimeLimit = 2\nnothing\n[/ShortShot]\nmore\n"),
            (Lines{"file", "1 outside", "2 outside, opens [ShortShot] of 2", "3 keyed, m_dTimeLimit stored", "4 keyed",
                   "5 keyed, closes [ShortShot]", "6 outside"}));
}

TEST(LineTrace, TellsASectionThatIsNeverClosed) {
  EXPECT_EQ(recordsOf("[ShortShot]\nTimeLimit = 2\n"),
            (Lines{"file", "1 outside, opens [ShortShot] of 1", "2 keyed, m_dTimeLimit stored",
                   "2 none, leaves open [ShortShot]"}));
}

TEST(LineTrace, TellsTheLineOfTheSecondOpeningInALine) {
  EXPECT_EQ(recordsOf("[ShortShot] [Outlet]\n[/ShortShot]\n[/Outlet]\n"),
            (Lines{"file", "1 outside, opens [ShortShot] of 1", "2 keyed, closes [ShortShot], opens [Outlet] of 1",
                   "3 keyed, closes [Outlet]"}));
}

TEST(LineTrace, TellsWhereKeyAndValueStandAndWhatWasParsed) {
  const Recorder recorder = recorded("[Outlet]\n  AirPressure =  0.2 MPa\n[/Outlet]\n");
  const zeb::ReadLine& line = recorder.lines.at(1);
  ASSERT_EQ(line.hits.size(), 1u);
  const zeb::Hit& hit = line.hits[0];
  EXPECT_EQ(hit.key, "AirPressure");
  EXPECT_EQ(hit.keyAt, 2u);
  EXPECT_EQ(line.value(hit), "0.2 MPa");
  EXPECT_EQ(line.convertedText(hit), "0.2");
  EXPECT_EQ(line.left(hit), " MPa");
  EXPECT_EQ(hit.parsed.number, 0.2);
  EXPECT_EQ(hit.parsed.replaced, nullptr);
}

TEST(LineTrace, TellsWhyAValueIsNoNumber) {
  const Recorder recorder = recorded(
      "[General]\nTempSubdt = two\nTempSubdt = 2147483648\n[/General]\n[ShortShot]\n"
      "TimeLimit = 1e\nTimeLimit = .5e999\n[/ShortShot]\n");
  const auto failureIn = [&](std::size_t line) { return recorder.lines.at(line).hits.at(0).parsed.failure; };
  EXPECT_EQ(failureIn(1), zeb::ParseFailure::kNoNumber);
  EXPECT_EQ(failureIn(2), zeb::ParseFailure::kRange);
  EXPECT_EQ(failureIn(5), zeb::ParseFailure::kNoNumber);
  EXPECT_EQ(failureIn(6), zeb::ParseFailure::kRange);
}

TEST(LineTrace, TellsTheReplacementThatFired) {
  const Recorder recorder = recorded("[ProcessModify]\nFlowRateChangeUpperBound = 0.5\n[/ProcessModify]\n");
  const zeb::Hit& hit = recorder.lines.at(1).hits.at(0);
  ASSERT_NE(hit.parsed.replaced, nullptr);
  EXPECT_EQ(hit.parsed.number, 0.5);
  EXPECT_EQ(hit.parsed.replaced->value, 1.0);
}

TEST(LineTrace, TellsGatedKeysWithTheirNumber) {
  const Recorder recorder = recorded("[AutoVPCtrl]\nEstCavityPres = 2\n[/AutoVPCtrl]\n");
  const zeb::Hit& hit = recorder.lines.at(1).hits.at(0);
  EXPECT_EQ(hit.outcome, zeb::KeyOutcome::kGated);
  EXPECT_EQ(hit.parsed.number, 2.0);
}

TEST(LineTrace, TellsTheEntriesOfAList) {
  EXPECT_EQ(
      recordsOf("<PACK_OUTPUT_TIMES>\nValueNoPackOutputTime = 2\n1 = 5\n2\n</PACK_OUTPUT_TIMES>\n",
                zeb::FileKind::kCmx),
      (Lines{"file", "1 outside, opens <PACK_OUTPUT_TIMES> of 1", "2 keyed, m_iNoOutTimeStep stored",
             "3 entry used of 2", "4 entry unused of 2, ends the list of 2", "5 keyed, closes <PACK_OUTPUT_TIMES>"}));
}

TEST(LineTrace, TellsWhereTheNumberOfAnEntryStands) {
  const Recorder recorder =
      recorded("<PACK_OUTPUT_TIMES>\nValueNoPackOutputTime = 1\n1 =  5 s\n</PACK_OUTPUT_TIMES>\n", zeb::FileKind::kCmx);
  const zeb::ReadLine& line = recorder.lines.at(2);
  EXPECT_EQ(line.entry.number, 5.0);
  EXPECT_EQ(line.text.substr(line.entry.valueAt), "5 s");
  EXPECT_EQ(line.text.substr(line.entry.usedEnd), " s");
}

// The key behind the one that opens the list is looked for in the line that holds both.
TEST(LineTrace, TellsKeysBehindAListAsThoseOfTheirLine) {
  EXPECT_EQ(recordsOf("<FILL_ADVANCED_LONGFIBER>\nDiffusionModelType FlagFiberBreakage = 0\nCI = 0.1\n"
                      "</FILL_ADVANCED_LONGFIBER>\n",
                      zeb::FileKind::kCmx),
            (Lines{"file", "1 outside, opens <FILL_ADVANCED_LONGFIBER> of 1", "2 keyed, m_iDiffusionModelType stored",
                   "3 entry used of 2, m_dFiber_CI stored, ends the list of 2", "2 keyed, m_iFiberBreakage stored",
                   "4 keyed, closes <FILL_ADVANCED_LONGFIBER>"}));
}

TEST(LineTrace, TellsMembersThatAListReplaces) {
  const Recorder recorder = recorded("[UNFSetting]\nFillType = 2\nnDispenserPoint = 1\nPoint_x2 = 1\n[/UNFSetting]\n");
  const zeb::ReadLine& line = recorder.lines.at(2);
  ASSERT_EQ(line.lists.size(), 1u);
  EXPECT_FALSE(line.lists[0].members.empty());
  EXPECT_TRUE(line.lists[0].members[0].isReplaced);
  EXPECT_EQ(recorder.lines.at(3).hits.at(0).outcome, zeb::KeyOutcome::kNotStored);
}

TEST(LineTrace, TellsARefusedCountAsTheEndOfItsList) {
  EXPECT_EQ(recordsOf("[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = -1\n[/MultiGate]\n"),
            (Lines{"file", "1 outside, opens [MultiGate] of 1", "2 keyed, m_iMultipleGateMethod stored",
                   "3 keyed, m_iNumberofInletGroups refused, ends the list of 3", "4 keyed, closes [MultiGate]"}));
}

TEST(LineTrace, TellsPositionalLinesTheMissingOnesToo) {
  EXPECT_EQ(recordsOf("[3DCoolingChannel]\n1002\n3\n"),
            (Lines{"file", "1 outside, opens [3DCoolingChannel] of 1",
                   "2 positional 1, m_i_GetcfcVer_3DCChannel confirmed", "3 positional 2, m_iGet3DCChanelDebug stored",
                   "3 positional 3 missing", "3 positional 4 missing", "3 positional 5 missing",
                   "3 positional 6 missing", "3 positional 7 missing, completes [3DCoolingChannel]"}));
}

TEST(LineTrace, TellsAPositionalSectionOfAnotherVersion) {
  EXPECT_EQ(recordsOf("[3DCoolingChannel]\n1003\n[/3DCoolingChannel]\n"),
            (Lines{"file", "1 outside, opens [3DCoolingChannel] of 1",
                   "2 positional 1, m_i_GetcfcVer_3DCChannel not taken, refuses [3DCoolingChannel]", "3 outside"}));
  EXPECT_EQ(recordsOf("[3DCoolingChannel]\n").back(), "1 positional 0 missing, refuses [3DCoolingChannel]");
}

TEST(LineTrace, TellsVersionLinesWhetherTheyAnnounceAHeadOrNot) {
  EXPECT_EQ(recordsOf("[VER] 7\n"), (Lines{"file", "1 outside version 7"}));
  const Lines head = recordsOf("[VER] 1023\n1 2 3 4 5 6\n");
  ASSERT_GE(head.size(), 3u);
  EXPECT_EQ(head[1], "1 outside version 1023, opens [VER] of 1");
  EXPECT_EQ(head[2].substr(0, 36), "2 positional 1, m_ilsolvU stored, m_");
}

TEST(LineTrace, TellsTheCompanionsHeadAndWhatRefusesIt) {
  const auto companionRecords = [](const std::string& companion) {
    const zebtest::TemporaryFile file("", ".cmp");
    const auto name = std::filesystem::path(file.path()).replace_extension(".vecmp");
    std::ofstream(name) << companion;
    Recorder recorder;
    const zeb::OutputCapture quiet;
    const auto set =
        zeb::readTraced(file.path(), zeb::FileKind::kCmp, {.viscoelastic = true, .repair = false}, nullptr, recorder);
    std::filesystem::remove(name);
    return recorder.records;
  };
  const std::string bounds = "11 0 5\n11 0.1 12\n0.1 0.1 0\n1 20000\n20 20 0\n0.1 0.1 0.1\n";
  const Lines whole = companionRecords("1006\n" + bounds + "1 0.5 0\n-1\n");
  ASSERT_EQ(whole.size(), 12u);
  EXPECT_EQ(whole[2], "0 none, opens the head of 0");
  EXPECT_EQ(whole[3], "1 positional 1, m_iVECMPVersion stored");
  EXPECT_EQ(whole[4], "2 positional 2, m_dTLowBond stored, m_dModifyLamdaLowT not taken");
  EXPECT_EQ(whole[10], "8 positional 8, m_iVEModel stored, m_bModifyGradient stored, m_dSmoothFactor stored");
  EXPECT_EQ(whole[11], "9 positional 9, completes the head");
  const Lines cut = companionRecords("1006\n" + bounds + "1 0.5 0\n");
  ASSERT_EQ(cut.size(), 12u);
  EXPECT_EQ(cut[10], whole[10]);
  EXPECT_EQ(cut[11], "8 positional 9 missing, completes the head");
  EXPECT_EQ(companionRecords("1006\n50 2 0\n")[5],
            "2 positional 3 missing, m_dShrateUpBond1 stored, m_dModifyLamdaShrateUB stored");
  EXPECT_EQ(companionRecords("1005\n").back(), "refused by 1 '1005'");
  EXPECT_EQ(companionRecords("1006\n" + bounds + "4 0 0\n-1\n").back(), "refused by 9 '-1'");
  EXPECT_EQ(companionRecords("1006\n" + bounds + "4 0 0\n").back(), "refused by 8 '4 0 0'");
  EXPECT_EQ(companionRecords("").back(), "refused by 0 ''");
  EXPECT_EQ(companionRecords("1006\n" + bounds + "99 0 0\n0\n").back(), "refused by 8 '99 0 0'");
}

TEST(LineTrace, TellsTheStandardSolversHeadBeforeTheSectionsOfItsLine) {
  const Lines records = recordsOf("[VER] 1013 [StableFlag]\nx\n", zeb::FileKind::kStd);
  EXPECT_EQ(records.at(1), "1 outside version 1013, opens the head of 1");
  EXPECT_EQ(records.back(), "2 none, leaves open [StableFlag]");
}

}  // namespace
