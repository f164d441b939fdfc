// Findings as text, JSON and SARIF.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "inspect/check/DiagnosticOutput.hpp"
#include "tests/check/CheckSupport.hpp"

namespace {

using Json = nlohmann::ordered_json;
using zebtest::findingsIn;

std::vector<zeb::Diagnostic> twoFindings() {
  return findingsIn("[Outlet]\nIzOutlet = 1\n[/Outlet]\n[Outlet]\n\t\xC3\xBC AirPressure = 0.2x\n[/Outlet]\n");
}

TEST(TextOutput, HasTheHeadlineOfACompilerAndACaretBelowTheLine) {
  const auto findings = twoFindings();
  ASSERT_EQ(findings.size(), 4u) << zebtest::told(findings);
  EXPECT_EQ(zeb::headline(findings[0], "warning"),
            findings[0].file + ":2:1: warning: 'IzOutlet' is no key of [Outlet] [unknown-key]");
  EXPECT_EQ(zeb::excerpt(findings[0]), "  IzOutlet = 1\n  ^\n");
  // A tab stays one, so that the caret keeps its place; an umlaut is one character.
  EXPECT_EQ(zeb::excerpt(findings[3]), "  \t\xC3\xBC AirPressure = 0.2x\n  \t                   ^\n");
}

TEST(TextOutput, HidesControlCharacters) {
  const auto findings = findingsIn("[Out\x1b[31mlet]\n");
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_EQ((zeb::headline(findings[0], "warning") + zeb::excerpt(findings[0])).find('\x1b'), std::string::npos);
}

TEST(JsonOutput, HoldsEveryFindingInOrder) {
  const Json list = zeb::diagnosticsAsJson(twoFindings(), "error");
  ASSERT_EQ(list.size(), 4u);
  EXPECT_EQ(list[0].at("rule"), "unknown-key");
  EXPECT_EQ(list[0].at("line"), 2);
  EXPECT_EQ(list[0].at("column"), 1);
  EXPECT_EQ(list[0].at("severity"), "error");
  EXPECT_EQ(list[0].at("message"), "'IzOutlet' is no key of [Outlet]");
  EXPECT_EQ(list[0].at("hint"), "did you mean IsOutlet?");
}

// --- What SARIF 2.1.0 demands ---------------------------------------------------------------------------------------

TEST(SarifOutput, NamesItsVersionAndSchema) {
  const Json log = zeb::diagnosticsAsSarif({}, "warning");
  EXPECT_EQ(log.at("version"), "2.1.0");
  EXPECT_EQ(log.at("$schema"), "https://json.schemastore.org/sarif-2.1.0.json");
  ASSERT_EQ(log.at("runs").size(), 1u);
  EXPECT_TRUE(log.at("runs")[0].at("results").is_array());  // not null: an empty array says that nothing was found
}

TEST(SarifOutput, DescribesEveryRuleOnce) {
  const Json log = zeb::diagnosticsAsSarif({}, "warning");
  const Json& driver = log.at("runs")[0].at("tool").at("driver");
  EXPECT_EQ(driver.at("name"), "compparm");
  EXPECT_FALSE(driver.at("version").get<std::string>().empty());
  const Json& rules = driver.at("rules");
  ASSERT_EQ(rules.size(), zeb::checkRules().size());
  for (std::size_t i = 0; i < rules.size(); ++i) {
    EXPECT_EQ(rules[i].at("id"), zeb::checkRules()[i]->id);
    EXPECT_FALSE(rules[i].at("shortDescription").at("text").get<std::string>().empty());
    EXPECT_FALSE(rules[i].at("help").at("text").get<std::string>().empty());
    EXPECT_EQ(rules[i].at("defaultConfiguration").at("level"), "warning");
    EXPECT_EQ(rules[i].at("defaultConfiguration").at("enabled"), zeb::checkRules()[i]->byDefault);
  }
}

TEST(SarifOutput, EachResultHasRuleLevelMessageAndPlace) {
  for (const char* level : {"warning", "error"}) {
    const Json log = zeb::diagnosticsAsSarif(twoFindings(), level);
    const Json& run = log.at("runs")[0];
    EXPECT_EQ(run.at("columnKind"), "unicodeCodePoints");
    ASSERT_EQ(run.at("results").size(), 4u);
    for (const Json& result : run.at("results")) {
      const auto index = result.at("ruleIndex").get<std::size_t>();
      EXPECT_EQ(run.at("tool").at("driver").at("rules").at(index).at("id"), result.at("ruleId"));
      EXPECT_EQ(result.at("level"), level);
      EXPECT_FALSE(result.at("message").at("text").get<std::string>().empty());
      ASSERT_EQ(result.at("locations").size(), 1u);
      const Json& place = result.at("locations")[0].at("physicalLocation");
      EXPECT_FALSE(place.at("artifactLocation").at("uri").get<std::string>().empty());
      EXPECT_GE(place.at("region").at("startLine").get<int>(), 1);
      EXPECT_GE(place.at("region").at("startColumn").get<int>(), 1);
    }
  }
}

TEST(SarifOutput, UrisAreEscapedAndAFindingOfTheWholeFileHasNoRegion) {
  zeb::DiagnosticList found;
  found.startFile("/a b/c%d/\xC3\xBC.cmp");
  found.add(zeb::kNoExtension, zeb::Place(), "message");
  const Json log = zeb::diagnosticsAsSarif(found.all(), "warning");
  const Json place = log.at("runs")[0].at("results")[0].at("locations")[0].at("physicalLocation");
  EXPECT_EQ(place.at("artifactLocation").at("uri"), "file:///a%20b/c%25d/%C3%BC.cmp");
  EXPECT_FALSE(place.contains("region"));
}

}  // namespace
