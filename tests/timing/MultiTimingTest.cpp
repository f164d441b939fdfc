// The output schedule: merge rules, status codes, debug texts and hostile inputs.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <iomanip>
#include <iostream>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "tests/timing/Merging.hpp"

namespace {

using zebtest::Entries;
using zebtest::feed;
using zebtest::merge;
using zebtest::printedBy;
using zebtest::Result;
using zebtest::resultOf;
using zebtest::Timing;

TEST(MultiTiming, MergesGridAndMomentsInAscendingOrder) {
  const Result result = merge(10.0, 4, {1.0, 5.005, 9.0});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.entries, (Entries{{1.0, -1}, {2.5, 0}, {5.0, -2}, {7.5, 0}, {9.0, -3}}));
}

TEST(MultiTiming, WithoutMomentsGivesTheGridWithoutItsLastMoment) {
  EXPECT_EQ(merge(10.0, 4, {}).entries, (Entries{{2.5, 0}, {5.0, 0}, {7.5, 0}}));
  EXPECT_EQ(merge(3.0, 3, {}).entries, (Entries{{1.0, 0}, {2.0, 0}}));
}

TEST(MultiTiming, MomentAtOrNearAGridMomentMakesOneEntryAtTheGridMoment) {
  // The tolerance is 0.1 % of the span: 0.01, itself excluded.
  for (const double near : {2.5, 2.4901, 2.5099}) {
    EXPECT_EQ(merge(10.0, 4, {near}).entries, (Entries{{2.5, -1}, {5.0, 0}, {7.5, 0}})) << near;
  }
  EXPECT_EQ(merge(10.0, 4, {2.4899}).entries, (Entries{{2.4899, -1}, {2.5, 0}, {5.0, 0}, {7.5, 0}}));
  EXPECT_EQ(merge(10.0, 4, {2.5101}).entries, (Entries{{2.5, 0}, {2.5101, -1}, {5.0, 0}, {7.5, 0}}));
}

TEST(MultiTiming, MomentExactlyOneToleranceAwayStaysAnEntryOfItsOwn) {
  // 1000 makes the tolerance exactly 1.
  EXPECT_EQ(merge(1000.0, 4, {249.0}).entries, (Entries{{249.0, -1}, {250.0, 0}, {500.0, 0}, {750.0, 0}}));
  EXPECT_EQ(merge(1000.0, 4, {251.0}).entries, (Entries{{250.0, 0}, {251.0, -1}, {500.0, 0}, {750.0, 0}}));
}

TEST(MultiTiming, SeveralMomentsAroundOneGridMomentMakeOneEntry) {
  EXPECT_EQ(merge(1000.0, 4, {249.5, 249.75, 250.5}).entries, (Entries{{250.0, -1}, {500.0, 0}, {750.0, 0}}));
  EXPECT_EQ(merge(1000.0, 4, {100.0, 249.5, 250.5}).entries,
            (Entries{{100.0, -1}, {250.0, -2}, {500.0, 0}, {750.0, 0}}));
}

TEST(MultiTiming, OfMomentsJustAboveAGridMomentTwoAreMerged) {
  // The third one is passed on to the next step and found too far from it.
  EXPECT_EQ(merge(1000.0, 4, {250.25, 250.5, 250.75}).entries,
            (Entries{{250.0, -1}, {250.75, -2}, {500.0, 0}, {750.0, 0}}));
  // After a moment below the grid moment only one.
  EXPECT_EQ(merge(1000.0, 4, {249.75, 250.5, 250.75}).entries,
            (Entries{{250.0, -1}, {250.75, -2}, {500.0, 0}, {750.0, 0}}));
}

TEST(MultiTiming, MomentEqualToTheFillingTimeDoesNotAppear) {
  EXPECT_EQ(merge(10.0, 4, {10.0}).entries, (Entries{{2.5, 0}, {5.0, 0}, {7.5, 0}}));
  EXPECT_EQ(merge(10.0, 4, {4.0, 10.0}).entries, (Entries{{2.5, 0}, {4.0, -1}, {5.0, 0}, {7.5, 0}}));
}

