// The names that a file may hold, and which of them somebody may have meant.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engine/ParameterTable.hpp"
#include "inspect/set/ParameterFile.hpp"
#include "inspect/trace/LineText.hpp"

namespace zeb {

/// The sections that one reader knows.
class KnownNames {
 public:
  static const KnownNames& of(FileKind kind);
  /// The other one of the two readers that take their values from the same file; for a CMX file itself.
  static const KnownNames& ofOtherSolver(FileKind kind);
  /// The tag blocks of the viscoelastic file.
  static const KnownNames& ofViscoelasticFile();

  /// Whether a head of any CMP reader stands behind "[VER]" and this number.
  static bool isHeadVersion(int version);

  /// '[' or '<'
  char bracket() const { return m_bracket; }
  /// Null when there is none of this name.
  const Section* sectionNamed(std::string_view name) const;
  /// The block that the section belongs to; null for a section of another format.
  const BlockTable* tableOf(const Section& section) const;
  /// Opening tags of the sections that have this very key, or such lines in a list, separated by commas.
  std::string sectionsWithKey(std::string_view name) const;
  /// Whether the bare word sets something in one of the sections.
  bool isPresenceKey(std::string_view name) const;
  /// At most two section names close to the name, nearest first.
  std::vector<std::string_view> nearSections(std::string_view name) const;

 private:
  KnownNames(char bracket, std::span<const BlockTable* const> tables);

  struct Known {
    const Section* section;
    const BlockTable* table;
  };
  std::vector<Known> m_sections;  // those with an opening, and the heads that have none
  char m_bracket;
};

bool hasKey(const Section& section, std::string_view name);
/// What stands before the '=' in the lines of one of the section's lists.
bool isListWord(const Section& section, std::string_view name);
/// At most three of the section's keys that are close to the name, nearest first.
std::vector<std::string_view> nearKeys(const Section& section, std::string_view name);

/// "A, B or C"
std::string orList(const std::vector<std::string_view>& names);

}  // namespace zeb
