// A material on its way to the other ranks: order of steps, extreme values and counts, odd senders, objects used again.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <climits>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "material/CZEBKNMaterialParam.h"
#include "tests/material/FakeEngine.h"
#include "tests/material/MaterialExamples.h"
#include "tests/material/TwoRanks.hpp"
#include "tests/material/WatchedRank.h"

namespace {

using zebtest::curvesOf;
using zebtest::recordText;
using zebtest::TwoRanks;

// --- Order of steps ----------------------------------------------------------------------------------------------

TEST(MaterialSteps, EngineIsReleasedBeforeTheRanksMeet) {
  FakeEngine engine;
  makeTwoCoefficientMaterial(engine);
  WatchedRank com(0, 4, engine.calls);
  CZEBKNMaterialParam param;
  param.SetInput("PA", &com);
  const Events expected{"ZebGetMaterial PA", "ZebGetMTCInfo", "ZebGetMTCData 0", "ZebReleaseMaterial", "barrier"};
  ASSERT_GT(engine.calls.size(), expected.size());
  EXPECT_EQ(Events(engine.calls.begin(), engine.calls.begin() + 5), expected);
  const auto isEngine = [](const std::string& event) { return event.rfind("Zeb", 0) == 0; };
  EXPECT_EQ(std::count_if(engine.calls.begin(), engine.calls.end(), isEngine), 4);
}

TEST(MaterialSteps, EngineIsAskedForAsManyCurvesAsItReports) {
  const struct {
    int reported, asked;
  } cases[] = {{0, 0}, {1, 1}, {2, 2}, {-1, 0}, {INT_MIN, 0}, {INT_MAX, 0}, {1'000'001, 0}};
  for (const auto& c : cases) {
    FakeEngine engine;
    makeFiveCoefficientMaterial(engine);
    engine.reportedCurves = c.reported;
    TwoRanks ranks;
    ranks.input("EP");
    Events expected{"ZebGetMaterial EP", "ZebGetMTCInfo"};
    for (int i = 0; i < c.asked; ++i) expected.push_back("ZebGetMTCData " + std::to_string(i));
    expected.emplace_back("ZebReleaseMaterial");
    EXPECT_EQ(engine.calls, expected) << c.reported;
    EXPECT_EQ(curvesOf(ranks.receiver).size(), static_cast<std::size_t>(c.asked));
    const bool isRefused = c.reported < 0 || c.reported > 1'000'000;
    EXPECT_EQ(std::count(ranks.printedByRank0.begin(), ranks.printedByRank0.end(), '\n'), isRefused ? 1 : 0);
    if (c.asked == 0) {
      EXPECT_EQ(ranks.calls().back(), "Broadi 0");
    }
  }
}

// --- What travels ------------------------------------------------------------------------------------------------

TEST(MaterialTravel, TableWithCountZeroSendsItsThreeIntsAndNoDoubles) {
  FakeEngine engine;
  engine.setTable(1, -5, 6, {});
  engine.setTable(2, 7, 8, {0.5});
  TwoRanks ranks;
  ranks.input("X");
  const std::vector<std::string> calls = ranks.calls();
  const std::vector<std::string> expected{"Broadi 0", "Broadi -5", "Broadi 6",  "Broadi 1",
                                          "Broadi 7", "Broadi 8",  "Broadd 0.5"};
  const std::ptrdiff_t firstTable = 1 + 6 + 6;
  ASSERT_GT(calls.size(), 20u);
  EXPECT_EQ(std::vector<std::string>(calls.begin() + firstTable, calls.begin() + firstTable + 7), expected);
}

TEST(MaterialTravel, LongFirstTextArrivesCut) {
  for (const std::size_t length : {254u, 255u, 5000u}) {
    FakeEngine engine;
    engine.setText(1, std::string(length, 'n'));
    TwoRanks ranks;
    ranks.input("X");
    const std::string cut(254, 'n');
    EXPECT_EQ(ranks.receiver.GetZebMaterial()->szText[0], cut) << length;
    const std::vector<std::string> calls = ranks.calls();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "Broadc \"" + cut + "\""), 6);
  }
}

// What a rank 0 of an empty material sends, with these six texts.
zeb::CallLog emptyMaterialWithTexts(const std::vector<std::string>& texts) {
  zeb::CallLog log;
  const auto addInts = [&log](int count) {
    for (int i = 0; i < count; ++i) log.addInt(0);
  };
  log.addBarrier();
  addInts(6);
  for (const std::string& text : texts) {
    char buffer[255] = {};
    text.copy(buffer, sizeof buffer);
    log.addText(buffer);
  }
  addInts(17 * 3 + 4);
  log.addDouble(0.0);
  addInts(1);
  return log;
}

TEST(MaterialTravel, LastOfTheSixTextsStays) {
  const struct {
    std::vector<std::string> sent;
    std::string stays;
  } cases[] = {
      {{"one", "two", "three", "four", "five", "six"}, "six"},
      {{"the longest of all", "", "", "", "", "short"}, "short"},
      {{"a", "b", "c", "d", "e", ""}, ""},
      {{"", "", "", "", "", std::string(255, 'u')}, std::string(254, 'u')},  // without a terminator
  };
  for (const auto& c : cases) {
    const zeb::CallLog log = emptyMaterialWithTexts(c.sent);
    zeb::ReplayingCommunicator replay(log, 1, 2);
    CZEBKNMaterialParam receiver;
    EXPECT_EQ(receiver.SetInput("X", &replay), 1);
    EXPECT_TRUE(replay.finished());
    EXPECT_EQ(receiver.GetZebMaterial()->szText[0], c.stays);
    for (int i = 1; i < 7; ++i) EXPECT_STREQ(receiver.GetZebMaterial()->szText[i], "");
  }
}

