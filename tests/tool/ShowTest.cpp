// What `show` prints: values, defaults, origins, both formats, and the goldens of the complete examples.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>
#include <sstream>

#include "tests/tool/RunTool.hpp"

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::Not;
using zebtest::runTool;
using zebtest::TemporaryFile;
using zebtest::ToolRun;

// 0.2 MPa are 2e6 dyn/cm^2. The time limit stands at its default: a line, yet no change.
constexpr const char* kSmallFile =
    "[Outlet]\n"
    "AirPressure = 0.2\n"
    "[/Outlet]\n"
    "[ShortShot]\n"
    "TimeLimit = 1.1\n"
    "FRLimit = 0.001\n"
    "[/ShortShot]\n"
    "[FIBER_ARD]\n"
    "b1 = 0.25\n"
    "[/FIBER_ARD]\n";

json parsed(const ToolRun& run) {
  const json document = json::parse(run.out, nullptr, false);
  EXPECT_FALSE(document.is_discarded()) << "no JSON: " << run.out;
  return document;
}

/// Members by "Block.member".
std::map<std::string, json> membersOf(const json& document) {
  std::map<std::string, json> members;
  for (const json& block : document.at("blocks")) {
    for (const json& member : block.at("members")) {
      members[block.at("block").get<std::string>() + "." + member.at("member").get<std::string>()] = member;
    }
  }
  return members;
}

std::map<std::string, double> changedValues(std::vector<std::string> arguments) {
  arguments.insert(arguments.end(), {"--changed", "--format", "json"});
  const ToolRun run = runTool(arguments);
  EXPECT_EQ(run.exitCode, 0) << run.err;
  std::map<std::string, double> values;
  for (const auto& [name, member] : membersOf(parsed(run))) values[name] = member.at("value").get<double>();
  return values;
}

TEST(Show, JsonHoldsValueDefaultAndOrigin) {
  const TemporaryFile file(kSmallFile);
  const ToolRun run = runTool({"show", file.path(), "--format", "json"});
  ASSERT_EQ(run.exitCode, 0) << run.err;
  const json document = parsed(run);
  EXPECT_EQ(document.at("file"), file.path());
  EXPECT_EQ(document.at("kind"), "cmp");
  EXPECT_EQ(document.at("molding"), "IM");
  EXPECT_EQ(document.at("material"), 0);

  const auto members = membersOf(document);
  const json& read = members.at("Outlet.m_dAirPressure");
  EXPECT_EQ(read.at("value").get<double>(), 0.2 * 1e7);
  EXPECT_EQ(read.at("default").get<double>(), 0.0);
  EXPECT_EQ(read.at("key"), "AirPressure");
  EXPECT_EQ(read.at("origin").at("kind"), "file");
  EXPECT_EQ(read.at("origin").at("line"), 2);

  const json& untouched = members.at("Outlet.m_iIsOutlet");
  EXPECT_EQ(untouched.at("value"), 0);
  EXPECT_EQ(untouched.at("default"), 0);
  EXPECT_EQ(untouched.at("origin").at("kind"), "default");

  // A line that repeats the default is the origin all the same.
  const json& repeated = members.at("ShortShot.m_dTimeLimit");
  EXPECT_EQ(repeated.at("value").get<double>(), 1.1);
  EXPECT_EQ(repeated.at("origin").at("line"), 5);
}

TEST(Show, JsonHoldsAsTextsOnlyTheElementsThatAreNoNumbers) {
  const TemporaryFile file(
      "<FILL_OUTPUT_TIMES>\nValueNoFillOutputTime = 4\n1 = 0.5\n2 = inf\n3 = nan\n4 = 2\n</FILL_OUTPUT_TIMES>\n",
      ".cmx");
  const auto members = membersOf(parsed(runTool({"show", file.path(), "--format", "json"})));
  EXPECT_EQ(members.at("FILL_OUTPUT_TIMES.m_pOutTimeStep").at("value"), json({0.5, "inf", "nan", 2}));
}

TEST(Show, ChangedHoldsExactlyWhatDiffers) {
  const TemporaryFile file(kSmallFile);
  const std::map<std::string, double> expected{
      {"Outlet.m_dAirPressure", 2e6}, {"ShortShot.m_dFRLimit", 0.001}, {"Fiber.m_FIBER_ARD_db1", 0.25}};
  EXPECT_EQ(changedValues({"show", file.path()}), expected);
  const ToolRun text = runTool({"show", file.path(), "--changed"});
  EXPECT_THAT(text.out, HasSubstr("\n3 values differ from the default.\n"));
  EXPECT_THAT(text.out, Not(HasSubstr("m_dTimeLimit")));
}

