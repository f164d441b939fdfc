// Every rule with the smallest file that triggers it, its place and message, and a file like it that does not.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include "inspect/check/Manual.hpp"
#include "tests/check/CheckSupport.hpp"
#include "tests/support/TemporaryFile.hpp"
#include "tests/support/WrittenFile.hpp"

namespace {

using zebtest::Checking;
using zebtest::findingsOf;
using zebtest::idOf;
using zebtest::told;

// --- The examples of the manual -----------------------------------------------------------------------------------

class RuleExamples : public testing::TestWithParam<const zeb::CheckRule*> {
 protected:
  RuleExamples() {
    m_folder = std::filesystem::temp_directory_path() / ("zeb-rules-" + std::to_string(getpid()));
    std::filesystem::create_directory(m_folder);
  }
  ~RuleExamples() override { std::filesystem::remove_all(m_folder); }

  std::vector<zeb::Diagnostic> findings(std::string_view name, std::string_view content, std::string_view companion) {
    const zeb::RuleExample& example = GetParam()->example;
    Checking checking;
    checking.kind = example.kind;
    checking.options.molding = zeb::moldingCode(std::string(example.molding)).value();
    checking.options.viscoelastic = example.isViscoelastic();
    if (!GetParam()->byDefault) checking.enabled.emplace_back(GetParam()->id);
    std::ofstream(m_folder / name, std::ios::binary) << content;
    std::ofstream(m_folder / "part.vecmp", std::ios::binary) << companion;
    return findingsOf((m_folder / name).string(), checking);
  }

 private:
  std::filesystem::path m_folder;
};

TEST_P(RuleExamples, FindsTheBadFileAndLeavesTheGoodOneAlone) {
  const zeb::RuleExample& example = GetParam()->example;
  const auto bad = findings(example.badName, example.bad, example.badCompanion);
  const auto isTheOne = [&](const zeb::Diagnostic& finding) {
    return finding.rule == GetParam() && finding.place.line == example.line && finding.place.column == example.column &&
           finding.message == example.message;
  };
  EXPECT_EQ(std::count_if(bad.begin(), bad.end(), isTheOne), 1) << "found instead:\n" << told(bad);
  EXPECT_EQ(told(findings("part.cmp", example.good, example.goodCompanion)), "");
}

std::string nameOf(const zeb::CheckRule& rule) {
  std::string name(rule.id);
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Rules, RuleExamples, testing::ValuesIn(zeb::checkRules().begin(), zeb::checkRules().end()),
                         [](const auto& rule) { return nameOf(*rule.param); });

TEST(Rules, EachIsWordedAndHasAnIdentifierOfItsOwn) {
  for (const zeb::CheckRule* rule : zeb::checkRules()) {
    EXPECT_EQ(zeb::ruleNamed(rule->id), rule) << rule->id;
    EXPECT_FALSE(rule->about.empty() || rule->hint.empty() || rule->why.empty()) << rule->id;
  }
}

// Neither the compiler nor the linker misses a rule without a place: it throws where it would first find something.
TEST(Rules, EachThatIsDefinedHasAPlaceInTheManual) {
  const std::regex definition(R"(\nconst CheckRule (k\w+)\{\s*"([^"]*))");
  std::size_t defined = 0;
  for (const auto& entry : std::filesystem::directory_iterator(ZEB_TEST_DATA_DIR "/../../inspect/check")) {
    const std::string source = zebtest::contentOf(entry.path().string());
    for (std::sregex_iterator rule(source.begin(), source.end(), definition), end; rule != end; ++rule, ++defined) {
      EXPECT_NE(zeb::ruleNamed((*rule)[2].str()), nullptr) << "inspect/check/Rules.cpp does not list " << (*rule)[1];
    }
  }
  EXPECT_EQ(defined, zeb::checkRules().size());
}

TEST(Rules, ManualInTheRepositoryIsCurrent) { zebtest::expectCurrent("docs/rules.md", zeb::rulesMarkdown()); }

// --- The examples of the repository -------------------------------------------------------------------------------

TEST(CheckExamples, AreClean) {
  int files = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(ZEB_EXAMPLES_DIR)) {
    const std::string path = entry.path().string();
    const std::string extension = entry.path().extension().string();
    if ((extension != ".cmp" && extension != ".cmx") || path.find("broken-cover") != path.npos) continue;
    const bool isStd = path.find("standard-flow") != path.npos;
    const auto kind = isStd ? zeb::FileKind::kStd : zeb::recogniseKind(path).value();
    EXPECT_EQ(told(findingsOf(path, {.kind = kind})), "") << path;
    ++files;
  }
  EXPECT_GE(files, 10);
}

TEST(CheckExamples, CompanionIsClean) {
  Checking checking;
  checking.options.viscoelastic = true;
  EXPECT_EQ(told(findingsOf(std::string(ZEB_EXAMPLES_DIR) + "/thin-wall-cover/thin-wall-cover.cmp", checking)), "");
}

TEST(CheckExamples, TellTheFaultsOfTheBrokenCoverByLine) {
  std::set<std::pair<int, std::string>> actual;
  for (const auto& finding : findingsOf(std::string(ZEB_EXAMPLES_DIR) + "/broken-cover/broken-cover.cmp")) {
    actual.emplace(finding.place.line, idOf(finding));
  }
  const std::set<std::pair<int, std::string>> expected = {
      {6, "unknown-key"},          {7, "text-after-value"},       {8, "int-fraction"},    {9, "comment-sets-key"},
      {14, "key-outside-section"}, {16, "unknown-section"},       {21, "key-above-gate"}, {26, "unclosed-section"},
      {27, "text-after-value"},    {30, "section-inside-section"}};
  EXPECT_EQ(actual, expected);
}

}  // namespace
