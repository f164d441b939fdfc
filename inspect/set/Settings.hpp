// The values of a parameter set as data: member by member, with default and origin.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "inspect/set/Inspection.hpp"

namespace zeb {

class Provenance;

/// The shortest text that reads back as the value.
std::string exact(double value);
std::string exact(int value);

/// Where a member's value came from.
struct Origin {
  enum class Kind { kDefault, kFile, kRepair, kDerived };
  Kind kind = Kind::kDefault;
  std::string file;  ///< of kFile
  int line = 0;      ///< of kFile
  int lastLine = 0;  ///< of kFile: where a list's lines end, if not in `line`
  std::string note;  ///< of kRepair: the condition

  /// "default", "derived" (from other members, or set by the host), "line 12", "lines 12-15", "cover.vecmp line 3" or
  /// "repair: material type 1".
  std::string text() const;
};

/// One member. Texts stand in quotation marks, arrays as "[0.2, 0.5]" (their used entries), a null one as "none".
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

/// The settings of the blocks, in the order of declaration. `provenance` may be null: then every origin is the default.
std::vector<BlockSettings> settingsOf(const std::vector<BlockView>& blocks, const Provenance* provenance);

/// A member's value, exactly: doubles with as many digits as it takes to read them back unchanged.
std::string valueOf(const Row& row, void* block);

/// Every value of every block on a line of its own: two sets are equal when these texts are.
std::string fingerprint(const std::vector<BlockView>& blocks);

}  // namespace zeb
