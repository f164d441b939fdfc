// A parameter set that has read a text, and what that changed.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "blocks/CZEBCMPGeneralParm.h"
#include "blocks/CZEBCMPShortShotParm.h"
#include "frame/CZEBKNCMPCompParm.h"
#include "inspect/set/Inspection.hpp"
#include "inspect/set/Settings.hpp"
#include "tests/support/TemporaryFile.hpp"

namespace zebtest {

using Lines = std::vector<std::string>;

/// Every value of every block.
inline std::string valuesOf(const CZEBKNCMPCompParm& set) { return zeb::fingerprint(zeb::blocksOf(set)); }

/// Those of a set that has read nothing.
inline std::string defaultValues() { return valuesOf(CZEBKNCMPCompParm(0, 0)); }

/// A set that has read this text.
struct Set : CZEBKNCMPCompParm {
  explicit Set(const std::string& text) : Set(0, 0) { read(text); }
  void read(const std::string& text) {
    const TemporaryFile file(text);
    EXPECT_EQ(setSolidFillBlock(file.path()), 1);
  }
  CZEBCMPGeneralParm& general() const { return *getGeneralParm(); }
  CZEBCMPShortShotParm& shortShot() const { return *getShortShotParm(); }

 protected:
  Set(int molding, int material) : CZEBKNCMPCompParm(molding, material) {}
};

/// The lines "Block.member = value" that differ from the defaults.
inline Lines changesOf(const CZEBKNCMPCompParm& set) {
  Lines changes;
  std::istringstream values(valuesOf(set)), defaults(defaultValues());
  for (std::string value, byDefault; std::getline(values, value) && std::getline(defaults, byDefault);) {
    if (value != byDefault) changes.push_back(value);
  }
  return changes;
}

}  // namespace zebtest
