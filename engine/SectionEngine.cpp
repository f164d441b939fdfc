// From a line to members: find the section's keys, parse the value text once for each, apply the row's rule, store,
// echo.
#include "engine/SectionEngine.hpp"

#include "engine/ListEngine.hpp"
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
  int lineNumber;  // of the line that holds the key: a list may have read on
};

struct Stored {
  std::size_t used = 0;  // characters of the value text
  KeyOutcome outcome = KeyOutcome::kUnparsed;
  Parsed parsed = {};
};

template <class Type>
Type& member(const Found& found) {
  return found.row.field.in<Type>(found.block);
}

void report(const Found& found, std::string_view line, std::string_view value, const Stored& stored) {
  if (found.lines.observer() == nullptr) [[likely]] {
    return;
  }
  found.lines.observer()->keyFound({found.section, found.row, found.block, found.key, line, value,
                                    value.substr(stored.used), found.lineNumber, stored.outcome, stored.parsed});
}

void storeText(const Found& found, std::string_view text) {
  const std::size_t size = found.row.textBuffer;
  if (size > 0) text = text.substr(0, size - 1);
  member<OwnedText>(found).assign(text.data(), text.size(), size);
}

KeyOutcome storeElement(const Found& found, double value) {
  member<SharedArray<double>>(found).makeRoom();
  // A copy is asked: the block itself hands nothing out, so that a count that is read again releases the array.
  const SharedArray<double> array(member<SharedArray<double>>(found));
  if (found.row.element == kNoElement || found.row.element >= array.size()) return KeyOutcome::kNotStored;
  array.get()[found.row.element] = value;
  return KeyOutcome::kStored;
}

void storeDouble(const Found& found, Stored& stored) {
  const double value = found.row.rule.applyTo(stored.parsed);
  stored.outcome = KeyOutcome::kStored;
  if (found.row.isElement()) {
    stored.outcome = storeElement(found, value);
  } else {
    member<double>(found) = value;
  }
}

void storeInt(const Found& found, int value, Stored& stored) {
  const Row& row = found.row;
  const bool refused = row.count != Count::kNo && !isValidCount(row.count, value);
  if (refused) refuseCount(found.section, row, found.block, found.key, value, found.lines);
  stored.outcome = refused ? KeyOutcome::kRefused : KeyOutcome::kStored;
  member<int>(found) = refused ? 0 : static_cast<int>(row.rule.applyTo(stored.parsed));
}

Stored storePresence(const Found& found, std::string_view value) {
  if (found.row.field.type == FieldType::kBool) {
    member<bool>(found) = true;
  } else {
    member<int>(found) = 1;
  }
  return {value.size(), KeyOutcome::kStored};
}

Stored parseText(const Found& found, std::string_view value) {
  std::string_view text = value;
  const bool isWord = found.row.lookup == Lookup::kWord;
  const std::size_t used = isWord ? extractWord(value, text) : value.size();
  if (isWord && used == 0) return {};
  storeText(found, text);
  return {used, KeyOutcome::kStored};
}

bool readsInt(const Row& row) { return row.field.type == FieldType::kInt || row.lookup == Lookup::kInt; }

// The number alone, nothing stored.
Stored parseNumber(const Row& row, std::string_view value) {
  Stored stored;
  if (readsInt(row)) {
    int number = 0;
    stored.used = extractInt(value, number);
    stored.parsed.number = number;
  } else {
    stored.used = extractDouble(value, stored.parsed.number);
  }
  if (stored.used > 0) return stored;
  const bool outOfRange = readsInt(row) ? isIntOutOfRange(value) : isDoubleOutOfRange(value);
  stored.parsed.failure = outOfRange ? ParseFailure::kRange : ParseFailure::kNoNumber;
  return stored;
}

Stored storeNumber(const Found& found, Stored stored) {
  if (stored.used == 0) return stored;
  if (found.row.field.type == FieldType::kInt) {
    storeInt(found, static_cast<int>(stored.parsed.number), stored);
  } else {
    storeDouble(found, stored);
  }
  return stored;
}

Stored parseAndStore(const Found& found, std::string_view value) {
  if (found.row.lookup == Lookup::kPresence) return storePresence(found, value);
  if (found.row.field.type == FieldType::kText) return parseText(found, value);
  return storeNumber(found, parseNumber(found.row, value));
}

void reportGated(const Found& found, std::string_view line, std::string_view value) {
  if (found.lines.observer() == nullptr) [[likely]] {
    return;
  }
  const bool isText = found.row.field.type == FieldType::kText || found.row.lookup == Lookup::kPresence;
  const Parsed parsed = isText ? Parsed() : parseNumber(found.row, value).parsed;
  report(found, line, value, {0, KeyOutcome::kGated, parsed});
}

void echo(const Found& found) {
  const Echo& echo = found.row.echo;
  std::string text;
  text.reserve(120);
  text += echo.label;
  if (found.row.field.type == FieldType::kInt) {
    text += std::to_string(member<int>(found));
  } else {
    const double value = member<double>(found);
    text += echo.format == Echo::Format::kFixed ? formatFixed(value) : formatGeneral(value);
  }
  writeOut(text += echo.tail);
}

