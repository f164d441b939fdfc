// Keys match anywhere in a line of their section, comments included, so descriptions stand in front of the opening,
// without brackets. Whether a line may be written is not reasoned about: the reader tries it on a fresh block.
#include "inspect/catalogue/Template.hpp"

#include <algorithm>
#include <cmath>
#include <memory>
#include <sstream>

#include "cmx/CZEBCMXInternalTool.hpp"
#include "engine/SectionEngine.hpp"
#include "frame/CMPReader.hpp"
#include "frame/MoldingTypes.hpp"
#include "frame/Repairs.hpp"
#include "inspect/catalogue/Catalogue.hpp"
#include "inspect/set/Analysis.hpp"
#include "inspect/set/OutputCapture.hpp"
#include "inspect/set/Values.hpp"
#include "inspect/trace/LineTrace.hpp"

namespace zeb {

namespace {

struct Part {
  const BlockTable* table;
  const Section* section;
};

std::vector<Part> partsOf(bool cmx) {
  std::vector<Part> parts;
  const auto add = [&](const BlockTable& table, const Section* section) {
    for (const Section& own : table.sections) {
      if (&own == section) parts.push_back({&table, section});
    }
  };
  if (cmx) {
    for (const BlockTable* table : CZEBCMXInternalTool::tables()) parts.push_back({table, &table->sections.front()});
    return parts;
  }
  const auto tool = moldingTypes().front().create();
  for (const DispatchEntry& entry : cmpSections(*tool)) {
    for (const BlockEntry& block : allBlocks()) add(block.table(), entry.section);
  }
  return parts;
}

bool isHead(const Section& section) { return section.headVersion != 0; }

bool isNamed(const Part& part, const std::string& name) {
  return equalWithoutCase(part.section->name, name) || equalWithoutCase(part.section->open, name) ||
         equalWithoutCase(blockName(part.table->className), name) || equalWithoutCase(part.table->className, name);
}

// A block for trying lines out.
class Trial {
 public:
  explicit Trial(const BlockTable& table) : m_table(table), m_block(table.create()) {}
  Trial(const Trial&) = delete;
  Trial& operator=(const Trial&) = delete;
  ~Trial() { m_table.destroy(m_block); }
  void* block() const { return m_block; }

