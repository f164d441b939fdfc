// Every rule with the smallest file that triggers it, its line, and a file like it that does not.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "inspect/Check.hpp"
#include "tests/support/TemporaryFile.hpp"

namespace {

struct RuleCase {
  const char* rule;
  std::string bad;
  int line;
  std::string good;
};

std::string in(const std::string& section, const std::string& lines) {
  return "[" + section + "]\n" + lines + "[/" + section + "]\n";
}

std::vector<zeb::Diagnostic> findingsOf(const std::string& fileName) {
  zeb::DiagnosticList found;
  found.startFile(fileName);
  zeb::checkFile(fileName, zeb::AnalysisOptions{}, found);
  found.sort();
  return found.all();
}

std::vector<zeb::Diagnostic> findingsIn(const std::string& content) {
  const zebtest::TemporaryFile file(content);
  return findingsOf(file.path());
}

std::string told(const std::vector<zeb::Diagnostic>& findings) {
  std::string text;
  for (const zeb::Diagnostic& finding : findings) {
    text +=
        std::to_string(finding.line) + ": " + finding.message + " [" + std::string(zeb::info(finding.rule).id) + "]\n";
  }
  return text;
}

class CheckRules : public testing::TestWithParam<RuleCase> {};

TEST_P(CheckRules, FindsTheSmallestBadFileAndLeavesTheGoodOneAlone) {
  const RuleCase& c = GetParam();
  const auto bad = findingsIn(c.bad), good = findingsIn(c.good);
  bool found = false;
  for (const auto& finding : bad) found |= zeb::info(finding.rule).id == c.rule && finding.line == c.line;
  EXPECT_TRUE(found) << "found instead:\n" << told(bad);
  EXPECT_EQ(told(good), "");
}

const std::string kHead =
    "2 2 2 2 2 2\n1 1 1 10\n1\n20 10 2 2 1 1\n100000 50 0.0005 0\n0.01\n0.8 0.8 0.8 1 0 0.8\n5 5 5 100 10 5\n"
    "0.1 0.1 0.1 0.1 0.0001 0.001\n0.7 0.7 0.7 0.6 1 0.9\nx\n0\nx\n1 1\nx\n14 0 0.5\nx\n"
    "0 1 10000 5 0 -1 -1 0.1 0 200\n2 0 0 0 0 0 0 0 0 10000\n";

INSTANTIATE_TEST_SUITE_P(
    Rules, CheckRules,
    testing::Values(
        RuleCase{"unknown-key", in("Outlet", "IsOutlett0 = 1\nIzOutlet = 1\n"), 3, in("Outlet", "IsOutlet = 1\n")},
        RuleCase{"inexact-key", in("ShortShot", "TimeLimitt = 2\n"), 2, in("ShortShot", "TimeLimit = 2\n")},
        RuleCase{"unknown-section", "[outlet]\nIsOutlet = 1\n[/outlet]\n", 1, in("Outlet", "IsOutlet = 1\n")},
        RuleCase{"key-outside-section", "AirPressure = 1\n", 1, "just a word = 1\n"},
        RuleCase{"unclosed-section", "[Outlet]\nIsOutlet = 1\n", 1, in("Outlet", "IsOutlet = 1\n")},
        RuleCase{"wrong-closing-tag", "[FIBER_PLOT_DYNAMIC]\nExtenRate = 1\n[/FIBER_PLOT_DYNAMIC]\n[/PLOT_DYNAMIC]\n",
                 3, "[FIBER_PLOT_DYNAMIC]\nExtenRate = 1\n[/PLOT_DYNAMIC]\n"},
        RuleCase{"close-without-open", "[/Outlet]\n", 1, in("Outlet", "IsOutlet = 1\n")},
        RuleCase{"section-inside-section", "[ShortShot]\n[Outlet]\n[/Outlet]\n[/ShortShot]\n", 2,
                 "[ShortShot]\n[/ShortShot]\n[Outlet]\n[/Outlet]\n"},
        RuleCase{"section-repeated", in("Outlet", "") + in("Outlet", ""), 3, in("Outlet", "")},
        RuleCase{"several-keys", in("General", "FixCompressionFaceCK = 1\n"), 2,
                 in("General", "FixCompressionFaceCK = 1\nCompressionFaceCK = 40\n")},
        RuleCase{"comment-sets-key", in("ShortShot", "# TimeLimit = 2\n"), 2, in("ShortShot", "# nothing here\n")},
        RuleCase{"missing-equals", in("ShortShot", "TimeLimit 2\n"), 2, in("ShortShot", "TimeLimit = 2\n")},
        RuleCase{"several-equals", in("ShortShot", "TimeLimit = 2 = 3\n"), 2, in("ShortShot", "TimeLimit = 2\n")},
        RuleCase{"unparsed-value", in("ShortShot", "TimeLimit = two\n"), 2, in("ShortShot", "TimeLimit = 2\n")},
        RuleCase{"text-after-value", in("General", "nParticleSubDt = 1e5\n"), 2,
                 in("General", "nParticleSubDt = 100000\n")},
        RuleCase{"int-fraction", in("General", "TempSubdt = 2.5\n"), 2, in("General", "TempSubdt = 2\n")},
        RuleCase{"value-out-of-range", in("General", "TempSubdt = 2147483648\n"), 2,
                 in("General", "TempSubdt = 2147483647\n")},
        RuleCase{"count-refused", in("MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = -1\n"), 3,
                 in("MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = 0\n")},
        RuleCase{"key-repeated", in("ShortShot", "TimeLimit = 2\nTimeLimit = 3\n"), 3,
                 in("ShortShot", "TimeLimit = 2\nFRLimit = 3\n")},
        RuleCase{"key-gated", in("AutoVPCtrl", "AutoVPMode = 0\nEstCavityPres = 2\n"), 3,
                 in("AutoVPCtrl", "AutoVPMode = 1\nEstCavityPres = 2\n")},
        RuleCase{"key-above-gate", in("AutoVPCtrl", "EstCavityPres = 2\nAutoVPMode = 1\n"), 2,
                 in("AutoVPCtrl", "AutoVPMode = 1\nEstCavityPres = 2\n")},
        RuleCase{"list-consumed-close", "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 1\n[/MultiGate]\n",
                 4, in("MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = 1\nWeightings = 1\n")},
        RuleCase{
            "weights-sum",
            in("MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = 2\nWeightings = 0.3\nWeightings = 0.3\n"), 5,
            in("MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = 2\nWeightings = 0.3\nWeightings = 0.7\n")},
        RuleCase{"positional-too-short", "[VER] 1023\n" + kHead.substr(0, 40), 1, "[VER] 1023\n" + kHead},
        RuleCase{"positional-version", "[FastCool]\n1016\n", 2, "[VER] 1023\n" + kHead},
        RuleCase{"line-too-long", "# " + std::string(253, 'x') + "\n", 1, "# " + std::string(252, 'x') + "\n"},
        RuleCase{"carriage-return", in("ShortShot", "") + "# text\r\n", 3, in("ShortShot", "") + "# text\n"},
        RuleCase{"nul-byte", std::string("# a\0b\n", 6), 1, "# ab\n"},
        RuleCase{"trailing-blanks", in("Compression", "FilePathOfLocation = a b  \n"), 2,
                 in("Compression", "FilePathOfLocation = a b\n")},
        RuleCase{"tab-before-text", in("Compression", "FilePathOfLocation = \ta\n"), 2,
                 in("Compression", "FilePathOfLocation = a\n")},
        RuleCase{"no-final-newline", "[ShortShot]\n[/ShortShot]", 2, "[ShortShot]\n[/ShortShot]\n"},
        RuleCase{"byte-order-mark", "\xEF\xBB\xBF[ShortShot]\n[/ShortShot]\n", 1, "[ShortShot]\n[/ShortShot]\n"},
        RuleCase{"not-utf8", "# \xFF\n", 1, "# \xC3\xBC\n"},
        RuleCase{"version-unknown", "[VER] 1024\n", 1, "[VER] 1023\n" + kHead}),
    [](const testing::TestParamInfo<RuleCase>& parameter) {
      std::string name = parameter.param.rule;
      std::replace(name.begin(), name.end(), '-', '_');
      return name;
    });

TEST(CheckRulesForMoldings, TellWhatTheRepairsOverride) {
  const zebtest::TemporaryFile file(in("ShortShot", "TimeLimit = 2\n"));
  zeb::AnalysisOptions gasAssisted;
  gasAssisted.molding = 6;
  zeb::DiagnosticList found;
  found.startFile(file.path());
  zeb::checkFile(file.path(), gasAssisted, found);
  ASSERT_EQ(found.all().size(), 1u);
  EXPECT_EQ(zeb::info(found.all()[0].rule).id, "repaired-value");
  EXPECT_EQ(found.all()[0].line, 2);
}

TEST(CheckRulesForMoldings, EqualsDefaultSpeaksOnlyWhenAsked) {
  const zebtest::TemporaryFile file(in("ShortShot", "TimeLimit = 1.1\n"));
  EXPECT_EQ(told(findingsOf(file.path())), "");
  zeb::DiagnosticList found;
  found.enable(*zeb::ruleNamed("equals-default"), true);
  found.startFile(file.path());
  zeb::checkFile(file.path(), zeb::AnalysisOptions{}, found);
  ASSERT_EQ(found.all().size(), 1u);
}

TEST(CheckExamples, AreClean) {
  int files = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(ZEB_EXAMPLES_DIR)) {
    const std::string path = entry.path().string();
    // One case is broken on purpose, one is for the standard solver, which reads it by other rules.
    if (entry.path().extension() != ".cmp" || path.find("broken-cover") != path.npos ||
        path.find("standard-flow") != path.npos)
      continue;
    EXPECT_EQ(told(findingsOf(path)), "") << path;
    ++files;
  }
  EXPECT_GE(files, 6);
}

TEST(CheckExamples, TellTheFaultsOfTheBrokenCoverByLine) {
  std::set<std::pair<int, std::string>> actual;
  for (const auto& finding : findingsOf(std::string(ZEB_EXAMPLES_DIR) + "/broken-cover/broken-cover.cmp")) {
    actual.emplace(finding.line, std::string(zeb::info(finding.rule).id));
  }
  const std::set<std::pair<int, std::string>> expected = {
      {6, "unknown-key"},          {7, "text-after-value"},       {8, "int-fraction"},    {9, "comment-sets-key"},
      {14, "key-outside-section"}, {16, "unknown-section"},       {21, "key-above-gate"}, {26, "unclosed-section"},
      {27, "text-after-value"},    {30, "section-inside-section"}};
  EXPECT_EQ(actual, expected);
}

}  // namespace
