#include "inspect/set/ParameterFile.hpp"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace zeb {

namespace {

// By FileKind.
struct KindNames {
  std::string_view name, format;
};
constexpr KindNames kKinds[] = {{"cmp", "CMP"}, {"cmx", "CMX"}, {"std", "STD"}};

constexpr std::size_t kBytesToRecognise = 1'000'000;

std::string firstBytes(const std::string& fileName) {
  std::ifstream stream(fileName, std::ios::binary);
  std::string text(kBytesToRecognise, '\0');
  stream.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(stream.gcount()));
  return text;
}

// Where the first opening of one of the table's sections stands.
std::size_t firstOpening(std::string_view text, const BlockTable& table) {
  std::size_t first = text.npos;
  for (const Section& section : table.sections) {
    if (!section.open.empty()) first = std::min(first, text.find(section.open));
  }
  return first;
}

}  // namespace

std::string_view kindName(FileKind kind) { return kKinds[static_cast<int>(kind)].name; }

std::string_view formatOf(FileKind kind) { return kKinds[static_cast<int>(kind)].format; }

std::optional<FileKind> kindNamed(std::string_view name) {
  for (int kind = 0; kind < std::ssize(kKinds); ++kind) {
    if (kKinds[kind].name == name) return static_cast<FileKind>(kind);
  }
  return {};
}

std::vector<std::string> kindNames() {
  std::vector<std::string> names;
  for (const KindNames& kind : kKinds) names.emplace_back(kind.name);
  return names;
}

std::optional<FileKind> recogniseKind(const std::string& fileName) {
  const std::string bytes = firstBytes(fileName);
  const std::string_view text = bytes;
  std::size_t cmx = text.npos, cmp = text.find("[VER]");
  for (const BlockTable* table : CZEBCMXInternalTool::tables()) cmx = std::min(cmx, firstOpening(text, *table));
  for (const BlockEntry& entry : allBlocks()) cmp = std::min(cmp, firstOpening(text.substr(0, cmx), entry.table()));
  if (cmx < cmp) return FileKind::kCmx;
  if (cmp < text.npos) return FileKind::kCmp;
  return {};
}

std::vector<BlockView> ParameterFile::blocks() const {
  if (cmx != nullptr) return blocksOf(*cmx);
  if (standard != nullptr) return blocksOf(*standard);
  return cmp != nullptr ? blocksOf(*cmp) : std::vector<BlockView>();
}

ParameterFile readParameterFile(const std::string& fileName, FileKind kind, const AnalysisOptions& options,
                                CZEBCom* com, ReadObserver* observer) {
  ParameterFile file;
  switch (kind) {
    case FileKind::kCmp:
      file.cmp = analyse(fileName, options, com, observer);
      break;
    case FileKind::kCmx:
      file.cmx = std::make_unique<CZEBKNCMXCompParm>(0);
      Inspection::tool(*file.cmx).observer = observer;
      file.cmx->setZEBCom(com);
      file.cmx->setSolidFillBlock(fileName);
      break;
    case FileKind::kStd:
      file.standard = std::make_unique<CZEBKNstdCMPCompParm>();
      Inspection::parameters(*file.standard).observer = observer;
      file.standard->setZEBCom(com);
      file.standard->setSolidFillBlock(fileName);
      break;
  }
  return file;
}

}  // namespace zeb
