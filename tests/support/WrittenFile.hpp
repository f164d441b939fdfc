// Files of the repository that the program itself writes.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <string_view>

#include "tests/support/TemporaryFile.hpp"

namespace zebtest {

/// Expects that the file (from the repository's root) holds what the program writes today. With UPDATE_GOLDEN=1 in the
/// environment the file is written anew instead.
inline void expectCurrent(const std::string& name, const std::string& today) {
  const std::string path = std::string(ZEB_TEST_DATA_DIR) + "/../../" + name;
  const char* update = std::getenv("UPDATE_GOLDEN");
  if (update != nullptr && std::string_view(update) == "1") {
    std::ofstream(path, std::ios::binary) << today;
    return;
  }
  EXPECT_TRUE(contentOf(path) == today) << name << " is stale; UPDATE_GOLDEN=1 rewrites it";
}

}  // namespace zebtest
