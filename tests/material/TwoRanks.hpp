// A material on two ranks.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/material/RecordText.hpp"
#include "tests/support/Printed.hpp"
#include "tests/support/RecordingCommunicator.h"

namespace zebtest {

/// Rank 0 with one other rank, which repeats each input and must end with the same record.
class TwoRanks {
 public:
  void input(const std::string& name) {
    com_.clear();
    printedByRank0 = printedBy([&] { EXPECT_EQ(sender.SetInput(name, &com_), 1); });
    zeb::ReplayingCommunicator replay(com_.log(), 1, 2);
    EXPECT_EQ(printedBy([&] { EXPECT_EQ(receiver.SetInput(name, &replay), 1); }), "");
    EXPECT_TRUE(replay.finished());
    EXPECT_EQ(recordText(receiver), recordText(sender));
  }

  std::vector<std::string> calls() const { return com_.log().calls(); }

  CZEBKNMaterialParam sender;
  CZEBKNMaterialParam receiver;
  std::string printedByRank0;

 private:
  zeb::RecordingCommunicator com_{2};
};

}  // namespace zebtest
