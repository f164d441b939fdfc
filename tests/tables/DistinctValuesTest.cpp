// One file that gives every key and every head field a value of its own: what the dump then shows under each label,
// and what a copy of each block holds. Two members that a block mixes up cannot hide behind equal defaults.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "ZEBKNCompParm.h"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/OutputCapture.hpp"
#include "tests/support/KeyRules.hpp"
#include "tests/support/SetValues.hpp"
#include "tests/support/TestFolder.hpp"
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
  return zebtest::ruled(key, key.at("lookup") == "int" ? static_cast<int>(value) : value);
}

// Values as the dump shows them, by class and getter.
using ByGetter = std::map<std::string, std::map<std::string, std::string>>;

// No two values of the viscoelastic file are the same either.
const char kCompanion[] =
    "1006\n150 2.5 0\n11 0.25 12.5\n12.25 0.5 0\n3 20000.5\n-10 500 0\n1.5 0.75 3.5\n4 0.4 2\n0\n"
    "<VE_Solver>\nVE_Para1 = 0.65\n</VE_Solver>\n"
    "<WhiteMetzner_Gai>\nWM_Switch = 6\nWM_Para1 = 0.125\nWM_Para2 = 0.875\n</WhiteMetzner_Gai>\n"
    "<Complete_PTT>\nPTT_Xi = 0.375\n</Complete_PTT>\n"
    "<PLOT_MATERIAL>\nFlagIsPlotShearVis = 2\nRefTemperature = 17\n</PLOT_MATERIAL>\n"
    "<PLOT_TRANSIENT_EXTENSION_MATERIAL>\nRefTemperature = 18\nTotalSetofInputSRate = 1\nStrainRate = 19\n";

// The files, and what the definition of the format makes of the first.
class DistinctValues : public testing::Test {
 protected:
  DistinctValues() {
    addHead();
    addSections();
    m_folder.write("distinct.vecmp", kCompanion);
    set.getVEParm()->setIstoCalcRS(true);
    set.getVEParm()->setTgPoint(90.0);
    read();
    set.getGeneralParm()->SetCouple_VE(77);
    expected["CZEBCMPGeneralParm"]["iCouple_VE"] = "77";
  }

  void read() {
    const zeb::OutputCapture echoes;
    set.setSolidFillBlock(m_folder.write("distinct.cmp", m_file));
  }

  CZEBKNCMPCompParm set{0, 0};
  ByGetter expected;

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

  zeb::test::TestFolder m_folder;
  std::string m_file;
  int m_next = 1001;
};

// --- The dump ---------------------------------------------------------------------------------------------------

struct Label {
  std::string text;  // "name*" stands for the name, one or more tabs and "= "
  std::string value;
  bool isAddress = false;
  bool blankLineFollows = false;
};

using Labels = std::map<std::size_t, Label>;

std::string shownDefault(const std::string& cell) { return cell == "-" ? "" : streamed(std::stod(cell)); }

std::map<std::string, Labels> labelsOf(const ByGetter& values) {
  std::map<std::string, Labels> labels;
  for (const TsvRow& row : zebtest::readTsv("cmp_members.tsv")) {
    if (row.at("dump_index") == "-") continue;
    const bool isList = row.at("type") == "doubles" || row.at("type") == "points";
    Label label{unquoted(row.at("dump_label")), "", isList};
    const auto block = values.find(row.at("class"));
    const bool isSet = block != values.end() && (isList || block->second.contains(row.at("getter")));
    label.value = isList  ? (isSet ? "a list" : "")
                  : isSet ? block->second.at(row.at("getter"))
                          : shownDefault(row.at("default"));
    labels[row.at("class")][std::stoul(row.at("dump_index"))] = label;
  }
  return labels;
}

// The low half of a double's bytes as a signed int: what "%d" makes of it.
std::string lowBits(double value) {
  std::int32_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return std::to_string(bits);
}

// The viscoelastic block's own values, by its getters; the tests of its file say that these are right.
Labels viscoelasticLabels(const CZEBKNCMPCompParm& set) {
  const zebtest::Values values = zebtest::valuesOf(zeb::blocksOf(set));
  Labels labels;
  for (const TsvRow& row : zebtest::readTsv("ve_members.tsv")) {
    if (row.at("dump_index") == "-") continue;
    Label label{unquoted(row.at("dump_label")), row.at("default"), false, row.at("blank_line_after") == "yes"};
    if (row.at("type") == "bool") label.value = values.at("VE." + row.at("member")) == "true" ? "1" : "0";
    if (row.at("getter") != "-") {
      const double value = std::stod(values.at("VE." + row.at("getter")));
      const bool showsBits = row.at("type") == "double" && row.at("dump_format") == "\"%d\"";
      label.value = showsBits ? lowBits(value) : streamed(value);
    }
    labels[std::stoul(row.at("dump_index"))] = label;
  }
  return labels;
}

