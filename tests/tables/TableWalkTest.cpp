// Walks every row of every block's table and holds it against the definition of the format in tests/data.
#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <set>

#include "engine/DumpEngine.hpp"
#include "engine/SectionEngine.hpp"
#include "frame/CMPReader.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/Inspection.hpp"
#include "inspect/set/OutputCapture.hpp"
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
    const auto named = [&](const BlockView& view) { return view.table->className == className; };
    return *std::find_if(blocks.begin(), blocks.end(), named);
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

TEST_F(TableWalk, TheBlocksAreTheFortyTwoInTheirOrder) {
  const auto expected = zebtest::readTsv("blocks.tsv");
  ASSERT_EQ(blocks.size(), expected.size());
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    EXPECT_EQ(blocks[i].table->className, expected[i].at("class"));
    const std::string heading = expected[i].at("heading");
    EXPECT_EQ(blocks[i].table->heading, heading == "-" ? "" : unquoted(heading)) << blocks[i].name;
  }
}

TEST_F(TableWalk, TheDumpVisitsTheBlocksInItsOwnOrder) {
  std::vector<std::string> expected(38);
  for (const TsvRow& row : zebtest::readTsv("blocks.tsv")) {
    if (row.at("dump_position") != "-") expected[std::stoul(row.at("dump_position"))] = row.at("class");
  }
  std::vector<std::string> actual;
  for (const zeb::BlockEntry& entry : zeb::dumpedBlocks()) actual.emplace_back(entry.table().className);
  EXPECT_EQ(actual, expected);
}

TEST_F(TableWalk, TheDispatchTestsTheOpeningsInTheirOrder) {
  std::vector<std::string> expected, actual;
  for (const TsvRow& row : zebtest::readTsv("dispatch.tsv")) {
    const bool isHead = row.at("row") == "1";
    expected.push_back(unquoted(row.at("opening")) + " " + (isHead ? "CZEBCMPIteratParm" : row.at("class")));
  }
  for (const zeb::DispatchEntry& entry : zeb::cmpSections(*zeb::Inspection::tool(set))) {
    const auto filled = [&](const BlockView& view) { return view.block == entry.block; };
    const auto view = std::find_if(blocks.begin(), blocks.end(), filled);
    ASSERT_NE(view, blocks.end());
    actual.push_back(std::string(entry.section->open) + " " + std::string(view->table->className));
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
      ASSERT_NE(row, nullptr);
      ASSERT_NE(row->field.getText, nullptr);
      const char* text = row->field.getText(view.block);
      EXPECT_EQ(text == nullptr ? "null" : std::string(text),
                expected.at("default") == "-" ? "null" : unquoted(expected.at("default")));
      continue;
    }
    if (expected.at("type") != "int" && expected.at("type") != "double" && expected.at("type") != "bool") continue;
    ASSERT_NE(row, nullptr);
    ASSERT_NE(row->field.get, nullptr);
    const FieldType type = expected.at("type") == "int"      ? FieldType::kInt
                           : expected.at("type") == "double" ? FieldType::kDouble
                                                             : FieldType::kBool;
    EXPECT_EQ(row->field.type, type);
    if (expected.at("default") == "-") continue;
    EXPECT_EQ(valueThroughGetter(view, *row), toNumber(expected.at("default")));
  }
}

TEST_F(TableWalk, EveryRowOfACodeTableIsAMemberOfTheFormat) {
  std::set<std::string> known;
  for (const TsvRow& row : zebtest::readTsv("cmp_members.tsv")) {
    known.insert(row.at("class") + "::" + row.at("member"));
    known.insert(row.at("class") + "::m_" + row.at("getter"));
  }
  for (const BlockView& view : blocks) {
    if (hasOwnFile(view)) continue;
    for (const Section& section : view.table->sections) {
      for (const Row& row : section.rows) {
        const std::string name = std::string(view.table->className) + "::" + std::string(row.field.member);
        const bool isList = row.field.getter.empty();  // lists go by their own operations
        EXPECT_TRUE(known.contains(name) || isList) << name;
        EXPECT_FALSE(row.doc.empty()) << name << " says nothing about itself";
        EXPECT_TRUE(row.doc.empty() || row.doc.ends_with('.')) << name << ": " << row.doc;
      }
    }
  }
}

