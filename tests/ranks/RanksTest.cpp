// Every rank holds what a serial run holds, value by value: the examples, random files, files cut anywhere.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <vector>

#include "standalone/ThreadCommunicator.h"
#include "tests/ranks/Examples.hpp"
#include "tests/ranks/RandomFile.hpp"
#include "tests/ranks/RankReading.hpp"
#include "tests/support/TemporaryFile.hpp"
#include "tests/support/TestFolder.hpp"

namespace {

using zebtest::Reading;
using zebtest::ReadingOptions;

// All the other ranks of a run with that many, for a sample.
void expectOnAllRanks(const std::string& file, int ranks, const ReadingOptions& options, const Reading& serial) {
  SCOPED_TRACE(file + " on " + std::to_string(ranks) + " ranks");
  expectSameReading(zebtest::readOnRanks(file, ranks, {}, options), serial);
  zeb::RecordingCommunicator first(ranks);
  zebtest::readAs(&first, file, options);
  for (int rank = 1; rank < ranks; ++rank) {
    zeb::ReplayingCommunicator other(first.log(), rank, ranks);
    const Reading received = zebtest::readAs(&other, "no/such/file.cmp", options);
    ASSERT_TRUE(other.finished()) << "rank " << rank;
    ASSERT_TRUE(received.values == serial.values) << "rank " << rank << " differs";
    ASSERT_EQ(received.printed, zebtest::printedByAll(serial.printed)) << "rank " << rank;
  }
}

void expectOnThreads(const std::string& file, int ranks, const ReadingOptions& options, const Reading& serial) {
  SCOPED_TRACE(file + " on " + std::to_string(ranks) + " ranks in threads");
  std::vector<std::string> values(static_cast<std::size_t>(ranks));
  const zeb::OutputCapture capture;
  zeb::ThreadTeam team(ranks);
  team.run([&](int rank, CZEBCom& com) {
    CZEBKNCMPCompParm set(options.molding, options.material);
    set.setZEBCom(&com);
    set.getVEParm()->setIstoCalcRS(options.viscoelastic);
    set.setSolidFillBlock(rank == 0 ? file : "no/such/file.cmp");
    if (options.repair) set.modifyParameters();
    values[static_cast<std::size_t>(rank)] = zeb::fingerprint(zeb::blocksOf(set));
  });
  for (int rank = 0; rank < ranks; ++rank) {
    EXPECT_TRUE(values[static_cast<std::size_t>(rank)] == serial.values) << "rank " << rank << " differs";
  }
  EXPECT_EQ(capture.text(), serial.printed);
}

// --- Examples ---------------------------------------------------------------------------------------------------

TEST(ExamplesOnRanks, EveryFileIsTheSameOn1To64Ranks) {
  const std::string defaults = zebtest::untouchedValues();
  for (const std::string& file : zebtest::examples(".cmp")) {
    const Reading serial = zebtest::readAs(nullptr, file);
    EXPECT_NE(serial.values, defaults) << file;
    for (const int ranks : {1, 2, 3, 8, 64}) expectOnAllRanks(file, ranks, {}, serial);
  }
}

TEST(ExamplesOnRanks, EveryMoldingAndMaterialTypeIsTheSame) {
  const std::string file = zebtest::example("thin-wall-cover.cmp");
  for (const int molding : zebtest::moldingCodes()) {
    for (const int material : {0, 1}) {
      const ReadingOptions options{.molding = molding, .material = material};
      const Reading serial = zebtest::readAs(nullptr, file, options);
      expectSameReading(zebtest::readOnRanks(file, 8, {1, 7}, options), serial);
    }
  }
}

TEST(ExamplesOnRanks, ThreadsConfirm) {
  for (const std::string& file : zebtest::examples(".cmp")) {
    const Reading serial = zebtest::readAs(nullptr, file);
    for (const int ranks : {2, 8}) expectOnThreads(file, ranks, {}, serial);
  }
  const std::string file = zebtest::example("gas-assisted-handle.cmp");
  expectOnThreads(file, 64, {}, zebtest::readAs(nullptr, file));
}

// --- Random files -----------------------------------------------------------------------------------------------

// 10,000 files in all, in parts that may run side by side.
class RandomFilesOnRanks : public testing::TestWithParam<unsigned> {};

TEST_P(RandomFilesOnRanks, AreTheSameAsASerialRun) {
  zebtest::RandomFiles files(GetParam());
  const ReadingOptions options{.repair = false};
  const std::string defaults = zebtest::untouchedValues(options);
  zebtest::TemporaryFile file("");
  std::set<std::string> changedBlocks;
  int changedFiles = 0, refusals = 0;
  for (int number = 0; number < 2500; ++number) {
    SCOPED_TRACE("random file " + std::to_string(number));
    file.write(files.next());
    const Reading serial = zebtest::readAs(nullptr, file.path(), options);
    expectSameReading(zebtest::readOnRanks(file.path(), 8, {1, 7}, options), serial);
    if (number % 500 == 0) expectOnAllRanks(file.path(), 64, options, serial);
    if (number % 1000 == 500) {
      for (const int ranks : {2, 8, 64}) expectOnThreads(file.path(), ranks, options, serial);
    }
    changedFiles += serial.values != defaults ? 1 : 0;
    refusals += serial.printed.find(" is no valid count (") != std::string::npos ? 1 : 0;
    std::istringstream is(serial.values), was(defaults);
    for (std::string line, other; std::getline(is, line) && std::getline(was, other);) {
      if (line != other) changedBlocks.insert(line.substr(0, line.find('.')));
    }
    if (testing::Test::HasFailure()) {
      ADD_FAILURE() << "the file:\n" << zebtest::contentOf(file.path());
      return;
    }
  }
  // That the files are worth reading: all blocks but the viscoelastic one are reached.
  EXPECT_GT(changedFiles, 1500);
  EXPECT_GT(refusals, 25);
  EXPECT_EQ(changedBlocks.size(), 41u);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomFilesOnRanks, testing::Values(1u, 2u, 3u, 4u));

// --- Files cut short --------------------------------------------------------------------------------------------

TEST(CutFilesOnRanks, AnExampleCutAtEveryByte) {
  const std::string whole = zebtest::contentOf(zebtest::example("gas-assisted-handle.cmp"));
  ASSERT_NE(whole.find("[VER] 1023"), std::string::npos);
  zebtest::TemporaryFile file("");
  std::set<std::string> states;
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    SCOPED_TRACE("cut after " + std::to_string(length) + " bytes");
    file.write(whole.substr(0, length));
    const Reading serial = zebtest::readAs(nullptr, file.path(), {.repair = false});
    expectSameReading(zebtest::readOnRanks(file.path(), 3, {1, 2}, {.repair = false}), serial);
    states.insert(serial.values);
    if (testing::Test::HasFailure()) return;
  }
  EXPECT_GT(states.size(), 100u);  // what is cut off does make a difference
}

