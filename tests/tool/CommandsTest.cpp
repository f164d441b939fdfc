// Exit codes, messages and key lines of every command, run as a process.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <nlohmann/json.hpp>

#include "tests/tool/RunTool.hpp"

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;
using zebtest::runTool;
using zebtest::TemporaryFile;
using zebtest::ToolRun;

constexpr const char* kOutlet = "[Outlet]\nAirPressure = 0.2\n[/Outlet]\n";
constexpr const char* kOtherOutlet = "[Outlet]\nIsOutlet = 0\nAirPressure = 0.3\n[/Outlet]\n";
constexpr const char* kMoments =
    "<FILL_OUTPUT_TIMES>\n"
    "FlagFillMultiOutputType = 1\n"
    "ValueNoFillOutputTime = 3\n"
    "1 = 1.0\n"
    "2 = 5.005\n"
    "3 = 9.0\n"
    "</FILL_OUTPUT_TIMES>\n";
const std::string kMaterials = std::string(ZEB_EXAMPLES_DIR) + "/materials";

// --- What cannot be used: exit code 2, nothing on the standard output, a message that names the cause --------------

struct Refusal {
  const char* name;
  std::vector<std::string> arguments;  // FILE and CMX stand for good files, FIFO for a named pipe, FOLDER for a folder
  const char* message;
};

class Refused : public testing::TestWithParam<Refusal> {};

TEST_P(Refused, EndsWithAMessage) {
  const TemporaryFile file(kOutlet);
  const TemporaryFile settings(kMoments, ".cmx");
  const std::string fifo = file.path() + ".fifo";
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  std::vector<std::string> arguments = GetParam().arguments;
  for (std::string& argument : arguments) {
    if (argument == "FILE") argument = file.path();
    if (argument == "CMX") argument = settings.path();
    if (argument == "FIFO") argument = fifo;
    if (argument == "FOLDER") argument = std::filesystem::temp_directory_path().string();
  }
  const ToolRun run = runTool(arguments);
  std::filesystem::remove(fifo);
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.err, HasSubstr(GetParam().message));
}

// So that a failure shows the case's name, not its bytes.
void PrintTo(const Refusal& refusal, std::ostream* out) { *out << refusal.name; }

INSTANTIATE_TEST_SUITE_P(
    Tool, Refused,
    testing::Values(
        Refusal{"NoArguments", {}, "A subcommand is required"}, Refusal{"NoFile", {"show"}, "FILE is required"},
        Refusal{"MissingFile", {"show", "no-such-file.cmp"}, "no-such-file.cmp: no such file"},
        Refusal{"Folder", {"show", "FOLDER"}, "is a directory"},
        Refusal{"NamedPipe", {"show", "FIFO"}, "is not a regular file"},
        Refusal{"Device", {"show", "/dev/null"}, "/dev/null: is not a regular file"},
        Refusal{"UnknownBlock", {"show", "FILE", "--block", "Nope"}, "no block or section is named Nope"},
        Refusal{"UnknownMolding", {"show", "FILE", "--molding", "NOPE"}, "--molding: expects one of IM, FAIM"},
        Refusal{"MoldingCodeTooHigh", {"show", "FILE", "--molding", "15"}, "or a code 0 to 14"},
        Refusal{"MoldingCodeNegative", {"show", "FILE", "--molding=-1"}, "or a code 0 to 14"},
        Refusal{"NoRanks", {"show", "FILE", "--ranks", "0"}, "--ranks"},
        Refusal{"UnknownKind", {"show", "FILE", "--as", "nope"}, "--as"},
        Refusal{"RawWithFormat", {"show", "FILE", "--raw", "--format", "json"}, "--raw excludes --format"},
        Refusal{"CheckMissingFile", {"check", "no-such-file.cmp"}, "no-such-file.cmp: no such file"},
        Refusal{"ExplainUnknownName", {"explain", "FILE", "Nope"}, "no key or member is named Nope"},
        Refusal{"ExplainMissingFile", {"explain", "no-such-file.cmp", "AirPressure"}, "no such file"},
        Refusal{"DiffMissingFile", {"diff", "FILE", "no-such-file.cmp"}, "no-such-file.cmp: no such file"},
        Refusal{"UnknownMaterial", {"material", "nope", "--folder", kMaterials}, "material 'nope' not found"},
        Refusal{"ScheduleOfACmp", {"schedule", "FILE", "--fill-time", "10", "--split", "4"}, "is a CMP file"},
        Refusal{"ScheduleSplit", {"schedule", "CMX", "--fill-time", "10", "--split", "2"}, "at least 3 steps"},
        Refusal{"ScheduleTime", {"schedule", "CMX", "--fill-time", "0", "--split", "4"}, "must be above 0 s"}),
    [](const auto& test) { return std::string(test.param.name); });

