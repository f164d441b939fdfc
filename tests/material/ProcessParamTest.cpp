// One process object for each rank, made in the ranks' order.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "material/CZEBKNProcessParam.h"
#include "standalone/ThreadCommunicator.h"
#include "tests/material/FakeProcess.h"
#include "tests/material/WatchedRank.h"
#include "tests/support/RecordingCommunicator.h"

namespace {

static_assert(
    std::is_same_v<decltype(&CZEBKNProcessParam::SetInput), int (CZEBKNProcessParam::*)(std::string, CZEBCom*)>);
static_assert(std::is_same_v<decltype(&CZEBKNProcessParam::GetZebProcess),
                             ZEBG_SimulatorProcess* (CZEBKNProcessParam::*)() const>);

class ProcessParam : public testing::Test {
 protected:
  void SetUp() override { FakeProcess::reset(); }
};

TEST_F(ProcessParam, HasNoObjectBeforeItsInput) {
  const CZEBKNProcessParam param;
  EXPECT_EQ(param.GetZebProcess(), nullptr);
}

TEST_F(ProcessParam, SerialInputCreatesExactlyOneObject) {
  {
    CZEBKNProcessParam param;
    EXPECT_EQ(param.SetInput("any.pro", nullptr), 1);
    EXPECT_NE(param.GetZebProcess(), nullptr);
    EXPECT_EQ(FakeProcess::created, 1);
    EXPECT_EQ(FakeProcess::destroyed, 0);
  }
  EXPECT_EQ(FakeProcess::destroyed, 1);
}

TEST_F(ProcessParam, EachOfFourRanksCreatesItsObjectInItsTurn) {
  const Events expected[] = {{"create", "barrier", "barrier", "barrier", "barrier"},
                             {"barrier", "create", "barrier", "barrier", "barrier"},
                             {"barrier", "barrier", "create", "barrier", "barrier"},
                             {"barrier", "barrier", "barrier", "create", "barrier"}};
  for (int rank = 0; rank < 4; ++rank) {
    Events events;
    FakeProcess::onCreate = [&] { events.emplace_back("create"); };
    WatchedRank com(rank, 4, events);
    CZEBKNProcessParam param;
    EXPECT_EQ(param.SetInput("", &com), 1);
    EXPECT_EQ(events, expected[rank]) << "rank " << rank;
    EXPECT_NE(param.GetZebProcess(), nullptr);
  }
}

TEST_F(ProcessParam, RanksOfATeamCreateTheirObjectsOneAfterAnother) {
  // No lock around the list: only the barriers keep the ranks apart, which the thread sanitizer confirms.
  thread_local int thisRank = -1;
  std::vector<int> order;
  FakeProcess::onCreate = [&] { order.push_back(thisRank); };
  zeb::ThreadTeam team(4);
  std::vector<CZEBKNProcessParam> params(4);
  std::vector<zeb::CallLog> logs(4);
  team.run([&](int rank, CZEBCom& com) {
    thisRank = rank;
    zeb::RecordingCommunicator recording(com);
    EXPECT_EQ(params[static_cast<std::size_t>(rank)].SetInput("", &recording), 1);
    logs[static_cast<std::size_t>(rank)] = recording.log();
  });
  EXPECT_EQ(order, (std::vector<int>{0, 1, 2, 3}));
  for (const auto& log : logs) {
    EXPECT_EQ(log.calls(), (std::vector<std::string>{"Barrier", "Barrier", "Barrier", "Barrier"}));
  }
  for (const auto& param : params) EXPECT_NE(param.GetZebProcess(), nullptr);
}

TEST_F(ProcessParam, CommunicatorWithoutRanksCreatesNothing) {
  for (const int ranks : {0, -1}) {
    Events events;
    WatchedRank com(0, ranks, events);
    CZEBKNProcessParam param;
    EXPECT_EQ(param.SetInput("", &com), 1);
    EXPECT_EQ(param.GetZebProcess(), nullptr);
    EXPECT_TRUE(events.empty());
  }
}

TEST_F(ProcessParam, SecondInputKeepsTheFirstObjectAlive) {
  {
    CZEBKNProcessParam param;
    param.SetInput("", nullptr);
    const ZEBG_SimulatorProcess* const first = param.GetZebProcess();
    param.SetInput("", nullptr);
    EXPECT_NE(param.GetZebProcess(), first);
    EXPECT_EQ(FakeProcess::created, 2);
    EXPECT_EQ(FakeProcess::destroyed, 0);
  }
  EXPECT_EQ(FakeProcess::destroyed, 2);
}

TEST_F(ProcessParam, CopiesShareTheObjectAndMayAllBeDestroyed) {
  {
    auto original = std::make_unique<CZEBKNProcessParam>();
    original->SetInput("", nullptr);
    const CZEBKNProcessParam copied(*original);
    CZEBKNProcessParam assigned;
    assigned.SetInput("", nullptr);
    assigned = *original;
    EXPECT_EQ(copied.GetZebProcess(), original->GetZebProcess());
    EXPECT_EQ(assigned.GetZebProcess(), original->GetZebProcess());
    original.reset();
    EXPECT_EQ(FakeProcess::destroyed, 0);
  }
  EXPECT_EQ(FakeProcess::created, 2);
  EXPECT_EQ(FakeProcess::destroyed, 2);
}

TEST_F(ProcessParam, TeamWithoutATurnForThisRankKeepsTheEarlierObject) {
  const struct {
    int rank, ranks;
    Events expected;
  } cases[] = {{0, 0, {}}, {0, -1, {}}, {2, 2, {"barrier", "barrier"}}, {-1, 1, {"barrier"}}};
  for (const auto& c : cases) {
    CZEBKNProcessParam param;
    param.SetInput("", nullptr);
    const ZEBG_SimulatorProcess* const first = param.GetZebProcess();
    Events events;
    WatchedRank com(c.rank, c.ranks, events);
    EXPECT_EQ(param.SetInput("", &com), 1);
    EXPECT_EQ(events, c.expected);
    EXPECT_EQ(param.GetZebProcess(), first);
  }
  EXPECT_EQ(FakeProcess::created, 4);
  EXPECT_EQ(FakeProcess::destroyed, 4);
}

TEST_F(ProcessParam, NameOfTheFileMakesNoDifference) {
  for (const std::string& name : {std::string(), std::string("no/such/file"), std::string(100'000, 'n')}) {
    Events events;
    FakeProcess::onCreate = [&events] { events.emplace_back("create"); };
    WatchedRank com(0, 1, events);
    CZEBKNProcessParam param;
    EXPECT_EQ(param.SetInput(name, &com), 1);
    EXPECT_EQ(events, (Events{"create", "barrier"}));
  }
}

TEST_F(ProcessParam, SerialInputAfterAParallelOneMakesNoCall) {
  Events events;
  WatchedRank com(1, 2, events);
  CZEBKNProcessParam param;
  param.SetInput("", &com);
  const ZEBG_SimulatorProcess* const first = param.GetZebProcess();
  events.clear();
  param.SetInput("", nullptr);
  EXPECT_TRUE(events.empty());
  EXPECT_NE(param.GetZebProcess(), first);
  const CZEBKNProcessParam& itself = param;
  param = itself;
  EXPECT_NE(param.GetZebProcess(), nullptr);
  EXPECT_EQ(FakeProcess::destroyed, 0);
}

}  // namespace
