// The same analysis on several ranks, compared value by value.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <string>

#include "platform/ZEBCom.h"

namespace compparm {

/// Reads on one rank through the communicator it is given and returns every value as text.
using RankTask = std::function<std::string(CZEBCom& com)>;

struct RankComparison {
  int ranks = 1;
  std::string difference;  ///< empty: all ranks hold the same; else the first differing value and its rank

  bool same() const { return difference.empty(); }
};

/// Adds --ranks, the number of in-process ranks. Under mpirun, which brings its own, it is an error.
void addRanks(CLI::App& command, int& ranks, const char* about);

/// Runs the task on `ranks` in-process ranks, rank 0 on the calling thread.
RankComparison compareThreads(int ranks, const RankTask& task);

/// The real ranks of an MPI job; the library is loaded only when there is one.
class MpiRun {
 public:
  MpiRun() = default;
  MpiRun(const MpiRun&) = delete;
  MpiRun& operator=(const MpiRun&) = delete;

  /// Whether an MPI launcher has started this process, as its variables or --mpi tell.
  static bool isPresent();
  /// Joins the others. Empty, or why the ranks cannot be used.
  std::string join();
  /// Leaves them when everything is done. They wait for each other.
  void leave();
  /// Ends the process, of a job all ranks: the others would wait for this one, joined or not, for ever. Allocates
  /// nothing.
  [[noreturn]] static void abort(int exitCode);
  int rank() const;
  CZEBCom* communicator() const { return m_com; }
  /// Collective. The result is whole on rank 0; elsewhere only whether all ranks are the same.
  RankComparison compare(const RankTask& task) const;

 private:
  void* m_library = nullptr;
  CZEBCom* m_com = nullptr;
};

/// Makes `run` what the command does: on every rank of an MPI job, of which rank 0 tells the result, or in one process
/// with a null. Call it when the command has its options; it adds --mpi.
void runOnRanks(CLI::App& command, int& exitCode, std::function<int(const MpiRun* mpi)> run);
/// The same for what rank 0 does alone.
void runOnce(CLI::App& command, int& exitCode, std::function<int()> run);

}  // namespace compparm
