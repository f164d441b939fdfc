// All members, keys and head fields of the standard solver's reader against the expectation tables.
#include <gtest/gtest.h>

#include <sstream>

#include "engine/ParameterTable.hpp"
#include "inspect/set/Values.hpp"
#include "stdcmp/StdParameters.hpp"
#include "tests/cmx/Expectations.hpp"
#include "tests/stdcmp/PublicValues.hpp"

namespace {

using zebtest::expectations;
using zebtest::Expected;
using zebtest::publicValues;
using zebtest::unquoted;

class StdTables : public testing::Test {
 protected:
  std::map<std::string, double> read(const std::string& text) {
    CZEBKNstdCMPCompParm set;
    const std::string file = m_folder.write("run.cmp", text);
    zebtest::printedBy([&] { set.setSolidFillBlock(file); });
    return publicValues(set);
  }

  zeb::test::TestFolder m_folder;
  const std::vector<Expected> m_keys = expectations("std_keys.tsv");
  const std::map<std::string, double> m_defaults = publicValues(CZEBKNstdCMPCompParm());
};

TEST_F(StdTables, EveryGetterHasItsDefault) {
  std::size_t count = 0;
  for (const std::vector<Expected>& rows : {expectations("std_members.tsv"), m_keys}) {
    for (const Expected& row : rows) {
      EXPECT_EQ(m_defaults.at(row.at("getter")), std::stod(row.at("default"))) << row.at("getter");
      ++count;
    }
  }
  EXPECT_EQ(count, m_defaults.size());
}

TEST_F(StdTables, EveryRowBelongsToAGetter) {
  std::size_t count = 0;
  for (const zeb::BlockTable* table : zeb::StdParameters::tables()) {
    for (const zeb::Row& row : table->sections.front().rows) {
      EXPECT_TRUE(m_defaults.contains(std::string(row.field.getter))) << row.field.getter;
      EXPECT_TRUE(zeb::describe(row).ends_with(".")) << row.field.getter;
      ++count;
    }
  }
  EXPECT_EQ(count, m_defaults.size());
}

TEST_F(StdTables, MembersStandInDeclarationOrder) {
  std::vector<std::string> expected, declared;
  for (const Expected& row : expectations("std_members.tsv")) expected.push_back(row.at("getter"));
  for (const Expected& row : m_keys) expected.push_back(row.at("getter"));
  for (const zeb::BlockTable* table : zeb::StdParameters::tables()) {
    for (const zeb::Row& row : table->sections.front().rows) declared.emplace_back(row.field.getter);
  }
  EXPECT_EQ(declared, expected);
}

TEST_F(StdTables, SectionsAndKeysAreTestedInTheirOrder) {
  std::vector<std::string> expected, tested;
  for (const Expected& key : m_keys) expected.push_back(key.at("section") + " " + unquoted(key.at("key")));
  const zeb::StdParameters parameters;
  for (const zeb::DispatchEntry& entry : parameters.sections()) {
    const std::string name(entry.section->name);
    if (entry.section->headVersion != 0) {
      EXPECT_EQ(entry.opening(), "[VER]");
      continue;
    }
    EXPECT_EQ(entry.section->open, "[" + name + "]");
    EXPECT_EQ(entry.section->close, "[/" + name + "]");
    for (const std::string_view key : entry.section->filter.keys) tested.push_back(name + " " + std::string(key));
  }
  EXPECT_EQ(tested, expected);
}

// Each key alone on a line, behind an open gate, sets its own value and nothing else.
TEST_F(StdTables, EveryKeySetsItsGetterAndNothingElse) {
  for (const Expected& key : m_keys) {
    const bool gated = key.at("rule") == "gated";
    auto expected = m_defaults;
    if (gated) expected["iMultipleGateMethod"] = 1;
    expected[key.at("getter")] = key.at("lookup") == "int" ? 6.0 : 6.25;
    EXPECT_EQ(read("[" + key.at("section") + "]\n" + (gated ? "MultipleGateMethod = 1\n" : "") +
                   unquoted(key.at("key")) + " = 6.25\n[/" + key.at("section") + "]\n"),
              expected)
        << key.at("key");
  }
}

TEST_F(StdTables, GatedKeysAreIgnoredWhileTheGateIsShut) {
  for (const Expected& key : m_keys) {
    if (key.at("rule") != "gated") continue;
    EXPECT_EQ(read("[MultiGate]\n" + unquoted(key.at("key")) + " = 6.25\n[/MultiGate]\n"), m_defaults) << key.at("key");
  }
}

// Fields count up through the whole head, so that each getter's value says where it came from.
TEST_F(StdTables, EveryFieldOfTheHeadSetsItsGetter) {
  std::vector<std::string> lines(17);
  auto expected = m_defaults;
  int value = 100;
  for (const Expected& field : expectations("positional.tsv")) {
    if (field.at("section") != "STDHEAD") continue;
    ++value;
    const bool isInt = field.at("scan") == "d";
    lines.at(std::stoul(field.at("line")) - 1) += std::to_string(value) + (isInt ? " " : ".5 ");
    if (field.at("getter") != "-") expected.at(field.at("getter")) = isInt ? value : value + 0.5;
  }
  lines.back() = "[StableFlag]";  // opens nothing: it is the head's last line
  std::string text = "[VER] 1013\n";
  for (const std::string& line : lines) text += line + "\n";
  expected["iAutoHTC"] = 5;  // the line behind it is the first outside of the head
  EXPECT_EQ(read(text + "[General]\nAutoHTC = 5\n"), expected);
}

}  // namespace
