// The one-pass search against std::string::find for every key.
#include <gtest/gtest.h>

#include <string>

#include "engine/KeyFilter.hpp"
#include "frame/CZEBCMPInternalTool.hpp"
#include "tests/support/RandomText.hpp"

namespace {

using zebtest::RandomText;

std::string randomLine(RandomText& random, std::span<const std::string_view> keys) {
  std::string line = random.oneIn(2) ? "" : random.noise();
  for (std::size_t parts = random.below(4); parts > 0; --parts) {
    const std::string key(random.pick(keys));
    switch (random.below(4)) {
      case 0:
        line += key.substr(random.below(key.size()));
        break;
      case 1:
        line += key.substr(0, random.below(key.size()));
        break;
      default:
        line += key;
    }
    if (random.oneIn(2)) line += " = 1 ";
  }
  return line;
}

void expectSameKeys(const zeb::KeyFilter& filter, const std::string& line) {
  zeb::KeySet expected;
  for (std::size_t key = 0; key < filter.keys.size(); ++key) {
    if (line.find(filter.keys[key]) != std::string::npos) expected.insert(key);
  }
  const zeb::KeyFilter::Hits hits = filter.find(line);
  ASSERT_EQ(hits.keys, expected) << "line: " << line;
  ASSERT_EQ(hits.closingTag, line.find(filter.closingTag()) != std::string::npos) << "line: " << line;
}

TEST(KeyFilter, FindsExactlyTheKeysOfEverySectionOfEveryBlock) {
  RandomText random(99);
  for (const zeb::BlockEntry& entry : zeb::allBlocks()) {
    for (const zeb::Section& section : entry.table().sections) {
      if (section.filter.keys.empty()) continue;
      SCOPED_TRACE(std::string(section.name));
      for (const std::string_view key : section.filter.keys) {
        for (const char* before : {"", " ", "ab", "abc", "abcd", "abcde"})
          expectSameKeys(section.filter, before + std::string(key));
      }
      for (int i = 0; i < 20'000; ++i) {
        ASSERT_NO_FATAL_FAILURE(expectSameKeys(section.filter, randomLine(random, section.filter.keys)));
      }
    }
  }
}

TEST(KeySet, GivesItsKeysInAscendingOrder) {
  zeb::KeySet set;
  for (const std::size_t key : {127u, 0u, 64u, 63u, 5u}) set.insert(key);
  std::vector<std::size_t> order;
  while (!set.empty()) order.push_back(set.popFirst());
  EXPECT_EQ(order, (std::vector<std::size_t>{0, 5, 63, 64, 127}));
}

TEST(KeySet, DropsEverythingUpToAKey) {
  zeb::KeySet set;
  for (const std::size_t key : {0u, 5u, 70u, 71u}) set.insert(key);
  set.dropUpTo(70);
  EXPECT_EQ(set.popFirst(), 71u);
  EXPECT_TRUE(set.empty());
}

}  // namespace
