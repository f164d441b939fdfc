// Files that no editor would write: long lines, NULs, other line ends, noise, files that cannot be read. The values
// stay what they would be, and all ranks hold the same.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <sstream>
#include <vector>

#include "blocks/CZEBCMPGeneralParm.h"
#include "tests/ranks/Examples.hpp"
#include "tests/ranks/RankReading.hpp"
#include "tests/support/RandomText.hpp"
#include "tests/support/TemporaryFile.hpp"
#include "tests/support/TestFolder.hpp"
#include "tests/support/Tsv.hpp"

namespace {

using namespace std::string_literals;
using zebtest::Reading;
using zebtest::TemporaryFile;
using zebtest::withCrLf;

Reading serialReading(const std::string& text) {
  const TemporaryFile file(text);
  return zebtest::readAs(nullptr, file.path());
}

// All of 2 and some of 8 ranks hold the same; returns rank 0's reading.
Reading rankReading(const std::string& text) {
  const TemporaryFile file(text);
  zebtest::readOnRanks(file.path(), 2, {1});
  return zebtest::readOnRanks(file.path(), 8, {1, 4, 7});
}

// That the text reads, in a serial run and on ranks, as the other one does.
void expectReadsAs(const std::string& text, const std::string& other) {
  const Reading expected = serialReading(other);
  expectSameReading(serialReading(text), expected);
  expectSameReading(rankReading(text), expected);
}

// --- Long lines -------------------------------------------------------------------------------------------------

class LongLine : public testing::TestWithParam<std::size_t> {
 protected:
  std::string blanks(std::size_t used) const { return std::string(GetParam() - used, ' '); }

  // `before`, blanks, `behind`: a line of the length asked for.
  std::string line(const std::string& before, const std::string& behind) const {
    return before + blanks(before.size() + behind.size()) + behind + "\n";
  }

