// Random parameter files without a fault, as lines that know what they are: every value valid, gates open, lists whole,
// a key that is part of a longer one behind it.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "tests/support/RandomText.hpp"
#include "tests/support/Tsv.hpp"

namespace zebtest {

enum class LineKind { kOutside, kOpening, kClosing, kKey, kGate, kCount, kEntry, kVersion, kFields, kFree };

struct FileLine {
  LineKind kind = LineKind::kOutside;
  std::string text;
  int section = -1;  // counted in the file
  std::string key = {};
  std::string lookup = {};  // "int", "double", "string", "word", "presence"

  bool isNumber() const { return lookup == "int" || lookup == "double"; }
};

struct FileOfLines {
  std::vector<FileLine> lines;
  std::vector<std::string> sections;  // names
  bool isCmx = false;

  std::string text() const {
    std::string all;
    for (const FileLine& line : lines) all += line.text + "\n";
    return all;
  }
};

class WellFormedFiles {
 public:
  explicit WellFormedFiles(RandomText& random) : m_random(random) {
    for (const TsvRow& row : readTsv("cmp_keys.tsv")) addKey(m_cmp, row.at("section"), row);
    for (const TsvRow& row : readTsv("cmx_keys.tsv")) addKey(m_cmx, row.at("tag"), row);
    for (const TsvRow& row : readTsv("positional.tsv")) {
      const std::string version = row.at("rule").rfind("version=", 0) == 0 ? row.at("rule").substr(8) : "";
      m_fields[row.at("section")][std::stoi(row.at("line"))].push_back({row.at("scan") == "d", version});
    }
  }

  FileOfLines next(bool cmx) {
    m_file = {};
    m_file.isCmx = cmx;
    addNoise();
    if (!cmx && m_random.oneIn(3)) addPositional("HEAD", 19);
    std::vector<std::string> names;
    for (const auto& [name, section] : keyed()) names.push_back(name);
    if (!cmx) names.insert(names.end(), {"FastCool", "StdCool", "3DCoolingChannel"});
    for (std::size_t count = 1 + m_random.below(6); count > 0; --count) {
      const std::size_t at = m_random.below(names.size());
      addSection(names[at]);
      names.erase(names.begin() + static_cast<std::ptrdiff_t>(at));
      addNoise();
    }
    return m_file;
  }

  struct Key {
    std::string key, lookup, rule;
  };
  struct Keyed {
    std::string open, close;
    std::vector<Key> keys;
  };
  /// The sections of a format by name.
  const std::map<std::string, Keyed>& keyed(bool cmx) const { return cmx ? m_cmx : m_cmp; }

 private:
  struct Field {
    bool isInt;
    std::string version;
  };
  using Item = std::vector<FileLine>;  // a key's line and the lines of its list

  const std::map<std::string, Keyed>& keyed() const { return keyed(m_file.isCmx); }

  static void addKey(std::map<std::string, Keyed>& sections, const std::string& name, const TsvRow& row) {
    Keyed& section = sections[name];
    const bool isCmp = row.count("open") > 0;
    section.open = isCmp ? unquoted(row.at("open")) : "<" + name + ">";
    section.close = isCmp ? unquoted(row.at("close")) : "</" + name + ">";
    if (row.at("read_index") == "-") return;
    const Key key{unquoted(row.at("key")), row.at("lookup"), row.at("rule")};
    const bool known = std::any_of(section.keys.begin(), section.keys.end(), [&](const Key& other) {
      // Of two spellings of a member a file holds one.
      return other.key == key.key || (key.key == "VisInterMethod" && other.key == "FaceVisByHarmonicMean");
    });
    if (!known && key.rule != "else") section.keys.push_back(key);
  }

  void addLine(LineKind kind, const std::string& text) {
    m_file.lines.push_back({kind, text, static_cast<int>(m_file.sections.size()) - 1});
  }

  void addNoise() {
    static const std::vector<std::string> kNoise = {"", "# run 14 of the cover", "; trial", "some words outside",
                                                    "wall thickness = 0.8 mm"};
    for (std::size_t count = m_random.below(3); count > 0; --count) {
      m_file.lines.push_back({LineKind::kOutside, m_random.pick(kNoise)});
    }
  }

