// Run on several real ranks: every rank receives the example materials, and one that does not exist, and rank 0
// compares the copies with what its engine holds; every rank creates a process object of its own, in its turn.
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "material/CZEBKNMaterialParam.h"
#include "material/CZEBKNProcessParam.h"
#include "platform/ZEBG.h"
#include "standalone/MaterialEngine.h"
#include "tests/material/RecordText.hpp"
#include "tests/mpi/Verdict.hpp"
#include "tests/ranks/Examples.hpp"
#include "tests/support/RecordingCommunicator.h"
#include "tests/support/TestFolder.hpp"

namespace {

// What this rank's process objects leave behind. The folder is the same for all ranks.
struct Traces {
  std::string folder;
  int rank = 0;
  int created = 0;
  int destroyed = 0;
  bool wasAlone = true;
  const ZEBG_SimulatorProcess* last = nullptr;
} traces;

}  // namespace

// Defined in this program, these take precedence over those of the process library.
ZEBG_DataEntryValueStorage::~ZEBG_DataEntryValueStorage() { ++traces.destroyed; }

// Slow enough that ranks which do not wait for their turn would meet.
ZEBG_SimulatorProcess::ZEBG_SimulatorProcess() {
  const std::string inside = traces.folder + "/inside";
  traces.wasAlone = std::filesystem::create_directory(inside) && traces.wasAlone;
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
  std::ofstream(traces.folder + "/order", std::ios::app) << traces.rank << ' ';
  std::filesystem::remove(inside);
  ++traces.created;
  traces.last = this;
}

namespace zebtest {
namespace {

struct Expected {
  std::string text;
  std::vector<std::string> texts{7};
};

Expected emptyMaterial() {
  double coefficients[6] = {};
  char noText[] = "";
  ZebMaterial material{};
  material.szText[0] = noText;
  material.pdCoefficient = coefficients;
  return {recordText(material, {})};
}

// Straight from the engine, not through the library.
Expected materialOfEngine(const std::string& name) {
  ZebMaterial* const material = ZebGetMaterial(name);
  if (material == nullptr) return emptyMaterial();
  int unused = 0;
  int count = 0;
  ZebGetMTCInfo(material, unused, count);
  std::vector<const ZEB_MTC*> curves;
  for (int i = 0; i < count; ++i) curves.push_back(ZebGetMTCData(material, i));
  Expected expected{recordText(*material, curves)};
  for (std::size_t i = 0; i < 7; ++i) {
    if (material->szText[i] != nullptr) expected.texts[i] = material->szText[i];
  }
  ZebReleaseMaterial(material);
  return expected;
}

// All but the first text stay on rank 0; elsewhere they are empty.
bool hasTheOtherTexts(const CZEBKNMaterialParam& param, const std::vector<std::string>& expected, bool isFirst) {
  bool good = true;
  for (std::size_t i = 1; i < 7; ++i) {
    good = good && param.GetZebMaterial()->szText[i] == (isFirst ? expected[i] : std::string());
  }
  return good;
}

// Only rank 0 is given the name: no other rank may need it, nor its engine.
void compareMaterial(Verdict& verdict, const std::string& name, bool exists) {
  const bool isFirst = verdict.isFirst();
  CZEBKNMaterialParam param;
  param.SetInput(isFirst ? name : "only/rank/0/knows.json", &verdict.com());
  const bool engineFailed = !zeb::lastMaterialError().empty();
  verdict.add(engineFailed == (isFirst && !exists), name + ": the engine's errors");

  const std::vector<std::string> texts = textsOfRanks(recordText(param));
  const Expected expected = isFirst ? materialOfEngine(name) : Expected{};
  if (isFirst) {
    verdict.add(verdict.areAll(texts, expected.text), name + ": the record, its tables and curves");
    verdict.add((expected.text != emptyMaterial().text) == exists, name + ": is there");
  }
  verdict.add(hasTheOtherTexts(param, expected.texts, isFirst), name + ": texts 2 to 7");
}

// Rank 0's text on every rank; up to 254 characters.
std::string shared(CZEBCom& com, const std::string& text) {
  char buffer[255] = {};
  text.copy(buffer, sizeof buffer - 1);
  com.Broadc(buffer);
  return buffer;
}

void compareProcesses(Verdict& verdict) {
  CZEBCom& com = verdict.com();
  const zeb::test::TestFolder folder;
  traces = {shared(com, folder.path()), com.GetCPUId()};
  {
    zeb::RecordingCommunicator recording(com);
    CZEBKNProcessParam param;
    param.SetInput("", &recording);
    const std::vector<std::string> barriers(static_cast<std::size_t>(com.GetNCPU()), "Barrier");
    verdict.add(recording.log().calls() == barriers, "process: a barrier for each rank's turn");
    verdict.add(traces.created == 1 && traces.wasAlone, "process: one object, made alone");
    verdict.add(param.GetZebProcess() != nullptr && param.GetZebProcess() == traces.last, "process: handed out");
    verdict.add(traces.destroyed == 0, "process: alive");
  }
  verdict.add(traces.destroyed == 1, "process: destroyed with its owner");
  if (verdict.isFirst()) {
    std::string order;
    for (int rank = 0; rank < com.GetNCPU(); ++rank) order += std::to_string(rank) + ' ';
    verdict.add(contentOf(traces.folder + "/order") == order, "process: made in the ranks' order");
  }
}

}  // namespace

void compareMaterialData(Verdict& verdict) {
  zeb::setMaterialFolders({ZEB_EXAMPLES_DIR "/materials"});
  for (const char* name : {"pa66-gf30", "epoxy-encapsulant"}) compareMaterial(verdict, name, true);
  compareMaterial(verdict, "no-such-material", false);
  compareProcesses(verdict);
}

}  // namespace zebtest
