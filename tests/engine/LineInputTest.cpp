// Lines from devices that give their text in pieces of any size, or fail, against std::getline on such a device.
#include <gtest/gtest.h>

#include <chrono>
#include <sstream>
#include <stdexcept>
#include <streambuf>

#include "engine/LineSource.hpp"
#include "tests/support/RandomText.hpp"
#include "tests/support/RecordingCommunicator.h"

namespace {

using namespace std::string_literals;
using zebtest::RandomText;

constexpr std::size_t kNever = std::string::npos;

// Counts its accesses to the text and throws at the one asked for.
class Device : public std::streambuf {
 public:
  Device(std::string text, std::size_t failsAt) : m_text(std::move(text)), m_failsAt(failsAt) {}

 protected:
  void access() {
    if (m_accesses++ == m_failsAt) throw std::runtime_error("device");
  }
  bool isAtEnd() const { return m_at == m_text.size(); }
  int_type current() const { return isAtEnd() ? traits_type::eof() : traits_type::to_int_type(m_text[m_at]); }

  std::string m_text;
  std::size_t m_at = 0;

 private:
  std::size_t m_failsAt, m_accesses = 0;
};

// Each access gives a piece; their sizes are taken in turn.
class Pieces final : public Device {
 public:
  Pieces(std::string text, std::vector<std::size_t> sizes, std::size_t failsAt = kNever)
      : Device(std::move(text), failsAt), m_sizes(std::move(sizes)) {}

 protected:
  int_type underflow() override {
    access();
    const std::size_t size = std::min(m_sizes[m_number++ % m_sizes.size()], m_text.size() - m_at);
    const int_type first = current();
    setg(m_text.data() + m_at, m_text.data() + m_at, m_text.data() + m_at + size);
    m_at += size;
    return first;
  }

 private:
  std::vector<std::size_t> m_sizes;
  std::size_t m_number = 0;
};

// Never holds a character ready: underflow() shows the next one, uflow() takes it.
class Unbuffered final : public Device {
 public:
  explicit Unbuffered(std::string text, std::size_t failsAt = kNever) : Device(std::move(text), failsAt) {}

 protected:
  int_type underflow() override {
    access();
    return current();
  }
  int_type uflow() override {
    access();
    const int_type taken = current();
    m_at += isAtEnd() ? 0u : 1u;
    return taken;
  }
};

std::vector<std::string> plainLines(std::streambuf& device, std::size_t longest = kNever) {
  std::istream stream(&device);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) {
    line = line.c_str();  // up to the first NUL
    lines.push_back(line.substr(0, longest));
  }
  return lines;
}

std::vector<std::string> plainLines(const std::string& text, std::size_t longest = kNever) {
  std::stringbuf whole(text);
  return plainLines(whole, longest);
}

// What is promised of each line besides its text.
void expectMarginsAndEquals(std::string_view line, const char* equals) {
  const char* const end = line.data() + line.size();
  // A sanitizer refuses what may not be read.
  const std::string withMargins(line.data() - zeb::kLineMargin, end + zeb::kLineMargin);
  EXPECT_TRUE(withMargins.substr(zeb::kLineMargin, line.size()) == line);
  EXPECT_TRUE(*end == '\n' || *end == '\0');
  const std::size_t sign = line.find('=');
  EXPECT_EQ(equals, sign == line.npos ? nullptr : line.data() + sign);
}

void expectLines(std::streambuf& device, const std::vector<std::string>& expected, CZEBCom* com = nullptr) {
  std::istream stream(&device);
  const zeb::LineSource source{.com = com};
  zeb::LineReader reader(stream, source, nullptr);
  std::string_view line;
  for (std::size_t number = 0; number < expected.size(); ++number) {
    ASSERT_TRUE(reader.next(line)) << "line " << number;
    ASSERT_TRUE(line == expected[number])  // not printed: some have 100,000 characters
        << "line " << number << " has " << line.size() << " characters, not " << expected[number].size();
    expectMarginsAndEquals(line, reader.equals());
    ASSERT_EQ(reader.lineNumber(), static_cast<int>(number) + 1);
  }
  for (int again = 0; again < 2; ++again) {
    ASSERT_FALSE(reader.next(line)) << "one line more, of " << line.size() << " characters";
    EXPECT_EQ(line, "");
  }
}

