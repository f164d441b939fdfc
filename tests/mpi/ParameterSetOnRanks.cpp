// Run on several real ranks: every rank reads the examples into parameter sets of its own; rank 0 then reads each of
// them alone and compares value by value. A line for each file; the exit code is 0 only if all are the same.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ZEBKNCompParm.h"
#include "cmx/CZEBCMXInternalTool.hpp"
#include "cmx/CZEBKNCMXCompParm.h"
#include "inspect/set/Values.hpp"
#include "stdcmp/CZEBKNstdCMPCompParm.h"
#include "tests/mpi/Verdict.hpp"
#include "tests/ranks/Examples.hpp"
#include "tests/ranks/RankReading.hpp"
#include "tests/stdcmp/PublicValues.hpp"
#include "tests/support/TestFolder.hpp"
#include "tests/support/Tsv.hpp"

namespace {

using zebtest::Verdict;

// Reads a file, alone when `com` is null, and returns every value.
using Reader = std::function<std::string(CZEBCom* com, const std::string& file)>;

std::string readStd(CZEBCom* com, const std::string& file) {
  const zeb::OutputCapture capture;
  CZEBKNstdCMPCompParm set;
  if (com != nullptr) set.setZEBCom(com);
  set.setSolidFillBlock(file);
  return zebtest::textOf(zebtest::publicValues(set));
}

template <class Block>
void addValues(std::string& text, Block* block) {
  for (const zeb::Section& section : zeb::tableOf<Block>().sections) {
    for (const zeb::Row& row : section.rows) {
      text += std::string(section.name) + "." + std::string(row.field.member) + " = " + zeb::valueOf(row, block) + "\n";
    }
  }
}

std::string readCMX(CZEBCom* com, const std::string& file) {
  CZEBKNCMXCompParm set(0);
  if (com != nullptr) set.setZEBCom(com);
  set.setSolidFillBlock(file);
  std::string text;
  addValues(text, set.getSOLID_FILL());
  addValues(text, set.getFILL_ADVANCED_SlipBC());
  addValues(text, set.getFILL_ADVANCED_LONGFIBER());
  addValues(text, set.getFILL_ADVANCED_HRSteady());
  addValues(text, set.getSOLID_COOL());
  addValues(text, set.getSOLID_VE());
  addValues(text, set.getSOLID_PACK());
  addValues(text, set.get_TASKMANAGER());
  addValues(text, set.getDyna_Forming());
  addValues(text, set.getFILL_ADVANCED_MCIM());
  addValues(text, set.getFILL_OUTPUT_TIMES());
  addValues(text, set.getPACK_OUTPUT_TIMES());
  return text;
}

// Only rank 0 is given the file's name: no other rank may need it.
void compare(Verdict& verdict, const std::string& what, const std::string& file, const Reader& read) {
  const std::string values = read(&verdict.com(), verdict.isFirst() ? file : "no/such/file.cmp");
  const std::vector<std::string> ofRanks = zebtest::textsOfRanks(values);
  if (!verdict.isFirst()) return;
  const std::string serial = read(nullptr, file);
  const bool isRead = !serial.empty() && serial != read(nullptr, "no/such/file.cmp");
  verdict.add(isRead && verdict.areAll(ofRanks, serial), std::filesystem::path(file).filename().string() + ", " + what);
}

Reader cmpReader(int molding, bool viscoelastic = false) {
  return [molding, viscoelastic](CZEBCom* com, const std::string& file) {
    return zebtest::readAs(com, file, {.molding = molding, .material = molding % 2, .viscoelastic = viscoelastic})
        .values;
  };
}

void compareAll(Verdict& verdict) {
  const std::string cover = zebtest::example("thin-wall-cover.cmp");
  for (const std::string& file : zebtest::examples(".cmp")) {
    compare(verdict, "molding type 0", file, cmpReader(0));
    compare(verdict, "standard solver", file, readStd);
  }
  for (const int molding : zebtest::moldingCodes()) {
    compare(verdict, "molding type " + std::to_string(molding), cover, cmpReader(molding));
  }
  // In a copy: an invalid viscoelastic file would be replaced.
  const zeb::test::TestFolder folder;
  const std::string copy = folder.write("cover.cmp", zebtest::contentOf(cover));
  folder.write("cover.vecmp", zebtest::contentOf(zebtest::example("thin-wall-cover.vecmp")));
  compare(verdict, "viscoelastic", copy, cmpReader(0, true));
  for (const std::string& file : zebtest::examples(".cmx")) compare(verdict, "analysis settings", file, readCMX);
}

}  // namespace

int main() {
  CZEBCom* com = ZebCreateMpiCommunicator();
  bool same = false;
  if (com->GetNCPU() < 2) {
    std::printf("needs at least 2 ranks: start it with mpirun\n");
  } else {
    Verdict verdict(*com);
    compareAll(verdict);
    zebtest::compareMaterialData(verdict);
    same = verdict.allGood();
    if (verdict.isFirst()) std::printf("%s\n", same ? "all the same" : "THERE ARE DIFFERENCES");
  }
  ZebDestroyMpiCommunicator(com);
  return same && !testing::Test::HasFailure() ? 0 : 1;
}
