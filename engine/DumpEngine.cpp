// One text for a whole block, so that the dumps of several ranks do not mix within a block.
#include "engine/DumpEngine.hpp"

#include <bit>
#include <cstdint>

#include "engine/TextOutput.hpp"

namespace zeb {

namespace {

struct ValueDump {
  DumpFormat format;

  std::string operator()(int value) const { return std::to_string(value); }
  std::string operator()(bool value) const { return value ? "1" : "0"; }
  std::string operator()(double value) const {
    if (format == DumpFormat::kByType) return formatGeneral(value);
    return std::to_string(static_cast<std::int32_t>(std::bit_cast<std::uint64_t>(value) & 0xFFFFFFFFu));
  }
  std::string operator()(const OwnedText& text) const { return text.get() == nullptr ? "" : text.get(); }
  template <class Element>
  std::string operator()(const SharedArray<Element>& array) const {
    return formatAddress(array.get());
  }
};

// What stands before the value of a dumped member.
std::string dumpLabel(const Row& row) {
  if (!row.label.empty()) return std::string(row.label);
  const std::string gap = row.tabs == kOneSpace ? " " : std::string(static_cast<std::size_t>(row.tabs), '\t');
  return std::string(row.field.member) + gap + "= ";
}

}  // namespace

std::string dumpValue(const Row& row, const void* block) {
  return visit(row.field, const_cast<void*>(block), ValueDump{row.dump});
}

std::string dumpText(const BlockTable& table, const void* block) {
  if (table.heading.empty()) return {};
  std::string text(table.heading);
  text += '\n';
  for (const Row* row : table.dumpOrder) {
    text += dumpLabel(*row);
    text += dumpValue(*row, block);
    text += '\n';
  }
  return text;
}

}  // namespace zeb