const std::vector<std::size_t> kPieceSizes = {1, 2, 3, 63, 64, 65, 4031, 4032, 4033, 4034, 8191, 1'000'000};

void expectPlainLines(const std::string& text) {
  const std::vector<std::string> expected = plainLines(text);
  for (const std::size_t size : kPieceSizes) {
    SCOPED_TRACE("pieces of " + std::to_string(size));
    Pieces pieces(text, {size});
    expectLines(pieces, expected);
    if (testing::Test::HasFailure()) return;
  }
  SCOPED_TRACE("unbuffered");
  Unbuffered unbuffered(text);
  expectLines(unbuffered, expected);
}

std::string lineOf(std::size_t length) {
  std::string line(length, ' ');
  for (std::size_t i = 0; i < length; ++i) line[i] = static_cast<char>('>' + i % 60);  // no '='
  return line;
}

TEST(LineInput, DeliversLinesOfEveryLengthFromPiecesOfEverySize) {
  const std::size_t lengths[] = {0, 1, 63, 64, 65, 4'000, 100'000};
  for (const std::size_t first : lengths) {
    for (const std::size_t second : lengths) {
      SCOPED_TRACE(std::to_string(first) + ", " + std::to_string(second));
      const std::string text = lineOf(first) + "\n" + lineOf(second);
      for (const char* end : {"", "\n", "\n\n", "\na = 1"}) ASSERT_NO_FATAL_FAILURE(expectPlainLines(text + end));
    }
  }
}

TEST(LineInput, FindsALineEndAtEveryPlaceAroundTheEndOfTheFirstBlock) {
  for (std::size_t length = 4032 - 66; length <= 4032 + 66; ++length) {
    SCOPED_TRACE(length);
    ASSERT_NO_FATAL_FAILURE(expectPlainLines(lineOf(length) + "\nKEY = 1\n"));
    ASSERT_NO_FATAL_FAILURE(expectPlainLines("KEY = 1\n" + lineOf(length - 8) + "=\n=" + lineOf(63)));
  }
}

TEST(LineInput, FindsTheFirstEqualsAtEveryPlaceAndNoneBehindTheLine) {
  for (std::size_t place = 0; place < 130; ++place) {
    SCOPED_TRACE(place);
    std::string line = lineOf(130);
    line[place] = '=';
    const std::string nul = line.substr(0, place) + "\0"s + line.substr(place);
    for (const std::string& text :
         {line + "\n" + lineOf(70), lineOf(place) + "\n" + line, line + "=\nx",
          lineOf(place) + "\n=\n" + lineOf(5) + "\n= =", nul + "\nb\n", nul + "\na = \0 = b"s})
      ASSERT_NO_FATAL_FAILURE(expectPlainLines(text));
  }
}

TEST(LineInput, EndsLinesAtTheirFirstNul) {
  for (const std::string& text : {"\0"s, "\0\n"s, "\0\0\n\0"s, "a\0b=1\nc\n"s, "a=\0b\0=1\nc"s, "\n\0\n\n="s,
                                  lineOf(63) + "\0=\n="s, lineOf(4031) + "\0"s + lineOf(70) + "=\nKEY=1\n\0=\n"s}) {
    ASSERT_NO_FATAL_FAILURE(expectPlainLines(text));
  }
}

