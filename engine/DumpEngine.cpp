// One text for a whole block, so that the dumps of several ranks do not mix within a block.
#include "engine/DumpEngine.hpp"

#include <bit>
#include <cstdint>

#include "engine/TextOutput.hpp"

namespace zeb {

namespace {

std::string doubleText(double value, DumpFormat format) {
  if (format == DumpFormat::kByType) return formatGeneral(value);
  return std::to_string(static_cast<std::int32_t>(std::bit_cast<std::uint64_t>(value) & 0xFFFFFFFFu));
}

}  // namespace

std::string dumpValue(const Row& row, const void* block) {
  // Only read through; the tables locate members of mutable blocks.
  const void* member = row.field.locate(const_cast<void*>(block));
  switch (row.field.type) {
    case FieldType::kInt:
      return std::to_string(*static_cast<const int*>(member));
    case FieldType::kDouble:
      return doubleText(*static_cast<const double*>(member), row.dump);
    case FieldType::kBool:
      return *static_cast<const bool*>(member) ? "1" : "0";
    case FieldType::kText: {
      const char* text = static_cast<const OwnedText*>(member)->get();
      return text == nullptr ? "" : text;
    }
    case FieldType::kInts:
      return formatAddress(static_cast<const SharedArray<int>*>(member)->get());
    case FieldType::kDoubles:
      return formatAddress(static_cast<const SharedArray<double>*>(member)->get());
    case FieldType::kNone:
      break;
  }
  return {};
}

std::string dumpText(const BlockTable& table, const void* block) {
  if (table.heading.empty()) return {};
  std::string text(table.heading);
  text += '\n';
  for (const Row* row : table.dumpOrder) {
    text += row->label;
    text += dumpValue(*row, block);
    text += '\n';
  }
  return text;
}

int printParameters(const BlockTable& table, const void* block) {
  writeOut(dumpText(table, block));
  return 1;
}

}  // namespace zeb