 private:
  const BlockTable& m_table;
  void* m_block;
};

// Stands for whatever comes next in the section: no list may take it.
constexpr std::string_view kNextLine = "following line";

struct TrialWatch final : TraceReader {
  bool tookNextLine = false;
  bool isGated = false;
  std::vector<const Row*> entries;  // members that have lines of their own in a list
  void line(const ReadLine& line) override {
    tookNextLine = tookNextLine || (line.part == ReadLine::Part::kEntry && line.text == kNextLine);
    for (const Hit& hit : line.hits) {
      isGated = isGated || hit.outcome == KeyOutcome::kGated;
      if (hit.key.empty()) entries.push_back(hit.row);
    }
  }
};

// Reads the lines into the block as lines of the part's section.
TrialWatch readInto(const Trial& trial, const Part& part, const std::string& lines) {
  std::istringstream text(lines + "\n" + std::string(part.section->close) + "\n");
  const LineSource source{};
  TrialWatch watch;
  LineTrace trace(watch);
  LineReader reader(text, source, &trace);
  trace.sectionOpened(*part.section, trial.block(), 0, {});
  readSection(*part.section, trial.block(), reader);
  trace.finish();
  return watch;
}

enum class Effect { kKeepsDefaults, kIgnored, kChanges };

// What becomes of the section's defaults when the rows' key stands in it with this line. Other members that the line
// sets have keys that are part of this one; their own lines follow it.
Effect effectOf(const Part& part, const std::vector<const Row*>& rows, const std::string& line) {
  const Trial before(*part.table), after(*part.table);
  const TrialWatch watch = readInto(after, part, line + "\n" + std::string(kNextLine));
  const auto kept = [&](const Row& row) { return valueOf(row, before.block()) == valueOf(row, after.block()); };
  for (const Row* row : rows) {
    if (!kept(*row)) return Effect::kChanges;
    for (const Row& other : part.section->rows) {
      if (fills(*row, other) && !kept(other)) return Effect::kChanges;
    }
  }
  if (watch.tookNextLine) return Effect::kChanges;
  return watch.isGated ? Effect::kIgnored : Effect::kKeepsDefaults;
}

// The texts that the rule may turn into the member's value, the likeliest first.
std::vector<std::string> textsFor(const Row& row, FieldType type, void* block) {
  std::vector<double> numbers;
  const bool isInt = row.field.type == FieldType::kInt;
  if (!isInt && row.field.type != FieldType::kDouble) return {};
  const double value = isInt ? row.field.in<int>(block) : row.field.in<double>(block);
  const double plain = value / row.rule.scale;
  numbers.push_back(plain);
  // Scaling rounds: one of the neighbours may hit the value where the quotient does not.
  numbers.push_back(std::nextafter(plain, -INFINITY));
  numbers.push_back(std::nextafter(plain, INFINITY));
  for (const Replacement& replacement : row.rule.replace) {
    if (replacement.value == value) numbers.push_back(replacement.limit);
  }
  std::vector<std::string> texts;
  for (const double number : numbers) {
    if (row.rule.apply(number) != value) continue;
    const bool asInt = type == FieldType::kInt || row.lookup == Lookup::kInt;
    if (asInt && number != std::trunc(number)) continue;
    texts.push_back(asInt ? std::to_string(static_cast<long>(number)) : exact(number));
  }
  return texts;
}

std::string textOf(const Row& row, void* block) {
  if (row.field.type != FieldType::kText) return {};
  const char* text = static_cast<const OwnedText*>(row.field.locate(block))->get();
  return text == nullptr ? "" : text;
}

struct KeyLine {
  std::string_view key;
  std::vector<const Row*> rows;
  std::string line;        // empty: nothing that can be written stands for the default
  bool isIgnored = false;  // while the section's gate is at its default
  std::string repaired;    // what the molding type's repairs make of the default; empty: they leave it
  bool isWritten() const { return !line.empty() && !isIgnored && repaired.empty(); }
};

// What the repairs of a molding type make of the defaults.
class RepairedDefaults {
 public:
  explicit RepairedDefaults(int molding) : m_set(analyse({}, {.molding = molding}, nullptr, nullptr)) {}
  /// Empty where the default stays.
  std::string of(const Part& part, const Row& row) const {
    const Trial defaults(*part.table);
    for (const BlockView& view : blocksOf(*m_set)) {
      if (view.table != part.table) continue;
      std::string value = valueOf(row, view.block);
      if (value != valueOf(row, defaults.block())) return value;
    }
    return {};
  }

