// A thousand files without a fault, and a thousand with one.
#include <gtest/gtest.h>

#include <cstdio>

#include "tests/check/CheckSupport.hpp"
#include "tests/check/PlantedFaults.hpp"

namespace {

using namespace zebtest;

constexpr int kFiles = 1000;
constexpr int kCmxEvery = 5;
// Of all faults, and of each kind of fault.
constexpr double kFoundOfAll = 0.95, kFoundOfEach = 0.95;

zeb::FileKind kindOf(const FileOfLines& file) { return file.isCmx ? zeb::FileKind::kCmx : zeb::FileKind::kCmp; }

TEST(RandomFiles, WithoutAFaultAreClean) {
  RandomText random(20240615);
  WellFormedFiles files(random);
  TemporaryFile target("");
  std::set<std::string> sections;
  for (int i = 0; i < kFiles; ++i) {
    const FileOfLines file = files.next(i % kCmxEvery == 0);
    target.write(file.text());
    ASSERT_EQ(told(findingsOf(target.path(), {.kind = kindOf(file)})), "") << "file " << i << "\n" << file.text();
    sections.insert(file.sections.begin(), file.sections.end());
  }
  // Every keyed section of both formats, the head and the three positional ones.
  EXPECT_EQ(sections.size(), files.keyed(false).size() + files.keyed(true).size() + 4);
}

TEST(RandomFiles, WithOneFaultShowItOnTheRightLine) {
  RandomText random(19990321);
  WellFormedFiles files(random);
  FaultPlanter planter(random, files);
  TemporaryFile target("");
  std::map<std::string, std::pair<int, int>> counts;  // by kind: planted, found
  std::map<std::string, std::string> firstMissed;
  int planted = 0, found = 0;
  for (int tries = 0; planted < kFiles; ++tries) {
    ASSERT_LT(tries, 100 * kFiles) << "a fault finds no place";
    const auto& kind = FaultPlanter::kinds()[static_cast<std::size_t>(planted) % FaultPlanter::kinds().size()];
    const FileOfLines file = files.next(random.oneIn(kCmxEvery));
    const auto fault = (planter.*kind.plant)(file);
    if (!fault) continue;
    target.write(fault->content);
    const auto findings = findingsOf(target.path(), {.kind = kindOf(file)});
    const bool isFound = std::any_of(findings.begin(), findings.end(), [&](const zeb::Diagnostic& finding) {
      return fault->lines.count(finding.place.line) > 0 && kind.rules.find(idOf(finding)) != kind.rules.npos;
    });
    ++planted;
    found += isFound ? 1 : 0;
    ++counts[kind.name].first;
    counts[kind.name].second += isFound ? 1 : 0;
    if (!isFound) {
      firstMissed.emplace(kind.name, "expected on line " + std::to_string(*fault->lines.begin()) + ", found:\n" +
                                         told(findings) + "in:\n" + fault->content);
    }
  }
  std::printf("found on the right line: %d of %d\n", found, planted);
  EXPECT_GE(found, kFoundOfAll * planted);
  EXPECT_EQ(counts.size(), FaultPlanter::kinds().size());
  for (const auto& [name, count] : counts) {
    std::printf("  %-32s %3d of %3d\n", name.c_str(), count.second, count.first);
    EXPECT_GE(count.second, kFoundOfEach * count.first) << name << ": " << firstMissed[name];
  }
}

}  // namespace