  bool isCutOnRanks() const { return GetParam() > 254; }
};

constexpr char kPlain[] = "[General]\nVentMode = 1\nFirstMeshName = part\n[/General]\n[FEM]\n[/FEM]\n";

TEST_P(LongLine, WhatStandsInFrontIsRead) {
  expectReadsAs(line("[General]", ";") + line("VentMode = 1", ";") + "FirstMeshName = part\n" +
                    line("[/General]", ";") + line("[FEM]", "") + line("[/FEM]", ""),
                kPlain);
}

TEST_P(LongLine, OutsideOfSectionsItIsIgnored) {
  expectReadsAs(line("text", "text") + kPlain + line("text", "text"), kPlain);
  expectReadsAs(std::string(GetParam(), '[') + "\n" + kPlain + std::string(GetParam(), ']'), kPlain);
}

TEST_P(LongLine, ItsEndIsReadInSerialRunsAndUpTo254CharactersOnRanks) {
  const std::string text = "[General]\n" + line("", "VentMode = 1") + "FirstMeshName = part\n[/General]\n";
  const std::string without = "[General]\nFirstMeshName = part\n[/General]\n";
  EXPECT_EQ(serialReading(text).values, serialReading(kPlain).values);
  const Reading onRanks = rankReading(text);
  if (GetParam() == 254) {
    EXPECT_EQ(onRanks.values, serialReading(kPlain).values);
  } else {
    // At 255 the value is cut off and the key has none, at 256 and above it is the same.
    EXPECT_EQ(onRanks.values, serialReading(without).values);
  }
}

TEST_P(LongLine, ANumberIsCutWhereTheLineIs) {
  // "12" ends the line; one character more and the ranks read "1".
  const std::string text = "[General]\n" + line("VentMode =", "12") + "[/General]\n";
  const auto ventMode = [](const std::string& value) {
    return serialReading("[General]\nVentMode = " + value + "\n[/General]\n").values;
  };
  EXPECT_EQ(serialReading(text).values, ventMode("12"));
  const std::string expected = GetParam() == 254 ? "12" : GetParam() == 255 ? "1" : "";
  EXPECT_EQ(rankReading(text).values, ventMode(expected));
}

TEST_P(LongLine, ATextKeepsWhatTheLineHolds) {
  const std::string key = "FirstMeshName = ";
  const std::string name(GetParam() - key.size(), 'n');
  const TemporaryFile file("[General]\n" + key + name + "\n[/General]\n");
  CZEBKNCMPCompParm serial(0, 0);
  serial.setSolidFillBlock(file.path());
  EXPECT_TRUE(serial.getGeneralParm()->FirstMeshName() == name);

  zeb::RecordingCommunicator first(2);
  CZEBKNCMPCompParm rank0(0, 0);
  rank0.setZEBCom(&first);
  rank0.setSolidFillBlock(file.path());
  EXPECT_TRUE(rank0.getGeneralParm()->FirstMeshName() == name.substr(0, 254 - key.size()));
  zeb::ReplayingCommunicator second(first.log(), 1, 2);
  CZEBKNCMPCompParm rank1(0, 0);
  rank1.setZEBCom(&second);
  rank1.setSolidFillBlock(file.path());
  EXPECT_STREQ(rank1.getGeneralParm()->FirstMeshName(), rank0.getGeneralParm()->FirstMeshName());
}

TEST_P(LongLine, InAHeadOrAPositionalSectionTheFieldsInFrontAreRead) {
  expectReadsAs("[VER] 1023\n" + line("7 8 9 10 11 12", "x") + line("3 4 5 6", "x") + "[FastCool]\n",
                "[VER] 1023\n7 8 9 10 11 12\n3 4 5 6\n[FastCool]\n");
  expectReadsAs("[FastCool]\n" + line("1017", "x") + line("3 4", "x") + line("1 1", "x"),
                "[FastCool]\n1017\n3 4\n1 1\n");
}

TEST_P(LongLine, InListsItsFrontIsRead) {
  expectReadsAs("[MultiGate]\nMultipleGateMethod = 1\n" + line("NumberofInletGroups = 3", "x") +
                    line("Weightings = 0.2", "x") + line("Weightings = 0.3", "x") + line("", "") + "[/MultiGate]\n",
                "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 3\nWeightings = 0.2\nWeightings = 0.3\n\n"
                "[/MultiGate]\n");
}

TEST_P(LongLine, InWhiteboardTheWholeLineCountsOnEveryRank) {
  // Rank 0 reads this section alone, as a serial run does, and sends the values.
  const std::string text = "[Whiteboard]\n" + line("ElemagComsol", "1.5 2.5 coil.txt") + "[/Whiteboard]\n";
  const std::string plain = "[Whiteboard]\nElemagComsol 1.5 2.5 coil.txt\n[/Whiteboard]\n";
  EXPECT_NE(serialReading(plain).values, serialReading("").values);
  EXPECT_EQ(serialReading(text).values, serialReading(plain).values);
  rankReading(text);
}

INSTANTIATE_TEST_SUITE_P(Lengths, LongLine, testing::Values(254u, 255u, 256u, 300u, 1000000u));

TEST(LongText, AnEndlessLineAloneIsIgnored) {
  expectReadsAs(std::string(1000000, 'x'), "");
  expectReadsAs("[General]\n" + std::string(1000000, '='), "[General]\n");
  expectReadsAs(std::string(300000, '\n'), "");
}

// --- NULs -------------------------------------------------------------------------------------------------------

TEST(Nul, EndsTheLine) {
  expectReadsAs(
      "[General]\0[FEM]\nVentMode = 1\0 2\nFirstMeshName = part\0two\n\0[/General]\n[/General]\0\n[FEM]\n[/FEM]"s,
      kPlain);
}

TEST(Nul, InFrontOfAKeyHidesIt) {
  expectReadsAs("[General]\n\0VentMode = 1\nVent\0Mode = 1\nVentMode\0 = 1\nVentMode =\0 1\n[/General]\n"s,
                "[General]\n[/General]\n");
}

TEST(Nul, InABracketHidesTheOpening) { expectReadsAs("[Gen\0eral]\nVentMode = 1\n[/General]\n"s, ""); }

TEST(Nul, EndsTheLinesOfAHead) {
  expectReadsAs("[VER] 1023\0x\n7 8\0 9\n\0 3 4 5 6\n"s, "[VER] 1023\n7 8\n\n");
  expectReadsAs("[VER]\0 1023\n7 8 9\n"s, "");
}

TEST(Nul, EndsTheLinesOfListsAndOfWhiteboard) {
  expectReadsAs(
      "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 2\0\nWeightings = 0.2\0 5\n\0\n[/MultiGate]\n"s,
      "[MultiGate]\nMultipleGateMethod = 1\nNumberofInletGroups = 2\nWeightings = 0.2\n\n[/MultiGate]\n");
  expectReadsAs("[Whiteboard]\nElemagComsol 1.5 2.5 coil\0.txt\n[/Whiteboard]\0\n"s,
                "[Whiteboard]\nElemagComsol 1.5 2.5 coil\n[/Whiteboard]\n");
}

TEST(Nul, ManyOfThemAreEmptyText) { expectReadsAs(std::string(100000, '\0') + "\n" + kPlain, kPlain); }

// --- Line ends --------------------------------------------------------------------------------------------------

TEST(LineEnds, CrLfReadsAsLf) {
  for (const std::string& file : zebtest::examples(".cmp")) {
    SCOPED_TRACE(file);
    const std::string text = zebtest::contentOf(file);
    ASSERT_EQ(text.find('\r'), std::string::npos);
    expectReadsAs(withCrLf(text), text);
  }
}

TEST(LineEnds, TheLastLineNeedsNone) {
  for (const std::string& file : zebtest::examples(".cmp")) {
    SCOPED_TRACE(file);
    std::string text = zebtest::contentOf(file);
    while (!text.empty() && text.back() == '\n') text.pop_back();
    expectReadsAs(text, text + "\n");
    expectReadsAs(withCrLf(text), text + "\n");
  }
  expectReadsAs("[General]\nVentMode = 1", "[General]\nVentMode = 1\n");
  EXPECT_NE(serialReading("[General]\nVentMode = 1").values, serialReading("").values);
}

TEST(LineEnds, ALoneCrIsNoLineEnd) { expectReadsAs("[General]\rVentMode = 1\r[/General]\r[FEM]\r", "[General]\n"); }

TEST(LineEnds, ATextKeepsALoneCrAndLosesThatOfTheLineEnd) {
  const TemporaryFile file("[General]\r\nFirstMeshName = a\rb \r\n[/General]\r\n");
  CZEBKNCMPCompParm set(0, 0);
  set.setSolidFillBlock(file.path());
  EXPECT_STREQ(set.getGeneralParm()->FirstMeshName(), "a\rb ");
}

TEST(LineEnds, AByteOrderMarkIsTextInFrontOfTheFirstLine) { expectReadsAs("\xef\xbb\xbf"s + kPlain, kPlain); }

// --- Noise ------------------------------------------------------------------------------------------------------

std::string randomBytes(zebtest::RandomText& random, std::size_t longest) {
  std::string bytes(random.below(longest), '\0');
  for (char& byte : bytes) byte = static_cast<char>(random.below(256));
  return bytes;
}

TEST(Noise, ChangesNothing) {
  zebtest::RandomText random(1);
  const std::string defaults = zebtest::untouchedValues();
  for (int number = 0; number < 250; ++number) {
    SCOPED_TRACE(number);
    const std::string bytes = randomBytes(random, 4000);
    EXPECT_TRUE(serialReading(bytes).values == defaults);
    EXPECT_TRUE(rankReading(bytes).values == defaults);
  }
}

TEST(Noise, InsideSectionsIsTheSameOnEveryRank) {
  zebtest::RandomText random(2);
  std::vector<std::string> openings;
  for (const zebtest::TsvRow& row : zebtest::readTsv("dispatch.tsv")) {
    openings.push_back(zebtest::unquoted(row.at("opening")));
  }
  for (int number = 0; number < 250; ++number) {
    SCOPED_TRACE(number);
    std::string text;
    for (int piece = 0; piece < 4; ++piece) {
      const std::string& opening = random.pick(openings);
      text += opening + (opening == "[VER]" ? " 1023\n" : "\n");
      // Pieces of the length that a rank receives, so that a serial run must agree.
      for (std::size_t line = random.below(8); line > 0; --line) text += randomBytes(random, 254) + "\n";
    }
    expectReadsAs(text, text);
  }
}

TEST(Noise, BetweenLinesChangesNothing) {
  // Noise without brackets, '=' and letters opens nothing and holds no key.
  zebtest::RandomText random(3);
  const std::string plain = zebtest::contentOf(zebtest::example("compression-part.cmp"));
  std::string text;
  std::istringstream lines(plain);
  for (std::string line; std::getline(lines, line);) {
    text += line + "\n";
    if (line.find(" = ") == line.npos) continue;  // the lines of a head are counted
    std::string noise = randomBytes(random, 600);
    std::erase_if(noise, [](char c) { return c == '[' || c == '=' || (c >= 'A' && c <= 'z'); });
    text += noise + "\n";
  }
  ASSERT_GT(text.size(), 5 * plain.size());
  expectReadsAs(text, plain);
}

// --- Files that cannot be read ----------------------------------------------------------------------------------

TEST(UnreadableFile, LeavesTheDefaultsSilently) {
  const zeb::test::TestFolder folder;
  const std::string file = folder.write("file.cmp", kPlain);
  std::filesystem::create_directory(folder.path("folder.cmp"));
  std::filesystem::create_symlink("nowhere.cmp", folder.path("dangling.cmp"));
  std::filesystem::create_symlink("circle.cmp", folder.path("circle.cmp"));
  const std::string names[] = {folder.path("folder.cmp"),
                               folder.path("dangling.cmp"),
                               folder.path("circle.cmp"),
                               folder.path(std::string(5000, 'x') + ".cmp"),
                               folder.write("empty.cmp", ""),
                               file + "/x.cmp",
                               "/proc/self/mem",  // opens, but its first read fails
                               "",
                               "."};
  for (const std::string& name : names) {
    SCOPED_TRACE(name.substr(0, 80));
    const Reading expected{zebtest::untouchedValues(), ""};
    expectSameReading(zebtest::readAs(nullptr, name), expected);
    expectSameReading(zebtest::readOnRanks(name, 8, {1, 7}), expected);
  }
}

TEST(UnreadableFile, OfAnotherUserIsReadAsAnEmptyOne) {
  const TemporaryFile file(kPlain);
  ASSERT_EQ(chmod(file.path().c_str(), 0), 0);
  // The superuser reads it nevertheless.
  const std::string readable = access(file.path().c_str(), R_OK) == 0 ? kPlain : "";
  const Reading expected = serialReading(readable);
  expectSameReading(zebtest::readAs(nullptr, file.path()), expected);
  expectSameReading(zebtest::readOnRanks(file.path(), 8, {1, 7}), expected);
}

}  // namespace
