// Walks every row of every block's table and holds it against the definition of the format in tests/data.
#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <set>
#include <sstream>
#include <stdexcept>

#include "engine/SectionEngine.hpp"
#include "frame/CMPReader.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/Inspection.hpp"
#include "inspect/set/Values.hpp"
#include "tests/support/Tsv.hpp"

namespace {

using zeb::BlockView;
using zeb::FieldType;
using zeb::Row;
using zeb::Section;
using zebtest::TsvRow;
using zebtest::unquoted;

// The viscoelastic block's table has a file, a head and a test of its own.
bool hasOwnFile(const BlockView& block) { return block.name == "VE"; }

double toNumber(const std::string& text) {
  if (text == "true" || text == "false") return text == "true" ? 1.0 : 0.0;
  double number = std::numeric_limits<double>::quiet_NaN();
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

class TableWalk : public testing::Test {
 protected:
  CZEBKNCMPCompParm set{0, 0};
  std::vector<BlockView> blocks = zeb::blocksOf(set);

  const BlockView& block(const std::string& className) const {
    for (const BlockView& view : blocks) {
      if (view.table->className == className) return view;
    }
    throw std::invalid_argument("no block " + className);
  }
};

const Row* rowOfGetter(const BlockView& block, const std::string& getter) {
  for (const Section& section : block.table->sections) {
    for (const Row& row : section.rows) {
      if (row.field.getter == getter) return &row;
    }
  }
  return nullptr;
}

double valueThroughGetter(const BlockView& block, const Row& row) { return row.field.get(block.block); }

std::set<std::string> column(const char* table, const char* name) {
  std::set<std::string> cells;
  for (const TsvRow& row : zebtest::readTsv(table)) cells.insert(unquoted(row.at(name)));
  return cells;
}

TEST_F(TableWalk, TheBlocksComeInTheirOrderUnderTheirHeadings) {
  std::vector<std::string> expected, actual;
  const auto known = column("blocks.tsv", "class");
  for (const TsvRow& row : zebtest::readTsv("blocks.tsv")) {
    expected.push_back(row.at("class") + (row.at("heading") == "-" ? "" : unquoted(row.at("heading"))));
  }
  for (const BlockView& view : blocks) {
    const std::string className(view.table->className);
    if (known.contains(className)) actual.push_back(className + std::string(view.table->heading));
  }
  EXPECT_EQ(actual, expected);
}

TEST_F(TableWalk, TheOpeningsAreTestedInTheirOrder) {
  std::vector<std::string> expected, actual;
  const auto known = column("dispatch.tsv", "opening");
  for (const TsvRow& row : zebtest::readTsv("dispatch.tsv")) {
    const bool isHead = row.at("class") == "-";
    expected.push_back(unquoted(row.at("opening")) + " " + (isHead ? "CZEBCMPIteratParm" : row.at("class")));
  }
  for (const zeb::DispatchEntry& entry : zeb::cmpSections(*zeb::Inspection::tool(set))) {
    const std::string opening(entry.section->open);
    if (!known.contains(opening)) continue;
    for (const BlockView& view : blocks) {
      if (view.block == entry.block) actual.push_back(opening + " " + std::string(view.table->className));
    }
  }
  EXPECT_EQ(actual, expected);
}

TEST_F(TableWalk, EveryMemberHasItsGetterTypeAndDefault) {
  for (const TsvRow& expected : zebtest::readTsv("cmp_members.tsv")) {
    const std::string getter = expected.at("getter");
    if (getter == "-" || getter.find('.') != getter.npos) continue;
    SCOPED_TRACE(expected.at("class") + "::" + getter);
    const BlockView& view = block(expected.at("class"));
    const Row* row = rowOfGetter(view, getter);
    if (expected.at("type") == "text") {
      ASSERT_NE(row, nullptr) << "no row in the block's table";
      ASSERT_NE(row->field.getText, nullptr);
      const char* text = row->field.getText(view.block);
      EXPECT_EQ(text == nullptr ? "null" : std::string(text),
                expected.at("default") == "-" ? "null" : unquoted(expected.at("default")));
      continue;
    }
    if (expected.at("type") != "int" && expected.at("type") != "double" && expected.at("type") != "bool") continue;
    ASSERT_NE(row, nullptr) << "no row in the block's table";
    ASSERT_NE(row->field.get, nullptr);
    const FieldType type = expected.at("type") == "int"      ? FieldType::kInt
                           : expected.at("type") == "double" ? FieldType::kDouble
                                                             : FieldType::kBool;
    EXPECT_EQ(row->field.type, type);
    if (expected.at("default") == "-") continue;
    EXPECT_EQ(valueThroughGetter(view, *row), toNumber(expected.at("default")));
  }
}

TEST_F(TableWalk, EveryRowIsAMemberOfTheFormatAndSaysWhatItMeans) {
  const auto openings = column("dispatch.tsv", "opening");
  std::set<std::string> known;
  for (const TsvRow& row : zebtest::readTsv("cmp_members.tsv")) {
    known.insert(row.at("class") + "::" + row.at("member"));
    known.insert(row.at("class") + "::m_" + row.at("getter"));
  }
  for (const BlockView& view : blocks) {
    if (hasOwnFile(view)) continue;
    for (const Section& section : view.table->sections) {
      if (!openings.contains(std::string(section.open))) continue;
      for (const Row& row : section.rows) {
        const std::string name = std::string(view.table->className) + "::" + std::string(row.field.member);
        const bool isList = row.field.getter.empty();  // lists go by their own operations
        EXPECT_TRUE(known.contains(name) || isList) << name;
        EXPECT_FALSE(zeb::describe(row).empty()) << name << " says nothing about itself";
        EXPECT_TRUE(zeb::describe(row).empty() || zeb::describe(row).ends_with('.'))
            << name << ": " << zeb::describe(row);
      }
    }
  }
}

// The keys of a section as the definition has them: by reading position, the getters that each sets.
struct DefinedKey {
  std::string key;
  std::vector<TsvRow> targets;
};

std::map<std::string, std::vector<DefinedKey>> definedSections() {
  std::map<std::string, std::vector<DefinedKey>> sections;
  for (const TsvRow& row : zebtest::readTsv("cmp_keys.tsv")) {
    if (row.at("read_index") == "-") continue;
    auto& keys = sections[row.at("section")];
    const std::string key = unquoted(row.at("key"));
    if (keys.empty() || keys.back().key != key) keys.push_back({key, {}});
    keys.back().targets.push_back(row);
  }
  return sections;
}

TEST_F(TableWalk, EverySectionReadsItsKeysInTheirOrder) {
  const auto defined = definedSections();
  std::set<std::string> seen;
  for (const zeb::DispatchEntry& entry : zeb::cmpSections(*zeb::Inspection::tool(set))) {
    const Section& section = *entry.section;
    if (section.isPositional()) continue;
    const std::string name(section.name);
    SCOPED_TRACE(name);
    if (!defined.contains(name)) continue;
    seen.insert(name);
    std::vector<std::string> expected, actual;
    for (const DefinedKey& key : defined.at(name)) expected.push_back(key.key);
    for (const std::string_view key : section.filter.keys) {
      if (actual.empty() || actual.back() != key) actual.emplace_back(key);  // one key for several members
    }
    EXPECT_EQ(actual, expected);
    const TsvRow& any = defined.at(name).front().targets.front();
    EXPECT_EQ(section.open, unquoted(any.at("open")));
    EXPECT_EQ(section.close, unquoted(any.at("close")));
  }
  EXPECT_EQ(seen.size(), defined.size());
}

TEST_F(TableWalk, EveryPositionalFieldStandsInItsPlace) {
  std::map<std::string, std::vector<TsvRow>> defined;
  for (const TsvRow& row : zebtest::readTsv("positional.tsv")) {
    if (row.at("section") != "STDHEAD") defined[row.at("section")].push_back(row);
  }
  for (const auto& [name, rows] : defined) {
    SCOPED_TRACE(name);
    const Section* section = nullptr;
    for (const BlockView& view : blocks) {
      for (const Section& candidate : view.table->sections) {
        if (candidate.isPositional() && candidate.name == (name == "HEAD" ? "VER" : name)) section = &candidate;
      }
    }
    ASSERT_NE(section, nullptr);
    const auto slots = section->positional.slots;
    ASSERT_EQ(slots.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
      EXPECT_EQ(std::to_string(slots[i].at.line), rows[i].at("line"));
      EXPECT_EQ(std::to_string(slots[i].at.field), rows[i].at("field"));
      EXPECT_EQ(slots[i].type == FieldType::kInt ? "d" : "lf", rows[i].at("scan"));
      EXPECT_EQ(slots[i].row == nullptr ? "-" : std::string(slots[i].row->field.getter), rows[i].at("getter"));
    }
  }
}

// Every place of a positional section, written with a number of its own, through the public getters.
TEST_F(TableWalk, EveryPositionalFieldReachesItsGetter) {
  std::map<std::string, std::vector<TsvRow>> defined;
  for (const TsvRow& row : zebtest::readTsv("positional.tsv")) {
    if (row.at("section") != "STDHEAD" && row.at("section") != "HEAD") defined[row.at("section")].push_back(row);
  }
  ASSERT_FALSE(defined.empty());
  for (const auto& [name, rows] : defined) {
    SCOPED_TRACE(name);
    const BlockView& view = block(rows.front().at("class"));
    std::map<std::string, double> expected;
    std::string text;
    int line = 1;
    for (const TsvRow& row : rows) {
      const int at = std::stoi(row.at("line")), field = std::stoi(row.at("field"));
      if (at > line) text += "\n";
      line = at;
      const Row* member = rowOfGetter(view, row.at("getter"));
      ASSERT_NE(member, nullptr);
      const double value = at == 1 ? member->field.get(view.block) : at * 100 + field;
      text += std::to_string(static_cast<int>(value)) + " ";
      expected[row.at("getter")] = value;
    }
    std::istringstream stream(text + "\n");
    const zeb::LineSource serial;
    zeb::LineReader lines(stream, serial, nullptr);
    EXPECT_TRUE(zeb::readPositional(view.table->sections.front(), view.block, lines));
    for (const auto& [getter, value] : expected) {
      EXPECT_EQ(rowOfGetter(view, getter)->field.get(view.block), value) << getter;
    }
  }
}

}  // namespace
