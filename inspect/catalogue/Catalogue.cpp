#include "inspect/catalogue/Catalogue.hpp"

#include <algorithm>
#include <cctype>

#include "cmx/CZEBCMXInternalTool.hpp"
#include "inspect/catalogue/NearestNames.hpp"
#include "inspect/set/Inspection.hpp"
#include "inspect/set/Values.hpp"
#include "stdcmp/StdParameters.hpp"

namespace zeb {

namespace {

std::string lower(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return result;
}

void addTable(std::vector<CatalogueEntry>& entries, std::string_view format, const BlockTable& table,
              const std::string& block) {
  void* defaults = table.create();
  for (const Section& section : table.sections) {
    for (const Row& row : section.rows) {
      entries.push_back({format, block, &table, &section, &row, valueOf(row, defaults)});
    }
  }
  table.destroy(defaults);
}

std::string replacementText(const Replacement& replacement) {
  const std::string limit = exact(replacement.limit), becomes = " becomes " + exact(replacement.value);
  switch (replacement.when) {
    case Replacement::When::kNever:
      break;
    case Replacement::When::kBelow:
      return "below " + limit + becomes;
    case Replacement::When::kAbove:
      return "above " + limit + becomes;
    case Replacement::When::kAtMost:
      return "at most " + limit + becomes;
    case Replacement::When::kNotAbove:
      return "not above " + limit + becomes;
    case Replacement::When::kEqual:
      return limit + becomes;
    case Replacement::When::kTruncatesTo0:
      return "between -1 and 1" + becomes;
    case Replacement::When::kAlways:
      return "always" + becomes;
  }
  return {};
}

std::string filledText(const Row& row) {
  std::string text;
  for (const std::string_view member : row.fills) text += " " + std::string(member);
  return row.list.array.member.empty() ? text : text + " " + std::string(row.list.array.member);
}

bool isGated(const Section& section, const Row& row) {
  if (section.gate < 0) return false;
  const auto gate = static_cast<std::size_t>(section.gate);
  for (std::size_t key = gate + 1; key < section.readingOrder.size(); ++key) {
    if (&section.rowOf(key) == &row) return true;
  }
  return false;
}

bool fits(std::string_view a, std::string_view b, bool withCase) { return withCase ? a == b : equalWithoutCase(a, b); }

// What stands in front of the value in the lines of a list that sets the row's member.
bool isCalledInList(const Section& section, const Row& row, std::string_view name, bool withCase) {
  const bool isEntry = row.field.isArray();
  return std::any_of(section.rows.begin(), section.rows.end(), [&](const Row& list) {
    return fills(list, row) && fits(isEntry ? list.list.entryName : list.list.countName, name, withCase);
  });
}

bool isCalled(const Section& section, const Row& row, std::string_view name, bool withCase) {
  if (name.empty()) return false;
  // A key may end with a blank, which nobody types.
  const std::string_view key = row.key.ends_with(' ') ? row.key.substr(0, row.key.size() - 1) : row.key;
  return fits(key, name, withCase) || isCalledInList(section, row, name, withCase) || fits(row.key, name, withCase) ||
         fits(row.otherKey, name, withCase) || fits(row.field.member, name, withCase) ||
         fits(row.field.getter, name, withCase);
}

bool isCalled(const CatalogueEntry& entry, std::string_view name, bool withCase) {
  if (isCalled(*entry.section, *entry.row, name, withCase)) return true;
  const auto dot = name.find('.');
  if (dot == name.npos) return false;
  const std::string_view owner = name.substr(0, dot);
  const bool owns = fits(entry.block, owner, withCase) || fits(entry.table->className, owner, withCase) ||
                    fits(entry.section->name, owner, withCase);
  return owns && isCalled(*entry.section, *entry.row, name.substr(dot + 1), withCase);
}

std::string searchText(const CatalogueEntry& entry) {
  std::string text;
  const std::string type = typeText(*entry.row), rules = joined(ruleTexts(entry)), meaning = describe(*entry.row);
  for (const std::string_view part :
       {entry.format, entry.sectionText(), std::string_view(entry.block), entry.table->className, entry.row->key,
        entry.row->otherKey, entry.row->field.member, entry.row->field.getter, std::string_view(type), entry.row->unit,
        std::string_view(rules), std::string_view(meaning)}) {
    text += lower(part) + '\n';
  }
  return text;
}

std::string cell(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (c == '|' || c == '<' || c == '*' || c == '_') result += '\\';
    result += c;
  }
  return result;
}

std::string code(std::string_view text) { return text.empty() ? "" : "`" + std::string(text) + "`"; }

std::string_view formatTitle(std::string_view format) {
  if (format == "STD") return "CMP files as the standard solver reads them";
  return format == "CMX" ? "CMX files" : "CMP files";
}

std::string keyCell(const Row& row) {
  if (!row.otherKey.empty()) return code(row.key) + " or " + code(row.otherKey);
  return row.key.empty() ? positionText(row) : code(row.key);
}

}  // namespace

std::string_view CatalogueEntry::sectionText() const { return section->open.empty() ? section->name : section->open; }

std::string CatalogueEntry::name() const { return block + "." + std::string(row->field.member); }

const std::vector<CatalogueEntry>& catalogue() {
  static const std::vector<CatalogueEntry> kEntries = [] {
    std::vector<CatalogueEntry> entries;
    for (const BlockEntry& block : allBlocks()) {
      addTable(entries, "CMP", block.table(), blockName(block.table().className));
    }
    const auto addNamedBySection = [&](std::string_view format, std::span<const BlockTable* const> tables) {
      for (const BlockTable* table : tables) {
        addTable(entries, format, *table, std::string(table->sections.front().name));
      }
    };
    addNamedBySection("CMX", CZEBCMXInternalTool::tables());
    addNamedBySection("STD", StdParameters::tables());
    return entries;
  }();
  return kEntries;
}

