#include "inspect/set/Inspection.hpp"

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

std::vector<BlockView> blocksOf(const CZEBKNCMXCompParm& set) {
  const CZEBCMXInternalTool& tool = Inspection::tool(set);
  std::vector<BlockView> views;
  for (std::size_t i = 0; i < tool.sections().size(); ++i) {
    const DispatchEntry& entry = tool.sections()[i];
    views.push_back({std::string(entry.section->name), CZEBCMXInternalTool::tables()[i], entry.block});
  }
  return views;
}

std::vector<BlockView> blocksOf(const CZEBKNstdCMPCompParm& set) {
  const StdParameters& parameters = Inspection::parameters(set);
  const auto tables = StdParameters::tables();
  std::vector<BlockView> views{{std::string(parameters.head().section->name), tables[0], parameters.head().block}};
  for (std::size_t i = 0; i < parameters.sections().size(); ++i) {
    const DispatchEntry& entry = parameters.sections()[i];
    views.push_back({std::string(entry.section->name), tables[i + 1], entry.block});
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
