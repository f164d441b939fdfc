// compparm check as a process: formats, kinds of files, exit codes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "tests/tool/RunTool.hpp"

namespace {

using nlohmann::json;
using testing::HasSubstr;
using zebtest::runTool;
using zebtest::TemporaryFile;
using zebtest::ToolRun;

constexpr const char* kClean = "[Outlet]\nIsOutlet = 1\n[/Outlet]\n";
constexpr const char* kFaulty = "[Outlet]\nIzOutlet = 1\n[/Outlet]\n";
constexpr const char* kFaultyCmx = "<SOLID_FILL>\nValueGravtyX = 1\n</SOLID_FILL>\n";

TEST(CheckCommand, TellsFileLineColumnRuleCaretAndHint) {
  const TemporaryFile file(kFaulty);
  const ToolRun run = runTool({"check", file.path()});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.out, file.path() +
                         ":2:1: warning: 'IzOutlet' is no key of [Outlet] [unknown-key]\n"
                         "  IzOutlet = 1\n  ^\n  hint: did you mean IsOutlet?\n");
}

TEST(CheckCommand, SaysNothingOfACleanFile) {
  const TemporaryFile file(kClean);
  const ToolRun run = runTool({"check", file.path()});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.out + run.err, "");
}

TEST(CheckCommand, ReadsEachFileAsWhatItIs) {
  const TemporaryFile cmp(kFaulty), cmx(kFaultyCmx, ".cmx");
  const ToolRun run = runTool({"check", cmp.path(), cmx.path(), "--format", "json"});
  EXPECT_EQ(run.exitCode, 1);
  const json findings = json::parse(run.out);
  ASSERT_EQ(findings.size(), 2u);
  EXPECT_EQ(findings[0].at("file"), cmp.path());
  EXPECT_EQ(findings[1].at("file"), cmx.path());
  EXPECT_THAT(findings[1].at("hint").get<std::string>(), HasSubstr("ValueGravityX"));
}

TEST(CheckCommand, ReadsAFileAsTold) {
  const TemporaryFile file("[General]\nIsTurbFlow = x\n[/General]\n");
  EXPECT_EQ(runTool({"check", file.path()}).exitCode, 0);
  const ToolRun run = runTool({"check", "--as", "std", file.path()});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_THAT(run.out, HasSubstr("'x' is no int; IsTurbFlow keeps "));
  EXPECT_EQ(runTool({"check", "--as", "nope", file.path()}).exitCode, 2);
  EXPECT_EQ(runTool({"check", "--as", "cmx", "--wax", file.path()}).exitCode, 2);
}

TEST(CheckCommand, ChecksTheOtherFilesWhenOneCannotBeRead) {
  const TemporaryFile file(kFaulty);
  const ToolRun run = runTool({"check", "no-such-file.cmp", file.path()});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_THAT(run.err, HasSubstr("no-such-file.cmp: no such file"));
  EXPECT_THAT(run.out, HasSubstr("[unknown-key]"));
}

TEST(CheckCommand, SwitchesRulesOnAndOff) {
  const TemporaryFile faulty(kFaulty), clean("[ShortShot]\nTimeLimit = 1.1\n[/ShortShot]\n");
  EXPECT_EQ(runTool({"check", "--no-rule", "unknown-key", faulty.path()}).exitCode, 0);
  EXPECT_THAT(runTool({"check", "-W", "equals-default", clean.path()}).out, HasSubstr("[equals-default]"));
  EXPECT_EQ(runTool({"check", "--no-rule", "no-such-rule", faulty.path()}).exitCode, 2);
}

TEST(CheckCommand, ReportsErrorsWhenAsked) {
  const TemporaryFile file(kFaulty);
  const ToolRun run = runTool({"check", "--error-on-warning", file.path()});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_THAT(run.out, HasSubstr(":2:1: error: "));
}

TEST(CheckCommand, RunsForTheMoldingAndMaterialType) {
  const TemporaryFile file("[ShortShot]\nTimeLimit = 2\n[/ShortShot]\n");
  EXPECT_EQ(runTool({"check", file.path()}).exitCode, 0);
  EXPECT_THAT(runTool({"check", "--molding", "GAIM", file.path()}).out, HasSubstr("from 2 to 8 (molding type GAIM)"));
  EXPECT_EQ(runTool({"check", "--molding", "GAIM", "--no-repair", file.path()}).exitCode, 0);
}

TEST(CheckCommand, WritesSarif) {
  const TemporaryFile file(kFaulty);
  const ToolRun run = runTool({"check", "--format", "sarif", file.path()});
  EXPECT_EQ(run.exitCode, 1);
  const json log = json::parse(run.out);
  EXPECT_EQ(log.at("version"), "2.1.0");
  const json& result = log.at("runs").at(0).at("results").at(0);
  EXPECT_EQ(result.at("ruleId"), "unknown-key");
  EXPECT_EQ(result.at("locations").at(0).at("physicalLocation").at("region").at("startLine"), 2);
}

TEST(CheckCommand, PrintsItsManual) {
  const ToolRun run = runTool({"check", "--rules"});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_THAT(run.out, HasSubstr("\n## unknown-key\n"));
  EXPECT_EQ(runTool({"check"}).exitCode, 2);
}

TEST(CheckCommand, KeepsBytesThatAreNotUtf8OutOfJson) {
  const TemporaryFile file("[Outlet]\n\xFF\xFE = 1\n[/Outlet]\n");
  for (const char* format : {"json", "sarif"}) {
    const ToolRun run = runTool({"check", "--format", format, file.path()});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(json::accept(run.out)) << run.out;
  }
}

}  // namespace
