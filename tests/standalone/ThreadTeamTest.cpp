// Ranks in threads: values arrive, ranks wait for each other, and no mistake of one rank leaves the others waiting.
#include <gtest/gtest.h>
#include <pthread.h>

#include <atomic>
#include <chrono>
#include <cstring>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "standalone/ThreadCommunicator.h"
#include "tests/support/RecordingCommunicator.h"

namespace zeb::test {
namespace {

constexpr int kTeamSizes[] = {1, 2, 3, 8, 64};

std::string errorOf(ThreadTeam& team, const std::function<void(int, CZEBCom&)>& work) {
  try {
    team.run(work);
  } catch (const std::exception& error) {
    return error.what();
  }
  return "";
}

TEST(ThreadTeam, NeedsARank) {
  EXPECT_THROW(ThreadTeam(0), std::invalid_argument);
  EXPECT_THROW(ThreadTeam(-1), std::invalid_argument);
  ThreadTeam team(2);
  EXPECT_THROW(team.rank(2), std::out_of_range);
  EXPECT_THROW(team.rank(-1), std::out_of_range);
}

TEST(ThreadTeam, RunsEveryRankOnceWithItsOwnCommunicator) {
  for (const int ranks : kTeamSizes) {
    ThreadTeam team(ranks);
    EXPECT_EQ(team.size(), ranks);
    std::vector<int> runs(static_cast<std::size_t>(ranks));
    const auto caller = std::this_thread::get_id();
    team.run([&](int rank, CZEBCom& com) {
      ++runs[static_cast<std::size_t>(rank)];
      EXPECT_EQ(com.GetCPUId(), rank);
      EXPECT_EQ(com.GetNCPU(), ranks);
      EXPECT_EQ(&com, &team.rank(rank));
      EXPECT_EQ(std::this_thread::get_id() == caller, rank == 0);
    });
    EXPECT_EQ(runs, std::vector<int>(static_cast<std::size_t>(ranks), 1));
  }
}

TEST(ThreadTeam, BringsRankZerosValuesToAllInOrder) {
  for (const int ranks : kTeamSizes) {
    ThreadTeam team(ranks);
    team.run([](int rank, CZEBCom& com) {
      for (int line = 0; line < 50; ++line) {
        int flag = rank == 0 ? line : -1;
        double number = rank == 0 ? line + 0.5 : -1;
        char buffer[255];
        std::memset(buffer, rank == 0 ? 'a' + line % 26 : '?', sizeof buffer);
        com.Barrier();
        com.Broadi(flag);
        com.Broadc(buffer);
        com.Broadd(number);
        ASSERT_EQ(flag, line);
        ASSERT_EQ(number, line + 0.5);
        ASSERT_EQ(std::string(buffer, sizeof buffer), std::string(255, static_cast<char>('a' + line % 26)));
      }
    });
  }
}

TEST(ThreadTeam, KeepsLongRunsOfBroadcastsInOrderWithoutABarrier) {
  for (const int ranks : {2, 5}) {
    ThreadTeam team(ranks);
    team.run([](int rank, CZEBCom& com) {
      for (int sent = 0; sent < 5000; ++sent) {
        int value = rank == 0 ? sent : -1;
        com.Broadi(value);
        ASSERT_EQ(value, sent);
        if (sent % 1000 == 999) com.Barrier();
      }
    });
  }
}

TEST(ThreadTeam, LetsNoRankPassABarrierBeforeAllHaveCome) {
  constexpr int kRanks = 8;
  ThreadTeam team(kRanks);
  std::atomic<int> arrived{0};
  team.run([&arrived](int rank, CZEBCom& com) {
    for (int round = 1; round <= 100; ++round) {
      if (round % kRanks == rank) std::this_thread::sleep_for(std::chrono::microseconds(200));
      ++arrived;
      com.Barrier();
      ASSERT_GE(arrived.load(), round * kRanks);
      com.Barrier();
      ASSERT_LE(arrived.load(), (round + 1) * kRanks);
    }
  });
  EXPECT_EQ(arrived.load(), 100 * kRanks);
}

TEST(ThreadTeam, PassesTheFirstExceptionOnAndFreesAllOthers) {
  for (int failing = 0; failing < 4; ++failing) {
    ThreadTeam team(4);
    std::atomic<int> freed{0};
    const std::string error = errorOf(team, [&](int rank, CZEBCom& com) {
      if (rank == failing) {
        com.Barrier();
        throw std::logic_error("broken rank");
      }
      try {
        for (;;) com.Barrier();
      } catch (const std::exception&) {
        ++freed;
        int value = 0;
        EXPECT_ANY_THROW(com.Broadi(value));
        throw;
      }
    });
    EXPECT_EQ(error, "broken rank") << failing;
    EXPECT_EQ(freed.load(), 3) << failing;
  }
}

TEST(ThreadTeam, FreesRanksThatWaitForABroadcast) {
  ThreadTeam team(3);
  const auto work = [](int rank, CZEBCom& com) {
    int value = 0;
    if (rank == 0) throw 42;
    com.Broadi(value);
  };
  try {
    team.run(work);
    FAIL() << "nothing thrown";
  } catch (int thrown) {
    EXPECT_EQ(thrown, 42);
  }
}

// Threads with stacks larger than the address space are refused as those are for which there is no memory.
class StacksOfThreads {
 public:
  explicit StacksOfThreads(std::size_t size) {
    pthread_getattr_default_np(&m_before);
    pthread_attr_t attributes = m_before;
    pthread_attr_setstacksize(&attributes, size);
    pthread_setattr_default_np(&attributes);
  }
  ~StacksOfThreads() { pthread_setattr_default_np(&m_before); }
  StacksOfThreads(const StacksOfThreads&) = delete;
  StacksOfThreads& operator=(const StacksOfThreads&) = delete;

