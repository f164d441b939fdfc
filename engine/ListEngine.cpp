#include "engine/ListEngine.hpp"

#include <algorithm>

#include "engine/ReadObserver.hpp"
#include "engine/TextOutput.hpp"
#include "engine/ValueText.hpp"

namespace zeb {

namespace {

// One message for each missing entry; for many of them in few pieces, as a count may exceed the file's lines by far.
void sayMissing(const List& list, int entries) {
  constexpr int kAtOnce = 1000;
  if (list.missing.empty()) return;
  std::string text;
  for (int entry = 1; entry <= entries; ++entry) {
    text += list.missing;
    if (entry % kAtOnce != 0 && entry != entries) continue;
    writeOut(text);
    text.clear();
  }
}

EntryEvent entryOf(std::string_view value, std::size_t used, double number) {
  return {.used = used > 0, .value = value, .tail = value.substr(used), .number = number};
}

void readEntries(ListContext& context, double* entries, int count) {
  const List& list = context.row.list;
  if (list.lastIsRest) entries[count] = 1.0;
  std::string_view line;
  for (int entry = 1; entry <= count; ++entry) {
    if (!nextLineOfList(context, line)) return sayMissing(list, count - entry + 1);
    if (line.find(list.entryName) == line.npos) sayMissing(list, 1);
    double value = 0.0;
    const EntryEvent taken =
        list.isScanned() ? scanValue(line, list.entry, value) : takeValue(line, list.entryName, value);
    if (taken.used && !(list.lastIsRest && entry == count)) {
      entries[entry] = value;
      if (list.lastIsRest) entries[count] -= value;
    }
    reportLineOfList(context, taken);
  }
}

}  // namespace

bool fills(const Row& announcing, const Row& row) {
  const std::string_view name = row.field.member;
  return (!announcing.list.array.member.empty() && announcing.list.array.member == name) ||
         std::find(announcing.fills.begin(), announcing.fills.end(), name) != announcing.fills.end();
}

ListResult readList(ListContext& context) {
  const List& list = context.row.list;
  if (list.read != nullptr) return list.read(context);
  const Field& counted = list.count.member.empty() ? context.row.field : list.count;
  const int count = counted.in<int>(context.block);
  auto& array = list.array.in<SharedArray<double>>(context.block);
  if (list.makesRoom) array.announce(list.perEntry * (static_cast<std::size_t>(count) + 1));
  if (list.hasLines) array.makeRoom();
  // A copy is asked: the block itself hands nothing out, so that a count that is read again releases the array.
  if (list.hasLines) readEntries(context, SharedArray<double>(array).get(), count);
  return ListResult::kSameLine;
}

bool nextLineOfList(ListContext& context, std::string_view& line) { return context.lines.nextOrEmpty(line); }

void reportLineOfList(const ListContext& context, const EntryEvent& entry) {
  if (context.lines.observer() != nullptr) [[unlikely]] {
    context.lines.observer()->lineOfList(entry);
  }
}

EntryEvent takeValue(std::string_view line, std::string_view name, int& value) {
  if (line.find(name) == line.npos) return {};
  const std::string_view text = valueText(line);
  const std::size_t used = extractInt(text, value);
  return entryOf(text, used, value);
}

EntryEvent takeValue(std::string_view line, std::string_view name, double& value) {
  if (line.find(name) == line.npos) return {};
  const std::string_view text = valueText(line);
  const std::size_t used = extractDouble(text, value);
  return entryOf(text, used, value);
}

EntryEvent scanValue(std::string_view line, Entry entry, double& value) {
  FieldScanner scanner(line);
  std::string_view name, equals;
  int number = 0;
  const bool isNamed = entry == Entry::kNumbered ? scanner.next(number) : scanner.next(name);
  if (!isNamed || !scanner.next(equals)) return {};
  const std::string_view text = scanner.rest();
  return scanner.next(value) ? entryOf(text, text.size() - scanner.rest().size(), value) : EntryEvent();
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

bool isValidCount(Count kind, int count) {
  return count <= kLargestCount && (count >= 0 || kind == Count::kNegativeIsNone);
}

void refuseCount(const Section& section, const Row& announcing, void* block, std::string_view key, int count,
                 const LineReader& lines) {
  if (lines.source().reads()) {
    const std::string_view least = announcing.count == Count::kNegativeIsNone ? "at most " : "0 to ";
    writeOut(std::string(section.open) + " " + std::string(key) + " = " + std::to_string(count) +
             " is no valid count (" + std::string(least) + std::to_string(kLargestCount) + "); 0 is used\n");
  }
  for (const Row& row : section.rows) {
    if (!row.field.isArray() || !fills(announcing, row)) continue;
    visit(row.field, block, [](auto& member) {
      if constexpr (requires { member.release(); }) member.release();
    });
  }
}

}  // namespace zeb
