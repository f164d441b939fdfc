// The output schedule: which moments and settings it takes, and how long results stay.
#include <gtest/gtest.h>

#include <climits>
#include <iomanip>
#include <iostream>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "tests/timing/Merging.hpp"

namespace {

using namespace zebtest;

static_assert(std::is_same_v<std::underlying_type_t<Timing::FillOutputType>, int>);
static_assert(Timing::kSeconds == 1 && Timing::kPercent == 2 && Timing::kPercentOfVolume == 3);

// --- Moments

TEST(MultiTimingInput, MomentsMayComeInAnyOrderOfTheirIdsAndAgain) {
  Timing timing;
  ASSERT_EQ(timing.Input_Step1(10.0, 4, 3, Timing::kSeconds), 0);
  EXPECT_EQ(timing.Input_Step2(3, 9.0), 0);
  EXPECT_EQ(timing.Input_Step2(1, 8.0), 0);
  EXPECT_EQ(timing.Input_Step2(2, 6.0), 0);
  EXPECT_EQ(timing.Input_Step2(1, 1.0), 0);
  EXPECT_EQ(resultOf(timing).entries, (Entries{{1.0, -1}, {2.5, 0}, {5.0, 0}, {6.0, -2}, {7.5, 0}, {9.0, -3}}));
}

TEST(MultiTimingInput, RefusedMomentLeavesTheStoredOne) {
  Timing timing;
  feed(timing, 10.0, 4, {2.0});
  for (const double refused : {0.0, -1.0, 10.5}) EXPECT_EQ(timing.Input_Step2(1, refused), 1);
  EXPECT_EQ(resultOf(timing).entries, (Entries{{2.0, -1}, {2.5, 0}, {5.0, 0}, {7.5, 0}}));
}

TEST(MultiTimingInput, RangeIsTestedBeforeTheId) {
  Timing timing;
  timing.SetDebugMode(true);
  ASSERT_EQ(timing.Input_Step1(10.0, 4, -5, Timing::kSeconds), 0);
  EXPECT_EQ(printedBy([&] { EXPECT_EQ(timing.Input_Step2(-1, 10.5), 1); }),
            "Input CMX multi time(10.5) is out of range. \n");
}

TEST(MultiTimingInput, OnTheOwnScaleANotANumberEndsTheListAndInfinityIsNeverReached) {
  const auto own = static_cast<Timing::FillOutputType>(9);
  const Entries expected{{2.0, 0}, {3.0, -1}, {4.0, 0}, {6.0, 0}};
  for (const double last :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), -5.0, 0.0}) {
    const Result result = merge(8.0, 4, {3.0, last}, own);
    EXPECT_EQ(result.status, 0) << last;
    EXPECT_EQ(result.entries, expected) << last;
  }
}

TEST(MultiTimingInput, ListWhoseFirstMomentIsMissingIsEmpty) {
  Timing timing;
  ASSERT_EQ(timing.Input_Step1(10.0, 4, 2, Timing::kSeconds), 0);
  EXPECT_EQ(timing.Input_Step2(2, 3.0), 0);
  const Result result = resultOf(timing);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.entries, kGridOf10);
}

TEST(MultiTimingInput, MomentsAreCheckedByTheScale) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const struct {
    int type;
    double time;
    int status;
  } cases[] = {
      {1, 0.0, 1},   {1, -1.0, 1}, {1, 10.0, 0},    {1, 10.001, 1}, {1, 1e-300, 0}, {1, nan, 1},   {2, 0.0, 1},
      {2, 100.0, 0}, {2, 11.0, 0}, {2, 100.001, 1}, {2, nan, 1},    {3, 0.0, 1},    {3, 100.0, 0}, {3, 100.1, 1},
      {0, 0.0, 0},   {0, -5.0, 0}, {0, 1e9, 0},     {4, -5.0, 0},   {-1, 1e9, 0},   {4, nan, 0},
  };
  for (const auto& c : cases) {
    Timing timing;
    ASSERT_EQ(timing.Input_Step1(10.0, 4, 1, static_cast<Timing::FillOutputType>(c.type)), 0);
    EXPECT_EQ(timing.Input_Step2(1, c.time), c.status) << "type " << c.type << " time " << c.time;
  }
}