  // --- Values -------------------------------------------------------------------------------------------------------

  std::string intText() { return std::to_string(2 + m_random.below(40)); }
  std::string doubleText() {
    static const std::vector<std::string> kForms = {"0.37", "12.5", "3", "4.5e-3", "-2.25", "6.0E+05", "+.5", "7."};
    return m_random.pick(kForms);
  }

  std::string valueFor(const Key& key) {
    if (key.key == "TrapAirVolFilled") return "0.75";      // the repairs leave it alone between 0 and 1
    if (key.rule.find("->") != key.rule.npos) return "1";  // left alone by the rules, as the two below
    if (key.rule.find("clamp=1.0..") != key.rule.npos) return "1.25";
    if (key.rule.find("clamp=") != key.rule.npos) return "0.5";
    if (key.lookup == "int") return intText();
    if (key.lookup == "double") return doubleText();
    return m_random.oneIn(2) ? "part7.m3f" : key.lookup == "word" ? "x" : "cover main 2.m3f";
  }

  FileLine keyLine(const Key& key, const std::string& value, LineKind kind = LineKind::kKey) {
    static const std::vector<std::string> kAssignments = {" = ", "=", "  =    ", "\t= "};
    const std::string line = (m_random.oneIn(5) ? "  " : "") + key.key + m_random.pick(kAssignments) + value;
    return {kind, line, static_cast<int>(m_file.sections.size()) - 1, key.key, key.lookup};
  }

  FileLine entry(const std::string& text, const std::string& lookup) {
    return {LineKind::kEntry, text, static_cast<int>(m_file.sections.size()) - 1, "", lookup};
  }

  // --- Keyed sections -----------------------------------------------------------------------------------------------

  void addSection(const std::string& name) {
    if (name == "FastCool" || name == "StdCool") return addPositional(name, 24);
    if (name == "3DCoolingChannel") return addPositional(name, 7);
    const Keyed& section = keyed().at(name);
    m_file.sections.push_back(name);
    addLine(LineKind::kOpening, section.open);
    for (const Key& key : inWritingOrder(chosen(section))) {
      for (const FileLine& line : itemOf(key)) m_file.lines.push_back(line);
      if (m_random.oneIn(10)) addLine(LineKind::kFree, m_random.oneIn(2) ? "" : "# 4711");
    }
    addLine(LineKind::kClosing, section.close);
  }

  static bool isWhole(const Keyed& section) {  // sections whose keys need one another
    return std::any_of(section.keys.begin(), section.keys.end(), [](const Key& key) {
      return key.rule.find("gate") != key.rule.npos || key.rule.find("list") != key.rule.npos;
    });
  }

  static bool contains(const Key& longer, const Key& shorter) {
    return longer.key != shorter.key && longer.key.find(shorter.key) != std::string::npos;
  }

  // Some keys, and whatever their lines set besides.
  std::vector<Key> chosen(const Keyed& section) {
    std::vector<Key> keys;
    const bool whole = isWhole(section);
    for (const Key& key : section.keys) {
      if (whole || m_random.below(section.keys.size()) < 8) keys.push_back(key);
    }
    if (keys.empty()) keys.push_back(m_random.pick(section.keys));
    for (std::size_t i = 0; i < keys.size(); ++i) {
      for (const Key& other : section.keys) {
        const bool has = std::any_of(keys.begin(), keys.end(), [&](const Key& key) { return key.key == other.key; });
        if (!has && contains(Key(keys[i]), other)) keys.push_back(other);
      }
    }
    return keys;
  }

  static int rank(const Key& key) {
    if (key.rule.rfind("gate<", 0) == 0) return 0;
    return key.key == "nDispenserPoint" || key.key == "ValueNoHRGate" ? 1 : 2;
  }

  std::vector<Key> inWritingOrder(std::vector<Key> keys) {
    std::vector<Key> order;
    while (!keys.empty()) {
      std::vector<std::size_t> ready;
      for (std::size_t i = 0; i < keys.size(); ++i) {
        const bool waits = std::any_of(keys.begin(), keys.end(), [&](const Key& other) {
          return rank(other) < rank(keys[i]) || contains(other, keys[i]);
        });
        if (!waits) ready.push_back(i);
      }
      const std::size_t next = m_random.pick(ready);
      order.push_back(keys[next]);
      keys.erase(keys.begin() + static_cast<std::ptrdiff_t>(next));
    }
    return order;
  }

