// One file that gives every key and every head field a value of its own: what the dump then shows under each label,
// and what a copy of each block holds. Two members that a block mixes up cannot hide behind equal defaults.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "frame/AllBlocks.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/Inspection.hpp"
#include "inspect/set/OutputCapture.hpp"
#include "inspect/set/Settings.hpp"
#include "tests/support/TemporaryFile.hpp"
#include "tests/support/Tsv.hpp"

namespace {

using zebtest::TsvRow;
using zebtest::unquoted;

std::string streamed(double value) {
  std::ostringstream stream;
  stream << value;
  return stream.str();
}

// "1007.5" as the key's lookup takes it.
double asLookedUp(const TsvRow& key, double value) {
  value = key.at("lookup") == "int" ? static_cast<int>(value) : value;
  const std::string& rule = key.at("rule");
  if (rule == "scale=1e7") return value * 1e7;
  if (rule == "clamp=0.001..0.999") return 0.999;
  if (rule == "clamp=1e-6..0.999999") return 0.999999;
  return value;
}

// The file, and what the definition of the format makes of it: values as the dump shows them, by class and getter.
class DistinctValues : public testing::Test {
 protected:
  DistinctValues() {
    addHead();
    addSections();
    const zebtest::TemporaryFile file(m_file);
    const zeb::OutputCapture echoes;
    set.setSolidFillBlock(file.path());
    set.getGeneralParm()->SetCouple_VE(77);
    expected["CZEBCMPGeneralParm"]["iCouple_VE"] = "77";
  }

  CZEBKNCMPCompParm set{0, 0};
  std::map<std::string, std::map<std::string, std::string>> expected;

 private:
  void addHead() {
    m_file = "[VER] 1023\n";
    int line = 1;
    for (const TsvRow& row : zebtest::readTsv("positional.tsv")) {
      if (row.at("section") != "HEAD") continue;
      const int at = std::stoi(row.at("line")), field = std::stoi(row.at("field"));
      for (; line < at; ++line) m_file += "\n";
      const double value = at * 100 + field + (row.at("scan") == "d" ? 0.0 : 0.5);
      m_file += streamed(value) + " ";
      if (row.at("getter") != "-") expected[row.at("class")][row.at("getter")] = streamed(value);
    }
    m_file += "\n";
  }

  // A line also sets the members of every key that its own key contains, so the longest keys come first and each key
  // has the last word; but what opens a gate stands in front, and what takes lines of its own at the end.
  void addSections() {
    std::map<std::string, std::vector<TsvRow>> sections;
    for (const TsvRow& row : zebtest::readTsv("cmp_keys.tsv")) {
      if (row.at("read_index") != "-" && row.at("class").rfind("CZEBCool", 0) != 0) {
        sections[row.at("section")].push_back(row);
      }
    }
    const auto place = [](const TsvRow& row) {
      if (row.at("rule").rfind("gate<", 0) == 0) return 0;
      return takesLinesOfItsOwn(row) ? 2 : 1;
    };
    for (auto& [name, rows] : sections) {
      std::stable_sort(rows.begin(), rows.end(), [&](const TsvRow& a, const TsvRow& b) {
        return place(a) != place(b) ? place(a) < place(b) : a.at("key").size() > b.at("key").size();
      });
      addSection(rows);
    }
  }

  void addSection(const std::vector<TsvRow>& rows) {
    m_file += unquoted(rows.front().at("open")) + "\n";
    double value = 0.0;
    std::string before;
    for (const TsvRow& row : rows) {
      const bool takesLines = takesLinesOfItsOwn(row);
      if (row.at("key") != before) {  // the next target of the same key otherwise
        value = takesLines ? 4 : m_next++ + 0.5;
        before = row.at("key");
        m_file += unquoted(before) + " = " + streamed(value) + "\n";
        if (takesLines) m_file += "Weightings = 0.125\nWeightings = 0.25\nWeightings = 0.5\nWeightings = 0\n";
      }
      const bool isText = row.at("lookup") == "string" || row.at("lookup") == "word";
      expected[row.at("class")][row.at("getter")] = streamed(isText ? value : asLookedUp(row, value));
    }
    m_file += unquoted(rows.front().at("close")) + "\n";
  }

  static bool takesLinesOfItsOwn(const TsvRow& row) { return row.at("key") == "\"NumberofInletGroups\""; }

