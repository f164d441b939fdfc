// Positional sections: line by line, field by field, straight into the members.
#include <string>

#include "engine/ReadObserver.hpp"
#include "engine/SectionEngine.hpp"

namespace zeb {

namespace {

void store(const Slot& slot, void* block, double value) {
  void* member = slot.row->field.locate(block);
  if (!slot.row->rule.none()) value = slot.row->rule.apply(value);
  if (slot.type == FieldType::kInt) {
    *static_cast<int*>(member) = static_cast<int>(value);
  } else {
    *static_cast<double*>(member) = value;
  }
}

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
  const Slot* readLine(const Slot* slot, int number, std::string& line) const {
    lines.nextOrEmpty(line);
    FieldScanner scanner(line);
    const Slot* end = section.positional.slots.data() + section.positional.slots.size();
    const bool absentIsZero = (section.positional.absentIsZero >> number & 1u) != 0;
    int converted = 0, expected = 0;
    for (; slot != end && slot->at.line == number; ++slot, ++expected) {
      double value = 0.0;
      const std::string_view before = scanner.rest();
      const bool read = scanField(scanner, slot->type, value);
      converted += read ? 1 : 0;
      if (slot->row == nullptr || !(read || absentIsZero)) continue;
      store(*slot, block, value);
      if (read) report(*slot, line, before, scanner.rest());
    }
    if (lines.observer() != nullptr) [[unlikely]] {
      lines.observer()->linePositional(section, lines.lineNumber(), number, converted, expected, scanner.rest());
    }
    return slot;
  }

  void report(const Slot& slot, std::string_view line, std::string_view before, std::string_view after) const {
    if (lines.observer() == nullptr) [[likely]] {
      return;
    }
    const std::string_view text = before.substr(0, before.size() - after.size());
    lines.observer()->keyFound(
        {section, *slot.row, block, {}, line, text, {}, lines.lineNumber(), KeyOutcome::kStored});
  }

  // Line 1 must hold the version that the block carries.
  bool versionMatches(const Slot& slot, std::string& line) const {
    lines.nextOrEmpty(line);
    int version = 0;
    FieldScanner(line).next(version);
    if (version == *static_cast<const int*>(slot.row->field.locate(block))) return true;
    if (lines.observer() != nullptr) [[unlikely]] {
      lines.observer()->sectionRefused(section, lines.lineNumber(), version);
    }
    return false;
  }
};

}  // namespace

bool readPositional(const Section& section, void* block, LineReader& lines) {
  if (lines.observer() != nullptr) [[unlikely]] {
    lines.observer()->sectionOpened(section, lines.lineNumber());
  }
  const PositionalReader reader{section, block, lines};
  const Slot* slot = section.positional.slots.data();
  std::string& line = lines.sectionLine();
  int number = 1;
  if (section.positional.versioned) {
    if (!reader.versionMatches(*slot, line)) return false;
    ++slot;
    ++number;
  }
  for (; number <= section.positional.lines; ++number) slot = reader.readLine(slot, number, line);
  return true;
}

}  // namespace zeb
