// The short way of a line "KEY = NUMBER" against the plain definition and against the search of the whole line, for
// every key and every pair of keys of every section.
#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <sstream>

#include "engine/SectionEngine.hpp"
#include "inspect/catalogue/Catalogue.hpp"
#include "inspect/set/Silence.hpp"
#include "tests/support/MemberContent.hpp"
#include "tests/support/PlainDefinition.hpp"

namespace {

using Block = std::unique_ptr<void, void (*)(void*)>;

zeb::Section withoutShortWay(zeb::Section section) {
  static constexpr std::uint8_t kNoKeys[2] = {};
  section.exactKeys = {nullptr, kNoKeys, 0, 63};
  return section;
}

bool holds(std::string_view line, std::string_view text) { return line.find(text) != line.npos; }

class SectionLines {
 public:
  SectionLines(const zeb::BlockTable& table, const zeb::Section& section)
      : m_table(table), m_section(section), m_whole(withoutShortWay(section)) {}

  // Whether the line reads as defined; says why not.
  testing::AssertionResult readsAsDefined(const std::string& line) const {
    const Block read = readInto(m_section, line), searched = readInto(m_whole, line);
    for (const zeb::Row& row : m_section.rows) {
      if (!zebtest::sameContent(row.field, read.get(), searched.get())) return differs(line, row, "the whole search");
    }
    return holdsDefinedNumbers(line, read.get());
  }

  testing::AssertionResult isSearchedAsDefined(const std::string& line) const {
    const zeb::KeyFilter& filter = m_section.filter;
    zeb::KeySet expected;
    for (std::size_t key = 0; key < filter.keys.size(); ++key) {
      if (holds(line, filter.keys[key])) expected.insert(key);
    }
    const zeb::KeyFilter::Hits hits = filter.find(line);
    if (hits.keys == expected && hits.closingTag == holds(line, m_section.close)) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "other keys are found in: " << line;
  }

 private:
  Block create() const { return {m_table.create(), m_table.destroy}; }

  Block readInto(const zeb::Section& section, const std::string& line) const {
    Block block = create();
    std::istringstream stream(line + "\n");
    const zeb::LineSource serial;
    zeb::LineReader reader(stream, serial, nullptr);
    zeb::readSection(section, block.get(), reader);
    return block;
  }

  // A list may take the line's place, so that keys behind its own are not read.
  testing::AssertionResult holdsDefinedNumbers(const std::string& line, void* read) const {
    const Block defined = create();
    std::set<void*> others;  // members that keys of another kind set
    const bool isRead = m_section.closingLineIsRead || !holds(line, m_section.close);
    for (std::size_t key = 0; isRead && key < m_section.filter.keys.size(); ++key) {
      const zeb::Row& row = m_section.rowOf(key);
      if (!holds(line, m_section.filter.keys[key])) continue;
      if (row.opensList()) return testing::AssertionSuccess();
      if (isGated(key, defined.get())) continue;
      if (!row.isPlainNumber()) others.insert(row.field.locate(defined.get()));
      if (row.field.type == zeb::FieldType::kInt) extract<int>(line, key, row, defined.get());
      if (row.field.type == zeb::FieldType::kDouble) extract<double>(line, key, row, defined.get());
    }
    for (const zeb::Row& row : m_section.rows) {
      if (!row.isPlainNumber() || others.count(row.field.locate(defined.get())) != 0) continue;
      if (!zebtest::sameContent(row.field, read, defined.get())) return differs(line, row, "the plain definition");
    }
    return testing::AssertionSuccess();
  }

  bool isGated(std::size_t key, const void* block) const {
    if (m_section.gate < 0 || static_cast<int>(key) <= m_section.gate) return false;
    return m_section.gateRow().field.in<int>(block) < m_section.gateRow().gateBelow;
  }

  template <class Number>
  void extract(const std::string& line, std::size_t key, const zeb::Row& row, void* block) const {
    zebtest::plainExtract(line, std::string(m_section.filter.keys[key]), row.field.in<Number>(block));
  }

  testing::AssertionResult differs(const std::string& line, const zeb::Row& row, const char* other) const {
    return testing::AssertionFailure() << m_section.open << ": " << row.field.member << " differs from that of "
                                       << other << " in the line: " << line;
  }

