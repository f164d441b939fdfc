// Does one piece of work N times: the difference of two runs under an instruction counter is the exact cost of the
// work, without the program's start. See the script `instructions`.
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "bench/BenchFiles.hpp"
#include "bench/PlainReader.hpp"
#include "bench/Ratios.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/Silence.hpp"

namespace {

using namespace zebbench;

constexpr const char* kUsage =
    "usage: CountedRead WORK FILE N\n"
    "  WORK  getline, library, plain, construct, construct-and-read, or lines (prints the file's number of lines)\n"
    "  FILE  realistic, pairs, section, all-sections, or a path\n";

std::optional<TemporaryFile> madeFile;

std::string pathOf(std::string_view name) {
  if (name == "realistic") return kRealisticFile;
  if (name == "pairs") {
    madeFile.emplace(generalSectionText(generalSection().filter.keys.size()));
  } else if (name == "section") {
    madeFile.emplace(generalSectionText(2'000));
  } else if (name == "all-sections") {
    madeFile.emplace(shortenedText(kLargestExample, 600));
  } else {
    return std::string(name);
  }
  return madeFile->path();
}

bool run(std::string_view work, const std::string& path, long count) {
  const zeb::Silence silence;
  CZEBKNCMPCompParm parameters(0, 0);
  PlainReader plain;
  for (; count > 0; --count) {
    if (work == "getline") {
      benchmark::DoNotOptimize(readLines(path));
    } else if (work == "library") {
      parameters.setSolidFillBlock(path);
    } else if (work == "plain") {
      benchmark::DoNotOptimize(plain.read(path));
    } else if (work == "construct") {
      CZEBKNCMPCompParm fresh(0, 0);
      benchmark::DoNotOptimize(&fresh);
    } else if (work == "construct-and-read") {
      CZEBKNCMPCompParm fresh(0, 0);
      fresh.setSolidFillBlock(path);
    } else {
      return false;
    }
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 4) {
    const std::string path = pathOf(argv[2]);
    if (std::string_view(argv[1]) == "lines") {
      std::printf("%zu\n", linesOf(path).size());
      return 0;
    }
    if (run(argv[1], path, std::strtol(argv[3], nullptr, 10))) return 0;
  }
  std::fputs(kUsage, stderr);
  return 2;
}
