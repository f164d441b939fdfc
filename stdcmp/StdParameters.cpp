#include "stdcmp/StdParameters.hpp"

namespace zeb {

namespace {

template <class Block>
DispatchEntry entryOf(Block& block) {
  return {&tableOf<Block>().sections.front(), &block};
}

}  // namespace

StdParameters::StdParameters()
    : m_sections{entryOf(solver), entryOf(general), entryOf(stableFlag), entryOf(multiGate)} {}

std::span<const BlockTable* const> StdParameters::tables() {
  static const BlockTable* const kTables[] = {&tableOf<StdSolverSettings>(), &tableOf<StdGeneral>(),
                                              &tableOf<StdStableFlag>(), &tableOf<StdMultiGate>()};
  return kTables;
}

int StdParameters::readFileBlock(const std::string& fileName, CZEBCom* com) {
  return readFile(kStdFormat, m_sections, fileName, kStdFormat.lineSource(com, 0), observer);
}

}  // namespace zeb
