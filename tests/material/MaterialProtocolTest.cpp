// What rank 0 sends for a material, call by call, and what the other ranks make of it.
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "material/CZEBKNMaterialParam.h"
#include "standalone/ThreadCommunicator.h"
#include "tests/material/FakeEngine.h"
#include "tests/material/MaterialExamples.h"
#include "tests/material/TwoRanks.hpp"

namespace {

using zebtest::curvesOf;
using zebtest::recordText;
using zebtest::TwoRanks;

// One call for each value: "i 1 2" are two Broadi, "d 0.5" is a Broadd, "c TEXT" a Broadc of the rest of the line; "6x"
// in front repeats a line's calls, '#' opens a comment.
std::vector<std::string> callsOf(const std::string& script) {
  std::vector<std::string> calls;
  std::istringstream lines(script);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t repeat = line.find("x ");
    int times = 1;
    if (repeat != line.npos && line.find_first_not_of("0123456789") == repeat) {
      times = std::stoi(line);
      line.erase(0, repeat + 2);
    }
    for (; times > 0; --times) {
      std::istringstream words(line.substr(0, line.find('#')));
      std::string kind;
      if (!(words >> kind)) continue;
      if (kind == "Barrier") calls.push_back(kind);
      if (kind == "c") calls.push_back("Broadc " + line.substr(2));
      if (kind == "i" || kind == "d") {
        for (std::string value; words >> value;) calls.push_back((kind == "i" ? "Broadi " : "Broadd ") + value);
      }
    }
  }
  return calls;
}

const char* const kOneCoefficientCalls = R"(
Barrier
i 101 102 103 104 105 106
6x c "PP crystalline"
i 2 11 12         # table 1: count, A, B
d 0.5 1.5
i 0 0 0           # table 2
i 1 31 32         # table 3
d -2.25
13x i 0 0 0  # tables 4 to 16
i 3 171 172       # table 17
d 1e+30 2e-30 3
i 7 8 1 9         # model values
d 42.5            # last
d 0.125           # coefficient
i 0               # test curves
)";

const char* const kFiveCoefficientCalls = R"(
Barrier
i -1 0 0 0 0 6
6x c "EP \"thermoset\""
i 0 0 0           # table 1
i 1 21 22         # table 2
d 20.5
15x i 0 0 0  # tables 3 to 17
i 1 2 3 4
d -1
d 0.1 0.2 0.3 0.4 0.5
i 2               # test curves
i 52 51 1         # curve 1: B, A, count
d 3.5             # its entry: the double, ints 1, 3, 2, the 21 doubles
i 1 3 2
d 100.5 101.5 102.5 103.5 104.5 105.5 106.5 107.5 108.5 109.5 110.5
d 111.5 112.5 113.5 114.5 115.5 116.5 117.5 118.5 119.5 120.5
i 62 61 0         # curve 2
)";

const char* const kTwoCoefficientCalls = R"(
Barrier
i 0 0 0 0 0 0
6x c ""
8x i 0 0 0  # tables 1 to 8
i 0 91 92         # table 9
8x i 0 0 0  # tables 10 to 17
i 0 0 2 0
d 0
d 1.25 2.25
i 1               # test curves
i 72 71 2
d 0.25
i 4 6 5
d 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21
d 0.75
i 7 9 8
d -10 -9 -8 -7 -6 -5 -4 -3 -2 -1 0 1 2 3 4 5 6 7 8 9 10
)";

struct Example {
  const char* name;
  void (*make)(FakeEngine&);
  const char* calls;
};

void PrintTo(const Example& example, std::ostream* out) { *out << example.name; }

class MaterialProtocol : public testing::TestWithParam<Example> {};

TEST_P(MaterialProtocol, SendsExactlyTheseCalls) {
  FakeEngine engine;
  GetParam().make(engine);
  TwoRanks ranks;
  ranks.input("PP");
  EXPECT_EQ(ranks.calls(), callsOf(GetParam().calls));
}

TEST_P(MaterialProtocol, TeamsOfThreadsEndWithTheSameRecord) {
  for (const int ranks : {1, 2, 8}) {
    FakeEngine engine;
    GetParam().make(engine);
    zeb::ThreadTeam team(ranks);
    std::vector<CZEBKNMaterialParam> params(static_cast<std::size_t>(ranks));
    team.run([&](int rank, CZEBCom& com) { params[static_cast<std::size_t>(rank)].SetInput("PP", &com); });
    for (const auto& param : params) EXPECT_EQ(recordText(param), recordText(params[0]));
  }
}