  const zeb::BlockTable& m_table;
  const zeb::Section& m_section;
  zeb::Section m_whole;
};

struct KeyedSection {
  const zeb::BlockTable* table;
  const zeb::Section* section;
};

std::vector<KeyedSection> keyedSections() {
  std::vector<KeyedSection> sections;
  std::set<const zeb::Section*> seen;
  for (const zeb::CatalogueEntry& entry : zeb::catalogue()) {
    const bool isKeyed = !entry.section->filter.keys.empty();
    if (isKeyed && seen.insert(entry.section).second) sections.push_back({entry.table, entry.section});
  }
  return sections;
}

// "KEY" stands for the key, "OTHER" for another one.
std::string filled(std::string form, std::string_view key, std::string_view other) {
  for (const auto& [name, text] : {std::pair("OTHER", other), std::pair("KEY", key)}) {
    const std::size_t at = form.find(name);
    if (at != form.npos) form.replace(at, std::string_view(name).size(), text);
  }
  return form;
}

TEST(ExactLine, EveryKeyReadsAsDefined) {
  const zeb::Silence silence;
  for (const auto& [table, section] : keyedSections()) {
    const SectionLines lines(*table, *section);
    const std::string close(section->close);
    for (const std::string_view key : section->filter.keys) {
      for (const std::string& form : {std::string("KEY=1"),
                                      std::string(" KEY\t = 1.5 "),
                                      std::string("KEY  = 5x"),
                                      std::string("KEY = +5"),
                                      std::string("KEY = 1e"),
                                      std::string("KEY = 1e2\t\r"),
                                      std::string("KEY = -0"),
                                      std::string("KEY = .5"),
                                      std::string("KEY = 99999999999"),
                                      std::string("KEY = 999999999"),
                                      std::string("KEY == 1"),
                                      std::string("KEY = 1 = 2"),
                                      std::string("\vKEY = 1"),
                                      std::string("KEY =\t1"),
                                      std::string("KEY = 1\v"),
                                      std::string("KEY = 1 2"),
                                      std::string("KEY ="),
                                      std::string("KEY"),
                                      std::string("KEY 1"),
                                      std::string("= KEY 1"),
                                      std::string("=1"),
                                      std::string(" = 1"),
                                      std::string("\xFF KEY = 1"),
                                      std::string("xKEY = 1"),
                                      std::string("KEYx = 1"),
                                      std::string("KEY x = 1"),
                                      "KEY = 1" + close,
                                      close + "KEY = 1",
                                      "KEY" + close + " = 1",
                                      "KEY = 1 " + close.substr(1)}) {
        const std::string line = filled(form, key, "");
        ASSERT_TRUE(lines.readsAsDefined(line));
        ASSERT_TRUE(lines.isSearchedAsDefined(line));
      }
    }
  }
}

TEST(ExactLine, EveryPartOfAKeyReadsAsDefined) {
  const zeb::Silence silence;
  for (const auto& [table, section] : keyedSections()) {
    const SectionLines lines(*table, *section);
    for (const std::string_view key : section->filter.keys) {
      for (std::size_t length = 1; length < key.size(); ++length) {
        ASSERT_TRUE(lines.readsAsDefined(std::string(key.substr(0, length)) + " = 1"));
        ASSERT_TRUE(lines.readsAsDefined(std::string(key.substr(length)) + " = 1"));
        // Keys are told apart by some of their characters: one of another kind at each place.
        std::string changed(key);
        changed[length] = changed[length] == '_' ? '-' : '_';
        ASSERT_TRUE(lines.readsAsDefined(changed + " = 1"));
      }
    }
  }
}

TEST(ExactLine, EveryPairOfKeysReadsAsDefined) {
  const zeb::Silence silence;
  std::size_t pairs = 0;
  for (const auto& [table, section] : keyedSections()) {
    const SectionLines lines(*table, *section);
    for (const std::string_view key : section->filter.keys) {
      for (const std::string_view other : section->filter.keys) {
        ++pairs;
        for (const char* form : {"KEY = 1 # OTHER", "KEYOTHER = 1", "OTHER KEY = 1", "KEY = OTHER"}) {
          const std::string line = filled(form, key, other);
          ASSERT_TRUE(lines.readsAsDefined(line));
          ASSERT_TRUE(lines.isSearchedAsDefined(line));
        }
      }
    }
  }
  EXPECT_GT(pairs, 5'000u);
}

}  // namespace
