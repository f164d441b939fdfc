// Every short text as a number, numbers at the limits of what is read and printed the short way, and printed doubles,
// against the C++ stream and the C library. ctest takes a part of them; the environment variable ZEB_ALL_NUMBERS, set
// to anything, all.
#include <gtest/gtest.h>

#include <bit>
#include <cerrno>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <locale>
#include <random>
#include <sstream>
#include <string>

#include "blocks/CZEBCMPGeneralParm.h"
#include "engine/ExactLine.hpp"
#include "engine/ParameterTable.hpp"
#include "engine/TextOutput.hpp"
#include "engine/ValueText.hpp"

namespace {

bool takesAll() { return std::getenv("ZEB_ALL_NUMBERS") != nullptr; }

template <class Number>
struct Taken {
  Number value{-7};
  std::size_t used = 0;
};

bool same(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) || (std::isnan(a) && std::isnan(b));
}
bool same(int a, int b) { return a == b; }
template <class Number>
bool same(const Taken<Number>& a, const Taken<Number>& b) {
  return a.used == b.used && same(a.value, b.value);
}

// --- What a stream takes ----------------------------------------------------------------------------------------

template <class Number>
Taken<Number> streamed(const std::string& text) {
  std::istringstream stream(text);
  stream.imbue(std::locale::classic());
  Taken<Number> taken;
  Number value{};
  if (!(stream >> value)) return taken;
  taken.value = value;
  taken.used = stream.eof() ? text.size() : static_cast<std::size_t>(stream.tellg());
  return taken;
}

// The same a hundred times as fast: what a stream gathers before it converts, given to the C library. A test below says
// that it is the same.
class Gathered {
 public:
  explicit Gathered(const char* text) : m_text(text), m_end(text) {
    while (*m_end == ' ' || (*m_end >= '\t' && *m_end <= '\r')) ++m_end;
    m_start = m_end;
    if (*m_end == '+' || *m_end == '-') ++m_end;
  }

  Taken<int> asInt() {
    digits();
    errno = 0;
    char* end = nullptr;
    const long value = std::strtol(m_start, &end, 10);
    if (end != m_end || m_end == m_start || errno != 0 || value < INT_MIN || value > INT_MAX) return {};
    return {static_cast<int>(value), used()};
  }

  Taken<double> asDouble(bool& isTooLarge) {
    isTooLarge = false;
    bool hasDigits = digits();
    if (*m_end == '.') {
      ++m_end;
      hasDigits = digits() || hasDigits;
    }
    // strtod would take more, as in "0x1" or "inf".
    if (!hasDigits) return {};
    const char* const mantissa = m_end;
    if (*m_end == 'e' || *m_end == 'E') {
      ++m_end;
      if (*m_end == '+' || *m_end == '-') ++m_end;
      if (!digits()) return {};
    }
    const bool isHexadecimal = mantissa == m_end && (*m_end == 'x' || *m_end == 'X');
    const double value =
        isHexadecimal ? std::strtod(std::string(m_start, m_end).c_str(), nullptr) : std::strtod(m_start, nullptr);
    isTooLarge = std::isinf(value);
    return isTooLarge ? Taken<double>() : Taken<double>{value, used()};
  }

 private:
  bool digits() {
    const char* const first = m_end;
    while (*m_end >= '0' && *m_end <= '9') ++m_end;
    return m_end != first;
  }
  std::size_t used() const { return static_cast<std::size_t>(m_end - m_text); }

  const char *m_text, *m_start, *m_end;
};

// --- What the library takes -------------------------------------------------------------------------------------

Taken<double> extracted(std::string_view text, double) {
  Taken<double> taken;
  taken.used = zeb::extractDouble(text, taken.value);
  return taken;
}
Taken<int> extracted(std::string_view text, int) {
  Taken<int> taken;
  taken.used = zeb::extractInt(text, taken.value);
  return taken;
}

// Two fields of a positional line; that of the C library as `format` says.
template <class Number>
bool scansAsC(std::string_view text, const char* format) {
  Number expected[2] = {-7, -7};
  int ends[2] = {0, 0};
  std::sscanf(text.data(), format, &expected[0], &ends[0], &expected[1], &ends[1]);
  zeb::FieldScanner scanner(text);
  for (int field = 0; field < 2; ++field) {
    Number value{-7};
    if (scanner.next(value) != (ends[field] != 0) || !same(value, expected[field])) return false;
    if (ends[field] == 0) return true;
    if (text.size() - scanner.rest().size() != static_cast<std::size_t>(ends[field])) return false;
  }
  return true;
}

