// The schedule compared with a slow formulation that decides the fate of every moment by itself.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "cmx/COutput_F2C_MultiTiming.h"

namespace {

using Timing = COutput_F2C_MultiTiming;

struct Input {
  double fillingTime = 1.0;
  int steps = 3;
  int type = 1;
  std::vector<double> moments;  // of the IDs 1, 2, ...
};

struct Expected {
  int status = 0;
  std::vector<std::pair<double, int>> entries;
};

double spanOf(const Input& input) { return input.type == 2 || input.type == 3 ? 100.0 : input.fillingTime; }

bool isAccepted(const Input& input, double moment) {
  if (input.type < 1 || input.type > 3) return true;
  return 0.0 < moment && moment <= spanOf(input);
}

std::vector<double> gridOf(const Input& input) {
  std::vector<double> grid;
  const double step = spanOf(input) / input.steps;
  for (int i = 0; i < input.steps; ++i) grid.push_back((grid.empty() ? 0.0 : grid.back()) + step);
  return grid;
}

// What is left of the moments: those in front of the first one that is not positive, then those that ascend.
std::vector<double> usable(const Input& input, int& status) {
  std::vector<double> stored;
  for (const double moment : input.moments) stored.push_back(isAccepted(input, moment) ? moment : 0.0);
  stored.erase(std::find_if(stored.begin(), stored.end(), [](double moment) { return !(moment > 0.0); }), stored.end());
  const auto pair = std::adjacent_find(stored.begin(), stored.end(), [](double a, double b) { return !(b > a); });
  status = pair == stored.end() ? 0 : 3;
  if (pair != stored.end()) stored.erase(pair + 1, stored.end());
  return stored;
}

// Each moment ends in one of three ways: absorbed by a grid moment, an entry of its own, or never reached.
//
// Seen from one grid moment t, of the moments not decided yet: those below t are absorbed if they are near, else they
// are entries. Of those at or above t that are near, the first one is absorbed, and the second too unless some were
// below t.
Expected expected(const Input& input) {
  Expected result;
  const std::vector<double> moments = usable(input, result.status);
  const double tolerance = spanOf(input) * 0.001;
  std::vector<bool> decided(moments.size(), false);
  std::vector<std::pair<double, bool>> all;
  for (const double t : gridOf(input)) {
    int below = 0;
    int absorbed = 0;
    for (std::size_t i = 0; i < moments.size(); ++i) {
      if (decided[i] || moments[i] >= t) continue;
      decided[i] = true;
      ++below;
      if (t - moments[i] < tolerance) {
        ++absorbed;
      } else {
        all.emplace_back(moments[i], true);
      }
    }
    int room = below > 0 ? 1 : 2;
    for (std::size_t i = 0; i < moments.size() && room > 0; ++i) {
      if (decided[i] || moments[i] - t >= tolerance) continue;
      decided[i] = true;
      ++absorbed;
      --room;
    }
    all.emplace_back(t, absorbed > 0);
  }
  std::stable_sort(all.begin(), all.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  all.pop_back();
  int source = 0;
  for (const auto& [time, fromCMX] : all) result.entries.emplace_back(time, fromCMX ? --source : 0);
  return result;
}

class InputMaker {
 public:
  Input make() {
    Input input;
    const int types[] = {1, 1, 1, 2, 3, 0, 7};
    input.type = types[pick(7)];
    const double spans[] = {1.0, 10.0, 1000.0, 0.37, 1e-6, 7e8};
    input.fillingTime = pick(3) == 0 ? 0.01 + uniform() * 50.0 : spans[pick(6)];
    // Now and then the grid is finer than the tolerance.
    input.steps = pick(40) == 0 ? 900 + pick(1500) : 3 + pick(25);
    const std::vector<double> grid = gridOf(input);
    const int count = pick(10);
    for (int i = 0; i < count; ++i) input.moments.push_back(moment(input, grid));
    if (pick(8) != 0) std::sort(input.moments.begin(), input.moments.end());
    if (count > 0 && pick(8) == 0) input.moments[static_cast<std::size_t>(pick(count))] = pick(2) == 0 ? 0.0 : -1.0;
    return input;
  }

 private:
  int pick(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
  double uniform() { return static_cast<double>(random_() % 1'000'000) / 1e6; }

  double moment(const Input& input, const std::vector<double>& grid) {
    const double span = spanOf(input);
    const double tolerance = span * 0.001;
    const double t = grid[static_cast<std::size_t>(pick(std::min(static_cast<int>(grid.size()), 6)))];
    switch (pick(6)) {
      case 0:
        return t;
      case 1:
        return t + (pick(2) == 0 ? tolerance : -tolerance);
      case 2:
      case 3:
        return t + (uniform() * 3.0 - 1.5) * tolerance;
      case 4:
        return grid.back() - uniform() * 2.0 * tolerance;
      default:
        return uniform() * span * 1.05;
    }
  }

  std::mt19937_64 random_{20240607};
};

std::string describe(const Input& input) {
  std::string text = "span " + std::to_string(input.fillingTime) + " steps " + std::to_string(input.steps) + " type " +
                     std::to_string(input.type) + " moments";
  for (const double moment : input.moments) text += " " + std::to_string(moment);
  return text;
}

void compare(const Input& input, std::size_t& merged, std::size_t& cut) {
  Timing timing;
  const int count = static_cast<int>(input.moments.size());
  ASSERT_EQ(timing.Input_Step1(input.fillingTime, input.steps, count, static_cast<Timing::FillOutputType>(input.type)),
            0);
  for (int id = 1; id <= count; ++id) {
    const double moment = input.moments[static_cast<std::size_t>(id - 1)];
    ASSERT_EQ(timing.Input_Step2(id, moment), isAccepted(input, moment) ? 0 : 1);
  }
  const Expected want = expected(input);
  int entries = -1;
  ASSERT_EQ(timing.Output_Step1(entries), want.status);
  ASSERT_EQ(entries, static_cast<int>(want.entries.size()));
  const std::vector<double> grid = gridOf(input);
  for (int i = 1; i <= entries; ++i) {
    double time = 0.0;
    int source = 0;
    ASSERT_EQ(timing.Output_Step2(i, time, source), 0);
    ASSERT_EQ(std::make_pair(time, source), want.entries[static_cast<std::size_t>(i - 1)]) << "entry " << i;
    if (source < 0 && std::binary_search(grid.begin(), grid.end(), time)) ++merged;
  }
  if (want.status == 3) ++cut;
}

TEST(MultiTimingOracle, AgreesWithTheSlowFormulationOnRandomInputs) {
  InputMaker maker;
  std::size_t merged = 0;
  std::size_t cut = 0;
  for (int round = 0; round < 120'000; ++round) {
    const Input input = maker.make();
    compare(input, merged, cut);
    if (HasFatalFailure()) FAIL() << "round " << round << ": " << describe(input);
  }
  // The inputs must reach what they are for.
  EXPECT_GT(merged, 50'000u);
  EXPECT_GT(cut, 1'000u);
}

}  // namespace