TEST(CutFilesOnRanks, AHeadCutShortInThreads) {
  const std::string whole = zebtest::contentOf(zebtest::example("gas-assisted-handle.cmp"));
  const std::size_t head = whole.find("[VER] 1023");
  for (std::size_t cut = head; cut < head + 250; cut += 31) {
    const zebtest::TemporaryFile file(whole.substr(0, cut));
    expectOnThreads(file.path(), 8, {}, zebtest::readAs(nullptr, file.path()));
  }
}

// Every list, cut at every byte: the ranks must agree on the lines that are missing.
TEST(CutFilesOnRanks, ListsCutAtEveryByte) {
  const char* const texts[] = {
      "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 3\nWeightings = 0.2\nWeightings = 0.3\n"
      "Weightings = 0.9\nMultipleGateDebug = 1\n[/MultiGate]\n",
      "[RTM]\nIsVentInlet = 1\nNVentInlet = 3\nVentInletID = 11\nVentInletID = 12\nVentInletID = 13\n[/RTM]\n",
      "[UNFSetting]\nFillType = 2\nnDispenserPoint = 2\nPoint_x1 = 1\nPoint_y1 = 2\nPoint_x2 = 3\nPoint_y2 = 4\n"
      "[/UNFSetting]\n",
      "[Whiteboard]\nHeatFluxHistory\nElemagComsol 1.5 2.5 field.txt\nIdealCooingItreateNumber = 4\n[/Whiteboard]\n"
      "[General]\nVentMode = 1\n[/General]\n",
      "[FastCool]\n1017\n3 4\n5 6\n7\n8 9 10 11\n12 13 0.5 14\n[/FastCool]\n[General]\nVentMode = 1\n[/General]\n",
  };
  for (const std::string whole : texts) {
    for (std::size_t length = 0; length <= whole.size(); ++length) {
      SCOPED_TRACE(whole.substr(0, length));
      const zebtest::TemporaryFile file(whole.substr(0, length));
      const Reading serial = zebtest::readAs(nullptr, file.path());
      expectSameReading(zebtest::readOnRanks(file.path(), 8, {1, 7}), serial);
    }
  }
}

}  // namespace
