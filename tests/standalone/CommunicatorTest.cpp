// The communicator of a serial run; and that the one by which all tests play rank 0's calls to another rank bites.
#include <gtest/gtest.h>

#include "standalone/SerialCommunicator.h"
#include "tests/support/RecordingCommunicator.h"

namespace zeb::test {
namespace {

TEST(SerialCommunicator, IsOneRankAndChangesNothing) {
  SerialCommunicator com;
  EXPECT_EQ(com.GetCPUId(), 0);
  EXPECT_EQ(com.GetNCPU(), 1);
  int integer = 3;
  double number = 2.5;
  char buffer[255] = "text";
  com.Barrier();
  com.Broadi(integer);
  com.Broadd(number);
  com.Broadc(buffer);
  EXPECT_EQ(integer, 3);
  EXPECT_EQ(number, 2.5);
  EXPECT_STREQ(buffer, "text");
}

TEST(ReplayingCommunicator, DeliversRankZerosCallsAndRefusesAnyOther) {
  RecordingCommunicator recorder(2);
  int sent = 3, received = 0;
  double number = 8.0;
  recorder.Barrier();
  recorder.Broadi(sent);
  ReplayingCommunicator rank(recorder.log(), 1, 2);
  rank.Barrier();
  EXPECT_THROW(rank.Broadd(number), CallMismatch);
  EXPECT_FALSE(rank.finished());
  rank.Broadi(received);
  EXPECT_EQ(received, 3);
  EXPECT_TRUE(rank.finished());
  EXPECT_THROW(rank.Barrier(), CallMismatch);
}

}  // namespace
}  // namespace zeb::test
