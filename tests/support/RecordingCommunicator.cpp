// Recording rank 0's calls and playing them to the other ranks.
#include "tests/support/RecordingCommunicator.h"

#include <cstdio>
#include <cstdlib>

namespace zeb {

void RecordingCommunicator::Barrier() {
  if (next_ != nullptr) next_->Barrier();
  log_.addBarrier();
}

void RecordingCommunicator::Broadi(int& value) {
  if (next_ != nullptr) next_->Broadi(value);
  log_.addInt(value);
}

void RecordingCommunicator::Broadd(double& value) {
  if (next_ != nullptr) next_->Broadd(value);
  log_.addDouble(value);
}

void RecordingCommunicator::Broadc(char (&buffer)[255]) {
  if (next_ != nullptr) next_->Broadc(buffer);
  log_.addText(buffer);
}

CallMismatch::CallMismatch(int rank, std::size_t index, const std::string& recorded, const std::string& made)
    : std::runtime_error("collective call " + std::to_string(index) + ": rank 0 made " + recorded + ", rank " +
                         std::to_string(rank) + " made " + made),
      index_(index),
      recorded_(recorded),
      made_(made) {}

void ReplayingCommunicator::expect(CallKind kind) {
  if (!reader_.atEnd() && reader_.kind() == kind) return;
  const CallMismatch mismatch(rank_, reader_.index(), reader_.atEnd() ? "nothing" : reader_.describe(), callName(kind));
  if (onMismatch_ == OnMismatch::kThrow) throw mismatch;
  std::fprintf(stderr, "%s\n", mismatch.what());
  std::abort();
}

void ReplayingCommunicator::Barrier() {
  expect(CallKind::kBarrier);
  reader_.next();
}

void ReplayingCommunicator::Broadi(int& value) {
  expect(CallKind::kBroadi);
  value = reader_.intValue();
  reader_.next();
}

void ReplayingCommunicator::Broadd(double& value) {
  expect(CallKind::kBroadd);
  value = reader_.doubleValue();
  reader_.next();
}

void ReplayingCommunicator::Broadc(char (&buffer)[255]) {
  expect(CallKind::kBroadc);
  reader_.copyText(buffer);
  reader_.next();
}

}  // namespace zeb
