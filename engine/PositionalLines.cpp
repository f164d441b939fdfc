// Positional sections: line by line, field by field, straight into the members.
#include "engine/ReadObserver.hpp"
#include "engine/SectionEngine.hpp"

namespace zeb {

namespace {

// An int fits a double exactly, so one type carries both.
bool scanField(FieldScanner& scanner, FieldType type, double& value) {
  if (type == FieldType::kDouble) return scanner.next(value);
  int number = 0;
  if (!scanner.next(number)) return false;
  value = number;
  return true;
}

struct PositionalReader {
  const Section& section;
  void* block;
  LineReader& lines;

  // `slot` is the first of the line's fields; returns the first of the next line.
  const Slot* readLine(const Slot* slot, int number) const {
    std::string_view line;
    lines.nextOrEmpty(line);
    FieldScanner scanner(line);
    const Slot* const end = section.positional.slots.data() + section.positional.slots.size();
    const bool absentIsZero = section.positional.isAbsentZero(number);
    int converted = 0, expected = 0;
    for (; slot != end && slot->at.line == number; ++slot, ++expected) {
      if (takePlain(scanner, *slot)) continue;
      Parsed parsed;
      const std::string_view before = scanner.rest();
      const bool read = scanField(scanner, slot->type, parsed.number);
      converted += read ? 1 : 0;
      if (slot->row == nullptr || !(read || absentIsZero)) continue;
      store(*slot, parsed);
      if (read) report(*slot, line, before, scanner.rest(), KeyOutcome::kStored, parsed);
    }
    if (lines.observer() != nullptr) [[unlikely]] {
      lines.observer()->linePositional(number, converted, expected, scanner.rest());
    }
    return slot;
  }

  // A number that nobody watches and that no rule changes goes straight into its member. Where this fails, the scanner
  // gives no further field.
  bool takePlain(FieldScanner& scanner, const Slot& slot) const {
    if (lines.observer() != nullptr || slot.row == nullptr || !slot.row->rule.none()) return false;
    const Field& field = slot.row->field;
    return slot.type == FieldType::kInt ? scanner.next(field.in<int>(block)) : scanner.next(field.in<double>(block));
  }

  void store(const Slot& slot, Parsed& parsed) const {
    const double value = slot.row->rule.applyTo(parsed);
    if (slot.type == FieldType::kInt) {
      slot.row->field.in<int>(block) = static_cast<int>(value);
    } else {
      slot.row->field.in<double>(block) = value;
    }
  }

  void report(const Slot& slot, std::string_view line, std::string_view before, std::string_view after,
              KeyOutcome outcome, Parsed parsed) const {
    if (lines.observer() == nullptr) [[likely]] {
      return;
    }
    const std::string_view text = before.substr(0, before.size() - after.size());
    lines.observer()->keyFound({section, *slot.row, block, {}, line, text, {}, lines.lineNumber(), outcome, parsed});
  }

  // Line 1 must hold the version that the block carries.
  bool versionMatches(const Slot& slot) const {
    std::string_view line;
    const bool isThere = lines.nextOrEmpty(line);
    FieldScanner scanner(line);
    int version = 0;
    const bool read = scanner.next(version);
    const bool matches = version == slot.row->field.in<int>(block);
    if (isThere) {
      report(slot, line, line, scanner.rest(), matches ? KeyOutcome::kConfirmed : KeyOutcome::kNotTaken,
             {static_cast<double>(version), read ? ParseFailure::kNone : ParseFailure::kNoNumber});
    }
    return matches;
  }
};

}  // namespace

bool readPositional(const Section& section, void* block, LineReader& lines) {
  const PositionalReader reader{section, block, lines};
  const Slot* slot = section.positional.slots.data();
  int number = 1;
  bool accepted = true;
  if (section.positional.versioned) {
    accepted = reader.versionMatches(*slot);
    ++slot;
    ++number;
  }
  for (; accepted && number <= section.positional.lines; ++number) slot = reader.readLine(slot, number);
  if (lines.observer() != nullptr) [[unlikely]] {
    lines.observer()->sectionEnded(section, accepted ? SectionEnd::kComplete : SectionEnd::kRefused);
  }
  return accepted;
}

}  // namespace zeb