TEST(MultiTiming, ZeroMomentEndsTheList) {
  // Refused with 1, so that ID 2 keeps its 0.0.
  const Result result = merge(10.0, 4, {2.0, 0.0, 3.0});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.entries, (Entries{{2.0, -1}, {2.5, 0}, {5.0, 0}, {7.5, 0}}));
  // On the caller's own scale the 0.0 is stored, with the same outcome.
  EXPECT_EQ(merge(10.0, 4, {2.0, 0.0, 3.0}, static_cast<Timing::FillOutputType>(0)).entries, result.entries);
}

TEST(MultiTiming, MomentNeverSetEndsTheList) {
  Timing timing;
  ASSERT_EQ(timing.Input_Step1(10.0, 4, 3, Timing::kSeconds), 0);
  EXPECT_EQ(timing.Input_Step2(1, 2.0), 0);
  EXPECT_EQ(timing.Input_Step2(3, 3.0), 0);
  EXPECT_EQ(resultOf(timing).entries, (Entries{{2.0, -1}, {2.5, 0}, {5.0, 0}, {7.5, 0}}));
}

TEST(MultiTiming, DescendingMomentsAreCutWithStatusThree) {
  Timing timing;
  timing.SetDebugMode(true);
  Result result{};
  const std::string printed = printedBy([&] {
    feed(timing, 10.0, 4, {4.0, 3.0});
    result = resultOf(timing);
  });
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.entries, (Entries{{2.5, 0}, {4.0, -1}, {5.0, 0}, {7.5, 0}}));
  EXPECT_EQ(printed,
            "Input CMX multi output timing (ID:1) is greater than next timing. \n"
            "CMX Filling files number =1 (after check)\n"
            "Default F2C files number =4\n"
            "CreateTiming() iTime=1 : 2.5 sec \n"
            "CreateTiming() iTime=2 : 4 sec (from CMX)\n"
            "CreateTiming() iTime=3 : 5 sec \n"
            "CreateTiming() iTime=4 : 7.5 sec \n");
}

TEST(MultiTiming, EqualMomentsAreCutToo) {
  const Result result = merge(10.0, 4, {1.0, 3.0, 3.0, 4.0});
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.entries, (Entries{{1.0, -1}, {2.5, 0}, {3.0, -2}, {5.0, 0}, {7.5, 0}}));
}

TEST(MultiTiming, SecondMergeStartsFromTheShortenedList) {
  Timing timing;
  feed(timing, 10.0, 4, {4.0, 3.0});
  const Result first = resultOf(timing);
  const Result second = resultOf(timing);
  EXPECT_EQ(first.status, 3);
  EXPECT_EQ(second.status, 0);
  EXPECT_EQ(second.entries, first.entries);
}

TEST(MultiTiming, PercentIgnoresTheFillingTime) {
  for (const auto type : {Timing::kPercent, Timing::kPercentOfVolume}) {
    EXPECT_EQ(merge(2.0, 4, {60.0}, type).entries, (Entries{{25.0, 0}, {50.0, 0}, {60.0, -1}, {75.0, 0}})) << type;
  }
}

TEST(MultiTiming, GridIsAccumulatedByRepeatedAddition) {
  const Entries entries = merge(1.0, 10, {}).entries;
  ASSERT_EQ(entries.size(), 9u);
  EXPECT_EQ(entries[7].first, 0.1 + 0.1 + 0.1 + 0.1 + 0.1 + 0.1 + 0.1 + 0.1);
  EXPECT_NE(entries[7].first, 8 * 0.1);
}

