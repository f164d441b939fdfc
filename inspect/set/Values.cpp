#include "inspect/set/Values.hpp"

#include <charconv>

namespace zeb {

namespace {

template <class Number>
void append(std::string& text, Number value) {
  char digits[40];
  text.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
}

struct ValueText {
  std::string operator()(int value) const { return exact(value); }
  std::string operator()(double value) const { return exact(value); }
  std::string operator()(bool value) const { return value ? "true" : "false"; }
  // Copies are asked, as a block keeps for good what it has handed out itself.
  std::string operator()(OwnedText text) const {
    return text.get() == nullptr ? "none" : '"' + std::string(text.get()) + '"';
  }
  // Entry 0 of the library's arrays is never used, but for the dispenser points, whose rows of three start with entry
  // 0.
  template <class Element>
  std::string operator()(SharedArray<Element> array) const {
    array.makeRoom();
    if (array.get() == nullptr) return "none";
    std::string text = "[";
    for (std::size_t i = 1; i < array.size(); ++i) {
      if (i > 1) text += ", ";
      append(text, array.get()[i]);
    }
    return text += "]";
  }
};

}  // namespace

std::string exact(double value) {
  std::string text;
  append(text, value);
  return text;
}

std::string exact(int value) { return std::to_string(value); }

std::string valueOf(const Row& row, void* block) { return visit(row.field, block, ValueText()); }

std::string describe(const Row& row) {
  constexpr const char* kDefinedElsewhere = "Meaning defined by the solver.";
  if (row.opaque) return kDefinedElsewhere;
  if (!row.known.empty()) return std::string(row.known) + " " + kDefinedElsewhere;
  if (!row.rule.isBounded()) return std::string(row.doc);
  const double limit = row.rule.takenAbove;
  const auto fileUnit = row.unit.find("file: ");
  const bool hasUnit = limit != 0.0 && fileUnit != row.unit.npos;
  const std::string unit =
      hasUnit ? " " + std::string(row.unit.substr(fileUnit + 6, row.unit.size() - fileUnit - 7)) : "";
  return std::string(row.doc.substr(0, row.doc.size() - 1)) + "; only a value above " + exact(limit) + unit +
         " is taken.";
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
