// The output schedule's operations in any order with any arguments, step by step against a plain model.
//
// The bytes are operations and their arguments, see run(). Sizes around a million, which are slow, come only in inputs
// that start with "LARGE" and whose bytes add up to a multiple of 64: else most of the time would go into them.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <numeric>

#include "cmx/COutput_F2C_MultiTiming.h"
#include "fuzz/FuzzSupport.hpp"

namespace {

using namespace zebfuzz;
using Timing = COutput_F2C_MultiTiming;

constexpr int kMostEntries = 1'000'000;
constexpr std::string_view kLargeSizes = "LARGE";
constexpr int kMostWork = 300;  // grid steps and printed lines of one run

std::size_t at(int i) { return static_cast<std::size_t>(i); }

// The schedule as its rules stand, one after the other. Copies share the arrays, as those of the class do.
struct PlainSchedule {
  double fillingTime = 0.0;
  int splitNumber = 0;
  int cmxCount = 0;
  int type = 1;
  std::shared_ptr<std::vector<double>> cmx;
  int outputCount = 0;
  std::vector<double> times;
  std::vector<int> sources;

  int inputStep1(double time, int split, int count, int newType) {
    fillingTime = time;
    splitNumber = split;
    cmxCount = count;
    type = newType;
    if (split < 3) return -1;
    if (!(time > 0.0)) return -2;
    cmx = std::make_shared<std::vector<double>>(at(std::clamp(count, 0, kMostEntries) + 1), 0.0);
    return 0;
  }

  int inputStep2(int id, double time) {
    if (type >= 1 && type <= 3) {
      const double largest = type == 1 ? fillingTime : 100.0;
      if (!(time > 0.0) || time > largest) return 1;
    }
    if (id < 1 && id > cmxCount) return 2;
    if (cmx != nullptr && id >= 1 && at(id) < cmx->size()) (*cmx)[at(id)] = time;
    return 0;
  }

  int outputStep1() {
    const int status = shorten();
    merge();
    return status;
  }

 private:
  int shorten() {
    int run = 0;
    while (run < cmxCount && cmx != nullptr && at(run) + 1 < cmx->size() && (*cmx)[at(run + 1)] > 0.0) ++run;
    cmxCount = run;
    for (int k = 1; k <= cmxCount - 1; ++k) {
      if ((*cmx)[at(k + 1)] > (*cmx)[at(k)]) continue;
      cmxCount = k;
      return 3;
    }
    return 0;
  }

  void merge() {
    const int steps = std::min(splitNumber, kMostEntries);
    const double span = type == 2 || type == 3 ? 100.0 : fillingTime;
    const double tolerance = span * 0.001;
    const double step = steps == 0 ? 0.0 : span / steps;
    std::vector<double> moments{0.0};
    std::vector<int> marks{0};
    int j = 1;
    bool merged = false;
    double t = 0.0;
    for (int number = 1; number <= steps; ++number) {
      t = t + step;
      if (j <= cmxCount && std::fabs(t - (*cmx)[at(j)]) < tolerance) {
        j = j + 1;
        merged = true;
      }
      while (j <= cmxCount && (*cmx)[at(j)] < t) {
        if (std::fabs(t - (*cmx)[at(j)]) >= tolerance) {
          moments.push_back((*cmx)[at(j)]);
          marks.push_back(1);
        } else {
          merged = true;
        }
        j = j + 1;
      }
      moments.push_back(t);
      if (j <= cmxCount && std::fabs(t - (*cmx)[at(j)]) < tolerance) {
        j = j + 1;
        marks.push_back(1);
        merged = false;
      } else if (merged) {
        marks.push_back(1);
        merged = false;
      } else {
        marks.push_back(0);
      }
    }
    outputCount = static_cast<int>(moments.size()) - 2;
    times = moments;
    sources.assign(moments.size(), 0);
    int counter = 0;
    for (int i = 1; i <= outputCount; ++i) {
      if (marks[at(i)] == 1) sources[at(i)] = --counter;
    }
  }
};

bool same(double a, double b) { return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b); }

struct Pair {
  Timing timing;
  PlainSchedule plain;

  void inputStep1(double time, int split, int count, int type) {
    require(timing.Input_Step1(time, split, count, static_cast<Timing::FillOutputType>(type)) ==
                plain.inputStep1(time, split, count, type),
            "Input_Step1: status");
  }

