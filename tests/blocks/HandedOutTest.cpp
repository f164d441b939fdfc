// Texts and lists that a block has handed out: they stay as they are when the block reads again, is copied, assigned to
// or destroyed.
#include <gtest/gtest.h>

#include <mutex>
#include <string>
#include <vector>

#include "ZEBKNCompParm.h"
#include "engine/Rank0Section.hpp"
#include "engine/ReadObserver.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "standalone/ThreadCommunicator.h"
#include "tests/blocks/ReadBlock.hpp"
#include "tests/support/RecordingCommunicator.h"
#include "tests/support/TemporaryFile.hpp"

namespace {

using zebtest::dumpOf;
using zebtest::printedBy;
using zebtest::readSectionInto;

// --- Texts ------------------------------------------------------------------------------------------------------

template <class Block>
void expectTextsStay(const char* section, const std::string& line, const char* (Block::*get)() const) {
  SCOPED_TRACE(line);
  Block assigned;
  const char* first = nullptr;
  {
    Block block;
    readSectionInto(block, section, line + "first\n");
    first = (block.*get)();
    ASSERT_STREQ(first, "first");
    assigned = block;
    const Block copied(block);
    EXPECT_EQ((copied.*get)(), first) << "copies share the text";
    readSectionInto(block, section, line + "second\n");
    EXPECT_STREQ(first, "first");
    EXPECT_STREQ((block.*get)(), "second");
    EXPECT_EQ((assigned.*get)(), first);
    Block overwritten(assigned);
    overwritten = block;
    EXPECT_STREQ((overwritten.*get)(), "second");
  }
  const Block& itself = assigned;
  assigned = itself;
  EXPECT_EQ((assigned.*get)(), first);
  EXPECT_STREQ(first, "first") << "without its first owner";
  assigned = Block();
  EXPECT_STREQ(first, "first") << "without any";
}

TEST(HandedOutText, Stays) {
  using General = CZEBCMPGeneralParm;
  expectTextsStay<General>("General", "FirstMeshName = ", &General::FirstMeshName);
  expectTextsStay<General>("General", "SecondM3FName = ", &General::SecondM3FName);
  expectTextsStay<General>("General", "SecondM3OName = ", &General::SecondM3OName);
  expectTextsStay<General>("General", "ValueInitChargeFiberExchangeName = ", &General::strInitChargeFiber);
  expectTextsStay<CZEBCMPFAIMParm>("FAIM", "CoMtrName = ", &CZEBCMPFAIMParm::CoMatName);
  using Compression = CZEBCMPCompressionParm;
  expectTextsStay<Compression>("Compression", "FilePathOfInitialData = ", &Compression::szFilePathOfInitialData);
  expectTextsStay<Compression>("Compression", "FilePathOfLocation = ", &Compression::szFilePathOfLocation);
  using Whiteboard = CZEBCoolBackDoorParm;
  expectTextsStay<Whiteboard>("Whiteboard", "ElemagComsol 0 1 ", &Whiteboard::cGetElectromagneticxternalFile);
}

TEST(Whiteboard, FileNameIsCutTo511Characters) {
  for (const std::size_t length : {510u, 511u, 512u, 5000u}) {
    CZEBCoolBackDoorParm block;
    readSectionInto(block, "Whiteboard", "ElemagComsol 0 1 " + std::string(length, 'f') + "\n");
    EXPECT_EQ(std::string(block.cGetElectromagneticxternalFile()), std::string(length < 511 ? length : 511, 'f'));
  }
}

TEST(Whiteboard, FileNameTravelsInAsFewBroadcastsAsHoldIt) {
  for (const std::size_t length : {1u, 253u, 254u, 255u, 508u, 509u, 511u}) {
    std::string name(length, ' ');
    for (std::size_t i = 0; i < length; ++i) name[i] = static_cast<char>('a' + i % 25);
    std::vector<std::string> pieces;  // a buffer of 255 characters, its end included
    for (std::size_t at = 0; at < length; at += 254) pieces.push_back("Broadc \"" + name.substr(at, 254) + '"');
    zeb::RecordingCommunicator com(2);
    std::istringstream stream("ElemagComsol 0 1 " + name + "\n");
    const zeb::LineSource source{.com = &com};
    zeb::LineReader reader(stream, source, nullptr);
    CZEBCoolBackDoorParm block;
    zeb::readSectionOnRank0(zebtest::sectionOf<CZEBCoolBackDoorParm>("Whiteboard"), &block, reader);
    std::vector<std::string> calls = com.log().calls();
    std::erase_if(calls, [](const std::string& call) { return !call.starts_with("Broadc"); });
    EXPECT_EQ(calls, pieces);
  }
}

// Rank 0 reads this section by itself, so that its lines have no limit; all other sections' lines are cut.
TEST(Whiteboard, LinesLongerThanABroadcastCountOnEveryRank) {
  const std::string blanks(300, ' '), name(400, 'c');
  const zebtest::TemporaryFile file("[Whiteboard]\n" + blanks + "SensorHeatFlux\nElemagComsol" + blanks + "1.5 2.5 " +
                                    name + "\n" + blanks + "IdealCooingItreateNumber = 9\n" + blanks +
                                    "[/Whiteboard]\n[General]\nVentMode = 3\n" + blanks +
                                    "TurningBad = 1\n[/General]\n");
  constexpr int kRanks = 3;
  int checked = 0;
  std::mutex mutex;
  zeb::ThreadTeam team(kRanks);
  team.run([&](int rank, CZEBCom& com) {
    CZEBKNCMPCompParm set(0, 0);
    set.setZEBCom(&com);
    set.setSolidFillBlock(rank == 0 ? file.path() : "no/such/file.cmp");
    const std::lock_guard<std::mutex> lock(mutex);
    SCOPED_TRACE(rank);
    const CZEBCoolBackDoorParm& board = *set.getCool_BackDoorParm();
    EXPECT_EQ(board.iGetIfActiveSensorHeatFlux(), 1);
    EXPECT_EQ(board.iGetIfActive_ElectromagneticHeating(), 1);
    EXPECT_EQ(board.dGetTime_StartHeating(), 1.5);
    EXPECT_EQ(board.dGetTime_EndHeating(), 2.5);
    EXPECT_EQ(board.cGetElectromagneticxternalFile(), name);
    EXPECT_EQ(board.iGetIdealCooingIterateNumber(), 9);
    EXPECT_EQ(set.getGeneralParm()->iVentMode(), 3);
    EXPECT_EQ(set.getGeneralParm()->iTurningBad(), 0) << "cut off";
    ++checked;
  });
  EXPECT_EQ(checked, kRanks);
}

// --- Lists ------------------------------------------------------------------------------------------------------

const std::string kWeights = "MultipleGateMethod = 1\nNumberofInletGroups = 2\nWeightings = ";

TEST(HandedOutList, OfWeightsStays) {
  CZEBCMPMultiGateParm assigned;
  const double* first = nullptr;
  {
    CZEBCMPMultiGateParm block;
    EXPECT_EQ(block.pdInletWeightings(), nullptr);
    readSectionInto(block, "MultiGate", kWeights + "0.25\nWeightings = 0\n");
    first = block.pdInletWeightings();
    ASSERT_NE(first, nullptr);
    assigned = block;
    const CZEBCMPMultiGateParm copied(block);
    EXPECT_EQ(copied.pdInletWeightings(), first);
    readSectionInto(block, "MultiGate", kWeights + "0.5\nWeightings = 0\n");
    EXPECT_EQ(block.pdInletWeightings()[1], 0.5);
    printedBy([&] { readSectionInto(block, "MultiGate", "NumberofInletGroups = -1\n"); });
    EXPECT_EQ(block.pdInletWeightings(), nullptr) << "refused";
  }
  EXPECT_EQ(assigned.pdInletWeightings(), first);
  EXPECT_EQ(first[1], 0.25);
  EXPECT_EQ(first[2], 0.75);
}

TEST(HandedOutList, OfInletsIsSharedByCopies) {
  CZEBCMPRTMParm assigned;
  const auto inlets = [](const std::string& number) {
    return "IsVentInlet = 1\nNVentInlet = 1\nVentInletID = " + number + "\n";
  };
  {
    CZEBCMPRTMParm block;
    readSectionInto(block, "RTM", inlets("9"));
    assigned = block;
    readSectionInto(block, "RTM", inlets("10"));
  }
  int numbers[2] = {-7, -7};
  EXPECT_EQ(assigned.getVentInletID(numbers), 0);
  EXPECT_EQ(numbers[1], 9);
}

TEST(HandedOutList, OfPointsIsSharedByCopiesAndShownByItsAddress) {
  CZEBCMPUNFSettingParm assigned;
  const auto lastLine = [](const std::string& dump) { return dump.substr(dump.rfind('\n', dump.size() - 2) + 1); };
  std::string address;
  {
    CZEBCMPUNFSettingParm block;
    readSectionInto(block, "UNFSetting", "FillType = 2\nnDispenserPoint = 1\nPoint_x1 = 3\n");
    assigned = block;
    address = lastLine(dumpOf(block));
  }
  EXPECT_EQ(address.find("m_pdDispenserPoint\t\t= 0x"), 0u) << address;
  EXPECT_EQ(lastLine(dumpOf(assigned)), address);
  double unused[3] = {}, point[3] = {}, speed = 0.0;
  double* rows[2] = {unused, point};
  EXPECT_EQ(assigned.dDispenser(rows, speed), 1);
  EXPECT_EQ(point[1], 3.0);
  printedBy([&] { readSectionInto(assigned, "UNFSetting", "nDispenserPoint = 1000001\n"); });
  EXPECT_EQ(lastLine(dumpOf(assigned)), "m_pdDispenserPoint\t\t= 0\n") << "refused";
}

TEST(HandedOutList, ShowsTheAddressThatItsGetterGives) {
  CZEBCMPMultiGateParm block;
  readSectionInto(block, "MultiGate", kWeights + "0.25\nWeightings = 0\n");
  std::ostringstream line;
  line << "\nm_pdInletWeightings\t\t\t\t= " << static_cast<const void*>(block.pdInletWeightings()) << "\n";
  EXPECT_NE(dumpOf(block).find(line.str()), std::string::npos);
}

TEST(HandedOutList, NeedsSomewhereToGoUnlessItIsEmpty) {
  CZEBCMPMultiGateParm gates;
  CZEBCMPRTMParm inlets;
  CZEBCMPUNFSettingParm points;
  double speed = -7.0;
  EXPECT_EQ(gates.InletWeightings(nullptr), 1);
  EXPECT_EQ(inlets.getVentInletID(nullptr), 0);
  EXPECT_EQ(points.dDispenser(nullptr, speed), 1);
  EXPECT_EQ(speed, 0.0);
  readSectionInto(gates, "MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = 0\n");
  ASSERT_NE(gates.pdInletWeightings(), nullptr);
  EXPECT_EQ(gates.pdInletWeightings()[0], 1.0) << "no groups still have their first entry";
  EXPECT_EQ(gates.InletWeightings(nullptr), 1);
  readSectionInto(gates, "MultiGate", "NumberofInletGroups = 1\nWeightings = 1\n");
  readSectionInto(inlets, "RTM", "IsVentInlet = 1\nNVentInlet = 1\nVentInletID = 9\n");
  readSectionInto(points, "UNFSetting", "FillType = 2\nnDispenserPoint = 1\nSpeed_V = 4\n");
  EXPECT_EQ(gates.InletWeightings(nullptr), -1);
  EXPECT_EQ(inlets.getVentInletID(nullptr), -1);
  EXPECT_EQ(inlets.piVentInletID(nullptr), -1);
  EXPECT_EQ(points.dDispenser(nullptr, speed), -1);
  EXPECT_EQ(speed, 4.0);
}

TEST(LargestCount, IsTakenWhateverTheFileHolds) {
  CZEBCMPMultiGateParm gates;
  const std::string mismatch = "The Number of Inlet Groups and the number of Weightings Groups is different\n";
  EXPECT_EQ(printedBy([&] {
              readSectionInto(gates, "MultiGate", "MultipleGateMethod = 1\nNumberofInletGroups = 1000000\n");
            }).size(),
            1'000'000 * mismatch.size());
  EXPECT_EQ(gates.iNumberofInletGroups(), 1'000'000);
  EXPECT_EQ(gates.pdInletWeightings()[1'000'000], 1.0);

  CZEBCMPRTMParm inlets;
  EXPECT_EQ(
      printedBy([&] { readSectionInto(inlets, "RTM", "IsVentInlet = 1\nNVentInlet = 1000000\nVentInletID = 9\n"); }),
      "");
  std::vector<int> numbers(1'000'001, -7);
  EXPECT_EQ(inlets.getVentInletID(numbers.data()), 0);
  EXPECT_EQ(numbers[1], 9);
  EXPECT_EQ(numbers[1'000'000], 0);

  CZEBCMPUNFSettingParm points;
  readSectionInto(points, "UNFSetting", "FillType = 2\nnDispenserPoint = 1000000\nPoint_x5 = 1\n");
  EXPECT_EQ(points.iNDispenserPass(), 1'000'000);
}

// --- What an observer learns of them ----------------------------------------------------------------------------

class UsedLines : public zeb::ReadObserver {
 public:
  std::vector<std::pair<int, bool>> lines;
  void lineRead(int number, std::string_view) override { m_number = number; }
  void lineOfList(const zeb::EntryEvent& entry) override { lines.emplace_back(m_number, entry.used); }

 private:
  int m_number = 0;
};

template <class Block>
std::vector<std::pair<int, bool>> usedLines(const char* section, const std::string& text) {
  Block block;
  UsedLines taken;
  std::istringstream stream(text);
  const zeb::LineSource serial;
  zeb::LineReader reader(stream, serial, &taken);
  printedBy([&] { zeb::readSection(zebtest::sectionOf<Block>(section), &block, reader); });
  return taken.lines;
}

using Lines = std::vector<std::pair<int, bool>>;

TEST(ListLines, AreToldToAnObserver) {
  EXPECT_EQ(usedLines<CZEBCMPMultiGateParm>("MultiGate",
                                            "MultipleGateMethod = 1\nNumberofInletGroups = 5\nWeightings = 0.5\n\n"
                                            "Weightings = x\nWeightings = 0\n"),
            (Lines{{3, true}, {4, false}, {5, false}, {6, true}}));
  EXPECT_EQ(usedLines<CZEBCMPRTMParm>("RTM", "IsVentInlet = 1\nNVentInlet = 3\nVentInletID = 5\nUsePCG = 1\n[/RTM]\n"),
            (Lines{{2, true}, {3, true}, {4, false}}));
}

}  // namespace
