// The plain text-file opener: text-mode delivery, failures at opening, and streams that are used again.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <locale>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "platform/ZEB3DTool.h"
#include "tests/support/OtherCharacters.hpp"
#include "tests/support/TemporaryFile.hpp"
#include "tests/support/TestFolder.hpp"
#include "tests/support/WithoutPrivileges.hpp"

namespace zeb::test {
namespace {

void open(std::ifstream& stream, const std::string& file) {
  CZEBFileIO().ZEBOpenFile(stream, file.c_str(), kZEBOpenRead, 500, 10);
}

std::string everything(std::istream& stream) {
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::vector<std::string> lines(std::istream& stream) {
  std::vector<std::string> all;
  for (std::string line; std::getline(stream, line);) all.push_back(line);
  return all;
}

std::string textModeOf(const std::string& raw) {
  std::string text;
  for (std::size_t i = 0; i < raw.size(); ++i) {
    if (raw[i] != '\r' || i + 1 == raw.size() || raw[i + 1] != '\n') text += raw[i];
  }
  return text;
}

class TextFileOpener : public ::testing::Test {
 protected:
  TestFolder folder;

  std::string delivered(const std::string& content) {
    std::ifstream stream;
    open(stream, folder.write("file.txt", content));
    EXPECT_TRUE(stream.good());
    return everything(stream);
  }
};

TEST_F(TextFileOpener, TurnsEachCrLfIntoLfAndKeepsLoneCrs) {
  const struct {
    std::string content;
    std::string expected;
  } cases[] = {
      {"", ""},
      {"a\r\nb\r\n", "a\nb\n"},
      {"a\nb", "a\nb"},
      {"a\rb\n", "a\rb\n"},
      {"\r", "\r"},
      {"\r\n", "\n"},
      {"\r\r\n", "\r\n"},
      {"\r\r\r", "\r\r\r"},
      {"\r\n\r\n\r\r\n", "\n\n\r\n"},
      {"end\r", "end\r"},
      {"\n\r", "\n\r"},
      {std::string("n\0ul\r\n", 6), std::string("n\0ul\n", 5)},
      {"\xff\xfe\x1a\r\nafter", "\xff\xfe\x1a\nafter"},
  };
  for (const auto& each : cases)
    EXPECT_EQ(delivered(each.content), each.expected) << ::testing::PrintToString(each.content);
}

TEST_F(TextFileOpener, TreatsPairsAcrossBlockBordersLikeAllOthers) {
  for (const std::size_t border : {4096u, 8191u, 8192u, 16383u, 16384u, 32767u, 32768u}) {
    for (std::size_t length = border - 3; length <= border + 3; ++length) {
      const std::string before(length, 'x');
      EXPECT_EQ(delivered(before + "\r\nrest"), before + "\nrest") << length;
      EXPECT_EQ(delivered(before + "\rrest"), before + "\rrest") << length;
      EXPECT_EQ(delivered(before + "\r\r\n"), before + "\r\n") << length;
      EXPECT_EQ(delivered(before + "\r"), before + "\r") << length;
      EXPECT_EQ(delivered(before + "\r\n"), before + "\n") << length;
    }
  }
}

TEST_F(TextFileOpener, DeliversRandomMixturesLikeTheDefinition) {
  std::mt19937 random(20240229);
  const std::string alphabet = "\r\r\r\n\n\nab";
  for (int round = 0; round < 200; ++round) {
    std::string content(std::uniform_int_distribution<std::size_t>(0, 40000)(random), ' ');
    for (char& character : content) character = alphabet[random() % alphabet.size()];
    ASSERT_EQ(delivered(content), textModeOf(content)) << "round " << round;
  }
}

TEST_F(TextFileOpener, DeliversBlocksOfNothingButCrs) {
  const std::string content(50000, '\r');
  EXPECT_EQ(delivered(content), content);
  EXPECT_EQ(delivered(content + '\n'), content.substr(1) + '\n');
}

TEST_F(TextFileOpener, DeliversTheLastLineWithoutALineEndAndLongLines) {
  const std::string longLine(1000000, 'L');
  std::ifstream stream;
  open(stream, folder.write("file.txt", "first\r\n" + longLine + "\r\n\r\nlast"));
  EXPECT_EQ(lines(stream), (std::vector<std::string>{"first", longLine, "", "last"}));
  EXPECT_TRUE(stream.eof());
}

TEST_F(TextFileOpener, FailsForWhatCannotBeRead) {
  const auto expectFailure = [](const char* file) {
    std::ifstream stream;
    CZEBFileIO().ZEBOpenFile(stream, file, kZEBOpenRead, 500, 10);
    EXPECT_TRUE(stream.fail());
    EXPECT_FALSE(stream.is_open());
    std::string line = "before";
    EXPECT_FALSE(std::getline(stream, line));
  };
  expectFailure(folder.path("missing").c_str());
  expectFailure(folder.path().c_str());
  expectFailure((folder.path() + "/").c_str());
  expectFailure("");
  expectFailure(nullptr);
  expectFailure((folder.write("file.txt", "x") + "/below").c_str());
}

TEST_F(TextFileOpener, FailsWithoutPermission) {
  const zebtest::WithoutPrivileges nobody;
  if (!nobody.holds()) GTEST_SKIP() << "root may read everything";
  const zebtest::TemporaryFile file("x");
  std::ifstream stream;
  open(stream, file.path());
  EXPECT_TRUE(stream.is_open());
  stream.close();
  std::filesystem::permissions(file.path(), std::filesystem::perms::none);
  open(stream, file.path());
  EXPECT_TRUE(stream.fail());
  EXPECT_FALSE(stream.is_open());
}

TEST_F(TextFileOpener, RefusesOtherModesThanReading) {
  std::ifstream stream;
  CZEBFileIO().ZEBOpenFile(stream, folder.write("file.txt", "x").c_str(), static_cast<ZEBOpenMode>(2), 500, 10);
  EXPECT_TRUE(stream.fail());
}

TEST_F(TextFileOpener, OpensTheSameStreamAgainAfterClosing) {
  const std::string first = folder.write("first.txt", "1\r\nunread\r\n");
  const std::string second = folder.write("second.txt", "2\r\n");
  std::ifstream stream;
  for (int round = 0; round < 3; ++round) {
    std::string line;
    open(stream, first);
    EXPECT_TRUE(stream.is_open());
    EXPECT_TRUE(std::getline(stream, line));
    EXPECT_EQ(line, "1");
    stream.close();
    EXPECT_FALSE(stream.is_open());
    open(stream, second);
    EXPECT_EQ(lines(stream), std::vector<std::string>{"2"});
    stream.close();
  }
}

TEST_F(TextFileOpener, OpensAStreamAgainAfterAFailureAndWithoutClosing) {
  std::ifstream stream;
  open(stream, folder.path("missing"));
  EXPECT_TRUE(stream.fail());
  open(stream, folder.write("file.txt", "a\r\nb"));
  EXPECT_TRUE(stream.good());
  open(stream, folder.write("other.txt", "other"));
  EXPECT_EQ(lines(stream), std::vector<std::string>{"other"});
  open(stream, folder.path());
  EXPECT_TRUE(stream.fail());
  EXPECT_FALSE(stream.is_open());
}

TEST_F(TextFileOpener, DeliversNothingOfAnEarlierFileWhenTheNextIsMissing) {
  std::ifstream stream;
  open(stream, folder.write("file.txt", "one\ntwo\n"));
  std::string line;
  std::getline(stream, line);
  open(stream, folder.path("missing"));
  EXPECT_TRUE(stream.fail());
  stream.clear();
  EXPECT_EQ(everything(stream), "");
}

TEST_F(TextFileOpener, ReadsAStreamThatHadAnotherFileBefore) {
  std::ifstream stream(folder.write("plain.txt", "plain"));
  EXPECT_EQ(everything(stream), "plain");
  open(stream, folder.write("file.txt", "a\r\n"));
  EXPECT_EQ(everything(stream), "a\n");
}

TEST_F(TextFileOpener, SurvivesCopyfmtInBothDirections) {
  std::ifstream opened;
  open(opened, folder.write("file.txt", "a\r\nb\r\n"));
  {
    std::ostringstream copy;
    copy.copyfmt(opened);
    std::ifstream openedLater;
    openedLater.copyfmt(opened);
    open(openedLater, folder.path("file.txt"));
    EXPECT_EQ(lines(openedLater), (std::vector<std::string>{"a", "b"}));
  }
  EXPECT_EQ(lines(opened), (std::vector<std::string>{"a", "b"}));
  opened.copyfmt(std::ostringstream());
  open(opened, folder.path("file.txt"));
  EXPECT_EQ(lines(opened), (std::vector<std::string>{"a", "b"}));
}

struct OtherNewline : std::ctype<char> {
  char do_widen(char character) const override { return character == '\n' ? ';' : character; }
};
struct OtherPunctuation : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST_F(TextFileOpener, ReadsTheSameUnderAnyGlobalLocale) {
  const std::string file = folder.write("file.txt", "a;b\r\n1.5 1234\r\n");
  std::locale host(std::locale::classic(), new OtherNewline);
  host = std::locale(host, new OtherPunctuation);
  host = std::locale(host, new zebtest::OtherCharacters);
  const zebtest::GlobalLocale global(host);
  std::ifstream stream;
  open(stream, file);
  std::string line;
  EXPECT_TRUE(std::getline(stream, line));
  EXPECT_EQ(line, "a;b");
  double number = 0;
  int count = 0;
  EXPECT_TRUE(stream >> number >> count);
  EXPECT_EQ(number, 1.5);
  EXPECT_EQ(count, 1234);
}

TEST_F(TextFileOpener, HandsOutCharactersAndBlocksAsWellAsLines) {
  std::ifstream stream;
  open(stream, folder.write("file.txt", "ab\r\ncdef\r\n"));
  EXPECT_EQ(stream.get(), 'a');
  stream.unget();
  EXPECT_EQ(stream.peek(), 'a');
  char block[5] = {};
  stream.read(block, 4);
  EXPECT_STREQ(block, "ab\nc");
  stream.ignore(100, '\n');
  EXPECT_EQ(stream.get(), std::char_traits<char>::eof());
  EXPECT_TRUE(stream.eof());
}

}  // namespace
}  // namespace zeb::test
