// The tool on the ranks of an MPI job: one output, one exit code, and no rank that waits for one that has failed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/tool/RunTool.hpp"

namespace {

using testing::HasSubstr;
using zebtest::kMaterials;
using zebtest::ToolRun;

using Words = std::vector<std::string>;

std::string example(const char* file) { return std::string(ZEB_EXAMPLES_DIR) + "/" + file; }

const std::string kCmp = example("rtm-panel/rtm-panel.cmp");
const std::string kCmx = example("thin-wall-cover/thin-wall-cover.cmx");

// "-n RANKS PROGRAM WORD..."
Words launch(int ranks, const Words& program, const Words& words) {
  Words all{"-n", std::to_string(ranks)};
  all.insert(all.end(), program.begin(), program.end());
  all.insert(all.end(), words.begin(), words.end());
  return all;
}

ToolRun runOnRanks(int ranks, const Words& words) {
  return zebtest::runProgram(ZEB_MPIRUN, launch(ranks, {ZEB_COMPPARM}, words));
}

// The launcher has more to say.
int errorsIn(const std::string& text) {
  const std::vector<std::string> lines = zebtest::linesOf(text);
  return static_cast<int>(
      std::count_if(lines.begin(), lines.end(), [](const auto& line) { return line.starts_with("compparm: "); }));
}

class CommandOnRanks : public testing::TestWithParam<Words> {};

TEST_P(CommandOnRanks, TellsEverythingOnce) {
  const ToolRun single = zebtest::runTool(GetParam());
  const ToolRun ranks = runOnRanks(3, GetParam());
  EXPECT_EQ(ranks.out, single.out);
  EXPECT_EQ(ranks.exitCode, single.exitCode);
  EXPECT_EQ(errorsIn(ranks.err), errorsIn(single.err)) << ranks.err;
}

INSTANTIATE_TEST_SUITE_P(Tool, CommandOnRanks,
                         testing::Values(Words{"check", example("broken-cover/broken-cover.cmp"), kCmp},
                                         Words{"check", "no-such-file.cmp"}, Words{"explain", kCmp, "VentMode"},
                                         Words{"diff", kCmp, "--against-molding", "RTM"}, Words{"list", "outlet"},
                                         Words{"template", "--sections", "Outlet"},
                                         Words{"schedule", kCmx, "--fill-time", "1.2", "--split", "10"},
                                         Words{"show", "no-such-file.cmp"}, Words{"show", kCmp, "--block", "Nope"},
                                         Words{"show", kCmp, "--raw"}, Words{"material", "nope"}),
                         [](const auto& test) { return test.param[0] + std::to_string(test.index); });

TEST(OnRanks, ComparesWhatAllHold) {
  ToolRun run = runOnRanks(4, {"show", kCmp, "--changed"});
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr("Read on 4 ranks: all hold the same values.\n"));
  run = runOnRanks(4, {"material", "pa66-gf30", "--folder", kMaterials});
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr("Loaded on 4 ranks: all hold the same record"));
}

// Of three ranks, one has no memory from an allocation on: before MPI begins, while it reads, in the end.
TEST(OnRanks, AllEndWhereOneFails) {
  const Words show{"show", kCmp};
  for (const char* allocation : {"10", "1500", "2000", "2500", "3000", "3500", "4000+"}) {
    const Words failing = {"env", std::string("ZEB_FAIL_ALLOCATION=") + allocation, ZEB_FAULTS};
    for (const bool isFirst : {true, false}) {
      Words words = isFirst ? launch(1, failing, show) : launch(2, {ZEB_COMPPARM}, show);
      const Words others = isFirst ? launch(2, {ZEB_COMPPARM}, show) : launch(1, failing, show);
      words.emplace_back(":");
      words.insert(words.end(), others.begin(), others.end());
      const ToolRun run = zebtest::runProgram(ZEB_MPIRUN, words);
      EXPECT_EQ(run.exitCode, 2) << allocation << (isFirst ? " on the first rank\n" : " on the last rank\n") << run.err;
      EXPECT_THAT(run.err, HasSubstr("compparm: not enough memory\n"));
    }
  }
}

TEST(OnRanks, OneProcessThatIsAskedToBeARankIsAll) {
  const ToolRun run = zebtest::runTool({"show", kCmp, "--mpi"});
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_EQ(run.out, zebtest::runTool({"show", kCmp}).out);
}

// As under the launcher of another MPI: each process finds itself alone.
class Launcher : public testing::TestWithParam<const char*> {};

TEST_P(Launcher, IsRecognised) {
  const ToolRun run = zebtest::runProgram("/usr/bin/env", {GetParam(), ZEB_COMPPARM, "check", kCmp});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.err,
              HasSubstr("compparm: started on 4 ranks by the launcher of another MPI than it was built for\n"));
}

INSTANTIATE_TEST_SUITE_P(Tool, Launcher,
                         testing::Values("OMPI_COMM_WORLD_SIZE=4", "PMI_SIZE=4", "MPI_LOCALNRANKS=4", "PMIX_RANK=3"),
                         [](const auto& test) {
                           const std::string variable = test.param;
                           return variable.substr(0, variable.find('='));
                         });

}  // namespace