 private:
  pthread_attr_t m_before{};
};

TEST(ThreadTeam, TellsWhichRankTheSystemRefuses) {
  ThreadTeam team(3);
  std::atomic<int> calls{0};
  const auto work = [&calls](int, CZEBCom& com) {
    ++calls;
    com.Barrier();
  };
  {
    const StacksOfThreads stacks(std::size_t{1} << 48);
    EXPECT_EQ(errorOf(team, work), "rank 1 of 3 cannot be started: Resource temporarily unavailable");
    EXPECT_EQ(calls.load(), 0);
  }
  EXPECT_EQ(errorOf(team, work), "");
  EXPECT_EQ(calls.load(), 3);
}

TEST(ThreadTeam, CanBeUsedAgainAfterAFailure) {
  ThreadTeam team(4);
  for (int round = 0; round < 3; ++round) {
    EXPECT_THROW(team.run([](int rank, CZEBCom& com) {
      if (rank == 2) throw std::runtime_error("once");
      com.Barrier();
    }),
                 std::runtime_error);
    std::atomic<int> sum{0};
    team.run([&sum](int rank, CZEBCom& com) {
      int value = rank == 0 ? 7 : 0;
      com.Broadi(value);
      com.Barrier();
      sum += value;
    });
    EXPECT_EQ(sum.load(), 28);
  }
}

TEST(ThreadTeam, ReportsRanksThatMeetInDifferentCalls) {
  ThreadTeam team(2);
  const auto doOne = [](CZEBCom& com, char kind) {
    int integer = 0;
    double number = 0;
    char buffer[255] = {};
    switch (kind) {
      case 'b':
        com.Barrier();
        break;
      case 'i':
        com.Broadi(integer);
        break;
      case 'd':
        com.Broadd(number);
        break;
      default:
        com.Broadc(buffer);
        break;
    }
  };
  const struct {
    const char* rankZero;
    const char* rankOne;
  } cases[] = {
      {"i", "d"},  {"c", "i"},      {"b", "i"}, {"i", "b"}, {"ib", "b"},  {"b", "ib"},    {"bi", "b"},
      {"b", "bi"}, {"", "b"},       {"b", ""},  {"", "i"},  {"i", ""},    {"bibc", "bi"}, {"b", "bb"},
      {"bb", "b"}, {"iiib", "iib"}, {"", "c"},  {"d", "c"}, {"ib", "bi"}, {"bci", "bic"},
  };
  for (const auto& each : cases) {
    const std::string error = errorOf(team, [&](int rank, CZEBCom& com) {
      for (const char* kind = rank == 0 ? each.rankZero : each.rankOne; *kind != '\0'; ++kind) doOne(com, *kind);
    });
    EXPECT_NE(error, "") << each.rankZero << " against " << each.rankOne;
    EXPECT_EQ(error.find("another rank"), std::string::npos) << "not the cause: " << error;
  }
  EXPECT_EQ(errorOf(team, [&](int rank, CZEBCom& com) { doOne(com, rank == 0 ? 'i' : 'd'); }),
            "collective call 0: rank 0 made Broadi, rank 1 made Broadd");
}

TEST(ThreadTeam, GivesEveryRankTheSameLogAsRankZero) {
  constexpr std::size_t kRanks = 6;
  ThreadTeam team(static_cast<int>(kRanks));
  std::vector<CallLog> logs(kRanks);
  team.run([&logs](int rank, CZEBCom& com) {
    RecordingCommunicator recorder(com);
    int value = 100 + rank;
    recorder.Barrier();
    recorder.Broadi(value);
    logs[static_cast<std::size_t>(rank)] = recorder.log();
  });
  for (const CallLog& log : logs) EXPECT_EQ(log.calls(), (std::vector<std::string>{"Barrier", "Broadi 100"}));
}

TEST(ThreadTeam, PassesOneRanksErrorsThroughToo) {
  ThreadTeam team(1);
  EXPECT_EQ(errorOf(team,
                    [](int, CZEBCom& com) {
                      com.Barrier();
                      throw std::runtime_error("alone");
                    }),
            "alone");
}

}  // namespace
}  // namespace zeb::test