std::vector<const CatalogueEntry*> searchCatalogue(const std::vector<std::string>& words) {
  std::vector<const CatalogueEntry*> found;
  for (const CatalogueEntry& entry : catalogue()) {
    const std::string text = searchText(entry);
    const auto stands = [&](const std::string& word) { return text.find(lower(word)) != text.npos; };
    if (std::all_of(words.begin(), words.end(), stands)) found.push_back(&entry);
  }
  return found;
}

std::vector<const CatalogueEntry*> findEntries(std::string_view name, std::string_view format) {
  std::vector<const CatalogueEntry*> found;
  for (const bool withCase : {true, false}) {
    for (const CatalogueEntry& entry : catalogue()) {
      if (entry.format == format && isCalled(entry, name, withCase)) found.push_back(&entry);
    }
    if (!found.empty()) break;
  }
  return found;
}

std::vector<std::string> nearestNames(std::string_view name, std::string_view format, std::size_t most) {
  const auto dot = name.rfind('.');
  std::vector<std::string_view> candidates;
  for (const CatalogueEntry& entry : catalogue()) {
    if (entry.format != format) continue;
    for (const std::string_view candidate : {entry.row->key, entry.row->otherKey, entry.row->field.member}) {
      if (!candidate.empty()) candidates.push_back(candidate);
    }
  }
  const auto near = nearestOf(dot == name.npos ? name : name.substr(dot + 1), candidates, most);
  return {near.begin(), near.end()};
}

std::string typeText(const Row& row) {
  if (row.lookup == Lookup::kPresence) return "presence";
  if (row.isElement()) return "double";
  switch (row.field.type) {
    case FieldType::kInt:
      return "int";
    case FieldType::kDouble:
      return row.lookup == Lookup::kInt ? "double (read as int)" : "double";
    case FieldType::kBool:
      return "switch";
    case FieldType::kText:
      return row.lookup == Lookup::kWord ? "word" : "text";
    case FieldType::kInts:
      return "ints";
    case FieldType::kDoubles:
      return "doubles";
    case FieldType::kNone:
      break;
  }
  return {};
}

std::vector<std::string> ruleTexts(const CatalogueEntry& entry) { return ruleTexts(*entry.section, *entry.row); }

std::vector<std::string> ruleTexts(const Section& section, const Row& row) {
  std::vector<std::string> texts;
  if (row.rule.scale != 1.0) texts.push_back("times " + exact(row.rule.scale));
  for (const Replacement& replacement : row.rule.replace) {
    if (replacement.when == Replacement::When::kNever) continue;
    texts.push_back((&replacement == &row.rule.replace[0] ? "" : "otherwise, ") + replacementText(replacement));
  }
  if (row.textBuffer > 0) texts.push_back("cut to " + std::to_string(row.textBuffer - 1) + " characters");
  if (row.gateBelow != kNoGate) {
    texts.push_back("gate: below " + std::to_string(row.gateBelow) + " the section's gated keys are skipped");
  }
  if (isGated(section, row)) {
    const Row& gate = section.gateRow();
    texts.push_back("gated by " + std::string(gate.key));
  }
  if (row.count == Count::kYes) texts.push_back("count, 0 to " + std::to_string(kLargestCount));
  if (const std::string filled = filledText(row); !filled.empty()) texts.push_back("list: sets" + filled);
  if (!row.echo.label.empty()) texts.push_back("printed when stored");
  return texts;
}

std::string positionText(const Row& row) {
  std::string text;
  for (const Position at : row.at) {
    if (at.line == 0) continue;
    if (!text.empty()) text += ", then ";
    text += "line " + std::to_string(at.line) + ", field " + std::to_string(at.field);
  }
  return text;
}

std::string joined(const std::vector<std::string>& phrases) {
  std::string text;
  for (const std::string& phrase : phrases) text += (text.empty() ? "" : "; ") + phrase;
  return text;
}

std::string catalogueMarkdown() { return catalogueMarkdown(searchCatalogue({})); }

std::string catalogueMarkdown(const std::vector<const CatalogueEntry*>& entries) {
  std::string text =
      "# Parameters\n\n"
      "Written by `compparm list --format markdown`. Do not edit: a test compares it with the tables of the reader.\n\n"
      "Units and meanings that the solver defines are not told here. Defaults are values inside the program, after\n"
      "the rules (\"times 1e+07\") have been applied to what stands in a file.\n";
  std::string_view format;
  const Section* section = nullptr;
  for (const CatalogueEntry* entry : entries) {
    if (entry->format != format) {
      format = entry->format;
      text += "\n## " + std::string(formatTitle(format)) + "\n";
    }
    if (entry->section != section) {
      section = entry->section;
      const std::string_view name = entry->sectionText();
      text += "\n### " + (name.empty() ? "Without section" : code(name)) + " (" + entry->block + ")\n\n" +
              "| Key | Member | Type | Default | Unit | Rules | Description |\n|---|---|---|---|---|---|---|\n";
    }
    const Row& row = *entry->row;
    text += "| " + keyCell(row) + " | " + code(row.field.member) + " | " + typeText(row) + " | " +
            cell(entry->defaultValue) + " | " + cell(row.unit) + " | " + cell(joined(ruleTexts(*entry))) + " | " +
            cell(describe(row)) + " |\n";
  }
  return text;
}

}  // namespace zeb
