// Every value of a parameter set by "Block.getter", taken through the getter: what tests compare sets by.
#pragma once

#include <charconv>
#include <map>
#include <string>
#include <vector>

#include "inspect/set/Inspection.hpp"
#include "inspect/set/Values.hpp"

namespace zebtest {

using Values = std::map<std::string, std::string>;

/// The shortest text that reads back as the number.
inline std::string numberText(double number) {
  char text[40];
  return {text, std::to_chars(text, text + sizeof text, number).ptr};
}

/// A number's or a text's getter asked; a list, whose getters copy out or need a count, by its used entries.
inline std::string valueText(const zeb::Row& row, void* block) {
  if (row.field.get != nullptr) return numberText(row.field.get(block));
  if (row.field.getText == nullptr) return zeb::valueOf(row, block);
  const char* text = row.field.getText(block);
  return text == nullptr ? "none" : '"' + std::string(text) + '"';
}

/// Members without a getter of their own stand there by their names.
inline Values valuesOf(const std::vector<zeb::BlockView>& blocks) {
  Values values;
  for (const zeb::BlockView& view : blocks) {
    for (const zeb::Section& section : view.table->sections) {
      for (const zeb::Row& row : section.rows) {
        const std::string_view name = row.field.getter.empty() ? row.field.member : row.field.getter;
        values[view.name + "." + std::string(name)] = valueText(row, view.block);
      }
    }
  }
  return values;
}

/// The lines "Block.getter = value" of `values` that `before` has otherwise.
inline std::vector<std::string> differences(const Values& before, const Values& values) {
  std::vector<std::string> lines;
  for (const auto& [name, value] : values) {
    const auto found = before.find(name);
    if (found == before.end() || found->second != value) lines.push_back(name + " = " + value);
  }
  return lines;
}

}  // namespace zebtest
