// Every step from the default to the value that the solver uses, in order.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "blocks/CZEBCMPTimeStepSizeCtrlParm.h"
#include "blocks/CZEBCMPVEParm.h"
#include "inspect/catalogue/Catalogue.hpp"
#include "inspect/explain/Difference.hpp"
#include "inspect/explain/History.hpp"
#include "inspect/explain/Origins.hpp"
#include "inspect/explain/Settings.hpp"
#include "inspect/set/Analysis.hpp"
#include "inspect/set/OutputCapture.hpp"
#include "inspect/set/ParameterFile.hpp"
#include "inspect/set/Values.hpp"
#include "tests/support/TemporaryFile.hpp"
#include "tests/support/Tsv.hpp"

namespace {

using Kind = zeb::HistoryStep::Kind;

const zeb::HistoryStep& theOnly(const std::vector<const zeb::HistoryStep*>& steps) {
  EXPECT_EQ(steps.size(), 1u);
  return *steps.at(0);
}

class Analysed {
 public:
  explicit Analysed(const std::string& text, const zeb::AnalysisOptions& options = {})
      : Analysed(text, zeb::FileKind::kCmp, options) {}
  Analysed(const std::string& text, zeb::FileKind kind, const zeb::AnalysisOptions& options = {})
      : m_file(text), m_kind(kind) {
    const zeb::OutputCapture quiet;
    m_set = zeb::readTraced(m_file.path(), kind, options, nullptr, history);
  }

  std::vector<const zeb::HistoryStep*> steps(std::string_view name) const {
    const auto* entry = entryOf(name);
    return history.stepsOf(*entry->row, blockOf(*entry));
  }
  const zeb::HistoryStep& only(std::string_view name) const { return theOnly(steps(name)); }
  std::string value(std::string_view name) const {
    const auto* entry = entryOf(name);
    return zeb::valueOf(*entry->row, blockOf(*entry));
  }

  zeb::History history;

 private:
  const zeb::CatalogueEntry* entryOf(std::string_view name) const {
    return zeb::findEntries(name, zeb::formatOf(m_kind)).at(0);
  }
  void* blockOf(const zeb::CatalogueEntry& entry) const {
    for (const zeb::BlockView& view : m_set.blocks()) {
      if (view.table == entry.table) return view.block;
    }
    return nullptr;
  }

