// Text outside of sections is ignored.
#include "frame/CMPReader.hpp"

namespace zeb {

std::vector<DispatchEntry> cmpSections(CZEBCMPInternalTool& tool) {
  std::vector<DispatchEntry> entries;
  for (const BlockEntry& block : dispatchedBlocks()) {
    for (const Section* section : block.table().dispatchOrder) entries.push_back({section, block.locate(tool)});
  }
  return entries;
}

int readCMPFile(CZEBCMPInternalTool& tool, const std::string& fileName) {
  return readFile(kCMPFormat, cmpSections(tool), fileName, tool.lineSource(), tool.m_observer);
}

}  // namespace zeb
