// The communicators of one process: serial, recording and replaying.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "standalone/SerialCommunicator.h"
#include "tests/support/RecordingCommunicator.h"

namespace zeb::test {
namespace {

using Buffer = char[255];

/// The collective calls of one delivered line.
void sendLine(CZEBCom& com, int endFlag, const char* line) {
  Buffer buffer = {};
  std::strcpy(buffer, line);
  com.Barrier();
  com.Broadi(endFlag);
  com.Broadc(buffer);
}

CallLog logOf(void (*calls)(CZEBCom&)) {
  RecordingCommunicator recorder(4);
  calls(recorder);
  return recorder.log();
}

TEST(SerialCommunicator, IsOneRankAndChangesNothing) {
  SerialCommunicator com;
  EXPECT_EQ(com.GetCPUId(), 0);
  EXPECT_EQ(com.GetNCPU(), 1);
  int integer = 3;
  double number = 2.5;
  Buffer buffer = "text";
  com.Barrier();
  com.Broadi(integer);
  com.Broadd(number);
  com.Broadc(buffer);
  EXPECT_EQ(integer, 3);
  EXPECT_EQ(number, 2.5);
  EXPECT_STREQ(buffer, "text");
}

TEST(RecordingCommunicator, IsRankZeroOfItsTeam) {
  RecordingCommunicator recorder(8);
  EXPECT_EQ(recorder.GetCPUId(), 0);
  EXPECT_EQ(recorder.GetNCPU(), 8);
  EXPECT_TRUE(recorder.log().empty());
}

TEST(RecordingCommunicator, PrintsItsCallsOneByOne) {
  const CallLog log = logOf([](CZEBCom& com) {
    sendLine(com, 0, "Key =\t\"a\\b\"\r");
    int integer = -2147483647 - 1;
    com.Broadi(integer);
    for (double number : {2.5, -0.0, 0.1, 1e300, std::nan("")}) com.Broadd(number);
    Buffer buffer = {'\x01', '\x7f', '\xe4', '\0', 'n', 'o', 't'};
    com.Broadc(buffer);
  });
  EXPECT_EQ(log.calls(), (std::vector<std::string>{"Barrier", "Broadi 0", R"(Broadc "Key =\t\"a\\b\"\r")",
                                                   "Broadi -2147483648", "Broadd 2.5", "Broadd -0", "Broadd 0.1",
                                                   "Broadd 1e+300", "Broadd nan", "Broadc \"\\x01\\x7f\xe4\""}));
  EXPECT_EQ(log.size(), 10u);
  EXPECT_EQ(log.text().substr(0, 17), "Barrier\nBroadi 0\n");
}

TEST(RecordingCommunicator, ComparesLogsToTheLastByte) {
  const auto reference = [](CZEBCom& com) { sendLine(com, 0, "line"); };
  EXPECT_EQ(logOf(reference), logOf(reference));
  EXPECT_NE(logOf(reference), logOf([](CZEBCom& com) { sendLine(com, 0, "lime"); }));
  EXPECT_NE(logOf(reference), logOf([](CZEBCom& com) { sendLine(com, -1, "line"); }));
  EXPECT_NE(logOf(reference), logOf([](CZEBCom& com) {
              sendLine(com, 0, "line");
              com.Barrier();
            }));
  EXPECT_NE(logOf(reference), logOf([](CZEBCom& com) {
              int endFlag = 0;
              Buffer buffer = "line";
              buffer[254] = 'x';
              com.Barrier();
              com.Broadi(endFlag);
              com.Broadc(buffer);
            }));
}

TEST(RecordingCommunicator, StartsAgainWhenCleared) {
  RecordingCommunicator recorder(2);
  recorder.Barrier();
  recorder.clear();
  EXPECT_TRUE(recorder.log().empty());
  int value = 7;
  recorder.Broadi(value);
  EXPECT_EQ(recorder.log().calls(), std::vector<std::string>{"Broadi 7"});
}

TEST(RecordingCommunicator, PassesCallsOnAndRecordsWhatArrives) {
  const CallLog rankZero = logOf([](CZEBCom& com) {
    int integer = 5;
    double number = 0.25;
    com.Broadi(integer);
    com.Broadd(number);
    sendLine(com, 0, "sent");
  });
  ReplayingCommunicator rankTwo(rankZero, 2, 4);
  RecordingCommunicator recorder(rankTwo);
  EXPECT_EQ(recorder.GetCPUId(), 2);
  EXPECT_EQ(recorder.GetNCPU(), 4);
  int integer = 0;
  double number = 0;
  recorder.Broadi(integer);
  recorder.Broadd(number);
  sendLine(recorder, -9, "mine");
  EXPECT_EQ(integer, 5);
  EXPECT_TRUE(rankTwo.finished());
  EXPECT_EQ(recorder.log(), rankZero);
}

TEST(ReplayingCommunicator, DeliversRankZerosValuesExactly) {
  RecordingCommunicator recorder(3);
  int sentInteger = std::numeric_limits<int>::max();
  double sentNumber = std::numeric_limits<double>::denorm_min();
  Buffer full;
  Buffer holes = {};
  Buffer empty = {};
  std::memset(full, 'f', sizeof full);
  holes[100] = 'h';
  recorder.Broadi(sentInteger);
  recorder.Broadd(sentNumber);
  recorder.Broadc(full);
  recorder.Broadc(holes);
  recorder.Broadc(empty);
  recorder.Barrier();

  ReplayingCommunicator rank(recorder.log(), 1, 3);
  EXPECT_EQ(rank.GetCPUId(), 1);
  EXPECT_EQ(rank.GetNCPU(), 3);
  int integer = 0;
  double number = 0;
  rank.Broadi(integer);
  rank.Broadd(number);
  EXPECT_EQ(integer, sentInteger);
  EXPECT_EQ(number, sentNumber);
  for (const Buffer* sent : {&full, &holes, &empty}) {
    Buffer received;
    std::memset(received, '#', sizeof received);
    rank.Broadc(received);
    EXPECT_EQ(std::memcmp(received, *sent, sizeof received), 0);
  }
  EXPECT_FALSE(rank.finished());
  EXPECT_EQ(rank.callsMade(), 5u);
  rank.Barrier();
  EXPECT_TRUE(rank.finished());
}

TEST(ReplayingCommunicator, NamesTheFirstDifferingCallAndStaysThere) {
  const CallLog log = logOf([](CZEBCom& com) { sendLine(com, 3, "line"); });
  ReplayingCommunicator rank(log, 1, 2);
  rank.Barrier();
  for (int attempt = 0; attempt < 2; ++attempt) {
    double number = 8;
    try {
      rank.Broadd(number);
      FAIL() << "a Broadd where rank 0 made a Broadi";
    } catch (const CallMismatch& mismatch) {
      EXPECT_EQ(mismatch.index(), 1u);
      EXPECT_EQ(mismatch.recorded(), "Broadi 3");
      EXPECT_EQ(mismatch.made(), "Broadd");
      EXPECT_STREQ(mismatch.what(), "collective call 1: rank 0 made Broadi 3, rank 1 made Broadd");
    }
    EXPECT_EQ(number, 8);
  }
  int endFlag = 0;
  rank.Broadi(endFlag);
  EXPECT_EQ(endFlag, 3);
}

TEST(ReplayingCommunicator, ReportsEverySurplusCall) {
  const CallLog log = logOf([](CZEBCom& com) { com.Barrier(); });
  ReplayingCommunicator rank(log, 1, 2);
  rank.Barrier();
  Buffer buffer = {};
  int integer = 0;
  double number = 0;
  EXPECT_THROW(rank.Barrier(), CallMismatch);
  EXPECT_THROW(rank.Broadi(integer), CallMismatch);
  EXPECT_THROW(rank.Broadd(number), CallMismatch);
  try {
    rank.Broadc(buffer);
    FAIL() << "a call behind the last one";
  } catch (const CallMismatch& mismatch) {
    EXPECT_EQ(mismatch.index(), 1u);
    EXPECT_EQ(mismatch.recorded(), "nothing");
    EXPECT_EQ(mismatch.made(), "Broadc");
  }
}

TEST(ReplayingCommunicatorDeathTest, AbortsWhereAFuzzerNeedsIt) {
  const CallLog log = logOf([](CZEBCom& com) { com.Barrier(); });
  ReplayingCommunicator rank(log, 3, 4, OnMismatch::kAbort);
  int value = 0;
  EXPECT_DEATH(rank.Broadi(value), "collective call 0: rank 0 made Barrier, rank 3 made Broadi");
}

}  // namespace
}  // namespace zeb::test
