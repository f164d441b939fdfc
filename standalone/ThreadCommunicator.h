// Ranks as threads of one process, for tests and for tools that compare ranks without MPI.
#pragma once

#include <functional>
#include <memory>

#include "platform/ZEBCom.h"

namespace zeb {

/// A team of ranks that live in threads of this process. Waiting ranks sleep, so a team may be far larger than the
/// machine has cores. Ranks that do not make the same sequence of calls get an error instead of a deadlock.
class ThreadTeam {
 public:
  /// Throws std::invalid_argument if `ranks` is below 1.
  explicit ThreadTeam(int ranks);
  ~ThreadTeam();
  ThreadTeam(const ThreadTeam&) = delete;
  ThreadTeam& operator=(const ThreadTeam&) = delete;

  int size() const;

  /// The communicator of one rank, 0 to size() - 1 (std::out_of_range otherwise), to be used by one thread at a time.
  CZEBCom& rank(int index);

  /// Calls `work` once per rank, each on a thread of its own (rank 0 on the calling one), and waits for all. If one
  /// throws, or its thread cannot be started, the others' collective calls throw as well, and the first exception is
  /// thrown again here. Ranks that end with different numbers of calls, or meet in different calls, give a
  /// std::runtime_error. May be called again afterwards, whatever happened.
  void run(const std::function<void(int rank, CZEBCom& com)>& work);

 private:
  class Rank;
  class Meeting;
  std::unique_ptr<Meeting> meeting_;
};

}  // namespace zeb