TEST(Show, TextTellsValueLineAndDefault) {
  const TemporaryFile file(kSmallFile);
  const ToolRun run = runTool({"show", file.path(), "--block", "Outlet"});
  ASSERT_EQ(run.exitCode, 0) << run.err;
  EXPECT_THAT(run.out, testing::ContainsRegex("m_iIsOutlet +0 +default\n"));
  EXPECT_THAT(run.out, testing::ContainsRegex("m_dAirPressure +2e[+]06 +line 2 [(]default 0[)]\n"));
  EXPECT_THAT(run.out, HasSubstr("1 value differs from the default.\n"));
  EXPECT_THAT(run.out, Not(HasSubstr("ShortShot")));
}

TEST(Show, BlocksAreFoundByBlockClassAndSection) {
  const TemporaryFile file(kSmallFile);
  for (const char* name : {"Fiber", "CZEBCMPFiberParm", "FIBER_ARD"}) {
    const std::map<std::string, double> expected{{"Fiber.m_FIBER_ARD_db1", 0.25}};
    EXPECT_EQ(changedValues({"show", file.path(), "--block", name}), expected) << name;
  }
}

TEST(Show, RanksHoldTheSame) {
  const TemporaryFile file(kSmallFile);
  const ToolRun run = runTool({"show", file.path(), "--changed", "--ranks", "8"});
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr("Read on 8 ranks: all hold the same values.\n"));
  EXPECT_THAT(run.out, HasSubstr("\n3 values differ from the default.\n"));
}

struct RepairCase {
  const char* name;
  const char* text;
  std::vector<std::string> options;
  std::map<std::string, double> repaired;
  std::map<std::string, double> asRead;
};

class ShowRepair : public testing::TestWithParam<RepairCase> {};

TEST_P(ShowRepair, ShowsBothSides) {
  const RepairCase& row = GetParam();
  const TemporaryFile file(row.text);
  std::vector<std::string> arguments{"show", file.path()};
  arguments.insert(arguments.end(), row.options.begin(), row.options.end());
  EXPECT_EQ(changedValues(arguments), row.repaired);
  arguments.push_back("--no-repair");
  EXPECT_EQ(changedValues(arguments), row.asRead);
}

