// The catalogue names what the formats name, finds what people ask for, and the manual is as young as the tables.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>

#include "inspect/catalogue/Catalogue.hpp"
#include "inspect/catalogue/NearestNames.hpp"
#include "tests/support/Tsv.hpp"
#include "tests/support/WrittenFile.hpp"

namespace {

std::set<std::string> keysOf(std::string_view format) {
  std::set<std::string> keys;
  for (const zeb::CatalogueEntry& entry : zeb::catalogue()) {
    if (entry.format != format) continue;
    for (const std::string_view key : {entry.row->key, entry.row->otherKey}) {
      if (!key.empty()) keys.insert(std::string(entry.sectionText()) + std::string(key));
    }
  }
  return keys;
}

TEST(Catalogue, HoldsEveryKeyOfTheCMPFormat) {
  const std::set<std::string> keys = keysOf("CMP");
  for (const zebtest::TsvRow& row : zebtest::readTsv("cmp_keys.tsv")) {
    if (row.at("read_index") == "-") continue;
    EXPECT_TRUE(keys.count(zebtest::unquoted(row.at("open")) + zebtest::unquoted(row.at("key"))))
        << row.at("open") << row.at("key");
  }
}

TEST(Catalogue, HoldsEveryKeyOfTheCMXFormat) {
  const std::set<std::string> keys = keysOf("CMX");
  for (const zebtest::TsvRow& row : zebtest::readTsv("cmx_keys.tsv")) {
    if (row.at("read_index") == "-" || row.at("key") == "-") continue;
    EXPECT_TRUE(keys.count("<" + row.at("tag") + ">" + zebtest::unquoted(row.at("key"))))
        << row.at("tag") << row.at("key");
  }
}

TEST(Catalogue, HoldsEveryKeyOfTheStandardSolver) {
  const std::set<std::string> keys = keysOf("STD");
  std::size_t known = 0;
  for (const zebtest::TsvRow& row : zebtest::readTsv("std_keys.tsv")) {
    EXPECT_TRUE(keys.count("[" + row.at("section") + "]" + zebtest::unquoted(row.at("key"))))
        << row.at("section") << row.at("key");
    ++known;
  }
  EXPECT_EQ(keys.size(), known);
}

TEST(Catalogue, TellsTypeDefaultAndRules) {
  const auto found = zeb::findEntries("AirPressure", "CMP");
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0]->name(), "Outlet.m_dAirPressure");
  EXPECT_EQ(found[0]->sectionText(), "[Outlet]");
  EXPECT_EQ(zeb::typeText(*found[0]->row), "double");
  EXPECT_EQ(zeb::joined(zeb::ruleTexts(*found[0])), "times 1e+07");
}

TEST(Catalogue, TellsGateAndGatedKeys) {
  const auto gate = zeb::findEntries("FillType", "CMP");
  ASSERT_EQ(gate.size(), 1u);
  EXPECT_EQ(zeb::joined(zeb::ruleTexts(*gate[0])), "gate: below 2 the section's gated keys are skipped");
  const auto gated = zeb::findEntries("Speed_V", "CMP");
  ASSERT_EQ(gated.size(), 1u);
  EXPECT_EQ(zeb::joined(zeb::ruleTexts(*gated[0])), "gated by FillType");
}

TEST(Catalogue, FindsByKeyMemberGetterAndOwner) {
  for (const char* name : {"AirPressure", "airpressure", "m_dAirPressure", "dAirPressure", "Outlet.AirPressure",
                           "Outlet.m_dAirPressure", "CZEBCMPOutletParm.dAirPressure", "outlet.AIRPRESSURE"}) {
    const auto found = zeb::findEntries(name, "CMP");
    ASSERT_EQ(found.size(), 1u) << name;
    EXPECT_EQ(found[0]->row->field.member, "m_dAirPressure") << name;
  }
  EXPECT_TRUE(zeb::findEntries("General.AirPressure", "CMP").empty());
  EXPECT_TRUE(zeb::findEntries("", "CMP").empty());
  EXPECT_TRUE(zeb::findEntries("Outlet.", "CMP").empty());
}

TEST(Catalogue, FindsAKeyInEverySectionThatHasIt) {
  std::set<std::string> sections;
  for (const auto* entry : zeb::findEntries("Level1", "CMX")) sections.insert(std::string(entry->sectionText()));
  EXPECT_EQ(sections, std::set<std::string>{"<SOLID_FILL>"});
  EXPECT_GT(zeb::findEntries("Version", "CMX").size(), 1u);
}

TEST(Catalogue, SuggestsTheNearestNames) {
  EXPECT_EQ(zeb::nearestNames("AirPresure", "CMP").front(), "AirPressure");
  EXPECT_EQ(zeb::nearestNames("Outlet.AirPerssure", "CMP").front(), "AirPressure");
  EXPECT_TRUE(zeb::nearestNames("qqqqqqqqqqqqqqq", "CMP").empty());
}

TEST(Catalogue, SuggestsNothingForANameWithoutLikeness) {
  EXPECT_EQ(zeb::nearestOf("shwo", {"show", "schedule", "list"}), std::vector<std::string_view>{"show"});
  EXPECT_EQ(zeb::nearestOf("rtm", {"IM", "RTM", "BIIM"}).front(), "RTM");
  EXPECT_TRUE(zeb::nearestOf("xy", {"IM", "RTM"}).empty());
  EXPECT_TRUE(zeb::nearestOf(std::string(100'000, 'x'), {"show"}).empty());
}

TEST(Catalogue, SearchNeedsEveryWord) {
  const auto found = zeb::searchCatalogue({"OUTLET", "airpressure"});
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0]->row->key, "AirPressure");
  EXPECT_TRUE(zeb::searchCatalogue({"AirPressure", "nowhere-to-be-found"}).empty());
  EXPECT_EQ(zeb::searchCatalogue({}).size(), zeb::catalogue().size());
}

TEST(Catalogue, ManualInTheRepositoryIsCurrent) {
  zebtest::expectCurrent("docs/parameters.md", zeb::catalogueMarkdown());
}

}  // namespace