  void inputStep2(int id, double time) {
    require(timing.Input_Step2(id, time) == plain.inputStep2(id, time), "Input_Step2: status");
  }

  void outputStep1() {
    int count = -99;
    require(timing.Output_Step1(count) == plain.outputStep1(), "Output_Step1: status");
    require(count == plain.outputCount, "Output_Step1: number of entries");
    for (int i = 1; i <= count; ++i) outputStep2(i);
  }

  void outputStep2(int i) {
    double time = -7.0;
    int source = -7;
    const bool exists = i >= 1 && i <= plain.outputCount;
    require(timing.Output_Step2(i, time, source) == (exists ? 0 : 4), "Output_Step2: status");
    require(same(time, exists ? plain.times[at(i)] : -7.0), "Output_Step2: moment");
    require(source == (exists ? plain.sources[at(i)] : -7), "Output_Step2: source");
  }
};

double span(unsigned choice) {
  constexpr double kSpans[] = {1.0, 10.0, 4.0, 0.37, 1e-6, 7e8, 100.0, 1e-310, 1e308, 0.0, -1.0};
  if (choice < std::size(kSpans)) return kSpans[choice];
  return choice * 0.25;
}

// A moment near a grid moment: a sixteenth of the tolerance is the unit.
double nearGrid(const PlainSchedule& plain, unsigned number, unsigned offset) {
  const double whole = plain.type == 2 || plain.type == 3 ? 100.0 : plain.fillingTime;
  const double step = plain.splitNumber > 0 ? whole / plain.splitNumber : whole;
  return step * number + (static_cast<int>(offset) - 128) * whole * 0.001 / 16.0;
}

int size(unsigned choice, bool large) {
  constexpr int kSizes[] = {std::numeric_limits<int>::min(), -1, 999, 1000, 500, 0, 1, 2};
  constexpr int kLarge[] = {std::numeric_limits<int>::max(), kMostEntries, kMostEntries + 1, kMostEntries - 1};
  if (large && choice >= 250) return kLarge[choice % 4];
  return choice < 240 ? static_cast<int>(choice % 64) : kSizes[choice % 8];
}

bool mayBeLarge(std::string_view input) {
  const auto sum = std::accumulate(input.begin(), input.end(), 0u,
                                   [](unsigned total, char c) { return total + static_cast<unsigned char>(c); });
  return input.starts_with(kLargeSizes) && sum % 64 == 0;
}

void run(Bytes bytes) {
  const bool large = mayBeLarge(bytes.rest());
  if (large) bytes = bytes.behind(kLargeSizes.size());
  Pair first, second;
  bool prints = false;
  int work = 0;
  while (!bytes.empty() && work < kMostWork) {
    switch (bytes.byte() % 10) {
      case 0:
      case 1: {
        const double time = span(bytes.byte());
        const int split = size(bytes.byte(), large), count = size(bytes.byte(), large);
        first.inputStep1(time, split, count, static_cast<int>(bytes.byte() % 6) - 1);
        break;
      }
      case 2: {
        const int id = static_cast<int>(bytes.byte() % 64);
        const unsigned number = bytes.byte();
        first.inputStep2(id, nearGrid(first.plain, number, bytes.byte()));
        break;
      }
      case 3: {
        const unsigned from = bytes.byte() % 32, offset = bytes.byte();
        for (unsigned i = 0; i < bytes.rest().size() % 8; ++i) {
          first.inputStep2(static_cast<int>(i + 1), nearGrid(first.plain, from + i, offset));
        }
        break;
      }
      case 4: {
        const int id = bytes.int32();
        first.inputStep2(id, bytes.real());
        break;
      }
      case 5:
        first.outputStep1();
        work += std::clamp(first.plain.splitNumber, 20, kMostEntries) * (prints ? 4 : 1);
        break;
      case 6:
        first.outputStep2(bytes.int32());
        break;
      case 7:
        prints = !large && bytes.byte() % 2 == 1;
        require(first.timing.SetDebugMode(prints) == 0 && second.timing.SetDebugMode(prints) == 0, "SetDebugMode");
        break;
      case 8:
        second = first;
        break;
      default: {
        const double time = bytes.real();
        const int split = size(bytes.byte(), false), count = size(bytes.byte(), false);
        first.inputStep1(time, split, count, bytes.int32());
        std::swap(first, second);
      }
    }
  }
  first.outputStep1();
}

}  // namespace

void zebfuzz::checkInput(Bytes bytes) { run(bytes); }
