// A text read as a CMX file, without a file.
#pragma once

#include <sstream>
#include <string>

#include "cmx/CZEBCMXInternalTool.hpp"
#include "tests/cmx/Expectations.hpp"

namespace zebtest {

/// Returns the exact values of all members afterwards.
inline std::string readIntoTool(CZEBCMXInternalTool& tool, const std::string& text) {
  std::istringstream stream(text);
  tool.readBlocks(stream);
  return exactValues(tool.sections());
}

}  // namespace zebtest
