// The collective line source: what arrives on each rank, and which calls that takes.
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <streambuf>
#include <vector>

#include "engine/LineSource.hpp"
#include "engine/TextOutput.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/Inspection.hpp"
#include "inspect/set/OutputCapture.hpp"
#include "standalone/ThreadCommunicator.h"
#include "tests/support/RecordingCommunicator.h"
#include "tests/support/TemporaryFile.hpp"

namespace {

using Lines = std::vector<std::string>;

Lines readAll(const zeb::LineSource& source, std::istream& stream) {
  Lines lines;
  std::string line;
  while (source.getLine(stream, line) == 1) lines.push_back(line);
  return lines;
}

Lines readSerially(const std::string& text) {
  std::istringstream stream(text);
  return readAll({}, stream);
}

// What every rank gets; rank 0's calls in `log`. The other rank has no stream that it could read.
Lines readOnRanks(const std::string& text, zeb::CallLog* log = nullptr, zeb::LineSource source = {}) {
  zeb::RecordingCommunicator first(2);
  source.com = &first;
  std::istringstream stream(text);
  const Lines lines = readAll(source, stream);

  zeb::ReplayingCommunicator second(first.log(), 1, 2);
  source.com = &second;
  std::istringstream unused("a stream that only rank 0 may read\n");
  EXPECT_EQ(readAll(source, unused), lines);
  EXPECT_TRUE(second.finished());
  EXPECT_EQ(unused.tellg(), std::istringstream::pos_type(0));
  if (log != nullptr) *log = first.log();
  return lines;
}

Lines callsFor(const std::string& text, const zeb::LineSource& source = {}) {
  zeb::CallLog log;
  readOnRanks(text, &log, source);
  return log.calls();
}

// --- Collective calls -------------------------------------------------------------------------------------------

TEST(LineSourceCalls, ALineIsABarrierTheEndFlagAndTheText) {
  EXPECT_EQ(callsFor("VentMode = 1\n"), (Lines{"Barrier", "Broadi 0", "Broadc \"VentMode = 1\"",  //
                                               "Barrier", "Broadi -1"}));
}

TEST(LineSourceCalls, EveryLineRepeatsTheSequence) {
  EXPECT_EQ(callsFor("a\n\nb\n"), (Lines{"Barrier", "Broadi 0", "Broadc \"a\"",  //
                                         "Barrier", "Broadi 0", "Broadc \"\"",   //
                                         "Barrier", "Broadi 0", "Broadc \"b\"",  //
                                         "Barrier", "Broadi -1"}));
}

TEST(LineSourceCalls, TheEndOfTheInputSendsNoText) { EXPECT_EQ(callsFor(""), (Lines{"Barrier", "Broadi -1"})); }

TEST(LineSourceCalls, EveryReadPastTheEndIsTheSameSequenceAgain) {
  zeb::RecordingCommunicator com(2);
  const zeb::LineSource source{.com = &com};
  std::istringstream stream;
  std::string line;
  EXPECT_EQ(source.getLine(stream, line), 0);
  EXPECT_EQ(source.getLine(stream, line), 0);
  EXPECT_EQ(com.log().calls(), (Lines{"Barrier", "Broadi -1", "Barrier", "Broadi -1"}));
}

TEST(LineSourceCalls, WithoutBarrierOnlyTheBroadcastsRemain) {
  EXPECT_EQ(callsFor("a\n", {.barrier = false}), (Lines{"Broadi 0", "Broadc \"a\"", "Broadi -1"}));
}

TEST(LineSourceCalls, TheTextBehindTheLineIsSentAsZeros) {
  // The second line is shorter than the first: nothing of the first may be left in the 255 characters sent.
  zeb::CallLog log;
  readOnRanks("a long line\nb\n", &log);
  zeb::CallReader reader(log);
  for (int i = 0; i < 5; ++i) reader.next();
  ASSERT_EQ(reader.kind(), zeb::CallKind::kBroadc);
  char buffer[255];
  reader.copyText(buffer);
  EXPECT_EQ(std::string(buffer, sizeof buffer), "b" + std::string(254, '\0'));
}

TEST(LineSourceCalls, TheEndReachesEveryRankInTheSameCall) {
  zeb::ThreadTeam team(8);
  std::vector<std::vector<int>> results(8);
  team.run([&](int rank, CZEBCom& com) {
    const zeb::LineSource source{.com = &com};
    std::istringstream stream(rank == 0 ? "one\ntwo\n" : "");
    std::string line;
    for (int call = 0; call < 5; ++call) {
      results[static_cast<std::size_t>(rank)].push_back(source.getLine(stream, line));
    }
  });
  EXPECT_EQ(results, std::vector<std::vector<int>>(8, {1, 1, 0, 0, 0}));
}

TEST(LineSourceCalls, ACommunicatorOfOneRankIsCollectiveAndLimitsTheLine) {
  zeb::RecordingCommunicator com(1);
  const zeb::LineSource source{.com = &com};
  std::istringstream stream(std::string(300, 'x') + "\n");
  std::string line;
  EXPECT_EQ(source.getLine(stream, line), 1);
  EXPECT_EQ(line, std::string(254, 'x'));
  EXPECT_EQ(com.log().calls(), (Lines{"Barrier", "Broadi 0", "Broadc \"" + line + "\""}));
}

// --- Length -----------------------------------------------------------------------------------------------------

struct Length {
  std::size_t written;
  std::size_t delivered;  // with a communicator
};

class LineLength : public testing::TestWithParam<Length> {
 protected:
  // No two neighbours alike, so that a cut at the wrong place shows.
  static std::string lineOf(std::size_t length) {
    std::string line(length, ' ');
    for (std::size_t i = 0; i < length; ++i) line[i] = static_cast<char>('!' + i % 90);
    return line;
  }
};

TEST_P(LineLength, IsUnlimitedWithoutCommunicator) {
  const std::string line = lineOf(GetParam().written);
  EXPECT_EQ(readSerially(line + "\nnext\n"), (Lines{line, "next"}));
}

TEST_P(LineLength, IsAtMost254WithCommunicatorOnEveryRank) {
  const std::string line = lineOf(GetParam().written);
  EXPECT_EQ(readOnRanks(line + "\nnext\n"), (Lines{line.substr(0, GetParam().delivered), "next"}));
}

INSTANTIATE_TEST_SUITE_P(Lines, LineLength,
                         testing::Values(Length{1, 1}, Length{253, 253}, Length{254, 254}, Length{255, 254},
                                         Length{256, 254}, Length{300, 254}, Length{1000000, 254}),
                         [](const auto& test) { return std::to_string(test.param.written); });

// --- What ends a line -------------------------------------------------------------------------------------------

struct Text {
  const char* name;
  std::string content;
  Lines lines;
};

using namespace std::string_literals;

const Text kTexts[] = {
    {"TheLastLineNeedsNoLF", "a\nb", {"a", "b"}},
    {"EmptyLinesAreDelivered", "\n\na\n\n", {"", "", "a", ""}},
    {"OnlyAnLFIsOneEmptyLine", "\n", {""}},
    {"NoCharactersAreNoLine", "", {}},
    {"NothingIsTrimmed", " \t a \t \n", {" \t a \t "}},
    {"ANulEndsTheLine", "a\0b = 2\nc\n"s, {"a", "c"}},
    {"ANulInFrontLeavesAnEmptyLine", "\0a\nb\n"s, {"", "b"}},
    {"ANulInTheLastLineEndsIt", "a\nb\0c"s, {"a", "b"}},
    {"ALoneNulIsAnEmptyLine", "\0"s, {""}},
    {"ALoneCRBelongsToTheLine", "a\rb\nc\r", {"a\rb", "c\r"}},
    {"CharactersAbove127PassUnchanged", "\xc3\xa4\xff\x80\n", {"\xc3\xa4\xff\x80"}},
};

class LineEnd : public testing::TestWithParam<Text> {};

TEST_P(LineEnd, WithoutCommunicator) { EXPECT_EQ(readSerially(GetParam().content), GetParam().lines); }

TEST_P(LineEnd, OnEveryRank) { EXPECT_EQ(readOnRanks(GetParam().content), GetParam().lines); }

INSTANTIATE_TEST_SUITE_P(Texts, LineEnd, testing::ValuesIn(kTexts), [](const auto& test) { return test.param.name; });

TEST(LineSource, LinesThatMeetTheEndOfAnyBufferAreWhole) {
  Lines expected;
  std::string content;
  for (std::size_t length = 0; length < 700; ++length) {
    expected.push_back(std::string(length, static_cast<char>('a' + length % 26)));
    content += expected.back() + "\n";
  }
  EXPECT_EQ(readSerially(content), expected);
  const zebtest::TemporaryFile file(content);
  std::ifstream opened, plain(file.path());
  ASSERT_EQ(zeb::openFile(opened, file.path()), 1);
  EXPECT_EQ(readAll({}, opened), expected);
  EXPECT_EQ(readAll({}, plain), expected);
}

TEST(LineSource, LeavesTheStreamAtTheNextLine) {
  std::istringstream stream("first\nsecond\nthird\n");
  std::string line;
  ASSERT_EQ(zeb::LineSource{}.getLine(stream, line), 1);
  EXPECT_EQ(line, "first");
  EXPECT_EQ(stream.tellg(), std::istringstream::pos_type(6));
  ASSERT_TRUE(std::getline(stream, line));
  EXPECT_EQ(line, "second");
  ASSERT_EQ(zeb::LineSource{}.getLine(stream, line), 1);
  EXPECT_EQ(line, "third");
}

const Text kFiles[] = {
    {"CRLFEndsALineAsLFDoes", "a\r\n\r\nb\r\n", {"a", "", "b"}},
    {"ALoneCRStays", "a\rb\r\r\nc\r", {"a\rb\r", "c\r"}},
    {"TheLastLineNeedsNoEnd", "a\r\nb", {"a", "b"}},
    {"LFAndCRLFMayBeMixed", "a\nb\r\nc\n", {"a", "b", "c"}},
};

// Opened files are in text mode; the line source itself removes nothing.
class OpenedFile : public testing::TestWithParam<Text> {
 protected:
  zebtest::TemporaryFile m_file{GetParam().content};
};

TEST_P(OpenedFile, GivesTheLinesWithoutCommunicator) {
  std::ifstream stream;
  ASSERT_EQ(zeb::openFile(stream, m_file.path()), 1);
  EXPECT_EQ(readAll({}, stream), GetParam().lines);
}

TEST_P(OpenedFile, GivesTheLinesOnRank0) {
  zeb::RecordingCommunicator com(2);
  std::ifstream stream;
  ASSERT_EQ(zeb::openFile(stream, m_file.path()), 1);
  EXPECT_EQ(readAll({.com = &com}, stream), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(Files, OpenedFile, testing::ValuesIn(kFiles),
                         [](const auto& test) { return test.param.name; });

TEST(LineSource, CRLFOfAStreamThatIsNotInTextModeLeavesTheCR) {
  EXPECT_EQ(readSerially("a\r\nb\n"), (Lines{"a\r", "b"}));
  EXPECT_EQ(readOnRanks("a\r\nb\n"), (Lines{"a\r", "b"}));
}

// --- The end of the input ---------------------------------------------------------------------------------------

TEST(LineSourceEnd, AFailedReadEmptiesTheLineOnlyWhereTheStreamIsRead) {
  std::istringstream stream;
  std::string line = "before";
  EXPECT_EQ(zeb::LineSource{}.getLine(stream, line), 0);
  EXPECT_EQ(line, "");

  zeb::RecordingCommunicator first(2);
  line = "before";
  EXPECT_EQ(zeb::LineSource{.com = &first}.getLine(stream, line), 0);
  EXPECT_EQ(line, "");

  zeb::ReplayingCommunicator second(first.log(), 1, 2);
  line = "before";
  EXPECT_EQ(zeb::LineSource{.com = &second}.getLine(stream, line), 0);
  EXPECT_EQ(line, "before");
}

TEST(LineSourceEnd, AFailedStreamIsAtItsEnd) {
  for (const auto state : {std::ios::failbit, std::ios::badbit}) {
    std::istringstream stream("a\n");
    stream.setstate(state);
    std::string line;
    EXPECT_EQ(zeb::LineSource{}.getLine(stream, line), 0);
    zeb::RecordingCommunicator com(2);
    EXPECT_EQ(zeb::LineSource{.com = &com}.getLine(stream, line), 0);
    EXPECT_EQ(com.log().calls(), (Lines{"Barrier", "Broadi -1"}));
  }
}

TEST(LineSourceEnd, FixedNumbersOfLinesGoOnWithEmptyOnesOnEveryRank) {
  zeb::RecordingCommunicator first(2);
  const zeb::LineSource source{.com = &first};
  std::istringstream stream("only\n");
  zeb::LineReader reader(stream, source, nullptr);
  std::string_view line;
  EXPECT_TRUE(reader.nextOrEmpty(line));
  EXPECT_FALSE(reader.nextOrEmpty(line));
  EXPECT_EQ(line, "");

  zeb::ReplayingCommunicator second(first.log(), 1, 2);
  const zeb::LineSource otherSource{.com = &second};
  zeb::LineReader other(stream, otherSource, nullptr);
  EXPECT_TRUE(other.nextOrEmpty(line));
  EXPECT_EQ(line, "only");
  EXPECT_FALSE(other.nextOrEmpty(line));
  EXPECT_EQ(line, "");
}

// Delivers "abc", a line end and half a line; then the device fails.
class FailingDevice final : public std::streambuf {
 protected:
  int_type underflow() override {
    if (gptr() != nullptr) throw std::runtime_error("device");
    setg(m_text, m_text, m_text + sizeof m_text - 1);
    return traits_type::to_int_type(m_text[0]);
  }

 private:
  char m_text[7] = "abc\nde";
};

TEST(LineSourceEnd, ALineThatAReadErrorCutsIsNotDelivered) {
  FailingDevice serialDevice, device;
  std::istream serial(&serialDevice), shared(&device);
  std::string line;
  EXPECT_EQ(zeb::LineSource{}.getLine(serial, line), 1);
  EXPECT_EQ(line, "abc");
  EXPECT_EQ(zeb::LineSource{}.getLine(serial, line), 0);
  EXPECT_EQ(line, "");

  zeb::RecordingCommunicator com(2);
  const zeb::LineSource source{.com = &com};
  EXPECT_EQ(source.getLine(shared, line), 1);
  EXPECT_EQ(source.getLine(shared, line), 0);
  EXPECT_EQ(com.log().calls(), (Lines{"Barrier", "Broadi 0", "Broadc \"abc\"", "Barrier", "Broadi -1"}));
}

// Rank 1 of two; broadcasts fill the whole buffer.
struct WithoutTerminator final : CZEBCom {
  int GetCPUId() override { return 1; }
  int GetNCPU() override { return 2; }
  void Barrier() override {}
  void Broadi(int& value) override { value = 0; }
  void Broadd(double&) override {}
  void Broadc(char (&buffer)[zeb::ZEBLINE_MAX]) override { std::memset(buffer, 'x', sizeof buffer); }
};

TEST(LineSource, EndsALineThatFillsTheWholeBuffer) {
  WithoutTerminator com;
  std::istringstream nothing;
  std::string line;
  EXPECT_EQ(zeb::LineSource{.com = &com}.getLine(nothing, line), 1);
  EXPECT_EQ(line, std::string(254, 'x'));
}

TEST(TextOutput, LeavesNothingInTheStreamsBuffer) {
  struct Counting : std::stringbuf {
    int sync() override { return ++flushes, 0; }
    int flushes = 0;
  } buffer;
  std::streambuf* const before = std::cout.rdbuf(&buffer);
  zeb::writeOut("a line\n");
  std::cout.rdbuf(before);
  EXPECT_EQ(buffer.str(), "a line\n");
  EXPECT_EQ(buffer.flushes, 1);
}

TEST(LineSource, IsTheToolsOwn) {
  const CZEBKNCMPCompParm set(0, 0);
  CZEBCMPInternalTool& tool = *zeb::Inspection::tool(set);
  zeb::RecordingCommunicator com(2);
  tool.m_pCom = &com;
  std::istringstream stream(std::string(300, 'x') + "\n");
  std::string line;
  EXPECT_EQ(tool.ZEB_getline_Parallel(stream, line), 1);
  EXPECT_EQ(line, std::string(254, 'x'));
  EXPECT_EQ(tool.ZEB_getline_Parallel(stream, line), 0);
  EXPECT_EQ(com.log().size(), 5u);
}

// --- The trace --------------------------------------------------------------------------------------------------

std::string traceOf(const std::string& text, const zeb::LineSource& source) {
  const zeb::OutputCapture capture;
  std::istringstream stream(text);
  readAll(source, stream);
  return capture.text();
}

TEST(LineSourceTrace, Rank0WritesEveryLineWhenThePrintLevelIsAboveZero) {
  zeb::RecordingCommunicator com(2);
  EXPECT_EQ(traceOf("VentMode = 1\n\nx", {.com = &com, .printLevel = 1}),
            " - CPUID:0 string: VentMode = 1\n"
            " - CPUID:0 string: \n"
            " - CPUID:0 string: x\n");
}

TEST(LineSourceTrace, ShowsWhatIsSent) {
  zeb::RecordingCommunicator com(2);
  EXPECT_EQ(traceOf(std::string(300, 'x') + "\na\0b\n"s, {.com = &com, .printLevel = 7}),
            " - CPUID:0 string: " + std::string(254, 'x') + "\n - CPUID:0 string: a\n");
}

TEST(LineSourceTrace, IsSilentAtLevelZeroAndBelow) {
  for (const int level : {0, -1}) {
    zeb::RecordingCommunicator com(2);
    EXPECT_EQ(traceOf("a\n", {.com = &com, .printLevel = level}), "") << level;
  }
}

TEST(LineSourceTrace, IsSilentWithoutCommunicatorAndOnOtherRanks) {
  EXPECT_EQ(traceOf("a\n", {.printLevel = 1}), "");
  zeb::RecordingCommunicator first(2);
  traceOf("a\n", {.com = &first, .printLevel = 1});
  zeb::ReplayingCommunicator second(first.log(), 1, 2);
  EXPECT_EQ(traceOf("a\n", {.com = &second, .printLevel = 1}), "");
  EXPECT_TRUE(second.finished());
}

// --- Opening ----------------------------------------------------------------------------------------------------

TEST(OpenFile, SaysWhetherTheFileCanBeReadAndPrintsNothing) {
  const zebtest::TemporaryFile file("a\n"), empty("");
  const std::string folder = std::filesystem::temp_directory_path().string();
  const struct {
    std::string name;
    int expected;
  } cases[] = {{file.path(), 1}, {empty.path(), 1}, {file.path() + ".missing", -1}, {"no/such/folder/x", -1},
               {"", -1},         {folder, -1},      {file.path() + "/x.cmp", -1}};
  const zeb::OutputCapture capture;
  for (const auto& [name, expected] : cases) {
    std::ifstream stream;
    EXPECT_EQ(zeb::openFile(stream, name), expected) << '"' << name << '"';
  }
  EXPECT_EQ(capture.text(), "");
}

TEST(OpenFile, AStreamThatCouldNotBeOpenedIsAtItsEnd) {
  std::ifstream stream;
  EXPECT_EQ(zeb::openFile(stream, "no/such/file.cmp"), -1);
  zeb::RecordingCommunicator com(2);
  std::string line;
  EXPECT_EQ((zeb::LineSource{.com = &com}.getLine(stream, line)), 0);
  EXPECT_EQ(com.log().calls(), (Lines{"Barrier", "Broadi -1"}));
}

}  // namespace