TEST(MultiTimingInput, DebugTextsOfRefusedInputs) {
  Timing timing;
  EXPECT_EQ(timing.SetDebugMode(true), 0);
  const auto split = printedBy([&] { EXPECT_EQ(timing.Input_Step1(10.0, 2, 0, Timing::kSeconds), -1); });
  EXPECT_EQ(split, "Default split number should be greater than 2. (current=2)\n");
  const auto time = printedBy([&] { EXPECT_EQ(timing.Input_Step1(-0.5, 3, 0, Timing::kSeconds), -2); });
  EXPECT_EQ(time, "Filling time should be greater than zero. (current=-0.5)\n");
  const auto both = printedBy([&] { EXPECT_EQ(timing.Input_Step1(0.0, -7, 0, Timing::kSeconds), -1); });
  EXPECT_EQ(both, "Default split number should be greater than 2. (current=-7)\n");
  ASSERT_EQ(timing.Input_Step1(10.0, 3, -5, Timing::kSeconds), 0);
  const auto range = printedBy([&] { EXPECT_EQ(timing.Input_Step2(1, 10.5), 1); });
  EXPECT_EQ(range, "Input CMX multi time(10.5) is out of range. \n");
  const auto id = printedBy([&] { EXPECT_EQ(timing.Input_Step2(-1, 1.0), 2); });
  EXPECT_EQ(id, "Input CMX multi time ID (-1) is out of range. \n");
  const auto entry = printedBy([&] {
    double moment = 0.0;
    int source = 0;
    EXPECT_EQ(timing.Output_Step2(0, moment, source), 4);
  });
  EXPECT_EQ(entry, "");
}

TEST(MultiTimingInput, WithoutDebugModeNothingIsPrinted) {
  Timing timing;
  EXPECT_EQ(printedBy([&] {
              timing.Input_Step1(10.0, 2, 0, Timing::kSeconds);
              timing.Input_Step1(0.0, 3, 0, Timing::kSeconds);
              feed(timing, 10.0, 4, {4.0, 3.0, 11.0});
              resultOf(timing);
            }),
            "");
}

TEST(MultiTimingInput, DebugTextsIgnoreTheStreamsFlags) {
  Timing timing;
  timing.SetDebugMode(true);
  std::ios saved(nullptr);
  saved.copyfmt(std::cout);
  const std::string printed = printedBy([&] {
    std::cout << std::hex << std::showpos << std::fixed << std::setprecision(1) << std::setfill('*') << std::setw(30);
    timing.Input_Step1(1.0 / 3.0, 12, 0, Timing::kSeconds);
    timing.Input_Step2(1, 1234567.0);
    timing.Input_Step1(1.0, 1, 0, Timing::kSeconds);
  });
  std::cout.copyfmt(saved);
  EXPECT_EQ(printed,
            "Input CMX multi time(1.23457e+06) is out of range. \n"
            "Default split number should be greater than 2. (current=1)\n");
}

TEST(MultiTimingInput, OnlyIdsBelowOneAndAboveANegativeCountAreRefused) {
  const struct {
    int count, id, status;
  } cases[] = {{-5, -4, 2}, {-5, 0, 2}, {-5, -5, 0}, {-5, 1, 0}, {INT_MIN, 0, 2}, {0, 0, 0},
               {0, 1, 0},   {3, 0, 0},  {3, -1, 0},  {3, 4, 0},  {3, INT_MAX, 0}, {3, INT_MIN, 0}};
  for (const auto& c : cases) {
    Timing timing;
    ASSERT_EQ(timing.Input_Step1(10.0, 4, c.count, Timing::kSeconds), 0);
    EXPECT_EQ(timing.Input_Step2(c.id, 1.0), c.status) << "count " << c.count << " id " << c.id;
    EXPECT_EQ(resultOf(timing).entries, (Entries{{2.5, 0}, {5.0, 0}, {7.5, 0}})) << c.count << " id " << c.id;
  }
}

// Both with and without debug mode, which says no more about it.
class MultiTimingLimit : public testing::TestWithParam<bool> {
 protected:
  MultiTimingLimit() { m_timing.SetDebugMode(GetParam()); }
  std::string printedByStep1(double time, int steps, int count, int status = 0) {
    return printedBy([&] { EXPECT_EQ(m_timing.Input_Step1(time, steps, count, Timing::kSeconds), status); });
  }

  Timing m_timing;
};

TEST_P(MultiTimingLimit, HugeCountsAreBounded) {
  EXPECT_EQ(printedByStep1(10.0, 3, 1'000'000), "");
  EXPECT_EQ(m_timing.Input_Step2(1'000'000, 1.0), 0);
  for (const int count : {1'000'001, INT_MAX}) {
    EXPECT_EQ(printedByStep1(10.0, 3, count),
              "Input CMX multi time count is limited to 1000000. (current=" + std::to_string(count) + ")\n");
  }
  m_timing.SetDebugMode(false);
  EXPECT_EQ(m_timing.Input_Step2(1'000'001, 1.0), 0);
  EXPECT_EQ(m_timing.Input_Step2(INT_MAX, 1.0), 0);
  EXPECT_EQ(m_timing.Input_Step2(1, 1.0), 0);
  const Result result = resultOf(m_timing);
  ASSERT_EQ(result.entries.size(), 3u);
  EXPECT_EQ(result.entries[0], std::make_pair(1.0, -1));
}