std::string randomText(RandomText& random) {
  static const std::string kFew = "\n\n=\0 abc"s;
  std::string text;
  for (std::size_t parts = random.below(30); parts > 0; --parts) {
    if (random.oneIn(3)) {
      text += lineOf(random.below(random.oneIn(8) ? 9000 : 150));
    } else {
      for (std::size_t count = random.below(40); count > 0; --count) {
        text += random.oneIn(20) ? random.pick(kFew) : random.pick("\n=abc x"s);
      }
    }
  }
  return text;
}

std::vector<std::size_t> randomSizes(RandomText& random) {
  const std::size_t limit = random.pick(std::vector<std::size_t>{3, 70, 700, 9000});
  std::vector<std::size_t> sizes(20);
  for (std::size_t& size : sizes) size = 1 + random.below(limit);
  return sizes;
}

TEST(LineInput, DeliversRandomTextFromRandomPieces) {
  RandomText random(4032);
  for (int round = 0; round < 6'000; ++round) {
    SCOPED_TRACE(round);
    const std::string text = randomText(random);
    Pieces pieces(text, randomSizes(random)), shared(text, randomSizes(random));
    ASSERT_NO_FATAL_FAILURE(expectLines(pieces, plainLines(text)));
    zeb::RecordingCommunicator com(2);
    ASSERT_NO_FATAL_FAILURE(expectLines(shared, plainLines(text, 254), &com));
  }
}

TEST(LineInput, DeliversTheLinesInFrontOfAFailureAndNothingBehind) {
  RandomText random(5);
  std::vector<std::string> texts = {"",     "a",    "a\n",
                                    "a\nb", "\n\n", "KEY = 1\nNEXT = 2\n" + lineOf(200) + "\nlast = 3\n"};
  for (int i = 0; i < 20; ++i) texts.push_back(randomText(random).substr(0, 400));
  texts.push_back(lineOf(100) + "\n" + lineOf(9000) + "\nlast\n");
  for (const std::string& text : texts) {
    for (const std::size_t size : {1u, 7u, 64u, 65u, 4033u}) {
      for (std::size_t failsAt = 0; failsAt <= text.size() / size + 1; failsAt += text.size() < 1000 ? 1 : 13) {
        SCOPED_TRACE("pieces of " + std::to_string(size) + ", fails at " + std::to_string(failsAt));
        Pieces plain(text, {size}, failsAt), pieces(text, {size}, failsAt);
        ASSERT_NO_FATAL_FAILURE(expectLines(pieces, plainLines(plain)));
      }
    }
  }
}

TEST(LineInput, DeliversTheLinesInFrontOfAFailureOfAnUnbufferedDevice) {
  const std::string text = "KEY = 1\n\nNEXT = 2\nlast = 3";
  for (std::size_t failsAt = 0; failsAt <= 2 * text.size() + 1; ++failsAt) {
    SCOPED_TRACE(failsAt);
    // Every character costs two accesses, and the first to fail is that of a character not yet taken.
    const std::string before = text.substr(0, failsAt / 2);
    std::vector<std::string> expected = plainLines(before.substr(0, before.rfind('\n') + 1));
    if (failsAt > 2 * text.size()) expected = plainLines(text);
    Unbuffered device(text, failsAt);
    ASSERT_NO_FATAL_FAILURE(expectLines(device, expected));
  }
}

// With pieces so small, work that grew with the line at each piece would take hours.
TEST(LineInput, ReadsALineOf50MillionCharactersInLinearTime) {
  const auto start = std::chrono::steady_clock::now();
  std::string text(50'000'000, 'x');
  text[49'999'000] = '=';
  Pieces pieces(text, {512});
  std::istream stream(&pieces);
  const zeb::LineSource serial;
  zeb::LineReader reader(stream, serial, nullptr);
  std::string_view line;
  ASSERT_TRUE(reader.next(line));
  EXPECT_TRUE(line == text);
  EXPECT_EQ(reader.equals(), line.data() + 49'999'000);
  EXPECT_FALSE(reader.next(line));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

}  // namespace