  std::string m_file;
  int m_next = 1001;
};

// A dump line against its label; "name*" stands for the name, one or more tabs and "= ".
void expectLine(const std::string& line, const std::string& label, const std::string& value) {
  if (!label.ends_with('*')) {
    EXPECT_EQ(line, label + value);
    return;
  }
  const std::string name = label.substr(0, label.size() - 1);
  const std::size_t tabsEnd = line.find_first_not_of('\t', name.size());
  EXPECT_EQ(line.substr(0, name.size()), name);
  ASSERT_NE(tabsEnd, line.npos);
  EXPECT_GT(tabsEnd, name.size());
  EXPECT_EQ(line.substr(tabsEnd), "= " + value);
}

TEST_F(DistinctValues, StandBehindTheirOwnLabelsInTheDump) {
  std::map<std::string, std::map<std::size_t, TsvRow>> members;
  for (const TsvRow& row : zebtest::readTsv("cmp_members.tsv")) {
    if (row.at("dump_index") != "-") members[row.at("class")][std::stoul(row.at("dump_index"))] = row;
  }
  std::string dump;
  {
    const zeb::OutputCapture capture;
    EXPECT_EQ(set.OutputParameters(), 1);
    dump = capture.text();
  }
  int lines = 0;
  for (const TsvRow& block : zebtest::readTsv("blocks.tsv")) {
    const std::string& className = block.at("class");
    if (!members.contains(className)) continue;  // not dumped, or (the viscoelastic block) not from this file
    SCOPED_TRACE(className);
    const std::string heading = unquoted(block.at("heading")) + "\n";
    ASSERT_NE(dump.find(heading), dump.npos);
    std::istringstream part(dump.substr(dump.find(heading) + heading.size()));
    for (const auto& [index, member] : members[className]) {
      std::string line, value = member.at("default");
      ASSERT_TRUE(std::getline(part, line));
      const auto& ofClass = expected[className];
      if (const auto found = ofClass.find(member.at("getter")); found != ofClass.end()) {
        value = found->second;
      } else if (value != "-") {
        value = streamed(std::stod(value));
      }
      const std::string label = unquoted(member.at("dump_label"));
      if (member.at("type") == "doubles" || member.at("type") == "points") {
        EXPECT_EQ(line.substr(0, label.size() + 2), label + "0x");  // the address of the list
      } else {
        expectLine(line, label, value);
      }
      ++lines;
    }
    std::string rest;
    std::getline(part, rest);
    EXPECT_EQ(rest, "") << "nothing but the next block's heading follows";
  }
  EXPECT_EQ(lines, 503);
}

const zeb::Row* rowOfGetter(const zeb::BlockTable& table, const std::string& getter) {
  for (const zeb::Section& section : table.sections) {
    for (const zeb::Row& row : section.rows) {
      if (row.field.getter == getter) return &row;
    }
  }
  return nullptr;
}

TEST_F(DistinctValues, ComeOutOfTheirOwnGetters) {
  int checked = 0;
  for (const zeb::BlockView& view : zeb::blocksOf(set)) {
    for (const auto& [getter, value] : expected[std::string(view.table->className)]) {
      if (getter.rfind("dDispenser.", 0) == 0) continue;  // an operation with two outputs, no getter
      SCOPED_TRACE(view.name + "." + getter);
      const zeb::Row* row = rowOfGetter(*view.table, getter);
      ASSERT_NE(row, nullptr);
      EXPECT_EQ(row->field.getText != nullptr ? row->field.getText(view.block) : streamed(row->field.get(view.block)),
                value);
      ++checked;
    }
  }
  EXPECT_GT(checked, 500);
}

// That the file is worth reading: no two members of a block agree but those that share a key.
TEST_F(DistinctValues, AreDistinct) {
  for (const auto& [className, values] : expected) {
    std::map<std::string, std::set<std::string>> getters;
    for (const auto& [getter, value] : values) getters[value].insert(getter);
    for (const auto& [value, same] : getters) {
      const bool sharesAKey = className == "CZEBCMPCompressibleFlowParm" && same.size() == 3;
      EXPECT_TRUE(same.size() == 1 || sharesAKey) << className << " " << *same.begin() << " = " << value;
    }
  }
}

template <std::size_t... kIndex>
void assignAll(const CZEBKNCMPCompParm& from, const CZEBKNCMPCompParm& to, std::index_sequence<kIndex...>) {
  const auto source = zeb::blocksOf(from), target = zeb::blocksOf(to);
  const auto assign = [](auto& block, const auto& other) { block = other; };
  (assign(*static_cast<std::tuple_element_t<kIndex, zeb::AllBlocks>*>(target[kIndex].block),
          *static_cast<const std::tuple_element_t<kIndex, zeb::AllBlocks>*>(source[kIndex].block)),
   ...);
}

TEST_F(DistinctValues, AreAllTakenByAnAssignmentOfEachBlock) {
  CZEBKNCMPCompParm other(0, 0);
  const std::string before = zeb::fingerprint(zeb::blocksOf(other));
  assignAll(set, other, std::make_index_sequence<std::tuple_size_v<zeb::AllBlocks>>());
  const std::string after = zeb::fingerprint(zeb::blocksOf(other));
  EXPECT_NE(after, before);
  EXPECT_TRUE(after == zeb::fingerprint(zeb::blocksOf(set)));
}

}  // namespace
