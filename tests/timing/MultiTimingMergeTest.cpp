// The output schedule: how moments and grid are merged, and what is told of it.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/timing/Merging.hpp"

namespace {

using namespace zebtest;

constexpr auto kOwnScale = static_cast<Timing::FillOutputType>(9);

struct Merge {
  const char* name;
  double span;
  int steps;
  std::vector<double> moments;
  Entries entries;
  Timing::FillOutputType type = Timing::kSeconds;
  int status = 0;
};

void PrintTo(const Merge& test, std::ostream* out) { *out << test.name; }

class MultiTimingMerge : public testing::TestWithParam<Merge> {};

TEST_P(MultiTimingMerge, GivesTheseEntries) {
  const Merge& test = GetParam();
  const Result result = merge(test.span, test.steps, test.moments, test.type);
  EXPECT_EQ(result.status, test.status);
  EXPECT_EQ(result.entries, test.entries);
}

const Entries kAt2{{2.5, -1}, {5.0, 0}, {7.5, 0}}, kAt250{{250.0, -1}, {250.75, -2}, {500.0, 0}, {750.0, 0}},
    kOf60{{25.0, 0}, {50.0, 0}, {60.0, -1}, {75.0, 0}}, kOf25{{25.0, -1}, {50.0, 0}, {75.0, 0}},
    kUpTo2{{2.0, -1}, {2.5, 0}, {5.0, 0}, {7.5, 0}};

// The tolerance is 0.1 % of the span, itself excluded: 0.01 of 10, 1 of 1000.
INSTANTIATE_TEST_SUITE_P(
    Lists, MultiTimingMerge,
    testing::Values(Merge{"AscendsThroughGridAndMoments",
                          10.0,
                          4,
                          {1.0, 5.005, 9.0},
                          {{1.0, -1}, {2.5, 0}, {5.0, -2}, {7.5, 0}, {9.0, -3}}},
                    Merge{"WithoutMomentsIsTheGridWithoutItsLast", 10.0, 4, {}, kGridOf10},
                    Merge{"WithoutMomentsOfThreeSteps", 3.0, 3, {}, {{1.0, 0}, {2.0, 0}}},
                    Merge{"AtAGridMoment", 10.0, 4, {2.5}, kAt2},
                    Merge{"JustBelowAGridMoment", 10.0, 4, {2.4901}, kAt2},
                    Merge{"JustAboveAGridMoment", 10.0, 4, {2.5099}, kAt2},
                    Merge{"TooFarBelowAGridMoment", 10.0, 4, {2.4899}, {{2.4899, -1}, {2.5, 0}, {5.0, 0}, {7.5, 0}}},
                    Merge{"TooFarAboveAGridMoment", 10.0, 4, {2.5101}, {{2.5, 0}, {2.5101, -1}, {5.0, 0}, {7.5, 0}}},
                    Merge{"OneToleranceBelow", 1000.0, 4, {249.0}, {{249.0, -1}, {250.0, 0}, {500.0, 0}, {750.0, 0}}},
                    Merge{"OneToleranceAbove", 1000.0, 4, {251.0}, {{250.0, 0}, {251.0, -1}, {500.0, 0}, {750.0, 0}}},
                    Merge{"SeveralAroundOne", 1000.0, 4, {249.5, 249.75, 250.5}, {{250.0, -1}, {500.0, 0}, {750.0, 0}}},
                    Merge{"SeveralAroundOneBehindAnother",
                          1000.0,
                          4,
                          {100.0, 249.5, 250.5},
                          {{100.0, -1}, {250.0, -2}, {500.0, 0}, {750.0, 0}}},
                    // The third one is passed on to the next step and found too far from it.
                    Merge{"OfThreeJustAboveTwoAreMerged", 1000.0, 4, {250.25, 250.5, 250.75}, kAt250},
                    Merge{"BehindOneBelowOnlyOneJustAboveIs", 1000.0, 4, {249.75, 250.5, 250.75}, kAt250},
                    Merge{"TheFillingTimeDoesNotAppear", 10.0, 4, {10.0}, kGridOf10},
                    Merge{
                        "TheFillingTimeBehindAnother", 10.0, 4, {4.0, 10.0}, {{2.5, 0}, {4.0, -1}, {5.0, 0}, {7.5, 0}}},
                    Merge{"NearTheEndOfFillingGoesWithIt", 10.0, 4, {9.995}, kGridOf10},
                    Merge{"BeforeTheEndOfFilling", 10.0, 4, {9.98}, {{2.5, 0}, {5.0, 0}, {7.5, 0}, {9.98, -1}}},
                    Merge{"AZeroThatIsRefusedEndsTheList", 10.0, 4, {2.0, 0.0, 3.0}, kUpTo2},
                    Merge{"AZeroOfTheOwnScaleEndsTheList", 10.0, 4, {2.0, 0.0, 3.0}, kUpTo2, kOwnScale},
                    Merge{"EqualMomentsAreCut",
                          10.0,
                          4,
                          {1.0, 3.0, 3.0, 4.0},
                          {{1.0, -1}, {2.5, 0}, {3.0, -2}, {5.0, 0}, {7.5, 0}},
                          Timing::kSeconds,
                          3},
                    Merge{"BehindTheLastGridMomentIsDropped",
                          8.0,
                          4,
                          {3.0, 9.0, 1e300},
                          {{2.0, 0}, {3.0, -1}, {4.0, 0}, {6.0, 0}},
                          kOwnScale},
                    Merge{"PercentIgnoresTheFillingTime", 2.0, 4, {60.0}, kOf60, Timing::kPercent},
                    Merge{"PercentOfVolumeDoesToo", 2.0, 4, {60.0}, kOf60, Timing::kPercentOfVolume},
                    Merge{"PercentWithinATenthOfAShortFilling", 0.001, 4, {25.0999}, kOf25, Timing::kPercent},
                    Merge{"PercentWithinATenthOfALongFilling", 1e6, 4, {25.0999}, kOf25, Timing::kPercent},
                    Merge{"PercentBeyondATenth",
                          1e6,
                          4,
                          {25.1001},
                          {{25.0, 0}, {25.1001, -1}, {50.0, 0}, {75.0, 0}},
                          Timing::kPercent}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(MultiTimingMerging, DescendingMomentsAreCutWithStatusThree) {
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

TEST(MultiTimingMerging, SecondMergeStartsFromTheShortenedList) {
  Timing timing;
  feed(timing, 10.0, 4, {4.0, 3.0});
  const Result first = resultOf(timing);
  const Result second = resultOf(timing);
  EXPECT_EQ(first.status, 3);
  EXPECT_EQ(second.status, 0);
  EXPECT_EQ(second.entries, first.entries);
}

TEST(MultiTimingMerging, GridIsAccumulatedByRepeatedAddition) {
  const Entries entries = merge(1.0, 10, {}).entries;
  ASSERT_EQ(entries.size(), 9u);
  EXPECT_EQ(entries[7].first, 0.1 + 0.1 + 0.1 + 0.1 + 0.1 + 0.1 + 0.1 + 0.1);
  EXPECT_NE(entries[7].first, 8 * 0.1);
}

TEST(MultiTimingMerging, ShortenedListTakesNoMoreMoments) {
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

TEST(MultiTimingMerging, MomentOfTheShortenedListMayBeReplaced) {
  Timing timing;
  feed(timing, 10.0, 4, {4.0, 3.0});
  resultOf(timing);
  EXPECT_EQ(timing.Input_Step2(1, 6.0), 0);
  EXPECT_EQ(resultOf(timing).entries, (Entries{{2.5, 0}, {5.0, 0}, {6.0, -1}, {7.5, 0}}));
}

TEST(MultiTimingMerging, DebugTextsSaySecondsOnEveryScale) {
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
