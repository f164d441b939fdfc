// Random lines that look enough like parameter files to reach every branch of the readers.
#pragma once

#include <random>
#include <string>
#include <vector>

namespace zebtest {

inline std::string withCrLf(const std::string& text) {
  std::string result;
  for (const char c : text) result += c == '\n' ? "\r\n" : std::string(1, c);
  return result;
}

class RandomText {
 public:
  explicit RandomText(unsigned seed) : m_engine(seed) {}

  std::size_t below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(m_engine); }
  bool oneIn(std::size_t n) { return below(n) == 0; }

  template <class Container>
  const auto& pick(const Container& items) {
    return items[below(std::size(items))];
  }

  /// Characters of numbers in random order.
  std::string numberSoup() {
    static const std::string kCharacters = "0123456789012345678901234567890123456789+-..eE xXinfaINFp()=\t";
    std::string text;
    for (std::size_t count = below(14); count > 0; --count) text += pick(kCharacters);
    return text;
  }

  /// Mostly well-formed numbers, some at the edges of their types, some broken.
  std::string number() {
    static const std::vector<std::string> kEdges = {"2147483647",
                                                    "2147483648",
                                                    "-2147483648",
                                                    "-2147483649",
                                                    "1e308",
                                                    "1e309",
                                                    "-1e400",
                                                    "1e-400",
                                                    "4.9e-324",
                                                    "1e-310",
                                                    "2e-324",
                                                    "0x10",
                                                    "0x1p3",
                                                    "nan",
                                                    "inf",
                                                    "1e",
                                                    "1e+",
                                                    "1.5e5.5",
                                                    "+-1",
                                                    "--1",
                                                    "+5",
                                                    "-.5",
                                                    ".",
                                                    "-",
                                                    "+.",
                                                    "1.",
                                                    "00012",
                                                    "1,5",
                                                    "1_000",
                                                    "1e99999999999999999999",
                                                    "0.0000000000000000000001e-400",
                                                    "1000000000000000000000e-20",
                                                    "123456789012345678901234567890",
                                                    "0e5",
                                                    "-0",
                                                    "-0.0",
                                                    "0e999999",
                                                    "1E5e5"};
    switch (below(4)) {
      case 0:
        return pick(kEdges);
      case 1:
        return numberSoup();
      case 2:
        return std::to_string(static_cast<long>(below(2000)) - 1000);
      default:
        return std::to_string(static_cast<double>(below(2000000)) / 1000.0 - 1000.0) +
               (oneIn(3) ? "e" + std::to_string(static_cast<int>(below(40)) - 20) : "");
    }
  }

  /// Any bytes but LF.
  std::string noise() {
    std::string text;
    for (std::size_t count = below(40); count > 0; --count) {
      const char c = static_cast<char>(below(256));
      text += c == '\n' ? ' ' : c;
    }
    return text;
  }

 private:
  std::mt19937 m_engine;
};

}  // namespace zebtest
