// Files for the standard solver's reader and a fixture that reads them.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "stdcmp/CZEBKNstdCMPCompParm.h"
#include "tests/cmx/Expectations.hpp"

namespace zebtest {

/// A whole head, behind its version line.
inline const std::string kHead =
    "1 2 3 4 5 6\n"
    "11 12 13 14\n"
    "21\n"
    "31 32 33 34 35 36\n"
    "41 42 0.043 0.044\n"
    "0.05\n"
    "0.61 0.62 0.63 0.64 0.65 0.66\n"
    "71 72 73 74 75 76\n"
    "0.81 0.82 0.83 0.84 0.85 0.86\n"
    "0.91 0.92 0.93 0.94 0.95 0.96\n"
    "eleven\n"
    "1\n"
    "thirteen\n"
    "1.41 1.42\n"
    "fifteen\n"
    "161 162 1.63\n"
    "seventeen\n";

/// Reads texts as files of the standard solver.
class StdReading : public testing::Test {
 protected:
  // Returns what is printed.
  std::string read(const std::string& text) { return read(m_set, text); }
  std::string read(CZEBKNstdCMPCompParm& set, const std::string& text) {
    m_file = m_folder.write("run.cmp", text);
    return zebtest::printedBy([&] { EXPECT_EQ(set.setSolidFillBlock(m_file), 1); });
  }

  zeb::test::TestFolder m_folder;
  std::string m_file;
  CZEBKNstdCMPCompParm m_set;
};

/// A version line and the head with the values that the repair looks at, the others left alone.
inline std::string headWith(const std::string& toler, const std::string& blendT, const std::string& relaxP,
                            const std::string& check, const std::string& coupling) {
  return "[VER] 1013\n\n\n\n\n\n" + toler + "\n1 1 1 1 1 " + blendT + "\n\n\n1 1 1 " + relaxP + "\n\n" + check +
         "\n\n\n\n" + coupling + "\n\n";
}

}  // namespace zebtest
