// The General block: random lines against the plain definition of the lookups, and how numbers are printed.
#include <gtest/gtest.h>

#include <cstdio>
#include <limits>
#include <map>
#include <sstream>

#include "blocks/CZEBCMPGeneralParm.h"
#include "inspect/set/OutputCapture.hpp"
#include "tests/blocks/ReadBlock.hpp"
#include "tests/support/PlainDefinition.hpp"
#include "tests/support/RandomText.hpp"
#include "tests/support/Tsv.hpp"

namespace {

using zebtest::dumpOf;
using zebtest::printedBy;
using zebtest::readSectionInto;
using zebtest::TsvRow;
using Block = CZEBCMPGeneralParm;

struct Key {
  std::string name;
  std::string lookup;  // int, double, word or string
  std::string getter;
};

// In the reader's order.
const std::vector<Key>& generalKeys() {
  static const std::vector<Key> kKeys = [] {
    std::vector<Key> keys;
    for (const TsvRow& row : zebtest::readTsv("cmp_keys.tsv")) {
      if (row.at("section") != "General") continue;
      keys.push_back({zebtest::unquoted(row.at("key")), row.at("lookup"), row.at("getter")});
    }
    return keys;
  }();
  return kKeys;
}

// --- Against the plain definition -------------------------------------------------------------------------------

// What the definition makes of a section: every key against every line, in order.
struct PlainGeneral {
  std::map<std::string, double> numbers;
  std::map<std::string, std::string> texts;
  std::string echo;

  template <class Number>
  void readNumber(const std::string& line, const Key& key, Number unparsed) {
    Number value = unparsed;
    if (zebtest::plainExtract(line, key.name, value) == 0 || value == unparsed) return;
    numbers[key.getter] = value;
    if (key.name != "VECouplingDegree") return;
    char text[400];
    std::snprintf(text, sizeof text, "m_dVECouplingDegree = %lf \n", static_cast<double>(value));
    echo += text;
  }

  void readText(const std::string& line, const Key& key) {
    std::string text;
    const bool found = key.lookup == "word" ? zebtest::plainExtract(line, key.name, text) != 0 && !text.empty()
                                            : zebtest::plainString(line, key.name, text) != 0;
    if (found) texts[key.getter] = text;
  }

  void readLine(const std::string& line) {
    for (const Key& key : generalKeys()) {
      if (key.lookup == "int") {
        readNumber(line, key, std::numeric_limits<int>::min() + 12345);
      } else if (key.lookup == "double") {
        readNumber(line, key, -std::numeric_limits<double>::max());
      } else {
        readText(line, key);
      }
    }
  }
};

std::string randomLine(zebtest::RandomText& random) {
  static const std::vector<std::string> kBetween = {" = ", "=", " =\t", "\t= ", " ", " == ", " =   "};
  std::string line = random.oneIn(10) ? random.noise() : "";
  if (random.oneIn(12)) line += random.pick(generalKeys()).name.substr(1) + " ";
  line += random.pick(generalKeys()).name + random.pick(kBetween) + random.number();
  if (random.oneIn(6)) line += " " + random.pick(generalKeys()).name;
  return line.substr(0, line.find('\0'));
}

TEST(GeneralDifferential, EqualsThePlainDefinitionOnRandomSections) {
  zebtest::RandomText random(20250117);
  Block fresh;
  const zeb::Section& section = zebtest::sectionOf<Block>("General");
  std::size_t changed = 0, echoed = 0;
  for (int number = 0; number < 300; ++number) {
    PlainGeneral plain;
    std::string text;
    for (int lines = 0; lines < 50; ++lines) {
      const std::string line = randomLine(random);
      plain.readLine(line);
      text += line + "\n";
    }
    Block block;
    const zeb::OutputCapture capture;
    readSectionInto(block, "General", text);
    ASSERT_EQ(capture.text(), plain.echo) << text;
    for (const zeb::Row& row : section.rows) {
      const std::string getter(row.field.getter);
      if (row.field.getText != nullptr) {
        const char* actual = row.field.getText(&block);
        const auto expected = plain.texts.find(getter);
        ASSERT_EQ(actual != nullptr, expected != plain.texts.end()) << getter << '\n' << text;
        if (actual != nullptr) {
          ASSERT_EQ(actual, expected->second) << getter << '\n' << text;
        }
        continue;
      }
      const auto expected = plain.numbers.find(getter);
      ASSERT_EQ(row.field.get(&block), expected == plain.numbers.end() ? row.field.get(&fresh) : expected->second)
          << getter << '\n'
          << text;
    }
    changed += plain.numbers.size() + plain.texts.size();
    echoed += plain.echo.empty() ? 0 : 1;
  }
  EXPECT_GT(changed, 3000u);
  EXPECT_GT(echoed, 20u);
}

// --- What is printed --------------------------------------------------------------------------------------------

TEST(GeneralEcho, ShowsEveryValueWithSixDecimals) {
  for (const char* written : {"0", "-0", "-0.0000001", "1e300", "-1.7976931348623157e308", "5e-324", "0.9999996"}) {
    char expected[400];
    std::snprintf(expected, sizeof expected, "m_dVECouplingDegree = %lf \n",
                  std::stod(written[0] == '5' ? "0" : written));
    Block block;
    EXPECT_EQ(
        printedBy([&] { readSectionInto(block, "General", "VECouplingDegree = " + std::string(written) + "\n"); }),
        expected)
        << written;
  }
}

std::string dumpedHotInitT(double value) {
  Block block;
  block.SetHotInitT(value);
  const std::string dump = dumpOf(block);
  const std::size_t line = dump.find("\nm_dHotInitT\t") + 1, equals = dump.find("= ", line);
  return dump.substr(equals + 2, dump.find('\n', line) - equals - 2);
}

TEST(GeneralDump, ADoubleLooksAsAStreamShowsIt) {
  EXPECT_EQ(dumpedHotInitT(1234567), "1.23457e+06");
  EXPECT_EQ(dumpedHotInitT(0.00001), "1e-05");
  for (const double value : {0.0, -0.0, 1e5, 1e6, 999999.0, 999999.5, 123456.5, 0.1, 0.0001, 0.00012345678, 1e-300,
                             5e-324, 1.7976931348623157e308, -2.5, 1.0 / 3.0, std::numeric_limits<double>::infinity(),
                             -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
    std::ostringstream expected;
    expected.imbue(std::locale::classic());
    expected << value;
    EXPECT_EQ(dumpedHotInitT(value), expected.str());
  }
}

}  // namespace
