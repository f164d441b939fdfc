// Every step from the default to the value that the solver uses, in order.
#include <gtest/gtest.h>

#include "inspect/Analysis.hpp"
#include "inspect/Catalogue.hpp"
#include "inspect/Difference.hpp"
#include "inspect/History.hpp"
#include "inspect/OutputCapture.hpp"
#include "inspect/Provenance.hpp"
#include "inspect/Settings.hpp"
#include "tests/support/TemporaryFile.hpp"

namespace {

using Kind = zeb::HistoryStep::Kind;

class Analysed {
 public:
  explicit Analysed(const std::string& text, const zeb::AnalysisOptions& options = {}) : m_file(text) {
    const zeb::OutputCapture quiet;
    m_set = zeb::analyse(m_file.path(), options, nullptr, &history);
  }

  std::vector<const zeb::HistoryStep*> steps(std::string_view name) const {
    const auto* entry = zeb::findEntries(name, "CMP").at(0);
    return history.stepsOf(*entry->row, blockOf(*entry));
  }
  std::string value(std::string_view name) const {
    const auto* entry = zeb::findEntries(name, "CMP").at(0);
    return zeb::valueOf(*entry->row, blockOf(*entry));
  }

  zeb::History history;

 private:
  void* blockOf(const zeb::CatalogueEntry& entry) const {
    for (const zeb::BlockView& view : zeb::blocksOf(*m_set)) {
      if (view.table == entry.table) return view.block;
    }
    return nullptr;
  }

  zebtest::TemporaryFile m_file;
  std::unique_ptr<CZEBKNCMPCompParm> m_set;
};

TEST(History, TellsRawTextWhatWasParsedWhatWasLeftAndTheConversion) {
  const Analysed analysed("[Outlet]\nAirPressure = 0.2 MPa\n[/Outlet]\n");
  const auto steps = analysed.steps("AirPressure");
  ASSERT_EQ(steps.size(), 1u);
  EXPECT_EQ(steps[0]->kind, Kind::kLine);
  EXPECT_EQ(steps[0]->lineNumber, 2);
  EXPECT_EQ(steps[0]->line, "AirPressure = 0.2 MPa");
  EXPECT_EQ(steps[0]->used, "0.2");
  EXPECT_EQ(steps[0]->left, " MPa");
  EXPECT_EQ(std::stod(steps[0]->after), 2e6);
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
  const auto steps = analysed.steps("TimeStepSizeCtrl.NewMethod");
  ASSERT_EQ(steps.size(), 1u);
  const auto others = analysed.history.othersOf(*steps[0]);
  ASSERT_EQ(others.size(), 1u);
  EXPECT_EQ(others[0]->key, "InitialDt");
  EXPECT_EQ(others[0]->after, "1");
}

TEST(History, TellsKeysBehindAClosedGate) {
  const Analysed analysed("[UNFSetting]\nSpeed_V = 3\nFillType = 2\nSpeed_V = 4\n[/UNFSetting]\n");
  const auto steps = analysed.steps("Speed_V");
  ASSERT_EQ(steps.size(), 2u);
  EXPECT_EQ(steps[0]->outcome, zeb::KeyOutcome::kGated);
  EXPECT_EQ(steps[1]->outcome, zeb::KeyOutcome::kStored);
  EXPECT_EQ(analysed.value("Speed_V"), "4");
}

TEST(History, TellsRepairsWithTheirCondition) {
  const Analysed analysed("[ShortShot]\n[/ShortShot]\n", {.molding = 11});
  const auto steps = analysed.steps("ShortShot.m_dTimeLimit");
  ASSERT_EQ(steps.size(), 1u);
  EXPECT_EQ(steps[0]->kind, Kind::kRepair);
  EXPECT_EQ(steps[0]->condition, "molding type BIIM");
  EXPECT_EQ(steps[0]->after, "1");
}

TEST(History, TellsTheLinesOfAList) {
  const Analysed analysed(
      "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 2\nWeightings = 0.25\nWeightings = "
      "9\n[/MultiGate]\n");
  const auto steps = analysed.steps("m_pdInletWeightings");
  ASSERT_EQ(steps.size(), 1u);
  EXPECT_EQ(steps[0]->kind, Kind::kList);
  EXPECT_EQ(steps[0]->key, "NumberofInletGroups");
  EXPECT_EQ(steps[0]->listLines.size(), 2u);
}

TEST(History, TellsFieldsThatALineOfTheHeadLacks) {
  std::string head = "[VER] 1023\n";
  for (int line = 1; line <= 17; ++line) head += "\n";
  const Analysed analysed(head + "0.0 1 7000.0\n\n");
  const auto given = analysed.steps("m_iIsLowTempVisCorr");
  ASSERT_EQ(given.size(), 1u);
  EXPECT_EQ(given[0]->kind, Kind::kLine);
  EXPECT_EQ(given[0]->after, "1");
  const auto missing = analysed.steps("m_dHighTempEPS");
  ASSERT_EQ(missing.size(), 1u);
  EXPECT_EQ(missing[0]->kind, Kind::kMissingField);
  EXPECT_EQ(missing[0]->after, "10000");
  EXPECT_EQ(analysed.value("m_dHighTempEPS"), "10000");
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
  zeb::Provenance plain, gas;
  const auto a = zeb::analyse(file.path(), {.molding = 0}, nullptr, &plain);
  const auto b = zeb::analyse(file.path(), {.molding = 11}, nullptr, &gas);
  const auto left = zeb::settingsOf(zeb::blocksOf(*a), &plain), right = zeb::settingsOf(zeb::blocksOf(*b), &gas);
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