// Of a text that begins with a number and a blank behind it, and of no other, the short way takes the number; it need
// not. No key of the section stands in any of the texts.
template <class Number>
bool isStoredShort(std::string_view text, const Taken<Number>& expected, bool& isWrong) {
  Number value{-7};
  static const zeb::KeyFilter& filter = zeb::tableOf<CZEBCMPGeneralParm>().sections.front().filter;
  const bool isStored = zeb::storeShort(text.data(), text.data() + text.size(), filter, value);
  const bool isAlone = expected.used != 0 && (expected.used == text.size() || zeb::isBlank(text[expected.used]));
  isWrong = isWrong || !same(value, isStored ? expected.value : Number{-7}) || (isStored && !isAlone);
  return isStored;
}

struct Count {
  long texts = 0, ints = 0, doubles = 0, shortInts = 0, shortDoubles = 0;
};

// `text` ends with a NUL. False where anything is taken otherwise than by the stream and the C library.
bool isTakenRight(std::string_view text, Count& count) {
  bool isTooLarge = false, isWrong = false;
  const Taken<int> whole = Gathered(text.data()).asInt();
  const Taken<double> real = Gathered(text.data()).asDouble(isTooLarge);
  count.texts += 1;
  count.ints += whole.used != 0 ? 1 : 0;
  count.doubles += real.used != 0 ? 1 : 0;
  count.shortInts += isStoredShort(text, whole, isWrong) ? 1 : 0;
  count.shortDoubles += isStoredShort(text, real, isWrong) ? 1 : 0;
  return !isWrong && same(extracted(text, 0), whole) && same(extracted(text, 0.0), real) &&
         (real.used != 0 || zeb::isDoubleOutOfRange(text) == isTooLarge) && scansAsC<double>(text, "%lf%n%lf%n");
}

// --- Every short text -------------------------------------------------------------------------------------------

constexpr char kCharacters[] = "0159+-.eExXnaif \tp";

// Calls `check` with every text of `length` of these characters, a NUL behind it, until it returns false.
template <class Check>
testing::AssertionResult everyText(std::size_t length, Check&& check) {
  constexpr std::size_t kCount = sizeof kCharacters - 1;
  std::string text(length, kCharacters[0]);
  std::vector<std::size_t> places(length);
  while (check(text)) {
    std::size_t at = 0;
    while (at < length && ++places[at] == kCount) {
      places[at] = 0;
      text[at++] = kCharacters[0];
    }
    if (at == length) return testing::AssertionSuccess();
    text[at] = kCharacters[places[at]];
  }
  return testing::AssertionFailure() << '"' << text << '"';
}

TEST(Numbers, TheQuickStreamIsTheStream) {
  for (std::size_t length = 0; length <= 4; ++length) {
    ASSERT_TRUE(everyText(length, [](const std::string& text) {
      bool isTooLarge = false;
      return same(Gathered(text.c_str()).asInt(), streamed<int>(text)) &&
             same(Gathered(text.c_str()).asDouble(isTooLarge), streamed<double>(text));
    }));
  }
}

TEST(Numbers, EveryShortTextIsTakenAsByTheStreamAndTheFormattedScan) {
  Count count;
  const std::size_t longest = takesAll() ? 6 : 4;
  for (std::size_t length = 0; length <= longest; ++length) {
    ASSERT_TRUE(everyText(
        length, [&](const std::string& text) { return isTakenRight(text, count) && scansAsC<int>(text, "%d%n%d%n"); }));
  }
  std::printf("%ld texts: %ld ints and %ld doubles, %ld and %ld of them alone and short\n", count.texts, count.ints,
              count.doubles, count.shortInts, count.shortDoubles);
  EXPECT_GT(count.shortInts, 500);
  EXPECT_GT(count.shortDoubles, count.shortInts);
}

// --- The limits -------------------------------------------------------------------------------------------------

// What the short way takes, and what a double holds, ends near these: 2^31, 2^53, 2^63, 2^64, 9, 18 and 19 digits, the
// largest double and what rounds to infinity, the smallest normal and denormal one and the half of it.
const char* const kMantissas[] = {"0",
                                  "1",
                                  "5",
                                  "2147483647",
                                  "2147483648",
                                  "2147483649",
                                  "999999999",
                                  "1000000000",
                                  "9007199254740991",
                                  "9007199254740992",
                                  "9007199254740993",
                                  "999999999999999999",
                                  "1000000000000000000",
                                  "9223372036854775808",
                                  "18446744073709551615",
                                  "18446744073709551617",
                                  "17976931348623157",
                                  "179769313486231580793",
                                  "179769313486231580794",
                                  "22250738585072014",
                                  "22250738585072011",
                                  "49406564584124654",
                                  "24703282292062327",
                                  "24703282292062328"};

