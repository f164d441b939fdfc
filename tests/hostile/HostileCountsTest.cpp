// Counts in files never size an allocation unchecked: what is refused, what is told, and that all ranks agree.
#include <gtest/gtest.h>

#include <algorithm>

#include "blocks/CZEBCMPGeneralParm.h"
#include "blocks/CZEBCMPMultiGateParm.h"
#include "blocks/CZEBCMPRTMParm.h"
#include "blocks/CZEBCMPUNFSettingParm.h"
#include "standalone/ThreadCommunicator.h"
#include "tests/ranks/RankReading.hpp"
#include "tests/support/TemporaryFile.hpp"

namespace {

using zebtest::Reading;
using zebtest::TemporaryFile;

struct List {
  const char* section;
  const char* before;  // lines that the count needs in front of it
  const char* key;
  int (*count)(const CZEBKNCMPCompParm& set);
  bool (*hasArray)(const CZEBKNCMPCompParm& set);
};

const List kLists[] = {
    {"MultiGate", "MultipleGateMethod = 1\n", "NumberofInletGroups",
     [](const CZEBKNCMPCompParm& set) { return set.getMultiGateParm()->iNumberofInletGroups(); },
     [](const CZEBKNCMPCompParm& set) { return set.getMultiGateParm()->pdInletWeightings() != nullptr; }},
    {"RTM", "IsVentInlet = 1\n", "NVentInlet",
     [](const CZEBKNCMPCompParm& set) { return set.getRTMParm()->iNVentInlet(); }, nullptr},
    {"UNFSetting", "FillType = 2\n", "nDispenserPoint",
     [](const CZEBKNCMPCompParm& set) { return set.getUNFSettingParm()->iNDispenserPass(); }, nullptr},
};

struct Count {
  const char* text;
  enum class Meaning { kRefused, kNoInt, kAccepted } meaning;
  int value = 0;
};

const Count kCounts[] = {
    {"-1", Count::Meaning::kRefused},       {"-2147483648", Count::Meaning::kRefused},
    {"1000001", Count::Meaning::kRefused},  {"2147483647", Count::Meaning::kRefused},
    {"2147483648", Count::Meaning::kNoInt}, {"99999999999999999999", Count::Meaning::kNoInt},
    {"many", Count::Meaning::kNoInt},       {"", Count::Meaning::kNoInt},
    {"0", Count::Meaning::kAccepted, 0},    {"3", Count::Meaning::kAccepted, 3},
    {"2e9", Count::Meaning::kAccepted, 2},  {"3.9", Count::Meaning::kAccepted, 3},
};

class HostileCount : public testing::TestWithParam<std::tuple<List, Count>> {
 protected:
  const List& list() const { return std::get<0>(m_parameters); }
  const Count& count() const { return std::get<1>(m_parameters); }

  std::string text() const {
    const std::string name = list().section;
    return "[" + name + "]\n" + list().before + list().key + " = " + count().text + "\n[/" + name +
           "]\n[General]\nVentMode = 1\n[/General]\n";
  }

 private:
  const std::tuple<List, Count> m_parameters = GetParam();
};

TEST_P(HostileCount, IsStoredOrRefusedWithOneLine) {
  const TemporaryFile file(text());
  CZEBKNCMPCompParm set(0, 0);
  const zeb::OutputCapture capture;
  set.setSolidFillBlock(file.path());
  EXPECT_EQ(list().count(set), count().value);
  if (list().hasArray != nullptr) {
    EXPECT_EQ(list().hasArray(set), count().meaning == Count::Meaning::kAccepted);
  }
  if (count().meaning != Count::Meaning::kRefused) {
    EXPECT_EQ(capture.text().find(list().key), std::string::npos);
    return;
  }
  EXPECT_EQ(std::count(capture.text().begin(), capture.text().end(), '\n'), 1);
  for (const char* part : {list().section, list().key, count().text}) {
    EXPECT_NE(capture.text().find(part), std::string::npos) << capture.text();
  }
}

TEST_P(HostileCount, LeavesTheSectionAndTheRestOfTheFileAsTheyAre) {
  if (count().meaning == Count::Meaning::kAccepted) return;  // an accepted one takes lines
  const TemporaryFile file(text());
  CZEBKNCMPCompParm set(0, 0);
  const zeb::OutputCapture capture;
  set.setSolidFillBlock(file.path());
  EXPECT_EQ(set.getGeneralParm()->iVentMode(), 1);
}

TEST_P(HostileCount, IsTheSameOnEveryRankAndToldByRank0Only) {
  const TemporaryFile file(text());
  const Reading serial = zebtest::readAs(nullptr, file.path());
  for (const int ranks : {2, 8}) {
    zeb::RecordingCommunicator first(ranks);
    expectSameReading(zebtest::readAs(&first, file.path()), serial);
    for (int rank = 1; rank < ranks; ++rank) {
      zeb::ReplayingCommunicator other(first.log(), rank, ranks);
      const Reading received = zebtest::readAs(&other, "no/such/file.cmp");
      EXPECT_TRUE(other.finished());
      EXPECT_TRUE(received.values == serial.values) << "rank " << rank;
      EXPECT_EQ(received.printed.find("is no valid count"), std::string::npos);
      EXPECT_EQ(received.printed, zebtest::printedByAll(serial.printed));
    }
  }
}

// Lists cut by the end of the file: the lines that are missing count as empty ones, on every rank.
TEST_P(HostileCount, AtTheEndOfTheFileTheRanksStayTheSame) {
  const std::string whole = text();
  const TemporaryFile file(whole.substr(0, whole.find("[/")));
  const Reading serial = zebtest::readAs(nullptr, file.path());
  expectSameReading(zebtest::readOnRanks(file.path(), 8, {1, 7}), serial);
}

INSTANTIATE_TEST_SUITE_P(Lists, HostileCount, testing::Combine(testing::ValuesIn(kLists), testing::ValuesIn(kCounts)));

TEST(HostileCounts, ALargeCountThatIsAllowedIsTheSameOnThreads) {
  // Twenty thousand lines that the file does not have.
  const TemporaryFile file("[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 20000\nWeightings = 0.25\n");
  const Reading serial = zebtest::readAs(nullptr, file.path());
  zeb::ThreadTeam team(2);
  std::vector<std::string> values(2);
  const zeb::OutputCapture capture;
  team.run([&](int rank, CZEBCom& com) {
    CZEBKNCMPCompParm set(0, 0);
    set.setZEBCom(&com);
    set.setSolidFillBlock(file.path());
    set.modifyParameters();
    values[static_cast<std::size_t>(rank)] = zeb::fingerprint(zeb::blocksOf(set));
  });
  EXPECT_TRUE(values[0] == serial.values);
  EXPECT_TRUE(values[1] == serial.values);
}

TEST(HostileCounts, TheLargestPointCountIsAllowed) {
  const TemporaryFile file("[UNFSetting]\nFillType = 2\nnDispenserPoint = 1000000\nPoint_x1 = 3\n[/UNFSetting]\n");
  CZEBKNCMPCompParm set(0, 0);
  const zeb::OutputCapture capture;
  set.setSolidFillBlock(file.path());
  EXPECT_EQ(set.getUNFSettingParm()->iNDispenserPass(), 1000000);
  EXPECT_EQ(capture.text(), "");
}

}  // namespace
