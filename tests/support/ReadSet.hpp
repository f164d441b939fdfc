// A parameter set that has read a text, and what that changed.
#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/OutputCapture.hpp"
#include "tests/support/SetValues.hpp"
#include "tests/support/TemporaryFile.hpp"

namespace zebtest {

using Lines = std::vector<std::string>;

inline Values valuesOf(const CZEBKNCMPCompParm& set) { return valuesOf(zeb::blocksOf(set)); }

/// Those of a set that has read nothing.
inline const Values& defaultValues() {
  static const Values kDefaults = valuesOf(CZEBKNCMPCompParm(0, 0));
  return kDefaults;
}

/// A set that has read this text.
struct Set : CZEBKNCMPCompParm {
  explicit Set(const std::string& text, int molding = 0, int material = 0) : CZEBKNCMPCompParm(molding, material) {
    if (getGeneralParm() == nullptr) throw std::invalid_argument("no molding type " + std::to_string(molding));
    read(text);
  }
  void read(const std::string& text) {
    const TemporaryFile file(text);
    const zeb::OutputCapture silence;
    EXPECT_EQ(setSolidFillBlock(file.path()), 1);
  }
  /// "Block.getter = value" for each that differs from the defaults.
  Lines changes() const { return differences(defaultValues(), valuesOf(*this)); }
};

}  // namespace zebtest