INSTANTIATE_TEST_SUITE_P(Examples, MaterialProtocol,
                         testing::Values(Example{"OneCoefficient", makeOneCoefficientMaterial, kOneCoefficientCalls},
                                         Example{"FiveCoefficients", makeFiveCoefficientMaterial,
                                                 kFiveCoefficientCalls},
                                         Example{"TwoCoefficients", makeTwoCoefficientMaterial, kTwoCoefficientCalls}),
                         testing::PrintToStringParamName());

TEST(MaterialDistribution, OnlyTheFirstTextIsDistributed) {
  FakeEngine engine;
  makeOneCoefficientMaterial(engine);
  TwoRanks ranks;
  ranks.input("PP");
  const char* const texts[] = {"PP crystalline", "maker", "grade", "comment", "fifth", "sixth", "seventh"};
  for (int i = 0; i < 7; ++i) {
    EXPECT_STREQ(ranks.sender.GetZebMaterial()->szText[i], texts[i]);
    EXPECT_STREQ(ranks.receiver.GetZebMaterial()->szText[i], i == 0 ? texts[0] : "");
  }
}

TEST(MaterialDistribution, WithoutOtherRanksNothingIsSent) {
  for (const int ranks : {1, 0, -1}) {
    FakeEngine engine;
    makeFiveCoefficientMaterial(engine);
    zeb::RecordingCommunicator com(ranks);
    CZEBKNMaterialParam param;
    EXPECT_EQ(param.SetInput("EP", &com), 1);
    EXPECT_EQ(com.log().calls(), std::vector<std::string>{"Barrier"}) << ranks;
    EXPECT_STREQ(param.GetZebMaterial()->szText[0], "EP \"thermoset\"");
    EXPECT_EQ(curvesOf(param).size(), 2u);
  }
}

TEST(MaterialDistribution, OtherModelValuesSendNoCoefficients) {
  for (const int model : {4, 0, -1, 2147483647}) {
    FakeEngine engine;
    engine.setModel(0, 0, model, 0, {1, 2, 3, 4, 5, 6}, 0.5);
    TwoRanks ranks;
    ranks.input("X");
    const std::vector<std::string> calls = ranks.calls();
    // Barrier, 6 header values, 6 texts, 17 empty tables, 4 model values, the last double, the number of curves
    ASSERT_EQ(calls.size(), 1u + 6 + 6 + 17 * 3 + 4 + 1 + 1);
    EXPECT_EQ(calls[calls.size() - 2], "Broadd 0.5");
    EXPECT_EQ(calls.back(), "Broadi 0");
  }
}

TEST(MaterialDistribution, UnknownMaterialIsAnEmptyRecordOnAllRanks) {
  FakeEngine engine;
  engine.knowsMaterial = false;
  TwoRanks ranks;
  ranks.input("nowhere");
  EXPECT_EQ(ranks.printedByRank0, "Material: the engine does not know nowhere, an empty record is used.\n");
  EXPECT_EQ(engine.calls, std::vector<std::string>{"ZebGetMaterial nowhere"});
  EXPECT_TRUE(curvesOf(ranks.receiver).empty());
  EXPECT_STREQ(ranks.receiver.GetZebMaterial()->szText[0], "");
  for (const ZebMatParam& table : ranks.receiver.GetZebMaterial()->table) EXPECT_EQ(table.iCount, 0);
  EXPECT_EQ(ranks.calls().back(), "Broadi 0");
}

TEST(MaterialDistribution, CurveThatTheEngineDoesNotHaveIsAnEmptyOneOnAllRanks) {
  FakeEngine engine;
  makeFiveCoefficientMaterial(engine);
  engine.reportedCurves = 3;
  TwoRanks ranks;
  ranks.input("EP");
  EXPECT_EQ(ranks.printedByRank0, "Material: the engine does not have test curve 3, an empty one is used.\n");
  const auto calls = ranks.calls();
  EXPECT_EQ(std::vector<std::string>(calls.end() - 3, calls.end()), std::vector<std::string>(3, "Broadi 0"));
}

TEST(MaterialDistribution, CountsThatMakeNoSenseAreSentAsZero) {
  FakeEngine engine;
  makeFiveCoefficientMaterial(engine);
  engine.material.table[1].iCount = -1;
  engine.material.table[4].iCount = 2147483647;
  engine.reportedCurves = -3;
  TwoRanks ranks;
  ranks.input("EP");
  EXPECT_EQ(ranks.printedByRank0,
            "Material: the count of property table 2 (-1) is not between 0 and 1000000, 0 is used.\n"
            "Material: the count of property table 5 (2147483647) is not between 0 and 1000000, 0 is used.\n"
            "Material: the count of test curves (-3) is not between 0 and 1000000, 0 is used.\n");
  EXPECT_EQ(ranks.sender.GetZebMaterial()->table[1].iCount, 0);
  EXPECT_EQ(ranks.sender.GetZebMaterial()->table[1].iA, 21);
}

}  // namespace