TEST(MaterialTravel, NumbersArriveBitByBit) {
  using Limits = std::numeric_limits<double>;
  const double notANumber = std::bit_cast<double>(std::uint64_t{0x7ff8000000abcdef});
  const std::vector<double> numbers{-0.0,          Limits::infinity(), -Limits::infinity(), Limits::denorm_min(),
                                    Limits::max(), Limits::min(),      notANumber,          0.1};
  FakeEngine engine;
  const int header[] = {INT_MAX, INT_MIN, -1, 0, 1, 2};
  std::copy(std::begin(header), std::end(header), std::begin(engine.material.iHeader));
  engine.setTable(17, INT_MIN, INT_MAX, numbers);
  engine.setModel(INT_MIN, INT_MAX, 3, -1, {-0.0, notANumber, Limits::max(), Limits::denorm_min(), 0.1}, notANumber);
  ZEB_MTC& curve = engine.addCurve(INT_MIN, INT_MAX, {{notANumber, {INT_MIN, INT_MAX, -1}, 0.0}});
  std::copy(numbers.begin(), numbers.end(), std::begin(curve.pEntry[0].dValue));
  TwoRanks ranks;
  ranks.input("X");

  const auto bits = [](double value) { return std::bit_cast<std::uint64_t>(value); };
  for (const CZEBKNMaterialParam* param : {&ranks.sender, &ranks.receiver}) {
    const ZebMaterial& material = *param->GetZebMaterial();
    EXPECT_TRUE(std::equal(std::begin(header), std::end(header), std::begin(material.iHeader)));
    EXPECT_EQ(material.table[16].iA, INT_MIN);
    EXPECT_EQ(material.table[16].iB, INT_MAX);
    const ZEB_MTC& copy = *param->GetMtcData(0);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      EXPECT_EQ(bits(material.table[16].pdValue[i]), bits(numbers[i])) << i;
      EXPECT_EQ(bits(copy.pEntry[0].dValue[i]), bits(numbers[i])) << i;
    }
    EXPECT_EQ(bits(copy.pdValue[0]), bits(notANumber));
    EXPECT_EQ(bits(material.pdCoefficient[0]), bits(-0.0));
    EXPECT_EQ(bits(material.pdCoefficient[1]), bits(notANumber));
    EXPECT_EQ(bits(material.dLast), bits(notANumber));
  }
}

TEST(MaterialTravel, LargestCountArrives) {
  constexpr int kLargest = 1'000'000;
  FakeEngine engine;
  std::vector<double> values(kLargest, 0.25);
  values.back() = 0.75;
  engine.setTable(9, 1, 2, values);
  zeb::RecordingCommunicator com(2);
  CZEBKNMaterialParam sender;
  sender.SetInput("X", &com);
  zeb::ReplayingCommunicator replay(com.log(), 1, 2);
  CZEBKNMaterialParam receiver;
  receiver.SetInput("X", &replay);
  const ZebMatParam& table = receiver.GetZebMaterial()->table[8];
  ASSERT_EQ(table.iCount, kLargest);
  EXPECT_EQ(table.pdValue[0], 0.25);
  EXPECT_EQ(table.pdValue[kLargest - 1], 0.75);
}

// --- What every rank holds ---------------------------------------------------------------------------------------

TEST(MaterialOnEachRank, ArraysHaveTheirFullRoom) {
  FakeEngine engine;
  makeOneCoefficientMaterial(engine);
  int engineOwn = 0;
  engine.material.pEngine = &engineOwn;
  TwoRanks ranks;
  ranks.input("PP");
  for (const CZEBKNMaterialParam* param : {&ranks.sender, &ranks.receiver}) {
    ZebMaterial& material = *param->GetZebMaterial();
    EXPECT_EQ(material.pEngine, nullptr);
    for (char* text : material.szText) {
      ASSERT_NE(text, nullptr);
      std::fill_n(text, 255, 'x');
    }
    for (ZebMatParam& table : material.table) {
      ASSERT_NE(table.pdValue, nullptr);
      std::fill_n(table.pdValue, table.iCount + 1, 1.0);
    }
    ASSERT_NE(material.pdCoefficient, nullptr);
    std::fill_n(material.pdCoefficient, 6, 1.0);
  }
}

// --- Objects used again ------------------------------------------------------------------------------------------

TEST(MaterialReuse, FurtherInputsLeaveNothingOfTheEarlierOnAnyRank) {
  TwoRanks reused;
  void (*const makers[])(FakeEngine&) = {makeFiveCoefficientMaterial, makeOneCoefficientMaterial,
                                         makeTwoCoefficientMaterial, [](FakeEngine&) {}, makeFiveCoefficientMaterial};
  for (const auto& make : makers) {
    FakeEngine first;
    make(first);
    reused.input("X");
    FakeEngine second;
    make(second);
    TwoRanks fresh;
    fresh.input("X");
    EXPECT_EQ(reused.calls(), fresh.calls());
    EXPECT_EQ(recordText(reused.receiver), recordText(fresh.receiver));
  }
}

TEST(MaterialReuse, SerialInputAfterAParallelOneMakesNoCall) {
  FakeEngine engine;
  makeFiveCoefficientMaterial(engine);
  Events events;
  WatchedRank com(0, 2, events);
  CZEBKNMaterialParam param;
  param.SetInput("EP", &com);
  events.clear();
  param.SetInput("EP", nullptr);
  EXPECT_TRUE(events.empty());
}

}  // namespace
