// What the tests of the CMX and of the standard solver's reader share: expectation tables, values of all members,
// ranks.
#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
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

/// Every member with its exact value, arrays with all their entries: equal texts are identical blocks.
inline std::string exactValues(std::span<const zeb::DispatchEntry> entries) {
  std::string text;
  const auto addBits = [&text](double value) { text += std::to_string(std::bit_cast<std::uint64_t>(value)) + ' '; };
  for (const zeb::DispatchEntry& entry : entries) {
    int count = 0;
    for (const zeb::Row& row : entry.section->rows) {
      void* member = row.field.locate(entry.block);
      text += std::string(entry.section->name) + '.' + std::string(row.field.member) + ' ';
      if (row.field.type == zeb::FieldType::kInt) {
        text += std::to_string(*static_cast<int*>(member));
        if (row.count != zeb::Count::kNo) count = *static_cast<int*>(member);
      } else if (row.field.type == zeb::FieldType::kDouble) {
        addBits(*static_cast<double*>(member));
      } else if (row.field.type == zeb::FieldType::kText) {
        const char* value = static_cast<zeb::OwnedText*>(member)->get();
        text += value == nullptr ? "null" : '"' + std::string(value) + '"';
      } else {
        const double* values = static_cast<zeb::SharedArray<double>*>(member)->get();
        if (values == nullptr) text += "null";
        for (int i = 0; values != nullptr && i <= count; ++i) addBits(values[i]);
      }
      text += '\n';
    }
  }
  return text;
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
