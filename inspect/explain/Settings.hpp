// The values of a parameter set as data: member by member, with default and origin.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "inspect/explain/Origins.hpp"
#include "inspect/set/Inspection.hpp"
#include "inspect/set/Values.hpp"

namespace zeb {

/// One member, its values as valueOf() writes them.
struct Setting {
  const Row* row;
  const Section* section;
  std::string member;
  std::string value;
  std::string defaultValue;
  Origin origin;

  bool isChanged() const { return value != defaultValue; }
};

struct BlockSettings {
  std::string name;
  const BlockTable* table;
  std::vector<Setting> settings;
};

/// The settings of the blocks, in the order of declaration. `origins` may be null: then every origin is the default.
std::vector<BlockSettings> settingsOf(const std::vector<BlockView>& blocks, const Origins* origins);

}  // namespace zeb