TEST(MultiTiming, AskingForAnEntryOutsideTheResultChangesNothing) {
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

TEST(MultiTiming, EntriesBeforeAnyMergeDoNotExist) {
  Timing timing;
  double time = 1.0;
  int source = 1;
  EXPECT_EQ(timing.Output_Step2(1, time, source), 4);
}

TEST(MultiTiming, MomentsAreCheckedByTheScale) {
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

TEST(MultiTiming, OwnScaleSpansTheFillingTime) {
  EXPECT_EQ(merge(8.0, 4, {3.0}, static_cast<Timing::FillOutputType>(9)).entries,
            (Entries{{2.0, 0}, {3.0, -1}, {4.0, 0}, {6.0, 0}}));
}

TEST(MultiTiming, MomentsAfterTheLastGridMomentAreDropped) {
  const Result result = merge(8.0, 4, {3.0, 9.0, 1e300}, static_cast<Timing::FillOutputType>(9));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.entries, (Entries{{2.0, 0}, {3.0, -1}, {4.0, 0}, {6.0, 0}}));
}

TEST(MultiTiming, DebugTextsOfRefusedInputs) {
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

TEST(MultiTiming, WithoutDebugModeNothingIsPrinted) {
  Timing timing;
  EXPECT_EQ(printedBy([&] {
              timing.Input_Step1(10.0, 2, 0, Timing::kSeconds);
              timing.Input_Step1(0.0, 3, 0, Timing::kSeconds);
              feed(timing, 10.0, 4, {4.0, 3.0, 11.0});
              resultOf(timing);
            }),
            "");
}

TEST(MultiTiming, DebugTextsIgnoreTheStreamsFlags) {
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

TEST(MultiTiming, FillingTimeThatIsNoNumberIsRefused) {
  Timing timing;
  EXPECT_EQ(timing.Input_Step1(std::numeric_limits<double>::quiet_NaN(), 3, 0, Timing::kSeconds), -2);
}

TEST(MultiTiming, RefusedFirstStepChangesTheSettingsButNotTheMoments) {
  Timing timing;
  feed(timing, 10.0, 4, {1.0, 2.0});
  EXPECT_EQ(timing.Input_Step1(-1.0, 5, 1, Timing::kPercent), -2);
  const Result result = resultOf(timing);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.entries, (Entries{{1.0, -1}, {20.0, 0}, {40.0, 0}, {60.0, 0}, {80.0, 0}}));
}

TEST(MultiTiming, CountRaisedByARefusedFirstStepReadsNothingBeyondTheMoments) {
  Timing timing;
  feed(timing, 10.0, 4, {1.0, 2.0});
  EXPECT_EQ(timing.Input_Step1(10.0, 2, INT_MAX, Timing::kSeconds), -1);
  EXPECT_EQ(resultOf(timing).entries, (Entries{{1.0, -1}, {2.0, -2}, {5.0, 0}}));
}

TEST(MultiTiming, WithoutSettingsTheCountIsMinusOne) {
  Timing timing;
  int count = 0;
  EXPECT_EQ(timing.Output_Step1(count), 0);
  EXPECT_EQ(count, -1);
  double time = 0.0;
  int source = 0;
  for (const int i : {-1, 0, 1}) EXPECT_EQ(timing.Output_Step2(i, time, source), 4) << i;
}

TEST(MultiTiming, OnlyIdsBelowOneAndAboveANegativeCountAreRefused) {
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

TEST(MultiTiming, HugeCountsAreBounded) {
  Timing timing;
  timing.SetDebugMode(true);
  EXPECT_EQ(printedBy([&] { EXPECT_EQ(timing.Input_Step1(10.0, 3, INT_MAX, Timing::kSeconds), 0); }),
            "Input CMX multi time count is limited to 1000000. (current=2147483647)\n");
  timing.SetDebugMode(false);
  EXPECT_EQ(timing.Input_Step2(INT_MAX, 1.0), 0);
  EXPECT_EQ(timing.Input_Step2(1, 1.0), 0);
  const Result result = resultOf(timing);
  ASSERT_EQ(result.entries.size(), 3u);
  EXPECT_EQ(result.entries[0], std::make_pair(1.0, -1));
}

TEST(MultiTiming, HugeSplitNumbersAreBounded) {
  Timing timing;
  timing.SetDebugMode(true);
  EXPECT_EQ(printedBy([&] { EXPECT_EQ(timing.Input_Step1(10.0, INT_MAX, 0, Timing::kSeconds), 0); }),
            "Default split number is limited to 1000000. (current=2147483647)\n");
  timing.SetDebugMode(false);
  int count = 0;
  EXPECT_EQ(timing.Output_Step1(count), 0);
  EXPECT_EQ(count, 999'999);
  double time = 0.0;
  int source = 1;
  EXPECT_EQ(timing.Output_Step2(count, time, source), 0);
  EXPECT_NEAR(time, 10.0, 1e-4);
}

TEST(MultiTiming, NewFirstStepForgetsTheMoments) {
  Timing timing;
  feed(timing, 10.0, 4, {1.0, 2.0});
  ASSERT_EQ(timing.Input_Step1(10.0, 4, 2, Timing::kSeconds), 0);
  EXPECT_EQ(resultOf(timing).entries, (Entries{{2.5, 0}, {5.0, 0}, {7.5, 0}}));
}

TEST(MultiTiming, CopiesShareTheMomentsAndKeepTheirResults) {
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
