// From a line to members: find the section's keys, parse the value text once for each, apply the row's rule, store,
// echo.
#include "engine/SectionEngine.hpp"

#include "engine/ReadObserver.hpp"
#include "engine/TextOutput.hpp"

namespace zeb {

namespace {

struct Found {
  const Section& section;
  const Row& row;
  std::string_view key;
  void* block;
  LineReader& lines;
};

template <class Type>
Type& member(const Found& found) {
  return *static_cast<Type*>(found.row.field.locate(found.block));
}

void report(const Found& found, std::string_view line, std::string_view value, std::size_t used, KeyOutcome outcome) {
  if (found.lines.observer() == nullptr) [[likely]] {
    return;
  }
  found.lines.observer()->keyFound({found.section, found.row, found.block, found.key, line, value, value.substr(used),
                                    found.lines.lineNumber(), outcome});
}

bool isValidCount(int count) { return count >= 0 && count <= kLargestCount; }

void sayCountIsRefused(const Section& section, std::string_view key, int count, const LineReader& lines) {
  if (!lines.source().reads()) return;
  writeOut(std::string(section.open) + " " + std::string(key) + " = " + std::to_string(count) +
           " is no valid count (0 to " + std::to_string(kLargestCount) + "); 0 is used\n");
}

void storeText(const Found& found, std::string_view text) {
  const std::size_t size = found.row.textBuffer;
  if (size > 0) text = text.substr(0, size - 1);
  member<OwnedText>(found).assign(text.data(), text.size(), size);
}

KeyOutcome storeNumber(const Found& found, double value) {
  const Row& row = found.row;
  if (!row.rule.none()) value = row.rule.apply(value);
  if (row.store != nullptr) return row.store(found.block, value) ? KeyOutcome::kStored : KeyOutcome::kNotStored;
  member<double>(found) = value;
  return KeyOutcome::kStored;
}

KeyOutcome storeInt(const Found& found, int value) {
  const Row& row = found.row;
  if (row.count && !isValidCount(value)) {
    sayCountIsRefused(found.section, found.key, value, found.lines);
    releaseLists(found.section, row, found.block);
    member<int>(found) = 0;
    return KeyOutcome::kRefused;
  }
  member<int>(found) = row.rule.none() ? value : static_cast<int>(row.rule.apply(value));
  return KeyOutcome::kStored;
}

struct Stored {
  std::size_t used = 0;
  KeyOutcome outcome = KeyOutcome::kUnparsed;
};

Stored parseAndStore(const Found& found, std::string_view value) {
  const Row& row = found.row;
  Stored result;
  if (row.lookup == Lookup::kPresence) {
    if (row.field.type == FieldType::kBool) {
      member<bool>(found) = true;
    } else {
      member<int>(found) = 1;
    }
    return {value.size(), KeyOutcome::kStored};
  }
  if (row.field.type == FieldType::kText) {
    std::string_view text = value;
    result.used = row.lookup == Lookup::kWord ? extractWord(value, text) : value.size();
    if (row.lookup == Lookup::kWord && result.used == 0) return result;
    storeText(found, text);
    result.outcome = KeyOutcome::kStored;
  } else if (row.field.type == FieldType::kInt || row.lookup == Lookup::kInt) {
    int number = 0;
    result.used = extractInt(value, number);
    if (result.used == 0) return result;
    result.outcome = row.field.type == FieldType::kInt ? storeInt(found, number) : storeNumber(found, number);
  } else {
    double number = 0.0;
    result.used = extractDouble(value, number);
    if (result.used == 0) return result;
    result.outcome = storeNumber(found, number);
  }
  return result;
}

void echo(const Found& found) {
  const Echo& echo = found.row.echo;
  std::string text(echo.label);
  if (found.row.field.type == FieldType::kInt) {
    text += std::to_string(member<int>(found));
  } else {
    const double value = member<double>(found);
    text += echo.format == Echo::Format::kFixed ? formatFixed(value) : formatGeneral(value);
  }
  writeOut(text += echo.tail);
}

bool isGateClosed(const Section& section, void* block) {
  const Row& row = section.rows[section.readingOrder[static_cast<std::size_t>(section.gate)]];
  return *static_cast<const int*>(row.field.locate(block)) < row.gateBelow;
}

// The filter finds both spellings of a key; the second counts only where the first is absent. As the value text does
// not depend on the key, it would store the same value again.
bool repeatsFirstSpelling(const Found& found, std::string_view line) {
  return found.key == found.row.otherKey && line.find(found.row.key) != line.npos;
}

}  // namespace

bool fills(const Row& announcing, const Row& row) {
  const std::string_view names = announcing.fills, name = row.field.member;
  for (auto at = names.find(name); at != names.npos; at = names.find(name, at + 1)) {
    const bool starts = at == 0 || names[at - 1] == ' ';
    const auto end = at + name.size();
    if (starts && (end == names.size() || names[end] == ' ')) return true;
  }
  return false;
}

double Rule::apply(double value) const {
  value *= scale;
  for (const Replacement& replacement : replace) {
    bool fits = false;
    switch (replacement.when) {
      case Replacement::When::kNever:
        break;
      case Replacement::When::kBelow:
        fits = value < replacement.limit;
        break;
      case Replacement::When::kAbove:
        fits = value > replacement.limit;
        break;
      case Replacement::When::kAtMost:
        fits = value <= replacement.limit;
        break;
      case Replacement::When::kNotAbove:
        fits = !(value > replacement.limit);
        break;
      case Replacement::When::kEqual:
        fits = value == replacement.limit;
        break;
      case Replacement::When::kTruncatesTo0:
        fits = value > -1.0 && value < 1.0;
        break;
      case Replacement::When::kAlways:
        fits = true;
        break;
    }
    if (fits) return replacement.value;
  }
  return value;
}

bool isClosedBy(const Section& section, std::string_view line) { return line.find(section.close) != line.npos; }

bool nextLineOfList(ListContext& context, std::string& line) { return context.lines.nextOrEmpty(line); }

void reportLineOfList(const ListContext& context, std::string_view line, bool used) {
  if (context.lines.observer() == nullptr) [[likely]] {
    return;
  }
  context.lines.observer()->lineOfList(context.section, context.lines.lineNumber(), line, used);
}

void reportMemberOfList(const ListContext& context, const void* member, std::string_view line, std::string_view value) {
  if (context.lines.observer() == nullptr) [[likely]] {
    return;
  }
  for (const Row& row : context.section.rows) {
    if (row.field.locate(context.block) != member) continue;
    context.lines.observer()->keyFound(
        {context.section, row, context.block, {}, line, value, {}, context.lines.lineNumber(), KeyOutcome::kStored});
  }
}

void releaseLists(const Section& section, const Row& announcing, void* block) {
  for (const Row& row : section.rows) {
    if (!fills(announcing, row)) continue;
    if (row.field.type == FieldType::kInts) static_cast<SharedArray<int>*>(row.field.locate(block))->release();
    if (row.field.type == FieldType::kDoubles) static_cast<SharedArray<double>*>(row.field.locate(block))->release();
  }
}

void refuseCount(const ListContext& context, std::string_view key, int count) {
  sayCountIsRefused(context.section, key, count, context.lines);
  releaseLists(context.section, context.row, context.block);
}

namespace {

void storePlainNumber(const PlainNumber& plain, void* block, std::string_view value) {
  if (plain.type == FieldType::kInt) {
    extractInt(value, *static_cast<int*>(plain.locate(block)));
  } else {
    extractDouble(value, *static_cast<double*>(plain.locate(block)));
  }
}

// All that a key does: value, echo, list.
ListResult readKey(const Found& found, std::string& line, std::string_view value) {
  if (repeatsFirstSpelling(found, line)) return ListResult::kSameLine;
  const Stored stored = parseAndStore(found, value);
  report(found, line, value, stored.used, stored.outcome);
  if (stored.outcome != KeyOutcome::kStored) return ListResult::kSameLine;
  if (!found.row.echo.label.empty()) echo(found);
  if (found.row.list == nullptr) return ListResult::kSameLine;
  ListContext context{found.section, found.row, found.block, found.lines, line};
  return found.row.list(context);
}

// Reads the keys that stand in the line, in the section's order. False when a list met the section's end.
bool readKeys(const Section& section, void* block, LineReader& lines, std::string& line, KeySet keys) {
  const bool observed = lines.observer() != nullptr;
  if (keys.empty()) {
    if (observed) lines.observer()->lineWithoutKey(section, lines.lineNumber(), line);
    return true;
  }
  std::string_view value = valueText(line);
  while (!keys.empty()) {
    const std::size_t number = keys.popFirst();
    const PlainNumber& plain = section.plainNumbers[number];
    if (plain.type != FieldType::kNone && !observed) {
      storePlainNumber(plain, block, value);
      continue;
    }
    const Found found{section, section.rows[section.readingOrder[number]], section.filter.keys[number], block, lines};
    if (section.gate >= 0 && static_cast<int>(number) > section.gate && isGateClosed(section, block)) {
      report(found, line, value, 0, KeyOutcome::kGated);
      continue;
    }
    const ListResult result = readKey(found, line, value);
    if (result == ListResult::kSectionEnded) return false;
    if (result == ListResult::kNextLine) {
      keys = section.filter.find(line).keys;
      keys.dropUpTo(number);
      value = valueText(line);
    }
  }
  return true;
}

}  // namespace

void readSection(const Section& section, void* block, LineReader& lines) {
  if (lines.observer() != nullptr) [[unlikely]] {
    lines.observer()->sectionOpened(section, lines.lineNumber());
  }
  std::string& line = lines.sectionLine();
  bool closed = false;
  while (!closed && lines.next(line)) {
    const KeyFilter::Hits hits = section.filter.find(line);
    closed = hits.closingTag;
    if (closed && !section.closingLineIsRead) break;
    if (!readKeys(section, block, lines, line, hits.keys)) closed = isClosedBy(section, line);
  }
  if (lines.observer() != nullptr) [[unlikely]] {
    if (closed) {
      lines.observer()->sectionClosed(section, lines.lineNumber());
    } else {
      lines.observer()->sectionUnclosed(section, lines.lineNumber());
    }
  }
}

}  // namespace zeb