// A dump line as it must be, its addresses and the free number of tabs aside.
std::string withoutFreedoms(const Label& label, const std::string& line) {
  if (label.isAddress) return std::regex_replace(line, std::regex("0x[0-9a-f]+$"), "ADDRESS");
  if (!label.text.ends_with('*')) return line;
  const std::size_t tabs = label.text.size() - 1, end = line.find_first_not_of('\t', std::min(tabs, line.size()));
  return end == line.npos || end == tabs ? line : line.substr(0, tabs) + "*" + line.substr(end);
}

std::string expectedLine(const Label& label) {
  if (label.isAddress) return label.text + (label.value.empty() ? "0" : "ADDRESS");
  return label.text + (label.text.ends_with('*') ? "= " : "") + label.value;
}

// The whole dump, from its first line to its last.
void expectDump(CZEBKNCMPCompParm set, const ByGetter& values) {
  std::map<std::string, Labels> labels = labelsOf(values);
  labels["CZEBCMPVEParm"] = viscoelasticLabels(set);
  std::map<std::size_t, TsvRow> blocks;
  for (const TsvRow& block : zebtest::readTsv("blocks.tsv")) {
    if (block.at("dump_position") != "-") blocks[std::stoul(block.at("dump_position"))] = block;
  }
  const zeb::OutputCapture capture;
  EXPECT_EQ(set.OutputParameters(), 1);
  std::istringstream dump(capture.text());
  std::string line;
  for (const auto& [position, block] : blocks) {
    SCOPED_TRACE(block.at("class"));
    std::istringstream heading(unquoted(block.at("heading")));
    for (std::string part; std::getline(heading, part);) {
      ASSERT_TRUE(std::getline(dump, line));
      ASSERT_EQ(line, part);
    }
    for (const auto& [index, label] : labels.at(block.at("class"))) {
      ASSERT_TRUE(std::getline(dump, line));
      ASSERT_EQ(withoutFreedoms(label, line), expectedLine(label));
      if (label.blankLineFollows) {
        ASSERT_TRUE(std::getline(dump, line));
        ASSERT_EQ(line, "");
      }
    }
  }
  EXPECT_FALSE(std::getline(dump, line)) << line;
}

TEST_F(DistinctValues, StandBehindTheirOwnLabelsInTheDump) { expectDump(set, expected); }

TEST(Dump, OfAnUntouchedSetShowsTheDefaults) { expectDump(CZEBKNCMPCompParm(0, 0), {}); }

// --- Getters and copies -----------------------------------------------------------------------------------------

TEST_F(DistinctValues, ComeOutOfTheirOwnGetters) {
  const zebtest::Values values = zebtest::valuesOf(zeb::blocksOf(set));
  for (const auto& [className, byGetter] : expected) {
    for (const auto& [getter, value] : byGetter) {
      if (getter.rfind("dDispenser.", 0) == 0) continue;  // an operation with two outputs, no getter
      const auto shown = values.find(zeb::blockName(className) + "." + getter);
      if (shown == values.end()) {
        ADD_FAILURE() << "no row in the table of " << className << " for the getter " << getter;
        continue;
      }
      const std::string& actual = shown->second;
      const bool isText = actual.starts_with('"');
      EXPECT_EQ(isText ? unquoted(actual) : streamed(std::stod(actual)), value) << className << "::" << getter;
    }
  }
}

TEST_F(DistinctValues, StayTheSameWhenTheFileIsReadAgain) {
  const zebtest::Values before = zebtest::valuesOf(zeb::blocksOf(set));
  read();
  EXPECT_EQ(zebtest::differences(before, zebtest::valuesOf(zeb::blocksOf(set))), std::vector<std::string>());
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

template <class... Blocks>
void assignAll(const CZEBKNCMPCompParm& from, const CZEBKNCMPCompParm& to, zeb::BlockTypes<Blocks...> /*all*/) {
  const auto assign = [](auto& block, const auto& other) {
    const auto copy(other);
    EXPECT_EQ(&(block = copy), &block);
  };
  CZEBCMPInternalTool &source = *zeb::Inspection::tool(from), &target = *zeb::Inspection::tool(to);
  (assign(target.block<Blocks>(), source.block<Blocks>()), ...);
}

TEST_F(DistinctValues, AreAllTakenByACopyAndAnAssignmentOfEachBlock) {
  const CZEBKNCMPCompParm other(0, 0);
  assignAll(set, other, zeb::CMPBlocks());
  EXPECT_EQ(zebtest::valuesOf(zeb::blocksOf(other)), zebtest::valuesOf(zeb::blocksOf(set)));
}

}  // namespace
