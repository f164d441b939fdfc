// Feeding a schedule, merging it and taking its entries: what the tests of the schedule share.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <utility>
#include <vector>

#include "cmx/COutput_F2C_MultiTiming.h"
#include "tests/support/Printed.hpp"

namespace zebtest {

using Timing = COutput_F2C_MultiTiming;
using Entries = std::vector<std::pair<double, int>>;

/// The output moments of ten seconds in four steps.
inline const Entries kGridOf10{{2.5, 0}, {5.0, 0}, {7.5, 0}};

struct Result {
  int status;
  Entries entries;
};

inline Result resultOf(Timing& timing) {
  int count = -99;
  Result result{timing.Output_Step1(count), {}};
  for (int i = 1; i <= count; ++i) {
    double time = -1.0;
    int source = 99;
    EXPECT_EQ(timing.Output_Step2(i, time, source), 0) << i;
    result.entries.emplace_back(time, source);
  }
  return result;
}

/// The moments get the IDs 1, 2, ...
inline void feed(Timing& timing, double span, int steps, const std::vector<double>& moments,
                 Timing::FillOutputType type = Timing::kSeconds) {
  ASSERT_EQ(timing.Input_Step1(span, steps, static_cast<int>(moments.size()), type), 0);
  for (std::size_t i = 0; i < moments.size(); ++i) timing.Input_Step2(static_cast<int>(i) + 1, moments[i]);
}

inline Result merge(double span, int steps, const std::vector<double>& moments,
                    Timing::FillOutputType type = Timing::kSeconds) {
  Timing timing;
  feed(timing, span, steps, moments, type);
  return resultOf(timing);
}

}  // namespace zebtest