TEST(Tool, EmptyFileHoldsTheDefaults) {
  const TemporaryFile file("");
  const ToolRun run = runTool({"show", file.path(), "--changed"});
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr("0 values differ from the default.\n"));
}

TEST(Tool, WritesNoEscapeCodesIntoPipes) {
  const TemporaryFile left(kOutlet), right(kOtherOutlet), moments(kMoments, ".cmx");
  const TemporaryFile unclosed("[Outlet]\nIsOutlet = 1\n");
  const std::vector<std::vector<std::string>> calls{{"show", left.path()},
                                                    {"check", unclosed.path()},
                                                    {"explain", left.path(), "AirPressure"},
                                                    {"diff", left.path(), right.path()},
                                                    {"schedule", moments.path(), "--fill-time", "10", "--split", "4"},
                                                    {"material", "pa66-gf30", "--folder", kMaterials},
                                                    {"list", "AirPressure"},
                                                    {"show", "no-such-file.cmp"}};
  for (const auto& call : calls) {
    const ToolRun run = runTool(call);
    EXPECT_FALSE((run.out + run.err).empty()) << call[0];
    EXPECT_THAT(run.out + run.err, Not(HasSubstr("\x1b"))) << call[0];
  }
}

// --- schedule ----------------------------------------------------------------------------------------------------

TEST(Schedule, MergesTheMomentsOfTheFileWithTheGrid) {
  const TemporaryFile file(kMoments, ".cmx");
  const ToolRun run = runTool({"schedule", file.path(), "--fill-time", "10", "--split", "4", "--format", "json"});
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const json document = json::parse(run.out);
  const std::vector<std::pair<double, int>> expected{{1.0, -1}, {2.5, 0}, {5.0, -2}, {7.5, 0}, {9.0, -3}};
  std::vector<std::pair<double, int>> moments;
  for (const json& entry : document.at("moments")) {
    moments.emplace_back(entry.at("moment").get<double>(), entry.at("source").get<int>());
  }
  EXPECT_EQ(moments, expected);
  EXPECT_EQ(document.at("type"), 1);
}

TEST(Schedule, TellsThatTheListWasCutShort) {
  // 4.0 does not rise above 5.005: it and what follows is left out, the grid moment 7.5 stays the last.
  std::string text = kMoments;
  text.replace(text.find("9.0"), 3, "4.0");
  const TemporaryFile file(text, ".cmx");
  const ToolRun run = runTool({"schedule", file.path(), "--fill-time", "10", "--split", "4"});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_THAT(run.out, HasSubstr("cut short"));
  EXPECT_THAT(run.out, HasSubstr("4 output moments."));
}

// --- material ----------------------------------------------------------------------------------------------------