TEST_P(MultiTimingLimit, TheLastMomentThatIsKeptIsTheMillionth) {
  constexpr int kCount = 1'000'002;
  EXPECT_NE(printedByStep1(2.0 * kCount, 3, kCount), "");
  m_timing.SetDebugMode(false);
  for (int id = 1; id <= kCount; ++id) ASSERT_EQ(m_timing.Input_Step2(id, id), 0);
  int entries = 0;
  EXPECT_EQ(m_timing.Output_Step1(entries), 0);
  double time = 0.0;
  int source = 0;
  ASSERT_EQ(m_timing.Output_Step2(entries, time, source), 0);
  EXPECT_EQ(source, 0) << "the second grid moment lies behind the file's last";
  ASSERT_EQ(m_timing.Output_Step2(entries - 1, time, source), 0);
  EXPECT_EQ(time, 1e6);
}

TEST_P(MultiTimingLimit, HugeSplitNumbersAreBounded) {
  EXPECT_EQ(printedByStep1(10.0, 1'000'000, 0), "");
  for (const int steps : {1'000'001, INT_MAX}) {
    EXPECT_EQ(printedByStep1(10.0, steps, 0),
              "Default split number is limited to 1000000. (current=" + std::to_string(steps) + ")\n");
  }
  m_timing.SetDebugMode(false);
  int count = 0;
  EXPECT_EQ(m_timing.Output_Step1(count), 0);
  EXPECT_EQ(count, 999'999);
  double time = 0.0;
  int source = 1;
  EXPECT_EQ(m_timing.Output_Step2(1, time, source), 0);
  EXPECT_EQ(time, 10.0 / 1'000'000);
  EXPECT_EQ(m_timing.Output_Step2(count, time, source), 0);
  EXPECT_NEAR(time, 10.0, 1e-4);
}

TEST_P(MultiTimingLimit, AGridOfARefusedTimeIsBoundedAndToldToo) {
  const std::string told = "Default split number is limited to 1000000. (current=1000001)\n";
  const std::string refused = "Filling time should be greater than zero. (current=0)\n";
  EXPECT_EQ(printedByStep1(0.0, 1'000'001, 0, -2), GetParam() ? told + refused : told);
}

INSTANTIATE_TEST_SUITE_P(DebugMode, MultiTimingLimit, testing::Bool());

TEST(MultiTimingInput, NewFirstStepForgetsTheMoments) {
  Timing timing;
  feed(timing, 10.0, 4, {1.0, 2.0});
  ASSERT_EQ(timing.Input_Step1(10.0, 4, 2, Timing::kSeconds), 0);
  EXPECT_EQ(resultOf(timing).entries, (Entries{{2.5, 0}, {5.0, 0}, {7.5, 0}}));
}

// --- Settings that were refused are stored nevertheless

TEST(MultiTimingRefused, SplitNumberMakesItsGrid) {
  const struct { int steps, count; } cases[] = {{2, 1}, {1, 0}, {0, -1}, {-7, -1}};
  for (const auto& c : cases) {
    Timing timing;
    EXPECT_EQ(timing.Input_Step1(10.0, c.steps, 5, Timing::kSeconds), -1) << c.steps;
    int count = 99;
    EXPECT_EQ(timing.Output_Step1(count), 0) << c.steps;
    EXPECT_EQ(count, c.count) << c.steps;
  }
}

TEST(MultiTimingRefused, FillingTimeIsTheSpan) {
  Timing timing;
  feed(timing, 10.0, 4, {1.0});
  EXPECT_EQ(timing.Input_Step1(0.0, 4, 1, Timing::kSeconds), -2);
  EXPECT_EQ(resultOf(timing).entries, (Entries{{0.0, 0}, {0.0, 0}, {0.0, 0}}));
  EXPECT_EQ(timing.Input_Step1(-8.0, 4, 1, Timing::kSeconds), -2);
  EXPECT_EQ(resultOf(timing).entries, (Entries{{-2.0, 0}, {-4.0, 0}, {-6.0, 0}}));
}

TEST(MultiTimingRefused, TypeDecidesTheRange) {
  Timing timing;
  feed(timing, 10.0, 4, {1.0});
  EXPECT_EQ(timing.Input_Step1(10.0, 2, 1, Timing::kPercent), -1);
  EXPECT_EQ(timing.Input_Step2(1, 60.0), 0);
  EXPECT_EQ(resultOf(timing).entries, (Entries{{50.0, 0}, {60.0, -1}}));
}

TEST(MultiTimingRefused, FillingTimeThatIsNoNumberIsRefused) {
  Timing timing;
  EXPECT_EQ(timing.Input_Step1(std::numeric_limits<double>::quiet_NaN(), 3, 0, Timing::kSeconds), -2);
}

TEST(MultiTimingRefused, RefusedFirstStepChangesTheSettingsButNotTheMoments) {
  Timing timing;
  feed(timing, 10.0, 4, {1.0, 2.0});
  EXPECT_EQ(timing.Input_Step1(-1.0, 5, 1, Timing::kPercent), -2);
  const Result result = resultOf(timing);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.entries, (Entries{{1.0, -1}, {20.0, 0}, {40.0, 0}, {60.0, 0}, {80.0, 0}}));
}

