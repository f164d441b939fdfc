// A text read as a CMX file, without a file, and all that it leaves.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "cmx/CZEBCMXInternalTool.hpp"
#include "inspect/set/Inspection.hpp"
#include "inspect/set/Values.hpp"

namespace zebtest {

/// Every member with its exact value, lists with all their entries: equal texts are identical blocks.
inline std::string exactValues(const CZEBCMXInternalTool& tool) {
  std::vector<zeb::BlockView> blocks;
  for (const zeb::BlockTable* table : CZEBCMXInternalTool::tables()) {
    blocks.push_back({std::string(table->className), table, tool.sections()[blocks.size()].block});
  }
  return zeb::fingerprint(blocks);
}

/// Returns the exact values of all members afterwards.
inline std::string readIntoTool(CZEBCMXInternalTool& tool, const std::string& text) {
  std::istringstream stream(text);
  tool.readBlocks(stream);
  return exactValues(tool);
}

}  // namespace zebtest
