// The output schedule: how moments and grid are merged, and what is told of it.
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "tests/timing/Merging.hpp"

namespace {

using zebtest::Entries;
using zebtest::feed;
using zebtest::kGridOf10;
using zebtest::merge;
using zebtest::printedBy;
using zebtest::Result;
using zebtest::resultOf;
using zebtest::Timing;

TEST(MultiTimingMerge, MergesGridAndMomentsInAscendingOrder) {
  const Result result = merge(10.0, 4, {1.0, 5.005, 9.0});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.entries, (Entries{{1.0, -1}, {2.5, 0}, {5.0, -2}, {7.5, 0}, {9.0, -3}}));
}

TEST(MultiTimingMerge, WithoutMomentsGivesTheGridWithoutItsLastMoment) {
  EXPECT_EQ(merge(10.0, 4, {}).entries, kGridOf10);
  EXPECT_EQ(merge(3.0, 3, {}).entries, (Entries{{1.0, 0}, {2.0, 0}}));
}

TEST(MultiTimingMerge, MomentAtOrNearAGridMomentMakesOneEntryAtTheGridMoment) {
  // The tolerance is 0.1 % of the span: 0.01, itself excluded.
  for (const double near : {2.5, 2.4901, 2.5099}) {
    EXPECT_EQ(merge(10.0, 4, {near}).entries, (Entries{{2.5, -1}, {5.0, 0}, {7.5, 0}})) << near;
  }
  EXPECT_EQ(merge(10.0, 4, {2.4899}).entries, (Entries{{2.4899, -1}, {2.5, 0}, {5.0, 0}, {7.5, 0}}));
  EXPECT_EQ(merge(10.0, 4, {2.5101}).entries, (Entries{{2.5, 0}, {2.5101, -1}, {5.0, 0}, {7.5, 0}}));
}

TEST(MultiTimingMerge, MomentExactlyOneToleranceAwayStaysAnEntryOfItsOwn) {
  // 1000 makes the tolerance exactly 1.
  EXPECT_EQ(merge(1000.0, 4, {249.0}).entries, (Entries{{249.0, -1}, {250.0, 0}, {500.0, 0}, {750.0, 0}}));
  EXPECT_EQ(merge(1000.0, 4, {251.0}).entries, (Entries{{250.0, 0}, {251.0, -1}, {500.0, 0}, {750.0, 0}}));
}

TEST(MultiTimingMerge, SeveralMomentsAroundOneGridMomentMakeOneEntry) {
  EXPECT_EQ(merge(1000.0, 4, {249.5, 249.75, 250.5}).entries, (Entries{{250.0, -1}, {500.0, 0}, {750.0, 0}}));
  EXPECT_EQ(merge(1000.0, 4, {100.0, 249.5, 250.5}).entries,
            (Entries{{100.0, -1}, {250.0, -2}, {500.0, 0}, {750.0, 0}}));
}

TEST(MultiTimingMerge, OfMomentsJustAboveAGridMomentTwoAreMerged) {
  // The third one is passed on to the next step and found too far from it.
  EXPECT_EQ(merge(1000.0, 4, {250.25, 250.5, 250.75}).entries,
            (Entries{{250.0, -1}, {250.75, -2}, {500.0, 0}, {750.0, 0}}));
  // After a moment below the grid moment only one.
  EXPECT_EQ(merge(1000.0, 4, {249.75, 250.5, 250.75}).entries,
            (Entries{{250.0, -1}, {250.75, -2}, {500.0, 0}, {750.0, 0}}));
}

TEST(MultiTimingMerge, MomentEqualToTheFillingTimeDoesNotAppear) {
  EXPECT_EQ(merge(10.0, 4, {10.0}).entries, kGridOf10);
  EXPECT_EQ(merge(10.0, 4, {4.0, 10.0}).entries, (Entries{{2.5, 0}, {4.0, -1}, {5.0, 0}, {7.5, 0}}));
}

TEST(MultiTimingMerge, ZeroMomentEndsTheList) {
  // Refused with 1, so that ID 2 keeps its 0.0.
  const Result result = merge(10.0, 4, {2.0, 0.0, 3.0});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.entries, (Entries{{2.0, -1}, {2.5, 0}, {5.0, 0}, {7.5, 0}}));
  // On the caller's own scale the 0.0 is stored, with the same outcome.
  EXPECT_EQ(merge(10.0, 4, {2.0, 0.0, 3.0}, static_cast<Timing::FillOutputType>(0)).entries, result.entries);
}

TEST(MultiTimingMerge, DescendingMomentsAreCutWithStatusThree) {
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

TEST(MultiTimingMerge, EqualMomentsAreCutToo) {
  const Result result = merge(10.0, 4, {1.0, 3.0, 3.0, 4.0});
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.entries, (Entries{{1.0, -1}, {2.5, 0}, {3.0, -2}, {5.0, 0}, {7.5, 0}}));
}

TEST(MultiTimingMerge, SecondMergeStartsFromTheShortenedList) {
  Timing timing;
  feed(timing, 10.0, 4, {4.0, 3.0});
  const Result first = resultOf(timing);
  const Result second = resultOf(timing);
  EXPECT_EQ(first.status, 3);
  EXPECT_EQ(second.status, 0);
  EXPECT_EQ(second.entries, first.entries);
}

TEST(MultiTimingMerge, PercentIgnoresTheFillingTime) {
  for (const auto type : {Timing::kPercent, Timing::kPercentOfVolume}) {
    EXPECT_EQ(merge(2.0, 4, {60.0}, type).entries, (Entries{{25.0, 0}, {50.0, 0}, {60.0, -1}, {75.0, 0}})) << type;
  }
}

TEST(MultiTimingMerge, GridIsAccumulatedByRepeatedAddition) {
  const Entries entries = merge(1.0, 10, {}).entries;
  ASSERT_EQ(entries.size(), 9u);
  EXPECT_EQ(entries[7].first, 0.1 + 0.1 + 0.1 + 0.1 + 0.1 + 0.1 + 0.1 + 0.1);
  EXPECT_NE(entries[7].first, 8 * 0.1);
}

TEST(MultiTimingMerge, MomentsAfterTheLastGridMomentAreDropped) {
  const Result result = merge(8.0, 4, {3.0, 9.0, 1e300}, static_cast<Timing::FillOutputType>(9));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.entries, (Entries{{2.0, 0}, {3.0, -1}, {4.0, 0}, {6.0, 0}}));
}

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

}  // namespace
