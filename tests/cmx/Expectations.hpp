// What the tests of the CMX and of the standard solver's reader share: expectation tables, and reading on ranks.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "engine/Format.hpp"
#include "tests/support/Printed.hpp"
#include "tests/support/RecordingCommunicator.h"
#include "tests/support/TestFolder.hpp"
#include "tests/support/Tsv.hpp"

namespace zebtest {

using Expected = TsvRow;

inline std::vector<Expected> expectations(const std::string& fileName) { return readTsv(fileName); }

inline const zeb::Row* rowOfGetter(std::span<const zeb::Row> rows, const std::string& getter) {
  for (const zeb::Row& row : rows) {
    if (row.field.getter == getter || row.field.member == getter) return &row;
  }
  return nullptr;
}

/// Reads once as rank 0 of `ranks` and once as every other rank with what rank 0 sent. `read` gets a communicator and
/// returns what that rank holds afterwards; all must be the same. Returns rank 0's, its calls in `log`.
inline std::string readOnRanks(int ranks, const std::function<std::string(CZEBCom&)>& read,
                               zeb::CallLog* log = nullptr) {
  zeb::RecordingCommunicator first(ranks);
  const std::string values = read(first);
  for (int rank = 1; rank < ranks; ++rank) {
    zeb::ReplayingCommunicator other(first.log(), rank, ranks);
    EXPECT_EQ(read(other), values) << "rank " << rank << " of " << ranks;
    EXPECT_TRUE(other.finished()) << "rank " << rank << " of " << ranks << " stopped early";
  }
  if (log != nullptr) *log = first.log();
  return values;
}

}  // namespace zebtest
