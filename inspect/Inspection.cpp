#include "inspect/Inspection.hpp"

#include <algorithm>
#include <cctype>

namespace zeb {

bool equalWithoutCase(std::string_view a, std::string_view b) {
  const auto same = [](char x, char y) {
    return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
  };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), same);
}

std::vector<BlockView> blocksOf(const CZEBKNCMPCompParm& set) {
  std::vector<BlockView> views;
  CZEBCMPInternalTool* tool = Inspection::tool(set);
  if (tool == nullptr) return views;
  for (const BlockEntry& entry : allBlocks()) {
    const BlockTable& table = entry.table();
    views.push_back({blockName(table.className), &table, entry.locate(*tool)});
  }
  return views;
}

std::string blockName(std::string_view className) {
  for (const std::string_view prefix : {"CZEBCMP_", "CZEBCMP", "CZEBCMX_", "CZEBCool", "CZEB"}) {
    if (!className.starts_with(prefix)) continue;
    className.remove_prefix(prefix.size());
    break;
  }
  for (const std::string_view suffix : {"_Parm", "Parm"}) {
    if (!className.ends_with(suffix)) continue;
    className.remove_suffix(suffix.size());
    break;
  }
  return std::string(className);
}

bool isNamed(const BlockView& block, std::string_view text) {
  if (equalWithoutCase(block.name, text) || equalWithoutCase(block.table->className, text)) return true;
  const auto named = [&](const Section& section) { return equalWithoutCase(section.name, text); };
  return std::any_of(block.table->sections.begin(), block.table->sections.end(), named);
}

}  // namespace zeb
