#include "inspect/set/Inspection.hpp"

#include <algorithm>
#include <cctype>

namespace zeb {

namespace {

// Blocks of one section each, named by it.
std::vector<BlockView> viewsOf(std::span<const DispatchEntry> entries, std::span<const BlockTable* const> tables) {
  std::vector<BlockView> views;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    views.push_back({std::string(entries[i].section->name), tables[i], entries[i].block});
  }
  return views;
}

}  // namespace

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

std::vector<BlockView> blocksOf(const CZEBKNCMXCompParm& set) {
  return viewsOf(Inspection::tool(set).sections(), CZEBCMXInternalTool::tables());
}

std::vector<BlockView> blocksOf(const CZEBKNstdCMPCompParm& set) {
  return viewsOf(Inspection::parameters(set).sections(), StdParameters::tables());
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
