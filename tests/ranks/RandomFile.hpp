// Random CMP files: sections with their keys, lists, heads and positional sections, noise, and pieces cut off. No line
// is longer than the 254 characters that ranks receive, so that a serial run reads the same.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "tests/support/RandomText.hpp"
#include "tests/support/Tsv.hpp"

namespace zebtest {

class RandomFiles {
 public:
  explicit RandomFiles(unsigned seed) : m_random(seed) {
    for (const TsvRow& row : readTsv("cmp_keys.tsv")) {
      std::vector<std::string>& keys = m_sections[row.at("section")];
      const std::string key = unquoted(row.at("key"));
      keys.push_back(key);
      m_keys.push_back(key);
    }
    for (const auto& [name, keys] : m_sections) m_names.push_back(name);
  }

  std::string next() {
    m_text.clear();
    for (std::size_t chunk = 1 + m_random.below(8); chunk > 0; --chunk) addChunk();
    if (m_random.oneIn(8)) m_text.resize(m_random.below(m_text.size() + 1));
    const std::string text = withShortLines();
    return m_random.oneIn(6) ? withCrLf(text) : text;
  }

 private:
  void addLine(const std::string& line) { m_text += line + "\n"; }

  void addChunk() {
    const std::size_t before = m_text.size();
    switch (m_random.below(12)) {
      case 0:
        addHead();
        break;
      case 1:
        addPositional();
        break;
      case 2:
        addLine(m_random.noise());
        break;
      case 3:
        addWeights();
        break;
      case 4:
        addVentInlets();
        break;
      case 5:
        addDispenser();
        break;
      default:
        addSection();
    }
    if (!m_random.oneIn(10)) return;
    m_text.resize(before + m_random.below(m_text.size() - before + 1));
    m_text += '\n';
  }

  void addSection() {
    const std::string& name = m_random.pick(m_names);
    std::string opening = "[" + name + "]";
    if (m_random.oneIn(8)) opening += " [" + m_random.pick(m_names) + "]";
    if (m_random.oneIn(12)) opening = m_random.noise() + opening;
    addLine(opening);
    for (std::size_t count = m_random.below(14); count > 0; --count) addSectionLine(name);
    if (!m_random.oneIn(12)) addLine((m_random.oneIn(10) ? "end " : "") + ("[/" + name + "]"));
  }

  void addSectionLine(const std::string& section) {
    switch (m_random.below(16)) {
      case 0:
        return addLine(m_random.noise());
      case 1:
        return addLine("");
      case 2:
        return addLine(keyLine(m_random.pick(m_keys)));
      case 3:
        return addLine(m_random.pick(m_keys) + " " + keyLine(m_random.pick(m_sections.at(section))));
      case 4:
        return addLine("[" + m_random.pick(m_names) + "]");
      case 5:
        return addLine("[/" + m_random.pick(m_names) + "]" + (m_random.oneIn(2) ? " x = 1" : ""));
      default:
        return addLine(keyLine(m_random.pick(m_sections.at(section))));
    }
  }

  std::string keyLine(const std::string& key) {
    static const std::vector<std::string> kAssignments = {" = ", "=", "\t=\t", " =   ", " ", " = = ", ": "};
    std::string line = (m_random.oneIn(6) ? "  " : "") + key + m_random.pick(kAssignments) + valueFor(key);
    if (m_random.oneIn(8)) line += " // comment";
    if (m_random.oneIn(40)) line.insert(m_random.below(line.size()), 1, '\0');
    return line;
  }

  // Counts stay small or are refused: a valid huge one takes that many lines from every rank.
  std::string valueFor(const std::string& key) {
    static const std::vector<std::string> kCounts = {"0", "1", "2", "3", "5", "-1", "1000001", "2147483648", "x", ""};
    for (const char* count : {"IsVentInlet", "NVentInlet", "NumberofInletGroups", "nDispenserPoint"}) {
      if (key.find(count) != key.npos) return m_random.pick(kCounts);
    }
    if (m_random.oneIn(8)) return "some text " + m_random.number() + " more";
    return m_random.number();
  }

  void addHead() {
    static const std::vector<std::string> kVersions = {"[VER] 1023", "[VER] 1023",  "[VER] 1023", "[VER] 1024",
                                                       "[VER]1023",  "a 1023[VER]", "[VER] 1013"};
    addLine(m_random.pick(kVersions));
    addFields(m_random.oneIn(5) ? m_random.below(19) : 19);
  }

  void addFields(std::size_t lines) {
    for (; lines > 0; --lines) {
      std::string line;
      for (std::size_t field = m_random.below(11); field > 0; --field) line += m_random.number() + " ";
      addLine(line);
    }
  }

  void addPositional() {
    static const struct {
      const char* name;
      const char* version;
      std::size_t lines;
    } kSections[] = {{"FastCool", "1017", 23}, {"StdCool", "1047", 23}, {"3DCoolingChannel", "1002", 6}};
    const auto& section = m_random.pick(kSections);
    addLine("[" + std::string(section.name) + "]");
    addLine(m_random.oneIn(5) ? m_random.number() : section.version);
    addFields(section.lines);
    addLine("[/" + std::string(section.name) + "]");
  }

  void addWeights() {
    addLine("[MultiGate]");
    addLine("MultipleGateMethod = 1");
    addLine("NumberofInletGroups = " + valueFor("NumberofInletGroups"));
    for (std::size_t count = m_random.below(6); count > 0; --count) {
      addLine(m_random.oneIn(6) ? "" : "Weightings = " + m_random.number());
    }
    addLine("[/MultiGate]");
  }

  void addVentInlets() {
    addLine("[RTM]");
    addLine("IsVentInlet = " + valueFor("IsVentInlet"));
    addLine("NVentInlet = " + valueFor("NVentInlet"));
    for (std::size_t count = m_random.below(6); count > 0; --count) addLine("VentInletID = " + m_random.number());
    addLine("[/RTM]");
  }

  void addDispenser() {
    addLine("[UNFSetting]");
    addLine("FillType = " + std::to_string(m_random.below(4)));
    for (const std::string& key : m_sections.at("UNFSetting")) {
      if (!m_random.oneIn(3)) addLine(keyLine(key));
    }
    addLine("[/UNFSetting]");
  }

  std::string withShortLines() const {
    constexpr std::size_t kLongest = 254;
    std::string text;
    std::size_t length = 0;
    for (const char c : m_text) {
      length = c == '\n' ? 0 : length + 1;
      if (length <= kLongest) text += c;
    }
    return text;
  }

  RandomText m_random;
  std::map<std::string, std::vector<std::string>> m_sections;
  std::vector<std::string> m_names;
  std::vector<std::string> m_keys;
  std::string m_text;
};

}  // namespace zebtest