  zebtest::TemporaryFile m_file;
  zeb::FileKind m_kind;
  zeb::ParameterFile m_set;
};

TEST(History, TellsRawTextWhatWasParsedWhatWasLeftAndTheConversion) {
  const Analysed analysed("[Outlet]\nAirPressure = 0.2 MPa\n[/Outlet]\n");
  const zeb::HistoryStep& step = analysed.only("AirPressure");
  EXPECT_EQ(step.kind, Kind::kLine);
  EXPECT_EQ(step.lineNumber, 2);
  EXPECT_EQ(step.line, "AirPressure = 0.2 MPa");
  EXPECT_EQ(step.used, "0.2");
  EXPECT_EQ(step.left, " MPa");
  EXPECT_EQ(std::stod(step.after), 2e6);
}

TEST(History, KeepsEveryLineInOrder) {
  const Analysed analysed("[Outlet]\nAirPressure = 0.2\nAirPressure = none\nAirPressure = 0.3\n[/Outlet]\n");
  const auto steps = analysed.steps("AirPressure");
  ASSERT_EQ(steps.size(), 3u);
  EXPECT_TRUE(steps[0]->sets());
  EXPECT_EQ(steps[1]->outcome, zeb::KeyOutcome::kUnparsed);
  EXPECT_EQ(std::stod(steps[1]->after), 2e6);
  EXPECT_EQ(std::stod(steps[2]->after), 3e6);
}

TEST(History, NamesTheOtherKeysOfALine) {
  const Analysed analysed("[Outlet]\n# AirPressure\n[/Outlet]\n[TimeStepSizeCtrl]\nNewMethod InitialDt = 1\n");
  const zeb::HistoryStep& step = analysed.only("TimeStepSizeCtrl.NewMethod");
  const auto& others = step.others;
  ASSERT_EQ(others.size(), 1u);
  EXPECT_EQ(others[0].key, "InitialDt");
  EXPECT_EQ(others[0].after, "1");
}

TEST(History, NamesTheOtherKeysOfALineOfAList) {
  const Analysed analysed("[RTM]\nIsVentInlet = 1\nNVentInlet RTMAlgorithm UsePCG = 0\n[/RTM]\n");
  const auto othersOf = [&](std::string_view name) {
    std::vector<std::string_view> keys;
    for (const auto& other : analysed.only(name).others) keys.push_back(other.key);
    std::sort(keys.begin(), keys.end());
    return keys;
  };
  EXPECT_EQ(othersOf("UsePCG"), (std::vector<std::string_view>{"RTMAlgorithm"}));
  EXPECT_EQ(othersOf("m_iNVentInlet"), (std::vector<std::string_view>{"RTMAlgorithm", "UsePCG"}));
}

TEST(History, KeepsOnlyTheLinesThatTouchWhatIsWanted) {
  const zebtest::TemporaryFile file(
      "[TimeStepSizeCtrl]\nInitialDt = 2\nNewMethod = 3\nNewMethod InitialDt = 1\nInitialDt = 4\n");
  const auto* entry = zeb::findEntries("TimeStepSizeCtrl.NewMethod", "CMP").at(0);
  const auto* other = zeb::findEntries("TimeStepSizeCtrl.InitialDt", "CMP").at(0);
  zeb::History history({entry->row});
  const zeb::OutputCapture quiet;
  const auto set = zeb::readTraced(file.path(), zeb::FileKind::kCmp, {}, nullptr, history);
  void* block = set.cmp->getTimeStepSizeCtrlParm();
  const auto steps = history.stepsOf(*entry->row, block);
  ASSERT_EQ(steps.size(), 2u);
  EXPECT_EQ(steps[0]->lineNumber, 3);
  EXPECT_EQ(steps[1]->others.size(), 1u);
  EXPECT_TRUE(history.stepsOf(*other->row, block).empty());
}

TEST(History, KeepsTheFirstAndTheLastStepsOfAMemberThatIsSetVeryOften) {
  std::string text = "[ShortShot]\n";
  for (int i = 0; i < 3000; ++i) text += "TimeLimit = " + std::to_string(i) + "\n";
  const Analysed analysed(text + "[/ShortShot]\n");
  const auto steps = analysed.steps("TimeLimit");
  ASSERT_EQ(steps.size(), 2000u);
  EXPECT_EQ(steps.front()->lineNumber, 2);
  EXPECT_EQ(steps[999]->lineNumber, 1001);
  EXPECT_EQ(steps[1000]->lineNumber, 2002);
  EXPECT_EQ(steps[1000]->leftOut, 1000u);
  EXPECT_EQ(steps.back()->after, "2999");
  EXPECT_EQ(steps.back()->leftOut, 0u);
}

TEST(History, KeepsFewerStepsOfALongArray) {
  std::string text = "<FILL_ADVANCED_HRSteady>\n";
  for (int i = 0; i < 200; ++i) text += "ValueNoHRGate = 100000\n";
  const Analysed analysed(text, zeb::FileKind::kCmx);
  const auto steps = analysed.steps("m_pHRGateBC");
  std::size_t characters = 0, leftOut = 0;
  for (const zeb::HistoryStep* step : steps) {
    characters += step->after.size();
    leftOut += step->leftOut;
  }
  EXPECT_EQ(steps.size() + leftOut, 200u);
  EXPECT_EQ(steps.front()->lineNumber, 2);
  EXPECT_EQ(steps.back()->lineNumber, 201);
  EXPECT_EQ(steps.back()->after.size(), 300'000u) << "100,000 zeros";
  EXPECT_GT(characters, 30'000'000u);
  EXPECT_LT(characters, 41'000'000u);
}

TEST(History, TellsKeysBehindAClosedGate) {
  const Analysed analysed("[UNFSetting]\nSpeed_V = 3\nFillType = 2\nSpeed_V = 4\n[/UNFSetting]\n");
  const auto steps = analysed.steps("Speed_V");
  ASSERT_EQ(steps.size(), 2u);
  EXPECT_EQ(steps[0]->outcome, zeb::KeyOutcome::kGated);
  EXPECT_EQ(steps[1]->outcome, zeb::KeyOutcome::kStored);
  EXPECT_EQ(analysed.value("Speed_V"), "4");
}

struct RepairCondition {
  zeb::AnalysisOptions options;
  const char* text;
  const char* members;  // separated by blanks
  const char* condition;
};

void expectRepairs(const RepairCondition& repair) {
  const Analysed analysed(repair.text, repair.options);
  std::istringstream members(repair.members);
  for (std::string name; members >> name;) {
    const auto steps = analysed.steps(name);
    ASSERT_FALSE(steps.empty()) << name << repair.condition;
    EXPECT_EQ(steps.back()->kind, Kind::kRepair);
    EXPECT_EQ(steps.back()->condition, repair.condition) << name;
    EXPECT_EQ(steps.back()->after, analysed.value(name)) << name;
  }
}

TEST(History, TellsTheConditionOfEveryRepair) {
  for (const RepairCondition& repair : {
           RepairCondition{{.material = 1}, "", "TimeStepSizeCtrl.iHRVof General.iVentMode", "material type 1"},
           {{.material = 1}, "", "General.dPressureDiffLimit CompressibleFlow.dVentAirDdp", "material type 1"},
           {{.material = 1, .wax = true}, "", "TimeStepSizeCtrl.iHRVof", "wax material"},
           {{},
            "[General]\nEnhancedVenting = 1\n",
            "General.iVentMode General.dPressureDiffLimit General.dReduceSAEF CompressibleFlow.dVentAirDdp",
            "EnhancedVenting is 1"},
           {{}, "[General]\nTrapAirVolFilled = 2\n", "General.dTrapAirVolFilled", "range 0 to 1"},
           {{}, "[PUChemFoam]\nIsPUChemFoam = 1\n", "General.iUVWPT_VolumeFlux", "IsPUChemFoam is 1"},
           {{.molding = 5, .material = 1}, "", "ViscositySetting2.dMinVis", "material type 1, molding type UNF"},
           {{.molding = 13, .material = 1}, "", "ViscositySetting2.dMinVis", "material type 1, molding type RTM"},
           {{.material = 1}, "", "ViscositySetting2.dMinVis", "material type 1, neither UNF nor RTM"},
       }) {
    expectRepairs(repair);
  }
  for (const zebtest::TsvRow& row : zebtest::readTsv("molding.tsv")) {
    if (row.at("class") == "-") continue;
    const std::string member = zeb::blockName(row.at("class")) + "." + row.at("getter");
    const std::string condition = "molding type " + row.at("name");
    expectRepairs({{.molding = std::stoi(row.at("code"))}, "", member.c_str(), condition.c_str()});
  }
}

TEST(History, TellsTheLinesOfAList) {
  const Analysed analysed(
      "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 2\nWeightings = 0.25\nWeightings = "
      "9\n[/MultiGate]\n");
  const zeb::HistoryStep& step = analysed.only("m_pdInletWeightings");
  EXPECT_EQ(step.kind, Kind::kList);
  EXPECT_EQ(step.key, "NumberofInletGroups");
  EXPECT_EQ(step.listLines.size(), 2u);
}

TEST(History, TellsAnElementsValueStepByStep) {
  const Analysed analysed(
      "[UNFSetting]\nFillType = 2\nnDispenserPoint = 1\nPoint_x1 = 3\nPoint_y1 = 4\n[/UNFSetting]\n");
  const auto steps = analysed.steps("Point_y1");
  ASSERT_EQ(steps.size(), 2u);
  EXPECT_EQ(steps[0]->kind, Kind::kList);
  EXPECT_EQ(steps[0]->after, "[0, 0, 0, 0, 0]");  // rows of three, the first of all not used
  EXPECT_EQ(steps[1]->lineNumber, 5);
  EXPECT_EQ(steps[1]->after, "[0, 0, 0, 3, 4]");
}

TEST(History, TellsFieldsThatALineOfTheHeadLacks) {
  std::string head = "[VER] 1023\n";
  for (int line = 1; line <= 17; ++line) head += "\n";
  const Analysed analysed(head + "0.0 1 7000.0\n\n");
  const zeb::HistoryStep& given = analysed.only("m_iIsLowTempVisCorr");
  EXPECT_EQ(given.kind, Kind::kLine);
  EXPECT_EQ(given.after, "1");
  const zeb::HistoryStep& missing = analysed.only("m_dHighTempEPS");
  EXPECT_EQ(missing.kind, Kind::kMissingField);
  EXPECT_EQ(missing.after, "10000");
  EXPECT_EQ(analysed.value("m_dHighTempEPS"), "10000");
}

TEST(History, TellsWhyAFieldIsNotRead) {
  const Analysed analysed("[VER] 1023\n2 2 2 2 2 2\n1 1 x 10\n7\n");
  const zeb::HistoryStep& read = analysed.only("m_iNRestartIV");
  EXPECT_EQ(read.lineNumber, 3);
  EXPECT_EQ(read.positionalLine, 2);
  EXPECT_EQ(read.used, "1");
  for (const char* name : {"m_iNRestartIW", "m_iNRestartIP"}) {
    const zeb::HistoryStep& stopped = analysed.only(name);
    EXPECT_EQ(stopped.kind, Kind::kMissingField);
    EXPECT_EQ(stopped.lineNumber, 3);
    EXPECT_EQ(stopped.reason, "reading of the line stops at \"x 10\"");
    EXPECT_FALSE(stopped.sets());
  }
  const auto ended = analysed.steps("m_iNiter");  // head line 4
  ASSERT_EQ(ended.size(), 1u);
  EXPECT_EQ(ended[0]->reason, "the file ends before this line");
}

TEST(History, TellsWhyAHeadIsNotRead) {
  for (const auto& [line, reason] : {std::pair{"[VER] 1024", "version 1024"}, std::pair{"[VER] x", "no version number"},
                                     std::pair{"[VER] 1013", "version 1013"}}) {
    const Analysed analysed(std::string(line) + "\n2 2 2 2 2 2\n");
    const zeb::HistoryStep& step = analysed.only("m_ilsolvU");
    EXPECT_EQ(step.kind, Kind::kRefused);
    EXPECT_EQ(step.lineNumber, 1);
    EXPECT_EQ(step.reason, reason);
  }
  const Analysed standard("[VER] 1023\n7 2 2 2 2 2\n", zeb::FileKind::kStd);
  EXPECT_EQ(standard.steps("ilsolvU").at(0)->kind, Kind::kRefused);
  const Analysed read("[VER] 1013\n7 2 2 2 2 2\n", zeb::FileKind::kStd);
  ASSERT_EQ(read.steps("ilsolvU").size(), 1u);
  EXPECT_EQ(read.steps("ilsolvU")[0]->kind, Kind::kLine);
  EXPECT_EQ(read.value("ilsolvU"), "7");
}

TEST(History, TellsWhyACoolingSectionIsNotRead) {
  const Analysed refused("\n[StdCool]\n1046\n3 4\n");
  const zeb::HistoryStep& step = refused.only("StdCool.iGetlsolvTP");
  EXPECT_EQ(step.kind, Kind::kRefused);
  EXPECT_EQ(step.lineNumber, 3);
  EXPECT_EQ(step.reason, "version 1046 instead of 1047");
  EXPECT_EQ(refused.value("StdCool.iGetlsolvTP"), "2");

  const Analysed read("\n[StdCool]\n1047\n3\n");
  const zeb::HistoryStep& given = read.only("StdCool.iGetlsolvTP");
  EXPECT_EQ(given.lineNumber, 4);
  EXPECT_EQ(given.positionalLine, 2);
  EXPECT_EQ(given.after, "3");
  const zeb::HistoryStep& version = read.only("StdCool.iGetcfcver_StdCool");
  EXPECT_EQ(version.lineNumber, 3);
  EXPECT_EQ(version.after, "1047");
  const zeb::HistoryStep& lacking = read.only("StdCool.iGetlsolvTM");
  EXPECT_EQ(lacking.reason, "the line holds only 1 field");
}

TEST(History, TellsTheLinesOfMomentsInACmxFile) {
  const Analysed analysed(
      "<FILL_OUTPUT_TIMES>\nValueNoFillOutputTime = 3\n1 = 0.5\n2 0.8\n3 = 1.2\n</FILL_OUTPUT_TIMES>\n",
      zeb::FileKind::kCmx);
  const zeb::HistoryStep& step = analysed.only("FILL_OUTPUT_TIMES.m_pOutTimeStep");
  EXPECT_EQ(step.listLines,
            (std::vector<std::string>{"line 3: 1 = 0.5", "line 4: 2 0.8 (not used)", "line 5: 3 = 1.2"}));
  EXPECT_EQ(step.after, "[0.5, 0, 1.2]");
}

TEST(History, KeepsTheFirstAndTheLastUsedLineOfALongList) {
  std::string text = "<FILL_OUTPUT_TIMES>\nValueNoFillOutputTime = 2000\n";
  for (int i = 1; i <= 1999; ++i) text += "1 = " + std::to_string(i) + "\n";
  const Analysed analysed(text + "none\n", zeb::FileKind::kCmx);
  const auto& lines = analysed.steps("FILL_OUTPUT_TIMES.m_pOutTimeStep").at(0)->listLines;
  ASSERT_EQ(lines.size(), 1001u);
  EXPECT_EQ(lines[999], "line 1002: 1 = 1000");
  EXPECT_EQ(lines[1000], "line 2001: 1 = 1999");
}

TEST(History, TellsTheOwnLineOfEachCoefficientInACmxFile) {
  const Analysed analysed(
      "<FILL_ADVANCED_LONGFIBER>\nDiffusionModelType = 1\nCf = 0.01\nCm = 0.3\n</FILL_ADVANCED_LONGFIBER>\n",
      zeb::FileKind::kCmx);
  const zeb::HistoryStep& atDefault = analysed.only("m_dARD_Cf");
  EXPECT_EQ(atDefault.lineNumber, 3);
  const zeb::HistoryStep& changed = analysed.only("m_dARD_Cm");
  EXPECT_EQ(changed.lineNumber, 4);
  EXPECT_EQ(changed.after, "0.3");
  EXPECT_TRUE(analysed.steps("m_dARD_b1").empty());
}

TEST(History, TellsKeysAboveTheGateOfTheStandardSolver) {
  const Analysed analysed("[MultiGate]\nByVolume = 0.5\nMultipleGateMethod = 1\n[/MultiGate]\n", zeb::FileKind::kStd);
  const zeb::HistoryStep& step = analysed.only("ByVolume");
  EXPECT_EQ(step.outcome, zeb::KeyOutcome::kGated);
  EXPECT_EQ(analysed.value("ByVolume"), "0.02");
}

// The companion file stands beside the CMP file, under its name.
class WithViscoelasticFile {
 public:
  explicit WithViscoelasticFile(const std::string& text)
      : m_companion(std::filesystem::path(m_file.path()).replace_extension(".vecmp")) {
    std::ofstream(m_companion) << text;
  }
  WithViscoelasticFile(const WithViscoelasticFile&) = delete;
  WithViscoelasticFile& operator=(const WithViscoelasticFile&) = delete;
  ~WithViscoelasticFile() { std::filesystem::remove(m_companion); }
  zeb::ParameterFile read(zeb::TraceReader& reader) const {
    const zeb::OutputCapture quiet;
    return zeb::readTraced(m_file.path(), zeb::FileKind::kCmp, {.viscoelastic = true}, nullptr, reader);
  }
  std::vector<const zeb::HistoryStep*> steps(std::string_view member) const {
    const auto* entry = zeb::findEntries(member, "CMP").at(0);
    return m_history.stepsOf(*entry->row, m_set.cmp->getVEParm());
  }
  const zeb::HistoryStep& only(std::string_view member) const { return theOnly(steps(member)); }
  void explain() { m_set = read(m_history); }

 private:
  zebtest::TemporaryFile m_file{"", ".cmp"};
  std::filesystem::path m_companion;
  zeb::History m_history;
  zeb::ParameterFile m_set;
};

TEST(History, TellsHeadValuesOfTheViscoelasticFileThatAreNotTaken) {
  WithViscoelasticFile file("1006\n5 2 0\n20 0.2 30\n20 0.01 20\n1000 1e6\n0 1e4 0\n1 10 1000\n1 0.5 0\n-1\n");
  file.explain();
  const auto low = file.steps("m_dTLowBond");  // taken above 10 alone
  ASSERT_EQ(low.size(), 1u);
  EXPECT_EQ(low[0]->kind, Kind::kNotTaken);
  EXPECT_EQ(low[0]->lineNumber, 2);
  const zeb::HistoryStep& taken = file.only("m_dModifyLamdaLowT");
  EXPECT_EQ(taken.kind, Kind::kLine);
  EXPECT_EQ(taken.after, "2");
  const zeb::HistoryStep& weight = file.only("m_dSmoothFactor");
  EXPECT_EQ(weight.lineNumber, 8);
  EXPECT_EQ(weight.after, "0.5");
}

TEST(History, TellsThatAShortHeadLineCountsOnTheOneAbove) {
  WithViscoelasticFile file("1006\n50 2 0\n20 0.2 30\n20\n1000 1e6\n0 1e4 0\n1 10 1000\n1 0.5 0\n-1\n");
  file.explain();
  const zeb::HistoryStep& step = file.only("m_dModifyLamdaStressUB");
  EXPECT_EQ(step.after, "0.2");
  EXPECT_EQ(step.reason, "the line lacks the field; that of the line above counts");
}

TEST(History, TellsWhyTheViscoelasticFileIsRefused) {
  WithViscoelasticFile file("1006\n50 2 0\n20 0.2 30\n20 0.01 20\n1000 1e6\n0 1e4 0\n1 10 1000\n4 0.5 0\n-1\n");
  file.explain();
  const auto steps = file.steps("m_dModifyLamdaLowT");
  ASSERT_EQ(steps.size(), 2u);
  EXPECT_EQ(steps[0]->kind, Kind::kLine);
  EXPECT_EQ(steps[1]->kind, Kind::kRefused);
  EXPECT_EQ(steps[1]->lineNumber, 9);
}

TEST(Origins, ForgetsWhatARefusedViscoelasticFileSet) {
  const WithViscoelasticFile file("1006\n50 2 0\n20 0.2 30\n20 0.01 20\n1000 1e6\n0 1e4 0\n1 10 1000\n4 0.5 0\n-1\n");
  zeb::Origins origins;
  const zeb::ParameterFile set = file.read(origins);
  const auto* entry = zeb::findEntries("m_dModifyLamdaLowT", "CMP").at(0);
  void* block = set.cmp->getVEParm();
  EXPECT_EQ(zeb::valueOf(*entry->row, block), entry->defaultValue);
  EXPECT_EQ(origins.of(entry->row->field.locate(block)).text(), "default");
}

struct ListOrigin {
  zeb::FileKind kind;
  const char* text;
  std::map<std::string, std::string> origins;  // by member
};

TEST(Origins, NamesTheLinesThatAListsMembersStandOn) {
  using enum zeb::FileKind;
  for (const ListOrigin& list : {
           ListOrigin{kCmp,
                      "[RTM]\nIsVentInlet = 1\nNVentInlet = 2\nVentInletID = 4\nVentInletID = 9\n[/RTM]\n",
                      {{"m_iIsVentInlet", "line 2"}, {"m_iNVentInlet", "line 3"}, {"m_piVentInletID", "lines 4-5"}}},
           ListOrigin{kCmp,
                      "[RTM]\nIsVentInlet = 0\n[/RTM]\n",
                      {{"m_iIsVentInlet", "line 2"}, {"m_iNVentInlet", "default"}, {"m_piVentInletID", "default"}}},
           ListOrigin{kCmp,
                      "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 2\nWeightings = 0.4\nWeightings "
                      "= 0.6\n[/MultiGate]\n",
                      {{"m_iNumberofInletGroups", "line 3"}, {"m_pdInletWeightings", "lines 4-5"}}},
           ListOrigin{kCmp,
                      "[UNFSetting]\nFillType = 2\nnDispenserPoint = 2\nPoint_x1 = 1\n\nPoint_y2 = 2\n"
                      "[/UNFSetting]\n",
                      {{"m_iNDispenserPass", "line 3"}, {"m_pdDispenserPoint", "lines 4-6"}}},
           ListOrigin{kCmp,
                      "[UNFSetting]\nFillType = 2\nnDispenserPoint = 2\n[/UNFSetting]\n",
                      {{"m_pdDispenserPoint", "line 3"}}},
           ListOrigin{kCmx,
                      "<FILL_ADVANCED_LONGFIBER>\nDiffusionModelType = 0\nCI = 0.01\n</FILL_ADVANCED_LONGFIBER>\n",
                      {{"m_iDiffusionModelType", "line 2"}, {"m_dFiber_CI", "line 3"}, {"m_dARD_Cf", "default"}}},
           ListOrigin{
               kCmx,
               "<FILL_OUTPUT_TIMES>\nValueNoFillOutputTime = 1\n1 = 0.5\n</FILL_OUTPUT_TIMES>\n",
               {{"FILL_OUTPUT_TIMES.m_iNoOutTimeStep", "line 2"}, {"FILL_OUTPUT_TIMES.m_pOutTimeStep", "line 3"}}},
           ListOrigin{kCmp,
                      "[Whiteboard]\nElemagComsol 1.5\n[/Whiteboard]\n",
                      {{"m_dGetTime_StartHeating", "line 2"}, {"m_dGetTime_EndHeating", "default"}}},
       }) {
    const zebtest::TemporaryFile file(list.text);
    zeb::Origins origins;
    const zeb::OutputCapture quiet;
    const auto set = zeb::readTraced(file.path(), list.kind, {}, nullptr, origins);
    for (const auto& [name, expected] : list.origins) {
      const auto* entry = zeb::findEntries(name, zeb::formatOf(list.kind)).at(0);
      for (const zeb::BlockView& view : set.blocks()) {
        if (view.table != entry->table) continue;
        EXPECT_EQ(origins.of(entry->row->field.locate(view.block)).text(), expected) << name << "\n" << list.text;
      }
    }
  }
}

TEST(History, KnowsWhereSectionsOpen) {
  const Analysed analysed("\n[Outlet]\n[/Outlet]\n[Outlet]\n[/Outlet]\n");
  const auto* entry = zeb::findEntries("AirPressure", "CMP").at(0);
  EXPECT_EQ(analysed.history.openings(*entry->section), (std::vector<int>{2, 4}));
  EXPECT_TRUE(analysed.steps("AirPressure").empty());
}

struct Pair {
  const char *a, *b;
  double tolerance;
  bool same;
};

TEST(Difference, ComparesValuesWithinTheTolerance) {
  for (const Pair& pair : {
           Pair{"1", "1", 0.0, true},
           Pair{"1", "1.001", 0.0, false},
           Pair{"1", "1.001", 0.01, true},
           Pair{"-1", "1", 0.5, false},
           Pair{"0", "1e-300", 0.1, false},
           Pair{"nan", "nan", 0.0, true},
           Pair{"inf", "1", 1.0, false},
           Pair{"\"a\"", "\"b\"", 1.0, false},
           Pair{"none", "[]", 1.0, false},
           Pair{"[1, 2]", "[1, 2.001]", 0.01, true},
           Pair{"[1, 2]", "[1, 2.001]", 0.0, false},
           Pair{"[1, 2]", "[1]", 1.0, false},
           Pair{"true", "false", 1.0, false},
       }) {
    EXPECT_EQ(zeb::sameValue(pair.a, pair.b, pair.tolerance), pair.same) << pair.a << " " << pair.b;
  }
}

TEST(Difference, NamesMembersWithBothOrigins) {
  const zebtest::TemporaryFile file("[ShortShot]\nTimeLimit = 2\n[/ShortShot]\n");
  const zeb::OutputCapture quiet;
  zeb::Origins plain, gas;
  const auto a = zeb::readTraced(file.path(), zeb::FileKind::kCmp, {.molding = 0}, nullptr, plain);
  const auto b = zeb::readTraced(file.path(), zeb::FileKind::kCmp, {.molding = 11}, nullptr, gas);
  const auto left = zeb::settingsOf(a.blocks(), &plain), right = zeb::settingsOf(b.blocks(), &gas);
  const auto differences = zeb::differencesOf(left, right, 0.0);
  ASSERT_EQ(differences.size(), 2u);  // the weighted flow rate is the other one
  const auto limit = differences[0].block == "ShortShot" ? differences[0] : differences[1];
  EXPECT_EQ(limit.a->member, "m_dTimeLimit");
  EXPECT_EQ(limit.a->origin.text(), "line 2");
  EXPECT_EQ(limit.b->origin.text(), "repair: molding type BIIM");
  EXPECT_EQ(limit.b->value, "1");
  EXPECT_TRUE(zeb::differencesOf(left, left, 0.0).empty());
}

}  // namespace
