// What the tests of the viscoelastic file share: files made of a good one with a few lines changed, and a block's whole
// state.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "engine/ParameterTable.hpp"
#include "tests/blocks/ReadBlock.hpp"
#include "tests/support/TemporaryFile.hpp"
#include "viscoelastic/ViscoelasticFile.hpp"

namespace zebtest {

/// What a block with all its defaults is written as.
inline const std::string kDefaultFile = contentOf(ZEB_TEST_DATA_DIR "/default.vecmp");

/// A head whose values are all ignored (so that a block keeps what it has), with some lines replaced, then `body`.
inline std::string fileWith(const std::map<int, std::string>& lines, const std::string& body = "") {
  const char* neutral[] = {"1006", "0 0 0", "0 0 0", "0 0 0", "0 0", "-60 0 0", "0 0 0", "1 0 0", "-1"};
  std::string text;
  for (int number = 1; number <= 9; ++number) {
    const auto found = lines.find(number);
    text += (found == lines.end() ? neutral[number - 1] : found->second) + "\n";
  }
  return text + body;
}

inline int readText(CZEBCMPVEParm& block, const std::string& text, zeb::ReadObserver* observer = nullptr) {
  std::istringstream stream(text);
  return zeb::readViscoelasticLines(stream, block, zeb::LineSource{}, observer);
}

inline const zeb::Row& rowOfGetter(const std::string& getter) {
  for (const zeb::Section& section : zeb::tableOf<CZEBCMPVEParm>().sections) {
    for (const zeb::Row& row : section.rows) {
      if (row.field.getter == getter) return row;
    }
  }
  throw std::invalid_argument("no row has the getter " + getter);
}

/// By the public getter of that name.
inline double valueOf(const CZEBCMPVEParm& block, const std::string& getter) {
  return rowOfGetter(getter).field.get(&block);
}

/// Every member as text, arrays by their elements.
inline std::vector<std::string> stateOf(const CZEBCMPVEParm& block) {
  std::vector<std::string> state;
  for (const zeb::Section& section : zeb::tableOf<CZEBCMPVEParm>().sections) {
    for (const zeb::Row& row : section.rows) {
      if (row.field.type == zeb::FieldType::kDoubles) continue;
      state.push_back(std::string(row.field.member) + " " + zeb::dumpValue(row, &block));
    }
  }
  if (const double* rates = block.getMatFunPlotParam_Transient_InputStrainRate()) {
    const int count = block.getMatFunPlotParam_Transient_NSetofInput_StrainRate();
    for (int i = 0; i <= count; ++i) state.push_back("rate " + std::to_string(rates[i]));
  }
  return state;
}

}  // namespace zebtest