TEST(Material, RanksHoldTheSameRecord) {
  for (const char* name : {"pa66-gf30", "epoxy-encapsulant"}) {
    const ToolRun run = runTool({"material", name, "--folder", kMaterials, "--ranks", "8"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out.rfind(std::string(name) + "\n", 0), 0u) << run.out.substr(0, 80);
    EXPECT_THAT(run.out, HasSubstr("Loaded on 8 ranks: all hold the same record, tables and curves."));
  }
}

TEST(Material, JsonHoldsTheTextsOfTheFile) {
  const ToolRun run = runTool({"material", kMaterials + "/pa66-gf30.json", "--format", "json"});
  ASSERT_EQ(run.exitCode, 0) << run.err;
  EXPECT_EQ(json::parse(run.out).at("texts").at(0), "PA66-GF30 generic");
}

// --- explain -----------------------------------------------------------------------------------------------------

TEST(Explain, TellsTheLineTheConversionAndTheValue) {
  const TemporaryFile file(kOutlet);
  for (const char* name : {"AirPressure", "m_dAirPressure", "dAirPressure", "Outlet.m_dAirPressure"}) {
    const ToolRun run = runTool({"explain", file.path(), name});
    EXPECT_EQ(run.exitCode, 0) << name << run.err;
    EXPECT_THAT(run.out, HasSubstr("Outlet.m_dAirPressure  key AirPressure  in [Outlet]\n")) << name;
    EXPECT_THAT(run.out, HasSubstr("line 2  AirPressure = 0.2\n")) << name;
    EXPECT_THAT(run.out, HasSubstr("final value  2e+06\n")) << name;
  }
}

// --- diff --------------------------------------------------------------------------------------------------------

TEST(Diff, SameParametersEndWithZero) {
  const TemporaryFile left(kOutlet);
  const TemporaryFile right("\n\n[Outlet]\nAirPressure = 2.0e-1\n[/Outlet]\n");
  const ToolRun run = runTool({"diff", left.path(), right.path()});
  EXPECT_EQ(run.exitCode, 0) << run.out << run.err;
  EXPECT_THAT(run.out, HasSubstr("0 parameters differ.\n"));
}

TEST(Diff, DifferentParametersEndWithOne) {
  const TemporaryFile left(kOutlet), right(kOtherOutlet);
  const ToolRun run = runTool({"diff", left.path(), right.path()});
  EXPECT_EQ(run.exitCode, 1) << run.err;
  EXPECT_THAT(run.out, HasSubstr("Outlet.m_dAirPressure  AirPressure\n  - 2e+06  line 2\n  + 3e+06  line 3\n"));
  EXPECT_THAT(run.out, HasSubstr("1 parameter differs.\n"));
}

TEST(Diff, ComparesMoldingTypesOfOneFile) {
  // 0.05 times 0.02, and the melt-front scheme switched off.
  const TemporaryFile file(kOutlet);
  const ToolRun run = runTool({"diff", file.path(), "--against-molding", "RTM", "--format", "json"});
  ASSERT_EQ(run.exitCode, 1) << run.err;
  const json differences = json::parse(run.out).at("differences");
  ASSERT_EQ(differences.size(), 2u);
  EXPECT_EQ(differences[0].at("member"), "m_ddtNorLowerBound");
  EXPECT_EQ(differences[0].at("b").at("value").get<double>(), 0.05 * 0.02);
  EXPECT_EQ(differences[1].at("member"), "m_iMFTScheme");
  EXPECT_EQ(differences[1].at("b").at("value"), 0);
}

// --- template, check, list ---------------------------------------------------------------------------------------

TEST(Template, ReadsBackAsTheDefaults) {
  struct Kind {
    std::vector<std::string> options;
    const char* extension;
    std::vector<std::string> reading;  // only a CMP file has repairs to switch off
  };
  const std::vector<Kind> kinds{{{"template"}, ".cmp", {"--no-repair"}}, {{"template", "--cmx"}, ".cmx", {}}};
  for (const Kind& kind : kinds) {
    const ToolRun written = runTool(kind.options);
    ASSERT_EQ(written.exitCode, 0) << written.err;
    ASSERT_GT(written.out.size(), 1000u);
    const TemporaryFile file(written.out, kind.extension);
    std::vector<std::string> arguments{"show", file.path(), "--changed"};
    arguments.insert(arguments.end(), kind.reading.begin(), kind.reading.end());
    const ToolRun read = runTool(arguments);
    EXPECT_EQ(read.exitCode, 0) << read.err;
    EXPECT_THAT(read.out, HasSubstr("\n0 values differ from the default.\n")) << kind.extension;
  }
}

TEST(Check, EndsWithZeroWhenCleanAndOneWithFindings) {
  const TemporaryFile clean(kOutlet);
  EXPECT_EQ(runTool({"check", clean.path()}).exitCode, 0);
  const TemporaryFile unclosed("[Outlet]\nIsOutlet = 1\n");
  const ToolRun run = runTool({"check", unclosed.path()});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_THAT(run.out + run.err, HasSubstr(":1:1: warning: [Outlet] is never closed"));
}

TEST(List, EndsWithOneWhereNothingIsFound) {
  EXPECT_EQ(runTool({"list", "AirPressure"}).exitCode, 0);
  const ToolRun run = runTool({"list", "zzzqqq"});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_THAT(run.out, HasSubstr("0 parameters."));
}

}  // namespace
