#include "inspect/set/Settings.hpp"

#include <charconv>

#include "inspect/explain/Provenance.hpp"

namespace zeb {

std::string exact(double value) {
  char text[40];
  return {text, std::to_chars(text, text + sizeof text, value).ptr};
}

std::string exact(int value) { return std::to_string(value); }

namespace {

// Entry 0 of the library's arrays is never used, but for the dispenser points, whose rows of three start with entry 0.
// A copy is asked, as a block keeps for good what it has handed out itself.
template <class T>
std::string listText(SharedArray<T> array) {
  if (array.get() == nullptr) return "none";
  std::string text = "[";
  for (std::size_t i = 1; i < array.size(); ++i) text += (i > 1 ? ", " : "") + exact(array.get()[i]);
  return text + "]";
}

}  // namespace

std::string Origin::text() const {
  switch (kind) {
    case Kind::kFile: {
      const std::string lines = lastLine > line ? "lines " + std::to_string(line) + "-" + std::to_string(lastLine)
                                                : "line " + std::to_string(line);
      return (file.empty() ? "" : file + " ") + lines;
    }
    case Kind::kRepair:
      return "repair: " + note;
    case Kind::kDerived:
      return "derived";
    case Kind::kDefault:
      break;
  }
  return "default";
}

std::string valueOf(const Row& row, void* block) {
  const void* member = row.field.locate(block);
  switch (row.field.type) {
    case FieldType::kInt:
      return exact(*static_cast<const int*>(member));
    case FieldType::kDouble:
      return exact(*static_cast<const double*>(member));
    case FieldType::kBool:
      return *static_cast<const bool*>(member) ? "true" : "false";
    case FieldType::kText: {
      const OwnedText shared(*static_cast<const OwnedText*>(member));
      const char* text = shared.get();
      return text == nullptr ? "none" : '"' + std::string(text) + '"';
    }
    case FieldType::kInts:
      return listText(*static_cast<const SharedArray<int>*>(member));
    case FieldType::kDoubles:
      return listText(*static_cast<const SharedArray<double>*>(member));
    case FieldType::kNone:
      break;
  }
  return {};
}

std::vector<BlockSettings> settingsOf(const std::vector<BlockView>& blocks, const Provenance* provenance) {
  std::vector<BlockSettings> all;
  for (const BlockView& view : blocks) {
    BlockSettings block{view.name, view.table, {}};
    void* defaults = view.table->create();
    for (const Section& section : view.table->sections) {
      for (const Row& row : section.rows) {
        const bool isElement = row.store != nullptr;
        if (isElement && row.label.empty()) continue;  // the array itself has its own row
        Setting setting{&row, &section, std::string(row.field.member), valueOf(row, view.block), valueOf(row, defaults),
                        {}};
        if (provenance != nullptr) setting.origin = provenance->origin(row.field.locate(view.block));
        // No line and no repair tells of what a reader concludes from other members, or of what the host sets.
        if (provenance != nullptr && setting.origin.kind == Origin::Kind::kDefault && setting.isChanged()) {
          setting.origin.kind = Origin::Kind::kDerived;
        }
        block.settings.push_back(std::move(setting));
      }
    }
    view.table->destroy(defaults);
    all.push_back(std::move(block));
  }
  return all;
}

std::string fingerprint(const std::vector<BlockView>& blocks) {
  std::string text;
  for (const BlockView& view : blocks) {
    for (const Section& section : view.table->sections) {
      for (const Row& row : section.rows) {
        text += view.name + "." + std::string(row.field.member) + " = " + valueOf(row, view.block) + "\n";
      }
    }
  }
  return text;
}

}  // namespace zeb