TEST_F(TableWalk, TheDumpHasTheLabelsInTheirOrder) {
  std::map<std::string, std::map<std::size_t, std::string>> labels;
  for (const TsvRow& row : zebtest::readTsv("cmp_members.tsv")) {
    if (row.at("dump_index") != "-") labels[row.at("class")][std::stoul(row.at("dump_index"))] = row.at("dump_label");
  }
  for (const auto& [className, byIndex] : labels) {
    SCOPED_TRACE(className);
    const BlockView& view = block(className);
    ASSERT_EQ(view.table->dumpOrder.size(), byIndex.size());
    for (const auto& [index, cell] : byIndex) {
      const std::string label(view.table->dumpOrder[index]->label);
      const std::string expected = unquoted(cell);
      if (expected.ends_with('*')) {
        // Name, one or more tabs, "= ".
        const std::string name = expected.substr(0, expected.size() - 1);
        const std::string tabs = label.substr(std::min(label.size(), name.size()));
        EXPECT_TRUE(label.starts_with(name) && tabs.ends_with("= ") && tabs.size() > 2 &&
                    tabs.find_first_not_of('\t') == tabs.size() - 2)
            << label;
      } else {
        EXPECT_EQ(label, expected);
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
    seen.insert(name);
    ASSERT_TRUE(defined.contains(name));
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

// What the definition makes of the text "2.75" for this target; nothing for lists and texts.
struct Expectation {
  double value;
  bool known;
};

Expectation expectationFor(const TsvRow& target, double number) {
  const std::string& rule = target.at("rule");
  const bool asInt = target.at("lookup") == "int";
  double value = asInt ? std::trunc(number) : number;
  if (target.at("lookup") == "presence") return {1.0, rule == "-"};
  if (target.at("lookup") != "int" && target.at("lookup") != "double") return {0.0, false};
  if (rule.find("list") != rule.npos || rule.find("gated") != rule.npos) return {0.0, false};
  if (const auto scale = rule.find("scale="); scale != rule.npos) value *= toNumber(rule.substr(scale + 6));
  if (const auto clamp = rule.find("clamp="); clamp != rule.npos) {
    const std::string range = rule.substr(clamp + 6);
    const auto dots = range.find("..");
    const std::string low = range.substr(0, dots), high = range.substr(dots + 2, range.find(';') - dots - 2);
    if (!low.empty() && value < toNumber(low)) value = toNumber(low);
    if (!high.empty() && value > toNumber(high)) value = toNumber(high);
  }
  return {value, true};
}

TEST_F(TableWalk, EveryKeyAloneSetsItsMembersAndItsEchoIsPrinted) {
  for (const auto& [name, keys] : definedSections()) {
    for (const DefinedKey& key : keys) {
      SCOPED_TRACE(name + ": " + key.key);
      CZEBKNCMPCompParm fresh(0, 0);
      const auto freshBlocks = zeb::blocksOf(fresh);
      const auto views = zeb::cmpSections(*zeb::Inspection::tool(fresh));
      const auto entry = std::find_if(views.begin(), views.end(),
                                      [&, &name = name](const auto& e) { return e.section->name == name; });
      ASSERT_NE(entry, views.end());
      std::istringstream text(key.key + " = 2.75\n" + std::string(entry->section->close) + "\n");
      const zeb::LineSource serial;
      zeb::LineReader lines(text, serial, nullptr);
      zeb::OutputCapture capture;
      zeb::readSection(*entry->section, entry->block, lines);
      for (const TsvRow& target : key.targets) {
        const auto view = std::find_if(freshBlocks.begin(), freshBlocks.end(),
                                       [&](const BlockView& v) { return v.block == entry->block; });
        const std::string getter = target.at("getter");
        if (target.at("rule").find("field=") != std::string::npos)
          continue;  // from the line's fields, not from its value
        const Row* row = rowOfGetter(*view, getter);
        if (target.at("lookup") == "string" || target.at("lookup") == "word") {
          ASSERT_NE(row, nullptr);
          EXPECT_STREQ(row->field.getText(view->block), "2.75");
          continue;
        }
        const Expectation expected = expectationFor(target, 2.75);
        if (!expected.known) continue;
        ASSERT_NE(row, nullptr) << getter;
        EXPECT_EQ(valueThroughGetter(*view, *row), expected.value) << getter;
        const auto echo = target.at("rule").find("echo=");
        if (echo != std::string::npos) {
          // The first echo's label, up to its value.
          const std::string quoted = target.at("rule").substr(echo + 5);
          std::string start = unquoted(quoted.substr(0, quoted.find('"', 1) + 1));
          start = start.substr(0, start.find('%'));
          EXPECT_EQ(capture.text().substr(0, start.size()), start);
        }
      }
    }
  }
}

// All keys of all ungated numeric rows, in one line order and in the reverse: the last line that sets a member wins.
TEST_F(TableWalk, AllKeysTogetherReadDumpAndReReadInBothLineOrders) {
  for (const bool reverse : {false, true}) {
    for (const BlockView& original : blocks) {
      if (hasOwnFile(original)) continue;
      for (const Section& section : original.table->sections) {
        if (section.filter.keys.empty()) continue;
        SCOPED_TRACE(std::string(section.open) + (reverse ? " reversed" : ""));
        std::vector<std::string> lines;
        int number = 0;
        for (const std::string_view key : section.filter.keys) {
          const Row& row = section.rows[section.readingOrder[lines.size()]];
          if (row.list != nullptr && row.echo.label.empty()) {
            lines.emplace_back();  // a list takes lines of its own
            continue;
          }
          lines.push_back(std::string(key) + " = " + std::to_string(++number + 1));
        }
        if (reverse) std::reverse(lines.begin(), lines.end());
        std::string text;
        for (const std::string& line : lines) text += line + "\n";
        text += std::string(section.close) + "\n";
        const auto readTwice = [&](void* block, int times) {
          zeb::OutputCapture quiet;
          for (; times > 0; --times) {
            std::istringstream stream(text);
            const zeb::LineSource serial;
            zeb::LineReader reader(stream, serial, nullptr);
            zeb::readSection(section, block, reader);
          }
          return zeb::dumpText(*original.table, block);
        };
        void* once = original.table->create();
        void* twice = original.table->create();
        const std::string first = readTwice(once, 1), second = readTwice(twice, 2);
        // A gate that opens late lets more through the second time; everything else is the same again.
        if (section.gate < 0 || !reverse) {
          EXPECT_EQ(first, second);
        }
        for (const Row& row : section.rows) {
          if (row.field.get == nullptr || row.store != nullptr) continue;
          const double value = row.field.get(once);
          const double stored = row.field.type == FieldType::kInt    ? *static_cast<int*>(row.field.locate(once))
                                : row.field.type == FieldType::kBool ? *static_cast<bool*>(row.field.locate(once))
                                                                     : *static_cast<double*>(row.field.locate(once));
          EXPECT_EQ(value, stored) << row.field.getter << " returns another member";
        }
        original.table->destroy(once);
        original.table->destroy(twice);
      }
    }
  }
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
  ASSERT_EQ(defined.size(), 3u);
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
