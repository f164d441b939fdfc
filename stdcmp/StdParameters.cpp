#include "stdcmp/StdParameters.hpp"

#include <type_traits>

namespace zeb {

StdParameters::StdParameters()
    : m_sections(std::apply(
          [](auto&... blocks) {
            return std::array{DispatchEntry{&tableOf<std::decay_t<decltype(blocks)>>().sections.front(), &blocks}...};
          },
          m_blocks)) {}

std::span<const BlockTable* const> StdParameters::tables() {
  static const auto kTables = []<class... Listed>(std::type_identity<std::tuple<Listed...>>) {
    return std::array{&tableOf<Listed>()...};
  }(std::type_identity<Blocks>());
  return kTables;
}

int StdParameters::readFileBlock(const std::string& fileName, CZEBCom* com) {
  return readFile(kStdFormat, m_sections, fileName, kStdFormat.lineSource(com, 0), observer);
}

}  // namespace zeb