INSTANTIATE_TEST_SUITE_P(Repairs, ShowRepair,
                         testing::Values(RepairCase{"Clamp",
                                                    "[General]\nTrapAirVolFilled = 1.7\n[/General]\n",
                                                    {},
                                                    {{"General.m_dTrapAirVolFilled", 1.0}},
                                                    {{"General.m_dTrapAirVolFilled", 1.7}}},
                                         RepairCase{"GasAssisted",
                                                    "[ShortShot]\nTimeLimit = 2.5\n[/ShortShot]\n",
                                                    {"--molding", "GAIM"},
                                                    {{"FAIM.m_dFluidVisFactor", 1.0},
                                                     {"FAIM.m_dFluidRealxFactor", 0.8},
                                                     {"ShortShot.m_dTimeLimit", 10.0}},
                                                    {{"ShortShot.m_dTimeLimit", 2.5}}},
                                         RepairCase{
                                             "MoldingByCode",
                                             "[ShortShot]\nTimeLimit = 2.5\n[/ShortShot]\n",
                                             {"--molding", "11"},
                                             {{"General.m_iIsWeightedFlowRate", 1.0}, {"ShortShot.m_dTimeLimit", 1.0}},
                                             {{"ShortShot.m_dTimeLimit", 2.5}}},
                                         RepairCase{"Wax", "", {"--wax"}, {{"TimeStepSizeCtrl.m_iHRVof", 1.0}}, {}}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(Show, ReadsAsTheKindAskedFor) {
  const TemporaryFile file(kSmallFile);
  const ToolRun settings = runTool({"show", file.path(), "--as", "cmx"});
  EXPECT_EQ(settings.exitCode, 0) << settings.err;
  EXPECT_THAT(settings.out, HasSubstr("analysis settings (CMX)"));
  EXPECT_THAT(settings.out, testing::ContainsRegex("m_dFillEOFPercentage +0[.]9995 +default\n"));
  EXPECT_THAT(settings.out, Not(HasSubstr("m_dAirPressure")));

  const ToolRun standard = runTool({"show", file.path(), "--as", "std", "--changed"});
  EXPECT_EQ(standard.exitCode, 0) << standard.err;
  EXPECT_THAT(standard.out, HasSubstr("as the standard solver reads it"));
}

TEST(Show, KnowsACmxFileByItsBlocks) {
  const TemporaryFile file("<SOLID_FILL>\nValueUnFilledElement = 6\n</SOLID_FILL>\n", ".cmx");
  const ToolRun run = runTool({"show", file.path(), "--changed"});
  EXPECT_EQ(run.exitCode, 0) << run.err;
  EXPECT_THAT(run.out, testing::ContainsRegex("m_iUnFilledCells +6 +line 2 [(]default 10[)]\n"));
}

// --- Goldens: each complete example as the tool shows it ---------------------------------------------------------

/// The first lines that differ, each with its number.
std::string lineDifferences(const std::string& expected, const std::string& actual) {
  std::istringstream left(expected), right(actual);
  std::ostringstream differences;
  std::string leftLine, rightLine;
  int shown = 0;
  for (int number = 1; shown < 20; ++number) {
    const bool hasLeft = static_cast<bool>(std::getline(left, leftLine));
    const bool hasRight = static_cast<bool>(std::getline(right, rightLine));
    if (!hasLeft && !hasRight) break;
    if (hasLeft && hasRight && leftLine == rightLine) continue;
    ++shown;
    if (hasLeft) differences << number << " - " << leftLine << '\n';
    if (hasRight) differences << number << " + " << rightLine << '\n';
  }
  return differences.str();
}

std::filesystem::path goldenPath(const std::string& name) {
  return std::filesystem::path(ZEB_TEST_DATA_DIR).parent_path() / "tool" / "golden" / name;
}

bool updatesGoldens() {
  const char* update = std::getenv("UPDATE_GOLDEN");
  return update != nullptr && std::string(update) == "1";
}

void expectText(const std::string& name, const std::string& expected, const std::string& actual) {
  EXPECT_TRUE(expected == actual) << name << " (UPDATE_GOLDEN=1 rewrites it)\n" << lineDifferences(expected, actual);
}

void expectGolden(const std::string& name, const std::string& actual) {
  const auto path = goldenPath(name);
  if (updatesGoldens()) {
    std::ofstream(path, std::ios::binary) << actual;
    return;
  }
  ASSERT_TRUE(std::filesystem::exists(path)) << path << "; UPDATE_GOLDEN=1 writes it";
  expectText(name, zebtest::contentOf(path.string()), actual);
}

// A golden that holds only the lines that another one has otherwise, each behind its number: "12: m_iPIM = 1".
const char* const kWholeDump = "standard-flow.raw.txt";

std::map<std::size_t, std::string> numbered(const std::string& text) {
  std::map<std::size_t, std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines[lines.size() + 1] = line;
  return lines;
}

void expectDifferences(const std::string& name, const std::string& actual) {
  std::map<std::size_t, std::string> expected = numbered(zebtest::contentOf(goldenPath(kWholeDump).string()));
  const auto path = goldenPath(name);
  if (updatesGoldens()) {
    std::ofstream stream(path, std::ios::binary);
    for (const auto& [number, line] : numbered(actual)) {
      if (expected[number] != line) stream << number << ": " << line << '\n';
    }
    return;
  }
  ASSERT_TRUE(std::filesystem::exists(path)) << path << "; UPDATE_GOLDEN=1 writes it";
  std::istringstream differences(zebtest::contentOf(path.string()));
  for (std::string line; std::getline(differences, line);) {
    const std::size_t colon = line.find(": ");
    ASSERT_NE(colon, std::string::npos) << name << ": " << line;
    expected[std::stoul(line)] = line.substr(colon + 2);
  }
  std::string text;
  for (const auto& [number, line] : expected) text += line + '\n';
  expectText(name, text, actual);
}

class ShowExample : public testing::TestWithParam<const char*> {
 protected:
  static ToolRun show(const std::vector<std::string>& options) {
    const std::string name = GetParam();
    std::vector<std::string> arguments{"show", name + "/" + name + ".cmp"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return runTool(arguments, ZEB_EXAMPLES_DIR);
  }
};

TEST_P(ShowExample, ChangedValuesAreTheGolden) {
  const ToolRun run = show({"--changed", "--format", "text"});
  ASSERT_EQ(run.exitCode, 0) << run.err;
  expectGolden(std::string(GetParam()) + ".show.txt", run.out);
}

TEST_P(ShowExample, RawDumpIsTheGolden) {
  const ToolRun run = show({"--raw"});
  ASSERT_EQ(run.exitCode, 0) << run.err;
  // The dump shows two arrays by their address.
  const std::string name = GetParam(), dump = std::regex_replace(run.out, std::regex("0x[0-9a-f]+"), "ADDRESS");
  if (name + ".raw.txt" == kWholeDump) return expectGolden(kWholeDump, dump);
  expectDifferences(name + ".raw.diff.txt", dump);
}

INSTANTIATE_TEST_SUITE_P(Examples, ShowExample,
                         testing::Values("thin-wall-cover", "gas-assisted-handle", "underfill-chip", "rtm-panel",
                                         "foamed-part", "compression-part", "standard-flow"),
                         [](const auto& test) {
                           return std::regex_replace(std::string(test.param), std::regex("-"), "_");
                         });

}  // namespace
