// The door through which the tools see inside the parameter sets. Tools link the objects statically; nothing is
// exported.
#pragma once

#include <string>
#include <vector>

#include "cmx/CZEBCMXInternalTool.hpp"
#include "cmx/CZEBKNCMXCompParm.h"
#include "frame/CZEBCMPInternalTool.hpp"
#include "frame/CZEBKNCMPCompParm.h"
#include "stdcmp/CZEBKNstdCMPCompParm.h"
#include "stdcmp/StdParameters.hpp"

namespace zeb {

struct Inspection {
  /// Null when the molding type is undefined.
  static CZEBCMPInternalTool* tool(const CZEBKNCMPCompParm& set) { return set.m_tool.get(); }
  static CZEBCMXInternalTool& tool(const CZEBKNCMXCompParm& set) { return *set.m_pTool; }
  static StdParameters& parameters(const CZEBKNstdCMPCompParm& set) { return *set.m_pParameters; }
};

/// A block with its table, under the name that engineers use for it ("General").
struct BlockView {
  std::string name;
  const BlockTable* table;
  void* block;
};

/// All blocks of the set in the order of their construction. Valid as long as the set.
std::vector<BlockView> blocksOf(const CZEBKNCMPCompParm& set);
/// The blocks of a CMX file, named by their tags, in the order in which the reader looks for them.
std::vector<BlockView> blocksOf(const CZEBKNCMXCompParm& set);
/// The head and the sections, by their names, in the order in which the reader looks for them.
std::vector<BlockView> blocksOf(const CZEBKNstdCMPCompParm& set);

/// "General" for CZEBCMPGeneralParm, "StdCool" for CZEBCoolStdCoolParm, "SOLID_FILL" for CZEBCMX_SOLID_FILL.
std::string blockName(std::string_view className);

/// Compares ASCII letters without their case.
bool equalWithoutCase(std::string_view a, std::string_view b);

/// Whether the text names the block: by its name, its class or one of its sections; case does not matter.
bool isNamed(const BlockView& block, std::string_view text);

}  // namespace zeb
