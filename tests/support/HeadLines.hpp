// The head's values as hosts take them: line by line, through as many references as the line has values.
#pragma once

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace zebtest {

constexpr int kUnwritten = -12345;

/// What getLine1 and its siblings answer and hand out; kUnwritten where they leave an argument alone.
struct HeadLine {
  int answer;
  std::vector<double> values;
  bool operator==(const HeadLine&) const = default;
};

template <class Set, class... Arguments>
HeadLine headLine(const Set& set, int (Set::*getLine)(Arguments&...) const) {
  std::tuple<Arguments...> arguments{static_cast<Arguments>(kUnwritten)...};
  const int answer = std::apply([&](auto&... argument) { return (set.*getLine)(argument...); }, arguments);
  return {answer,
          std::apply([](auto... value) { return std::vector<double>{static_cast<double>(value)...}; }, arguments)};
}

inline void PrintTo(const HeadLine& line, std::ostream* out) {
  *out << line.answer << ": " << testing::PrintToString(line.values);
}

}  // namespace zebtest
