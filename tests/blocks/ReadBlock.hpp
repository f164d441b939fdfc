// What the tests of single blocks share: a section read from a text, and a dump.
#pragma once

#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "engine/BlockAccess.h"
#include "engine/DumpEngine.hpp"
#include "engine/SectionEngine.hpp"
#include "tests/support/Printed.hpp"

namespace zebtest {

template <class Block>
const zeb::Section& sectionOf(std::string_view name) {
  for (const zeb::Section& section : zeb::tableOf<Block>().sections) {
    if (section.name == name) return section;
  }
  throw std::invalid_argument("no section " + std::string(name));
}

/// Reads the lines that follow the section's opening line and returns what the section left unread. True in `matched`
/// (when given) unless a positional section refused its version.
template <class Block>
std::string readSectionInto(Block& block, std::string_view name, const std::string& lines, bool* matched = nullptr) {
  std::istringstream stream(lines);
  const zeb::LineSource serial;
  zeb::LineReader reader(stream, serial, nullptr);
  const zeb::Section& section = sectionOf<Block>(name);
  bool result = true;
  if (section.isPositional()) {
    result = zeb::readPositional(section, &block, reader);
  } else {
    zeb::readSection(section, &block, reader);
  }
  if (matched != nullptr) *matched = result;
  std::string rest;
  std::getline(stream, rest, '\0');
  return rest;
}

template <class Block>
std::string dumpOf(const Block& block) {
  return zeb::dumpText(zeb::tableOf<Block>(), &block);
}

}  // namespace zebtest