 private:
  std::unique_ptr<CZEBKNCMPCompParm> m_set;
};

std::vector<std::string> candidates(const Row& row, void* block) {
  if (row.lookup == Lookup::kPresence) return {};
  if (row.isElement()) return {"0"};
  if (const std::string text = textOf(row, block); !text.empty()) return {text};
  return textsFor(row, row.field.type, block);
}

// The lines of the members that the list behind the line sets, at their defaults.
std::string entriesBehind(const Part& part, const std::string& line) {
  const Trial defaults(*part.table), trial(*part.table);
  std::string ones;  // as many as any list of the section can take
  for (std::size_t i = 0; i < part.section->rows.size(); ++i) ones += "\nentry = 1";
  std::string lines;
  for (const Row* entry : readInto(trial, part, line + ones).entries) {
    lines += "\n" + std::string(entry->field.member) + " = " + valueOf(*entry, defaults.block());
  }
  return lines;
}

std::vector<KeyLine> keyLines(const Part& part, const RepairedDefaults* repaired) {
  const Trial defaults(*part.table);
  std::vector<KeyLine> lines;
  for (const Row& row : part.section->rows) {
    if (row.key.empty()) continue;
    const auto same =
        std::find_if(lines.begin(), lines.end(), [&](const KeyLine& line) { return line.key == row.key; });
    if (same != lines.end()) {
      same->rows.push_back(&row);
    } else {
      lines.push_back({row.key, {&row}, {}, false, {}});
    }
  }
  for (KeyLine& line : lines) {
    for (const std::string& text : candidates(*line.rows.front(), defaults.block())) {
      std::string tried = std::string(line.key) + " = " + text;
      if (line.rows.front()->opensList()) tried += entriesBehind(part, tried);
      const Effect effect = effectOf(part, line.rows, tried);
      if (effect == Effect::kChanges) continue;
      line.line = tried;
      line.isIgnored = effect == Effect::kIgnored;
      break;
    }
    if (repaired != nullptr) line.repaired = repaired->of(part, *line.rows.front());
  }
  return lines;
}

bool sets(const KeyLine& line, const KeyLine& other) {
  if (&line == &other) return false;
  const auto stands = [&](std::string_view key) { return !key.empty() && line.key.find(key) != line.key.npos; };
  return stands(other.key) || stands(other.rows.front()->otherKey);
}

// A key that is part of a longer one is set by the longer one's line too: its own line must follow.
std::vector<const KeyLine*> writingOrder(const std::vector<KeyLine>& lines) {
  std::vector<const KeyLine*> waiting, order;
  for (const KeyLine& line : lines) waiting.push_back(&line);
  while (!waiting.empty()) {
    const auto next = std::find_if(waiting.begin(), waiting.end(), [&](const KeyLine* candidate) {
      return std::none_of(waiting.begin(), waiting.end(),
                          [&](const KeyLine* other) { return sets(*other, *candidate); });
    });
    order.push_back(*next);
    waiting.erase(next);
  }
  return order;
}

// No bracket may stand in a comment: a line that holds an opening anywhere opens the section.
std::string withoutBrackets(std::string text) {
  const auto replace = [&](std::string_view from, std::string_view to) {
    for (auto at = text.find(from); at != text.npos; at = text.find(from, at + to.size())) {
      text.replace(at, from.size(), to);
    }
  };
  replace("[", "(");
  replace("]", ")");
  replace("<=", "at most");
  replace(">=", "at least");
  replace("<", "below ");
  replace(">", "above ");
  replace("=", "is");
  return text;
}

// A comment of lines that a parallel run does not cut, and that fit a screen.
std::string comment(const std::string& text) {
  constexpr std::size_t kWidth = 100;
  std::string lines, line = "#  ";
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    if (line.size() + 1 + word.size() > kWidth) {
      lines += line + "\n";
      line = "#      ";
    }
    line += " " + word;
  }
  return lines + line + "\n";
}

std::string description(const Part& part, const Row& row, std::string_view name, const std::string& note) {
  const Trial defaults(*part.table);
  std::string text(name);
  if (!row.otherKey.empty()) text += " or " + std::string(row.otherKey);
  text += " (" + typeText(row) + ", default " + valueOf(row, defaults.block());
  if (!row.unit.empty()) text += " " + std::string(row.unit);
  text += "): " + describe(row);
  const std::string rules = joined(ruleTexts(*part.section, row));
  if (!rules.empty()) text += " Rules: " + rules + ".";
  return comment(withoutBrackets(text + note));
}

std::string repairComments(const Part& part, const TemplateOptions& options) {
  std::string text;
  const auto add = [&](std::span<const RepairStep> steps) {
    for (const RepairStep& step : steps) {
      for (const Repair& repair : step.repairs) {
        for (const Row& row : part.section->rows) {
          const bool same = &repair.block.table() == part.table && row.field.member == repair.field.member;
          if (!same || row.key.empty()) continue;
          Row changed;
          changed.rule = repair.rule;
          text +=
              comment(withoutBrackets("Changed after reading: " + std::string(row.key) + " (" +
                                      std::string(step.condition) + "): " + joined(ruleTexts(*part.section, changed))));
        }
      }
    }
  };
  if (options.molding) add(moldingRepairs(*options.molding));
  if (!options.cmx) add(commonRepairs());
  return text;
}

std::string noteOf(const KeyLine& line) {
  if (line.line.empty()) return " Not written below: no line stands for the default.";
  if (line.repaired.empty()) return {};
  return " Not written below: with this molding type it becomes " + line.repaired + " after reading.";
}

// The lines that the gate, at its default, keeps shut: as comments, to be moved below an open gate.
std::string gatedComment(const Section& section, const std::vector<const KeyLine*>& lines) {
  std::string text;
  for (const KeyLine* line : lines) {
    if (line->isIgnored && line->repaired.empty()) text += "#     " + line->line + "\n";
  }
  if (text.empty()) return {};
  const Row& gate = section.gateRow();
  return comment("To be written below " + std::string(gate.key) + " once that is " + std::to_string(gate.gateBelow) +
                 " or more:") +
         text;
}

std::string keyedPart(const Part& part, const RepairedDefaults* repaired) {
  const std::vector<KeyLine> lines = keyLines(part, repaired);
  std::string comments, body;
  for (const KeyLine& line : lines) {
    for (const Row* row : line.rows) comments += description(part, *row, line.key, noteOf(line));
  }
  const std::vector<const KeyLine*> order = writingOrder(lines);
  for (const KeyLine* line : order) {
    if (line->isWritten()) body += line->line + "\n";
  }
  return comments + gatedComment(*part.section, order) + std::string(part.section->open) + "\n" + body +
         std::string(part.section->close) + "\n";
}

std::string fieldText(const Slot& slot, void* block) {
  if (slot.row == nullptr) return "0";
  const std::vector<std::string> texts = textsFor(*slot.row, slot.type, block);
  return texts.empty() ? "0" : texts.front();
}

std::string positionalPart(const Part& part) {
  const Section& section = *part.section;
  const Trial defaults(*part.table);
  std::string comments, body;
  for (int line = 1; line <= section.positional.lines; ++line) {
    std::string fields, names;
    for (const Slot& slot : section.positional.slots) {
      if (slot.at.line != line) continue;
      fields += (fields.empty() ? "" : " ") + fieldText(slot, defaults.block());
      const std::string place = "line " + std::to_string(line) + " field " + std::to_string(slot.at.field);
      if (slot.row == nullptr) {
        comments += comment(place + ": not used");
      } else {
        comments += description(part, *slot.row, place + " " + std::string(slot.row->field.member), "");
      }
    }
    body += (fields.empty() ? "# this line is counted and not used" : fields) + "\n";
  }
  if (isHead(section)) {
    return comments + std::string(section.open) + " " + std::to_string(section.headVersion) + "\n" + body;
  }
  return comments + std::string(section.open) + "\n" + body + std::string(section.close) + "\n";
}

std::string partText(const Part& part, const TemplateOptions& options, const RepairedDefaults* repaired) {
  std::string text = "# " + (isHead(*part.section) ? "Fixed-line head" : std::string(part.section->name)) + " (" +
                     blockName(part.table->className) + ")\n";
  text += repairComments(part, options);
  return text + (part.section->isPositional() ? positionalPart(part) : keyedPart(part, repaired));
}

}  // namespace

