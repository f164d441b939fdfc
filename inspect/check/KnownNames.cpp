#include "inspect/check/KnownNames.hpp"

#include <algorithm>

#include "cmx/CZEBCMXInternalTool.hpp"
#include "frame/CZEBCMPInternalTool.hpp"
#include "inspect/catalogue/NearestNames.hpp"
#include "inspect/set/Inspection.hpp"
#include "stdcmp/StdParameters.hpp"

namespace zeb {

namespace {

std::vector<const BlockTable*> cmpTables() {
  std::vector<const BlockTable*> tables;
  for (const BlockEntry& block : allBlocks()) {
    const BlockTable& table = block.table();
    // The viscoelastic block is not in this file.
    if (&table != &zeb::tableOf<CZEBCMPVEParm>()) tables.push_back(&table);
  }
  return tables;
}

bool isNumber(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

KnownNames::KnownNames(char bracket, std::span<const BlockTable* const> tables) : m_bracket(bracket) {
  for (const BlockTable* table : tables) {
    for (const Section& section : table->sections) {
      if (section.open.empty() ? section.isPositional() : section.open.starts_with(bracket)) {
        m_sections.push_back({&section, table});
      }
    }
  }
}

const KnownNames& KnownNames::of(FileKind kind) {
  static const KnownNames kCmp('[', cmpTables());
  static const KnownNames kCmx('<', CZEBCMXInternalTool::tables());
  static const KnownNames kStd('[', StdParameters::tables());
  return kind == FileKind::kCmp ? kCmp : kind == FileKind::kCmx ? kCmx : kStd;
}

const KnownNames& KnownNames::ofOtherSolver(FileKind kind) {
  if (kind == FileKind::kCmx) return of(kind);
  return of(kind == FileKind::kCmp ? FileKind::kStd : FileKind::kCmp);
}

const KnownNames& KnownNames::ofViscoelasticFile() {
  static const BlockTable* const kTables[] = {&zeb::tableOf<CZEBCMPVEParm>()};
  static const KnownNames kNames('<', kTables);
  return kNames;
}

bool KnownNames::isHeadVersion(int version) {
  const auto isOf = [&](const KnownNames& names) {
    return std::any_of(names.m_sections.begin(), names.m_sections.end(), [&](const Known& known) {
      return known.section->headVersion != 0 && known.section->headVersion == version;
    });
  };
  return isOf(of(FileKind::kCmp)) || isOf(of(FileKind::kStd));
}

const Section* KnownNames::sectionNamed(std::string_view name) const {
  const auto found = std::find_if(m_sections.begin(), m_sections.end(), [&](const Known& known) {
    return known.section->name == name && !known.section->open.empty();
  });
  return found == m_sections.end() ? nullptr : found->section;
}

const BlockTable* KnownNames::tableOf(const Section& section) const {
  const auto found =
      std::find_if(m_sections.begin(), m_sections.end(), [&](const Known& known) { return known.section == &section; });
  return found == m_sections.end() ? nullptr : found->table;
}

std::string KnownNames::sectionsWithKey(std::string_view name) const {
  std::string text;
  for (const Known& known : m_sections) {
    if (hasKey(*known.section, name) || (isListWord(*known.section, name) && !isNumber(name))) {
      text += (text.empty() ? "" : ", ") + std::string(known.section->open);
    }
  }
  return text;
}

bool KnownNames::isPresenceKey(std::string_view name) const {
  return std::any_of(m_sections.begin(), m_sections.end(), [&](const Known& known) {
    const auto rows = known.section->rows;
    return std::any_of(rows.begin(), rows.end(),
                       [&](const Row& row) { return row.lookup == Lookup::kPresence && row.key == name; });
  });
}

std::vector<std::string_view> KnownNames::nearSections(std::string_view name) const {
  std::vector<std::string_view> names;
  for (const Known& known : m_sections) {
    if (!known.section->open.empty()) names.push_back(known.section->name);
  }
  return nearestOf(name, names, 2);
}

bool hasKey(const Section& section, std::string_view name) {
  return std::find(section.filter.keys.begin(), section.filter.keys.end(), name) != section.filter.keys.end();
}

bool isListWord(const Section& section, std::string_view name) {
  return !name.empty() && std::any_of(section.rows.begin(), section.rows.end(), [&](const Row& row) {
    return name == row.list.countName || name == row.list.entryName ||
           (row.list.entry == Entry::kNumbered && isNumber(name));
  });
}

std::vector<std::string_view> nearKeys(const Section& section, std::string_view name) {
  return nearestOf(name, {section.filter.keys.begin(), section.filter.keys.end()});
}

std::string orList(const std::vector<std::string_view>& names) {
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) text += i + 1 == names.size() ? " or " : ", ";
    text += names[i];
  }
  return text;
}

}  // namespace zeb
