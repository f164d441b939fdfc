// Times of readers over the same file in one run, printed as ratios to a floor. The repetitions of all benchmarks are
// interleaved in random order, so that a slow moment of the machine meets them all alike.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "inspect/set/Silence.hpp"

namespace zebbench {

inline double median(std::vector<double> values) {
  if (values.empty()) return 0.0;
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2.0;
}

inline double smallest(const std::vector<double>& values) {
  return values.empty() ? 0.0 : *std::min_element(values.begin(), values.end());
}

/// Keeps the CPU time of each repetition by the benchmark's name; times are nanoseconds.
class Times final : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      m_times[run.run_name.function_name].push_back(run.GetAdjustedCPUTime());
      for (const auto& [name, counter] : run.counters) m_counters[run.run_name.function_name + "/" + name] = counter;
    }
  }

  const std::vector<double>& of(const std::string& name) { return m_times[name]; }
  double medianOf(const std::string& name) { return median(of(name)); }
  double counter(const std::string& name) { return m_counters[name]; }

 private:
  std::map<std::string, std::vector<double>> m_times;
  std::map<std::string, double> m_counters;
};

/// Runs what is registered, silently; Google Benchmark's own flags apply. False when the flags are wrong.
inline bool measure(int argc, char** argv, Times& times) {
  std::vector<std::string> arguments(argv, argv + argc);
  // In front of the caller's own, which win.
  arguments.insert(arguments.begin() + 1, {"--benchmark_enable_random_interleaving=true", "--benchmark_repetitions=15",
                                           "--benchmark_min_time=0.03"});
  std::vector<char*> pointers;
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  int count = static_cast<int>(pointers.size());
  benchmark::Initialize(&count, pointers.data());
  if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) return false;
  const zeb::Silence silence;
  benchmark::RunSpecifiedBenchmarks(&times);
  return true;
}

inline void add(const std::string& name, std::function<void()> work) {
  benchmark::RegisterBenchmark(name.c_str(), [work = std::move(work)](benchmark::State& state) {
    for (auto _ : state) work();
  })->Unit(benchmark::kNanosecond);
}

/// One line of a table: the median time for a file and a line, and the ratios of medians and of fastest times.
inline void printRow(Times& times, const std::string& name, const std::string& floor, std::size_t lines) {
  if (times.of(name).empty()) return;
  const double time = times.medianOf(name);
  std::printf("  %-34s %12.1f us %9.1f ns/line %8.2f x floor %8.2f x (fastest runs)\n", name.c_str(), time / 1e3,
              time / static_cast<double>(lines), time / times.medianOf(floor),
              smallest(times.of(name)) / smallest(times.of(floor)));
}

inline void printGoal(const char* what, double reached, const char* relation, double goal) {
  if (!std::isfinite(reached)) return;  // not measured in this run
  const bool met = relation[0] == '<' ? reached <= goal : reached >= goal;
  std::printf("  %-58s %12.2f   goal %s %g: %s\n", what, reached, relation, goal, met ? "met" : "MISSED");
}

}  // namespace zebbench