std::vector<std::string> templateSections(bool cmx) {
  std::vector<std::string> names;
  for (const Part& part : partsOf(cmx)) {
    names.emplace_back(part.section->name);
    names.push_back(blockName(part.table->className));
  }
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
  return names;
}

std::string unknownTemplateSection(const TemplateOptions& options) {
  const std::vector<Part> parts = partsOf(options.cmx);
  for (const std::string& name : options.sections) {
    if (std::none_of(parts.begin(), parts.end(), [&](const Part& part) { return isNamed(part, name); })) return name;
  }
  return {};
}

std::string templateText(const TemplateOptions& options) {
  const OutputCapture discarded;
  std::string text = options.cmx ? "# CMX file with all defaults.\n" : "# CMP file with all defaults.\n";
  std::unique_ptr<RepairedDefaults> repaired;
  if (options.molding) {
    repaired = std::make_unique<RepairedDefaults>(*options.molding);
    text += "# Molding type " + std::string(moldingTypes()[static_cast<std::size_t>(*options.molding)].name) + ".\n";
  }
  text +=
      "# Text between the sections is ignored. Inside a section keys match anywhere in a line:\n"
      "# write no comments there.\n";
  for (const Part& part : partsOf(options.cmx)) {
    const bool wanted =
        options.sections.empty() || std::any_of(options.sections.begin(), options.sections.end(),
                                                [&](const std::string& name) { return isNamed(part, name); });
    if (wanted) text += "\n" + partText(part, options, repaired.get());
  }
  return text;
}

}  // namespace zeb
