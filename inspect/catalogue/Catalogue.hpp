// Everything that can stand in a parameter file, as the readers' own tables know it: sections, keys, members, rules.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/ParameterTable.hpp"

namespace zeb {

/// One row of one section: a key with its member, a field of a positional line, or a member that no key sets.
struct CatalogueEntry {
  std::string_view format;  ///< "CMP", "CMX", or "STD" for a CMP file as the standard solver reads it
  std::string block;        ///< "General", "SOLID_FILL": the name under which blocksOf() lists it
  const BlockTable* table;
  const Section* section;
  const Row* row;
  std::string defaultValue;  ///< as valueOf() writes it

  /// "[Outlet]", "<SOLID_FILL>"; the section's name where no line opens it.
  std::string_view sectionText() const;
  /// "Outlet.m_dAirPressure"
  std::string name() const;
};

/// All entries: the blocks of a CMP file in the order of their construction, then those of a CMX file and of the
/// standard solver in the order in which their readers look for them; rows in the order of declaration. Built once.
const std::vector<CatalogueEntry>& catalogue();

/// The entries that contain every word (in section, block, class, key, member, getter, type, unit, rules or
/// description); case does not matter.
std::vector<const CatalogueEntry*> searchCatalogue(const std::vector<std::string>& words);

/// The entries that carry the name: a key, member or getter, alone or behind a block, class or section ("BiIM.Debug").
/// Where the name fits with its case, entries that fit only without it are left out. `format` as in the entry.
std::vector<const CatalogueEntry*> findEntries(std::string_view name, std::string_view format);

/// Keys and members whose spelling is nearest to the name, the nearest first; at most `most`, none that is far off.
std::vector<std::string> nearestNames(std::string_view name, std::string_view format, std::size_t most = 3);

/// "int", "double", "switch", "text", "ints", "doubles"; "presence" for a key whose mere presence is the value and
/// "double (read as int)" where the reader takes an integer.
std::string typeText(const Row& row);
/// What the reader does with the value of a row, each rule one phrase: "times 1e+07", "below 0 becomes 0".
std::vector<std::string> ruleTexts(const CatalogueEntry& entry);
std::vector<std::string> ruleTexts(const Section& section, const Row& row);
/// "line 5, field 3"; empty for a row without a place in a positional section.
std::string positionText(const Row& row);
/// The phrases in one line, separated by "; ".
std::string joined(const std::vector<std::string>& phrases);

/// The whole catalogue, or the given entries of it, as a Markdown manual with one table per section.
std::string catalogueMarkdown();
std::string catalogueMarkdown(const std::vector<const CatalogueEntry*>& entries);

}  // namespace zeb
