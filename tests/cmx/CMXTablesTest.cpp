// All members and keys of the CMX blocks against the expectation tables.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "cmx/CZEBCMXInternalTool.hpp"
#include "engine/ParameterTable.hpp"
#include "inspect/set/Values.hpp"
#include "tests/cmx/Expectations.hpp"

namespace {

using zebtest::expectations;
using zebtest::Expected;
using zebtest::unquoted;

class CMXTables : public testing::Test {
 protected:
  const std::vector<Expected> m_keys = expectations("cmx_keys.tsv");
  const std::vector<Expected> m_members = expectations("cmx_members.tsv");
};

const zeb::BlockTable* tableOfClass(const std::string& className) {
  for (const zeb::BlockTable* table : CZEBCMXInternalTool::tables()) {
    if (table->className == className) return table;
  }
  return nullptr;
}

std::string textOf(const zeb::Row& row, const void* block) {
  if (row.field.get != nullptr) return std::to_string(row.field.get(block));
  if (row.field.getText != nullptr) return row.field.getText(block);
  return {};
}

// Every number and text of every block, by "tag.getter".
std::map<std::string, std::string> valuesOf(const CZEBCMXInternalTool& tool) {
  std::map<std::string, std::string> values;
  for (const zeb::DispatchEntry& entry : tool.sections()) {
    for (const zeb::Row& row : entry.section->rows) {
      values[std::string(entry.section->name) + "." + std::string(row.field.member)] = textOf(row, entry.block);
    }
  }
  return values;
}

TEST_F(CMXTables, TheTagsAreTestedInTheirOrder) {
  std::vector<std::string> expected;
  for (const Expected& key : m_keys) {
    if (expected.empty() || expected.back() != key.at("tag")) expected.push_back(key.at("tag"));
  }
  CZEBCMXInternalTool tool;
  std::vector<std::string> tags;
  for (const zeb::DispatchEntry& entry : tool.sections()) {
    tags.emplace_back(entry.section->name);
    EXPECT_EQ(entry.section->open, "<" + tags.back() + ">");
    EXPECT_EQ(entry.section->close, "</" + tags.back() + ">");
  }
  EXPECT_EQ(tags, expected);
}

TEST_F(CMXTables, EveryMemberHasItsGetterTypeAndDefaultInDeclarationOrder) {
  std::map<std::string, std::vector<std::string>> getters;
  for (const Expected& member : m_members) {
    const zeb::BlockTable* table = tableOfClass(member.at("class"));
    ASSERT_NE(table, nullptr) << member.at("class");
    getters[member.at("class")].push_back(member.at("getter"));
    const zeb::Row* row = zebtest::rowOfGetter(table->sections.front().rows, member.at("getter"));
    ASSERT_NE(row, nullptr) << member.at("getter");
    const std::unique_ptr<void, void (*)(void*)> block(table->create(), table->destroy);
    const std::map<std::string, zeb::FieldType> types{{"int", zeb::FieldType::kInt},
                                                      {"double", zeb::FieldType::kDouble},
                                                      {"text", zeb::FieldType::kText},
                                                      {"doubles", zeb::FieldType::kDoubles}};
    EXPECT_EQ(row->field.type, types.at(member.at("type"))) << member.at("getter");
    if (row->field.get != nullptr) {
      EXPECT_EQ(row->field.get(block.get()), std::stod(member.at("default"))) << member.at("getter");
    } else if (row->field.getText != nullptr) {
      EXPECT_EQ(row->field.getText(block.get()), unquoted(member.at("default"))) << member.at("getter");
    } else {
      EXPECT_EQ(member.at("default"), "-");
      EXPECT_EQ(static_cast<zeb::SharedArray<double>*>(row->field.locate(block.get()))->get(), nullptr);
    }
  }
  for (const auto& [className, names] : getters) {
    std::vector<std::string> declared;
    for (const zeb::Row& row : tableOfClass(className)->sections.front().rows) declared.emplace_back(row.field.getter);
    EXPECT_EQ(declared, names) << className;
  }
}

TEST_F(CMXTables, TheKeysAreTestedInTheirOrder) {
  std::map<std::string, std::vector<std::string>> expected;
  for (const Expected& key : m_keys) expected[key.at("tag")].push_back(unquoted(key.at("key")));
  CZEBCMXInternalTool tool;
  for (const zeb::DispatchEntry& entry : tool.sections()) {
    const auto keys = entry.section->filter.keys;
    EXPECT_EQ(std::vector<std::string>(keys.begin(), keys.end()), expected[std::string(entry.section->name)])
        << entry.section->name;
  }
}

// Each key alone on a line sets its member and those whose keys it contains, and nothing else in any block.
TEST_F(CMXTables, EveryKeySetsItsMembersAndNothingElse) {
  const auto defaults = valuesOf(CZEBCMXInternalTool());
  for (const Expected& key : m_keys) {
    const std::string line = unquoted(key.at("key")) + " = 7";
    CZEBCMXInternalTool tool;
    std::istringstream file("<" + key.at("tag") + ">\n" + line + "\n</" + key.at("tag") + ">\n");
    tool.readBlocks(file);
    auto expected = defaults;
    for (const Expected& other : m_keys) {
      if (other.at("tag") != key.at("tag") || line.find(unquoted(other.at("key"))) == line.npos) continue;
      const zeb::BlockTable* table = tableOfClass(other.at("class"));
      ASSERT_NE(table, nullptr) << other.at("class");
      const zeb::Row* row = zebtest::rowOfGetter(table->sections.front().rows, other.at("getter"));
      ASSERT_NE(row, nullptr) << other.at("getter");
      expected[key.at("tag") + "." + std::string(row->field.member)] =
          other.at("lookup") == "word" ? "7" : std::to_string(7.0);
    }
    EXPECT_EQ(valuesOf(tool), expected) << line;
  }
}

TEST_F(CMXTables, AnIntKeyTakesTheIntegerPartAndADoubleKeyTheNumber) {
  for (const Expected& key : m_keys) {
    if (key.at("lookup") == "word" || key.at("rule") == "list") continue;
    CZEBCMXInternalTool tool;
    std::istringstream file("<" + key.at("tag") + ">\n" + unquoted(key.at("key")) + "=6.25\n");
    tool.readBlocks(file);
    for (const zeb::DispatchEntry& entry : tool.sections()) {
      if (entry.section->name != key.at("tag")) continue;
      const zeb::Row* row = zebtest::rowOfGetter(entry.section->rows, key.at("getter"));
      ASSERT_NE(row, nullptr);
      EXPECT_EQ(row->field.get(entry.block), key.at("lookup") == "int" ? 6.0 : 6.25) << key.at("key");
    }
  }
}

TEST_F(CMXTables, EveryMemberIsDocumented) {
  for (const zeb::BlockTable* table : CZEBCMXInternalTool::tables()) {
    for (const zeb::Row& row : table->sections.front().rows) {
      EXPECT_TRUE(zeb::describe(row).ends_with(".")) << row.field.member;
    }
  }
}

}  // namespace
