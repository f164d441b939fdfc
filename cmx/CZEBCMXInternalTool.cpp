#include "cmx/CZEBCMXInternalTool.hpp"

#include "engine/TableBuilder.hpp"

namespace {

constexpr zeb::Format kFormat{.name = "CMX", .nameLine = zeb::Format::NameLine::kIfTraced, .barrier = false};

// The blocks behind <SUMMARY>, which is the tool's own.
template <class Types>
struct BehindSummary;
template <class... Blocks>
struct BehindSummary<zeb::BlockTypes<Blocks...>> {
  using Tables = std::array<const zeb::BlockTable*, 1 + sizeof...(Blocks)>;

  static const Tables& tables() {
    static const Tables kTables{&zeb::tableOf<CZEBCMXInternalTool>(), &zeb::tableOf<Blocks>()...};
    return kTables;
  }
  static std::array<zeb::DispatchEntry, std::tuple_size_v<Tables>> sections(CZEBCMXInternalTool& tool) {
    return {entry(tool), entry(tool.block<Blocks>())...};
  }

 private:
  template <class Block>
  static zeb::DispatchEntry entry(Block& block) {
    return {&zeb::tableOf<Block>().sections.front(), &block};
  }
};

using AllBlocks = BehindSummary<zeb::CMXBlocks>;

}  // namespace

CZEBCMXInternalTool::CZEBCMXInternalTool() : m_blocks(zeb::makeCMXBlocks()), m_sections(AllBlocks::sections(*this)) {}

CZEBCMXInternalTool::~CZEBCMXInternalTool() = default;

std::span<const zeb::BlockTable* const> CZEBCMXInternalTool::tables() { return AllBlocks::tables(); }

int CZEBCMXInternalTool::setZEBCom(CZEBCom* com) {
  if (com == nullptr) return -1;
  m_pCom = com;
  return 1;
}

void CZEBCMXInternalTool::setPrintLevel(int level) { m_nPrintLevel = level; }

ZEB_GETTERS(CZEBCMXInternalTool, nCMXVersion)

zeb::LineSource CZEBCMXInternalTool::lineSource() const { return kFormat.lineSource(m_pCom, m_nPrintLevel); }

int CZEBCMXInternalTool::setSolidFillBlock(const std::string& fileName) {
  return zeb::readFile(kFormat, m_sections, fileName, lineSource(), observer);
}

void CZEBCMXInternalTool::readBlocks(std::istream& stream) {
  const zeb::LineSource source = lineSource();
  zeb::LineReader lines(stream, source, observer);
  zeb::readLines(m_sections, lines);
}

template <>
const zeb::BlockTable& zeb::tableOf<CZEBCMXInternalTool>() {
  using T = CZEBCMXInternalTool;
  static constexpr Row kRows[] = {
      {ZEB_FIELD(nCMXVersion), .key = "Version", .doc = "Version of the file."},
  };
  static constexpr Section kSections[] = {taggedSection<"SUMMARY", kRows>()};
  static constexpr BlockTable kTable = blockTable<T, kSections>("");
  return kTable;
}
