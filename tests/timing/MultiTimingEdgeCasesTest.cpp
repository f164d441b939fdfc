// Corners of the output schedule: moments stored again, refused settings, lists once shortened, results that stay.
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>

#include "tests/timing/Merging.hpp"

namespace {

using zebtest::Entries;
using zebtest::feed;
using zebtest::merge;
using zebtest::printedBy;
using zebtest::Result;
using zebtest::resultOf;
using zebtest::Timing;

static_assert(std::is_same_v<std::underlying_type_t<Timing::FillOutputType>, int>);
static_assert(Timing::kSeconds == 1 && Timing::kPercent == 2 && Timing::kPercentOfVolume == 3);

const Entries kGridOf10{{2.5, 0}, {5.0, 0}, {7.5, 0}};

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

// --- Merging

TEST(MultiTimingMerge, PercentHasATenthOfAPercentAsTolerance) {
  for (const double filling : {0.001, 2.0, 1e6}) {
    EXPECT_EQ(merge(filling, 4, {25.0999}, Timing::kPercent).entries, (Entries{{25.0, -1}, {50.0, 0}, {75.0, 0}}));
    EXPECT_EQ(merge(filling, 4, {25.1001}, Timing::kPercent).entries,
              (Entries{{25.0, 0}, {25.1001, -1}, {50.0, 0}, {75.0, 0}}));
  }
}

TEST(MultiTimingMerge, MomentNearTheEndOfFillingGoesWithIt) {
  EXPECT_EQ(merge(10.0, 4, {9.995}).entries, kGridOf10);
  EXPECT_EQ(merge(10.0, 4, {9.98}).entries, (Entries{{2.5, 0}, {5.0, 0}, {7.5, 0}, {9.98, -1}}));
}

TEST(MultiTimingMerge, ShortenedListTakesNoMoreMoments) {
  Timing descending, ended;
  feed(descending, 10.0, 4, {4.0, 3.0});
  ASSERT_EQ(ended.Input_Step1(10.0, 4, 2, Timing::kSeconds), 0);
  EXPECT_EQ(ended.Input_Step2(1, 4.0), 0);
  for (Timing* timing : {&descending, &ended}) {
    resultOf(*timing);
    EXPECT_EQ(timing->Input_Step2(2, 6.0), 0);
    const Result result = resultOf(*timing);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.entries, (Entries{{2.5, 0}, {4.0, -1}, {5.0, 0}, {7.5, 0}}));
  }
}

TEST(MultiTimingMerge, MomentOfTheShortenedListMayBeReplaced) {
  Timing timing;
  feed(timing, 10.0, 4, {4.0, 3.0});
  resultOf(timing);
  EXPECT_EQ(timing.Input_Step2(1, 6.0), 0);
  EXPECT_EQ(resultOf(timing).entries, (Entries{{2.5, 0}, {5.0, 0}, {6.0, -1}, {7.5, 0}}));
}

TEST(MultiTimingMerge, DebugTextsSaySecondsOnEveryScale) {
  Timing timing;
  feed(timing, 2.0, 3, {50.0}, Timing::kPercent);
  timing.SetDebugMode(true);
  const std::string printed = printedBy([&] { resultOf(timing); });
  EXPECT_EQ(printed,
            "CMX Filling files number =1 (after check)\n"
            "Default F2C files number =3\n"
            "CreateTiming() iTime=1 : 33.3333 sec \n"
            "CreateTiming() iTime=2 : 50 sec (from CMX)\n"
            "CreateTiming() iTime=3 : 66.6667 sec \n");
  EXPECT_EQ(timing.SetDebugMode(false), 0);
  EXPECT_EQ(printedBy([&] { resultOf(timing); }), "");
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

}  // namespace
