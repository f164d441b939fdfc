// CMX content: read on rank 0, replayed on rank 1, read again, copied.
//
// Byte 1: the switches below; then the file.
#include "ZEBKNCompParm.h"
#include "cmx/CZEBCMXInternalTool.hpp"
#include "cmx/CZEBKNCMXCompParm.h"
#include "engine/TableBuilder.hpp"
#include "fuzz/FuzzSupport.hpp"
#include "tests/support/RecordingCommunicator.h"

namespace {

using namespace zebfuzz;

constexpr char kFileName[] = "fuzz.cmx";

template <class Action>
void forEachBlock(const CZEBKNCMXCompParm& set, Action action) {
  const auto visit = [&](auto* block) {
    action(zeb::tableOf<std::remove_pointer_t<decltype(block)>>(), static_cast<void*>(block));
  };
  visit(set.getSOLID_FILL());
  visit(set.getFILL_ADVANCED_SlipBC());
  visit(set.getFILL_ADVANCED_LONGFIBER());
  visit(set.getFILL_ADVANCED_HRSteady());
  visit(set.getSOLID_COOL());
  visit(set.getSOLID_VE());
  visit(set.getSOLID_PACK());
  visit(set.get_TASKMANAGER());
  visit(set.getDyna_Forming());
  visit(set.getFILL_ADVANCED_MCIM());
  visit(set.getFILL_OUTPUT_TIMES());
  visit(set.getPACK_OUTPUT_TIMES());
}

void requireEqualSets(const CZEBKNCMXCompParm& a, const CZEBKNCMXCompParm& b, const char* what) {
  std::vector<void*> others;
  forEachBlock(b, [&](const zeb::BlockTable&, void* block) { others.push_back(block); });
  std::size_t next = 0;
  forEachBlock(a, [&](const zeb::BlockTable& table, void* block) { requireEqual(table, block, others[next++], what); });
}

void read(CZEBKNCMXCompParm& set, bool twice) {
  require(set.setSolidFillBlock(kFileName) == 1, "setSolidFillBlock");
  if (!twice) return;
  HandedOut before;
  forEachBlock(set, [&](const zeb::BlockTable& table, void* block) { before.collect(table, block); });
  require(set.setSolidFillBlock(kFileName) == 1, "setSolidFillBlock again");
  before.later();
}

void check(std::string_view content, bool readsTwice, bool comparesSerial) {
  Files files;
  files.add(kFileName, content);

  CZEBKNCMXCompParm rank0(0);
  zeb::RecordingCommunicator recorder(2);
  require(rank0.setZEBCom(&recorder) == 1, "setZEBCom");
  read(rank0, readsTwice);
  if (!readsTwice) requireLineByLine(recorder.log(), content, false);

  files.forbidOpening();
  CZEBKNCMXCompParm rank1(1);
  zeb::ReplayingCommunicator player(recorder.log(), 1, 2, zeb::OnMismatch::kAbort);
  require(rank1.setZEBCom(&player) == 1, "setZEBCom");
  read(rank1, readsTwice);
  require(player.finished(), "rank 1 stopped too early");
  requireEqualSets(rank0, rank1, "the ranks");
  files.allowOpening();

  if (!comparesSerial || !readsTheSameInSerial(content)) return;
  CZEBKNCMXCompParm copy(0);
  {
    CZEBKNCMXCompParm serial(2);
    require(serial.setZEBCom(nullptr) == -1, "a null communicator was taken");
    read(serial, readsTwice);
    copy = serial;
  }
  requireEqualSets(rank0, copy, "rank 0 and the copy of a serial run");
}

}  // namespace

void zebfuzz::checkInput(Bytes bytes) {
  const unsigned switches = bytes.byte();
  check(bytes.rest(), (switches & 1u) != 0, (switches & 2u) != 0);
}
