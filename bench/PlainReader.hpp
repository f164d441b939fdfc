// What the library is compared with: reading lines and nothing else, and reading by the keys' plain definition.
#pragma once

#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "frame/CMPReader.hpp"
#include "frame/MoldingTypes.hpp"
#include "tests/support/PlainDefinition.hpp"

namespace zebbench {

/// The floor under every reader: std::getline over the file. Returns the number of characters, so that nothing is
/// optimised away.
inline std::size_t readLines(const std::string& fileName) {
  std::ifstream stream(fileName);
  std::string line;
  std::size_t characters = 0;
  while (std::getline(stream, line)) characters += line.size();
  return characters;
}

/// Reads a CMP file as the format is defined: every opening is searched for in every line, in a section every key, and
/// every value goes through a stream. Keys are ready strings, and positional lines cost nothing but their reading: a
/// reader written by hand is no faster.
class PlainReader {
 public:
  PlainReader() {
    const std::shared_ptr<CZEBCMPInternalTool> tool = zeb::moldingTypes().front().create();
    for (const zeb::DispatchEntry& entry : zeb::cmpSections(*tool)) m_sections.emplace_back(*entry.section);
  }

  /// Returns the sum of the numbers, so that nothing is optimised away.
  double read(const std::string& fileName) {
    std::ifstream stream(fileName);
    std::string line;
    m_sum = 0.0;
    while (std::getline(stream, line)) {
      if (line.find("[VER]") != line.npos) skip(stream, line, kHeadLines);
      const std::string opening = line;
      for (const KeyedSection& section : m_sections) {
        if (opening.find(section.open) != opening.npos) readSection(section, stream, line);
      }
    }
    return m_sum;
  }

 private:
  static constexpr int kHeadLines = 19;

  struct Key {
    std::string text;
    zeb::FieldType type;
  };
  struct KeyedSection {
    explicit KeyedSection(const zeb::Section& section)
        : open(section.open), close(section.close), positionalLines(section.positional.lines) {
      for (std::size_t k = 0; k < section.filter.keys.size(); ++k) {
        keys.push_back({std::string(section.filter.keys[k]), section.rows[section.readingOrder[k]].field.type});
      }
    }
    std::string open, close;
    int positionalLines;
    std::vector<Key> keys;
  };

  static void skip(std::ifstream& stream, std::string& line, int count) {
    while (count-- > 0 && std::getline(stream, line)) {
    }
  }

  void readSection(const KeyedSection& section, std::ifstream& stream, std::string& line) {
    if (section.positionalLines > 0) {
      skip(stream, line, section.positionalLines);
      return;
    }
    while (std::getline(stream, line) && line.find(section.close) == line.npos) {
      for (const Key& key : section.keys) readKey(key, line);
    }
  }

  void readKey(const Key& key, const std::string& line) {
    if (key.type == zeb::FieldType::kInt) {
      int value = 0;
      if (zebtest::plainExtract(line, key.text, value) != 0) m_sum += value;
    } else if (key.type == zeb::FieldType::kText) {
      zebtest::plainString(line, key.text, m_text);
    } else {
      double value = 0.0;
      if (zebtest::plainExtract(line, key.text, value) != 0) m_sum += value;
    }
  }

  std::vector<KeyedSection> m_sections;
  std::string m_text;
  double m_sum = 0.0;
};

}  // namespace zebbench
