// Text outside of sections is ignored.
#include "frame/CMPReader.hpp"

namespace zeb {

namespace {

std::vector<DispatchEntry> sectionsWithoutBlocks() {
  std::vector<DispatchEntry> entries;
  for (const BlockEntry& block : dispatchedBlocks()) {
    for (const Section* section : block.table().dispatchOrder) entries.push_back({section, nullptr});
  }
  return entries;
}

}  // namespace

std::vector<DispatchEntry> cmpSections(CZEBCMPInternalTool& tool) {
  static const std::vector<DispatchEntry> kSections = sectionsWithoutBlocks();
  std::vector<DispatchEntry> entries = kSections;
  auto entry = entries.begin();
  for (const BlockEntry& block : dispatchedBlocks()) {
    void* const located = block.locate(tool);
    for (std::size_t i = block.table().dispatchOrder.size(); i > 0; --i) (entry++)->block = located;
  }
  return entries;
}

int readCMPFile(CZEBCMPInternalTool& tool, const std::string& fileName) {
  return readFile(kCMPFormat, cmpSections(tool), fileName, tool.lineSource(), tool.m_observer);
}

}  // namespace zeb
