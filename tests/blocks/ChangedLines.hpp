// What a section's lines change in a block, told by the dump.
#pragma once

#include <sstream>
#include <string>
#include <string_view>

#include "tests/blocks/ReadBlock.hpp"

namespace zebtest {

/// The dump of a new block after a section that holds nothing but its closing line.
template <class Block>
std::string dumpOfEmptySection(std::string_view section) {
  Block block;
  EXPECT_EQ(readSectionInto(block, section, "[/" + std::string(section) + "]\nleft"), "left");
  return dumpOf(block);
}

/// The dump lines of a new block that differ from the defaults once it has read `lines`; empty when nothing changed.
template <class Block>
std::string changedLines(std::string_view section, const std::string& lines) {
  Block block;
  std::istringstream before(dumpOf(block));
  readSectionInto(block, section, lines);
  std::istringstream after(dumpOf(block));
  std::string changed;
  for (std::string was, is; std::getline(before, was) && std::getline(after, is);) {
    if (was != is) changed += is + "\n";
  }
  return changed;
}

/// A block by its section (`dump` is dumpOfEmptySection of it) and its dump as long as nothing is set.
struct DefaultDump {
  std::string_view section;
  std::string (*dump)(std::string_view section);
  std::string_view expected;
};

/// A line of a section (`changed` is changedLines of its block) and the dump lines that it changes.
struct LineCase {
  std::string_view section;
  std::string (*changed)(std::string_view section, const std::string& line);
  const char* line;
  std::string_view expected;
};

}  // namespace zebtest
