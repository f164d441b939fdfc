// The four key lookups against their plain definition: where its rules meet, and on random lines.
#include <gtest/gtest.h>

#include <bit>
#include <cstdint>

#include "frame/KeyLookup.h"
#include "tests/support/PlainDefinition.hpp"
#include "tests/support/RandomText.hpp"

namespace {

using zebtest::RandomText;

// All four lookups find, take and leave alone what the definition says.
void expectAsDefined(const std::string& line, const std::string& key) {
  double real = -7.0, plainReal = -7.0;
  int number = -7, plainNumber = -7;
  std::string text = "-", plainText = "-", word = "-", plainWord = "-";
  ASSERT_EQ(GetKeyValueDouble(line, key, real), zebtest::plainExtract(line, key, plainReal)) << line;
  ASSERT_EQ(std::bit_cast<std::uint64_t>(real), std::bit_cast<std::uint64_t>(plainReal)) << line << " gives " << real;
  ASSERT_EQ(GetKeyValueInt(line, key, number), zebtest::plainExtract(line, key, plainNumber)) << line;
  ASSERT_EQ(number, plainNumber) << line;
  ASSERT_EQ(GetKeyValueString(line, key, text), zebtest::plainString(line, key, plainText)) << line;
  ASSERT_EQ(text, plainText) << line;
  ASSERT_EQ(GetKeyValueWord(line, key, word), zebtest::plainExtract(line, key, plainWord)) << line;
  ASSERT_EQ(word, plainWord) << line;
}

TEST(KeyLookup, FollowsTheDefinitionAtItsEdges) {
  for (const std::string line : {"",
                                 "X",
                                 "X 5",
                                 "X =",
                                 "X =   ",
                                 "Y = 5",
                                 "x = 5",
                                 "AxXy = 5",
                                 "X=2",
                                 "X =    2",
                                 "X\t= 2",
                                 "X =\t2",
                                 "X == 2",
                                 "a = 3 X = 1",
                                 "X = 1 = 2",
                                 "X = abc",
                                 "X = nan",
                                 "X = inf",
                                 "X = 0x10",
                                 "X = 1e",
                                 "X = 1e+",
                                 "X = 1e5",
                                 "X = 1e999",
                                 "X = 1e-999",
                                 "X = +1.5",
                                 "X = +-1.5",
                                 "X = -3",
                                 "X = .5",
                                 "X = 1,5",
                                 "X = 1.5\r",
                                 "X = 1.5 mm, or so",
                                 "X = 2147483647",
                                 "X = -2147483648",
                                 "X = 2147483648",
                                 "X = my part.m3f  ",
                                 "X =\tmy part",
                                 "X =  \t my part",
                                 "X = a = b // c"}) {
    for (const std::string& key : {std::string("X"), std::string("X\0Y", 3), std::string(), std::string("\0N", 2)}) {
      expectAsDefined(line, key);
    }
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

TEST(KeyLookup, FollowsTheDefinitionOnRandomLines) {
  RandomText random(20261121);
  const std::string keys[] = {"Key", "k", "A B", "Missing"};
  for (int i = 0; i < 300'000 && !HasFatalFailure(); ++i) expectAsDefined(randomLine(random), keys[i % 4]);
}

}  // namespace
