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

/// The real ranks of an mpirun, loaded only when there is one.
class MpiRun {
 public:
  MpiRun();
  MpiRun(const MpiRun&) = delete;
  MpiRun& operator=(const MpiRun&) = delete;
  ~MpiRun();

  /// Whether this process was started by mpirun.
  static bool isPresent();
  /// Empty, or why the ranks cannot be used.
  const std::string& error() const { return m_error; }
  int rank() const;
  CZEBCom* communicator() const { return m_com; }
  /// Collective. The result is whole on rank 0; elsewhere only whether all ranks are the same.
  RankComparison compare(const RankTask& task) const;

 private:
  void* m_library = nullptr;
  CZEBCom* m_com = nullptr;
  std::string m_error;
};

}  // namespace compparm
