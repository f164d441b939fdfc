// Communicators for tests: one records a rank's collective calls, the other plays rank 0's to another rank.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

#include "platform/ZEBCom.h"
#include "tests/support/CallLog.h"

namespace zeb {

/// Records every collective call with the value that is sent (on a rank other than 0: received).
class RecordingCommunicator final : public CZEBCom {
 public:
  /// Rank 0 of `ranks` ranks, the others being played later: only rank 0 sends, so nobody has to be there.
  explicit RecordingCommunicator(int ranks) : ranks_(ranks) {}

  /// A rank of a real team: calls are passed on to `next` (not owned), which also says rank and number of ranks.
  explicit RecordingCommunicator(CZEBCom& next) : next_(&next) {}

  const CallLog& log() const { return log_; }
  void clear() { log_.clear(); }

  int GetCPUId() override { return next_ != nullptr ? next_->GetCPUId() : 0; }
  int GetNCPU() override { return next_ != nullptr ? next_->GetNCPU() : ranks_; }
  void Barrier() override;
  void Broadi(int& value) override;
  void Broadd(double& value) override;
  void Broadc(char (&buffer)[255]) override;

 private:
  CZEBCom* next_ = nullptr;
  int ranks_ = 0;
  CallLog log_;
};

/// A rank made another call than rank 0 did, or a call more.
class CallMismatch : public std::runtime_error {
 public:
  CallMismatch(int rank, std::size_t index, const std::string& recorded, const std::string& made);

  std::size_t index() const { return index_; }               ///< Number of the call, from 0.
  const std::string& recorded() const { return recorded_; }  ///< Rank 0's call, "nothing" behind the last one.
  const std::string& made() const { return made_; }          ///< The name of this rank's call.

 private:
  std::size_t index_;
  std::string recorded_;
  std::string made_;
};

enum class OnMismatch {
  kThrow,  ///< Throw CallMismatch; the position in the log stays.
  kAbort,  ///< Print the message on standard error and abort, for fuzzing.
};

/// Acts as a rank other than 0: every call must be the log's next one and receives the value recorded there.
class ReplayingCommunicator final : public CZEBCom {
 public:
  /// `log` must outlive this object.
  ReplayingCommunicator(const CallLog& log, int rank, int ranks, OnMismatch onMismatch = OnMismatch::kThrow)
      : reader_(log), rank_(rank), ranks_(ranks), onMismatch_(onMismatch) {}
  ReplayingCommunicator(CallLog&& log, int rank, int ranks, OnMismatch onMismatch = OnMismatch::kThrow) = delete;

  /// True when every recorded call was made. False at the end means that this rank stopped too early.
  bool finished() const { return reader_.atEnd(); }
  std::size_t callsMade() const { return reader_.index(); }

  int GetCPUId() override { return rank_; }
  int GetNCPU() override { return ranks_; }
  void Barrier() override;
  void Broadi(int& value) override;
  void Broadd(double& value) override;
  void Broadc(char (&buffer)[255]) override;

 private:
  void expect(CallKind kind);

  CallReader reader_;
  int rank_;
  int ranks_;
  OnMismatch onMismatch_;
};

}  // namespace zeb