bool isGateClosed(const Section& section, void* block) {
  const Row& row = section.gateRow();
  return row.field.in<int>(block) < row.gateBelow;
}

// The filter finds both spellings of a key; the second counts only where the first is absent. As the value text does
// not depend on the key, it would store the same value again.
bool repeatsFirstSpelling(const Found& found, std::string_view line) {
  return found.key == found.row.otherKey && line.find(found.row.key) != line.npos;
}

}  // namespace

double Rule::apply(double value) const {
  Parsed parsed{.number = value};
  return applyTo(parsed);
}

double Rule::applyTo(Parsed& parsed) const {
  if (none()) return parsed.number;
  const double scaled = parsed.number * scale;
  parsed.replaced = replacementOf(scaled);
  return parsed.replaced != nullptr ? parsed.replaced->value : scaled;
}

const Replacement* Rule::replacementOf(double scaled) const {
  for (const Replacement& replacement : replace) {
    if (replacement.fits(scaled)) return &replacement;
  }
  return nullptr;
}

bool Replacement::fits(double scaled) const {
  switch (when) {
    case When::kNever:
      return false;
    case When::kBelow:
      return scaled < limit;
    case When::kAbove:
      return scaled > limit;
    case When::kAtMost:
      return scaled <= limit;
    case When::kNotAbove:
      return !(scaled > limit);
    case When::kEqual:
      return scaled == limit;
    case When::kTruncatesTo0:
      return scaled > -1.0 && scaled < 1.0;
    case When::kAlways:
      return true;
  }
  return false;
}

bool isClosedBy(const Section& section, std::string_view line) { return line.find(section.close) != line.npos; }

namespace {

// What a key opens or runs behind its value.
ListResult readBehind(const Found& found, std::string_view& line) {
  ListResult result = ListResult::kSameLine;
  if (found.row.whenStored != nullptr) found.row.whenStored(found.block, line);
  if (!found.row.list.isNone()) {
    ListContext context{found.section, found.row, found.block, found.lines, line};
    result = readList(context);
  }
  if (found.lines.observer() != nullptr && found.row.opensList()) found.lines.observer()->listEnded();
  return result;
}

// All that a key does: value, echo, list.
ListResult readKey(const Found& found, std::string_view& line, std::string_view value) {
  if (repeatsFirstSpelling(found, line)) return ListResult::kSameLine;
  const Stored stored = parseAndStore(found, value);
  report(found, line, value, stored);
  if (stored.outcome != KeyOutcome::kStored) return ListResult::kSameLine;
  if (!found.row.echo.label.empty()) echo(found);
  return found.row.opensList() ? readBehind(found, line) : ListResult::kSameLine;
}

// Reads the keys that stand in the line, in the section's order. False when a list met the section's end.
bool readKeys(const Section& section, void* block, LineReader& lines, std::string_view& line, KeySet keys) {
  if (keys.empty()) return true;
  int lineNumber = lines.lineNumber();
  std::string_view value = valueText(line);
  while (!keys.empty()) {
    const std::size_t number = keys.popFirst();
    const Found found{section, section.rowOf(number), section.filter.keys[number], block, lines, lineNumber};
    if (section.gate >= 0 && static_cast<int>(number) > section.gate && isGateClosed(section, block)) {
      reportGated(found, line, value);
      continue;
    }
    if (!found.row.list.isNone()) {
      line = lines.keep(line);
      value = valueText(line);
    }
    const ListResult result = readKey(found, line, value);
    if (result == ListResult::kSectionEnded) return false;
    if (result == ListResult::kNextLine) {
      keys = section.filter.find(line).keys;
      keys.dropUpTo(number);
      value = valueText(line);
      lineNumber = lines.lineNumber();
    }
  }
  return true;
}

}  // namespace

void readSection(const Section& section, void* block, LineReader& lines) {
  const bool observed = lines.observer() != nullptr;
  std::string_view line;
  bool closed = false;
  while (!closed && lines.next(line)) {
    const char* const equals = lines.equals();
    const char* const end = line.data() + line.size();
    const ExactKey* const exact = equals == nullptr ? nullptr : section.exactKeys.find(line.data(), equals);
    if (exact != nullptr && !observed && storeExact(*exact, block, equals, end, section.filter)) continue;

    closed = line == section.close;
    if (closed && !section.closingLineIsRead) break;
    const char* const unsearched = exact == nullptr ? line.data() : equals + 1;
    KeyFilter::Hits hits = section.filter.find({unsearched, static_cast<std::size_t>(end - unsearched)});
    closed = hits.closingTag;
    if (closed && !section.closingLineIsRead) break;
    if (exact != nullptr) hits.keys.insert(exact->found);
    if (!readKeys(section, block, lines, line, hits.keys)) closed = isClosedBy(section, line);
  }
  if (section.roomOnly >= 0) [[unlikely]] {
    section.rowOf(static_cast<std::size_t>(section.roomOnly)).list.array.in<SharedArray<double>>(block).makeRoom();
  }
  if (observed) [[unlikely]] {
    lines.observer()->sectionEnded(section, closed ? SectionEnd::kClosed : SectionEnd::kUnclosed);
  }
}

}  // namespace zeb
