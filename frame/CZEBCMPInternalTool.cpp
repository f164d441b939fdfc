#include "frame/CZEBCMPInternalTool.hpp"

#include <algorithm>
#include <array>
#include <type_traits>

CZEBCMPInternalTool::CZEBCMPInternalTool() : m_blocks(zeb::makeCMPBlocks()) {}
CZEBCMPInternalTool::~CZEBCMPInternalTool() = default;

int CZEBCMPInternalTool::ZEB_getline_Parallel(std::istream& stream, std::string& line) const {
  return lineSource().getLine(stream, line);
}

namespace zeb {

namespace {

template <class Types>
struct EntriesOf;
template <class... Blocks>
struct EntriesOf<BlockTypes<Blocks...>> {
  static constexpr std::array<BlockEntry, sizeof...(Blocks)> kEntries{blockEntry<Blocks>()...};
};

template <class Block>
struct Dispatched {
  static constexpr bool kHasOwnFile = std::is_same_v<Block, CZEBCMPVEParm>;
  static_assert(CMPDispatchOrder::kTimesListed<Block> == (kHasOwnFile ? 0 : 1),
                "CMPDispatchOrder leaves this block out or names it twice");
};
#define ZEB_DISPATCHED(Class, accessor, place) template struct Dispatched<Class>;
ZEB_CMP_BLOCKS(ZEB_DISPATCHED)
#undef ZEB_DISPATCHED

#define ZEB_PLACE(Class, accessor, place) DumpPlace::place,
constexpr std::array<DumpPlace, CMPBlocks::kCount> kDumpPlaces{ZEB_CMP_BLOCKS(ZEB_PLACE)};
#undef ZEB_PLACE

constexpr auto kDumped = [] {
  std::array<BlockEntry, CMPBlocks::kCount - std::ranges::count(kDumpPlaces, DumpPlace::kNever)> dumped{};
  auto next = dumped.begin();
  for (const DumpPlace place : {DumpPlace::kFirst, DumpPlace::kInTurn, DumpPlace::kSecondLast, DumpPlace::kLast}) {
    for (const BlockEntry& entry : EntriesOf<CMPBlocks>::kEntries) {
      if (kDumpPlaces[entry.number] == place) *next++ = entry;
    }
  }
  return dumped;
}();

}  // namespace

std::span<const BlockEntry> allBlocks() { return EntriesOf<CMPBlocks>::kEntries; }
std::span<const BlockEntry> dumpedBlocks() { return kDumped; }
std::span<const BlockEntry> dispatchedBlocks() { return EntriesOf<CMPDispatchOrder>::kEntries; }

}  // namespace zeb
