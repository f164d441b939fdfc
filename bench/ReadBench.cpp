// Reading time of the library against std::getline, against the keys' plain definition and against INI readers.
#include <cstdlib>
#include <iterator>
#include <string_view>
#include <unordered_map>

#include "bench/BenchFiles.hpp"
#include "bench/PlainReader.hpp"
#include "bench/Ratios.hpp"
#include "frame/CZEBKNCMPCompParm.h"

#if defined(ZEB_BENCH_INIH)
#include <ini.h>
#endif
#if defined(ZEB_BENCH_SIMPLEINI)
#include <SimpleIni.h>
#endif

namespace {

using namespace zebbench;

struct Case {
  std::string name;
  std::string path;
  std::size_t lines;
};

/// Where the INI readers put the numbers: one place per key, found by name.
struct Values {
  std::unordered_map<std::string_view, std::size_t> place;
  std::vector<double> number;
  std::string text;

  Values() : number(generalSection().filter.keys.size()) {
    for (const auto key : generalSection().filter.keys) place.emplace(key, place.size());
  }
};

#if defined(ZEB_BENCH_INIH)
int storePair(void* values, const char*, const char* name, const char* text) {
  auto& target = *static_cast<Values*>(values);
  const auto found = target.place.find(name);
  if (found != target.place.end()) target.number[found->second] = std::strtod(text, nullptr);
  return 1;
}

int ignorePair(void* pairs, const char*, const char*, const char*) {
  ++*static_cast<int*>(pairs);
  return 1;
}
#endif

void addReaders(const Case& file) {
  static CZEBKNCMPCompParm parameters(0, 0);
  static PlainReader plain;
  const std::string path = file.path;
  add(file.name + "/getline", [path] { benchmark::DoNotOptimize(readLines(path)); });
  add(file.name + "/library", [path] { parameters.setSolidFillBlock(path); });
  add(file.name + "/plain", [path] { benchmark::DoNotOptimize(plain.read(path)); });
}

void addIniReaders([[maybe_unused]] const Case& file) {
#if defined(ZEB_BENCH_INIH)
  add(file.name + "/inih", [path = file.path] {
    static Values values;
    ini_parse(path.c_str(), storePair, &values);
    benchmark::DoNotOptimize(values.number.data());
  });
  add(file.name + "/inih-stores-nothing", [path = file.path] {
    int pairs = 0;
    ini_parse(path.c_str(), ignorePair, &pairs);
    benchmark::DoNotOptimize(pairs);
  });
#endif
#if defined(ZEB_BENCH_SIMPLEINI)
  add(file.name + "/SimpleIni", [path = file.path] {
    static Values values;
    CSimpleIniA ini;
    ini.LoadFile(path.c_str());
    const auto keys = generalSection().filter.keys;
    for (std::size_t k = 0; k < keys.size(); ++k) values.number[k] = ini.GetDoubleValue("General", keys[k].data());
    benchmark::DoNotOptimize(values.number.data());
  });
  add(file.name + "/SimpleIni-loads-only", [path = file.path] {
    CSimpleIniA ini;
    ini.LoadFile(path.c_str());
    benchmark::DoNotOptimize(&ini);
  });
#endif
}

const char* const kReaders[] = {
    "getline", "library", "plain", "inih", "inih-stores-nothing", "SimpleIni", "SimpleIni-loads-only"};

void printCase(Times& times, const Case& file) {
  if (times.of(file.name + "/getline").empty()) return;  // filtered out
  std::printf("\n%s, %zu lines\n", file.name.c_str(), file.lines);
  for (const char* reader : kReaders) printRow(times, file.name + "/" + reader, file.name + "/getline", file.lines);
}

}  // namespace

int main(int argc, char** argv) {
  const TemporaryFile pairs(generalSectionText(generalSection().filter.keys.size()));
  const TemporaryFile sections[] = {TemporaryFile(generalSectionText(2'000)), TemporaryFile(generalSectionText(20'000)),
                                    TemporaryFile(generalSectionText(200'000))};
  const Case cases[] = {
      {"realistic", kRealisticFile, linesOf(kRealisticFile).size()},
      {"pairs-121", pairs.path(), linesOf(pairs.path()).size()},
      {"section-2000", sections[0].path(), 2'002},
      {"section-20000", sections[1].path(), 20'002},
      {"section-200000", sections[2].path(), 200'002},
  };
  for (const Case& file : cases) addReaders(file);
  addIniReaders(cases[1]);

  Times times;
  if (!measure(argc, argv, times)) return 1;
  for (const Case& file : cases) printCase(times, file);

  const auto ratio = [&](const std::string& name, const std::string& to) {
    return times.medianOf(name) / times.medianOf(to);
  };
  const double perLineLong = times.medianOf("section-200000/library") / 200'002;
  const double perLineShort = times.medianOf("section-2000/library") / 2'002;
  std::printf("\ngoals\n");
  printGoal("realistic file, library to getline", ratio("realistic/library", "realistic/getline"), "<=", 2.0);
  printGoal("section of 200,000 lines, library to getline", ratio("section-200000/library", "section-200000/getline"),
            "<=", 2.5);
  printGoal("time per line at 200,000 lines to that at 2,000", perLineLong / perLineShort, "<=", 1.1);
#if defined(ZEB_BENCH_INIH)
  printGoal("the same 121 pairs, inih to library", ratio("pairs-121/inih", "pairs-121/library"), ">=", 3.0);
#endif
#if defined(ZEB_BENCH_SIMPLEINI)
  printGoal("the same 121 pairs, SimpleIni to library", ratio("pairs-121/SimpleIni", "pairs-121/library"), ">=", 3.0);
#endif
}
