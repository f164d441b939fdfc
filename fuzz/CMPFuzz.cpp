// CMP content, with or without a viscoelastic companion: read on rank 0, replayed on rank 1, repaired and dumped.
//
// Byte 1: the low four bits are the molding type (none where there is no such code); the high four choose one of the
// checks that take much of a run's time. Byte 2: the switches below. Then the CMP file; behind the first byte 0x1E the
// viscoelastic file.
#include <algorithm>

#include "blocks/CZEBCMPVEParm.h"
#include "frame/CZEBKNCMPCompParm.h"
#include "frame/MoldingTypes.hpp"
#include "fuzz/FuzzSupport.hpp"
#include "inspect/set/Inspection.hpp"
#include "tests/support/RecordingCommunicator.h"

namespace {

using namespace zebfuzz;

constexpr char kSeparator = '\x1e';
constexpr char kFileName[] = "fuzz.cmp";
constexpr char kCompanionName[] = "fuzz.vecmp";

struct Input {
  explicit Input(Bytes bytes) {
    const unsigned choice = bytes.byte();
    molding = static_cast<int>(choice % 16);
    costly = choice / 16;
    const unsigned switches = bytes.byte();
    material = (switches & 1u) != 0 ? 1 : 0;
    wax = (switches & 2u) != 0;
    traces = (switches & 16u) != 0;
    readsTwice = (switches & 32u) != 0;
    const std::size_t separator = bytes.rest().find(kSeparator);
    cmp = bytes.rest().substr(0, separator);
    hasCompanion = separator != bytes.rest().npos;
    if (hasCompanion) vecmp = bytes.rest().substr(separator + 1);
    viscoelastic = hasCompanion || (switches & 64u) != 0;
  }

  bool comparesBeforeRepairs() const { return costly == 1; }
  bool comparesSerial() const { return costly == 2 || costly == 3; }
  bool dumps() const { return costly == 4 || costly == 5; }
  bool comparesDumps() const { return costly == 5; }

  int molding = 0;
  unsigned costly = 0;
  int material = 0;
  bool wax = false;
  bool traces = false;
  bool readsTwice = false;
  bool hasCompanion = false;
  bool viscoelastic = false;
  std::string_view cmp;
  std::string_view vecmp;
};

void setUp(CZEBKNCMPCompParm& set, const Input& input, CZEBCom* com) {
  CZEBCMPInternalTool* const tool = zeb::Inspection::tool(set);
  tool->m_writesFiles = false;
  tool->m_nPrintLevel = input.traces ? 1 : 0;
  if (com != nullptr) require(set.setZEBCom(com) == 1, "setZEBCom");
  if (input.wax) set.setIsWaxMat(1);
  if (input.viscoelastic) set.getVEParm()->setIstoCalcRS(true);
}

void read(CZEBKNCMPCompParm& set, const Input& input) {
  require(set.setSolidFillBlock(kFileName) == 1, "setSolidFillBlock");
  if (!input.readsTwice) return;
  HandedOut before;
  CZEBCMPInternalTool& tool = *zeb::Inspection::tool(set);
  for (const zeb::BlockEntry& entry : zeb::allBlocks()) before.collect(entry.table(), entry.locate(tool));
  require(set.setSolidFillBlock(kFileName) == 1, "setSolidFillBlock again");
  before.later();
}

void requireEqualSets(const CZEBKNCMPCompParm& a, const CZEBKNCMPCompParm& b, const char* what) {
  CZEBCMPInternalTool& first = *zeb::Inspection::tool(a);
  CZEBCMPInternalTool& second = *zeb::Inspection::tool(b);
  for (const zeb::BlockEntry& entry : zeb::allBlocks()) {
    requireEqual(entry.table(), entry.locate(first), entry.locate(second), what);
  }
}

// The dump with every address replaced: each rank has its own.
std::string dumpOf(CZEBKNCMPCompParm& set) {
  Output::drop();
  require(set.OutputParameters() == 1, "OutputParameters");
  const std::string dump = Output::take();
  std::string text;
  std::size_t from = 0;
  for (std::size_t at = dump.find("0x"); at != dump.npos; at = dump.find("0x", from)) {
    text.append(dump, from, at - from) += '@';
    from = std::min(dump.find_first_not_of("0123456789abcdef", at + 2), dump.size());
  }
  return text.append(dump, from);
}

// Without a tool every operation does nothing.
void checkUndefinedMolding(const Input& input) {
  CZEBKNCMPCompParm set(input.molding, input.material);
  require(set.setSolidFillBlock(kFileName) == -1 && set.modifyParameters() == -1 && set.OutputParameters() == -1,
          "an undefined molding type has a tool");
}

void checkSerial(const Input& input, CZEBKNCMPCompParm& rank0) {
  if (!readsTheSameInSerial(input.cmp) || !readsTheSameInSerial(input.vecmp)) return;
  CZEBKNCMPCompParm serial(input.molding, input.material);
  setUp(serial, input, nullptr);
  read(serial, input);
  serial.modifyParameters();
  requireEqualSets(rank0, serial, "rank 0 and a serial run");
}

void check(const Input& input) {
  Files files;
  files.add(kFileName, input.cmp);
  if (input.hasCompanion) files.add(kCompanionName, input.vecmp);
  if (input.molding >= std::ssize(zeb::moldingTypes())) return checkUndefinedMolding(input);

  CZEBKNCMPCompParm rank0(input.molding, input.material);
  zeb::RecordingCommunicator recorder(2);
  setUp(rank0, input, &recorder);
  read(rank0, input);
  const bool isPlain = !input.viscoelastic && !input.readsTwice && input.cmp.find("[Whiteboard]") == input.cmp.npos;
  if (isPlain) requireLineByLine(recorder.log(), input.cmp, true);

  files.forbidOpening();
  CZEBKNCMPCompParm rank1(input.molding, input.material);
  zeb::ReplayingCommunicator player(recorder.log(), 1, 2, zeb::OnMismatch::kAbort);
  setUp(rank1, input, &player);
  read(rank1, input);
  require(player.finished(), "rank 1 stopped too early");
  if (input.comparesBeforeRepairs()) requireEqualSets(rank0, rank1, "the ranks");
  files.allowOpening();

  require(rank0.modifyParameters() == 1 && rank1.modifyParameters() == 1, "modifyParameters");
  requireEqualSets(rank0, rank1, "the repaired ranks");
  if (input.dumps()) {
    const std::string dump = dumpOf(rank0);
    if (input.comparesDumps()) require(dump == dumpOf(rank1), "the ranks dump different texts");
  }
  if (input.comparesSerial()) checkSerial(input, rank0);
}

}  // namespace

void zebfuzz::checkInput(Bytes bytes) { check(Input(bytes)); }
