// Every key of every section alone in a file: what it changes and prints, against the definition of the format.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/OutputCapture.hpp"
#include "tests/support/KeyRules.hpp"
#include "tests/support/SetValues.hpp"
#include "tests/support/TemporaryFile.hpp"

namespace {

using zebtest::hasRule;
using zebtest::numberIn;
using zebtest::ruled;
using zebtest::TsvRow;
using zebtest::unquoted;
using zebtest::Values;

// The rows of a section in the order in which its reader looks for their keys.
using SectionRows = std::vector<TsvRow>;

std::map<std::string, SectionRows> sectionsOfTheFormat() {
  std::map<std::string, SectionRows> sections;
  for (const TsvRow& row : zebtest::readTsv("cmp_keys.tsv")) {
    if (row.at("read_index") != "-") sections[row.at("section")].push_back(row);
  }
  return sections;
}

// The second output of an operation goes by its member.
std::string nameOf(const TsvRow& row) {
  const std::string& getter = row.at("getter");
  return zeb::blockName(row.at("class")) + "." + (getter == "dDispenser.speed" ? "m_dDispenserSpeed" : getter);
}

// `echo="text"` prints text, value and line end; a text with '%' is a whole C format.
std::string echoOf(const std::string& label, double value, const std::string& line) {
  if (label == "sline = ") return label + line + "\n";
  std::ostringstream text;
  if (label.find('%') == std::string::npos) {
    text << label << value << '\n';
    return text.str();
  }
  char formatted[400];
  std::snprintf(formatted, sizeof formatted, "%s%f%s", label.substr(0, label.find('%')).c_str(), value,
                label.substr(label.find("lf") + 2).c_str());
  return formatted;
}

std::vector<std::string> echoesOf(const TsvRow& row) {
  std::vector<std::string> labels;
  const std::string& rule = row.at("rule");
  for (std::size_t at = 0; (at = rule.find("echo=\"", at)) != std::string::npos;) {
    const std::size_t begin = at + 5, end = rule.find('"', begin + 1) + 1;
    labels.push_back(unquoted(rule.substr(begin, end - begin)));
    at = end;
  }
  return labels;
}

struct Expected {
  Values values;
  std::string printed;
  double gate = std::nan("");
};

void applyRow(const TsvRow& row, const std::string& line, double written, Expected& expected) {
  if (hasRule(row, "gated") && !(expected.gate >= 0)) return;
  if (hasRule(row, "field=")) return;  // behind '=' stands no further field
  const std::string name = nameOf(row), lookup = row.at("lookup");
  if (lookup == "string" || lookup == "word") {
    expected.values[name] = '"' + zebtest::numberText(written) + '"';
    return;
  }
  const double value = lookup == "presence" ? 1.0 : ruled(row, lookup == "int" ? std::trunc(written) : written);
  expected.values[name] = zebtest::numberText(value);
  for (const std::string& label : echoesOf(row)) expected.printed += echoOf(label, value, line);
  if (hasRule(row, "gate<")) expected.gate = value - numberIn(row.at("rule").substr(5));
}

void applyLine(const SectionRows& rows, const std::string& key, double written, Expected& expected) {
  const std::string line = key + " = " + zebtest::numberText(written);
  for (const TsvRow& row : rows) {
    if (line.find(unquoted(row.at("key"))) != std::string::npos) applyRow(row, line, written, expected);
  }
}

class KeyWalk : public testing::Test {
 protected:
  // The section with one line before the key's, which opens a gate; an empty `opener` for none.
  void expectKey(const SectionRows& rows, const std::string& key, const std::string& opener, double written) const {
    Expected expected{m_defaults, "", std::nan("")};
    if (!opener.empty()) applyLine(rows, opener, 2.0, expected);
    applyLine(rows, key, written, expected);
    const zebtest::TemporaryFile file(unquoted(rows.front().at("open")) + "\n" +
                                      (opener.empty() ? "" : opener + " = 2\n") + key + " = " +
                                      zebtest::numberText(written) + "\n" + unquoted(rows.front().at("close")) + "\n");
    CZEBKNCMPCompParm set(0, 0);
    const zeb::OutputCapture capture;
    set.setSolidFillBlock(file.path());
    EXPECT_EQ(zebtest::differences(expected.values, zebtest::valuesOf(zeb::blocksOf(set))), std::vector<std::string>());
    EXPECT_EQ(capture.text(), expected.printed);
  }

  const Values m_defaults = zebtest::valuesOf(zeb::blocksOf(CZEBKNCMPCompParm(0, 0)));
};

TEST_F(KeyWalk, EachKeyAloneSetsItsMembersAndThoseOfTheKeysInItAndNothingElse) {
  for (const auto& [section, rows] : sectionsOfTheFormat()) {
    std::string opener, before;
    for (const TsvRow& row : rows) {
      if (hasRule(row, "gate<")) opener = unquoted(row.at("key"));
    }
    for (const TsvRow& row : rows) {
      const std::string key = unquoted(row.at("key"));
      // Lists stand in the readings; a key may have several members.
      if (hasRule(row, "list") || key == before) continue;
      before = key;
      SCOPED_TRACE(section + ": " + key);
      for (const double written : {37.25, -2.75}) {
        expectKey(rows, key, "", written);
        if (!opener.empty() && key != opener) expectKey(rows, key, opener, written);
      }
    }
  }
}

}  // namespace