  Item itemOf(const Key& key) {
    if (key.lookup == "presence") {
      const std::string words = key.key == "ElemagComsol" ? " 1.5 20.0 coil.txt" : "";
      return {{LineKind::kKey, key.key + words, static_cast<int>(m_file.sections.size()) - 1, key.key, key.lookup}};
    }
    if (key.rule.rfind("gate<", 0) == 0) return {keyLine(key, "2", LineKind::kGate)};
    const std::size_t count = 1 + m_random.below(4);
    const std::string number = std::to_string(count);
    if (key.key == "nDispenserPoint") return {keyLine(key, "5", LineKind::kKey)};
    if (key.key == "ValueNoHRGate") {
      m_gates = count;
      return {keyLine(key, number)};
    }
    Item item{keyLine(key, number, LineKind::kCount)};
    if (key.key == "NumberofInletGroups") return addWeights(item, count);
    if (key.key == "IsVentInlet") return ventInlets(key, count);
    if (key.key == "ValueNoFillOutputTime" || key.key == "ValueNoPackOutputTime") {
      for (std::size_t i = 1; i <= count; ++i)
        item.push_back(entry(std::to_string(i) + " = " + doubleText(), "double"));
      return item;
    }
    if (key.key == "ValueHRGateType") {
      item = {keyLine(key, "1")};
      for (std::size_t i = 1; i <= m_gates; ++i)
        item.push_back(entry("Gate" + std::to_string(i) + " = 0.25", "double"));
      return item;
    }
    if (key.key == "DiffusionModelType") {
      static const std::vector<std::size_t> kCoefficients = {1, 2, 5};
      const std::size_t model = m_random.below(3);
      item = {keyLine(key, std::to_string(model))};
      for (std::size_t i = 0; i < kCoefficients[model]; ++i) item.push_back(entry("c" + number + " = 0.02", "double"));
      return item;
    }
    return {keyLine(key, valueFor(key))};
  }

  Item addWeights(Item item, std::size_t count) {
    for (std::size_t i = 1; i < count; ++i) item.push_back(entry("Weightings = 0.125", "double"));
    const double rest = 1.0 - 0.125 * static_cast<double>(count - 1);
    item.push_back(entry("Weightings = " + std::to_string(rest), "double"));
    return item;
  }

  Item ventInlets(const Key& key, std::size_t count) {
    Item item{keyLine(key, "1"), entry("NVentInlet = " + std::to_string(count), "int")};
    item.back().kind = LineKind::kCount;
    for (std::size_t i = 0; i < count; ++i) item.push_back(entry("VentInletID = " + intText(), "int"));
    return item;
  }

  // --- Positional sections ------------------------------------------------------------------------------------------

  void addPositional(const std::string& name, int lines) {
    m_file.sections.push_back(name);
    addLine(name == "HEAD" ? LineKind::kVersion : LineKind::kOpening, name == "HEAD" ? "[VER] 1023" : "[" + name + "]");
    for (int number = 1; number <= lines; ++number) {
      const auto fields = m_fields[name].find(number);
      if (fields == m_fields[name].end()) {
        addLine(LineKind::kFree, m_random.oneIn(2) ? "# free text" : "0");
        continue;
      }
      std::string text;
      for (const Field& field : fields->second) {
        // The rules of the head's last two lines leave positive numbers from 1 on alone.
        const std::string real = name == "HEAD" && number >= 18 ? "12.5" : doubleText();
        const std::string value = !field.version.empty() ? field.version : field.isInt ? intText() : real;
        text += (text.empty() ? "" : m_random.oneIn(6) ? "   " : " ") + value;
      }
      addLine(LineKind::kFields, text);
    }
    if (name != "HEAD") addLine(LineKind::kClosing, "[/" + name + "]");
  }

  RandomText& m_random;
  std::map<std::string, Keyed> m_cmp, m_cmx;
  std::map<std::string, std::map<int, std::vector<Field>>> m_fields;
  FileOfLines m_file;
  std::size_t m_gates = 0;
};

}  // namespace zebtest
