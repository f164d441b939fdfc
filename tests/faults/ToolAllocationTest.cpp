// Every command where an allocation fails: the result is right, or an error is told and the exit code is 2. A sample of
// the allocations is tried, with ZEB_ALL_FAULTS in the environment each of them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "tests/tool/RunTool.hpp"

namespace {

using zebtest::TemporaryFile;
using zebtest::ToolRun;

using Words = std::vector<std::string>;

constexpr unsigned long kSample = 50;

struct Command {
  const char* name;
  Words words;
};

// So that a failure shows the command's name, not its bytes.
void PrintTo(const Command& command, std::ostream* out) { *out << command.name; }

std::string example(const char* file) { return std::string(ZEB_EXAMPLES_DIR) + "/" + file; }

const std::string kCmp = example("thin-wall-cover/thin-wall-cover.cmp");
const std::string kCmx = example("thin-wall-cover/thin-wall-cover.cmx");
const std::string kBroken = example("broken-cover/broken-cover.cmp");

const Command kCommands[] = {
    {"Version", {"--version"}},
    {"Help", {"check", "--help"}},
    {"Manual", {"manual"}},
    {"Complete", {"complete", "show", "--block", "F"}},
    {"Show", {"show", kCmp}},
    {"ShowViscoelastic", {"show", kCmp, "--viscoelastic", "--block", "VE", "--molding", "RTM", "--material", "1"}},
    {"ShowJson", {"show", kCmp, "--block", "General", "Fiber", "--format", "json"}},
    // Without addresses, which differ from run to run.
    {"ShowRaw", {"show", example("compression-part/compression-part.cmp"), "--raw"}},
    {"ShowRanks", {"show", kCmp, "--ranks", "3"}},
    {"ShowCmx", {"show", kCmx}},
    {"ShowCmxJson", {"show", kCmx, "--changed", "--format", "json"}},
    {"ShowStd", {"show", kCmp, "--as", "std"}},
    {"ShowWrongBlock", {"show", kCmp, "--block", "Genral"}},
    {"Check", {"check", kCmp, "--viscoelastic"}},
    {"CheckBroken", {"check", kBroken, kCmx}},
    {"CheckJson", {"check", kBroken, "--format", "json"}},
    {"CheckSarif", {"check", kBroken, "--format", "sarif"}},
    {"CheckRules", {"check", "--rules"}},
    {"Explain", {"explain", kCmp, "AirPressure"}},
    {"ExplainJson", {"explain", kCmp, "AirPressure", "--format", "json"}},
    {"Diff", {"diff", kCmp, example("rtm-panel/rtm-panel.cmp")}},
    {"DiffJson", {"diff", kBroken, example("standard-flow/standard-flow.cmp"), "--format", "json"}},
    {"List", {"list", "outlet"}},
    {"ListJson", {"list", "outlet", "pressure", "--format", "json"}},
    {"ListMarkdown", {"list", "foam", "--format", "markdown"}},
    {"Template", {"template", "--molding", "RTM", "--sections", "General", "VER"}},
    {"TemplateCmx", {"template", "--as", "cmx"}},
    {"Schedule", {"schedule", kCmx, "--fill-time", "1.2", "--split", "10"}},
    {"ScheduleJson", {"schedule", kCmx, "--fill-time", "1.2", "--split", "10", "--format", "json"}},
    {"SchedulePlot", {"schedule", kCmx, "--fill-time", "1.2", "--split", "10", "--format", "plot"}},
    {"Material", {"material", "pa66-gf30", "--folder", zebtest::kMaterials}},
    {"MaterialJson", {"material", "epoxy-encapsulant", "--folder", zebtest::kMaterials, "--format", "json"}},
    {"MaterialRanks", {"material", "pa66-gf30", "--folder", zebtest::kMaterials, "--ranks", "3"}},
    {"MaterialMissing", {"material", "pa6", "--folder", zebtest::kMaterials}},
};

ToolRun runFailing(const Words& words, const std::string& allocation) {
  setenv("ZEB_FAIL_ALLOCATION", allocation.c_str(), 1);
  return zebtest::runProgram(ZEB_FAULTS, words);
}

bool isError(const ToolRun& run) { return run.exitCode == 2 && run.err.starts_with("compparm: "); }

bool isSame(const ToolRun& a, const ToolRun& b) { return a.exitCode == b.exitCode && a.out == b.out && a.err == b.err; }

class FailingAllocation : public testing::TestWithParam<Command> {
 protected:
  void SetUp() override {
    setenv("ZEB_COUNT_ALLOCATIONS", m_count.path().c_str(), 1);
    m_expected = runFailing(words(), "0");
    m_allocations = std::stoul(zebtest::contentOf(m_count.path()));
    unsetenv("ZEB_COUNT_ALLOCATIONS");
  }

  const Words& words() const { return GetParam().words; }

  void failEach(const std::string& suffix) {
    const unsigned long step = std::getenv("ZEB_ALL_FAULTS") != nullptr ? 1 : std::max(m_allocations / kSample, 1ul);
    for (unsigned long number = 1; number <= m_allocations; number += step) {
      const std::string allocation = std::to_string(number) + suffix;
      const ToolRun run = runFailing(words(), allocation);
      if (isSame(run, m_expected) || isError(run)) continue;
      ADD_FAILURE() << "ZEB_FAIL_ALLOCATION=" << allocation << " of " << m_allocations << ": exit code " << run.exitCode
                    << ", " << run.out.size() << " of " << m_expected.out.size() << " bytes\n"
                    << run.err;
    }
  }

  TemporaryFile m_count{"0"};
  ToolRun m_expected;
  unsigned long m_allocations = 0;
};

TEST_P(FailingAllocation, AloneGivesTheResultOrAnError) {
  ASSERT_GT(m_allocations, 1000u);
  failEach("");
}

TEST_P(FailingAllocation, AndAllLaterOnesGiveAnError) { failEach("+"); }

INSTANTIATE_TEST_SUITE_P(Tool, FailingAllocation, testing::ValuesIn(kCommands),
                         [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace
