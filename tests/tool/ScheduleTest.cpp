// The merged output moments as text, JSON and time line.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/tool/RunTool.hpp"

namespace {

using nlohmann::json;
using testing::HasSubstr;
using zebtest::runTool;
using zebtest::TemporaryFile;
using zebtest::ToolRun;

struct Moment {
  double moment;
  int source;
  bool merged;
  bool operator==(const Moment&) const = default;
};

void PrintTo(const Moment& moment, std::ostream* out) {
  *out << moment.moment << " (" << moment.source << (moment.merged ? ", merged)" : ")");
}

std::string settings(const std::vector<std::string>& moments, int type = 1) {
  std::string text = "<FILL_OUTPUT_TIMES>\nFlagFillMultiOutputType = " + std::to_string(type) +
                     "\nValueNoFillOutputTime = " + std::to_string(moments.size()) + "\n";
  for (std::size_t i = 0; i < moments.size(); ++i) text += std::to_string(i + 1) + " = " + moments[i] + "\n";
  return text + "</FILL_OUTPUT_TIMES>\n";
}

// Over 10 s in 4 steps, where the arguments do not say otherwise.
ToolRun schedule(const std::string& text, const std::vector<std::string>& more = {}) {
  const TemporaryFile file(text, ".cmx");
  std::vector<std::string> arguments{"schedule", file.path(), "--fill-time", "10", "--split", "4"};
  arguments.insert(arguments.end(), more.begin(), more.end());
  return runTool(arguments);
}

std::vector<Moment> momentsOf(const json& document) {
  std::vector<Moment> moments;
  for (const json& entry : document.at("moments")) {
    moments.push_back(
        {entry.at("moment").get<double>(), entry.at("source").get<int>(), entry.at("merged").get<bool>()});
  }
  return moments;
}

TEST(Schedule, MergesTheMomentsOfTheFileWithTheGrid) {
  const ToolRun run = schedule(settings({"1.0", "5.005", "9.0"}), {"--format", "json"});
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const json document = json::parse(run.out);
  const std::vector<Moment> expected{
      {1.0, -1, false}, {2.5, 0, false}, {5.0, -2, true}, {7.5, 0, false}, {9.0, -3, false}};
  EXPECT_EQ(momentsOf(document), expected);
  EXPECT_EQ(document.at("type"), 1);
  EXPECT_EQ(document.at("withoutEntry"), 0);
}

TEST(Schedule, JsonHoldsAMomentThatIsNoNumberAsText) {
  const json document = json::parse(schedule(settings({"1.0", "inf"}), {"--format", "json"}).out);
  EXPECT_EQ(document.at("cmxMoments"), json({1.0, "inf"}));
}

TEST(Schedule, MarksAMomentThatEqualsTheGridsAsMerged) {
  const json document = json::parse(schedule(settings({"2.5"}), {"--format", "json"}).out);
  const std::vector<Moment> expected{{2.5, -1, true}, {5.0, 0, false}, {7.5, 0, false}};
  EXPECT_EQ(momentsOf(document), expected);
}

TEST(Schedule, CountsMomentsWithoutAnEntryOfTheirOwn) {
  // 4.995 and 5.005 share the grid's 5.0; 10 is the end of filling.
  const ToolRun run = schedule(settings({"4.995", "5.005", "10.0"}));
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr("2 moments of the file have no entry of their own"));
  const json document = json::parse(schedule(settings({"4.995", "5.005", "10.0"}), {"--format", "json"}).out);
  const std::vector<Moment> expected{{2.5, 0, false}, {5.0, -1, true}, {7.5, 0, false}};
  EXPECT_EQ(momentsOf(document), expected);
  EXPECT_EQ(document.at("withoutEntry"), 2);
}

TEST(Schedule, TakesPercentsOverTheWholeSpan) {
  const json document = json::parse(schedule(settings({"30"}, 2), {"--format", "json"}).out);
  const std::vector<Moment> expected{{25, 0, false}, {30, -1, false}, {50, 0, false}, {75, 0, false}};
  EXPECT_EQ(momentsOf(document), expected);
  EXPECT_EQ(document.at("unit"), "%");
}

TEST(Schedule, TextNamesEachSource) {
  const ToolRun run = schedule(settings({"1.0", "5.005", "9.0"}));
  ASSERT_EQ(run.exitCode, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr("type 1, seconds of filling, filling time 10 s, grid of 4 steps of 2.5 s, 3 moments"));
  EXPECT_THAT(run.out, HasSubstr("\n  1  1 s             CMX 1\n"
                                 "  2  2.5 s           grid\n"
                                 "  3  5 s             CMX 2, merged into the grid\n"
                                 "  4  7.5 s           grid\n"
                                 "  5  9 s             CMX 3\n\n"
                                 "5 output moments. The end of filling is not among them.\n"));
}

TEST(Schedule, PlotIsToScale) {
  // 72 columns for 10 s: 1 s falls on column 7, 2.5 s on 18, 5 s on 36, 7.5 s on 54, 9 s on 65.
  const ToolRun run = schedule(settings({"1.0", "5.005", "9.0"}), {"--format", "plot"});
  ASSERT_EQ(run.exitCode, 0) << run.err;
  std::string cmx(66, ' '), grid(55, ' ');
  cmx[7] = cmx[65] = 'o';
  cmx[36] = '*';
  grid[18] = grid[36] = grid[54] = '|';
  EXPECT_THAT(run.out, HasSubstr("  CMX   " + cmx + "\n  grid  " + grid + "\n        +-----------------+-"));
}

TEST(Schedule, TellsThatTheListWasCutShort) {
  // 4.0 does not rise above 5.005: it and what follows is left out, the grid moment 7.5 stays the last.
  const ToolRun run = schedule(settings({"1.0", "5.005", "4.0"}));
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_THAT(run.out, HasSubstr("moment 3 of the file (4) is not above the one before it (5.005)"));
  EXPECT_THAT(run.out, HasSubstr("4 output moments."));
  const ToolRun beyond = schedule(settings({"2.0", "11", "12"}));
  EXPECT_EQ(beyond.exitCode, 1);
  EXPECT_THAT(beyond.out, HasSubstr("moment 2 of the file (11) lies outside (0, 10 s]: it and all behind it are left "
                                    "out (2 of 3)"));
}

}  // namespace