TEST(MultiTimingRefused, CountRaisedByARefusedFirstStepReadsNothingBeyondTheMoments) {
  Timing timing;
  feed(timing, 10.0, 4, {1.0, 2.0});
  EXPECT_EQ(timing.Input_Step1(10.0, 2, INT_MAX, Timing::kSeconds), -1);
  EXPECT_EQ(resultOf(timing).entries, (Entries{{1.0, -1}, {2.0, -2}, {5.0, 0}}));
}

// --- Results

TEST(MultiTimingResult, StaysUntilTheNextMerge) {
  Timing timing;
  feed(timing, 10.0, 4, {1.0});
  ASSERT_EQ(resultOf(timing).entries.size(), 4u);
  EXPECT_EQ(timing.Input_Step1(100.0, 5, 0, Timing::kSeconds), 0);
  double time = 0.0;
  int source = 0;
  EXPECT_EQ(timing.Output_Step2(4, time, source), 0);
  EXPECT_EQ(time, 7.5);
  EXPECT_EQ(timing.Output_Step2(1, time, source), 0);
  EXPECT_EQ(time, 1.0);
  EXPECT_EQ(source, -1);
}

TEST(MultiTimingResult, GoesWithACopy) {
  Timing original, assigned;
  feed(original, 10.0, 4, {1.0});
  resultOf(original);
  const Timing copied(original);
  assigned = original;
  feed(original, 20.0, 4, {});
  EXPECT_EQ(resultOf(original).entries, (Entries{{5.0, 0}, {10.0, 0}, {15.0, 0}}));
  for (const Timing* copy : {&copied, static_cast<const Timing*>(&assigned)}) {
    double time = 0.0;
    int source = 0;
    EXPECT_EQ(copy->Output_Step2(1, time, source), 0);
    EXPECT_EQ(time, 1.0);
    EXPECT_EQ(source, -1);
    EXPECT_EQ(copy->Output_Step2(5, time, source), 4);
  }
}

TEST(MultiTimingResult, AskingForAnEntryOutsideTheResultChangesNothing) {
  Timing timing;
  feed(timing, 10.0, 4, {});
  ASSERT_EQ(resultOf(timing).entries.size(), 3u);
  for (const int i : {0, -1, 4, INT_MAX, INT_MIN}) {
    double time = 12.5;
    int source = 77;
    EXPECT_EQ(timing.Output_Step2(i, time, source), 4) << i;
    EXPECT_EQ(time, 12.5);
    EXPECT_EQ(source, 77);
  }
}

TEST(MultiTimingResult, EntriesBeforeAnyMergeDoNotExist) {
  Timing timing;
  double time = 1.0;
  int source = 1;
  EXPECT_EQ(timing.Output_Step2(1, time, source), 4);
}

TEST(MultiTimingResult, WithoutSettingsTheCountIsMinusOne) {
  Timing timing;
  int count = 0;
  EXPECT_EQ(timing.Output_Step1(count), 0);
  EXPECT_EQ(count, -1);
  double time = 0.0;
  int source = 0;
  for (const int i : {-1, 0, 1}) EXPECT_EQ(timing.Output_Step2(i, time, source), 4) << i;
}

TEST(MultiTimingResult, CopiesShareTheMomentsAndKeepTheirResults) {
  Timing assigned;
  {
    Timing original;
    feed(original, 10.0, 4, {1.0, 0.0});
    assigned = original;
    Timing copied(original);
    EXPECT_EQ(original.Input_Step2(2, 2.0), 0);
    EXPECT_EQ(resultOf(copied).entries, (Entries{{1.0, -1}, {2.0, -2}, {2.5, 0}, {5.0, 0}, {7.5, 0}}));
  }
  EXPECT_EQ(resultOf(assigned).entries, (Entries{{1.0, -1}, {2.0, -2}, {2.5, 0}, {5.0, 0}, {7.5, 0}}));
  Timing& self = assigned;
  assigned = self;
  double time = 0.0;
  int source = 0;
  EXPECT_EQ(assigned.Output_Step2(2, time, source), 0);
  EXPECT_EQ(time, 2.0);
}

}  // namespace
