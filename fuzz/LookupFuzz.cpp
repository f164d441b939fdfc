// The key lookups and positional fields against their plain definitions, the one-pass key search against find().
//
// Byte 1: which section's keys are searched. Then the key, an LF, and the line.
#include <algorithm>
#include <bit>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "engine/KeyFilter.hpp"
#include "engine/ValueText.hpp"
#include "frame/CZEBCMPInternalTool.hpp"
#include "frame/KeyLookup.h"
#include "fuzz/FuzzSupport.hpp"
#include "tests/support/PlainDefinition.hpp"

namespace {

using namespace zebfuzz;

constexpr double kBefore = -7.0;

// The same bits, or both not a number.
bool same(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) || (std::isnan(a) && std::isnan(b));
}

void checkLookups(const std::string& line, const std::string& key) {
  double real = kBefore, plainReal = kBefore;
  require(GetKeyValueDouble(line, key, real) == zebtest::plainExtract(line, key, plainReal), "GetKeyValueDouble found");
  require(same(real, plainReal), "GetKeyValueDouble value");
  int number = -7, plainNumber = -7;
  require(GetKeyValueInt(line, key, number) == zebtest::plainExtract(line, key, plainNumber), "GetKeyValueInt found");
  require(number == plainNumber, "GetKeyValueInt value");
  std::string word = "before", plainWord = "before";
  require(GetKeyValueWord(line, key, word) == zebtest::plainExtract(line, key, plainWord), "GetKeyValueWord found");
  require(word == plainWord, "GetKeyValueWord value");
  std::string text = "before", plainText = "before";
  require(GetKeyValueString(line, key, text) == zebtest::plainString(line, key, plainText), "GetKeyValueString found");
  require(text == plainText, "GetKeyValueString value");
}

// The formatted scan lets an int overflow; a field does not match then.
bool fitsInt(const char* digits) {
  errno = 0;
  const long value = std::strtol(digits, nullptr, 10);
  return errno == 0 && value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max();
}

void checkReals(const std::string& line) {
  double expected[3] = {kBefore, kBefore, kBefore};
  const int converted = std::sscanf(line.c_str(), "%lf%lf%lf", &expected[0], &expected[1], &expected[2]);
  zeb::FieldScanner scanner(line);
  double actual[3] = {kBefore, kBefore, kBefore};
  int count = 0;
  while (count < 3 && scanner.next(actual[count])) ++count;
  require(count == std::max(converted, 0), "positional reals: how many");
  for (int i = 0; i < 3; ++i) require(same(actual[i], expected[i]), "positional reals: value");
}

void checkWordAndInt(const std::string& line) {
  char word[512];
  int expected = -7;
  int start = -1;
  const int converted = std::sscanf(line.c_str(), "%511s%n%d", word, &start, &expected);
  zeb::FieldScanner scanner(line);
  std::string_view tag;
  int actual = -7;
  const bool hasWord = scanner.next(tag);
  require(hasWord == (converted >= 1), "positional word: found");
  if (!hasWord) return;
  require(tag == word, "positional word: value");
  const bool hasInt = scanner.next(actual);
  require(hasInt == (converted == 2 && fitsInt(line.c_str() + start)), "positional int: found");
  require(actual == (hasInt ? expected : -7), "positional int: value");
}

const std::vector<const zeb::Section*>& keyedSections() {
  static const auto* const kSections = [] {
    auto* sections = new std::vector<const zeb::Section*>;
    for (const zeb::BlockEntry& entry : zeb::allBlocks()) {
      for (const zeb::Section& section : entry.table().sections) {
        if (!section.filter.keys.empty()) sections->push_back(&section);
      }
    }
    return sections;
  }();
  return *kSections;
}

void checkFilter(const zeb::KeyFilter& filter, const std::string& line) {
  zeb::KeySet expected;
  for (std::size_t key = 0; key < filter.keys.size(); ++key) {
    if (line.find(filter.keys[key]) != line.npos) expected.insert(key);
  }
  const zeb::KeyFilter::Hits hits = filter.find(line);
  require(hits.keys == expected, "the search finds other keys");
  require(hits.closingTag == (line.find(filter.closingTag()) != line.npos), "the search finds another closing tag");
}

}  // namespace

void zebfuzz::checkInput(Bytes bytes) {
  const zeb::Section& section = *keyedSections()[bytes.byte() % keyedSections().size()];
  const std::string_view rest = bytes.rest();
  const std::size_t end = rest.find('\n');
  const std::string key(rest.substr(0, end));
  const std::string line(end == rest.npos ? std::string_view() : rest.substr(end + 1));
  checkLookups(line, key);
  checkFilter(section.filter, line);
  const std::string upToNul = line.c_str();
  checkReals(upToNul);
  if (upToNul.size() < 500) checkWordAndInt(upToNul);
}
