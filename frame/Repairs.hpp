// What modifyParameters changes after reading, as data: condition, member, change.
#pragma once

#include <span>
#include <string_view>

#include "frame/CZEBCMPInternalTool.hpp"

namespace zeb {

/// One change of one member; ints take the rule's result without its fraction.
struct Repair {
  BlockEntry block;
  Field field;
  Rule rule;
};

/// Changes that belong together and the condition under which they are made.
struct RepairStep {
  std::string_view condition;
  bool (*applies)(const CZEBCMPInternalTool& tool);  // null: always
  std::span<const Repair> repairs;
};

/// The changes of a molding type, made first; empty for most.
std::span<const RepairStep> moldingRepairs(int code);
/// The changes that follow, in order, whatever the molding type.
std::span<const RepairStep> commonRepairs();

/// Applies the changes of the molding type of this name. Returns 1.
int repairForMolding(CZEBCMPInternalTool& tool, std::string_view name);
/// The molding type's own changes, then the common ones. Not idempotent: some changes multiply. Returns 1.
int modifyParameters(CZEBCMPInternalTool& tool);

}  // namespace zeb