std::vector<int> countsOfZeros() {
  std::vector<int> counts;
  for (int count = 0; count <= 26; ++count) counts.push_back(count);
  counts.insert(counts.end(), {50, 100, 290, 307, 308, 309, 323, 324, 325, 342, 400});
  return counts;
}

TEST(Numbers, AtTheLimitsAreTakenAsByTheStreamAndTheFormattedScan) {
  Count count;
  const int step = takesAll() ? 1 : 41;
  for (const std::string mantissa : kMantissas) {
    for (const int zeros : countsOfZeros()) {
      const std::string padding(static_cast<std::size_t>(zeros), '0');
      for (const std::string& digits :
           {mantissa + padding, padding + mantissa, "." + padding + mantissa, mantissa + "." + padding,
            "-" + mantissa.substr(0, 1) + "." + mantissa.substr(1) + padding}) {
        ASSERT_TRUE(isTakenRight(digits, count)) << digits;
        for (int power = -420; power <= 420; power += step) {
          const std::string text = digits + (power % 2 == 0 ? "e" : "E") + std::to_string(power);
          ASSERT_TRUE(isTakenRight(text, count)) << text;
        }
      }
    }
  }
  std::printf("%ld texts, %ld and %ld of them alone and short\n", count.texts, count.shortInts, count.shortDoubles);
  EXPECT_GT(count.shortDoubles, 500);
}

// --- Printing ---------------------------------------------------------------------------------------------------

class Printing : public testing::Test {
 protected:
  void check(double value) {
    char expected[64];
    std::snprintf(expected, sizeof expected, "%g", value);
    ASSERT_EQ(zeb::formatGeneral(value), expected) << expected;
  }
  void checkWithNeighbours(double value) {
    for (const double near : {value, std::nextafter(value, -HUGE_VAL), std::nextafter(value, HUGE_VAL)}) {
      ASSERT_NO_FATAL_FAILURE(check(near));
      ASSERT_NO_FATAL_FAILURE(check(-near));
    }
  }

  const int m_rounds = takesAll() ? 1'000'000 : 50'000;
  std::mt19937_64 m_random{1};
};

TEST_F(Printing, AnyDoubleIsWrittenAsByPrintf) {
  for (int round = 0; round < m_rounds; ++round) {
    const std::uint64_t bits = m_random();
    const auto value = std::bit_cast<double>(bits);
    if (std::isnan(value)) continue;
    ASSERT_NO_FATAL_FAILURE(check(value));
    ASSERT_NO_FATAL_FAILURE(check(std::bit_cast<double>(bits >> (12 + bits % 52))));  // a denormal
  }
}

TEST_F(Printing, ShortDecimalsAndTheirNeighboursAreWrittenAsByPrintf) {
  for (int round = 0; round < m_rounds; ++round) {
    const auto digits = static_cast<double>(m_random() % 10'000'000);
    const int power = static_cast<int>(m_random() % 40);
    ASSERT_NO_FATAL_FAILURE(checkWithNeighbours(digits * std::pow(10, power - 20)));
    ASSERT_NO_FATAL_FAILURE(checkWithNeighbours(digits / std::pow(10, power)));
  }
  for (int power = -330; power <= 310; ++power) {
    for (int digits = 1; digits < 1000; digits += takesAll() ? 1 : 17) {
      const std::string text = std::to_string(digits) + "e" + std::to_string(power);
      ASSERT_NO_FATAL_FAILURE(checkWithNeighbours(std::strtod(text.c_str(), nullptr)));
    }
  }
}

TEST_F(Printing, NumbersWhereTheNotationChangesAreWrittenAsByPrintf) {
  for (const double value : {0.0, 1e5, 999999.5, 999999.49999, 999999.0, 1e6, 99999.95, 999999.9, 1e-4, 1e-5,
                             0.00009999995, 0.00009999994, 0.000123456, 0.0001234565, HUGE_VAL}) {
    ASSERT_NO_FATAL_FAILURE(checkWithNeighbours(value));
  }
}

}  // namespace
