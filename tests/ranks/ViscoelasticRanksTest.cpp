// The viscoelastic file on ranks: the same values everywhere, whether it is valid, cut, wrong or missing.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "standalone/ThreadCommunicator.h"
#include "tests/ranks/Examples.hpp"
#include "tests/ranks/RankReading.hpp"
#include "tests/support/TestFolder.hpp"

namespace {

using zebtest::Reading;
using zebtest::ReadingOptions;

const ReadingOptions kViscoelastic{.viscoelastic = true};

// A reading may replace the file, so that each finds a new one.
class ViscoelasticRanks : public testing::Test {
 protected:
  // Null: no viscoelastic file.
  void provide(const std::string* content) {
    std::filesystem::remove(m_folder.path("cover.vecmp.bak"));
    std::filesystem::remove(m_folder.path("cover.vecmp"));
    if (content != nullptr) m_folder.write("cover.vecmp", *content);
  }

  std::string fileAfterwards() const { return zebtest::contentOf(m_folder.path("cover.vecmp")); }

  // Serial, then 8 ranks; returns the serial reading.
  Reading expectSame(const std::string* content) {
    provide(content);
    const Reading serial = zebtest::readAs(nullptr, m_cmp, kViscoelastic);
    const std::string written = fileAfterwards();
    provide(content);
    expectSameReading(zebtest::readOnRanks(m_cmp, 8, {1, 7}, kViscoelastic), serial);
    EXPECT_EQ(fileAfterwards(), written);
    return serial;
  }

  zeb::test::TestFolder m_folder;
  std::string m_cmp = m_folder.write("cover.cmp", "[General]\nVentMode = 1\n[/General]\n");
  std::string m_example = zebtest::contentOf(zebtest::example("thin-wall-cover.vecmp"));
};

TEST_F(ViscoelasticRanks, AValidFileIsTheSameOn1To64Ranks) {
  const Reading serial = expectSame(&m_example);
  EXPECT_EQ(fileAfterwards(), m_example);
  EXPECT_NE(serial.values, zebtest::readAs(nullptr, m_cmp).values);
  for (const int ranks : {1, 2, 3, 64}) {
    SCOPED_TRACE(ranks);
    expectSameReading(zebtest::readOnRanks(m_cmp, ranks, {}, kViscoelastic), serial);
  }
  expectSameReading(zebtest::readOnRanks(m_cmp, 64, {1, 31, 32, 63}, kViscoelastic), serial);
}

TEST_F(ViscoelasticRanks, AMissingOrInvalidFileIsReplaced) {
  const std::string invalid = "1005\n1 2 3\n";
  for (const std::string* content : {static_cast<const std::string*>(nullptr), &invalid}) {
    expectSame(content);
    EXPECT_EQ(fileAfterwards().substr(0, 5), "1006\n");
  }
}

TEST_F(ViscoelasticRanks, CutAtEveryByteTheRanksStayTheSame) {
  std::set<std::string> states;
  for (std::size_t length = 0; length <= m_example.size(); ++length) {
    SCOPED_TRACE("cut after " + std::to_string(length) + " bytes");
    const std::string cut = m_example.substr(0, length);
    states.insert(expectSame(&cut).values);
    if (testing::Test::HasFailure()) return;
  }
  EXPECT_GT(states.size(), 20u);
}

TEST_F(ViscoelasticRanks, ThreadsConfirm) {
  m_cmp = m_folder.write("cover.cmp", zebtest::contentOf(zebtest::example("thin-wall-cover.cmp")));
  const Reading serial = expectSame(&m_example);
  for (const int ranks : {2, 8, 64}) {
    std::vector<std::string> values(static_cast<std::size_t>(ranks));
    const zeb::OutputCapture capture;
    zeb::ThreadTeam team(ranks);
    team.run([&](int rank, CZEBCom& com) {
      CZEBKNCMPCompParm set(0, 0);
      set.setZEBCom(&com);
      set.getVEParm()->setIstoCalcRS(true);
      set.setSolidFillBlock(rank == 0 ? m_cmp : "no/such/file.cmp");
      set.modifyParameters();
      values[static_cast<std::size_t>(rank)] = zeb::fingerprint(zeb::blocksOf(set));
    });
    for (const std::string& ofRank : values) EXPECT_TRUE(ofRank == serial.values) << ranks << " ranks";
  }
}

}  // namespace
