#include "inspect/check/CheckNames.hpp"

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

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlank = " \t\r\v\f";
  const auto first = text.find_first_not_of(kBlank);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlank) - first + 1);
}

bool isComment(std::string_view line) {
  line = trimmed(line);
  return line.starts_with('#') || line.starts_with(';') || line.starts_with('*') || line.starts_with("//");
}

std::string_view nameOf(std::string_view line) {
  const auto equals = line.find('=');
  const std::string_view name = trimmed(line.substr(0, equals));
  return equals != line.npos ? name : name.substr(0, name.find_first_of(" \t"));
}

Tag tagOf(std::string_view line, char bracket) {
  line = trimmed(line);
  if (!line.starts_with(bracket)) return {};
  Tag tag;
  const auto end = line.find(bracket == '<' ? '>' : ']');
  tag.whole = end != line.npos;
  // Without its end only a single word passes for a tag.
  if (!tag.whole && line.find_first_of(" \t=") != line.npos) return {};
  tag.text = tag.whole ? line.substr(0, end + 1) : line;
  tag.name = line.substr(1, tag.whole ? end - 1 : line.npos);
  tag.closes = tag.name.starts_with('/');
  if (tag.closes) tag.name.remove_prefix(1);
  return tag;
}

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
    return name == row.lines.countName || name == row.lines.entryName || (row.lines.numbered && isNumber(name));
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
