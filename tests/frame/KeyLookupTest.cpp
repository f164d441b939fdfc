// The four key lookups: their rules one by one, then against the plain definition on random lines.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>

#include "frame/KeyLookup.h"
#include "tests/support/PlainDefinition.hpp"
#include "tests/support/RandomText.hpp"

namespace {

using zebtest::RandomText;

struct NumberCase {
  const char* what;
  std::string line;
  std::string key;
  int found;
  double value;  // -7 where it must stay untouched
};

class DoubleLookup : public testing::TestWithParam<NumberCase> {};

TEST_P(DoubleLookup, FollowsTheDefinition) {
  const NumberCase& c = GetParam();
  double value = -7.0;
  EXPECT_EQ(GetKeyValueDouble(c.line, c.key, value), c.found) << c.what;
  EXPECT_EQ(value, c.value) << c.what;
}

INSTANTIATE_TEST_SUITE_P(
    Rules, DoubleLookup,
    testing::Values(NumberCase{"no blank", "AirPressure=2", "AirPressure", 1, 2.0},
                    NumberCase{"several blanks", "AirPressure =    2", "AirPressure", 1, 2.0},
                    NumberCase{"tab before =", "AirPressure\t= 2", "AirPressure", 1, 2.0},
                    NumberCase{"tab after =", "AirPressure =\t2", "AirPressure", 1, 2.0},
                    NumberCase{"the first = counts", "Ratio = 1 = 2", "Ratio", 1, 1.0},
                    NumberCase{"the first = counts even before the key", "a = 3 Ratio = 1", "Ratio", 1, 3.0},
                    NumberCase{"no number", "X = abc", "X", 1, -7.0}, NumberCase{"no =", "X 5", "X", 1, -7.0},
                    NumberCase{"nothing behind =", "X =", "X", 1, -7.0}, NumberCase{"absent", "Y = 5", "X", 0, -7.0},
                    NumberCase{"case matters", "airpressure = 5", "AirPressure", 0, -7.0},
                    NumberCase{"a substring is enough", "TimeLimit = 5", "Limit", 1, 5.0},
                    NumberCase{"text behind the number", "X = 1.5 mm, or so", "X", 1, 1.5},
                    NumberCase{"an exponent without digits", "X = 1e", "X", 1, -7.0},
                    NumberCase{"an exponent's sign without digits", "X = 1e+", "X", 1, -7.0},
                    NumberCase{"not a number", "X = nan", "X", 1, -7.0},
                    NumberCase{"infinite", "X = inf", "X", 1, -7.0}, NumberCase{"hexadecimal", "X = 0x10", "X", 1, 0.0},
                    NumberCase{"too large", "X = 1e999", "X", 1, -7.0},
                    NumberCase{"too small", "X = 1e-999", "X", 1, 0.0}, NumberCase{"signed", "X = +1.5", "X", 1, 1.5},
                    NumberCase{"two signs", "X = +-1.5", "X", 1, -7.0}, NumberCase{"comma", "X = 1,5", "X", 1, 1.0},
                    NumberCase{"CR", "X = 1.5\r", "X", 1, 1.5},
                    NumberCase{"key up to its first NUL", "X = 2", std::string("X\0Y", 3), 1, 2.0}));

TEST(IntLookup, StopsWhereAnIntStops) {
  const std::pair<const char*, int> cases[] = {{"N = 12", 12},
                                               {"N = 1e5", 1},
                                               {"N = 2.9", 2},
                                               {"N = 0x10", 0},
                                               {"N = -3", -3},
                                               {"N = +4", 4},
                                               {"N = 2147483647", 2147483647},
                                               {"N = -2147483648", -2147483647 - 1},
                                               {"N = 2147483648", -7},
                                               {"N = .5", -7},
                                               {"N = +-4", -7}};
  for (const auto& [line, expected] : cases) {
    int value = -7;
    EXPECT_EQ(GetKeyValueInt(line, "N", value), 1) << line;
    EXPECT_EQ(value, expected) << line;
  }
}

TEST(TextLookup, StringKeepsTheRestOfTheLineAndWordOnlyItsFirstWord) {
  const std::string line = "FirstMeshName = my part.m3f  ";
  std::string text = "before", word = "before";
  EXPECT_EQ(GetKeyValueString(line, "FirstMeshName", text), 1);
  EXPECT_EQ(GetKeyValueWord(line, "FirstMeshName", word), 1);
  EXPECT_EQ(text, "my part.m3f  ");
  EXPECT_EQ(word, "my");
}

TEST(TextLookup, WithoutAValueStringIsEmptyAndWordStays) {
  std::string text = "before", word = "before";
  EXPECT_EQ(GetKeyValueString("Name", "Name", text), 1);
  EXPECT_EQ(GetKeyValueWord("Name =   ", "Name", word), 1);
  EXPECT_EQ(text, "");
  EXPECT_EQ(word, "before");
}

TEST(TextLookup, AnAbsentKeyLeavesTheTextUntouched) {
  std::string text = "before";
  EXPECT_EQ(GetKeyValueString("Other = x", "Name", text), 0);
  EXPECT_EQ(GetKeyValueWord("Other = x", "Name", text), 0);
  EXPECT_EQ(text, "before");
}

TEST(KeyLookup, AnEmptyKeyIsInEveryLine) {
  for (const std::string& key : {std::string(), std::string("\0N", 2)}) {
    int value = -7;
    EXPECT_EQ(GetKeyValueInt("", key, value), 1);
    EXPECT_EQ(value, -7);
    EXPECT_EQ(GetKeyValueInt("N = 3", key, value), 1);
    EXPECT_EQ(value, 3);
  }
}

TEST(TextLookup, AStringLosesOnlyItsLeadingSpaces) {
  const struct {
    const char* line;
    const char* string;
    const char* word;
  } cases[] = {
      {"Name =\tmy part", "\tmy part", "my"},          {"Name =  \t my part", "\t my part", "my"},
      {"Name = a = b // c", "a = b // c", "a"},        {"x = b Name = a", "b Name = a", "b"},
      {"Name = part.m3f\r", "part.m3f\r", "part.m3f"}, {"Name == part", "= part", "="},
  };
  for (const auto& [line, expectedString, expectedWord] : cases) {
    std::string string = "before", word = "before";
    EXPECT_EQ(GetKeyValueString(line, "Name", string), 1) << line;
    EXPECT_EQ(string, expectedString) << line;
    EXPECT_EQ(GetKeyValueWord(line, "Name", word), 1) << line;
    EXPECT_EQ(word, expectedWord) << line;
  }
}

std::string randomLine(RandomText& random) {
  static const std::vector<std::string> kKeys = {"Key", "KeyTwo", "k", "A B", "Deep.Key"};
  static const std::vector<std::string> kBetween = {"=", " = ", "= ", " =\t", "  ", "\t=  ", "==", " = = "};
  if (random.oneIn(20)) return random.noise();
  std::string line = random.oneIn(8) ? random.noise() : "";
  line += random.pick(kKeys) + random.pick(kBetween) + random.number();
  if (random.oneIn(4)) line += random.oneIn(2) ? " trailing = 3" : random.noise();
  return line;
}

TEST(KeyLookup, EqualsThePlainDefinitionOnAMillionRandomLines) {
  RandomText random(20261121);
  const std::string keys[] = {"Key", "k", "A B", "Missing"};
  for (int i = 0; i < 1'000'000; ++i) {
    const std::string line = randomLine(random);
    const std::string& key = keys[i % 4];
    double d = -7.0, plainD = -7.0;
    int n = -7, plainN = -7;
    ASSERT_EQ(GetKeyValueDouble(line, key, d), zebtest::plainExtract(line, key, plainD)) << line;
    ASSERT_EQ(std::bit_cast<std::uint64_t>(d), std::bit_cast<std::uint64_t>(plainD)) << line << " gives " << d;
    ASSERT_EQ(GetKeyValueInt(line, key, n), zebtest::plainExtract(line, key, plainN)) << line;
    ASSERT_EQ(n, plainN) << line;
    if (i % 8 != 0) continue;
    std::string text = "-", plainText = "-", word = "-", plainWord = "-";
    ASSERT_EQ(GetKeyValueString(line, key, text), zebtest::plainString(line, key, plainText)) << line;
    ASSERT_EQ(text, plainText) << line;
    ASSERT_EQ(GetKeyValueWord(line, key, word), zebtest::plainExtract(line, key, plainWord)) << line;
    ASSERT_EQ(word, plainWord) << line;
  }
}

}  // namespace
