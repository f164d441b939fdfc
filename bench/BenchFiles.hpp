// The files that the benchmarks read: an example, or one made of the General section's keys.
#pragma once

#include <cstddef>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "blocks/CZEBCMPGeneralParm.h"
#include "engine/ParameterTable.hpp"
#include "tests/support/TemporaryFile.hpp"

namespace zebbench {

using zebtest::TemporaryFile;

inline const std::string kRealisticFile = ZEB_EXAMPLES_DIR "/gas-assisted-handle/gas-assisted-handle.cmp";
inline const std::string kLargestExample = ZEB_EXAMPLES_DIR "/thin-wall-cover/thin-wall-cover.cmp";

inline const zeb::Section& generalSection() { return zeb::tableOf<CZEBCMPGeneralParm>().sections.front(); }

/// A line for the section's key `number`, with a value as long as engineers write them.
inline std::string keyedLine(const zeb::Section& section, std::size_t number) {
  static constexpr std::string_view kInts[] = {"1", "0", "2", "20"};
  static constexpr std::string_view kDoubles[] = {"0.85", "225.0", "5.0e-4", "1.0", "0.03", "9000.0"};
  const std::string key(section.filter.keys[number]);
  switch (section.rows[section.readingOrder[number]].field.type) {
    case zeb::FieldType::kInt:
      return key + " = " + std::string(kInts[number % std::size(kInts)]);
    case zeb::FieldType::kText:
      return key + " = cover.m3f";
    default:
      return key + " = " + std::string(kDoubles[number % std::size(kDoubles)]);
  }
}

/// A General section whose keys come around until there are `lines` keyed lines.
inline std::string generalSectionText(std::size_t lines) {
  const zeb::Section& section = generalSection();
  std::string text(section.open);
  text += "\n";
  for (std::size_t i = 0; i < lines; ++i) text += keyedLine(section, i % section.filter.keys.size()) + "\n";
  return text += std::string(section.close) + "\n";
}

inline std::vector<std::string> linesOf(const std::string& path) {
  std::vector<std::string> lines;
  std::ifstream stream(path);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

/// The file without so many of its blank lines and comments that `wanted` lines are left, or as few as can be. The
/// head stays whole: its lines count.
inline std::string shortenedText(const std::string& path, std::size_t wanted) {
  const std::vector<std::string> lines = linesOf(path);
  std::size_t tooMany = lines.size() > wanted ? lines.size() - wanted : 0;
  bool behindHead = false;
  std::string text;
  for (const std::string& line : lines) {
    const bool isTag = line.starts_with("[");
    behindHead = behindHead || (isTag && !line.starts_with("[VER]"));
    if (behindHead && tooMany > 0 && (line.empty() || line.starts_with("#"))) {
      --tooMany;
    } else {
      text += line + "\n";
    }
  }
  return text;
}

/// The file's first `count` lines, from its beginning again where it is shorter.
inline std::string firstLinesText(const std::string& path, std::size_t count) {
  const std::vector<std::string> lines = linesOf(path);
  std::string text;
  for (std::size_t i = 0; i < count && !lines.empty(); ++i) text += lines[i % lines.size()] + "\n";
  return text;
}

}  // namespace zebbench
